// TWindowHook: who hears whose window, and a message's way through them.
#include "vcl/controls/windowhook.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

using THooks = std::vector<TWindowHook*>;

/// All hooks that hear something, by the order in which they came. There are few.
THooks& Hooks() {
  static THooks hooks;
  return hooks;
}

bool MakesOrEndsWindow(UINT message) {
  return message == WM_NCCREATE || message == WM_CREATE || message == WM_DESTROY ||
         message == WM_NCDESTROY;
}

}  // namespace

TWindowHook::TWindowHook(TBefore before, TAfter after)
    : FBefore(before ? std::move(before) : [](TMessage&, bool&) {}),
      FAfter(after ? std::move(after) : [](TMessage&) {}) {}

TWindowHook::~TWindowHook() { SetControl(nullptr); }

void TWindowHook::SetControl(TWinControl* control) {
  if (control == Control()) return;
  std::erase(Hooks(), this);
  FControl = control;
  FWatch = TWatch(control);
  if (control) Hooks().push_back(this);
}

// What is called may end any hook, and the control.
void TWindowHook::Handle(TWinControl& control, TMessage& message,
                         const std::function<void()>& own) {
  if (Hooks().empty()) return own();
  std::vector<std::pair<TWindowHook*, TWatch>> hooks;
  for (TWindowHook* each : Hooks()) {
    if (each->Hears(control)) hooks.emplace_back(each, TWatch(each));
  }
  const TWatch watch(&control);
  for (std::size_t i = hooks.size(); i-- > 0;) {
    const auto& [hook, hookWatch] = hooks[i];
    if (hookWatch.Gone() || !hook->Hears(control)) continue;
    bool handled = false;
    const TBefore call = hook->FBefore;
    call(message, handled);
    if (watch.Gone() || (handled && !MakesOrEndsWindow(message.Msg))) return;
  }
  own();
  for (const auto& [hook, hookWatch] : hooks) {
    if (watch.Gone()) return;
    if (hookWatch.Gone() || !hook->Hears(control)) continue;
    const TAfter call = hook->FAfter;
    call(message);
  }
}

}  // namespace vcl
