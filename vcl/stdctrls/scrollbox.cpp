// TScrollBox: what it publishes, and its border.
#include "vcl/stdctrls/scrollbox.h"

#include "vcl/controls/private/narrowed.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TScrollBox::Class() {
  using T = TScrollBox;
  static const TClass info = Describe<T, TScrollingWinControl>(
      "vcl::TScrollBox", "vcl/stdctrls/extctrls.h",
      {
          Inherit("Align"),
          Inherit("AutoScroll").Default(true),
          Inherit("AutoSize"),
          ControlBorder(Property<&T::BorderStyle, &T::SetBorderStyle>("BorderStyle"))
              .Default(bsSingle),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("DoubleBuffered"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("HorzScrollBar"),
          Inherit("Padding"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("VertScrollBar"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnConstrainedResize"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnResize"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TScrollBox::TScrollBox(TComponent* owner) : TScrollingWinControl(owner) {
  SetControlStyle({csAcceptsControls, csCaptureMouse, csClickEvents, csDoubleClicks});
  SetBounds(0, 0, 185, 41);
  SetAutoScroll(true);
}

void TScrollBox::SetBorderStyle(TBorderStyle style) {
  CheckControlBorder(style);
  if (style == FBorderStyle) return;
  FBorderStyle = style;
  RecreateWnd();
}

void TScrollBox::CreateParams(TCreateParams& params) {
  TScrollingWinControl::CreateParams(params);
  if (FBorderStyle == bsSingle) AddSingleBorder(params);
}

}  // namespace vcl
