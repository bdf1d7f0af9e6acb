// TToolButton: its settings, what a press does, and its group.
#include "vcl/stdctrls/toolbutton.h"

#include <algorithm>

#include "vcl/actions/actionlink.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/forms/hints.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/stdctrls/toolbar.h"

namespace vcl {

const TClass& TToolButton::Class() {
  using T = TToolButton;
  static const TClass info = Describe<T, TGraphicControl>(
      "vcl::TToolButton", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Action"),
          Property<&T::AllowAllUp, &T::SetAllowAllUp>("AllowAllUp").Default(false),
          Property<&T::AutoSize, &T::SetAutoSize>("AutoSize").Default(false),
          Inherit("Caption"),
          // A separator's width is its own, any other button's its bar's: the style comes first.
          Property<&T::Style, &T::SetStyle>("Style").Default(tbsButton),
          Property<&T::Grouped, &T::SetGrouped>("Grouped").Default(false),
          Property<&T::Down, &T::SetDown>("Down").Default(false).StoredIf<&T::IsDownStored>(),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Property<&T::DropdownMenu, &T::SetDropdownMenu>("DropdownMenu"),
          Inherit("Enabled"),
          Property<&T::ImageIndex, &T::SetImageIndex>("ImageIndex")
              .Default(-1)
              .StoredIf<&T::IsImageIndexStored>(),
          Property<&T::Indeterminate, &T::SetIndeterminate>("Indeterminate").Default(false),
          Property<&T::Marked, &T::SetMarked>("Marked").Default(false),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("Visible"),
          Property<&T::Wrap, &T::SetWrap>("Wrap").Default(false),
          Inherit("OnClick"),
          Inherit(DragEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TToolButton::TToolButton(TComponent* owner) : TPressable(owner) {
  // It clicks by itself, when it comes up again; a quick second press is one like any other.
  SetControlStyle({csCaptureMouse, csSetCaption});
  SetBounds(0, 0, 23, 22);
  HearOnlyAsked<TToolButton>();
}

TToolButton::~TToolButton() { AnnounceEnd(); }

TToolBar* TToolButton::ToolBar() const { return dynamic_cast<TToolBar*>(Parent()); }

int TToolButton::Index() const { return ToolBar() ? ToolBar()->ControlIndex(this) : -1; }

// Settings.

/// What the button shows is another, and it may need another size.
template <class T>
void TToolButton::Change(T& field, T value) {
  if (value == field) return;
  field = value;
  Invalidate();
  if (TToolBar* bar = ToolBar()) bar->Realign();
}

void TToolButton::SetAutoSize(bool autoSize) { Change(FAutoSize, autoSize); }
void TToolButton::SetImageIndex(int index) { Change(FImageIndex, std::max(index, -1)); }
void TToolButton::SetMarked(bool marked) { Change(FMarked, marked); }
void TToolButton::SetWrap(bool wrap) { Change(FWrap, wrap); }

void TToolButton::SetStyle(TToolButtonStyle style) {
  if (style == FStyle) return;
  constexpr int spaceWidth = 8;
  const bool wasSpace = IsSpace();
  Change(FStyle, style);
  if (IsSpace() && !wasSpace && !Loading()) SetWidth(ScaledPixels(spaceWidth));
}

void TToolButton::SetDropdownMenu(TPopupMenu* menu) {
  FDropdownMenu = menu;
  if (menu) menu->FreeNotification(this);
  Invalidate();
}

void TToolButton::Notification(TComponent* component, TOperation operation) {
  TPressable::Notification(component, operation);
  if (operation == opRemove && component == FDropdownMenu) FDropdownMenu = nullptr;
}

void TToolButton::SetDown(bool down) {
  if (down) FIndeterminate = false;
  if (down == FDown) return;
  FDown = down;
  AccessibleChanged(acState);
  Invalidate();
  if (!down || !InGroup() || !ToolBar()) return;
  for (TToolButton* each : ToolBar()->GroupOf(*this)) {
    if (each != this) each->SetDown(false);
  }
}

void TToolButton::SetIndeterminate(bool indeterminate) {
  if (indeterminate == FIndeterminate) return;
  if (indeterminate) SetDown(false);
  FIndeterminate = indeterminate;
  AccessibleChanged(acState);
  Invalidate();
}

// The action.

void TToolButton::FollowAction(const TActionChange& change) {
  using T = TToolButton;
  using V = TActionValues;
  TPressable::FollowAction(change);
  change.Pass(*this, &V::Checked, &T::Down, &T::SetDown);
  change.Pass(*this, &V::ImageIndex, &T::ImageIndex, &T::SetImageIndex);
}

bool TToolButton::IsDownStored() const {
  return !ActionValues() || FDown != ActionValues()->Checked;
}

bool TToolButton::IsImageIndexStored() const {
  return !ActionValues() || FImageIndex != ActionValues()->ImageIndex;
}

// Input.

/// True when there is nothing for a click to do but to drop the menu down.
bool TToolButton::OnlyDrops() const { return FStyle == tbsDropDown && !OnClick && !Action(); }

bool TToolButton::TakesPress(TPoint position) const {
  return !IsSpace() && !OnlyDrops() && !ArrowPart().Contains(position);
}

void TToolButton::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TPressable::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != mbLeft || FStyle != tbsDropDown || TakesPress({x, y})) return;
  // The menu takes the mouse.
  SetMouseCapture(false);
  DropDown();
}

bool TToolButton::DropDown() {
  if (!FDropdownMenu || !Enabled() || !Parent() || FMenuUp) return false;
  const TWatch watch(this);
  const TAtEnd after([this] { Repaint(); }, this);
  const TSetFor up(FMenuUp, true, this);
  Repaint();
  const TPoint below = ClientToScreen({0, Height()});
  FDropdownMenu->SetPopupComponent(this);
  FDropdownMenu->Popup(below.X, below.Y);
  return true;
}

void TToolButton::Push() {
  if (IsSpace() || !Enabled()) return;
  if (OnlyDrops()) {
    DropDown();
    return;
  }
  const TWatch watch(this);
  // The last one of a group that is down stays so, unless all may be up.
  if (FStyle == tbsCheck && (!FDown || !InGroup() || FAllowAllUp)) SetDown(!FDown);
  if (!watch.Gone()) Click();
}

void TToolButton::Click() { TPressable::Click(); }

void TToolButton::Dispatch(TMessage& message) {
  if (ShowsCaption() && IsAccelerated(message)) {
    message.Result = 1;
    return Push();
  }
  const TWatch watch(this);
  TPressable::Dispatch(message);
  if (watch.Gone() || message.Msg != CM_TEXTCHANGED) return;
  if (TToolBar* bar = ToolBar()) bar->Realign();
}

// Screen readers.

void TToolButton::DescribeAccessible(TAccessibleInfo& info) const {
  TPressable::DescribeAccessible(info);
  if (IsSpace()) {
    info.Role = arSeparator;
    info.Name.clear();
    return;
  }
  const bool stays = FStyle == tbsCheck;
  info.Role = !stays ? arPushButton : FGrouped ? arRadioButton : arCheckBox;
  info.DefaultAction = "Press";
  if (info.Name.empty()) info.Name = GetShortHint(Hint());
  if (!ShowsCaption()) info.KeyboardShortcut.clear();
  if (FDown) info.State.Include(stays ? asChecked : asPressed);
  if (Pressed() || FMenuUp) info.State.Include(asPressed);
  if (FIndeterminate) info.State.Include(asMixed);
  if (IsCurrent()) info.State += TAccessibleState{asFocusable, asFocused};
  if (!ToolBar()) return;
  const auto hidden = ToolBar()->HiddenControls();
  if (std::ranges::find(hidden, this) != hidden.end()) info.State.Include(asOffscreen);
}

}  // namespace vcl
