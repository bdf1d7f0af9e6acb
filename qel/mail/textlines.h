// The lines of a text that is held in one piece: walked over without copying any, and kept
// compactly.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "qel/core/api.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// Walks over the lines of a text, which end with "\r\n", "\n" or "\r"; an end of line at the
/// text's end begins no further line. The text must outlive it.
class QEL_API TLineReader {
 public:
  explicit TLineReader(std::string_view text) : FText(text) {}

  /// The next line, without its end; false when there is none.
  bool Next(std::string_view& line);
  /// What has not been walked over yet.
  std::string_view Rest() const { return FText.substr(FPosition); }
  /// Where the rest begins.
  std::size_t Position() const { return FPosition; }

 private:
  std::string_view FText;
  std::size_t FPosition = 0;
  // Kept from line to line: a text with "\r" alone is searched only once for "\n".
  std::size_t FLineFeed = 0;
  bool FSearched = false;
};

/// The lines' texts in one piece, one behind the other: what millions of lines of an attachment
/// take is hardly more than their letters. It keeps no objects: giving it one raises
/// EStringListError.
class QEL_API TTextLines : public vcl::TStrings {
 public:
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  int Count() const override { return static_cast<int>(FEnds.size()); }
  std::string Strings(int index) const override { return std::string(Line(index)); }
  void SetStrings(int index, const std::string& text) override;
  vcl::TObject* Objects(int index) const override;
  void SetObjects(int index, vcl::TObject* object) override;
  void InsertObject(int index, const std::string& text, vcl::TObject* object) override;
  void Delete(int index) override;
  void Clear() override;

  /// The line itself; valid until the list changes. Raises EStringListError outside.
  std::string_view Line(int index) const;
  void AddLine(std::string_view line);
  /// Appends the lines of a text.
  void AddLines(std::string_view text);
  /// Makes room for so many lines of so many letters altogether.
  void Reserve(std::size_t letters, std::size_t lines = 0) {
    FLetters.reserve(letters);
    FEnds.reserve(lines);
  }
  /// All lines, one behind the other, without ends; where in it each line ends; and the line that a
  /// letter in it, counted from 0, belongs to.
  std::string_view Letters() const { return FLetters; }
  std::size_t End(int index) const { return FEnds[static_cast<std::size_t>(index)]; }
  int LineOf(std::size_t letter) const;

 private:
  std::size_t Begin(int index) const { return index == 0 ? 0 : End(index - 1); }
  void Replace(int index, std::string_view text);
  static void RefuseObject(const vcl::TObject* object);

  std::string FLetters;
  std::vector<std::size_t> FEnds;
};

}  // namespace qel
