// TPaintHold: holding back and painting.
#include <utility>

#include "vcl/controls/private/painthold.h"

namespace vcl {

TPaintHold::TPaintHold(TWinControl& control)
    : FAround(std::exchange(Now, this)), FWatch(&control), FControl(control) {
  if (!control.HandleAllocated() || !::IsWindowVisible(control.Handle())) return;
  FWindow = control.Handle();
  ::SendMessageW(FWindow, WM_SETREDRAW, FALSE, 0);
}

TPaintHold::~TPaintHold() {
  Now = FAround;
  if (!Holds()) return;
  ::SendMessageW(FWindow, WM_SETREDRAW, TRUE, 0);
  if (!FControl.Showing()) {
    ::ShowWindow(FWindow, SW_HIDE);
    return;
  }
  ::RedrawWindow(FWindow, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

/// A handler may have freed the control, or made its window anew.
bool TPaintHold::Holds() const {
  return !FWatch.Gone() && FWindow && FControl.HandleAllocated() && FControl.Handle() == FWindow;
}

bool TPaintHold::Covers(const TControl& control) {
  if (!Now) return false;
  const TControl* topmost = &control;
  while (topmost->Parent()) topmost = topmost->Parent();
  for (const TPaintHold* each = Now; each; each = each->FAround) {
    if (&each->FControl == topmost && each->Holds()) return true;
  }
  return false;
}

}  // namespace vcl
