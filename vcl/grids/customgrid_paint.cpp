// TCustomGrid: painting the cells that are seen and asked for.
#include <algorithm>

#include "vcl/graphics/canvas.h"
#include "vcl/grids/customgrid.h"
#include "vcl/grids/private/gridaxis.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/inplaceedit.h"

namespace vcl {
namespace {

void Fill(TCanvas& canvas, const TRect& rect, TColor color) {
  if (rect.Empty()) return;
  canvas.Brush()->SetColor(color);
  canvas.FillRect(rect);
}

constexpr int MarkWidth = 3;  // At 96 dots per inch; of the line where a column would be moved to.

}  // namespace

TGridDrawState TCustomGrid::StateOf(int col, int row) const {
  TGridDrawState state;
  if (col < FixedCols() || row < FixedRows()) {
    state.Include(gdFixed);
    const bool pressed = FPress.Kind == TMouse::Pressing && FPress.Hit.Cell == TGridCoord{col, row};
    if (pressed) state.Include(gdPressed);
    return state;
  }
  if (FCurrent == TGridCoord{col, row} && HasFocus()) state.Include(gdFocused);
  if (!Selection().Contains(col, row)) return state;
  state.Include(gdSelected);
  if (FOptions.Has(goRowSelect)) state.Include(gdRowSelected);
  return state;
}

TColor TCustomGrid::LineColor(bool fixed) const { return fixed ? clBtnShadow : clSilver; }

void TCustomGrid::UseColors(TGridDrawState state) {
  TCanvas& canvas = *Canvas();
  canvas.SetFont(Font());
  canvas.Brush()->SetStyle(bsSolid);
  const bool plain = state.Has(gdFocused) && !state.Has(gdRowSelected) &&
                     (!FOptions.Has(goDrawFocusSelected) || FEditing);
  TColor back = Color();
  if (state.Has(gdFixed)) {
    back = state.Has(gdPressed) ? clBtnShadow : FFixedColor;
    if (state.Has(gdPressed)) canvas.Font()->SetColor(clBtnHighlight);
  } else if (state.Has(gdSelected) && !plain && Enabled()) {
    back = clHighlight;
    canvas.Font()->SetColor(clHighlightText);
  }
  if (!Enabled()) canvas.Font()->SetColor(clGrayText);
  canvas.Brush()->SetColor(back);
}

void TCustomGrid::Paint() {
  const TWatch watch(this);
  const TRect clip = Canvas()->ClipRect();
  const std::vector<TGridBand> cols = FCols->Seen(Room(true));
  const std::vector<TGridBand> rows = FRows->Seen(Room(false));
  for (const TGridBand& row : rows) {
    if (row.Begin >= clip.Bottom || row.Next() <= clip.Top) continue;
    for (const TGridBand& col : cols) {
      if (col.Begin >= clip.Right || col.Next() <= clip.Left) continue;
      PaintCell(col, row);
      if (watch.Gone()) return;
    }
  }
  PaintRest(cols.empty() ? 0 : cols.back().Next(), rows.empty() ? 0 : rows.back().Next());
  PaintFocus();
  PaintButton();
  PaintMark();
}

void TCustomGrid::PaintCell(const TGridBand& col, const TGridBand& row) {
  const TRect rect{col.Begin, row.Begin, col.End, row.End};
  const TGridDrawState state = StateOf(col.Index, row.Index);
  UseColors(state);
  if (FDefaultDrawing) Canvas()->FillRect(rect);
  const TWatch watch(this);
  DrawCell(col.Index, row.Index, rect, state);
  if (!watch.Gone()) PaintLines(col, row);
}

void TCustomGrid::PaintLines(const TGridBand& col, const TGridBand& row) {
  const bool fixed = col.Index < FixedCols() || row.Index < FixedRows();
  const TColor color = LineColor(fixed);
  Canvas()->Brush()->SetStyle(bsSolid);
  Fill(*Canvas(), {col.End, row.Begin, col.Next(), row.Next()}, color);
  Fill(*Canvas(), {col.Begin, row.End, col.End, row.Next()}, color);
}

void TCustomGrid::PaintRest(int right, int bottom) {
  const TRect client = ClientRect();
  Fill(*Canvas(), {right, 0, client.Right, client.Bottom}, Color());
  Fill(*Canvas(), {0, bottom, right, client.Bottom}, Color());
}

// A row that is selected as a whole has the frame as a whole.
void TCustomGrid::PaintFocus() {
  if (!Focused() || FEditing || !ShowsFocus() || !HasCells()) return;
  TRect rect = CellRect(Col(), Row());
  if (FOptions.Has(goRowSelect)) {
    const std::vector<TGridBand> cols = FCols->Seen(Room(true));
    const auto first = std::ranges::find_if(
        cols, [this](const TGridBand& each) { return each.Index >= FixedCols(); });
    if (first == cols.end()) return;
    const TRect any = CellRect(first->Index, Row());
    rect = any.Empty() ? TRect() : TRect(first->Begin, any.Top, cols.back().End, any.Bottom);
  }
  if (rect.Empty()) return;
  UseColors(StateOf(Col(), Row()));
  Canvas()->DrawFocusRect(rect);
}

// The button beside the edit.

TRect TCustomGrid::ButtonRect() const {
  TRect rect = CellRect(Col(), Row());
  rect.Left = std::max(rect.Left + rect.Width() / 2, rect.Right - ::GetSystemMetrics(SM_CXVSCROLL));
  return rect;
}

void TCustomGrid::PaintButton() {
  if (!HasButton()) return;
  const TRect button = ButtonRect();
  if (button.Empty()) return;
  RECT frame = button;
  const bool list = FEditStyle == esPickList;
  ::DrawFrameControl(Canvas()->Handle(), &frame, list ? DFC_SCROLL : DFC_BUTTON,
                     list ? DFCS_SCROLLCOMBOBOX : DFCS_BUTTONPUSH);
  if (list) return;
  const int dot = ScaledPixels(2);
  const int middle = (button.Left + button.Right) / 2;
  const int bottom = button.Bottom - 2 * dot;
  for (const int x : {middle - 2 * dot, middle, middle + 2 * dot}) {
    Fill(*Canvas(), {x - dot / 2, bottom - dot, x - dot / 2 + dot, bottom}, clBtnText);
  }
}

void TCustomGrid::DrawCheckBox(const TRect& rect, bool checked) {
  const int size = std::min({ScaledPixels(13), rect.Width(), rect.Height()});
  const int left = rect.Left + (rect.Width() - size) / 2;
  const int top = rect.Top + (rect.Height() - size) / 2;
  RECT box{left, top, left + size, top + size};
  const UINT state = (checked ? DFCS_CHECKED : 0u) | (Enabled() ? 0u : DFCS_INACTIVE);
  ::DrawFrameControl(Canvas()->Handle(), &box, DFC_BUTTON, DFCS_BUTTONCHECK | state);
}

// Where what is being moved would come.

TRect TCustomGrid::MarkRect() const {
  const bool columns = FPress.Hit.Column;
  const TRect client = ClientRect();
  const int half = ScaledPixels(MarkWidth) / 2;
  for (const TGridBand& each : Axis(columns).Seen(Room(columns))) {
    if (each.Index != FPress.Target) continue;
    const int place = FPress.Target > FPress.Hit.Index ? each.Next() : each.Begin;
    return columns ? TRect(place - half - 1, 0, place + half, client.Bottom)
                   : TRect(0, place - half - 1, client.Right, place + half);
  }
  return {};
}

void TCustomGrid::PaintMark() {
  if (FPress.Kind == TMouse::Moving) Fill(*Canvas(), MarkRect(), clHighlight);
}

}  // namespace vcl
