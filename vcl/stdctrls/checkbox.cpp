// TCustomCheckBox and TRadioButton: their states, and the group that a radio button belongs to.
#include "vcl/stdctrls/checkbox.h"

#include "vcl/actions/actionlink.h"
#include "vcl/controls/private/narrowed.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

DWORD TextSide(TAlignment alignment) { return alignment == taLeftJustify ? BS_LEFTTEXT : 0; }

}  // namespace

const TClass& TCustomCheckBox::Class() {
  using T = TCustomCheckBox;
  static const TClass info = Describe<T, TButtonControl>(
      "vcl::TCustomCheckBox", "vcl/stdctrls/stdctrls.h",
      {
          LeftOrRight(Property<&T::Alignment, &T::SetAlignment>("Alignment"))
              .Default(taRightJustify)
              .Unpublished(),
          Property<&T::AllowGrayed, &T::SetAllowGrayed>("AllowGrayed").Default(false).Unpublished(),
          Property<&T::Checked, &T::SetChecked>("Checked")
              .Default(false)
              .StoredIf<&T::IsCheckedStored>()
              .Unpublished(),
          Property<&T::State, &T::SetState>("State")
              .Default(cbUnchecked)
              .StoredIf<&T::IsStateStored>()
              .Unpublished(),
          Inherit("TabStop").Default(true),
      });
  return info;
}

const TClass& TCheckBox::Class() {
  static const TClass info = Describe<TCheckBox, TCustomCheckBox>(
      "vcl::TCheckBox", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("Action"),         Inherit("Alignment"),   Inherit("AllowGrayed"),
          Inherit("Caption"),        Inherit("Checked"),     Inherit("Color"),
          Inherit("DragCursor"),     Inherit("DragMode"),    Inherit("Enabled"),
          Inherit("Font"),           Inherit("ParentColor"), Inherit("ParentFont"),
          Inherit("ParentShowHint"), Inherit("PopupMenu"),   Inherit("ShowHint"),
          Inherit("State"),          Inherit("TabOrder"),    Inherit("TabStop"),
          Inherit("Visible"),        Inherit("OnClick"),     Inherit(DragEvents),
          Inherit(FocusEvents),      Inherit(KeyEvents),     Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TCustomCheckBox::TCustomCheckBox(TComponent* owner) : TButtonControl(owner) {
  SetBounds(0, 0, 97, 17);
  SetTabStop(true);
}

void TCustomCheckBox::SetAlignment(TAlignment alignment) {
  CheckLeftOrRight(alignment);
  if (alignment == FAlignment) return;
  FAlignment = alignment;
  RecreateWnd();
}

void TCustomCheckBox::SetState(TCheckBoxState state) {
  if (state == FState) return;
  FState = state;
  SendIfAllocated(*this, BM_SETCHECK, state);
  AccessibleChanged(acState);
  if (!Loading() && !FFollowing) Click();
}

void TCustomCheckBox::FollowAction(const TActionChange& change) {
  using T = TCustomCheckBox;
  TButtonControl::FollowAction(change);
  change.Pass(*this, &TActionValues::Checked, &T::Checked, &T::ShowChecked);
}

void TCustomCheckBox::ShowChecked(bool checked) {
  const TSetFor following(FFollowing, true, this);
  if (checked != Checked()) SetChecked(checked);
}

bool TCustomCheckBox::IsCheckedStored() const {
  return !ActionValues() || Checked() != ActionValues()->Checked;
}

void TCustomCheckBox::Toggle() {
  const TCheckBoxState afterUnchecked = FAllowGrayed ? cbGrayed : cbChecked;
  const TCheckBoxState next[] = {afterUnchecked, cbUnchecked, cbChecked};
  SetState(next[FState]);
}

void TCustomCheckBox::CreateParams(TCreateParams& params) {
  TButtonControl::CreateParams(params);
  params.Style |= BS_3STATE | TextSide(FAlignment);
}

void TCustomCheckBox::CreateWnd() {
  TButtonControl::CreateWnd();
  Send(*this, BM_SETCHECK, FState);
}

void TCustomCheckBox::AccelPressed() {
  TWatch watch(this);
  SetFocus();
  if (!watch.Gone() && Focused()) Toggle();
}

const TClass& TRadioButton::Class() {
  using T = TRadioButton;
  static const TClass info = Describe<T, TButtonControl>(
      "vcl::TRadioButton", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("Action"),
          LeftOrRight(Property<&T::Alignment, &T::SetAlignment>("Alignment"))
              .Default(taRightJustify),
          Inherit("Caption"),
          Property<&T::Checked, &T::SetChecked>("Checked")
              .Default(false)
              .StoredIf<&T::IsCheckedStored>(),
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
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TRadioButton::TRadioButton(TComponent* owner) : TButtonControl(owner) {
  SetBounds(0, 0, 113, 17);
  HearOnlyAsked<TRadioButton>();
}

void TRadioButton::SetAlignment(TAlignment alignment) {
  CheckLeftOrRight(alignment);
  if (alignment == FAlignment) return;
  FAlignment = alignment;
  RecreateWnd();
}

void TRadioButton::SetChecked(bool checked) {
  if (checked == FChecked) return;
  FChecked = checked;
  SetTabStop(checked);  // Tab goes to the checked one of a group.
  SendIfAllocated(*this, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
  AccessibleChanged(acState);
  if (!checked) return;
  UncheckSiblings();
  if (!Loading() && !FFollowing) Click();
}

void TRadioButton::FollowAction(const TActionChange& change) {
  using T = TRadioButton;
  TButtonControl::FollowAction(change);
  change.Pass(*this, &TActionValues::Checked, &T::Checked, &T::ShowChecked);
}

void TRadioButton::ShowChecked(bool checked) {
  const TSetFor following(FFollowing, true, this);
  SetChecked(checked);
}

bool TRadioButton::IsCheckedStored() const {
  return !ActionValues() || FChecked != ActionValues()->Checked;
}

void TRadioButton::UncheckSiblings() {
  for (int i = 0; Parent() && i < Parent()->ControlCount(); ++i) {
    auto* other = dynamic_cast<TRadioButton*>(Parent()->Controls(i));
    if (other && other != this) other->SetChecked(false);
  }
}

void TRadioButton::CreateParams(TCreateParams& params) {
  TButtonControl::CreateParams(params);
  params.Style |= BS_RADIOBUTTON | TextSide(FAlignment);
}

void TRadioButton::CreateWnd() {
  TButtonControl::CreateWnd();
  Send(*this, BM_SETCHECK, FChecked ? BST_CHECKED : BST_UNCHECKED);
}

void TRadioButton::AccelPressed() {
  TWatch watch(this);
  SetFocus();
  if (!watch.Gone() && Focused()) SetChecked(true);
}

void TRadioButton::Dispatch(TMessage& message) {
  TWatch watch(this);
  TButtonControl::Dispatch(message);
  // The keyboard checks what it goes to. Windows' own radio buttons ask for that, Wine's do not.
  const bool byKeyboard =
      message.Msg == WM_SETFOCUS && !watch.Gone() && !ControlState().Has(csLButtonDown);
  if (byKeyboard) SetChecked(true);
}

void TCustomCheckBox::DescribeAccessible(TAccessibleInfo& info) const {
  static constexpr TAccessibleState states[] = {{}, {asChecked}, {asMixed}};
  TButtonControl::DescribeAccessible(info);
  info.Role = arCheckBox;
  info.State += states[FState];
  info.DefaultAction = Checked() ? "Uncheck" : "Check";
}

void TRadioButton::DescribeAccessible(TAccessibleInfo& info) const {
  TButtonControl::DescribeAccessible(info);
  info.Role = arRadioButton;
  // The arrow keys come to those that Tab passes by.
  if (CanFocus()) info.State.Include(asFocusable);
  if (FChecked) info.State.Include(asChecked);
  info.DefaultAction = "Check";
}

}  // namespace vcl
