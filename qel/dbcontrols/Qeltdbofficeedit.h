// TQELDBOfficeEdit: the value of a field in an edit with a thin frame.
#pragma once

#include "qel/controls/Qeltofficeedit.h"
#include "qel/dbcontrols/Qelfieldedit.h"

namespace qel {

/// Edits a field of the current record in a thin frame that lights up. Typing, and the cross that
/// empties the edit, begin to edit the record; Escape takes that back.
class QEL_API TQELDBOfficeEdit : public TQELFieldEdit<TQELOfficeEdit> {
 public:
  explicit TQELDBOfficeEdit(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 protected:
  void ClearClick() override;
};

}  // namespace qel
