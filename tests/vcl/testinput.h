// Real input for tests of windows: the mouse and the keyboard of the screen that the test runs on,
// and waiting for what they do without guessing how long it takes.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

namespace testinput {

inline constexpr int Patience = 5000;  // Milliseconds.

/// Handles messages until the condition holds; false when it does not within the time.
inline bool PumpUntil(const std::function<bool()>& condition, int milliseconds = Patience) {
  const ULONGLONG end = ::GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
  for (;;) {
    vcl::Application()->ProcessMessages();
    if (condition()) return true;
    if (::GetTickCount64() >= end) return false;
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
}

/// Handles messages for a time, for what must not happen.
inline void PumpFor(int milliseconds) {
  PumpUntil([] { return false; }, milliseconds);
}

/// Handles what waits, and what input sent before may bring within a moment. What a test expects of
/// the input it awaits with PumpUntil.
inline void Pump() { PumpFor(20); }

/// The middle of the control on the screen.
inline vcl::TPoint MiddleOf(const vcl::TControl* control) {
  return control->ClientToScreen({control->Width() / 2, control->Height() / 2});
}

inline void MoveMouse(vcl::TPoint screen) {
  ::SetCursorPos(screen.X, screen.Y);
  Pump();
}

inline void SendMouse(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  ::SendInput(1, &input, sizeof input);
  Pump();
}
inline void LeftDown() { SendMouse(MOUSEEVENTF_LEFTDOWN); }
inline void LeftUp() { SendMouse(MOUSEEVENTF_LEFTUP); }
inline void RightDown() { SendMouse(MOUSEEVENTF_RIGHTDOWN); }
inline void RightUp() { SendMouse(MOUSEEVENTF_RIGHTUP); }

inline void Click(vcl::TPoint screen) {
  MoveMouse(screen);
  LeftDown();
  LeftUp();
}
inline void Click(const vcl::TControl* control) { Click(MiddleOf(control)); }

inline void SendKey(WORD key, bool down) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = down ? 0 : static_cast<DWORD>(KEYEVENTF_KEYUP);
  ::SendInput(1, &input, sizeof input);
}

/// Presses and releases the key with the others (VK_CONTROL, ...) held down.
inline void TypeKey(WORD key, std::initializer_list<WORD> held = {}) {
  for (WORD each : held) SendKey(each, true);
  SendKey(key, true);
  SendKey(key, false);
  for (WORD each : held) SendKey(each, false);
  Pump();
}

/// Presses keys as soon as the condition holds, from a thread of its own; Escape when it does not
/// in time.
class TKeysWhen {
 public:
  TKeysWhen(std::function<bool()> condition, std::vector<WORD> keys)
      : FThread([condition = std::move(condition), keys = std::move(keys)] {
          const ULONGLONG end = ::GetTickCount64() + Patience;
          bool holds = false;
          while (!(holds = condition()) && ::GetTickCount64() < end) ::Sleep(10);
          ::Sleep(50);
          for (const WORD key : holds ? keys : std::vector<WORD>{VK_ESCAPE}) {
            SendKey(key, true);
            SendKey(key, false);
          }
        }) {}
  ~TKeysWhen() { FThread.join(); }
  TKeysWhen(const TKeysWhen&) = delete;
  TKeysWhen& operator=(const TKeysWhen&) = delete;

 private:
  std::thread FThread;
};

/// Answers the next system boxes (#32770) of this process, one after another, from a thread of its
/// own, by the number of a button, and keeps what they said. `ready` holds the first answer back.
class TBoxAnswer {
 public:
  explicit TBoxAnswer(int button, std::size_t boxes = 1, std::function<bool()> ready = nullptr)
      : FReady(std::move(ready)), FThread([this, button, boxes] {
          while (FTexts.size() < boxes && Answer(button)) {
          }
        }) {}
  ~TBoxAnswer() { Wait(); }
  TBoxAnswer(const TBoxAnswer&) = delete;
  TBoxAnswer& operator=(const TBoxAnswer&) = delete;

  /// Waits for the answers; true when there was a box.
  bool Wait() {
    if (FThread.joinable()) FThread.join();
    return !FTexts.empty();
  }
  const std::string& Caption() const { return FCaption; }
  std::string Text() const { return FTexts.empty() ? std::string() : FTexts.front(); }
  const std::vector<std::string>& Texts() const { return FTexts; }

 private:
  static std::string TextOf(HWND window) {
    char text[1024] = "";
    ::GetWindowTextA(window, text, sizeof text);
    return text;
  }

  static BOOL CALLBACK TakeOwn(HWND window, LPARAM found) {
    DWORD process = 0;
    char name[16] = "";
    ::GetWindowThreadProcessId(window, &process);
    ::GetClassNameA(window, name, sizeof name);
    if (process != ::GetCurrentProcessId() || std::string(name) != "#32770") return TRUE;
    if (!::IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
  }

  template <class Condition>
  static bool Await(Condition condition) {
    const ULONGLONG end = ::GetTickCount64() + Patience;
    while (!condition()) {
      if (::GetTickCount64() >= end) return false;
      ::Sleep(5);
    }
    return true;
  }

  bool Answer(int button) {
    HWND box = nullptr;
    const bool up = Await([&] {
      ::EnumWindows(&TakeOwn, reinterpret_cast<LPARAM>(&box));
      return box != nullptr;
    });
    if (!up) return false;
    constexpr int textControl = 0xFFFF;  // The number of a message box's text.
    FCaption = TextOf(box);
    FTexts.push_back(TextOf(::GetDlgItem(box, textControl)));
    if (FReady && FTexts.size() == 1) Await(FReady);
    ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
    return Await([box] { return !::IsWindow(box); });
  }

  std::string FCaption;
  std::vector<std::string> FTexts;
  std::function<bool()> FReady;
  std::thread FThread;
};

}  // namespace testinput
