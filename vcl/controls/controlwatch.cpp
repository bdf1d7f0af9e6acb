// TControlWatch: who follows which control.
#include "vcl/controls/controlwatch.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vcl {
namespace {

/// All watches. There are few, so that a control that changes finds its own by looking.
std::vector<TControlWatch*>& Watches() {
  static std::vector<TControlWatch*> watches;
  return watches;
}

}  // namespace

TControlWatch::TControlWatch(std::function<void()> changed) : FChanged(std::move(changed)) {
  Watches().push_back(this);
}

TControlWatch::~TControlWatch() { std::erase(Watches(), this); }

void TControlWatch::Changed(const TControl* control) {
  if (Watches().empty()) return;
  // What is called may end any of them.
  const std::vector<TControlWatch*> all = Watches();
  for (const TControlWatch* each : all) {
    if (std::ranges::find(Watches(), each) == Watches().end() || each->FControl != control)
      continue;
    const auto call = each->FChanged;
    call();
  }
}

void TControlWatch::Forget(const TControl* control) {
  for (TControlWatch* each : Watches()) {
    if (each->FControl == control) each->FControl = nullptr;
  }
}

}  // namespace vcl
