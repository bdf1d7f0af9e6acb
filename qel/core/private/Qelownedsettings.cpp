// Having the control repainted that owns changed settings.
#include "qel/core/private/Qelownedsettings.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "vcl/controls/control.h"
#include "vcl/controls/scaling.h"

namespace qel {

void InvalidateOwner(vcl::TObject* owner) {
  if (auto* control = dynamic_cast<vcl::TControl*>(owner)) control->Invalidate();
}

int PixelsPerInchOf(const vcl::TObject* owner) {
  const auto* control = dynamic_cast<const vcl::TControl*>(owner);
  return control ? control->CurrentPPI() : vcl::DefaultPixelsPerInch;
}

int ScaledTo(int pixelsPerInch, int pixels) {
  constexpr int plain = vcl::DefaultPixelsPerInch;
  const std::int64_t scaled = std::int64_t{pixels} * pixelsPerInch;
  const std::int64_t rounded = (scaled + (pixels < 0 ? -plain / 2 : plain / 2)) / plain;
  return static_cast<int>(std::clamp<std::int64_t>(rounded, INT_MIN, INT_MAX));
}

}  // namespace qel
