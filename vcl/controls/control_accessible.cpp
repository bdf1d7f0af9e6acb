// What any control tells screen readers of itself, and telling them of changes.
#include <algorithm>

#include "vcl/controls/accelerators.h"
#include "vcl/controls/private/accessibleobject.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/hints.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// What does not publish a caption has its name as its text, which nobody sees.
bool ShowsCaption(const TControl& control) {
  return control.ClassType().FindPublished("Caption") != nullptr;
}

bool Holds(const TControl* control, bool (TControl::*condition)() const) {
  while (control && (control->*condition)()) control = control->Parent();
  return !control;
}

/// The control inside `parent` that names `control`; null for none.
const TControl* LabelIn(const TWinControl& parent, const TControl& control) {
  for (int i = 0; i < parent.ControlCount(); ++i) {
    const TControl* each = parent.Controls(i);
    if (each->Labelled() == &control) return each;
    const auto* inner = dynamic_cast<const TWinControl*>(each);
    const TControl* found = inner ? LabelIn(*inner, control) : nullptr;
    if (found) return found;
  }
  return nullptr;
}

}  // namespace

void TControl::SetAccessibleName(const std::string& name) {
  if (name == FAccessibleName) return;
  FAccessibleName = name;
  AccessibleChanged(acName);
}

void TControl::DescribeAccessible(TAccessibleInfo& info) const {
  info.Role = arClient;
  if (ShowsCaption(*this)) {
    const std::string caption = Text();
    info.Name = WithoutAccel(caption);
    info.KeyboardShortcut = AccelKeys(caption);
  }
  info.Description = GetShortHint(FHint);
  if (!Holds(this, &TControl::Enabled)) info.State.Include(asDisabled);
  if (!Holds(this, &TControl::Seen)) info.State.Include(asInvisible);
}

void TGraphicControl::DescribeAccessible(TAccessibleInfo& info) const {
  TControl::DescribeAccessible(info);
  info.Role = arGraphic;
}

void TWinControl::DescribeAccessible(TAccessibleInfo& info) const {
  TControl::DescribeAccessible(info);
  if (FTabStop && CanFocus()) info.State.Include(asFocusable);
  if (Focused()) info.State += TAccessibleState{asFocusable, asFocused};
}

TAccessibleInfo TControl::Accessible() const {
  TAccessibleInfo info;
  DescribeAccessible(info);
  const TCustomForm* form = ParentForm();
  if (const TControl* label = form ? LabelIn(*form, *this) : nullptr) {
    const TAccessibleInfo labelled = label->Accessible();
    if (info.Name.empty()) info.Name = labelled.Name;
    if (info.KeyboardShortcut.empty()) info.KeyboardShortcut = labelled.KeyboardShortcut;
  }
  if (!FAccessibleName.empty()) info.Name = FAccessibleName;
  if (info.State.Has(asProtected)) info.Value.clear();
  return info;
}

void TControl::AccessibleChanged(TAccessibleChange change, const TAccessiblePath& part) const {
  static constexpr DWORD events[] = {EVENT_OBJECT_NAMECHANGE, EVENT_OBJECT_STATECHANGE,
                                     EVENT_OBJECT_VALUECHANGE, EVENT_OBJECT_FOCUS,
                                     EVENT_OBJECT_SELECTION};
  if (Loading() || Destroying() || !::IsWinEventHookInstalled(events[change])) return;
  const auto* window = dynamic_cast<const TWinControl*>(this);
  const TWinControl* holder = window ? window : FParent;
  if (!holder || !holder->FHandle) return;
  // Children count from 1, the controls first; what lies deeper is told by what it lies in.
  LONG child = CHILDID_SELF;
  if (!window) {
    child =
        static_cast<LONG>(std::ranges::find(holder->FControls, this) - holder->FControls.begin()) +
        1;
  }
  if (window && !part.empty()) child = holder->ControlCount() + part.front() + 1;
  ::NotifyWinEvent(events[change], holder->FHandle, OBJID_CLIENT, child);
}

void TWinControl::WMGetObject(TMessage& message) {
  // What is being freed has nothing to tell any more.
  if (static_cast<LONG>(message.LParam) != OBJID_CLIENT || Destroying()) {
    return DefaultHandler(message);
  }
  message.Result = AnswerGetObject(*this, message.WParam);
}

}  // namespace vcl
