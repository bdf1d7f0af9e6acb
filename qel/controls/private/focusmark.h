// The mark of the focus on controls that paint themselves.
#pragma once

#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/win32.h"

namespace qel {

/// Whether the focus is to be shown on the control: it has it, and the user goes by keyboard.
inline bool ShowsFocus(vcl::TWinControl& control) {
  return control.Focused() && !(control.Perform(WM_QUERYUISTATE) & UISF_HIDEFOCUS);
}

/// Draws the mark along the control's edge where it is to be seen.
inline void DrawFocusMark(vcl::TWinControl& control, vcl::TCanvas& canvas) {
  if (!ShowsFocus(control)) return;
  canvas.Font()->SetColor(vcl::clWindowText);
  canvas.Brush()->SetStyle(vcl::bsSolid);
  canvas.Brush()->SetColor(vcl::clBtnFace);
  canvas.DrawFocusRect(control.ClientRect());
}

/// Whether the message changes what ShowsFocus says.
inline bool ChangesFocusMark(UINT message) {
  return message == WM_SETFOCUS || message == WM_KILLFOCUS || message == WM_UPDATEUISTATE;
}

}  // namespace qel
