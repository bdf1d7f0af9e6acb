// TQELHeaderList: painting the cells that are seen.
#include <algorithm>

#include "qel/controls/private/headerlistparts.h"
#include "qel/controls/private/rowset.h"
#include "qel/core/private/uistate.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/grids/gridlook.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;
using vcl::TWatch;

vcl::TRect TQELHeaderList::CheckRect(const TRect& cell) const {
  const int left = cell.Left + ScaledPixels(2);
  return {left, cell.Top, std::min(left + ScaledPixels(CheckSize), cell.Right), cell.Bottom};
}

void TQELHeaderList::Paint() {
  const TWatch watch(this);
  TCustomGrid::Paint();
  if (watch.Gone() || EditorMode() || !HasCells() || !ShowsKeyboardFocus(*this)) return;
  // The cell that F2 would edit, or the row.
  TRect rect = CellRect(Col(), Row());
  if (rect.Empty()) return;
  if (FReadOnly) {
    rect.Left = 0;
    rect.Right = std::min(FHeader->Left() + Sections()->TotalWidth(), ClientWidth());
  }
  Canvas()->Font()->SetColor(vcl::clWindowText);
  Canvas()->Brush()->SetColor(Selected(Row() - 1) ? vcl::clHighlight : Color());
  Canvas()->DrawFocusRect(rect);
}

void TQELHeaderList::DrawCell(int col, int row, const TRect& rect, vcl::TGridDrawState state) {
  vcl::TCanvas& canvas = *Canvas();
  const int index = row - 1;
  const bool focus = Focused() || EditorMode();
  const bool selected = index >= 0 && Selected(index);
  selected ? state.Include(vcl::gdSelected) : state.Exclude(vcl::gdSelected);
  const bool alternate = FAlternateColor != vcl::clNone && index % 2 == 1;
  vcl::TColor back = alternate ? FAlternateColor : Color();
  canvas.SetFont(Font());
  if (selected && Enabled()) {
    back = focus ? vcl::clHighlight : vcl::clBtnFace;
    canvas.Font()->SetColor(focus ? vcl::clHighlightText : vcl::clBtnText);
  }
  if (!Enabled()) canvas.Font()->SetColor(vcl::clGrayText);
  canvas.Brush()->SetStyle(vcl::bsSolid);
  canvas.Brush()->SetColor(index < 0 ? vcl::clBtnFace : back);
  canvas.FillRect(rect);
  if (index < 0) return;
  const vcl::TSavedDC saved(canvas.Handle());
  ::IntersectClipRect(canvas.Handle(), rect.Left, rect.Top, rect.Right, rect.Bottom);
  TRect inside = rect;
  const TWatch watch(this);
  if (col == 0) PaintLead(index, inside);
  if (watch.Gone()) return;
  canvas.Brush()->SetColor(back);
  if (OnDrawCell) return OnDrawCell(this, ColumnOf(col), index, inside, state);
  const std::string text = TextOf(index, ColumnOf(col));
  if (watch.Gone()) return;
  const int margin = ScaledPixels(vcl::CellMargin);
  inside.Inflate(-ScaledPixels(TextInset), 0);
  inside.Top += std::max((inside.Height() - vcl::FontHeight(*Font())) / 2 - margin, 0);
  const vcl::TAlignment alignment =
      Sections()->Has(col) ? Sections()->Items(col)->Alignment() : vcl::taLeftJustify;
  vcl::DrawCellText(canvas, inside, text, alignment, margin);
}

/// The check box and the picture before a row, which are taken off the rectangle.
void TQELHeaderList::PaintLead(int row, TRect& inside) {
  const int gap = ScaledPixels(3);
  if (FCheckBoxes) {
    const TRect box = CheckRect(inside);
    DrawCheckBox(box, Checked(row));
    inside.Left = box.Right + gap;
  }
  if (!FImages.List) return;
  int image = -1;
  const TWatch watch(this);
  OnGetImage(this, row, image);
  if (watch.Gone() || !FImages.List) return;
  const int top = inside.Top + (inside.Height() - FImages.List->Height()) / 2;
  FImages.List->Draw(Canvas(), inside.Left + ScaledPixels(2), top, image, Enabled());
  inside.Left += FImages.List->Width() + gap;
}

}  // namespace qel
