// Panes that stand side by side in a parent, and the strips between them that size them.
#pragma once

#include "vcl/controls/control.h"

namespace vcl {

/// The control that the strip lies beside and sizes: it is aligned to the same edge. Null when
/// there is none, and for a strip that is aligned to no edge.
VCL_API TControl* PaneBeside(const TControl& strip);
/// True for a strip between panes that are left and right of it.
VCL_API bool StandsUpright(const TControl& strip);
/// The pane's size in the direction in which the strip moves.
VCL_API int PaneSize(const TControl& strip, const TControl& pane);
/// The most that the pane may get: as far as the panes aligned along this way leave the least size
/// to the others.
VCL_API int MostPaneSize(const TControl& strip, const TControl& pane, int minSize);
/// The size that the pane has when the mouse has moved so far: a strip beside the pane's far edge
/// takes size from it on its way to there.
VCL_API int PaneSizeAfter(const TControl& strip, int size, TPoint way);
/// Sizes the pane, whose edge at the parent's stays where it is.
VCL_API void SizePane(const TControl& strip, TControl& pane, int size);
/// Inverts, over all that stands in the parent, the place to which the strip comes when the pane
/// grows by so many pixels; as a line of points when `dotted`. Doing it twice takes it away.
VCL_API void InvertStrip(const TControl& strip, int growth, bool dotted);

}  // namespace vcl
