// TLineLook: what most looks need.
#include "vcl/stdctrls/linelook.h"

#include "vcl/graphics/canvas.h"
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
  const int top = rect.Top + (rect.Height() - canvas.TextHeight(text)) / 2;
  canvas.TextRect({rect.Left + indentation, rect.Top, rect.Right, rect.Bottom},
                  rect.Left + indentation, top, text);
}

}  // namespace vcl
