// TInspectorGrid: painting. Only the lines in the part that is to be painted are drawn, each on a
// picture of its own first, so that none is seen half-painted.
#include <algorithm>

#include "ide/inspectorgrid.h"
#include "ide/inspectorlayout.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/fontmetrics.h"

namespace ide {

using vcl::TRect;

namespace {

constexpr UINT TextFlags = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

void Fill(vcl::TCanvas* canvas, const TRect& rect, vcl::TColor color) {
  canvas->Brush()->SetColor(color);
  canvas->FillRect(rect);
}

void DrawCellText(vcl::TCanvas* canvas, const std::string& text, TRect rect, vcl::TColor color) {
  canvas->Brush()->SetStyle(vcl::bsClear);
  canvas->Font()->SetColor(color);
  vcl::DrawTextOn(canvas, text, rect, TextFlags);
  canvas->Brush()->SetStyle(vcl::bsSolid);
}

/// A plus, or a minus where the property is unfolded.
void DrawSign(vcl::TCanvas* canvas, const TRect& box, bool expanded, vcl::TColor color) {
  const int middleX = (box.Left + box.Right) / 2;
  const int middleY = (box.Top + box.Bottom) / 2;
  canvas->Pen()->SetColor(color);
  canvas->Brush()->SetStyle(vcl::bsClear);
  canvas->Rectangle(box);
  canvas->Brush()->SetStyle(vcl::bsSolid);
  canvas->MoveTo(box.Left + 2, middleY);
  canvas->LineTo(box.Right - 2, middleY);
  if (expanded) return;
  canvas->MoveTo(middleX, box.Top + 2);
  canvas->LineTo(middleX, box.Bottom - 2);
}

/// What can neither be typed nor opened.
bool Fixed(const TInspectorRow& row) {
  return row.ReadOnly && !row.Expandable && !row.Editor->Offers(vcl::paDialog);
}

}  // namespace

void TInspectorGrid::Paint() {
  const TRect clip = Canvas()->ClipRect();
  const int last = std::min(RowCount(), FTop + VisibleRows() + 2);
  for (int row = FTop; row < last; ++row) {
    const TRect rect = RowRect(row);
    if (rect.Bottom > clip.Top && rect.Top < clip.Bottom) PaintRow(row);
  }
  TRect rest = ClientRect();
  rest.Top = (RowCount() - FTop) * RowHeight();
  if (!rest.Empty()) Fill(Canvas(), rest, Color());
}

void TInspectorGrid::PaintRow(int index) {
  const TRect place = RowRect(index);
  const TInspectorRow& row = Row(index);
  FLine.SetSize(place.Width(), place.Height());
  vcl::TCanvas* canvas = FLine.Canvas();
  canvas->SetFont(Font());
  const int bottom = place.Height() - 1;
  Fill(canvas, {0, 0, place.Width(), place.Height()}, vcl::clBtnFace);  // The lines stay of it.
  PaintName(canvas, row, {0, 0, Splitter(), bottom}, index == FSelected);
  PaintValue(canvas, row, {Splitter() + 1, 0, place.Width(), bottom});
  if (index == FSelected && ButtonKind() != bkNone) {
    TRect button = ButtonRect();
    button.Offset(0, -place.Top);
    PaintButton(canvas, button);
  }
  Canvas()->Draw(0, place.Top, &FLine);
}

TRect TInspectorGrid::SignRect(const TInspectorRow& row, const TRect& cell) const {
  const int left = cell.Left + row.Depth * ScaledPixels(layout::DepthIndent) + 2;
  const int top = cell.Top + (cell.Height() - ScaledPixels(layout::SignSize)) / 2;
  return {left, top, left + ScaledPixels(layout::SignSize), top + ScaledPixels(layout::SignSize)};
}

void TInspectorGrid::PaintName(vcl::TCanvas* canvas, const TInspectorRow& row, const TRect& cell,
                               bool selected) {
  const bool searched = selected && Focused();
  const vcl::TColor back = searched ? vcl::clHighlight : selected ? vcl::clBtnFace : Color();
  const vcl::TColor text = searched ? vcl::clHighlightText : vcl::clWindowText;
  Fill(canvas, cell, back);
  TRect name = cell;
  name.Left += ScaledPixels(layout::NameIndent) + row.Depth * ScaledPixels(layout::DepthIndent);
  if (row.Expandable) DrawSign(canvas, SignRect(row, cell), row.Expanded, text);
  DrawCellText(canvas, row.Name(), name, text);
}

void TInspectorGrid::PaintValue(vcl::TCanvas* canvas, const TInspectorRow& row, TRect cell) {
  Fill(canvas, cell, Color());
  if (row.Color) {
    TRect swatch{cell.Left + ScaledPixels(layout::TextIndent), cell.Top + 2,
                 cell.Left + ScaledPixels(layout::SwatchWidth), cell.Bottom - 2};
    canvas->Pen()->SetColor(vcl::clWindowText);
    canvas->Brush()->SetColor(*row.Color);
    canvas->Rectangle(swatch);
    cell.Left += ScaledPixels(layout::SwatchWidth);
  }
  cell.Left += ScaledPixels(layout::TextIndent);
  canvas->Font()->SetStyle(row.Default ? vcl::TFontStyles{} : vcl::TFontStyles{vcl::fsBold});
  DrawCellText(canvas, row.Value, cell, Fixed(row) ? vcl::clGrayText : vcl::clWindowText);
}

void TInspectorGrid::PaintButton(vcl::TCanvas* canvas, const TRect& button) {
  RECT frame = button;
  const bool list = ButtonKind() == bkList;
  ::DrawFrameControl(canvas->Handle(), &frame, list ? DFC_SCROLL : DFC_BUTTON,
                     list ? DFCS_SCROLLCOMBOBOX : DFCS_BUTTONPUSH);
  if (list) return;
  for (int dot = -1; dot <= 1; ++dot) {
    const int x = (button.Left + button.Right) / 2 + 3 * dot - 1;
    Fill(canvas, {x, button.Bottom - 6, x + 2, button.Bottom - 4}, vcl::clBtnText);
  }
}

}  // namespace ide
