// TAccessibleObject: what it tells of its control or part, of what is around and inside, and where.
#include "vcl/controls/private/accessibleobject.h"
#include "vcl/rtl/utf16.h"

namespace vcl {

HRESULT TAccessibleObject::Give(const std::string& text, BSTR* out) {
  if (text.empty()) return S_FALSE;
  const std::wstring wide = ToUtf16(text);
  *out = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  return *out ? S_OK : E_OUTOFMEMORY;
}

HRESULT TAccessibleObject::Give(long number, VARIANT* out) {
  out->vt = VT_I4;
  out->lVal = number;
  return S_OK;
}

HRESULT TAccessibleObject::GiveNode(const std::optional<TAccessibleNode>& node,
                                    VARIANT* out) const {
  if (!node) return S_FALSE;
  if (*node == FNode) return Give(CHILDID_SELF, out);
  out->pdispVal = new TAccessibleObject(*node);
  out->vt = VT_DISPATCH;
  return S_OK;
}

// The tree.

STDMETHODIMP TAccessibleObject::get_accParent(IDispatch** parent) {
  if (!parent) return E_POINTER;
  *parent = nullptr;
  return Answer([&]() -> HRESULT {
    if (const std::optional<TAccessibleNode> node = ParentOf(FNode)) {
      *parent = new TAccessibleObject(*node);
      return S_OK;
    }
    // Around a form's inside is its window, which the system tells of.
    void* object = nullptr;
    TWinControl* holder = Holder();
    if (!holder) return S_FALSE;
    const HRESULT result = ::AccessibleObjectFromWindow(
        holder->Handle(), static_cast<DWORD>(OBJID_WINDOW), __uuidof(IDispatch), &object);
    *parent = static_cast<IDispatch*>(object);
    return result;
  });
}

STDMETHODIMP TAccessibleObject::get_accChildCount(long* count) {
  if (!count) return E_POINTER;
  *count = 0;
  return Answer([&]() -> HRESULT {
    const TAccessiblePtr system = HasSystemItems() ? System() : nullptr;
    if (system) return system->get_accChildCount(count);
    *count = static_cast<long>(ChildrenOf(FNode).size());
    return S_OK;
  });
}

STDMETHODIMP TAccessibleObject::get_accChild(VARIANT child, IDispatch** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  const auto own = [&](const TAccessibleNode& node) -> HRESULT {
    *object = new TAccessibleObject(node);
    return S_OK;
  };
  return About(child, own, [&](IAccessible& system) { return system.get_accChild(child, object); });
}

// What a node is.

STDMETHODIMP TAccessibleObject::get_accName(VARIANT child, BSTR* name) {
  return GiveText(child, name, &TAccessibleInfo::Name,
                  [&](IAccessible& system) { return system.get_accName(child, name); });
}

STDMETHODIMP TAccessibleObject::get_accValue(VARIANT child, BSTR* value) {
  if (!value) return E_POINTER;
  *value = nullptr;
  const auto own = [&](const TAccessibleNode& node) -> HRESULT {
    const std::optional<TAccessiblePart> part = Describe(node);
    if (!part) return CO_E_OBJNOTCONNECTED;
    return part->State.Has(asProtected) ? E_ACCESSDENIED : Give(part->Value, value);
  };
  return About(child, own, [&](IAccessible& system) { return system.get_accValue(child, value); });
}

STDMETHODIMP TAccessibleObject::get_accDescription(VARIANT child, BSTR* description) {
  return GiveText(child, description, &TAccessibleInfo::Description, [&](IAccessible& system) {
    return system.get_accDescription(child, description);
  });
}

STDMETHODIMP TAccessibleObject::get_accKeyboardShortcut(VARIANT child, BSTR* keys) {
  return GiveText(child, keys, &TAccessibleInfo::KeyboardShortcut,
                  [&](IAccessible& system) { return system.get_accKeyboardShortcut(child, keys); });
}

STDMETHODIMP TAccessibleObject::get_accDefaultAction(VARIANT child, BSTR* action) {
  return GiveText(child, action, &TAccessibleInfo::DefaultAction,
                  [&](IAccessible& system) { return system.get_accDefaultAction(child, action); });
}

STDMETHODIMP TAccessibleObject::get_accRole(VARIANT child, VARIANT* role) {
  if (!role) return E_POINTER;
  ::VariantInit(role);
  const auto own = [&](const TAccessibleNode& node) -> HRESULT {
    const std::optional<TAccessiblePart> part = Describe(node);
    if (!part) return CO_E_OBJNOTCONNECTED;
    const TAccessiblePtr system = part->Role == arNone && node == FNode ? System() : nullptr;
    if (!system) return Give(part->Role == arNone ? arClient : part->Role, role);
    return system->get_accRole(child, role);
  };
  return About(child, own, [&](IAccessible& system) { return system.get_accRole(child, role); });
}

STDMETHODIMP TAccessibleObject::get_accState(VARIANT child, VARIANT* state) {
  if (!state) return E_POINTER;
  ::VariantInit(state);
  const auto own = [&](const TAccessibleNode& node) -> HRESULT {
    const std::optional<TAccessiblePart> part = Describe(node);
    return part ? Give(static_cast<long>(part->State.Bits()), state) : CO_E_OBJNOTCONNECTED;
  };
  return About(child, own, [&](IAccessible& system) { return system.get_accState(child, state); });
}

STDMETHODIMP TAccessibleObject::get_accFocus(VARIANT* focus) {
  if (!focus) return E_POINTER;
  ::VariantInit(focus);
  return Answer([&]() -> HRESULT {
    const std::optional<TAccessibleNode> node = FocusIn(FNode);
    const TAccessiblePtr system = node == FNode && HasSystemItems() ? System() : nullptr;
    const bool item = system && system->get_accFocus(focus) == S_OK && focus->vt != VT_EMPTY;
    return item ? S_OK : GiveNode(node, focus);
  });
}

STDMETHODIMP TAccessibleObject::get_accSelection(VARIANT* selection) {
  if (!selection) return E_POINTER;
  ::VariantInit(selection);
  return Answer([&]() -> HRESULT {
    const TAccessiblePtr system = HasSystemItems() ? System() : nullptr;
    return system ? system->get_accSelection(selection) : GiveNode(SelectionIn(FNode), selection);
  });
}

// Places.

STDMETHODIMP TAccessibleObject::accLocation(long* left, long* top, long* width, long* height,
                                            VARIANT child) {
  if (!left || !top || !width || !height) return E_POINTER;
  const auto own = [&](const TAccessibleNode& node) -> HRESULT {
    const std::optional<TAccessiblePart> part = Describe(node);
    if (!part) return CO_E_OBJNOTCONNECTED;
    *left = part->Bounds.Left;
    *top = part->Bounds.Top;
    *width = part->Bounds.Width();
    *height = part->Bounds.Height();
    return S_OK;
  };
  return About(child, own, [&](IAccessible& system) {
    return system.accLocation(left, top, width, height, child);
  });
}

STDMETHODIMP TAccessibleObject::accNavigate(long direction, VARIANT start, VARIANT* end) {
  if (!end) return E_POINTER;
  ::VariantInit(end);
  const auto system = [&](IAccessible& object) {
    return object.accNavigate(direction, start, end);
  };
  const auto own = [&](const TAccessibleNode& node) -> HRESULT {
    const bool inwards = direction == NAVDIR_FIRSTCHILD || direction == NAVDIR_LASTCHILD;
    const TAccessiblePtr object = inwards && HasSystemItems() ? System() : nullptr;
    return object ? system(*object) : GiveNode(Navigate(node, direction), end);
  };
  return About(start, own, system);
}

STDMETHODIMP TAccessibleObject::accHitTest(long left, long top, VARIANT* child) {
  if (!child) return E_POINTER;
  ::VariantInit(child);
  return Answer([&]() -> HRESULT {
    const TAccessiblePtr system = HasSystemItems() ? System() : nullptr;
    if (system && system->accHitTest(left, top, child) == S_OK && child->vt != VT_EMPTY) {
      return S_OK;
    }
    return GiveNode(NodeAt(FNode, {static_cast<int>(left), static_cast<int>(top)}), child);
  });
}

}  // namespace vcl
