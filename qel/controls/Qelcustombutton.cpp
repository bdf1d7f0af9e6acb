// TQELCustomButton: settings, and handing mouse and keyboard to its press.
#include "qel/controls/Qelcustombutton.h"

#include "vcl/controls/accelerators.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TMouseButton;
using vcl::TShiftState;
using vcl::TWatch;

const vcl::TClass& TQELCustomButton::Class() {
  using T = TQELCustomButton;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomControl>(
      "qel::TQELCustomButton", "qel/controls/Qelcustombutton.h",
      {
          Property<&T::Font3D, &T::Set3D>("Font3D").Unpublished(),
          Property<&T::Glyph, &T::SetQELGlyph>("Glyph").Unpublished(),
      });
  return info;
}

TQELCustomButton::TQELCustomButton(vcl::TComponent* owner, TQELPress::TRelease release)
    : TQELCustomControl(owner),
      FGlyph(std::make_unique<TQELGlyph>(this)),
      FFont3D(std::make_unique<TQELFont3D>(this)),
      FPress(*this, *this, release) {
  SetControlStyle({vcl::csCaptureMouse, vcl::csClickEvents, vcl::csSetCaption});
  SetTabStop(true);
}

TQELCustomButton::~TQELCustomButton() { AnnounceEnd(); }

void TQELCustomButton::Set3D(const TQELFont3D* font3D) {
  FFont3D->Assign(font3D);
  Invalidate();
}

void TQELCustomButton::SetQELGlyph(const TQELGlyph* glyph) {
  FGlyph->Assign(glyph);
  Invalidate();
}

// The focus.

bool TQELCustomButton::ShowsFocus() {
  if (!Focused()) return false;
  return (::SendMessageW(Handle(), WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) == 0;
}

void TQELCustomButton::PaintFocus(const vcl::TRect& rect) {
  if (ShowsFocus()) Canvas()->DrawFocusRect(rect);
}

// Input.

void TQELCustomButton::ShowPress() {
  AccessibleChanged(vcl::acState);
  Repaint();
}

void TQELCustomButton::ShowHot() { Invalidate(); }

void TQELCustomButton::PressClicks(bool /*byKey*/) { Click(); }

void TQELCustomButton::Click() {
  const TWatch watch(this);
  FPress.Clicking();
  if (!watch.Gone()) TQELCustomControl::Click();
}

void TQELCustomButton::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  // What the window took for the beginning of a click is none.
  if (!TakesMouse()) ExcludeState(vcl::csClicked);
  const TWatch watch(this);
  const bool focuses = button == vcl::mbLeft && FocusedByMouse() && TakesMouse() && !Focused();
  if (focuses && CanFocus()) SetFocus();
  if (watch.Gone()) return;
  TQELCustomControl::MouseDown(button, shift, x, y);
  if (!watch.Gone() && TakesMouse()) FPress.MouseDown(button);
}

void TQELCustomButton::MouseMove(TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TQELCustomControl::MouseMove(shift, x, y);
  if (!watch.Gone()) FPress.MouseMove(Contains({x, y}));
}

void TQELCustomButton::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TQELCustomControl::MouseUp(button, shift, x, y);
  if (!watch.Gone()) FPress.MouseUp(button);
}

void TQELCustomButton::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TQELCustomControl::KeyDown(key, shift);
  if (watch.Gone()) return;
  if (key == VK_RETURN && TakesReturn()) return Click();
  FPress.KeyDown(key);
}

void TQELCustomButton::KeyUp(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  FPress.KeyUp(key);
  if (!watch.Gone()) TQELCustomControl::KeyUp(key, shift);
}

bool TQELCustomButton::TakeOwn(vcl::TMessage& message) {
  switch (message.Msg) {
    case vcl::CM_DIALOGCHAR:
      if (!TakesAccel() || !vcl::IsAccel(message.WParam, Caption())) return false;
      message.Result = 1;
      return AccelPressed(), true;
    case vcl::CM_WANTSPECIALKEY:
      if (message.WParam != VK_RETURN || !TakesReturn()) return false;
      message.Result = 1;
      return true;
    case WM_LBUTTONUP:
      // A button need not fill its rectangle.
      if (!Contains({message.XPos(), message.YPos()})) ExcludeState(vcl::csClicked);
      return false;
    default: return false;
  }
}

void TQELCustomButton::Dispatch(vcl::TMessage& message) {
  const TWatch watch(this);
  if (TakeOwn(message)) return;
  {
    const auto handling = FPress.Handling(message);
    TQELCustomControl::Dispatch(message);
  }
  if (watch.Gone()) return;
  switch (message.Msg) {
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_UPDATEUISTATE:
    case vcl::CM_TEXTCHANGED: Invalidate(); break;
    default: break;
  }
  FPress.Heard(message);
}

// Screen readers.

void TQELCustomButton::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomControl::DescribeAccessible(info);
  info.Role = vcl::arPushButton;
  info.DefaultAction = "Press";
  if (Down()) info.State.Include(vcl::asPressed);
}

}  // namespace qel
