// TPaintBox: its canvas, given to OnPaint.
#include "vcl/stdctrls/paintbox.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TPaintBox::Class() {
  static const TClass info =
      Describe<TPaintBox, TGraphicControl>("vcl::TPaintBox", "vcl/stdctrls/extctrls.h",
                                           {
                                               Inherit("Align"),
                                               Inherit("Color"),
                                               Inherit("DragCursor"),
                                               Inherit("DragMode"),
                                               Inherit("Enabled"),
                                               Inherit("Font"),
                                               Inherit("ParentColor"),
                                               Inherit("ParentFont"),
                                               Inherit("ParentShowHint"),
                                               Inherit("PopupMenu"),
                                               Inherit("ShowHint"),
                                               Inherit("Visible"),
                                               Inherit("OnClick"),
                                               Inherit("OnDblClick"),
                                               Inherit(DragEvents),
                                               Inherit(MouseEvents),
                                               Event<&TPaintBox::OnPaint>("OnPaint"),
                                               Inherit("OnStartDrag"),
                                           });
  return info;
}

TPaintBox::TPaintBox(TComponent* owner) : TGraphicControl(owner) {
  SetControlStyle(ControlStyle() + TControlStyle{csReplicatable});
  SetBounds(0, 0, 105, 105);
}

void TPaintBox::Paint() {
  Canvas()->SetFont(Font());
  Canvas()->Brush()->SetColor(Color());
  if (Designing()) {
    Canvas()->Pen()->SetStyle(psDash);
    Canvas()->Brush()->SetStyle(bsClear);
    Canvas()->Rectangle(ClientRect());
  }
  OnPaint(this);
}

}  // namespace vcl
