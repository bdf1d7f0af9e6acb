// TQELOfficeButton: its properties, painting it, its menu, and Enter and Escape.
#include "qel/controls/Qeltofficebutton.h"

#include "qel/controls/private/buttonproperties.h"
#include "qel/core/private/Qelownedsettings.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/button.h"

namespace qel {

using vcl::TMouseButton;
using vcl::TRect;
using vcl::TShiftState;
using vcl::TWatch;

namespace {

constexpr int EdgeMargin = 2;
/// Parts in a hundred of HotColor.
constexpr int HotTint = 30;
constexpr int PressedTint = 50;

}  // namespace

const vcl::TClass& TQELOfficeButton::Class() {
  using T = TQELOfficeButton;
  using namespace vcl;
  // GroupIndex stands before Down, which only a button of a group can be.
  static const TClass info = Describe<T, TQELCustomButton>(
      "qel::TQELOfficeButton", "qel/controls/Qeltofficebutton.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Property<&T::AllowAllUp, &T::SetAllowAllUp>("AllowAllUp").Default(false),
          Inherit("Background"),
          Property<&T::Cancel, &T::SetCancel>("Cancel").Default(false),
          Inherit("Caption"),
          Property<&T::Default, &T::SetDefault>("Default").Default(false),
          Property<&T::GroupIndex, &T::SetGroupIndex>("GroupIndex").Default(0),
          Property<&T::Down, &T::SetDown>("Down").Default(false),
          Property<&T::DropDownMenu, &T::SetDropDownMenu>("DropDownMenu"),
          Inherit("Font3D"),
          Property<&T::FrameOnHot, &T::SetFrameOnHot>("FrameOnHot").Default(true),
          Inherit("Glyph"),
          Property<&T::HotColor, &T::SetHotColor>("HotColor").Default(clHighlight),
          Property<&T::HotFont, &T::SetHotFont>("HotFont").StoredIf<&T::IsHotFontStored>(),
          Property<&T::Layout, &T::SetLayout>("Layout").Default(pTop),
          Property<&T::Margin, &T::SetMargin>("Margin").Default(-1),
          Property<&T::ModalResult, &T::SetModalResult>("ModalResult").Default(mrNone),
          Property<&T::Spacing, &T::SetSpacing>("Spacing").Default(4),
          Property<&T::SplitDropDown, &T::SetSplitDropDown>("SplitDropDown").Default(false),
          Inherit(ButtonProperties),
          Inherit("TabStop").Default(true),
          Inherit("OnClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Event<&T::OnMouseEnter>("OnMouseEnter"),
          Event<&T::OnMouseLeave>("OnMouseLeave"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELOfficeButton::TQELOfficeButton(vcl::TComponent* owner)
    : TQELCustomButton(owner), FFace(*this, *Glyph(), *Font3D()) {
  SetBounds(Left(), Top(), 75, 46);
  HearOnlyAsked<TQELOfficeButton>();
}

TQELOfficeButton::~TQELOfficeButton() { AnnounceEnd(); }

void TQELOfficeButton::SetSplitDropDown(bool split) {
  if (Store(FSplitDropDown, split)) Invalidate();
}

void TQELOfficeButton::SetHotColor(vcl::TColor color) {
  if (Store(FHotColor, color)) Invalidate();
}

void TQELOfficeButton::SetFrameOnHot(bool frame) {
  if (Store(FFrameOnHot, frame)) Invalidate();
}

void TQELOfficeButton::SetDefault(bool isDefault) {
  if (Store(FDefault, isDefault)) Invalidate();
}

void TQELOfficeButton::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELCustomButton::Notification(component, operation);
  if (operation == vcl::opRemove) FFace.Forget(component);
}

void TQELOfficeButton::ChangeScale(int m, int d) {
  const TWatch watch(this);
  TQELCustomButton::ChangeScale(m, d);
  if (!watch.Gone() && FFace.HasHotFont()) ScaleFont(*FFace.HotFont(), m, d);
}

// Painting.

void TQELOfficeButton::Paint() {
  TQELCustomButton::Paint();
  const bool pressed = Pressed() || Down();
  const bool hot = Hot() && Enabled();
  if (pressed || hot) Tint(pressed ? PressedTint : HotTint);
  TRect area = ClientRect();
  area.Inflate(-ScaledPixels(EdgeMargin), -ScaledPixels(EdgeMargin));
  FFace.Draw(Canvas(), area, pressed, hot);
  PaintFrame();
  PaintFocus(area);
}

/// Mixes HotColor into what is painted by now.
void TQELOfficeButton::Tint(int percent) {
  const vcl::TMemoryDC memory;
  const vcl::TOwnedBitmap dot(::CreateCompatibleBitmap(Canvas()->Handle(), 1, 1));
  vcl::CheckHandle(dot.Get(), "bitmap");
  const vcl::TSelection selection(memory.Get(), dot.Get());
  ::SetPixelV(memory.Get(), 0, 0, vcl::ColorToRGB(FHotColor));
  constexpr int most = 255;
  const BLENDFUNCTION blend{AC_SRC_OVER, 0, static_cast<BYTE>(most * percent / 100), 0};
  ::GdiAlphaBlend(Canvas()->Handle(), 0, 0, ClientWidth(), ClientHeight(), memory.Get(), 0, 0, 1, 1,
                  blend);
}

void TQELOfficeButton::PaintFrame() {
  const bool hot = Hot() && Enabled() && FFrameOnHot;
  if (!hot && !Pressed() && !Down() && !Active() && !Designing()) return;
  Canvas()->Brush()->SetStyle(vcl::bsSolid);
  Canvas()->Brush()->SetColor(hot || Pressed() || Down() ? FHotColor : vcl::clBtnShadow);
  Canvas()->FrameRect(ClientRect());
  if (!FSplitDropDown || !DropDownMenu()) return;
  TRect arrow = FFace.ArrowArea();
  Canvas()->FrameRect({arrow.Left - 1, arrow.Top, arrow.Right, arrow.Bottom});
}

void TQELOfficeButton::ShowHot() {
  TQELCustomButton::ShowHot();
  (Hot() ? OnMouseEnter : OnMouseLeave)(this);
}

// Clicks.

void TQELOfficeButton::Click() {
  const TWatch watch(this);
  if (vcl::TCustomForm* form = ParentForm(); form && FModalResult != vcl::mrNone) {
    form->SetModalResult(FModalResult);
  }
  FFace.Clicked();
  if (!watch.Gone()) TQELCustomButton::Click();
  if (!watch.Gone() && !FSplitDropDown) FFace.DropDown();
}

void TQELOfficeButton::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const bool drops = button == vcl::mbLeft && FSplitDropDown && Enabled() && DropDownMenu() &&
                     FFace.ArrowArea().Contains({x, y});
  const TWatch watch(this);
  {
    // What the menu's arrow takes is no press of the button.
    const vcl::TSetFor dropping(FDropping, drops, this);
    TQELCustomButton::MouseDown(button, shift, x, y);
  }
  if (drops && !watch.Gone()) FFace.DropDown();
}

/// Whether Enter is for this button now: it has the focus, or it is the default one and no other
/// button has it.
bool TQELOfficeButton::Active() const {
  const vcl::TCustomForm* form = ParentForm();
  const vcl::TWinControl* focused = form ? form->ActiveControl() : nullptr;
  if (focused == this) return true;
  const auto* painted = dynamic_cast<const TQELCustomButton*>(focused);
  const bool other =
      dynamic_cast<const vcl::TButton*>(focused) || (painted && painted->TakesReturn());
  return FDefault && !other;
}

bool TQELOfficeButton::TakesDialogKey(const vcl::TMessage& message) const {
  if (message.Msg != vcl::CM_DIALOGKEY) return false;
  const bool mine =
      (message.WParam == VK_RETURN && Active()) || (message.WParam == VK_ESCAPE && FCancel);
  return mine && vcl::KeyDataToShiftState(message.LParam).Empty() && CanFocus();
}

bool TQELOfficeButton::ShowsMenuBy(const vcl::TMessage& message) const {
  return message.Msg == WM_SYSKEYDOWN && message.WParam == VK_DOWN && DropDownMenu();
}

void TQELOfficeButton::Dispatch(vcl::TMessage& message) {
  if (TakesDialogKey(message)) {
    message.Result = 1;
    return Click();
  }
  const TWatch watch(this);
  const bool showsMenu = ShowsMenuBy(message);
  TQELCustomButton::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == vcl::CM_FONTCHANGED) FFace.FontChanged();
  if (message.Msg == vcl::CM_FOCUSCHANGED && FDefault) Invalidate();
  if (showsMenu) FFace.DropDown();
}

// Screen readers.

void TQELOfficeButton::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomButton::DescribeAccessible(info);
  if (Down()) info.State.Include(vcl::asPressed);
  if (Active()) info.State.Include(vcl::asDefault);
}

}  // namespace qel
