// TQELCustomSpinEdit: stepping the number, keys, and what else changes the text.
#include <algorithm>
#include <limits>

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

void TQELCustomSpinEdit::UpClick(vcl::TObject* /*sender*/) { StepLine(FLineSize); }

void TQELCustomSpinEdit::DownClick(vcl::TObject* /*sender*/) { StepLine(-std::int64_t{FLineSize}); }

void TQELCustomSpinEdit::StepLine(std::int64_t difference) {
  ReadOnly() ? Beep() : StepBy(difference);
}

// Other than the arrows, the page keys make no sound in a read-only edit.
void TQELCustomSpinEdit::StepPage(std::int64_t difference) {
  if (!ReadOnly()) StepBy(difference);
}

// The sum may be more than an int holds, with bounds or without.
void TQELCustomSpinEdit::StepBy(std::int64_t difference) {
  using TLimits = std::numeric_limits<int>;
  TWatch watch(this);
  const std::int64_t sum = GetValue() + difference;
  if (watch.Gone()) return;
  SetValue(static_cast<int>(std::clamp<std::int64_t>(sum, TLimits::min(), TLimits::max())));
}

// Keys and clipboard.

// The number is stepped before OnKeyDown is fired: a handler can't keep a key from it.
void TQELCustomSpinEdit::KeyDown(std::uint16_t& key, TShiftState shift) {
  TWatch watch(this);
  switch (key) {
    case VK_PRIOR: StepPage(FMultipleLineSize); break;
    case VK_NEXT: StepPage(-std::int64_t{FMultipleLineSize}); break;
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
void TQELCustomSpinEdit::KeepText(std::uint16_t& key, TShiftState shift) {
  const bool shifted = shift.Has(vcl::ssShift);
  if (key == VK_DELETE && !shifted) Beep();
  if (key == VK_DELETE || (key == VK_INSERT && shifted)) key = 0;
}

bool TQELCustomSpinEdit::IsValidChar(char32_t key) const {
  const bool control = key < 32;
  const bool numeral = key == U'+' || key == U'-' || (key >= U'0' && key <= U'9');
  if (FCutandPaste) return control || numeral;
  // Nothing that changes the text.
  return control && key != VK_BACK;
}

void TQELCustomSpinEdit::KeyPress(char32_t& key) {
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

void TQELCustomSpinEdit::DoEnter() {
  // A click puts the caret where it is instead.
  if (AutoSelect() && !ControlState().Has(vcl::csLButtonDown)) SelectAll();
  TCustomEdit::DoEnter();
}

void TQELCustomSpinEdit::DoExit() {
  TWatch watch(this);
  CorrectText();
  if (!watch.Gone()) TCustomEdit::DoExit();
}

bool TQELCustomSpinEdit::Refuses(const vcl::TMessage& message) const {
  switch (message.Msg) {
    case WM_CUT:
    case WM_PASTE: return !FCutandPaste || ReadOnly();
    // Deleting by the system's menu.
    case WM_CLEAR: return !FCutandPaste;
    // A right press on the button is none on the text: the system hands it on to the parent.
    case WM_CONTEXTMENU:
      return FButtonWindow->HandleAllocated() &&
             reinterpret_cast<HWND>(message.WParam) == FButtonWindow->Handle();
    default: return false;
  }
}

void TQELCustomSpinEdit::Dispatch(vcl::TMessage& message) {
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
