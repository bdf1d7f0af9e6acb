// The windows of this thread while one of them has the user's whole attention.
#pragma once

#include <vector>

#include "host/vcl/win32.h"

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

/// The topmost window of this thread, other than the given one, that can be activated; null when
/// there is none.
HWND NextWindow(HWND other);

}  // namespace vcl
