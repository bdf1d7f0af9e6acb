// Moving through the records.
#include "vcl/db/dataset.h"
#include "vcl/rtl/text.h"

namespace vcl {

/// The record at an index as the user sees it: what is being edited or inserted stands in its
/// place.
const TRecord* TDataSet::ViewAt(int index) const {
  if (index < 0) return nullptr;
  if (Editing() && index == FIndex) return &FEdited;
  return FStore->At(FState == dsInsert && index > FIndex ? index - 1 : index);
}

bool TDataSet::Show(int index) {
  if (!ViewAt(index)) return false;
  FShown = index;
  return true;
}

bool TDataSet::GoTo(int index) {
  if (index < 0 || !FStore->At(index)) return false;
  FIndex = index;
  return true;
}

bool TDataSet::IsEmpty() const { return !Active() || !ViewAt(FIndex); }

int TDataSet::RecordCount() const {
  CheckActive();
  return FStore->Count();
}

int TDataSet::RecNo() const {
  CheckActive();
  return IsEmpty() || FState == dsInsert ? 0 : FIndex + 1;
}

/// Moves anywhere: `move` sets the index and the flags.
void TDataSet::Jump(const std::function<void()>& move) {
  CheckBrowseMode();
  Fire(BeforeScroll);
  CheckActive();
  move();
  ShowCurrent();
  DataEvent(deDataSetChange);
  Fire(AfterScroll);
}

void TDataSet::First() {
  Jump([this] {
    InternalFirst();
    FIndex = 0;
    FBof = true;
    FEof = FStore->At(0) == nullptr;
  });
}

void TDataSet::Last() {
  Jump([this] {
    if (IsUniDirectional()) {
      while (GoTo(FIndex + 1)) continue;
    } else {
      GoTo(FStore->Count() - 1);
    }
    FBof = FStore->At(FIndex) == nullptr;
    FEof = true;
  });
}

int TDataSet::MoveBy(int distance) {
  CheckBrowseMode();
  if (distance == 0 || (distance > 0 ? FEof : FBof)) return 0;
  if (distance < 0 && IsUniDirectional()) {
    Refuse("A unidirectional dataset cannot move backwards");
  }
  Fire(BeforeScroll);
  CheckActive();
  const int moved = Walk(distance);
  ShowCurrent();
  DataEvent(deDataSetScroll, nullptr, moved);
  Fire(AfterScroll);
  return moved;
}

int TDataSet::Walk(int distance) {
  const int step = distance < 0 ? -1 : 1;
  FBof = FEof = false;
  int moved = 0;
  while (moved != distance && GoTo(FIndex + step)) moved += step;
  if (moved != distance) (step < 0 ? FBof : FEof) = true;
  return moved;
}

void TDataSet::SetRecNo(int number) {
  CheckBrowseMode();
  if (number == RecNo()) return;
  if (number < 1 || (!IsUniDirectional() && !FStore->At(number - 1))) {
    Refuse(Concat("There is no record ", std::to_string(number)));
  }
  MoveBy(number - 1 - FIndex);
}

TBookmark TDataSet::Bookmark() const {
  CheckActive();
  if (IsUniDirectional()) Refuse("A unidirectional dataset has no bookmarks");
  if (IsEmpty() || FState == dsInsert) Refuse("There is no record to bookmark");
  return FStore->BookmarkOf(FIndex);
}

bool TDataSet::BookmarkValid(TBookmark bookmark) const {
  return Active() && !IsUniDirectional() && FStore->IndexOf(bookmark) >= 0;
}

void TDataSet::GotoBookmark(TBookmark bookmark) {
  CheckBrowseMode();
  if (!BookmarkValid(bookmark)) Refuse("The bookmark's record has gone");
  Jump([this, bookmark] {
    GoTo(FStore->IndexOf(bookmark));
    FBof = FEof = false;
  });
}

int TDataSet::CompareBookmarks(TBookmark a, TBookmark b) const {
  CheckActive();
  if (!BookmarkValid(a) || !BookmarkValid(b)) Refuse("The bookmark's record has gone");
  return FStore->IndexOf(a) - FStore->IndexOf(b);
}

}  // namespace vcl
