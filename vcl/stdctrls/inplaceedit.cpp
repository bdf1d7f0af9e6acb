// TInplaceEdit: an edit without a border that leaves the wheel to the grid and tells when it
// loses the focus.
#include "vcl/stdctrls/inplaceedit.h"

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/win32.h"

namespace vcl {

TInplaceEdit::TInplaceEdit(TComponent* owner) : TCustomMaskEdit(owner) {
  SetAutoSize(false);
  SetBorderStyle(bsNone);
  SetTabStop(false);
}

// Without this style a text that is wider than the edit could not be scrolled.
void TInplaceEdit::CreateParams(TCreateParams& params) {
  TCustomMaskEdit::CreateParams(params);
  params.Style |= ES_AUTOHSCROLL;
}

void TInplaceEdit::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case CM_WANTSPECIALKEY: message.Result = 1; return;
    // The lines are scrolled, not the text.
    case WM_MOUSEWHEEL:
      message.Result = Parent()->Perform(message.Msg, message.WParam, message.LParam);
      return;
    default: break;
  }
  TWatch watch(this);
  TCustomMaskEdit::Dispatch(message);
  if (watch.Gone()) return;
  // The text stands where the line's value is painted; a font brings margins of its own.
  if (message.Msg == WM_SETFONT) {
    Send(*this, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
  }
  if (message.Msg == WM_KILLFOCUS) OnLeave(this);
}

}  // namespace vcl
