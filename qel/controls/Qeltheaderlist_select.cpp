// TQELHeaderList: selecting rows by mouse, keys and typing, and what screen readers are told.
#include <algorithm>
#include <utility>

#include "qel/controls/private/headerlistparts.h"
#include "qel/controls/private/rowset.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TShiftState;
using vcl::TWatch;

namespace {

constexpr std::uint64_t TypingPause = 1000;  // Milliseconds, after which typing begins anew.
constexpr char32_t Delete = 127;             // The character of Ctrl+Backspace.

}  // namespace

// The selection.

bool TQELHeaderList::Selected(int row) const { return FSelected->Has(row); }
int TQELHeaderList::SelCount() const { return FSelected->Count(); }

void TQELHeaderList::SetItemIndex(int row) {
  if (row < -1 || row >= Count()) return;
  if (row < 0) return ClearSelection();
  const TWatch watch(this);
  FocusCell(Col(), row + 1, false);
  if (!watch.Gone() && row < Count()) SelectOnly(row);
}

void TQELHeaderList::SetSelected(int row, bool selected) {
  if (row < 0 || row >= Count() || selected == Selected(row)) return;
  if (!FMultiSelect) return SetItemIndex(selected ? row : -1);
  FSelected->Set(row, selected);
  InvalidateRow(row + 1);
}

void TQELHeaderList::SelectAll() {
  if (!FMultiSelect) return;
  FSelected->Add(0, Count() - 1);
  Invalidate();
}

void TQELHeaderList::ClearSelection() {
  FSelected->Clear();
  FItemIndex = -1;
  Invalidate();
}

void TQELHeaderList::SelectOnly(int row) {
  FSelected->Clear();
  FSelected->Add(row, row);
  FItemIndex = FSelectFrom = row;
  Invalidate();
}

// What the user selects.

/// The grid's current cell goes to another row: what has led there takes that over.
bool TQELHeaderList::SelectCell(int /*col*/, int row) {
  if (row != Row()) FMoved = true;
  return true;
}

/// Does what may take the current cell elsewhere, and selects the row that it comes to.
template <class Move>
void TQELHeaderList::ByUser(bool extend, Move move) {
  const TWatch watch(this);
  FMoved = false;
  move();
  if (!watch.Gone() && std::exchange(FMoved, false)) TakeRow(Row() - 1, extend);
}

void TQELHeaderList::TakeRow(int row, bool extend) {
  if (row < 0 || row >= Count()) return;
  if (FMultiSelect && extend) {
    FSelected->Clear();
    FSelected->Add(std::min(FSelectFrom, row), std::max(FSelectFrom, row));
    FItemIndex = row;
    Invalidate();
  } else {
    SelectOnly(row);
  }
  OnSelect(this);
}

void TQELHeaderList::ToggleRow(int row) {
  FSelected->Set(row, !Selected(row));
  FItemIndex = FSelectFrom = row;
  Invalidate();
  OnSelect(this);
}

void TQELHeaderList::GoToRow(int row, bool extend) {
  row = std::clamp(row, 0, Count() - 1);
  const bool same = row == Row() - 1;
  const TWatch watch(this);
  ByUser(extend, [&] { FocusCell(Col(), row + 1, false); });
  if (!watch.Gone() && same && !Selected(row)) TakeRow(row, extend);
}

// The mouse.

int TQELHeaderList::RowAt(int x, int y) const {
  const int row = MouseCoord(x, y).Y - 1;
  return row >= 0 && row < Count() ? row : -1;
}

void TQELHeaderList::MouseDown(vcl::TMouseButton button, TShiftState shift, int x, int y) {
  const vcl::TGridCoord cell = MouseCoord(x, y);
  const int row = RowAt(x, y);
  const bool box = FCheckBoxes && cell.X == 0 && CheckRect(CellRect(0, cell.Y)).Contains({x, y});
  const TWatch watch(this);
  TCustomGrid::MouseDown(button, shift, x, y);
  if (watch.Gone() || Designing() || row < 0 || row >= Count()) return;
  if (button == vcl::mbLeft) {
    if (Row() - 1 == row) PressRow(row, shift, box);
  } else if (!Selected(row)) {
    GoToRow(row, false);
  }
}

void TQELHeaderList::PressRow(int row, TShiftState shift, bool box) {
  const TWatch watch(this);
  if (FMultiSelect && shift.Has(vcl::ssCtrl)) {
    ToggleRow(row);
  } else if (FMultiSelect && shift.Has(vcl::ssShift)) {
    TakeRow(row, true);
  } else if (row != FItemIndex || FSelected->Count() != 1 || !Selected(row)) {
    TakeRow(row, false);
  }
  if (!watch.Gone() && box && row < Count()) ToggleCheck(row);
}

void TQELHeaderList::MouseMove(TShiftState shift, int x, int y) {
  ByUser(FMultiSelect, [&] { TCustomGrid::MouseMove(shift, x, y); });
}

// The keyboard.

bool TQELHeaderList::WantsKey(WPARAM key) const {
  return key != VK_RETURN && TCustomGrid::WantsKey(key);
}

bool TQELHeaderList::DoKey(std::uint16_t key, TShiftState shift) {
  if (!HasCells()) return false;
  const TWatch watch(this);
  if (!EditorMode() && (ListKey(key, shift) || watch.Gone())) return true;
  if (key == VK_RETURN || (key == VK_SPACE && !EditorMode())) return false;
  bool done = false;
  ByUser(shift.Has(vcl::ssShift), [&] { done = TCustomGrid::DoKey(key, shift); });
  return done || watch.Gone();
}

bool TQELHeaderList::ListKey(std::uint16_t key, TShiftState shift) {
  if (shift.Has(vcl::ssAlt)) return false;
  if (shift.Has(vcl::ssCtrl) && CtrlKey(key)) return true;
  const bool extend = shift.Has(vcl::ssShift);
  switch (key) {
    case VK_F2: return EditCell(Col()), true;
    case VK_SPACE:
      if (!FCheckBoxes || FItemIndex < 0 || !FTyped.empty()) return false;
      return ToggleCheck(FItemIndex), true;
    case VK_HOME: return GoToRow(0, extend), true;
    case VK_END: return GoToRow(Count() - 1, extend), true;
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
      // Where no row is selected, the first key selects the one that has the focus.
      if (FItemIndex >= 0) return false;
      return GoToRow(Row() - 1, false), true;
    default: return false;
  }
}

bool TQELHeaderList::CtrlKey(std::uint16_t key) {
  switch (key) {
    case 'A':
      if (FMultiSelect) SelectAll(), OnSelect(this);
      return true;
    case 'C':
    case VK_INSERT: return CopyToClipboard(), true;
    case VK_ADD: return FitColumns(), true;
    case VK_SPACE:
      if (FMultiSelect) ToggleRow(Row() - 1);
      return FMultiSelect;
    case VK_UP:
    case VK_DOWN:
      if (!FMultiSelect) return false;
      FocusCell(Col(), std::clamp(Row() + (key == VK_UP ? -1 : 1), 1, Count()), false);
      return true;
    default: return false;
  }
}

void TQELHeaderList::KeyPress(char32_t& key) {
  const TWatch watch(this);
  TCustomGrid::KeyPress(key);
  if (watch.Gone() || EditorMode() || key < U' ' || key == Delete || !HasCells()) return;
  const std::uint64_t now = ::GetTickCount64();
  if (now - std::exchange(FTypedAt, now) > TypingPause) FTyped.clear();
  if (key == U' ' && FTyped.empty()) return;
  FTyped += vcl::Utf8(key);
  key = 0;
  Search();
}

/// One character again and again goes from row to row, others go on with what was typed.
void TQELHeaderList::Search() {
  const std::size_t first = FTyped.find_first_not_of(FTyped[0]);
  const bool again = first == std::string::npos;
  const std::string text = again ? FTyped.substr(0, 1) : FTyped;
  const int section = std::max(FHeader->SortColumn(), 0);
  const int from = FItemIndex < 0 ? 0 : again ? (FItemIndex + 1) % Count() : FItemIndex;
  const TWatch watch(this);
  const int row = FindRow(text, ColumnOf(section), from);
  if (!watch.Gone() && row >= 0 && row != FItemIndex) GoToRow(row, false);
}

// Messages.

void TQELHeaderList::Dispatch(vcl::TMessage& message) {
  const TWatch watch(this);
  if (message.Msg == WM_TIMER) {
    return ByUser(FMultiSelect, [&] { TCustomGrid::Dispatch(message); });
  }
  TCustomGrid::Dispatch(message);
  if (watch.Gone()) return;
  switch (message.Msg) {
    case WM_GETDLGCODE: message.Result |= DLGC_WANTCHARS; return;
    case vcl::CM_FONTCHANGED: return FitRows();
    case vcl::CM_ENABLEDCHANGED: return FHeader->SetEnabled(Enabled());
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE: return Invalidate();
    default: return;
  }
}

// Screen readers: the grid's rows with their cells, and what is selected and checked.

std::vector<vcl::TAccessiblePart> TQELHeaderList::AccessibleParts() {
  const TWatch watch(this);
  std::vector<vcl::TAccessiblePart> rows = TCustomGrid::AccessibleParts();
  if (watch.Gone()) return {};
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const int row = TopRow() - 1 + static_cast<int>(i) - 1;
    rows[i].State += vcl::TAccessibleState{vcl::asFocusable, vcl::asSelectable};
    rows[i].DefaultAction = FCheckBoxes ? "Check" : "Select";
    if (Selected(row)) rows[i].State.Include(vcl::asSelected);
    if (FCheckBoxes && Checked(row)) rows[i].State.Include(vcl::asChecked);
    for (vcl::TAccessiblePart& cell : rows[i].Parts) {
      Selected(row) ? cell.State.Include(vcl::asSelected) : cell.State.Exclude(vcl::asSelected);
      if (FReadOnly) continue;
      cell.State.Exclude(vcl::asReadOnly);
    }
  }
  return rows;
}

void TQELHeaderList::DoAccessiblePart(const vcl::TAccessiblePath& part) {
  const TWatch watch(this);
  TCustomGrid::DoAccessiblePart(part);
  if (watch.Gone() || part.empty() || part[0] < 1 || Row() < 1 || Row() > Count()) return;
  const int row = Row() - 1;
  if (row != FItemIndex) TakeRow(row, false);
  if (!watch.Gone() && FCheckBoxes && part.size() == 1 && row < Count()) ToggleCheck(row);
}

}  // namespace qel
