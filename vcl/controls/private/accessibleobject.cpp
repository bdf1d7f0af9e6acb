// TAccessibleObject: a control or one of its parts, as the system's interface for screen readers
// has it.
#include "vcl/controls/private/accessibleobject.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "vcl/controls/messagewindow.h"
#include "vcl/controls/private/accessiblenode.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/watch.h"
#include "vcl/rtl/win32.h"
// The others need what stands above.
#include <ole2.h>
#include <oleacc.h>

namespace vcl {

// The header that has no system's header repeats its numbers.
static_assert(arToolTip == ROLE_SYSTEM_TOOLTIP && arWindow == ROLE_SYSTEM_WINDOW);
static_assert(arClient == ROLE_SYSTEM_CLIENT && arPane == ROLE_SYSTEM_PANE);
static_assert(arDialog == ROLE_SYSTEM_DIALOG && arGrouping == ROLE_SYSTEM_GROUPING);
static_assert(arSeparator == ROLE_SYSTEM_SEPARATOR && arToolBar == ROLE_SYSTEM_TOOLBAR);
static_assert(arStatusBar == ROLE_SYSTEM_STATUSBAR && arTable == ROLE_SYSTEM_TABLE);
static_assert(arColumnHeader == ROLE_SYSTEM_COLUMNHEADER && arRow == ROLE_SYSTEM_ROW);
static_assert(arCell == ROLE_SYSTEM_CELL && arList == ROLE_SYSTEM_LIST);
static_assert(arListItem == ROLE_SYSTEM_LISTITEM && arOutline == ROLE_SYSTEM_OUTLINE);
static_assert(arPageTab == ROLE_SYSTEM_PAGETAB && arPropertyPage == ROLE_SYSTEM_PROPERTYPAGE);
static_assert(arGraphic == ROLE_SYSTEM_GRAPHIC && arStaticText == ROLE_SYSTEM_STATICTEXT);
static_assert(arText == ROLE_SYSTEM_TEXT && arPushButton == ROLE_SYSTEM_PUSHBUTTON);
static_assert(arCheckBox == ROLE_SYSTEM_CHECKBUTTON && arRadioButton == ROLE_SYSTEM_RADIOBUTTON);
static_assert(arComboBox == ROLE_SYSTEM_COMBOBOX && arProgressBar == ROLE_SYSTEM_PROGRESSBAR);
static_assert(arSlider == ROLE_SYSTEM_SLIDER && arSpinButton == ROLE_SYSTEM_SPINBUTTON);
static_assert(arPageTabList == ROLE_SYSTEM_PAGETABLIST);

static_assert(TAccessibleState{asDisabled}.Bits() == STATE_SYSTEM_UNAVAILABLE);
static_assert(TAccessibleState{asSelected}.Bits() == STATE_SYSTEM_SELECTED);
static_assert(TAccessibleState{asFocused}.Bits() == STATE_SYSTEM_FOCUSED);
static_assert(TAccessibleState{asPressed}.Bits() == STATE_SYSTEM_PRESSED);
static_assert(TAccessibleState{asChecked}.Bits() == STATE_SYSTEM_CHECKED);
static_assert(TAccessibleState{asMixed}.Bits() == STATE_SYSTEM_MIXED);
static_assert(TAccessibleState{asReadOnly}.Bits() == STATE_SYSTEM_READONLY);
static_assert(TAccessibleState{asDefault}.Bits() == STATE_SYSTEM_DEFAULT);
static_assert(TAccessibleState{asExpanded}.Bits() == STATE_SYSTEM_EXPANDED);
static_assert(TAccessibleState{asCollapsed}.Bits() == STATE_SYSTEM_COLLAPSED);
static_assert(TAccessibleState{asInvisible}.Bits() == STATE_SYSTEM_INVISIBLE);
static_assert(TAccessibleState{asOffscreen}.Bits() == STATE_SYSTEM_OFFSCREEN);
static_assert(TAccessibleState{asFocusable}.Bits() == STATE_SYSTEM_FOCUSABLE);
static_assert(TAccessibleState{asSelectable}.Bits() == STATE_SYSTEM_SELECTABLE);
static_assert(TAccessibleState{asProtected}.Bits() == STATE_SYSTEM_PROTECTED);

namespace {

struct TReleaser {
  void operator()(IUnknown* object) const { object->Release(); }
};
using TAccessiblePtr = std::unique_ptr<IAccessible, TReleaser>;

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

HRESULT Give(const std::string& text, BSTR* out) {
  if (text.empty()) return S_FALSE;
  const std::wstring wide = ToUtf16(text);
  *out = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  return *out ? S_OK : E_OUTOFMEMORY;
}

HRESULT Give(long number, VARIANT* out) {
  out->vt = VT_I4;
  out->lVal = number;
  return S_OK;
}

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

// What the methods share.

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

HRESULT TAccessibleObject::GiveNode(const std::optional<TAccessibleNode>& node,
                                    VARIANT* out) const {
  if (!node) return S_FALSE;
  if (*node == FNode) return Give(CHILDID_SELF, out);
  out->pdispVal = new TAccessibleObject(*node);
  out->vt = VT_DISPATCH;
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

}  // namespace

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
