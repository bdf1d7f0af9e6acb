// TAccessibleObject as an object: its interfaces, its children one after another, and doing what it
// is asked to do.
#include "vcl/controls/private/accessibleobject.h"

#include <functional>

#include "vcl/controls/messagewindow.h"

namespace vcl {

// IUnknown and IDispatch.

STDMETHODIMP TAccessibleObject::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid == __uuidof(IUnknown) || iid == __uuidof(IDispatch) || iid == __uuidof(IAccessible)) {
    *out = static_cast<IAccessible*>(this);
  } else if (iid == __uuidof(IEnumVARIANT)) {
    // Where the system knows the items, their numbers are asked for one by one.
    bool own = true;
    const HRESULT answer = Answer([&] { return own = !HasSystemItems(), S_OK; });
    if (answer == S_OK && own) *out = static_cast<IEnumVARIANT*>(this);
  } else if (iid == __uuidof(IOleWindow)) {
    *out = static_cast<IOleWindow*>(this);
  }
  if (!*out) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) TAccessibleObject::Release() {
  const ULONG left = --FReferences;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP TAccessibleObject::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

/// The window that the node lies in; null without any.
TWinControl* TAccessibleObject::Holder() const {
  auto* window = dynamic_cast<TWinControl*>(FNode.Control);
  TWinControl* holder = window ? window : FNode.Control->Parent();
  return holder && holder->HandleAllocated() ? holder : nullptr;
}

bool TAccessibleObject::HasSystemItems() const {
  return FNode.Part.empty() && FNode.Control->Accessible().SystemItems && Holder();
}

/// The object that the window would have without this library; null when there is none.
TAccessiblePtr TAccessibleObject::System() const {
  TWinControl* holder = Holder();
  void* object = nullptr;
  if (holder) {
    ::CreateStdAccessibleObject(holder->Handle(), OBJID_CLIENT, __uuidof(IAccessible), &object);
  }
  return TAccessiblePtr(static_cast<IAccessible*>(object));
}

namespace {

/// Runs the call when the program handles its messages again: whoever asked for it need not wait
/// for a box that it shows. What it raises goes to the application.
void Later(std::function<void()> call) {
  const auto window = std::make_shared<HWND>();
  *window = AllocateHWnd([window, call = std::move(call)](TMessage& message) {
    if (message.Msg != WM_APP) {
      message.Result = ::DefWindowProcW(*window, message.Msg, message.WParam, message.LParam);
      return;
    }
    DeallocateHWnd(*window);
    call();
  });
  ::PostMessageW(*window, WM_APP, 0, 0);
}

}  // namespace

// Doing something.

STDMETHODIMP TAccessibleObject::accDoDefaultAction(VARIANT child) {
  return About(
      child, [&](const TAccessibleNode& node) { return DoAction(node); },
      [&](IAccessible& system) { return system.accDoDefaultAction(child); });
}

HRESULT TAccessibleObject::DoAction(const TAccessibleNode& node) const {
  const std::optional<TAccessiblePart> part = Describe(node);
  if (!part) return CO_E_OBJNOTCONNECTED;
  if (part->DefaultAction.empty() || node.Control->Designing()) return DISP_E_MEMBERNOTFOUND;
  if (part->State.Has(asDisabled) || part->State.Has(asInvisible)) return E_ACCESSDENIED;
  Later([node, watch = TWatch(node.Control)] {
    if (watch.Gone()) return;
    node.Part.empty() ? node.Control->DoAccessibleAction()
                      : node.Control->DoAccessiblePart(node.Part);
  });
  return S_OK;
}

STDMETHODIMP TAccessibleObject::accSelect(long flags, VARIANT child) {
  return About(
      child, [&](const TAccessibleNode& node) { return Select(node, flags); },
      [&](IAccessible& system) { return system.accSelect(flags, child); });
}

HRESULT TAccessibleObject::Select(const TAccessibleNode& node, long flags) const {
  auto* window = dynamic_cast<TWinControl*>(node.Control);
  const std::optional<TAccessiblePart> part = Describe(node);
  if (!part || node.Control->Designing()) return E_ACCESSDENIED;
  const bool selects = !node.Part.empty() && part->State.Has(asSelectable);
  const bool focuses = node.Part.empty() && window && window->CanFocus();
  if ((flags & SELFLAG_TAKESELECTION) && selects) return DoAction(node);
  if (!(flags & SELFLAG_TAKEFOCUS) || !focuses) return E_INVALIDARG;
  window->SetFocus();
  return S_OK;
}

// IEnumVARIANT and IOleWindow.

STDMETHODIMP TAccessibleObject::Next(ULONG count, VARIANT* out, ULONG* fetched) {
  if (!out) return E_POINTER;
  if (fetched) *fetched = 0;
  return Answer([&]() -> HRESULT {
    const std::vector<TAccessibleNode> children = ChildrenOf(FNode);
    ULONG given = 0;
    while (given < count && FNext < children.size()) {
      ::VariantInit(&out[given]);
      GiveNode(children[FNext], &out[given]);
      ++given;
      ++FNext;
    }
    if (fetched) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  });
}

STDMETHODIMP TAccessibleObject::Skip(ULONG count) {
  return Answer([&]() -> HRESULT {
    const std::size_t size = ChildrenOf(FNode).size();
    const bool enough = FNext + count <= size;
    FNext = enough ? FNext + count : size;
    return enough ? S_OK : S_FALSE;
  });
}

STDMETHODIMP TAccessibleObject::Reset() {
  FNext = 0;
  return S_OK;
}

STDMETHODIMP TAccessibleObject::Clone(IEnumVARIANT** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  return Answer([&] { return *out = new TAccessibleObject(FNode, FNext), S_OK; });
}

STDMETHODIMP TAccessibleObject::GetWindow(HWND* window) {
  if (!window) return E_POINTER;
  *window = nullptr;
  return Answer([&] {
    TWinControl* holder = Holder();
    if (holder) *window = holder->Handle();
    return holder ? S_OK : E_FAIL;
  });
}

LRESULT AnswerGetObject(TWinControl& control, WPARAM wParam) noexcept {
  try {
    // What comes from other threads needs an apartment to come to, for as long as the program runs.
    static const HRESULT apartment = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    static_cast<void>(apartment);
    const TAccessiblePtr object(new TAccessibleObject({&control, {}}));
    return ::LresultFromObject(__uuidof(IAccessible), wParam, object.get());
  } catch (...) {
    return 0;
  }
}

}  // namespace vcl
