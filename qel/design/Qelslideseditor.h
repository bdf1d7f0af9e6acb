// The editor of a presentation's slides.
#pragma once

#include "vcl/designintf/standardeditors.h"

namespace qel {

/// The slides of a presentation: a list of them, and the properties of each.
class TQELSlidesProperty : public vcl::TCollectionProperty {
 public:
  using TCollectionProperty::TCollectionProperty;
  void Edit() override;
};

}  // namespace qel
