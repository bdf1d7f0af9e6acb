// The list of the system's dialogs that are up, and their keys.
#include "vcl/forms/private/modelessdialogs.h"

#include <algorithm>
#include <vector>

#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

std::vector<HWND>& Dialogs() {
  static std::vector<HWND> dialogs;
  return dialogs;
}

}  // namespace

void AddModelessDialog(HWND dialog) { Dialogs().push_back(dialog); }

void RemoveModelessDialog(HWND dialog) { std::erase(Dialogs(), dialog); }

bool ToModelessDialog(MSG& message) {
  const auto found = std::ranges::find_if(Dialogs(), [&message](HWND dialog) {
    return dialog == message.hwnd || ::IsChild(dialog, message.hwnd);
  });
  return found != Dialogs().end() && ::IsDialogMessageW(*found, &message);
}

}  // namespace vcl
