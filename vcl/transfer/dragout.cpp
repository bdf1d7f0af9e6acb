// BeginOleDrag: the control lets go of the mouse, and the system drags.
#include "vcl/transfer/dragout.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/transfer/private/comdata.h"
#include "vcl/transfer/private/comdrop.h"

namespace vcl {

TDropEffect BeginOleDrag(TControl* control, const TDataObject& data, TDropEffects allowed) {
  static bool dragging = false;
  const DWORD effects = ToSystem(allowed);
  if (!effects) throw EArgumentOutOfRangeException("A drag allows no effect: []");
  if (dragging) throw EInvalidOperation("Another drag is under way");
  NeedOle();
  const TSetFor underWay(dragging, true);
  const std::unique_ptr<IDataObject, TComReleaser> given(data.Interface());
  // The system takes the mouse, and the end of the press with it.
  control->Perform(WM_CANCELMODE);
  TComDropSource source;
  DWORD effect = DROPEFFECT_NONE;
  const HRESULT result = ::DoDragDrop(given.get(), &source, effects, &effect);
  if (FAILED(result)) {
    throw EOutOfResources(Concat("The system cannot drag: error ", std::to_string(result)));
  }
  return result == DRAGDROP_S_DROP ? OneEffect(effect) : deNone;
}

}  // namespace vcl
