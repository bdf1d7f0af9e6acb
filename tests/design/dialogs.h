// Answering the forms that the package shows, as the user does.
#pragma once

#include <functional>
#include <string>

#include "vcl/controls/windowtext.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

namespace dialogs {

/// Does something with the form of the caption when it comes up, and closes it, if it is still
/// there.
class TOnForm {
 public:
  TOnForm(const wchar_t* caption, const std::function<void(HWND)>& act) {
    FTimer.SetInterval(20);
    FTimer.OnTimer = [this, caption, act](vcl::TObject*) {
      const HWND form = ::FindWindowW(nullptr, caption);
      if (!form) return;
      FTimer.SetEnabled(false);
      act(form);
      ::PostMessageW(form, WM_CLOSE, 0, 0);
    };
  }

 private:
  vcl::TTimer FTimer{nullptr};
};

/// The control inside that is the `number`th, from 0, of the class in the order of the form file.
template <class T>
T& Child(HWND form, int number = 0) {
  auto& owner = dynamic_cast<vcl::TForm&>(*vcl::TWinControl::FromHandle(form));
  for (int i = 0; i < owner.ComponentCount(); ++i) {
    auto* each = dynamic_cast<T*>(owner.Components(i));
    if (each && number-- == 0) return *each;
  }
  throw std::runtime_error("The form has no such control");
}

inline void Press(HWND form, const char* caption) {
  for (int i = 0;; ++i) {
    auto& button = Child<vcl::TButtonControl>(form, i);
    if (vcl::WindowText(button.Handle()) != caption) continue;
    ::SendMessageW(button.Handle(), BM_CLICK, 0, 0);
    return;
  }
}

/// Chooses a line of the form's list, by the keyboard.
inline void Choose(HWND form, int line) {
  const HWND list = Child<vcl::TListBox>(form).Handle();
  ::SendMessageW(list, WM_KEYDOWN, VK_HOME, 0);
  while (line-- > 0) ::SendMessageW(list, WM_KEYDOWN, VK_DOWN, 0);
}

/// The item of the menu, or of one inside it; null when there is none.
inline vcl::TMenuItem* ItemOf(const vcl::TMenuItem& menu, const std::string& caption) {
  for (int i = 0; i < menu.Count(); ++i) {
    vcl::TMenuItem& item = *menu.Items(i);
    if (item.Caption() == caption) return &item;
    if (vcl::TMenuItem* inside = ItemOf(item, caption)) return inside;
  }
  return nullptr;
}

}  // namespace dialogs
