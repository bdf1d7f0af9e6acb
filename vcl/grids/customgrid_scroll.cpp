// TCustomGrid: what is seen of the cells, and scrolling by whole ones.
#include <algorithm>

#include "vcl/grids/customgrid.h"
#include "vcl/grids/private/gridaxis.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

constexpr int WheelLines = 3;  // Where the system does not say how many.

int WayOf(int room, int position) { return position < 0 ? -1 : position >= room ? 1 : 0; }

}  // namespace

int TCustomGrid::Room(bool columns) const {
  const TRect client = ClientRect();
  return columns ? client.Width() : client.Height();
}

int TCustomGrid::LeftCol() const { return FCols->First(); }
int TCustomGrid::TopRow() const { return FRows->First(); }
void TCustomGrid::SetLeftCol(int col) { CheckIndex(true, col), ScrollTo(col, TopRow()); }
void TCustomGrid::SetTopRow(int row) { CheckIndex(false, row), ScrollTo(LeftCol(), row); }
int TCustomGrid::VisibleColCount() const { return FCols->VisibleCount(Room(true)); }
int TCustomGrid::VisibleRowCount() const { return FRows->VisibleCount(Room(false)); }
int TCustomGrid::PageCols() const { return std::max(VisibleColCount(), 1); }
int TCustomGrid::PageRows() const { return std::max(VisibleRowCount(), 1); }

TRect TCustomGrid::CellRect(int col, int row) const {
  for (const TGridBand& x : FCols->Seen(Room(true))) {
    if (x.Index != col) continue;
    for (const TGridBand& y : FRows->Seen(Room(false))) {
      if (y.Index == row) return {x.Begin, y.Begin, x.End, y.End};
    }
  }
  return {};
}

TGridCoord TCustomGrid::MouseCoord(int x, int y) const {
  const TGridCoord cell{FCols->At(x, Room(true)), FRows->At(y, Room(false))};
  return cell.X < 0 || cell.Y < 0 ? TGridCoord() : cell;
}

void TCustomGrid::MouseToCell(int x, int y, int& col, int& row) const {
  const TGridCoord cell = MouseCoord(x, y);
  col = cell.X;
  row = cell.Y;
}

// Scrolling.

void TCustomGrid::ScrollTo(int left, int top) {
  const TGridCoord former{LeftCol(), TopRow()};
  FCols->SetFirst(left);
  FRows->SetFirst(top);
  if (former == TGridCoord{LeftCol(), TopRow()}) return;
  const TWatch watch(this);
  LayoutChanged();
  if (!watch.Gone()) TopLeftChanged();
}

void TCustomGrid::BringIntoView(TGridCoord cell) {
  ScrollTo(FCols->FirstShowing(cell.X, Room(true)), FRows->FirstShowing(cell.Y, Room(false)));
}

bool TCustomGrid::HasBar(bool vertical) const {
  return FScrollBars == ssBoth || FScrollBars == (vertical ? ssVertical : ssHorizontal);
}

// A bar that comes or goes leaves the other one less room or more.
void TCustomGrid::ShowScrollPosition() {
  if (FShowingBars || !HandleAllocated()) return;
  const TSetFor showing(FShowingBars, true, this);
  const TWatch watch(this);
  for (int i = 0; i < 2; ++i) {
    if (!watch.Gone()) ShowBar(false);
    if (!watch.Gone()) ShowBar(true);
  }
}

void TCustomGrid::ShowBar(bool vertical) {
  if (!HasBar(vertical)) return;
  TGridAxis& axis = Axis(!vertical);
  const int room = Room(!vertical);
  const int most = axis.LastFirst(room) - axis.Fixed();
  const int position = axis.First() - axis.Fixed();
  const int page = std::max(axis.VisibleCount(room), 1);
  const int last = std::max(most, position);
  SCROLLINFO info{sizeof info, SIF_ALL, 0, last > 0 ? last + page - 1 : 0, static_cast<UINT>(page),
                  position,    0};
  ::SetScrollInfo(Handle(), vertical ? SB_VERT : SB_HORZ, &info, TRUE);
}

/// The place that a command leads to, in 32 bits; that of the message has 16.
int TCustomGrid::Target(bool vertical, int command) const {
  const TGridAxis& axis = Axis(!vertical);
  SCROLLINFO info{sizeof info, SIF_TRACKPOS, 0, 0, 0, 0, 0};
  switch (command) {
    case SB_LINEUP: return axis.Step(axis.First(), -1);
    case SB_LINEDOWN: return axis.Step(axis.First(), 1);
    case SB_PAGEUP: return axis.First() - (vertical ? PageRows() : PageCols());
    case SB_PAGEDOWN: return axis.First() + (vertical ? PageRows() : PageCols());
    case SB_TOP: return axis.Fixed();
    case SB_BOTTOM: return axis.Count() - 1;
    case SB_THUMBTRACK:
      if (!FOptions.Has(goThumbTracking)) return axis.First();
      [[fallthrough]];
    case SB_THUMBPOSITION:
      ::GetScrollInfo(const_cast<TCustomGrid*>(this)->Handle(), vertical ? SB_VERT : SB_HORZ,
                      &info);
      return axis.Fixed() + info.nTrackPos;
    default: return axis.First();
  }
}

void TCustomGrid::Scroll(bool vertical, int command) {
  const TGridAxis& axis = Axis(!vertical);
  const int most = std::max(axis.LastFirst(Room(!vertical)), axis.First());
  const int first = std::clamp(Target(vertical, command), axis.Fixed(), most);
  vertical ? ScrollTo(LeftCol(), first) : ScrollTo(first, TopRow());
}

bool TCustomGrid::DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) {
  const TWatch watch(this);
  if (TCustomControl::DoMouseWheel(shift, wheelDelta, mousePos) || watch.Gone()) return true;
  return ScrollByWheel(!shift.Has(ssShift), wheelDelta);
}

bool TCustomGrid::ScrollByWheel(bool vertical, int wheelDelta) {
  const TGridAxis& axis = Axis(!vertical);
  const int most = std::max(axis.LastFirst(Room(!vertical)), axis.First());
  if (most == axis.Fixed()) return false;
  UINT lines = WheelLines;
  ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const int page = vertical ? PageRows() : PageCols();
  const int notch = lines == WHEEL_PAGESCROLL ? page : std::min(static_cast<int>(lines), page);
  int& rest = FWheelRest[vertical];
  rest += wheelDelta * notch;
  const int way = rest / WHEEL_DELTA;
  rest -= way * WHEEL_DELTA;
  const int first = std::clamp(axis.First() - way, axis.Fixed(), most);
  vertical ? ScrollTo(LeftCol(), first) : ScrollTo(first, TopRow());
  return true;
}

// While the mouse that selects is outside, the cells there come into view one after the other.
void TCustomGrid::ScrollBySelecting() {
  POINT mouse{};
  ::GetCursorPos(&mouse);
  const TPoint at = ScreenToClient(mouse);
  const int x = WayOf(Room(true), at.X);
  const int y = WayOf(Room(false), at.Y);
  if (x == 0 && y == 0) return;
  FocusCell(x ? FCols->Step(FCurrent.X, x) : FCurrent.X,
            y ? FRows->Step(FCurrent.Y, y) : FCurrent.Y, true);
}

void TCustomGrid::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case WM_ERASEBKGND: message.Result = 1; return;  // Paint fills all.
    case WM_HSCROLL: return Scroll(false, LOWORD(message.WParam));
    case WM_VSCROLL: return Scroll(true, LOWORD(message.WParam));
    case WM_TIMER:
      if (FPress.Kind == TMouse::Selecting && MouseCapture()) return ScrollBySelecting();
      ::KillTimer(Handle(), message.WParam);
      return;
    case WM_GETDLGCODE:
      message.Result = DLGC_WANTARROWS | (FOptions.Has(goEditing) ? DLGC_WANTCHARS : 0);
      return;
    case CM_WANTSPECIALKEY: message.Result = WantsKey(message.WParam); return;
    case CM_CAPTUREKEY:
      if (message.WParam != VK_ESCAPE || FPress.Kind == TMouse::None) break;
      message.Result = 1;
      return EndPress(false);
    case WM_SETCURSOR:
      if (LOWORD(message.LParam) == HTCLIENT && ShowSizingCursor()) {
        message.Result = 1;
        return;
      }
      break;
    default: break;
  }
  const TWatch watch(this);
  TCustomControl::Dispatch(message);
  if (watch.Gone()) return;
  switch (message.Msg) {
    case WM_CANCELMODE: return EndPress(false);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      InvalidateCells(Selection());
      if (message.Msg == WM_SETFOCUS) UpdateEditor();
      return;
    case CM_ENABLEDCHANGED: return Invalidate();
    case CM_FONTCHANGED: return Invalidate(), PlaceEditor();
    default: return;
  }
}

}  // namespace vcl
