// Records as files: a text with a line for each record, and JSON.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vcl/db/dbtypes.h"

namespace vcl {

struct TSavedField {
  std::string Name;
  TFieldType DataType = ftUnknown;
  int Size = 0;
  bool Required = false;
};

struct TSavedRecords {
  std::vector<TSavedField> Fields;
  std::vector<TRecord> Records;
};

std::string WriteRecordText(const TSavedRecords& saved);
std::string WriteRecordJson(const TSavedRecords& saved);
/// Either of the two. Raises EDatabaseError with the line and what is wrong there.
TSavedRecords ReadRecordFile(std::string_view text);

}  // namespace vcl
