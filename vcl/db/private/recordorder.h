// The order of records by the values of some fields.
#pragma once

#include <vector>

#include "vcl/db/dbtypes.h"

namespace vcl {

struct TOrderField {
  int FieldNo;
  bool Descending;
};
using TRecordOrder = std::vector<TOrderField>;

/// Negative, zero or positive: Null comes first, numbers by their value, texts by the user's
/// language without case.
int CompareValues(const TFieldValue& a, const TFieldValue& b);
int CompareRecords(const TRecord& a, const TRecord& b, const TRecordOrder& order);

}  // namespace vcl
