// TLineLook: what most looks need.
#include "vcl/stdctrls/linelook.h"

#include "vcl/graphics/canvas.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/private/listlines.h"

namespace vcl {

int TLineLook::Height(TCustomListControl& list, int /*index*/) { return list.ItemHeight(); }

int TLineLook::Mark(const TCustomListControl& list, int index) { return list.List().Mark(index); }

void TLineLook::SetMark(TCustomListControl& list, int index, int mark) {
  list.List().SetMark(index, mark);
}

void TLineLook::DrawLineText(TCustomListControl& list, const TRect& rect, int indentation,
                             const std::string& text) {
  TCanvas& canvas = *list.Canvas();
  const TSize extent = canvas.TextExtent(text);
  TRect place{rect.Left + indentation, rect.Top, rect.Right, rect.Bottom};
  const int top = rect.Top + (rect.Height() - extent.cy) / 2;
  if (extent.cx <= place.Width()) return canvas.TextRect(place, place.Left, top, text);
  canvas.TextRect(place, place.Left, top, {});  // The ground alone.
  place.Top = top;
  DrawTextOn(&canvas, text, place, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace vcl
