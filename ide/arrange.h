// Aligning, spacing and sizing of rectangles, as the commands of a designer do it.
#pragma once

#include <vector>

#include "vcl/graphics/types.h"

namespace ide {

/// How rectangles are put along one direction: not at all, level with the first one's low edge,
/// middle or high edge, at equal distances between the outermost two, or, all as they lie to each
/// other, in the middle of what is around them.
enum class TArrangement { None, Low, Middle, High, Spread, Centre };
/// What size they get in one direction: their own, that of the smallest, of the largest, or of the
/// first.
enum class TSizing { None, Smallest, Largest, First };

/// `around` is the inside of the container that the rectangles stand in.
void ArrangeRects(std::vector<vcl::TRect>& rects, TArrangement horizontal, TArrangement vertical,
                  vcl::TSize around);
void SizeRects(std::vector<vcl::TRect>& rects, TSizing horizontal, TSizing vertical);

}  // namespace ide
