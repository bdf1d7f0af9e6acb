// TQELRealSpinEdit: the number, its bounds and its text.
#include "qel/controls/Qeltrealspinedit.h"

#include <algorithm>
#include <cmath>

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace qel {

const vcl::TClass& TQELRealSpinEdit::Class() {
  using T = TQELRealSpinEdit;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomStepEdit>(
      "qel::TQELRealSpinEdit", "qel/controls/Qeltrealspinedit.h",
      {
          vcl::ReadOnly<&T::About>("About"),
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
          Property<&T::Decimals, &T::SetDecimals>("Decimals").Default(2),
          Property<&T::Format, &T::SetFormat>("Format").Default(rfFixed),
          Property<&T::Increment, &T::SetIncrement>("Increment").Default(1.0),
          Property<&T::LargeIncrement, &T::SetLargeIncrement>("LargeIncrement").Default(10.0),
          Property<&T::MaxValue, &T::SetMaxValue>("MaxValue").Default(0.0),
          Property<&T::MinValue, &T::SetMinValue>("MinValue").Default(0.0),
          Inherit("Readonly"),
          Property<&T::Value, &T::SetValue>("Value").Default(0.0),
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

TQELRealSpinEdit::TQELRealSpinEdit(vcl::TComponent* owner)
    : TQELCustomStepEdit(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  Write(0);
}

TQELRealSpinEdit::~TQELRealSpinEdit() { AnnounceEnd(); }

double TQELRealSpinEdit::Value() const {
  if (Loading()) return FLoadedValue;
  return QELTextReal(Text(), Signs()).value_or(FMinValue);
}

void TQELRealSpinEdit::SetValue(double value) {
  if (!std::isfinite(value)) return;
  if (Loading()) {
    FLoadedValue = value;
    return;
  }
  Write(CheckValue(value));
}

void TQELRealSpinEdit::Write(double value) {
  SetText(QELRealText(value, FFormat, FDecimals, Signs()));
}

double TQELRealSpinEdit::CheckValue(double value) const {
  return FMinValue < FMaxValue ? std::clamp(value, FMinValue, FMaxValue) : value;
}

void TQELRealSpinEdit::SetBound(double& bound, double value) {
  if (!std::isfinite(value)) return;
  bound = value;
  if (!Loading()) CorrectText();
}

void TQELRealSpinEdit::SetIncrement(double increment) {
  if (std::isfinite(increment)) FIncrement = increment;
}

void TQELRealSpinEdit::SetLargeIncrement(double increment) {
  if (std::isfinite(increment)) FLargeIncrement = increment;
}

void TQELRealSpinEdit::SetDecimals(int decimals) {
  constexpr int most = 15;
  if (decimals < 0 || decimals > most) return;
  const double value = Value();
  FDecimals = decimals;
  SetValue(value);
}

void TQELRealSpinEdit::SetFormat(TQELRealFormat format) {
  const double value = Value();
  FFormat = format;
  SetValue(value);
}

void TQELRealSpinEdit::Loaded() {
  const vcl::TWatch watch(this);
  TQELCustomStepEdit::Loaded();
  if (!watch.Gone()) SetValue(FLoadedValue);
}

// What the edit shows is then what it is read as, within the bounds.
void TQELRealSpinEdit::CorrectText() {
  const auto number = QELTextReal(Text(), Signs());
  const double value = number.value_or(FMinValue);
  if (!number || CheckValue(value) != value) return SetValue(value);
  // An amount typed without its currency gets it.
  const std::string text = QELRealText(value, FFormat, FDecimals, Signs());
  if (text != Text()) SetText(text);
}

void TQELRealSpinEdit::StepBy(double difference) { SetValue(QELRoundReal(Value() + difference)); }

bool TQELRealSpinEdit::IsNumeral(char32_t key) const {
  if (key == U'+' || key == U'-' || (key >= U'0' && key <= U'9')) return true;
  const TQELRealSigns signs = Signs();
  const std::string character = vcl::Utf8(key);
  if (character == signs.Decimal) return true;
  if (FFormat == rfCurrency) {
    return key == U' ' || character == signs.Thousand ||
           signs.Currency.find(character) != std::string::npos;
  }
  return FFormat != rfFixed && (key == U'e' || key == U'E');
}

}  // namespace qel
