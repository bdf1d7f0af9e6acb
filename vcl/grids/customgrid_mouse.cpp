// TCustomGrid: the mouse selects, sizes and moves, and presses fixed cells.
#include <algorithm>
#include <cstdlib>

#include "vcl/forms/screen.h"
#include "vcl/grids/customgrid.h"
#include "vcl/grids/private/gridaxis.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr int Reach = 3;  // At 96 dots per inch, from an edge.
constexpr UINT_PTR SelectTimer = 1;
constexpr UINT SelectPause = 50;  // Milliseconds.

}  // namespace

// What it is at.

/// The column whose right edge is there, in the fixed rows; the row whose lower edge is there, in
/// the fixed columns. Just behind an edge lies that of the hidden ones there.
int TCustomGrid::EdgeAt(bool columns, int x, int y) const {
  const int across = columns ? y : x;
  if (across >= Axis(!columns).FixedEnd(Room(!columns))) return -1;
  const int at = columns ? x : y;
  const TGridAxis& axis = Axis(columns);
  int found = -1;
  for (const TGridBand& each : axis.Seen(Room(columns))) {
    if (std::abs(at - each.End) > ScaledPixels(Reach)) continue;
    found = each.Index;
    while (at > each.End && axis.Has(found + 1) && axis.Size(found + 1) == 0) ++found;
  }
  return found;
}

TCustomGrid::THit TCustomGrid::HitAt(int x, int y) const {
  for (const bool columns : {true, false}) {
    if (!FOptions.Has(columns ? goColSizing : goRowSizing)) continue;
    const int edge = EdgeAt(columns, x, y);
    if (edge >= 0) return {true, columns, edge, {}};
  }
  return {false, false, -1, MouseCoord(x, y)};
}

bool TCustomGrid::ShowSizingCursor() {
  POINT mouse{};
  ::GetCursorPos(&mouse);
  const TPoint at = ScreenToClient(mouse);
  const THit hit = FPress.Kind == TMouse::Sizing ? FPress.Hit : HitAt(at.X, at.Y);
  if (!hit.Edge || Designing()) return false;
  ::SetCursor(Screen()->Cursors(hit.Column ? crHSplit : crVSplit));
  return true;
}

// Pressing.

void TCustomGrid::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  if (CanFocus() && !HasFocus()) SetFocus();
  if (watch.Gone()) return;
  if (button == mbLeft && !Designing()) PressCell(HitAt(x, y), shift, x, y);
  if (!watch.Gone()) TCustomControl::MouseDown(button, shift, x, y);
}

void TCustomGrid::PressCell(const THit& hit, TShiftState shift, int x, int y) {
  FPress = {TMouse::None, hit, {x, y}, 0, -1, false, false};
  if (hit.Edge) {
    FPress.Kind = TMouse::Sizing;
    FPress.Former = Axis(hit.Column).Size(hit.Index);
    return;
  }
  if (hit.Cell.X < 0) return;
  if (hit.Cell.X < FixedCols() || hit.Cell.Y < FixedRows()) return PressFixed(hit);
  if (HasButton() && ButtonRect().Contains({x, y})) return PressButton();
  const TWatch watch(this);
  FPress.Again = hit.Cell == FCurrent && HasFocus();
  // Before the cell is the current one, so that always being edited waits for the release.
  FPress.Kind = TMouse::Selecting;
  if (!FocusCell(hit.Cell.X, hit.Cell.Y, shift.Has(ssShift))) {
    if (!watch.Gone()) FPress.Kind = TMouse::None;
    return;
  }
  if (FOptions.Has(goRangeSelect)) ::SetTimer(Handle(), SelectTimer, SelectPause, nullptr);
}

void TCustomGrid::PressFixed(const THit& hit) {
  FPress.Kind = TMouse::Pressing;
  FPress.Hit.Column = hit.Cell.Y < FixedRows();
  FPress.Hit.Index = FPress.Hit.Column ? hit.Cell.X : hit.Cell.Y;
  InvalidateCell(hit.Cell.X, hit.Cell.Y);
}

// Dragging.

void TCustomGrid::MouseMove(TShiftState shift, int x, int y) {
  const TWatch watch(this);
  switch (MouseCapture() ? FPress.Kind : TMouse::None) {
    case TMouse::Selecting: DragSelection({x, y}); break;
    case TMouse::Sizing: DragSize({x, y}); break;
    case TMouse::Pressing:
    case TMouse::Moving: DragMove({x, y}); break;
    case TMouse::None: break;
  }
  if (!watch.Gone()) TCustomControl::MouseMove(shift, x, y);
}

void TCustomGrid::DragSelection(TPoint mouse) {
  const TGridCoord cell = MouseCoord(mouse.X, mouse.Y);
  if (cell.X < FixedCols() || cell.Y < FixedRows() || cell == FCurrent) return;
  FPress.Dragged = true;
  FocusCell(cell.X, cell.Y, true);
}

void TCustomGrid::DragSize(TPoint mouse) {
  const bool columns = FPress.Hit.Column;
  const int way = columns ? mouse.X - FPress.At.X : mouse.Y - FPress.At.Y;
  SetSize(columns, FPress.Hit.Index, std::clamp(FPress.Former + way, 0, Room(columns)));
}

void TCustomGrid::DragMove(TPoint mouse) {
  const bool columns = FPress.Hit.Column;
  TGridAxis& axis = Axis(columns);
  const bool may = FOptions.Has(columns ? goColMoving : goRowMoving);
  if (!may || FPress.Hit.Index < axis.Fixed()) return;
  const int way = columns ? mouse.X - FPress.At.X : mouse.Y - FPress.At.Y;
  if (FPress.Kind == TMouse::Pressing && std::abs(way) < ScaledPixels(2 * Reach)) return;
  const int room = Room(columns);
  const int target = axis.At(std::clamp(columns ? mouse.X : mouse.Y, 0, room - 1), room);
  FPress.Kind = TMouse::Moving;
  FPress.Target = target < 0 ? axis.Count() - 1 : std::max(target, axis.Fixed());
  Invalidate();
}

// Releasing.

void TCustomGrid::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  if (button == mbLeft && FPress.Kind != TMouse::None) {
    const bool over = FPress.Hit.Edge || FPress.Hit.Cell == MouseCoord(x, y);
    EndPress(over || FPress.Kind != TMouse::Pressing);
  }
  if (!watch.Gone()) TCustomControl::MouseUp(button, shift, x, y);
}

void TCustomGrid::EndPress(bool apply) {
  if (FPress.Kind == TMouse::None) return;
  const TPress press = std::exchange(FPress, {});
  const TWatch watch(this);
  if (MouseCapture()) SetMouseCapture(false);
  if (HandleAllocated()) ::KillTimer(Handle(), SelectTimer);
  Invalidate();
  switch (press.Kind) {
    case TMouse::Sizing:
      if (!apply) SetSize(press.Hit.Column, press.Hit.Index, press.Former);
      return;
    case TMouse::Pressing:
    case TMouse::Moving:
      if (apply) ReleaseFixed(press);
      return;
    case TMouse::Selecting:
      if (apply && !press.Dragged) Toggle();
      if (!watch.Gone() && apply && press.Again && !press.Dragged) ShowEditor();
      if (!watch.Gone()) UpdateEditor();
      return;
    case TMouse::None: return;
  }
}

void TCustomGrid::ReleaseFixed(const TPress& press) {
  if (press.Kind == TMouse::Moving) return MoveOne(press.Hit.Column, press.Hit.Index, press.Target);
  if (FOptions.Has(press.Hit.Column ? goFixedRowClick : goFixedColClick)) {
    FixedCellClick(press.Hit.Cell.X, press.Hit.Cell.Y);
  }
}

void TCustomGrid::DblClick() {
  const TWatch watch(this);
  TCustomControl::DblClick();
  if (watch.Gone() || Designing()) return;
  POINT mouse{};
  ::GetCursorPos(&mouse);
  const TPoint at = ScreenToClient(mouse);
  if (MouseCoord(at.X, at.Y) == FCurrent && HasCells()) ShowEditor();
}

}  // namespace vcl
