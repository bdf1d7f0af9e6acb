// Painting the picture of a component that is not seen at run time.
#include "ide/componentpicture.h"

#include "ide/paletteicons.h"
#include "vcl/rtl/win32.h"

namespace ide {

using namespace vcl;

void PaintComponentPicture(TCanvas& canvas, const TRect& inside, const TComponent& component,
                           bool selected) {
  RECT face = inside;
  ::DrawFrameControl(canvas.Handle(), &face, DFC_BUTTON, DFCS_BUTTONPUSH);
  const TRect picture = Bounds((inside.Left + inside.Right - IconSize) / 2,
                               (inside.Top + inside.Bottom - IconSize) / 2, IconSize, IconSize);
  DrawIcon(canvas, picture, ComponentIcon(component.ClassType()));
  if (!selected) return;
  canvas.Brush()->SetStyle(bsClear);
  canvas.Pen()->SetColor(clNavy);
  canvas.Rectangle(inside);
}

}  // namespace ide
