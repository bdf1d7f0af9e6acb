// TQELCustomSpinEdit and TQELSpinEdit: the number and its bounds.
#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "qel/controls/Qeltspinedit.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace qel {

using vcl::TWatch;

namespace {

constexpr int DefaultMaxValue = 100;
constexpr int DefaultMinValue = 0;

}  // namespace

const vcl::TClass& TQELCustomSpinEdit::Class() {
  using T = TQELCustomSpinEdit;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomStepEdit>(
      "qel::TQELCustomSpinEdit", "qel/controls/Qeltspinedit.h",
      {
          Inherit("AutoSelect"),
          Inherit("AutoSize"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("ButtonColor"),
          Inherit("ArrowColor"),
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
          Inherit("CutandPaste"),
          Property<&T::LineSize, &T::SetLineSize>("LineSize").Default(1),
          Property<&T::MaxValue, &T::SetMaxValue>("MaxValue").Default(DefaultMaxValue),
          Property<&T::MinValue, &T::SetMinValue>("MinValue").Default(DefaultMinValue),
          Property<&T::MultipleLineSize, &T::SetMultipleLineSize>("MultipleLineSize").Default(10),
          Inherit("Readonly"),
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
    : TQELCustomStepEdit(owner), FMaxValue(DefaultMaxValue), FMinValue(DefaultMinValue) {
  SetText("0");
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
  TQELCustomStepEdit::Loaded();
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

// Stepping.

void TQELCustomSpinEdit::Step(int times) { StepBy(std::int64_t{FLineSize} * times); }

void TQELCustomSpinEdit::StepPage(int times) { StepBy(std::int64_t{FMultipleLineSize} * times); }

// The sum may be more than an int holds, with bounds or without.
void TQELCustomSpinEdit::StepBy(std::int64_t difference) {
  using TLimits = std::numeric_limits<int>;
  TWatch watch(this);
  const std::int64_t sum = GetValue() + difference;
  if (watch.Gone()) return;
  SetValue(static_cast<int>(std::clamp<std::int64_t>(sum, TLimits::min(), TLimits::max())));
}

bool TQELCustomSpinEdit::IsNumeral(char32_t key) const {
  return key == U'+' || key == U'-' || (key >= U'0' && key <= U'9');
}

}  // namespace qel
