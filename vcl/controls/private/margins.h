// What a control keeps free around itself.
#pragma once

#include "vcl/controls/control.h"

namespace vcl {

/// The control's Margins at each edge, in pixels; nothing for one without AlignWithMargins.
inline TRect MarginsOf(const TControl& control) {
  if (!control.AlignWithMargins()) return {};
  const TMargins& margins = *control.Margins();
  return {margins.Left(), margins.Top(), margins.Right(), margins.Bottom()};
}

}  // namespace vcl
