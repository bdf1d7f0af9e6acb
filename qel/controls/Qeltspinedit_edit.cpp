// TQELCustomSpinEdit and TQELSpinEdit: value and bounds, size and window.
#include <algorithm>
#include <optional>
#include <utility>

#include "qel/controls/Qeltspinedit.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;
using vcl::TWatch;

namespace {

constexpr int DefaultMaxValue = 100;
constexpr int DefaultMinValue = 0;

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

/// The number that the text says, if it says one. The library's conversions know hexadecimal
/// numbers as well; here a letter makes a text no number.
std::optional<int> NumberIn(const std::string& text) {
  int number = 0;
  const bool decimal = text.find_first_not_of(" +-0123456789") == std::string::npos;
  return decimal && vcl::TryStrToInt(text, number) ? std::optional(number) : std::nullopt;
}

}  // namespace

int TQELCustomSpinEdit::GetValue() const {
  const std::string text = Text();
  const int otherwise = FMinValue;
  // Reading changes what is shown here, so that an empty edit never stands for a number.
  if (text.empty()) const_cast<TQELCustomSpinEdit*>(this)->SetText(vcl::IntToStr(otherwise));
  return NumberIn(text).value_or(otherwise);
}

void TQELCustomSpinEdit::SetValue(int value) {
  // What bounds there are is known when the form file has been read; Loaded keeps to them.
  SetText(vcl::IntToStr(Loading() ? value : CheckValue(value)));
}

int TQELCustomSpinEdit::CheckValue(int value) const {
  // While a form file is read, one of them may stand there alone.
  if (FMinValue >= FMaxValue) return value;
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
  AdjustSize();
  CheckBounds();
  CorrectText();
}

// Who reads on all the same, as a designer does, gets an edit with the bounds of a new one.
void TQELCustomSpinEdit::CheckBounds() {
  if (FMaxValue >= FMinValue) return;
  const int maxValue = std::exchange(FMaxValue, DefaultMaxValue);
  const int minValue = std::exchange(FMinValue, DefaultMinValue);
  CorrectText();
  throw vcl::EReadError(vcl::Concat("MaxValue ", vcl::IntToStr(maxValue), " of ", Name(),
                                    " is less than its MinValue ", vcl::IntToStr(minValue)));
}

// What the edit shows is then what it is read as, within the bounds.
void TQELCustomSpinEdit::CorrectText() {
  TWatch watch(this);
  const int value = GetValue();
  if (watch.Gone()) return;
  if (CheckValue(value) != value || !NumberIn(Text())) SetValue(value);
}

// What is written, and the size and window.

// The button is made by every edit itself: nothing of it is written.
void TQELCustomSpinEdit::GetChildren(const std::function<void(vcl::TComponent*)>& each,
                                     vcl::TComponent* root) {
  const auto others = [&](vcl::TComponent* child) {
    if (child != FButtonWindow) each(child);
  };
  TCustomEdit::GetChildren(others, root);
}

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

// The text that is typed is told of, whatever number it is read as.
void TQELCustomSpinEdit::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TCustomEdit::DescribeAccessible(info);
  info.Role = vcl::arSpinButton;
}

}  // namespace qel
