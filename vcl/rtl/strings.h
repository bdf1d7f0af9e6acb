// TStrings, a list of texts with an object beside each, and TStringList, which keeps it in memory.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/events.h"
#include "vcl/rtl/persistent.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

class TStream;

/// A list of texts, each with a reference to an object beside it that the list does not own.
/// Indexes run from 0; methods that take one raise EStringListError outside.
class VCL_API TStrings : public TPersistent {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  virtual int Count() const = 0;
  virtual std::string Strings(int index) const = 0;
  virtual void SetStrings(int index, const std::string& text) = 0;
  virtual TObject* Objects(int index) const = 0;
  virtual void SetObjects(int index, TObject* object) = 0;
  virtual void InsertObject(int index, const std::string& text, TObject* object) = 0;
  virtual void Delete(int index) = 0;
  virtual void Clear() = 0;

  /// Appends (or, in a sorted list, puts in its place) and returns the index.
  virtual int AddObject(const std::string& text, TObject* object);
  int Add(const std::string& text) { return AddObject(text, nullptr); }
  void Append(const std::string& text) { Add(text); }
  void Insert(int index, const std::string& text) { InsertObject(index, text, nullptr); }
  void AddStrings(const TStrings& other);
  void Exchange(int a, int b);
  void Move(int from, int to);
  /// The first line equal to the text but for case; -1 when there is none.
  virtual int IndexOf(std::string_view text) const;
  int IndexOfObject(const TObject* object) const;

  /// All lines, each ended by "\r\n".
  std::string Text() const;
  /// Splits at "\r\n", "\n" and "\r"; an end of line at the text's end begins no further line.
  void SetText(std::string_view text);
  /// The lines joined by commas; a line with blanks, commas or quotes stands in double quotes,
  /// quotes in it doubled.
  std::string CommaText() const;
  void SetCommaText(std::string_view text);

  /// What stands before the first "=" of a line; empty when there is none.
  std::string Names(int index) const;
  /// The line "name=value" whose name is equal but for case; -1 when there is none.
  int IndexOfName(std::string_view name) const;
  /// The value of the first line "name=value"; empty when there is none.
  std::string Values(std::string_view name) const;
  /// Changes or appends the line "name=value"; an empty value deletes the line.
  void SetValues(std::string_view name, const std::string& value);

  /// Raise EFOpenError, EReadError, EFCreateError and EWriteError as streams do; a list that cannot
  /// be read keeps its lines.
  void LoadFromStream(TStream& stream);
  void SaveToStream(TStream& stream) const;
  void LoadFromFile(const std::string& fileName);
  void SaveToFile(const std::string& fileName) const;

  /// Replaces the lines by another list's.
  void Assign(const TPersistent* source) override;
  /// True when lines and objects are the same, in the same order.
  bool Equals(const TStrings& other) const;
  /// Between the two, change notifications wait for the last EndUpdate. They nest.
  void BeginUpdate();
  void EndUpdate();

 protected:
  void DefineProperties(TFiler& filer) override;
  /// Called with true at the first BeginUpdate and with false at the last EndUpdate.
  virtual void SetUpdateState(bool /*updating*/) {}
  int UpdateCount() const { return FUpdateCount; }
  /// Raises EStringListError when the index is not below `limit`.
  void CheckIndex(int index, int limit) const;

 private:
  int FUpdateCount = 0;
};

/// What a sorted TStringList does with a text that it has already.
enum TDuplicates { dupIgnore, dupAccept, dupError };
template <>
inline constexpr TEnumText EnumText<TDuplicates>{"TDuplicates", "dupIgnore dupAccept dupError"};

/// A list of texts that keeps them itself, sorted if wished.
class VCL_API TStringList : public TStrings {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  int Count() const override { return static_cast<int>(FLines.size()); }
  std::string Strings(int index) const override;
  /// Raises EStringListError for a sorted list.
  void SetStrings(int index, const std::string& text) override;
  TObject* Objects(int index) const override;
  void SetObjects(int index, TObject* object) override;
  int AddObject(const std::string& text, TObject* object) override;
  /// Raises EStringListError for a sorted list.
  void InsertObject(int index, const std::string& text, TObject* object) override;
  void Delete(int index) override;
  void Clear() override;
  int IndexOf(std::string_view text) const override;

  /// Looks a text up in a sorted list: true and its index, or false and the index where it would be
  /// put.
  bool Find(std::string_view text, int& index) const;
  /// Sorts the lines once; equal ones keep their order.
  void Sort();
  bool Sorted() const { return FSorted; }
  /// Keeps the list sorted from now on.
  void SetSorted(bool sorted);
  TDuplicates Duplicates() const { return FDuplicates; }
  void SetDuplicates(TDuplicates duplicates) { FDuplicates = duplicates; }
  bool CaseSensitive() const { return FCaseSensitive; }
  void SetCaseSensitive(bool caseSensitive);

  /// Before resp. after the lines change.
  TNotifyEvent OnChanging;
  TNotifyEvent OnChange;

 protected:
  void SetUpdateState(bool updating) override;
  virtual void Changing();
  virtual void Changed();

 private:
  struct TLine {
    std::string Text;
    TObject* Object;
  };
  bool Less(std::string_view a, std::string_view b) const;
  void RefuseWhenSorted() const;
  void InsertLine(int index, const std::string& text, TObject* object);

  std::vector<TLine> FLines;
  bool FSorted = false;
  bool FCaseSensitive = false;
  TDuplicates FDuplicates = dupIgnore;
};

}  // namespace vcl
