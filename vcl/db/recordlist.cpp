// TRecordStore and TRecordList: records in memory in the order of a data set, with the bookmarks
// that name them.
#include "vcl/db/recordstore.h"

#include <algorithm>

namespace vcl {

bool TRecordStore::Visit(int from, const TVisitor& each) {
  for (int i = from; const TRecord* record = At(i); ++i) {
    if (!each(*record)) return false;
  }
  return true;
}

TRecordList::TEntry* TRecordList::Entry(int index) {
  if (index < 0 || index >= Size()) return nullptr;
  const auto at = static_cast<std::size_t>(index);
  return at < FBefore.size() ? &FBefore[at] : &FBehind[FBehind.size() - 1 - (at - FBefore.size())];
}

const TRecord* TRecordList::At(int index) {
  const TEntry* entry = Entry(index);
  return entry ? &entry->Record : nullptr;
}

/// What filters and searches do with each of many records: past the gap without a detour.
bool TRecordList::Visit(int from, const TVisitor& each) {
  auto index = static_cast<std::size_t>(from);
  for (; index < FBefore.size(); ++index) {
    if (!each(FBefore[index].Record)) return false;
  }
  return TRecordStore::Visit(static_cast<int>(index), each);
}

void TRecordList::MoveGap(std::size_t index) {
  for (; FBefore.size() > index; FBefore.pop_back()) FBehind.push_back(std::move(FBefore.back()));
  for (; FBefore.size() < index; FBehind.pop_back()) FBefore.push_back(std::move(FBehind.back()));
}

int TRecordList::Insert(int index, const TRecord& record) {
  TEntry entry{FLastBookmark + 1, record};
  // Records that are appended stay before the gap, so that nothing is moved for the next one.
  const bool append = index == Size();
  MoveGap(static_cast<std::size_t>(index));
  (append ? FBefore : FBehind).push_back(std::move(entry));
  ++FLastBookmark;
  return index;
}

int TRecordList::Replace(int index, const TRecord& record) {
  Entry(index)->Record = record;
  return index;
}

void TRecordList::Erase(int index) {
  MoveGap(static_cast<std::size_t>(index));
  FBehind.pop_back();
}

TBookmark TRecordList::BookmarkOf(int index) { return Entry(index)->Bookmark; }

int TRecordList::IndexOf(TBookmark bookmark) {
  const auto before = std::ranges::find(FBefore, bookmark, &TEntry::Bookmark);
  if (before != FBefore.end()) return static_cast<int>(before - FBefore.begin());
  const auto behind = std::ranges::find(FBehind, bookmark, &TEntry::Bookmark);
  if (behind == FBehind.end()) return -1;
  return Size() - 1 - static_cast<int>(behind - FBehind.begin());
}

void TRecordList::Clear() {
  FBefore.clear();
  FBehind.clear();
}

}  // namespace vcl
