// TQELDBStickyLabel: a field beside a control.
#pragma once

#include "qel/controls/Qeltstickylabel.h"
#include "qel/dbcontrols/Qelfieldlabel.h"

namespace qel {

/// A label that stays beside a control and shows a field of the current record.
class QEL_API TQELDBStickyLabel : public TQELFieldLabel<TQELStickyLabel> {
 public:
  explicit TQELDBStickyLabel(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
};

}  // namespace qel
