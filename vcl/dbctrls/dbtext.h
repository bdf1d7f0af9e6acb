// TDBText: the value of a field as a label.
#pragma once

#include "vcl/dbctrls/fieldcontrol.h"
#include "vcl/stdctrls/label.h"

namespace vcl {

/// Shows a field of the current record, which cannot be changed there. While it is designed, it
/// shows its own name where there is no field.
class VCL_API TDBText : public TFieldControl<TCustomLabel> {
 public:
  explicit TDBText(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void SetName(const std::string& name) override;

 protected:
  void ShowField() override;
};

}  // namespace vcl
