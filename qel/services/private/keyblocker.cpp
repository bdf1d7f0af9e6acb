// TKeyBlocker: a low-level hook of the keyboard, in a thread of its own.
#include "qel/services/private/keyblocker.h"

#include <array>
#include <atomic>
#include <memory>

#include "vcl/rtl/thread.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

constexpr std::size_t KeyCount = skAltF4 + 1;

/// How many want each of the keys blocked; the hook's thread reads it.
std::array<std::atomic<int>, KeyCount> wanted;
bool Wanted(TQELBlockedKey key) { return wanted[key] > 0; }

bool IsActive() {
  DWORD process = 0;
  ::GetWindowThreadProcessId(::GetForegroundWindow(), &process);
  return process == ::GetCurrentProcessId();
}

bool IsBlocked(const KBDLLHOOKSTRUCT& key) {
  const bool alt = (key.flags & LLKHF_ALTDOWN) || ::GetAsyncKeyState(VK_MENU) < 0;
  switch (key.vkCode) {
    case VK_TAB: return alt && Wanted(skAltTab);
    case VK_LWIN:
    case VK_RWIN: return Wanted(skWinKeys);
    case VK_F4: return alt && Wanted(skAltF4);
    case VK_ESCAPE:
      return (alt && Wanted(skAltEsc)) || (::GetAsyncKeyState(VK_CONTROL) < 0 && Wanted(skCtrlEsc));
    default: return false;
  }
}

LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam) {
  const auto& key = *reinterpret_cast<const KBDLLHOOKSTRUCT*>(lParam);
  const bool down = wParam == WM_KEYDOWN || wParam == WM_SYSKEYDOWN;
  // A key that goes up after it was kept from going down hurts nobody.
  if (code == HC_ACTION && down && IsBlocked(key) && IsActive()) return 1;
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

/// The system calls the hook in the thread that has set it, and waits for it: that must always be
/// at its messages.
class THookThread : public vcl::TThread {
 public:
  THookThread() : FReady(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    Start();
    ::WaitForSingleObject(FReady, INFINITE);
  }
  ~THookThread() override {
    ::PostThreadMessageW(FId, WM_QUIT, 0, 0);
    EndThread();
    ::CloseHandle(FReady);
  }

 protected:
  void Execute() override {
    MSG message;
    ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // Makes the thread's queue.
    FId = ::GetCurrentThreadId();
    const HHOOK hook = ::SetWindowsHookExW(WH_KEYBOARD_LL, &Hook, ::GetModuleHandleW(nullptr), 0);
    ::SetEvent(FReady);
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
    }
    if (hook) ::UnhookWindowsHookEx(hook);
  }

 private:
  HANDLE FReady;
  std::atomic<DWORD> FId = 0;
};

std::unique_ptr<THookThread> thread;
int blockers = 0;

}  // namespace

TKeyBlocker::TKeyBlocker(TQELBlockedKeys keys) : FKeys(keys) {
  for (std::size_t i = 0; i < KeyCount; ++i) {
    if (keys.Has(static_cast<TQELBlockedKey>(i))) ++wanted[i];
  }
  if (blockers++ == 0) thread = std::make_unique<THookThread>();
}

TKeyBlocker::~TKeyBlocker() {
  for (std::size_t i = 0; i < KeyCount; ++i) {
    if (FKeys.Has(static_cast<TQELBlockedKey>(i))) --wanted[i];
  }
  if (--blockers == 0) thread.reset();
}

}  // namespace qel
