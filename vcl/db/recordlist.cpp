// TRecordList: records in memory in the order of a data set, with the bookmarks that name them.
#include "vcl/db/recordstore.h"

namespace vcl {

TRecordList::TEntry* TRecordList::Entry(int index) {
  if (index < 0 || index >= Size()) return nullptr;
  const auto at = static_cast<std::size_t>(index);
  return at < FBefore.size() ? &FBefore[at] : &FBehind[FBehind.size() - 1 - (at - FBefore.size())];
}

const TRecord* TRecordList::At(int index) {
  const TEntry* entry = Entry(index);
  return entry ? &entry->Record : nullptr;
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
  for (int i = 0; i < Size(); ++i) {
    if (Entry(i)->Bookmark == bookmark) return i;
  }
  return -1;
}

void TRecordList::Clear() {
  FBefore.clear();
  FBehind.clear();
}

}  // namespace vcl
