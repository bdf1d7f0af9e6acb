// TQELIEButton: its properties, painting it, and the mouse.
#include "qel/controls/Qeltiebutton.h"

#include "qel/controls/private/buttonproperties.h"
#include "vcl/controls/accelerators.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TMouseButton;
using vcl::TRect;
using vcl::TShiftState;
using vcl::TWatch;

namespace {

constexpr int EdgeMargin = 2;

}  // namespace

const vcl::TClass& TQELIEButton::Class() {
  using T = TQELIEButton;
  using namespace vcl;
  // GroupIndex stands before Down, which only a button of a group can be.
  static const TClass info = Describe<T, TQELGraphicControl>(
      "qel::TQELIEButton", "qel/controls/Qeltiebutton.h",
      {
          Inherit("Align"),
          Property<&T::AllowAllUp, &T::SetAllowAllUp>("AllowAllUp").Default(false),
          Property<&T::GroupIndex, &T::SetGroupIndex>("GroupIndex").Default(0),
          Property<&T::Down, &T::SetDown>("Down").Default(false),
          Inherit("Caption"),
          Inherit("Color"),
          Property<&T::DropDownMenu, &T::SetDropDownMenu>("DropDownMenu"),
          Property<&T::Font3D, &T::Set3D>("Font3D"),
          Property<&T::Glyph, &T::SetQELGlyph>("Glyph"),
          Property<&T::HotFont, &T::SetHotFont>("HotFont").StoredIf<&T::IsHotFontStored>(),
          Property<&T::Layout, &T::SetLayout>("Layout").Default(pTop),
          Property<&T::Margin, &T::SetMargin>("Margin").Default(-1),
          Inherit("ParentColor"),
          Property<&T::Spacing, &T::SetSpacing>("Spacing").Default(4),
          Property<&T::Transparent, &T::SetTransparent>("Transparent").Default(true),
          Inherit(ControlProperties),
          Inherit("OnClick"),
          Inherit(DragEvents),
          Inherit(MouseEvents),
          Event<&T::OnMouseEnter>("OnMouseEnter"),
          Event<&T::OnMouseLeave>("OnMouseLeave"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELIEButton::TQELIEButton(vcl::TComponent* owner)
    : TQELGraphicControl(owner),
      FGlyph(std::make_unique<TQELGlyph>(this)),
      FFont3D(std::make_unique<TQELFont3D>(this)),
      FFace(*this, *FGlyph, *FFont3D),
      FPress(*this, *this) {
  SetControlStyle({vcl::csCaptureMouse, vcl::csClickEvents, vcl::csSetCaption});
  SetBounds(Left(), Top(), 60, 46);
  HearOnlyAsked<TQELIEButton>();
}

TQELIEButton::~TQELIEButton() { AnnounceEnd(); }

void TQELIEButton::SetTransparent(bool transparent) {
  if (transparent == Transparent()) return;
  const vcl::TControlStyle opaque{vcl::csOpaque};
  SetControlStyle(transparent ? ControlStyle() - opaque : ControlStyle() + opaque);
  Invalidate();
}

void TQELIEButton::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELGraphicControl::Notification(component, operation);
  if (operation == vcl::opRemove) FFace.Forget(component);
}

void TQELIEButton::ChangeScale(int m, int d) {
  const TWatch watch(this);
  TQELGraphicControl::ChangeScale(m, d);
  if (!watch.Gone() && FFace.HasHotFont()) ScaleFont(*FFace.HotFont(), m, d);
}

void TQELIEButton::Paint() {
  TRect area = ClientRect();
  if (!Transparent()) {
    Canvas()->Brush()->SetStyle(vcl::bsSolid);
    Canvas()->Brush()->SetColor(Color());
    Canvas()->FillRect(area);
  }
  const bool pressed = Pressed() || Down();
  RECT edge = area;
  if (pressed) {
    ::DrawEdge(Canvas()->Handle(), &edge, BDR_SUNKENOUTER, BF_RECT);
  } else if ((Hot() && Enabled()) || Designing()) {
    ::DrawEdge(Canvas()->Handle(), &edge, BDR_RAISEDINNER, BF_RECT);
  }
  area.Inflate(-ScaledPixels(EdgeMargin), -ScaledPixels(EdgeMargin));
  FFace.Draw(Canvas(), area, pressed, Hot());
}

// Input.

void TQELIEButton::ShowPress() {
  const TWatch watch(this);
  AccessibleChanged(vcl::acState);
  if (!watch.Gone()) Repaint();
}

void TQELIEButton::ShowHot() {
  Invalidate();
  (Hot() ? OnMouseEnter : OnMouseLeave)(this);
}

void TQELIEButton::Click() {
  const TWatch watch(this);
  FPress.Clicking();
  if (!watch.Gone()) FFace.Clicked();
  if (!watch.Gone()) TQELGraphicControl::Click();
  if (!watch.Gone()) FFace.DropDown();
}

void TQELIEButton::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  if (!Enabled()) ExcludeState(vcl::csClicked);
  const TWatch watch(this);
  TQELGraphicControl::MouseDown(button, shift, x, y);
  if (!watch.Gone() && Enabled()) FPress.MouseDown(button);
}

void TQELIEButton::MouseMove(TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TQELGraphicControl::MouseMove(shift, x, y);
  if (!watch.Gone()) FPress.MouseMove(ClientRect().Contains({x, y}));
}

void TQELIEButton::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TQELGraphicControl::MouseUp(button, shift, x, y);
  if (!watch.Gone()) FPress.MouseUp(button);
}

bool TQELIEButton::TakesAccel(const vcl::TMessage& message) const {
  return message.Msg == vcl::CM_DIALOGCHAR && vcl::IsAccel(message.WParam, Caption()) &&
         Enabled() && Visible() && Parent() && Parent()->Showing();
}

void TQELIEButton::Dispatch(vcl::TMessage& message) {
  if (TakesAccel(message)) {
    message.Result = 1;
    return Click();
  }
  const TWatch watch(this);
  {
    const auto handling = FPress.Handling(message);
    TQELGraphicControl::Dispatch(message);
  }
  if (watch.Gone()) return;
  if (message.Msg == vcl::CM_TEXTCHANGED) Invalidate();
  if (message.Msg == vcl::CM_FONTCHANGED) FFace.FontChanged();
  FPress.Heard(message);
}

// Screen readers.

void TQELIEButton::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELGraphicControl::DescribeAccessible(info);
  info.Role = vcl::arPushButton;
  info.DefaultAction = "Press";
  if (Down() || Pressed()) info.State.Include(vcl::asPressed);
}

}  // namespace qel
