// The effects with which one slide follows another, as places of the two: pure arithmetic.
#pragma once

#include <vector>

#include "qel/controls/slideeffect.h"
#include "vcl/graphics/types.h"

namespace qel {

/// What a moment of an effect looks like: the old slide at its place, and over it those parts of
/// the window in which the new one, at its own place, is seen.
struct TSlideMix {
  vcl::TPoint Old;
  vcl::TPoint New;
  std::vector<vcl::TRect> Shown;
  int Opacity = 255;  ///< Of the new slide.
};

/// The moment of an effect in a window of that size; 0 is all old, 1 all new.
TSlideMix MixSlides(TQELSlideEffect effect, vcl::TSize size, double progress);

}  // namespace qel
