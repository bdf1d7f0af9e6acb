// TPaintHold: a window that is painted once, at the end of many changes.
#pragma once

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/watch.h"
#include "vcl/rtl/win32.h"

namespace vcl {

/// Holds back the painting of a window of its own, and of all inside, that changes in many places:
/// it is painted once, at the end.
class TPaintHold {
 public:
  explicit TPaintHold(TWinControl& control);
  ~TPaintHold();
  TPaintHold(const TPaintHold&) = delete;
  TPaintHold& operator=(const TPaintHold&) = delete;

  /// True while all that the control shows will be painted anyway, so that nobody needs to be told
  /// which part of it has changed: each such word is a call of the system.
  static bool Covers(const TControl& control);

 private:
  bool Holds() const;

  inline static const TPaintHold* Now = nullptr;
  const TPaintHold* FAround;
  TWatch FWatch;
  TWinControl& FControl;
  HWND FWindow = nullptr;  // Null where there was nothing to hold.
};

}  // namespace vcl
