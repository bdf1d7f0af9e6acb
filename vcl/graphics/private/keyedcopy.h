// Copying pixels save those of one colour, for pictures with see-through parts.
#pragma once

#include "vcl/graphics/types.h"

namespace vcl {

/// Copies a rectangle of one context to one of another, stretched where the sizes differ, save the
/// pixels of the colour `key`. There the brush is painted (lined up with what else it paints on
/// `dest`); where it paints nothing, or is null, what `dest` shows stays.
void CopyKeyed(HDC dest, const TRect& destRect, HDC source, const TRect& sourceRect, COLORREF key,
               HBRUSH brush);

/// Copies by a raster operation; where it shrinks, it leaves out rows and columns.
void CopyStretched(HDC dest, const TRect& destRect, HDC source, const TRect& sourceRect,
                   DWORD operation);

}  // namespace vcl
