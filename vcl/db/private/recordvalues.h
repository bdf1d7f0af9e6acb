// The values of records in files, and what the readers of both formats have in common.
#pragma once

#include <string>
#include <string_view>

#include "vcl/db/private/recordfile.h"

namespace vcl {

/// "ftString".
std::string FieldTypeText(TFieldType dataType);

/// The value, which is not Null, as a text. Raises EDatabaseError for one that is none of the
/// field's kind.
std::string SavedText(const TFieldValue& value, const TSavedField& field);
/// True when a value of that kind is saved as a text, and false for numbers and Booleans.
bool SavedInQuotes(const TFieldValue& value, const TSavedField& field);

/// Reading a file: what is wrong is told with the line.
class TRecordReader {
 public:
  explicit TRecordReader(std::string_view text) : FText(text) {}

 protected:
  [[noreturn]] void Fail(std::string_view what) const;
  /// The value that a text says.
  TFieldValue ValueOf(std::string_view text, const TSavedField& field) const;
  TFieldType TypeOf(std::string_view name) const;
  void AddField(TSavedField field);

  std::string_view FText;
  int FLine = 1;
  TSavedRecords FRead;
};

TSavedRecords ReadRecordText(std::string_view text);
TSavedRecords ReadRecordJson(std::string_view text);

}  // namespace vcl
