// TQELRealSpinEdit: a spin edit for real numbers.
#pragma once

#include <memory>

#include "qel/controls/Qeltspinedit.h"
#include "qel/core/Qelrealtext.h"

namespace qel {

/// An edit for a real number, with a spin button. The number is what the text says: rounded to the
/// decimals that are shown, so that steps add up as they do on paper. Written with the user's
/// decimal separator.
class QEL_API TQELRealSpinEdit : public TQELCustomStepEdit {
 public:
  explicit TQELRealSpinEdit(vcl::TComponent* owner);
  ~TQELRealSpinEdit() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the edit says about the package.
  TQELAbout* About() const { return FAbout.get(); }
  double Value() const;
  /// The number, within the bounds; MinValue when the text says none. Refuses, silently, what is
  /// not finite.
  void SetValue(double value);
  double MinValue() const { return FMinValue; }
  /// The least number. The bounds hold while MaxValue is the greater of them. Refuses, silently,
  /// what is not finite.
  void SetMinValue(double minValue) { SetBound(FMinValue, minValue); }
  double MaxValue() const { return FMaxValue; }
  /// The greatest number. The bounds hold while it is greater than MinValue. Refuses, silently,
  /// what is not finite.
  void SetMaxValue(double maxValue) { SetBound(FMaxValue, maxValue); }
  double Increment() const { return FIncrement; }
  /// What the button and the arrow keys add or take. Refuses, silently, what is not finite.
  void SetIncrement(double increment);
  double LargeIncrement() const { return FLargeIncrement; }
  /// What the page keys add or take. Refuses, silently, what is not finite.
  void SetLargeIncrement(double increment);
  int Decimals() const { return FDecimals; }
  /// How many digits stand behind the decimal separator, except in rfGeneral. Refuses, silently,
  /// what is not between 0 and 15.
  void SetDecimals(int decimals);
  TQELRealFormat Format() const { return FFormat; }
  /// How the number is written.
  void SetFormat(TQELRealFormat format);
  /// The number within the bounds.
  double CheckValue(double value) const;

 protected:
  void Step(int times) override { StepBy(FIncrement * times); }
  void StepPage(int times) override { StepBy(FLargeIncrement * times); }
  void CorrectText() override;
  bool IsNumeral(char32_t key) const override;
  void Loaded() override;

 private:
  TQELRealSigns Signs() const { return QELRealSigns(FFormat == rfCurrency); }
  void SetBound(double& bound, double value);
  void StepBy(double difference);
  void Write(double value);

  std::unique_ptr<TQELAbout> FAbout;
  double FMinValue = 0;
  double FMaxValue = 0;
  double FIncrement = 1;
  double FLargeIncrement = 10;
  int FDecimals = 2;
  TQELRealFormat FFormat = rfFixed;
  double FLoadedValue = 0;  // While a form file is read, whose format is yet to come.
};

}  // namespace qel
