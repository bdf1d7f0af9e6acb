// How cells look: the text in them.
#include "vcl/grids/gridlook.h"

#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/win32.h"

namespace vcl {

void DrawCellText(TCanvas& canvas, TRect rect, const std::string& text, TAlignment alignment,
                  int margin) {
  static constexpr UINT sides[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
  rect.Inflate(-margin, -margin);
  // The last line may be cut off, but no line at its top.
  rect.Bottom += margin;
  if (text.empty() || rect.Empty()) return;
  const bool lines = text.find('\n') != std::string::npos;
  canvas.Brush()->SetStyle(bsClear);
  DrawTextOn(&canvas, text, rect,
             sides[alignment] | DT_NOPREFIX | DT_END_ELLIPSIS | (lines ? 0u : DT_SINGLELINE));
  canvas.Brush()->SetStyle(bsSolid);
}

void DrawSortMark(TCanvas& canvas, const TRect& rect, bool descending, int size) {
  const int middle = (rect.Top + rect.Bottom) / 2;
  const int right = rect.Right - size;
  const int tip = descending ? middle + size / 2 : middle - size / 2;
  const int base = descending ? middle - size / 2 : middle + size / 2;
  const TPoint corners[] = {{right - 2 * size, base}, {right, base}, {right - size, tip}};
  canvas.Pen()->SetColor(canvas.Font()->Color());
  canvas.Brush()->SetColor(canvas.Font()->Color());
  canvas.Polygon(corners);
}

}  // namespace vcl
