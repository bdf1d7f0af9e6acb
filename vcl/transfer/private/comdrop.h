// The system's interfaces of a drag between programs: its source and its target.
#pragma once

#include "vcl/rtl/win32.h"
#include "vcl/transfer/droptarget.h"
// It needs what stands above.
#include <ole2.h>

#include "vcl/rtl/systemmacros.h"

namespace vcl {

/// Has the system's half of dragging ready in this thread, which is done once. Raises
/// EOutOfResources.
void NeedOle();

DWORD ToSystem(TDropEffects effects);
/// The first one of several.
TDropEffect OneEffect(DWORD effect);
TDropEffects FromSystem(DWORD effects);

/// Ends the drag by Escape, or when the buttons that were down are up.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): it lives on the stack.
class TComDropSource final : public IDropSource {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }

  STDMETHODIMP QueryContinueDrag(BOOL escape, DWORD keys) override;
  STDMETHODIMP GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }
};

/// Passes what the system says to the component, as long as that is there.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): it frees itself, by Release.
class TComDropTarget final : public IDropTarget {
 public:
  explicit TComDropTarget(TDropTarget* target) : FTarget(target) {}
  /// The component is going.
  void Forget() { FTarget = nullptr; }

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++FReferences; }
  STDMETHODIMP_(ULONG) Release() override;

  STDMETHODIMP DragEnter(IDataObject* data, DWORD keys, POINTL place, DWORD* effect) override;
  STDMETHODIMP DragOver(DWORD keys, POINTL place, DWORD* effect) override;
  STDMETHODIMP DragLeave() override;
  STDMETHODIMP Drop(IDataObject* data, DWORD keys, POINTL place, DWORD* effect) override;

 private:
  ~TComDropTarget() = default;
  template <class Call>
  HRESULT Tell(DWORD* effect, Call call);

  ULONG FReferences = 1;
  TDropTarget* FTarget;
};

}  // namespace vcl
