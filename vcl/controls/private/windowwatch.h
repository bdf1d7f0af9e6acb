// TWindowWatch: what belongs to a control's window and follows it when that is made anew.
#pragma once

#include <vector>

#include "vcl/rtl/api.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

class TWinControl;

/// Hears when the window of one control is made and when it ends.
class VCL_API TWindowWatch {
 public:
  TWindowWatch() = default;
  virtual ~TWindowWatch() { Watch(nullptr); }
  TWindowWatch(const TWindowWatch&) = delete;
  TWindowWatch& operator=(const TWindowWatch&) = delete;

  /// Watches that control from now on, and no other; null watches none.
  void Watch(TWinControl* control);
  TWinControl* Watched() const { return FControl; }

  /// For the control itself: its window is there resp. is about to end.
  static void TellMade(TWinControl& control, HWND window);
  static void TellEnding(TWinControl& control, HWND window);

 protected:
  virtual void WindowMade(HWND window) = 0;
  virtual void WindowEnding(HWND window) = 0;

 private:
  static std::vector<TWindowWatch*>& All();
  template <class Tell>
  static void TellAll(const TWinControl& control, Tell tell);

  TWinControl* FControl = nullptr;
};

}  // namespace vcl
