// TDBEdit: the value of a field, edited in one line.
#pragma once

#include "vcl/dbctrls/fieldcontrol.h"
#include "vcl/stdctrls/edit.h"

namespace vcl {

/// Shows a field of the current record. Typing begins to edit the record; what was typed is written
/// as by all controls that edit a field (see TFieldEditor).
class VCL_API TDBEdit : public TFieldTextEditor<TCustomEdit> {
 public:
  explicit TDBEdit(TComponent* owner) : TFieldTextEditor(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
