// TSystemHelp: the keys of the system's dialogs, which this thread's message filter sees.
#include "qel/dialogs/private/systemhelp.h"

#include "vcl/forms/application.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

/// Of the dialog that is up.
thread_local TSystemHelp* Current = nullptr;

}  // namespace

TSystemHelp::TSystemHelp(TQELHelpDialog& dialog)
    : FDialog(dialog),
      FWatch(&dialog),
      FOuter(Current),
      FHook(::SetWindowsHookExW(WH_MSGFILTER, &Filter, nullptr, ::GetCurrentThreadId())) {
  Current = this;
}

TSystemHelp::~TSystemHelp() {
  if (FHook) ::UnhookWindowsHookEx(static_cast<HHOOK>(FHook));
  Current = FOuter;
}

/// What the handler raises doesn't go through the system.
bool TSystemHelp::Asked() {
  if (FWatch.Gone() || FDialog.HelpContext() == 0) return false;
  try {
    FDialog.OnHelp(&FDialog, FDialog.HelpContext());
  } catch (...) {
    vcl::Application()->HandleCurrentException(FWatch.Gone() ? nullptr : &FDialog);
  }
  return true;
}

LRESULT TSystemHelp::Filter(int code, WPARAM wParam, LPARAM lParam) {
  const auto& message = *reinterpret_cast<const MSG*>(lParam);
  const bool key = message.message == WM_KEYDOWN && message.wParam == VK_F1;
  if (code == MSGF_DIALOGBOX && key && Current && Current->Asked()) return TRUE;
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace qel
