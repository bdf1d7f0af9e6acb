// TQELRadiobutton: its group, and the keys that go through it.
#include <functional>
#include <vector>

#include "qel/controls/Qeltcheckbox.h"
#include "qel/controls/private/buttonproperties.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TWatch;

const vcl::TClass& TQELRadiobutton::Class() {
  using T = TQELRadiobutton;
  using namespace vcl;
  // GroupIndex stands before Checked, so that reading a form unchecks nobody of another group.
  static const TClass info = Describe<T, TQELCustomCheck>(
      "qel::TQELRadiobutton", "qel/controls/Qeltcheckbox.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Inherit("Alignment"),
          Inherit("Background"),
          Inherit("Caption"),
          Property<&T::GroupIndex, &T::SetGroupIndex>("GroupIndex").Default(0),
          Property<&T::Checked, &T::SetChecked>("Checked").Default(false),
          Inherit("Font3D"),
          Inherit("Frame"),
          Inherit("Glyph"),
          Inherit("WordWrap"),
          Inherit(ButtonProperties),
          Inherit("OnClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELRadiobutton::TQELRadiobutton(vcl::TComponent* owner) : TQELCustomCheck(owner) {
  HearOnlyAsked<TQELRadiobutton>();
}

TQELRadiobutton::~TQELRadiobutton() { AnnounceEnd(); }

unsigned TQELRadiobutton::BoxLook() const {
  return DFCS_BUTTONRADIO | (FChecked ? static_cast<unsigned>(DFCS_CHECKED) : 0u);
}

// The group.

bool TQELRadiobutton::InGroup(const vcl::TControl* control) const {
  const auto* other = dynamic_cast<const TQELRadiobutton*>(control);
  return other && other->FGroupIndex == FGroupIndex;
}

TQELRadiobutton* TQELRadiobutton::CheckedOther() const {
  for (int i = 0; Parent() && i < Parent()->ControlCount(); ++i) {
    vcl::TControl* each = Parent()->Controls(i);
    if (each == this || !InGroup(each)) continue;
    if (auto* other = static_cast<TQELRadiobutton*>(each); other->FChecked) return other;
  }
  return nullptr;
}

/// Unchecks the others, and takes Tab from them. False when this one has gone with it.
bool TQELRadiobutton::UncheckOthers() {
  const TWatch watch(this);
  for (int i = 0; !watch.Gone() && Parent() && i < Parent()->ControlCount(); ++i) {
    vcl::TControl* each = Parent()->Controls(i);
    if (each == this || !InGroup(each)) continue;
    auto* other = static_cast<TQELRadiobutton*>(each);
    other->SetTabStop(false);
    if (!other->FChecked) continue;
    other->FChecked = false;
    other->Invalidate();
    other->AccessibleChanged(vcl::acState);
  }
  return !watch.Gone();
}

/// Has the group that the button has come into keep one checked.
void TQELRadiobutton::Enter() {
  if (FChecked) {
    UncheckOthers();
  } else if (CheckedOther()) {
    SetTabStop(false);
  }
}

void TQELRadiobutton::SetChecked(bool checked) {
  if (checked == FChecked) return;
  FChecked = checked;
  if (!checked) {
    Invalidate();
    return AccessibleChanged(vcl::acState);
  }
  SetTabStop(true);
  if (UncheckOthers()) StateChanged();
}

void TQELRadiobutton::SetGroupIndex(int group) {
  if (group == FGroupIndex) return;
  FGroupIndex = group;
  Enter();
}

void TQELRadiobutton::SetParent(vcl::TWinControl* parent) {
  const TWatch watch(this);
  TQELCustomCheck::SetParent(parent);
  if (!watch.Gone() && parent && !Loading() && !Destroying()) Enter();
}

// Keys.

/// Goes to the next one of the group, in tab order and round its end, and checks it.
void TQELRadiobutton::Step(bool forward) {
  if (!Parent()) return;
  vcl::TWinControl* current = this;
  for (int i = 0; i < Parent()->ControlCount(); ++i) {
    current = Parent()->FindNextControl(current, forward, false, true);
    if (!current || current == this) return;
    if (!InGroup(current)) continue;
    auto* next = static_cast<TQELRadiobutton*>(current);
    const TWatch watch(next);
    next->SetFocus();
    if (!watch.Gone() && next->Focused()) next->SetChecked(true);
    return;
  }
}

void TQELRadiobutton::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  const TWatch watch(this);
  TQELCustomCheck::KeyDown(key, shift);
  if (watch.Gone() || !shift.Empty()) return;
  switch (key) {
    case VK_LEFT:
    case VK_UP: return Step(false);
    case VK_RIGHT:
    case VK_DOWN: return Step(true);
    default: return;
  }
}

void TQELRadiobutton::Dispatch(vcl::TMessage& message) {
  if (message.Msg == WM_GETDLGCODE) {
    message.Result = DLGC_WANTARROWS;
    return;
  }
  TQELCustomCheck::Dispatch(message);
}

void TQELRadiobutton::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomCheck::DescribeAccessible(info);
  info.Role = vcl::arRadioButton;
  // The arrow keys come to those that Tab passes by.
  if (CanFocus()) info.State.Include(vcl::asFocusable);
  if (FChecked) info.State.Include(vcl::asChecked);
  info.DefaultAction = "Check";
}

}  // namespace qel
