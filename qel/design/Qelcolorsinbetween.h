// The editor of the colours between a gradient's first and last one.
#pragma once

#include "qel/design/Qelpropertyeditors.h"

namespace qel {

/// A list of colours. The list is what the form shows when it closes, whichever way it is closed.
class TQELColorInBetweenProperty : public TQELDialogOnlyProperty<vcl::TStringsProperty> {
 public:
  using TQELDialogOnlyProperty::TQELDialogOnlyProperty;
  void Edit() override;
};

}  // namespace qel
