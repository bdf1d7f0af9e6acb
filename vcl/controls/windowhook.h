// TWindowHook: hearing the messages of a window that belongs to another component.
#pragma once

#include <functional>

#include "vcl/controls/messages.h"
#include "vcl/rtl/watch.h"

namespace vcl {

class TWinControl;

/// Hears the messages of a control's window, before and after the control handles them. It follows
/// the control, not the window: one that is made anew is heard from its first message on, and when
/// the last hook ends nothing of it is left.
///
/// A control may have any number of hooks. The one that came last is called first before the
/// control, and last behind it. They end in any order, in their own calls too, as may the control.
/// Messages of the library's own, sent with Perform, are not heard.
class VCL_API TWindowHook : public TWatched {
 public:
  /// `handled` set to true keeps the message from the control, from the other hooks and from all
  /// calls behind it; not the messages that make and end a window, which the control needs.
  using TBefore = std::function<void(TMessage& message, bool& handled)>;
  /// The message's Result is the control's answer, which may be changed.
  using TAfter = std::function<void(TMessage& message)>;

  /// Null for a call that is not wanted.
  TWindowHook(TBefore before, TAfter after);
  ~TWindowHook();
  TWindowHook(const TWindowHook&) = delete;
  TWindowHook& operator=(const TWindowHook&) = delete;

  /// The control that is heard; null for none, also when it has been freed.
  TWinControl* Control() const { return FWatch.Gone() ? nullptr : FControl; }
  void SetControl(TWinControl* control);

 private:
  friend class TWinControl;
  static void Handle(TWinControl& control, TMessage& message, const std::function<void()>& own);
  bool Hears(const TWinControl& control) const { return Control() == &control; }

  TWinControl* FControl = nullptr;
  TWatch FWatch{nullptr};
  TBefore FBefore;
  TAfter FAfter;
};

}  // namespace vcl
