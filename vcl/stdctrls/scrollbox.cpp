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
          Inherit("DoubleBuffered"),
          Inherit("HorzScrollBar"),
          Inherit("VertScrollBar"),
          Inherit(ContainerProperties),
          Inherit(ContainerEvents),
          Inherit(KeyEvents),
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
