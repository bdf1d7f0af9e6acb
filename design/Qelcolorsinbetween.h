// The editor of the colours between a gradient's first and last one, and its form.
#pragma once

#include "host/designintf/standardeditors.h"

namespace qel {

/// A list of colours. The list is what the form shows when it closes, whichever way it is closed.
class TQELColorInBetweenProperty : public vcl::TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  vcl::TPropertyAttributes GetAttributes() const override {
    return {vcl::paDialog, vcl::paReadOnly};
  }
  void Edit() override;
};

}  // namespace qel
