// Settings in files of sections, names and values: TCustomIniFile, TIniFile, which keeps
// nothing in memory, and TMemIniFile, which keeps the whole file there.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "vcl/rtl/datetime.h"
#include "vcl/rtl/object.h"

namespace vcl {

enum class TIniCoding;
class TIniText;
class TStrings;

/// Values by section and name (ident), both compared without the case of A to Z.
///
/// Every value is a text. An integer is written in decimal; a Boolean as "1" or "0"; a floating
/// number with a point; a date and a time in the formats of FormatSettings. Reading gives
/// `otherwise` where there is no value or where it is no text of that kind.
class VCL_API TCustomIniFile : public TObject {
 public:
  explicit TCustomIniFile(std::string fileName) : FFileName(std::move(fileName)) {}
  /// The name as it was given.
  const std::string& FileName() const { return FFileName; }

  /// A value without the blanks around it and without one pair of quotes, single or double, around
  /// it; an entry without "=" has none.
  std::string ReadString(const std::string& section, const std::string& ident,
                         const std::string& otherwise) const;
  /// Writes the value as it is: one with blanks at its ends, or in quotes, must be put in quotes.
  /// Raises EIniFileException for what a line can't hold: line breaks and NUL anywhere, "=" in a
  /// name, a name that would make the line a section's header; and when the file can't be read or
  /// written. Then the file is as before.
  void WriteString(const std::string& section, const std::string& ident, const std::string& value);
  int ReadInteger(const std::string& section, const std::string& ident, int otherwise) const;
  void WriteInteger(const std::string& section, const std::string& ident, int value);
  /// True for any number but 0.
  bool ReadBool(const std::string& section, const std::string& ident, bool otherwise) const;
  void WriteBool(const std::string& section, const std::string& ident, bool value);
  double ReadFloat(const std::string& section, const std::string& ident, double otherwise) const;
  void WriteFloat(const std::string& section, const std::string& ident, double value);
  TDateTime ReadDate(const std::string& section, const std::string& ident,
                     TDateTime otherwise) const;
  void WriteDate(const std::string& section, const std::string& ident, TDateTime value);
  TDateTime ReadTime(const std::string& section, const std::string& ident,
                     TDateTime otherwise) const;
  void WriteTime(const std::string& section, const std::string& ident, TDateTime value);
  TDateTime ReadDateTime(const std::string& section, const std::string& ident,
                         TDateTime otherwise) const;
  void WriteDateTime(const std::string& section, const std::string& ident, TDateTime value);

  /// These replace the list's lines: by the idents of a section's values, by the names of all
  /// sections, and by the lines "ident=value" of a section, the values as ReadString gives them.
  void ReadSection(const std::string& section, TStrings& list) const;
  void ReadSections(TStrings& list) const;
  void ReadSectionValues(const std::string& section, TStrings& list) const;
  bool SectionExists(const std::string& section) const;
  bool ValueExists(const std::string& section, const std::string& ident) const;

  /// Deletes the section whole, comments in it included; one value. What is not there is no error.
  void EraseSection(const std::string& section);
  void DeleteKey(const std::string& section, const std::string& ident);
  /// Writes what has not been written yet.
  virtual void UpdateFile() = 0;

 protected:
  /// Calls back with the text as it is now.
  virtual void Look(const std::function<void(const TIniText&)>& look) const = 0;
  /// Calls back to change the text.
  virtual void Change(const std::function<void(TIniText&)>& change) = 0;

 private:
  std::string FFileName;
};

/// A settings file as the system's private profile functions know it, read anew by every call and
/// written by each one that changes it. A name without a folder is a file in the Windows folder.
///
/// It reads what those functions read of the same file. Where it differs: other lines are kept to
/// the byte when one is changed; what a line can't hold is refused; names and values may be of any
/// length. A file that begins with UTF-16's mark, or UTF-8's, stays in that encoding; others are
/// UTF-8.
///
/// Several programs and threads may write to one file at a time: each change is made to what the
/// one before has left. Whenever a program ends, the file is whole. It is replaced or, while
/// another program has it open and lets it be written but not replaced, written over. Reading a
/// file that is missing or can't be read gives the values of `otherwise`; a program that has the
/// file for itself is waited for, up to two seconds by each call.
class VCL_API TIniFile : public TCustomIniFile {
 public:
  /// Raises EIniFileException for an empty name.
  explicit TIniFile(const std::string& fileName);
  bool MustRead() const { return FMustRead; }
  /// True raises EIniFileException where a file is there and can't be read, so that its values are
  /// not taken for missing ones.
  void SetMustRead(bool mustRead) { FMustRead = mustRead; }
  /// Nothing is left to write.
  void UpdateFile() override {}

 protected:
  void Look(const std::function<void(const TIniText&)>& look) const override;
  void Change(const std::function<void(TIniText&)>& change) override;

 private:
  std::string FFullName;
  bool FMustRead = false;
};

/// A settings file in memory: many values are read and written at once. The file is named, and its
/// text understood, as TIniFile does; it is read by the constructor and written by UpdateFile, in
/// whole, so that what others have written meanwhile is lost.
class VCL_API TMemIniFile : public TCustomIniFile {
 public:
  /// Raises EIniFileException for an empty name and for a file that is there and can't be read.
  explicit TMemIniFile(const std::string& fileName);
  ~TMemIniFile() override;
  /// Raises EIniFileException when the file can't be written. What has not been written when the
  /// object ends is lost.
  void UpdateFile() override;

 protected:
  void Look(const std::function<void(const TIniText&)>& look) const override;
  void Change(const std::function<void(TIniText&)>& change) override;

 private:
  std::string FFullName;
  TIniCoding FCoding;
  std::unique_ptr<TIniText> FText;
  bool FModified = false;
};

}  // namespace vcl
