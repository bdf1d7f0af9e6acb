// TRecordView: looks through the records, keeps them in order and follows their changes.
#include "vcl/db/private/recordview.h"

#include <algorithm>
#include <limits>

#include "vcl/rtl/text.h"

namespace vcl {
namespace {

double ToDouble(const TFieldValue& value) {
  const auto* whole = std::get_if<std::int64_t>(&value);
  return whole ? static_cast<double>(*whole) : std::get<double>(value);
}

template <class T>
int Sign(const T& a, const T& b) {
  return a < b ? -1 : b < a ? 1 : 0;
}

}  // namespace

int CompareValues(const TFieldValue& a, const TFieldValue& b) {
  const auto* text = std::get_if<std::string>(&a);
  const auto* otherText = std::get_if<std::string>(&b);
  if (text && otherText) return AnsiCompareText(*text, *otherText);
  // Null comes before numbers, and these before texts, which a database may have among them.
  if (text || otherText || IsNull(a) || IsNull(b)) {
    const auto rank = [](const TFieldValue& value) {
      return value.index() == 2 ? 1 : value.index();
    };
    return Sign(rank(a), rank(b));
  }
  const auto* whole = std::get_if<std::int64_t>(&a);
  const auto* otherWhole = std::get_if<std::int64_t>(&b);
  return whole && otherWhole ? Sign(*whole, *otherWhole) : Sign(ToDouble(a), ToDouble(b));
}

int CompareRecords(const TRecord& a, const TRecord& b, const TRecordOrder& order) {
  for (const auto& [fieldNo, descending] : order) {
    const auto place = static_cast<std::size_t>(fieldNo);
    const int sign = CompareValues(a[place], b[place]);
    if (sign != 0) return descending ? -sign : sign;
  }
  return 0;
}

/// Looks at further records of the store until that many are shown; false when there are not so
/// many. What the filter raises leaves the record to the next time.
bool TRecordView::LookUntil(int size) {
  if (Size() >= size) return true;
  FComplete = FComplete || FRecords.Visit(FLooked, [this, size](const TRecord& record) {
    if (FAccepts(record)) FShown.push_back(FLooked);
    ++FLooked;
    return Size() < size;
  });
  return Size() >= size;
}

void TRecordView::LookAtAll() {
  if (FComplete) return;
  LookUntil(std::numeric_limits<int>::max());
  if (!Ordered()) return;
  // All have been read: they stay where they are.
  std::vector<std::pair<const TRecord*, int>> records;
  records.reserve(FShown.size());
  for (const int index : FShown) records.emplace_back(FRecords.At(index), index);
  std::ranges::stable_sort(records, [this](const auto& a, const auto& b) {
    return CompareRecords(*a.first, *b.first, FOrder) < 0;
  });
  std::ranges::transform(records, FShown.begin(), [](const auto& each) { return each.second; });
}

const TRecord* TRecordView::At(int index) {
  if (Ordered()) LookAtAll();
  return index >= 0 && LookUntil(index + 1) ? FRecords.At(Shown(index)) : nullptr;
}

int TRecordView::Count() {
  LookAtAll();
  return Size();
}

int TRecordView::LowerBound(const std::function<int(const TRecord&)>& compare) {
  LookAtAll();
  const auto found = std::ranges::partition_point(
      FShown, [&](int index) { return compare(*FRecords.At(index)) < 0; });
  return static_cast<int>(found - FShown.begin());
}

/// Behind those that are equal, so that they stay in the order in which they came.
int TRecordView::PlaceOf(const TRecord& record) {
  const auto found = std::ranges::partition_point(
      FShown, [&](int index) { return CompareRecords(*FRecords.At(index), record, FOrder) <= 0; });
  return static_cast<int>(found - FShown.begin());
}

void TRecordView::Shift(int from, int by) {
  for (int& index : FShown) {
    if (index >= from) index += by;
  }
  FLooked += by;
}

int TRecordView::Insert(int index, const TRecord& record) {
  // What the filter raises leaves everything as it is.
  const bool accepted = FAccepts(record);
  if (index >= Size() || Ordered()) LookAtAll();
  const bool append = index >= Size() || Ordered();
  const int place = FRecords.Insert(append ? FRecords.Count() : Shown(index), record);
  Shift(place, 1);
  if (!accepted) return -1;
  if (Ordered()) index = PlaceOf(record);
  FShown.insert(FShown.begin() + index, place);
  return index;
}

int TRecordView::Replace(int index, const TRecord& record) {
  const bool accepted = FAccepts(record);
  const int place = Shown(index);
  const bool moves = Ordered() && CompareRecords(*FRecords.At(place), record, FOrder) != 0;
  FRecords.Replace(place, record);
  if (accepted && !moves) return index;
  FShown.erase(FShown.begin() + index);
  if (!accepted) return -1;
  index = PlaceOf(record);
  FShown.insert(FShown.begin() + index, place);
  return index;
}

void TRecordView::Erase(int index) {
  const int place = Shown(index);
  FRecords.Erase(place);
  FShown.erase(FShown.begin() + index);
  Shift(place, -1);
}

TBookmark TRecordView::BookmarkOf(int index) { return FRecords.BookmarkOf(Shown(index)); }

int TRecordView::IndexOf(TBookmark bookmark) {
  const int place = FRecords.IndexOf(bookmark);
  if (place < 0) return -1;
  if (Ordered()) LookAtAll();
  while (FLooked <= place && LookUntil(Size() + 1)) continue;
  const auto found = std::ranges::find(FShown, place);
  return found == FShown.end() ? -1 : static_cast<int>(found - FShown.begin());
}

void TRecordView::Reset() {
  FShown.clear();
  FLooked = 0;
  FComplete = false;
}

}  // namespace vcl
