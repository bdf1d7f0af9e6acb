// TQELDBSpinEdit: the number in a field, with a spin button.
#pragma once

#include "qel/controls/Qeltrealspinedit.h"
#include "qel/dbcontrols/Qelfieldedit.h"

namespace qel {

/// Edits a field of numbers, which the button and the arrow keys step. A field without a value is
/// shown empty, and keeps none until something is typed or stepped. What a field holds is shown
/// even where it is not within the bounds; what is typed is brought into them as it is written.
class QEL_API TQELDBSpinEdit : public TQELFieldEdit<TQELRealSpinEdit> {
 public:
  explicit TQELDBSpinEdit(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  int Decimals() const { return FDecimals; }
  /// How many digits stand behind the decimal separator. Fields of whole numbers are shown without
  /// any, those of money with two. Refuses, silently, what is not between 0 and 15. What is being
  /// typed is taken back.
  void SetDecimals(int decimals);
  TQELRealFormat Format() const { return FFormat; }
  /// How the number is written. What is being typed is taken back.
  void SetFormat(TQELRealFormat format);

 protected:
  bool Fits(vcl::TFieldType kind) const override;
  std::string ShownText(const vcl::TField& field) const override;
  void ShowField() override;
  void WriteField() override;
  /// Only what is written into the field is corrected, see WriteField.
  void CorrectText() override {}
  void Step(int times) override;
  void StepPage(int times) override;
  void KeyPress(char32_t& key) override;
  void Loaded() override;

 private:
  int ShownDecimals() const;

  int FDecimals = 2;
  TQELRealFormat FFormat = rfFixed;
};

}  // namespace qel
