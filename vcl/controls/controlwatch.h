// TControlWatch: following a control that belongs to somebody else.
#pragma once

#include <functional>

#include "vcl/rtl/api.h"

namespace vcl {

class TControl;

/// Tells of another control's changes, for what follows it: its place, size, parent, visibility and
/// state, once each has taken effect. When the control ends it is forgotten, without a word. The
/// call may change or free the watch, its control, and what holds either.
class VCL_API TControlWatch {
 public:
  explicit TControlWatch(std::function<void()> changed);
  ~TControlWatch();
  TControlWatch(const TControlWatch&) = delete;
  TControlWatch& operator=(const TControlWatch&) = delete;

  /// The control that is followed; null for none, also when it has been freed.
  TControl* Control() const { return FControl; }
  void SetControl(TControl* control) { FControl = control; }

 private:
  friend class TControl;
  friend class TWinControl;
  static void Changed(const TControl* control);
  static void Forget(const TControl* control);

  TControl* FControl = nullptr;
  std::function<void()> FChanged;
};

}  // namespace vcl
