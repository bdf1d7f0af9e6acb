// TDesignerHook: what a form in the designing state asks of the designer that shows it.
#pragma once

#include "vcl/controls/messages.h"
#include "vcl/rtl/api.h"

namespace vcl {

class TWinControl;

/// The designer of one form (TCustomForm::SetDesigner). A form that is designed stands inside a
/// window of the designer, with its own frame, and the designer gets the mouse, the keyboard and
/// whatever else it wants of the messages to the form and to the windows on it.
class VCL_API TDesignerHook {
 public:
  TDesignerHook() = default;
  TDesignerHook(const TDesignerHook&) = delete;
  TDesignerHook& operator=(const TDesignerHook&) = delete;
  virtual ~TDesignerHook();

  /// The window that the form stands in.
  virtual HWND HostWindow() const = 0;
  /// Sees a message that the system sends to the form's window or one on it, before the control
  /// does; true keeps it from the control. Graphic controls get theirs by way of the window.
  virtual bool IsDesignMessage(TWinControl& sender, TMessage& message) = 0;
  /// The form's inside is being painted: what is drawn now lies behind all controls.
  virtual void PaintBehind(HDC dc) = 0;
};

}  // namespace vcl
