// TCommonDialog: running one of the system's dialogs, and hearing its window's messages.
#include "vcl/dialogs/commondialog.h"

#include <utility>

#include "vcl/forms/application.h"
#include "vcl/forms/private/taskwindows.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {

namespace {

constexpr const wchar_t* DialogProp = L"TCommonDialog";

/// The dialog that is being made; it takes the first window that the hook hears of.
thread_local TCommonDialog* Starting = nullptr;

TCommonDialog* DialogOf(HWND window) {
  if (Starting) ::SetPropW(window, DialogProp, std::exchange(Starting, nullptr));
  return static_cast<TCommonDialog*>(::GetPropW(window, DialogProp));
}

}  // namespace

const TClass& TCommonDialog::Class() {
  static const TClass info =
      Describe<TCommonDialog, TComponent>("vcl::TCommonDialog", "vcl/dialogs/dialogs.h",
                                          {
                                              Event<&TCommonDialog::OnClose>("OnClose"),
                                              Event<&TCommonDialog::OnShow>("OnShow"),
                                          });
  return info;
}

TCommonDialog::TCommonDialog(TComponent* owner) : TComponent(owner) {}

TCommonDialog::~TCommonDialog() {
  AnnounceEnd();
  if (Starting == this) Starting = nullptr;
  if (!FHandle) return;
  ::RemovePropW(FHandle, DialogProp);
  // The file dialog's hook has a window of its own inside the dialog.
  const bool inside = (::GetWindowLongPtrW(FHandle, GWL_STYLE) & WS_CHILD) != 0;
  ::PostMessageW(inside ? ::GetParent(FHandle) : FHandle, WM_COMMAND, IDCANCEL, 0);
}

bool TCommonDialog::Run(const std::function<BOOL(HWND)>& show) {
  if (FRunning) throw EInvalidOperation(Concat("The dialog ", Name(), " is up already"));
  const TWatch watch(this);
  BOOL agreed = FALSE;
  {
    const TSetFor running(FRunning, true, this);
    const TSetFor handle(FHandle, nullptr, this);
    const TSystemModal modal;
    Starting = NeedsHook() ? this : nullptr;
    const TAtEnd started([] { Starting = nullptr; });
    agreed = show(modal.Owner());
  }
  if (watch.Gone()) return false;
  if (const DWORD error = agreed ? 0 : ::CommDlgExtendedError()) {
    throw EOutOfResources(
        Concat("The system cannot show the ", ClassName(), ": error ", std::to_string(error)));
  }
  return agreed;
}

HWND TCommonDialog::RunModeless(const std::function<HWND(HWND)>& make) {
  const HWND active = ::GetActiveWindow();
  Starting = this;
  const TAtEnd started([] { Starting = nullptr; });
  const HWND window = make(active ? active : Application()->Handle());
  if (window) return window;
  throw EOutOfResources(Concat("The system cannot show the ", ClassName(), ": error ",
                               std::to_string(::CommDlgExtendedError())));
}

UINT_PTR TCommonDialog::HandleMessage(HWND window, UINT message, LPARAM) {
  if (message == WM_INITDIALOG) {
    FHandle = window;
    OnShow(this);
  } else if (message == WM_DESTROY) {
    FHandle = nullptr;
    OnClose(this);
  }
  return 0;
}

UINT_PTR CALLBACK TCommonDialog::Hook(HWND window, UINT message, WPARAM, LPARAM lParam) {
  TCommonDialog* const dialog = DialogOf(window);
  if (!dialog) return 0;
  if (message == WM_DESTROY) ::RemovePropW(window, DialogProp);
  const TWatch watch(dialog);
  try {
    return dialog->HandleMessage(window, message, lParam);
  } catch (...) {
    Application()->HandleCurrentException(watch.Gone() ? nullptr : dialog);
    return 0;
  }
}

}  // namespace vcl
