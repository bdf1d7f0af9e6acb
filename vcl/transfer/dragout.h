// Dragging data out of a control, to any program.
#pragma once

#include "vcl/controls/control.h"
#include "vcl/transfer/dataobject.h"
#include "vcl/transfer/dropeffect.h"

namespace vcl {

/// Drags the data from the control while a button of the mouse is down, over this program's windows
/// and others'; Escape ends it. Called by a handler such as OnMouseDown or OnMouseMove; returns
/// when the drag is over, with what the target has done: after deMove the source takes the data
/// away. Handlers that run meanwhile may free the control. Raises EArgumentOutOfRangeException when
/// no effect is allowed, EInvalidOperation while another drag is under way, EOutOfResources when
/// the system refuses.
VCL_API TDropEffect BeginOleDrag(TControl* control, const TDataObject& data,
                                 TDropEffects allowed = {deCopy});

}  // namespace vcl
