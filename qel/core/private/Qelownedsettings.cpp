// Having the control repainted that owns changed settings.
#include "qel/core/private/Qelownedsettings.h"

#include "vcl/controls/control.h"

namespace qel {

void InvalidateOwner(vcl::TObject* owner) {
  if (auto* control = dynamic_cast<vcl::TControl*>(owner)) control->Invalidate();
}

}  // namespace qel
