// TQELCustomSpinEdit and TQELSpinEdit.
#include <algorithm>
#include <limits>
#include <utility>

#include "qel/controls/Qeltspinedit.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;
using vcl::TShiftState;
using vcl::TWatch;

namespace {

constexpr int DefaultMaxValue = 100;
constexpr int DefaultMinValue = 0;

void Beep() { ::MessageBeep(0); }

}  // namespace

const vcl::TClass& TQELCustomSpinEdit::Class() {
  using T = TQELCustomSpinEdit;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomEdit>(
      "qel::TQELCustomSpinEdit", "qel/controls/Qeltspinedit.h",
      {
          Inherit("AutoSelect"),
          Inherit("AutoSize"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Property<&T::ButtonColor, &T::SetButtonColor>("ButtonColor").Default(clBtnFace),
          Property<&T::ArrowColor, &T::SetArrowColor>("ArrowColor").Default(clBlack),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("ImeMode"),
          Inherit("ImeName"),
          Inherit("MaxLength"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Property<&T::CutandPaste, &T::SetCutandPaste>("CutandPaste").Default(true),
          Property<&T::LineSize, &T::SetLineSize>("LineSize").Default(1),
          Property<&T::MaxValue, &T::SetMaxValue>("MaxValue").Default(DefaultMaxValue),
          Property<&T::MinValue, &T::SetMinValue>("MinValue").Default(DefaultMinValue),
          Property<&T::MultipleLineSize, &T::SetMultipleLineSize>("MultipleLineSize").Default(10),
          Property<&T::Readonly, &T::SetReadonly>("Readonly").Default(false),
          Property<&T::GetValue, &T::SetValue>("Value").Default(0),
          Inherit("OnChange"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
      });
  return info;
}

const vcl::TClass& TQELSpinEdit::Class() {
  static const vcl::TClass info = vcl::Describe<TQELSpinEdit, TQELCustomSpinEdit>(
      "qel::TQELSpinEdit", "qel/controls/Qeltspinedit.h",
      {vcl::ReadOnly<&TQELSpinEdit::About>("About")});
  return info;
}

TQELCustomSpinEdit::TQELCustomSpinEdit(vcl::TComponent* owner)
    : TCustomEdit(owner),
      FMaxValue(DefaultMaxValue),
      FMinValue(DefaultMinValue),
      FButtonWindow(new vcl::TWinControl(this)),
      FButton(new TQELCustomSpinButton(this)) {
  FButtonWindow->SetParent(this);
  FButton->SetParent(FButtonWindow);
  FButton->OnTopClick = vcl::TNotifyEvent(this, &TQELCustomSpinEdit::UpClick);
  FButton->OnBottomClick = vcl::TNotifyEvent(this, &TQELCustomSpinEdit::DownClick);
  SetText("0");
  AdjustSize();
}

TQELCustomSpinEdit::~TQELCustomSpinEdit() { AnnounceEnd(); }

TQELSpinEdit::TQELSpinEdit(vcl::TComponent* owner)
    : TQELCustomSpinEdit(owner), FAbout(std::make_unique<TQELAbout>(this)) {}

TQELSpinEdit::~TQELSpinEdit() { AnnounceEnd(); }

// The value and its bounds.

namespace {

/// The library's conversions know hexadecimal numbers as well; here a letter makes a text no
/// number.
int NumberIn(const std::string& text, int otherwise) {
  const bool decimal = text.find_first_not_of(" +-0123456789") == std::string::npos;
  return decimal ? vcl::StrToIntDef(text, otherwise) : otherwise;
}

}  // namespace

int TQELCustomSpinEdit::GetValue() const {
  const std::string text = Text();
  const int otherwise = FMinValue;
  // Reading changes what is shown here, so that an empty edit never stands for a number.
  if (text.empty()) const_cast<TQELCustomSpinEdit*>(this)->SetText(vcl::IntToStr(otherwise));
  return NumberIn(text, otherwise);
}

void TQELCustomSpinEdit::SetValue(int value) {
  // What bounds there are is known when the form file has been read; Loaded keeps to them.
  SetText(vcl::IntToStr(Loading() ? value : CheckValue(value)));
}

int TQELCustomSpinEdit::CheckValue(int value) const {
  if (FMinValue == FMaxValue) return value;
  return std::clamp(value, FMinValue, FMaxValue);
}

void TQELCustomSpinEdit::SetMaxValue(int maxValue) {
  // A form file gives one bound before the other, which may be below the one that is there.
  if (Loading()) {
    FMaxValue = maxValue;
    return;
  }
  if (maxValue == FMaxValue || maxValue <= FMinValue) return;
  FMaxValue = maxValue;
  if (GetValue() > maxValue) SetValue(maxValue);
}

void TQELCustomSpinEdit::SetMinValue(int minValue) {
  if (Loading()) {
    FMinValue = minValue;
    return;
  }
  if (minValue == FMinValue || minValue >= FMaxValue) return;
  FMinValue = minValue;
  if (GetValue() < minValue) SetValue(minValue);
}

void TQELCustomSpinEdit::Loaded() {
  TCustomEdit::Loaded();
  if (FMaxValue < FMinValue) {
    // They can't both stand: each is taken or refused as if it were set by code.
    const int maxValue = std::exchange(FMaxValue, DefaultMaxValue);
    const int minValue = std::exchange(FMinValue, DefaultMinValue);
    SetMaxValue(maxValue);
    SetMinValue(minValue);
  }
  AdjustSize();
  ClampText();
}

// A text that is no number reads as the least value, which is within the bounds: it stays as it is.
void TQELCustomSpinEdit::ClampText() {
  TWatch watch(this);
  const int value = GetValue();
  if (!watch.Gone() && CheckValue(value) != value) SetValue(value);
}

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
  if (!watch.Gone()) TCustomEdit::KeyDown(key, shift);
}

bool TQELCustomSpinEdit::IsValidChar(char32_t key) const {
  const bool control = key < 32;
  const bool numeral = key == U'+' || key == U'-' || (key >= U'0' && key <= U'9');
  if (FCutandPaste) return control || numeral;
  // Nothing that changes the text. The key Delete sends no character and is not refused.
  return control && key != VK_BACK;
}

void TQELCustomSpinEdit::KeyPress(char32_t& key) {
  if (!IsValidChar(key)) {
    key = 0;
    return Beep();
  }
  TWatch watch(this);
  TCustomEdit::KeyPress(key);
  if (watch.Gone() || (key != VK_RETURN && key != VK_ESCAPE)) return;
  // The window has many lines for the system and takes these keys from the form, which gets them
  // back: its default and its cancel button are meant. Escape goes on to the window, too.
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
  ClampText();
  if (!watch.Gone()) TCustomEdit::DoExit();
}

void TQELCustomSpinEdit::Dispatch(vcl::TMessage& message) {
  const bool changing = message.Msg == WM_CUT || message.Msg == WM_PASTE;
  if (changing && (!FCutandPaste || ReadOnly())) return;
  TWatch watch(this);
  TCustomEdit::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == vcl::CM_ENABLEDCHANGED) FButton->SetEnabled(Enabled());
  // The height that the font needs and the border that the button lies in.
  const bool resizing = message.Msg == vcl::CM_FONTCHANGED || message.Msg == vcl::CM_CTL3DCHANGED;
  if (resizing && !Loading()) AdjustSize();
}

// Size and window.

namespace {

int LineHeight(HDC dc) {
  TEXTMETRICW metrics{};
  ::GetTextMetricsW(dc, &metrics);
  return static_cast<int>(metrics.tmHeight);
}

}  // namespace

int TQELCustomSpinEdit::GetMinHeight() const {
  const vcl::TWindowDC screen(nullptr);
  const int system = LineHeight(screen.Get());  // A context of the screen begins with its font.
  const vcl::TSelection selection(screen.Get(), Font()->Handle());
  const int own = LineHeight(screen.Get());
  return own + std::min(system, own) / 4 + 4 * ::GetSystemMetrics(SM_CYBORDER);
}

void TQELCustomSpinEdit::AdjustSize() {
  const int least = GetMinHeight();
  // Comes back here by way of Resize.
  if (Height() < least) return SetHeight(least);
  const int edges = Ctl3D() ? 4 : 0;
  FButtonWindow->SetBounds(Width() - Height(), 0, Height() - edges, Height() - edges);
  FButton->SetBounds(0, 0, FButtonWindow->Width(), FButtonWindow->Height());
  SetEditRect();
}

void TQELCustomSpinEdit::SetEditRect() {
  if (!HandleAllocated()) return;
  RECT rect = TRect{0, 0, ClientWidth() - FButtonWindow->Width() - 2, ClientHeight() + 1};
  const auto address = reinterpret_cast<LPARAM>(&rect);
  vcl::Send(*this, EM_SETRECTNP, 0, address);
  // Read back for those who watch the window's messages; nothing here needs the answer.
  vcl::Send(*this, EM_GETRECT, 0, address);
}

// Only an edit of many lines can keep its text in a part of its window.
void TQELCustomSpinEdit::CreateParams(vcl::TCreateParams& params) {
  TCustomEdit::CreateParams(params);
  params.Style |= ES_MULTILINE | WS_CLIPCHILDREN;
}

void TQELCustomSpinEdit::CreateWnd() {
  TCustomEdit::CreateWnd();
  SetEditRect();
}

void TQELCustomSpinEdit::Resize() {
  TWatch watch(this);
  TCustomEdit::Resize();
  if (!watch.Gone()) AdjustSize();
}

}  // namespace qel
