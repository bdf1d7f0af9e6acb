// TWindowWatch: who watches which control's window.
#include "vcl/controls/private/windowwatch.h"

#include <algorithm>

namespace vcl {

std::vector<TWindowWatch*>& TWindowWatch::All() {
  static std::vector<TWindowWatch*> all;
  return all;
}

void TWindowWatch::Watch(TWinControl* control) {
  if (FControl && !control) std::erase(All(), this);
  if (!FControl && control) All().push_back(this);
  FControl = control;
}

// One that is told may end itself or others.
template <class Tell>
void TWindowWatch::TellAll(const TWinControl& control, Tell tell) {
  if (All().empty()) return;
  const std::vector<TWindowWatch*> present = All();
  for (TWindowWatch* each : present) {
    if (std::ranges::find(All(), each) != All().end() && each->FControl == &control) tell(*each);
  }
}

void TWindowWatch::TellMade(TWinControl& control, HWND window) {
  TellAll(control, [window](TWindowWatch& each) { each.WindowMade(window); });
}

void TWindowWatch::TellEnding(TWinControl& control, HWND window) {
  TellAll(control, [window](TWindowWatch& each) { each.WindowEnding(window); });
}

}  // namespace vcl
