// Which actions are updated while the program idles.
#include <algorithm>
#include <utility>
#include <vector>

#include "vcl/actions/basicaction.h"
#include "vcl/actions/private/shownactions.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/screen.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

/// Each action once, with what tells that a handler of another one has freed it.
using TShown = std::vector<std::pair<TBasicAction*, TWatch>>;

void Collect(TBasicAction* action, TShown& shown) {
  const bool known = std::ranges::any_of(shown, [=](auto& each) { return each.first == action; });
  if (action && !known) shown.emplace_back(action, TWatch(action));
}

void CollectOf(const TWinControl& around, TShown& shown) {
  for (int i = 0; i < around.ControlCount(); ++i) {
    const TControl* control = around.Controls(i);
    if (!control->Visible()) continue;
    Collect(control->Action(), shown);
    if (const auto* inner = dynamic_cast<const TWinControl*>(control)) CollectOf(*inner, shown);
  }
}

bool InUse(TCustomForm& form) {
  return form.Showing() && !form.Designing() && form.HandleAllocated() &&
         ::IsWindowEnabled(form.Handle());
}

}  // namespace

void UpdateShownActions() {
  TShown shown;
  for (int i = 0; i < Screen()->FormCount(); ++i) {
    TCustomForm& form = *Screen()->Forms(i);
    if (!InUse(form)) continue;
    CollectOf(form, shown);
    const TMenuItem* bar = form.Menu() ? form.Menu()->Items() : nullptr;
    for (int each = 0; bar && each < bar->Count(); ++each) {
      Collect(bar->Items(each)->Action(), shown);
    }
  }
  for (const auto& [action, watch] : shown) {
    if (!watch.Gone()) action->Update();
  }
}

}  // namespace vcl
