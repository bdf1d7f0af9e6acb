// TDBEdit: the value of a field, edited in one line.
#pragma once

#include "vcl/dbctrls/fieldcontrol.h"
#include "vcl/stdctrls/maskedit.h"

namespace vcl {

/// Shows a field of the current record. Typing begins to edit the record; what was typed is written
/// as by all controls that edit a field (see TFieldEditor). While the focus is there, the field's
/// EditMask says what may be typed.
class VCL_API TDBEdit : public TFieldTextEditor<TCustomMaskEdit> {
 public:
  explicit TDBEdit(TComponent* owner) : TFieldTextEditor(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Shows the field's value again.
  void Reset() override { PutBack(); }

 protected:
  bool EditCanModify() override { return EditField(); }
  void ShowField() override;
  void WriteField() override;
};

}  // namespace vcl
