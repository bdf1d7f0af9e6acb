// TDBCheckBox: a field of two values, as a box.
#pragma once

#include <string>

#include "vcl/dbctrls/fieldcontrol.h"
#include "vcl/stdctrls/checkbox.h"

namespace vcl {

/// Is checked while the field has a value of ValueChecked, unchecked for one of ValueUnchecked, and
/// greyed for Null and any other. To turn it begins to edit the record; greyed by the user, with
/// AllowGrayed, makes the field Null.
class VCL_API TDBCheckBox : public TFieldEditor<TCustomCheckBox> {
 public:
  explicit TDBCheckBox(TComponent* owner) : TFieldEditor(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& ValueChecked() const { return FChecked; }
  /// The texts of the field that check the box, with semicolons between them; the first one is
  /// written. A Boolean field's own True counts, too.
  void SetValueChecked(const std::string& values);
  const std::string& ValueUnchecked() const { return FUnchecked; }
  /// The texts of the field that leave the box unchecked, with semicolons between them; the first
  /// one is written. A Boolean field's own False counts, too.
  void SetValueUnchecked(const std::string& values);

 protected:
  void ShowField() override;
  void WriteField() override;
  void Click() override;
  void Toggle() override;

 private:
  TCheckBoxState FieldState() const;

  std::string FChecked = "True";
  std::string FUnchecked = "False";
};

}  // namespace vcl
