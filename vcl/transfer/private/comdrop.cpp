// The two ends of a drag, as the system calls them.
#include "vcl/transfer/private/comdrop.h"

#include <memory>

#include "vcl/controls/private/handling.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/transfer/private/comdata.h"

namespace vcl {

namespace {

constexpr struct {
  TDropEffect Effect;
  DWORD System;
} Effects[] = {{deCopy, DROPEFFECT_COPY}, {deMove, DROPEFFECT_MOVE}, {deLink, DROPEFFECT_LINK}};

}  // namespace

void NeedOle() {
  // Till the thread's end: drop targets are registered as long as windows are there.
  static const HRESULT ready = ::OleInitialize(nullptr);
  if (FAILED(ready)) {
    throw EOutOfResources(
        Concat("The system's drag and drop is not to be had: error ", std::to_string(ready)));
  }
}

DWORD ToSystem(TDropEffects effects) {
  DWORD system = DROPEFFECT_NONE;
  for (const auto& each : Effects) system |= effects.Has(each.Effect) ? each.System : 0;
  return system;
}

TDropEffects FromSystem(DWORD effects) {
  TDropEffects set;
  for (const auto& each : Effects) {
    if (effects & each.System) set.Include(each.Effect);
  }
  return set;
}

TDropEffect OneEffect(DWORD effect) {
  for (const auto& each : Effects) {
    if (effect & each.System) return each.Effect;
  }
  return deNone;
}

// The source.

HRESULT TComDropSource::QueryInterface(REFIID iid, void** out) {
  const bool known = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDropSource);
  *out = known ? this : nullptr;
  return known ? S_OK : E_NOINTERFACE;
}

HRESULT TComDropSource::QueryContinueDrag(BOOL escape, DWORD keys) {
  if (escape) return DRAGDROP_S_CANCEL;
  return keys & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON) ? S_OK : DRAGDROP_S_DROP;
}

// The target.

HRESULT TComDropTarget::QueryInterface(REFIID iid, void** out) {
  const bool known = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDropTarget);
  *out = known ? this : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG TComDropTarget::Release() {
  const ULONG left = --FReferences;
  if (left == 0) delete this;
  return left;
}

// Handlers may free the component, and with it the window that the system calls for.
template <class Call>
HRESULT TComDropTarget::Tell(DWORD* effect, Call call) {
  const DWORD allowed = effect ? *effect : 0;
  DWORD answer = DROPEFFECT_NONE;
  if (FTarget) {
    AddRef();
    const std::unique_ptr<IDropTarget, TComReleaser> kept(this);
    const TWatch watch(FTarget);
    const THandling handling;
    try {
      answer = ToSystem({call(*FTarget, FromSystem(allowed))});
    } catch (...) {
      Application()->HandleCurrentException(watch.Gone() ? nullptr : FTarget);
    }
  }
  if (effect) *effect = answer & allowed;
  return S_OK;
}

HRESULT TComDropTarget::DragEnter(IDataObject* data, DWORD keys, POINTL place, DWORD* effect) {
  return Tell(effect, [&](TDropTarget& target, TDropEffects allowed) {
    return target.Enter(std::make_shared<TReceivedData>(data), keys, {place.x, place.y}, allowed);
  });
}

HRESULT TComDropTarget::DragOver(DWORD keys, POINTL place, DWORD* effect) {
  return Tell(effect, [&](TDropTarget& target, TDropEffects allowed) {
    return target.Over(keys, {place.x, place.y}, allowed);
  });
}

HRESULT TComDropTarget::DragLeave() {
  return Tell(nullptr, [](TDropTarget& target, TDropEffects) { return target.Leave(); });
}

HRESULT TComDropTarget::Drop(IDataObject* data, DWORD keys, POINTL place, DWORD* effect) {
  return Tell(effect, [&](TDropTarget& target, TDropEffects allowed) {
    return target.Drop(std::make_shared<TReceivedData>(data), keys, {place.x, place.y}, allowed);
  });
}

}  // namespace vcl
