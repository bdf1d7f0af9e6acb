// A form on the screen for tests of the standard controls.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <type_traits>

#include "tests/vcl/testinput.h"
#include "vcl/rtl/win32.h"

namespace vcl {

/// A control whose window a test makes anew.
template <class T>
class TRecreatable : public T {
 public:
  using T::RecreateWnd;
  using T::T;
};

class TStandardForm : public ::testing::Test {
 protected:
  TStandardForm() : Form(nullptr) {
    Form.SetBounds(40, 40, 500, 400);
    Form.SetBorderStyle(bsNone);
    Application()->OnException = [this](TObject*, const std::exception& error) {
      Errors += error.what();
    };
  }
  ~TStandardForm() override {
    Application()->OnException = nullptr;
    EXPECT_EQ(Errors, "");
  }

  template <class T>
  auto* Make(int left, int top, TWinControl* parent = nullptr) {
    constexpr bool window = std::is_base_of_v<TWinControl, T>;
    auto* control = new std::conditional_t<window, TRecreatable<T>, T>(&Form);
    control->SetParent(parent ? parent : &Form);
    control->SetLeft(left);
    control->SetTop(top);
    return control;
  }
  void ShowForm() {
    Form.Show();
    ::SetForegroundWindow(Form.Handle());
    testinput::Pump();
  }
  void Key(WORD key) { testinput::TypeKey(key); }
  void KeyWith(WORD modifier, WORD key) { testinput::TypeKey(key, {modifier}); }
  /// Types letters, digits and blanks.
  void Type(const std::string& text) {
    for (char c : text) {
      const SHORT key = ::VkKeyScanA(c);
      const auto code = static_cast<WORD>(LOBYTE(key));
      HIBYTE(key) & 1 ? testinput::TypeKey(code, {VK_SHIFT}) : testinput::TypeKey(code);
    }
  }
  /// The rectangle around the colour's pixels in the form's picture; empty without any.
  TRect Find(TColor color) {
    const auto shot = Form.GetFormImage();
    shot->SetPixelFormat(pf32bit);
    const COLORREF rgb = ColorToRGB(color);
    const auto wanted = static_cast<DWORD>(RGB(GetBValue(rgb), GetGValue(rgb), GetRValue(rgb)));
    TRect found(shot->Width(), shot->Height(), 0, 0);
    for (int y = 0; y < shot->Height(); ++y) {
      const auto* row = static_cast<const DWORD*>(std::as_const(*shot).ScanLine(y));
      for (int x = 0; x < shot->Width(); ++x) {
        if ((row[x] & 0xFFFFFF) != wanted) continue;
        found = {std::min(found.Left, x), std::min(found.Top, y), std::max(found.Right, x + 1),
                 std::max(found.Bottom, y + 1)};
      }
    }
    return found.Empty() ? TRect() : found;
  }
  void Click(TControl& control) { testinput::Click(&control); }
  void Click(TControl& control, int x, int y) { testinput::Click(control.ClientToScreen({x, y})); }

  TForm Form;
  std::string Errors;
};

}  // namespace vcl
