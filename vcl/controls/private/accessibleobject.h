// TAccessibleObject: a control or one of its parts, as the system's interface for screen readers
// (IAccessible) has it.
#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "vcl/controls/private/accessiblenode.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/watch.h"
#include "vcl/rtl/win32.h"
// The others need what stands above.
#include <ole2.h>
#include <oleacc.h>

#include "vcl/rtl/systemmacros.h"

namespace vcl {

struct TReleaser {
  void operator()(IUnknown* object) const { object->Release(); }
};
using TAccessiblePtr = std::unique_ptr<IAccessible, TReleaser>;

/// Calls come in the control's thread only: the system brings those of others there.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): it frees itself, by Release.
class TAccessibleObject final : public IAccessible, public IEnumVARIANT, public IOleWindow {
 public:
  explicit TAccessibleObject(TAccessibleNode node, std::size_t next = 0)
      : FNode(std::move(node)), FWatch(FNode.Control), FNext(next) {}

  // IUnknown.
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++FReferences; }
  STDMETHODIMP_(ULONG) Release() override;

  // IDispatch. Nobody calls by names what has an interface.
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    return E_NOTIMPL;
  }

  // IAccessible.
  STDMETHODIMP get_accParent(IDispatch** parent) override;
  STDMETHODIMP get_accChildCount(long* count) override;
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
  STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
  STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override;
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
  STDMETHODIMP get_accHelp(VARIANT, BSTR*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accHelpTopic(BSTR*, VARIANT, long*) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* keys) override;
  STDMETHODIMP get_accFocus(VARIANT* focus) override;
  STDMETHODIMP get_accSelection(VARIANT* selection) override;
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
  STDMETHODIMP accSelect(long flags, VARIANT child) override;
  STDMETHODIMP accLocation(long* left, long* top, long* width, long* height,
                           VARIANT child) override;
  STDMETHODIMP accNavigate(long direction, VARIANT start, VARIANT* end) override;
  STDMETHODIMP accHitTest(long left, long top, VARIANT* child) override;
  STDMETHODIMP accDoDefaultAction(VARIANT child) override;
  STDMETHODIMP put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
  STDMETHODIMP put_accValue(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }

  // IEnumVARIANT: the children.
  STDMETHODIMP Next(ULONG count, VARIANT* out, ULONG* fetched) override;
  STDMETHODIMP Skip(ULONG count) override;
  STDMETHODIMP Reset() override;
  STDMETHODIMP Clone(IEnumVARIANT** out) override;

  // IOleWindow.
  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }

 private:
  ~TAccessibleObject() = default;

  template <class Call>
  HRESULT Answer(Call call) const noexcept;
  template <class Own, class Theirs>
  HRESULT About(const VARIANT& child, Own own, Theirs system) const noexcept;
  template <class Theirs>
  HRESULT GiveText(const VARIANT& child, BSTR* out, std::string TAccessibleInfo::*text,
                   Theirs system) const noexcept;
  /// S_FALSE for an empty text.
  static HRESULT Give(const std::string& text, BSTR* out);
  static HRESULT Give(long number, VARIANT* out);
  HRESULT GiveNode(const std::optional<TAccessibleNode>& node, VARIANT* out) const;
  HRESULT DoAction(const TAccessibleNode& node) const;
  HRESULT Select(const TAccessibleNode& node, long flags) const;
  TWinControl* Holder() const;
  bool HasSystemItems() const;
  TAccessiblePtr System() const;

  TAccessibleNode FNode;
  TWatch FWatch;
  std::size_t FNext;
  std::atomic<ULONG> FReferences{1};
};

/// No exception leaves an object that others call.
template <class Call>
HRESULT TAccessibleObject::Answer(Call call) const noexcept {
  if (FWatch.Gone() || FNode.Control->Destroying()) return CO_E_OBJNOTCONNECTED;
  try {
    return call();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

/// Calls `own` with the node that the number means, or `system` with the system's object for an
/// item that only that knows.
template <class Own, class Theirs>
HRESULT TAccessibleObject::About(const VARIANT& child, Own own, Theirs system) const noexcept {
  return Answer([&]() -> HRESULT {
    if (child.vt != VT_I4) return E_INVALIDARG;
    if (child.lVal == CHILDID_SELF) return own(FNode);
    if (HasSystemItems()) {
      const TAccessiblePtr object = System();
      return object ? system(*object) : E_FAIL;
    }
    const std::vector<TAccessibleNode> children = ChildrenOf(FNode);
    if (child.lVal < 1 || child.lVal > static_cast<long>(children.size())) return E_INVALIDARG;
    return own(children[static_cast<std::size_t>(child.lVal) - 1]);
  });
}

template <class Theirs>
HRESULT TAccessibleObject::GiveText(const VARIANT& child, BSTR* out,
                                    std::string TAccessibleInfo::*text,
                                    Theirs system) const noexcept {
  if (!out) return E_POINTER;
  *out = nullptr;
  const auto own = [&](const TAccessibleNode& node) {
    const std::optional<TAccessiblePart> part = Describe(node);
    return part ? Give((*part).*text, out) : CO_E_OBJNOTCONNECTED;
  };
  return About(child, own, system);
}

/// The answer to WM_GETOBJECT for the control: an object that outlives it and then says that it is
/// not connected. 0, which is no object, when the system refuses one.
LRESULT AnswerGetObject(TWinControl& control, WPARAM wParam) noexcept;

}  // namespace vcl
