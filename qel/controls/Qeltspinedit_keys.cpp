// TQELCustomStepEdit: stepping the number, keys, and what else changes the text.
#include "qel/controls/Qeltspinedit.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TShiftState;
using vcl::TWatch;

namespace {

void Beep() { ::MessageBeep(0); }

}  // namespace

// Stepping.

void TQELCustomStepEdit::UpClick(vcl::TObject* /*sender*/) { StepLine(1); }

void TQELCustomStepEdit::DownClick(vcl::TObject* /*sender*/) { StepLine(-1); }

void TQELCustomStepEdit::StepLine(int times) { CanModify() ? Step(times) : Beep(); }

// Keys and clipboard.

// The number is stepped before OnKeyDown is fired: a handler can't keep a key from it.
void TQELCustomStepEdit::KeyDown(std::uint16_t& key, TShiftState shift) {
  TWatch watch(this);
  switch (key) {
    // Other than the arrows, the page keys make no sound in a read-only edit.
    case VK_PRIOR:
    case VK_NEXT:
      if (CanModify()) StepPage(key == VK_PRIOR ? 1 : -1);
      break;
    case VK_UP: UpClick(this); break;
    case VK_DOWN: DownClick(this); break;
    default: break;
  }
  if (watch.Gone()) return;
  TCustomEdit::KeyDown(key, shift);
  if (!watch.Gone() && !FCutandPaste) KeepText(key, shift);
}

// Deleting, cutting and pasting by these keys, the system's edit sends neither a character nor a
// message that could be refused.
void TQELCustomStepEdit::KeepText(std::uint16_t& key, TShiftState shift) {
  const bool shifted = shift.Has(vcl::ssShift);
  if (key == VK_DELETE && !shifted) Beep();
  if (key == VK_DELETE || (key == VK_INSERT && shifted)) key = 0;
}

bool TQELCustomStepEdit::IsValidChar(char32_t key) const {
  const bool control = key < 32;
  if (FCutandPaste) return control || IsNumeral(key);
  // Nothing that changes the text.
  return control && key != VK_BACK;
}

void TQELCustomStepEdit::KeyPress(char32_t& key) {
  if (!IsValidChar(key)) {
    key = 0;
    return Beep();
  }
  TWatch watch(this);
  TCustomEdit::KeyPress(key);
  if (watch.Gone()) return;
  // The window has many lines for the system, but the number has one.
  if (key == U'\n' || key == U'\t') key = 0;
  if (key != VK_RETURN && key != VK_ESCAPE) return;
  // Such a window takes these keys from the form, which gets them back: its default and its cancel
  // button are meant. Escape goes on to the window, too.
  const char32_t pressed = key;
  if (pressed == VK_RETURN) key = 0;
  if (vcl::TCustomForm* form = ParentForm()) form->Perform(vcl::CM_DIALOGKEY, pressed);
}

void TQELCustomStepEdit::DoEnter() {
  // A click puts the caret where it is instead.
  if (AutoSelect() && !ControlState().Has(vcl::csLButtonDown)) SelectAll();
  TCustomEdit::DoEnter();
}

void TQELCustomStepEdit::DoExit() {
  TWatch watch(this);
  CorrectText();
  if (!watch.Gone()) TCustomEdit::DoExit();
}

bool TQELCustomStepEdit::Refuses(const vcl::TMessage& message) const {
  switch (message.Msg) {
    case WM_CUT:
    case WM_PASTE: return !FCutandPaste || !CanModify();
    // Deleting by the system's menu.
    case WM_CLEAR: return !FCutandPaste;
    // A right press on the button is none on the text: the system hands it on to the parent.
    case WM_CONTEXTMENU:
      return FButtonWindow->HandleAllocated() &&
             reinterpret_cast<HWND>(message.WParam) == FButtonWindow->Handle();
    default: return false;
  }
}

void TQELCustomStepEdit::Dispatch(vcl::TMessage& message) {
  if (Refuses(message)) return;
  TWatch watch(this);
  TCustomEdit::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == vcl::CM_ENABLEDCHANGED) FButton->SetEnabled(Enabled());
  // The height that the font needs and the border that the button lies in.
  const bool resizing = message.Msg == vcl::CM_FONTCHANGED || message.Msg == vcl::CM_CTL3DCHANGED;
  if (resizing && !Loading()) AdjustSize();
}

}  // namespace qel
