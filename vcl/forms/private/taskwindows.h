// The windows of this thread while one of them has the user's whole attention.
#pragma once

#include <vector>

#include "vcl/rtl/api.h"
#include "vcl/rtl/win32.h"

namespace vcl {

/// Disables all visible windows of this thread but one, and enables those again that it has
/// disabled.
class TDisabledWindows {
 public:
  /// `exception` may be null.
  explicit TDisabledWindows(HWND exception);
  ~TDisabledWindows() { Enable(); }
  TDisabledWindows(const TDisabledWindows&) = delete;
  TDisabledWindows& operator=(const TDisabledWindows&) = delete;

  /// Before the exception goes off the screen: the system then activates one of the others rather
  /// than another program.
  void Enable();

 private:
  static BOOL CALLBACK Disable(HWND window, LPARAM self);

  HWND FException;
  std::vector<HWND> FWindows;
};

/// Lasts while a box or dialog of the system's has the user's whole attention: no hint is up and
/// all windows of this thread are disabled. Afterwards the active window and the focus are what
/// they were.
class VCL_API TSystemModal {
 public:
  TSystemModal();
  ~TSystemModal();
  TSystemModal(const TSystemModal&) = delete;
  TSystemModal& operator=(const TSystemModal&) = delete;

  /// The window in front of which the dialog stands: the active one, else the application's.
  HWND Owner() const;

 private:
  HWND FActive;
  HWND FFocus;
  TDisabledWindows FOthers;
};

/// The topmost window of this thread, other than the given one, that can be activated; null when
/// there is none.
HWND NextWindow(HWND other);

}  // namespace vcl
