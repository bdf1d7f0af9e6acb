// TToolBar: its settings, the keyboard, the menu of what does not fit, and its look.
#include "vcl/stdctrls/toolbar.h"

#include <algorithm>
#include <memory>

#include "vcl/controls/accelerators.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/hints.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/handles.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/coolbar.h"

namespace vcl {

const TClass& TToolBar::Class() {
  using T = TToolBar;
  static const TClass info = Describe<T, TCustomControl>(
      "vcl::TToolBar", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align").Default(alTop),
          Property<&T::AutoSize, &T::SetAutoSize>("AutoSize").Default(true),
          Property<&T::ButtonHeight, &T::SetButtonHeight>("ButtonHeight").Default(22),
          Property<&T::ButtonWidth, &T::SetButtonWidth>("ButtonWidth").Default(23),
          Inherit("Caption"),
          Inherit("Color"),
          Property<&T::DisabledImages, &T::SetDisabledImages>("DisabledImages"),
          Property<&T::Flat, &T::SetFlat>("Flat").Default(true),
          Property<&T::HotImages, &T::SetHotImages>("HotImages"),
          Property<&T::Images, &T::SetImages>("Images"),
          Property<&T::List, &T::SetList>("List").Default(false),
          Property<&T::ShowCaptions, &T::SetShowCaptions>("ShowCaptions").Default(false),
          Property<&T::Transparent, &T::SetTransparent>("Transparent").Default(false),
          Property<&T::Wrapable, &T::SetWrapable>("Wrapable").Default(true),
          Inherit(ContainerProperties),
          Inherit(ContainerEvents),
          Inherit(KeyEvents),
      });
  return info;
}

TToolBar::TToolBar(TComponent* owner) : TCustomControl(owner) {
  SetControlStyle(
      {csAcceptsControls, csCaptureMouse, csClickEvents, csDoubleClicks, csReplicatable});
  SetBounds(0, 0, 150, 29);
  for (TLinkedImages* each : {&FImages, &FHotImages, &FDisabledImages}) {
    each->Link.OnChange = TNotifyEvent(this, &TToolBar::PicturesChanged);
  }
  SetAlign(alTop);
}

TToolBar::~TToolBar() { AnnounceEnd(); }

// Settings.

void TToolBar::PicturesChanged(TObject* /*sender*/) {
  Realign();
  Invalidate();
}

void TToolBar::TakeImages(TLinkedImages& images, TImageList* list) {
  if (images.Take(list, *this)) PicturesChanged(list);
}

void TToolBar::Notification(TComponent* component, TOperation operation) {
  TCustomControl::Notification(component, operation);
  if (operation != opRemove) return;
  for (TLinkedImages* each : {&FImages, &FHotImages, &FDisabledImages}) {
    if (component == each->List) TakeImages(*each, nullptr);
  }
}

template <class T>
void TToolBar::Change(T& field, const T& value) {
  if (value == field) return;
  field = value;
  Realign();
  Invalidate();
}

void TToolBar::SetFlat(bool flat) { Change(FFlat, flat); }
void TToolBar::SetList(bool list) { Change(FList, list); }
void TToolBar::SetShowCaptions(bool show) { Change(FShowCaptions, show); }
void TToolBar::SetTransparent(bool transparent) { Change(FTransparent, transparent); }
void TToolBar::SetWrapable(bool wrapable) { Change(FWrapable, wrapable); }

namespace {

int CheckedSize(const char* what, int size) {
  if (size >= 0) return size;
  throw EArgumentOutOfRangeException(
      Concat("The ", what, " of a tool bar's buttons can't be ", std::to_string(size)));
}

}  // namespace

void TToolBar::SetButtonHeight(int height) {
  Change(FButtonSize.cy, TSize{0, CheckedSize("height", height)}.cy);
}

void TToolBar::SetButtonWidth(int width) {
  Change(FButtonSize.cx, TSize{CheckedSize("width", width), 0}.cx);
}

void TToolBar::ChangeScale(int m, int d) {
  TCustomControl::ChangeScale(m, d);
  SetButtonWidth(ScaleMeasure(ButtonWidth(), m, d));
  SetButtonHeight(ScaleMeasure(ButtonHeight(), m, d));
}

// The keyboard.

std::vector<TToolButton*> TToolBar::Usable() const {
  std::vector<TToolButton*> usable;
  for (const TPlaced& each : FOrder) {
    auto* button = dynamic_cast<TToolButton*>(each.Control);
    const bool seen = button && !each.Hidden && button->Visible();
    if (seen && button->Enabled() && !button->IsSpace()) usable.push_back(button);
  }
  return usable;
}

void TToolBar::SetCurrent(TToolButton* button) {
  if (button == FCurrent) return;
  TToolButton* former = std::exchange(FCurrent, button);
  for (TToolButton* each : {former, button}) {
    if (each) each->Invalidate();
  }
  if (button && Focused()) button->AccessibleChanged(acFocus);
}

/// Goes on by so many buttons, round the end.
void TToolBar::MoveCurrent(int by) {
  const auto usable = Usable();
  const auto count = static_cast<int>(usable.size());
  if (count == 0) return SetCurrent(nullptr);
  const auto place = std::ranges::find(usable, FCurrent);
  const int from =
      place == usable.end() ? (by > 0 ? -1 : count) : static_cast<int>(place - usable.begin());
  SetCurrent(usable[static_cast<std::size_t>((from + by + count) % count)]);
}

void TToolBar::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  TCustomControl::KeyDown(key, shift);
  if (watch.Gone()) return;
  const auto usable = Usable();
  const bool current = std::ranges::find(usable, FCurrent) != usable.end();
  const auto pressed = std::exchange(key, std::uint16_t{0});
  switch (pressed) {
    case VK_LEFT:
    case VK_UP: return MoveCurrent(-1);
    case VK_DOWN:
      if (current && FCurrent->Style() == tbsDropDown && FCurrent->DropDown()) return;
      [[fallthrough]];
    case VK_RIGHT: return MoveCurrent(1);
    case VK_HOME: return SetCurrent(usable.empty() ? nullptr : usable.front());
    case VK_END: return SetCurrent(usable.empty() ? nullptr : usable.back());
    case VK_SPACE:
    case VK_RETURN: return current ? FCurrent->Push() : void();
    default: key = pressed; return;
  }
}

void TToolBar::Dispatch(TMessage& message) {
  if (message.Msg == CM_CONTROLLISTCHANGE) {
    ControlsChanged(reinterpret_cast<TControl*>(message.LParam), message.WParam != 0);
  }
  const TWatch watch(this);
  TCustomControl::Dispatch(message);
  if (watch.Gone()) return;
  switch (message.Msg) {
    case CM_WANTSPECIALKEY: {
      constexpr WPARAM own[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_RETURN};
      if (std::ranges::count(own, message.WParam) > 0) message.Result = 1;
      return;
    }
    case WM_SETFOCUS:
      if (!FCurrent) MoveCurrent(1);
      [[fallthrough]];
    case WM_KILLFOCUS: return Invalidate();
    case CM_FONTCHANGED: return PicturesChanged(nullptr);
    default: return;
  }
}

// What does not fit.

void TToolBar::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TCustomControl::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != mbLeft || !HiddenButton().Contains({x, y})) return;
  SetMouseCapture(false);
  PopupHidden();
}

namespace {

/// A menu's line for the button, which is pressed when the line is chosen.
TMenuItem* LineFor(TToolButton& button, TPopupMenu& menu) {
  auto* line = new TMenuItem(&menu);
  const bool space = button.Style() == tbsSeparator || button.Style() == tbsDivider;
  const std::string caption =
      button.Caption().empty() ? GetShortHint(button.Hint()) : button.Caption();
  line->SetCaption(space ? "-" : caption);
  line->SetEnabled(button.Enabled());
  line->SetChecked(button.Down());
  line->SetImageIndex(button.ImageIndex());
  menu.Items()->Add(line);
  return line;
}

}  // namespace

void TToolBar::PopupHidden() {
  TPopupMenu menu(nullptr);
  menu.SetImages(Images());
  TToolButton* chosen = nullptr;
  for (TControl* each : HiddenControls()) {
    auto* button = dynamic_cast<TToolButton*>(each);
    if (!button) continue;
    LineFor(*button, menu)->OnClick = [&chosen, button](TObject*) { chosen = button; };
  }
  if (menu.Items()->Count() == 0) return;
  const TRect at = HiddenButton();
  const TPoint below = ClientToScreen({at.Left, at.Bottom});
  const TWatch watch(this);
  menu.Popup(below.X, below.Y);
  const auto still = watch.Gone() ? std::vector<TControl*>() : HiddenControls();
  if (std::ranges::find(still, chosen) != still.end()) chosen->Push();
}

// Look.

void TToolBar::Paint() {
  const TRect at = HiddenButton();
  if (at.Empty()) return;
  Canvas()->Pen()->SetColor(clBtnText);
  const int step = ScaledPixels(2);
  const int middle = (at.Top + at.Bottom) / 2;
  for (const int x : {at.Left + 2 * step, at.Left + 4 * step}) {
    const TPoint arrow[] = {{x, middle - step}, {x + step, middle}, {x - 1, middle + step + 1}};
    Canvas()->Polyline(arrow);
  }
}

void TToolBar::WMEraseBkgnd(TMessage& message) {
  if (!FTransparent || !Parent()) return TCustomControl::WMEraseBkgnd(message);
  message.Result = 1;
  const HDC dc = reinterpret_cast<HDC>(message.WParam);
  const TSavedDC saved(dc);
  const TPoint shift = ClientOrigin() - Parent()->ClientOrigin();
  POINT origin;
  ::GetViewportOrgEx(dc, &origin);
  const TRect client = ClientRect();
  ::IntersectClipRect(dc, 0, 0, client.Width(), client.Height());
  ::SetViewportOrgEx(dc, origin.x - shift.X, origin.y - shift.Y, nullptr);
  const auto context = reinterpret_cast<WPARAM>(dc);
  Parent()->Perform(WM_ERASEBKGND, context, static_cast<LPARAM>(context));
  // What stands on the parent without a window, and what it paints itself. The system's painting of
  // a plain one would take what it has left to paint for done.
  const bool paints = dynamic_cast<TCustomControl*>(Parent()) ||
                      dynamic_cast<TCustomForm*>(Parent()) || dynamic_cast<TCoolBar*>(Parent());
  if (paints) Parent()->Perform(WM_PAINT, context);
}

// Screen readers.

void TToolBar::DescribeAccessible(TAccessibleInfo& info) const {
  TCustomControl::DescribeAccessible(info);
  info.Role = arToolBar;
}

std::vector<TAccessiblePart> TToolBar::AccessibleParts() {
  if (HiddenButton().Empty()) return {};
  TAccessiblePart more;
  more.Role = arPushButton;
  more.Name = "More buttons";
  more.DefaultAction = "Open";
  more.Bounds = HiddenButton();
  return {more};
}

void TToolBar::DoAccessiblePart(const TAccessiblePath& /*part*/) { PopupHidden(); }

}  // namespace vcl
