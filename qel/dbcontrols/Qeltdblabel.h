// TQELDBLabel: a label that shows a field.
#pragma once

#include "qel/controls/Qeltlabel.h"
#include "qel/dbcontrols/Qelfieldlabel.h"

namespace qel {

/// A label in three dimensions that shows a field of the current record. Its size does not follow
/// the text.
class QEL_API TQELDBLabel : public TQELFieldLabel<TQELLabel> {
 public:
  explicit TQELDBLabel(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
};

}  // namespace qel
