// TGridPanel: the sizes of its rows and columns, and the controls in their cells.
#include <algorithm>
#include <cmath>

#include "vcl/controls/private/margins.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/gridpanel.h"

namespace vcl {
namespace {

TCellItem& Cell(const TCollection& cells, int index) {
  return *static_cast<TCellItem*>(cells.Items(index));
}

/// How far the first `count` rows or columns reach together, as far as a window can.
int Extent(const TCollection& cells, int count) {
  constexpr int farthest = 1 << 27;
  int extent = 0;
  for (int i = 0; i < count && extent < farthest; ++i) extent += Cell(cells, i).Size();
  return std::min(extent, farthest);
}

/// The last of `count` rows or columns that a span from `first` covers.
int LastOf(int first, int span, int count) { return first + std::min(span, count - first) - 1; }

}  // namespace

TRect TGridPanel::CellRect(int column, int row) const {
  const TSize size{Columns(column)->Size(), Rows(row)->Size()};
  const int x = FOrigin.X + Extent(*FColumns, column);
  const int y = FOrigin.Y + Extent(*FRows, row);
  return {x, y, x + size.cx, y + size.cy};
}

/// The size of the largest control that stands in this row or column alone.
int TGridPanel::NeedOf(int index, bool columns) const {
  int need = 0;
  for (int i = 0; i < FPlaces->Count(); ++i) {
    const TControlItem& place = *Places(i);
    const TControl* control = place.Control();
    if (!control || !control->Seen()) continue;
    if ((columns ? place.Column() : place.Row()) != index) continue;
    if ((columns ? place.ColumnSpan() : place.RowSpan()) != 1) continue;
    const TRect around = MarginsOf(*control);
    need = std::max(need, columns ? around.Left + control->Width() + around.Right
                                  : around.Top + control->Height() + around.Bottom);
  }
  return need;
}

void TGridPanel::Measure(const TCollection& cells, bool columns, int room) const {
  double shares = 0;
  for (int i = 0; i < cells.Count(); ++i) {
    TCellItem& each = Cell(cells, i);
    if (each.SizeStyle() == ssPercent) {
      shares += each.Value();
      continue;
    }
    each.FSize = each.SizeStyle() == ssAuto ? NeedOf(i, columns)
                                            : static_cast<int>(std::lround(each.Value()));
    room = std::max(room - each.FSize, 0);
  }
  // Rounded where each begins and ends, so that together they fill the room.
  double before = 0;
  for (int i = 0; i < cells.Count(); ++i) {
    TCellItem& each = Cell(cells, i);
    if (each.SizeStyle() != ssPercent) continue;
    const auto upTo = [&](double share) {
      return shares > 0 ? static_cast<int>(std::lround(room * share / shares)) : 0;
    };
    each.FSize = upTo(before + each.Value()) - upTo(before);
    before += each.Value();
  }
}

namespace {

struct TSpan {
  int Begin;
  int End;
};

/// Where what is of that size stands in the room: at one edge, from edge to edge, or in the middle.
TSpan Within(TSpan room, int size, bool toBegin, bool toEnd) {
  if (toBegin && toEnd) return {room.Begin, std::max(room.End, room.Begin)};
  if (toBegin) return {room.Begin, room.Begin + size};
  if (toEnd) return {room.End - size, room.End};
  const int begin = room.Begin + (room.End - room.Begin - size) / 2;
  return {begin, begin + size};
}

TAnchors EdgesOf(const TControl& control) {
  const TAnchors all{akLeft, akTop, akRight, akBottom};
  switch (control.Align()) {
    case alTop: return {akLeft, akTop, akRight};
    case alBottom: return {akLeft, akRight, akBottom};
    case alLeft: return {akLeft, akTop, akBottom};
    case alRight: return {akTop, akRight, akBottom};
    case alClient: return all;
    case alNone:
    default: return control.Anchors();
  }
}

}  // namespace

void TGridPanel::PutInCell(TControl& control, TRect cell) const {
  const TRect around = MarginsOf(control);
  const TAnchors edges = EdgesOf(control);
  const TSpan x = Within({cell.Left + around.Left, cell.Right - around.Right}, control.Width(),
                         edges.Has(akLeft), edges.Has(akRight));
  const TSpan y = Within({cell.Top + around.Top, cell.Bottom - around.Bottom}, control.Height(),
                         edges.Has(akTop), edges.Has(akBottom));
  control.SetBounds(x.Begin, y.Begin, x.End - x.Begin, y.End - y.Begin);
}

void TGridPanel::AlignControls(TControl*, TRect& rect) {
  FOrigin = rect.TopLeft();
  Measure(*FColumns, true, rect.Width());
  Measure(*FRows, false, rect.Height());
  const TWatch watch(this);
  // What hears of its new place may take others out, whose places go with them.
  for (int i = 0; !watch.Gone() && i < FPlaces->Count(); ++i) {
    const TControlItem& place = *Places(i);
    TControl* const control = place.Control();
    if (!control || control->Parent() != this || !control->Seen()) continue;
    if (place.Column() >= FColumns->Count() || place.Row() >= FRows->Count()) continue;
    TRect cell = CellRect(place.Column(), place.Row());
    const TRect last = CellRect(LastOf(place.Column(), place.ColumnSpan(), FColumns->Count()),
                                LastOf(place.Row(), place.RowSpan(), FRows->Count()));
    cell.Right = last.Right;
    cell.Bottom = last.Bottom;
    PutInCell(*control, cell);
  }
}

}  // namespace vcl
