// The records of a query: those that are kept once read, and those that are read and forgotten.
#include "vcl/db/private/odbcrows.h"

namespace vcl::odbc {

bool TCachedRows::FetchOne() {
  if (FEnd || !FStatement.Fetch(FFetched)) {
    FEnd = true;
    return false;
  }
  Insert(Size(), FFetched);
  return true;
}

const TRecord* TCachedRows::At(int index) {
  while (Size() <= index && FetchOne()) continue;
  return TRecordList::At(index);
}

int TCachedRows::Count() {
  while (FetchOne()) continue;
  return Size();
}

void TCachedRows::Restart() {
  Clear();
  FEnd = false;
}

const TRecord* TForwardRows::At(int index) {
  if (index == FInsertedAt) return &FInserted;
  const int row = index - FShift;
  for (; FRow < row; ++FRow) {
    if (FEnd || !FAhead.Fetch(FCurrent)) {
      FEnd = true;
      return nullptr;
    }
  }
  return row == FRow && row >= 0 ? &FCurrent : nullptr;
}

void TForwardRows::Restart() {
  FAhead.Restart();
  FRow = FInsertedAt = -1;
  FShift = 0;
  FEnd = false;
}

int TForwardRows::Insert(int index, const TRecord& record) {
  // The one that was inserted here before is behind this one now, where nobody looks any more.
  if (index != FInsertedAt) ++FShift;
  FInsertedAt = index;
  FInserted = record;
  return index;
}

int TForwardRows::Replace(int index, const TRecord& record) {
  (index == FInsertedAt ? FInserted : FCurrent) = record;
  return index;
}

void TForwardRows::Erase(int index) {
  if (index == FInsertedAt) FInsertedAt = -1;
  --FShift;
}

}  // namespace vcl::odbc
