// TCommonDialog, the base of the dialogs that the system shows for the program.
#pragma once

#include <functional>
#include <span>

#include "vcl/rtl/component.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// One of the system's dialogs, modal in front of the active form: the program's windows are
/// disabled while it is up. The system calls us back (its hook) only where an event needs it, as a
/// dialog with a hook looks older.
class VCL_API TCommonDialog : public TComponent {
 public:
  explicit TCommonDialog(TComponent* owner);
  /// Closes the dialog when it is up.
  ~TCommonDialog() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Shows the dialog; true when the user has agreed, and the properties then are his choice.
  /// Raises EInvalidOperation when the dialog is up already, EOutOfResources when the system
  /// refuses it.
  virtual bool Execute() = 0;
  /// The dialog's window while it is up and one of its events is assigned; else null.
  HWND Handle() const { return FHandle; }

  /// The dialog has come up resp. is going.
  TNotifyEvent OnShow, OnClose;

 protected:
  /// Calls the system's function, with the window that owns the dialog; true when it is true and
  /// this object is still there.
  bool Run(const std::function<BOOL(HWND)>& show);
  /// The same for a dialog that is not modal: the function makes its window and returns that, and
  /// is told which window it stands in front of. Raises EOutOfResources for null.
  HWND RunModeless(const std::function<HWND(HWND)>& make);
  /// True when an event is assigned that the hook fires.
  virtual bool NeedsHook() const { return OnShow || OnClose; }
  /// A message of the dialog; the answer is the hook's.
  virtual UINT_PTR HandleMessage(HWND window, UINT message, LPARAM lParam);
  /// What is given to the system as the hook.
  static UINT_PTR __stdcall Hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  HWND FHandle = nullptr;
  bool FRunning = false;
};

/// The system's flags for a set of options, whose ordinals are places in the table.
template <class E>
DWORD FlagsOf(TSet<E> options, std::span<const DWORD> table) {
  DWORD flags = 0;
  for (std::size_t i = 0; i < table.size(); ++i)
    if (options.Has(static_cast<E>(i))) flags |= table[i];
  return flags;
}

}  // namespace vcl
