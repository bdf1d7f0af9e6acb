// TLineLook: what most looks need.
#include "vcl/stdctrls/linelook.h"

#include "vcl/graphics/canvas.h"

namespace vcl {

int TLineLook::Height(TCustomListControl& list, int /*index*/) { return list.ItemHeight(); }

void TLineLook::DrawLineText(TCustomListControl& list, const TRect& rect, int indentation,
                             const std::string& text) {
  TCanvas& canvas = *list.Canvas();
  const int top = rect.Top + (rect.Height() - canvas.TextHeight(text)) / 2;
  canvas.TextRect({rect.Left + indentation, rect.Top, rect.Right, rect.Bottom},
                  rect.Left + indentation, top, text);
}

}  // namespace vcl
