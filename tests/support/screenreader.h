// Asks for windows and what is in them as a screen reader does.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
// The others need what stands above.
#include <ole2.h>
#include <oleacc.h>

#include "vcl/rtl/systemmacros.h"

namespace screenreader {

struct TReleaser {
  void operator()(IUnknown* object) const { object->Release(); }
};
using TAccessiblePtr = std::unique_ptr<IAccessible, TReleaser>;

inline VARIANT Number(long number) {
  VARIANT variant;
  ::VariantInit(&variant);
  variant.vt = VT_I4;
  variant.lVal = number;
  return variant;
}

/// An object, or an item that it knows by a number. What it says is empty where it says nothing.
struct TSpoken {
  std::shared_ptr<IAccessible> Object;
  long Child = CHILDID_SELF;

  explicit operator bool() const { return Object != nullptr; }
  std::string Name() const { return Text(&IAccessible::get_accName); }
  std::string Value() const { return Text(&IAccessible::get_accValue); }
  std::string Description() const { return Text(&IAccessible::get_accDescription); }
  std::string Keys() const { return Text(&IAccessible::get_accKeyboardShortcut); }
  std::string Action() const { return Text(&IAccessible::get_accDefaultAction); }
  long Role() const { return Long(&IAccessible::get_accRole); }
  long State() const { return Long(&IAccessible::get_accState); }
  bool Has(long states) const { return (State() & states) == states; }
  HRESULT Do() const { return Object->accDoDefaultAction(Number(Child)); }
  HRESULT Select(long flags) const { return Object->accSelect(flags, Number(Child)); }
  RECT Place() const {
    long left = 0, top = 0, width = 0, height = 0;
    Object->accLocation(&left, &top, &width, &height, Number(Child));
    return {left, top, left + width, top + height};
  }

 private:
  std::string Text(HRESULT (STDMETHODCALLTYPE IAccessible::*method)(VARIANT, BSTR*)) const {
    BSTR text = nullptr;
    (Object.get()->*method)(Number(Child), &text);
    const std::string result = text ? vcl::ToUtf8(std::wstring_view(text)) : std::string();
    ::SysFreeString(text);
    return result;
  }
  long Long(HRESULT (STDMETHODCALLTYPE IAccessible::*method)(VARIANT, VARIANT*)) const {
    VARIANT value = Number(0);
    (Object.get()->*method)(Number(Child), &value);
    return value.lVal;
  }
};

/// Takes over what the variant holds; nothing for an empty one.
inline TSpoken Take(const TSpoken& from, VARIANT& variant) {
  TSpoken spoken;
  if (variant.vt == VT_I4) spoken = {from.Object, variant.lVal};
  if (variant.vt == VT_DISPATCH) {
    IAccessible* object = nullptr;
    variant.pdispVal->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(&object));
    spoken.Object.reset(object, TReleaser());
  }
  ::VariantClear(&variant);
  return spoken;
}

inline TSpoken OfWindow(HWND window) {
  void* object = nullptr;
  ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                               &object);
  TSpoken spoken;
  if (object) spoken.Object.reset(static_cast<IAccessible*>(object), TReleaser());
  return spoken;
}

inline std::vector<TSpoken> ChildrenOf(const TSpoken& spoken) {
  long count = 0;
  spoken.Object->get_accChildCount(&count);
  std::vector<VARIANT> variants(static_cast<std::size_t>(count));
  if (count > 0) ::AccessibleChildren(spoken.Object.get(), 0, count, variants.data(), &count);
  std::vector<TSpoken> children;
  for (long i = 0; i < count; ++i) {
    children.push_back(Take(spoken, variants[static_cast<std::size_t>(i)]));
  }
  return children;
}

/// The first below `spoken`, however deep, for which the condition holds; empty when none is.
inline TSpoken Find(const TSpoken& spoken, const std::function<bool(const TSpoken&)>& condition) {
  for (const TSpoken& child : ChildrenOf(spoken)) {
    if (condition(child)) return child;
    const TSpoken inner = child.Child == CHILDID_SELF ? Find(child, condition) : TSpoken();
    if (inner) return inner;
  }
  return {};
}
inline TSpoken Named(const TSpoken& spoken, const std::string& name) {
  return Find(spoken, [&](const TSpoken& each) { return each.Name() == name; });
}

inline TSpoken ParentOf(const TSpoken& spoken) {
  VARIANT parent;
  ::VariantInit(&parent);
  parent.vt = VT_DISPATCH;
  if (spoken.Object->get_accParent(&parent.pdispVal) != S_OK) return {};
  return Take(spoken, parent);
}

/// What one of the methods that give an object or a number gives.
template <class... A>
TSpoken Ask(const TSpoken& spoken, HRESULT (STDMETHODCALLTYPE IAccessible::*method)(A..., VARIANT*),
            A... args) {
  VARIANT found;
  ::VariantInit(&found);
  (spoken.Object.get()->*method)(args..., &found);
  return Take(spoken, found);
}

/// Hears what this process tells screen readers, as long as it lives.
class TListener {
 public:
  TListener() {
    Current() = this;
    FHook = ::SetWinEventHook(EVENT_MIN, EVENT_MAX, nullptr, &Hear, ::GetCurrentProcessId(), 0,
                              WINEVENT_OUTOFCONTEXT);
  }
  ~TListener() {
    ::UnhookWinEvent(FHook);
    Current() = nullptr;
  }
  TListener(const TListener&) = delete;
  TListener& operator=(const TListener&) = delete;

  /// Whether the event has been told of something of the name since the last `Forget`.
  bool Heard(DWORD event, const std::string& name) const {
    for (const auto& each : FHeard) {
      if (each.Event == event && each.Name == name) return true;
    }
    return false;
  }
  void Forget() { FHeard.clear(); }

 private:
  struct THeard {
    DWORD Event;
    std::string Name;
  };
  static TListener*& Current() {
    static TListener* current = nullptr;
    return current;
  }
  static void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD,
                            DWORD) {
    if (object != OBJID_CLIENT || !Current()) return;
    IAccessible* found = nullptr;
    VARIANT part = Number(0);
    const HRESULT result = ::AccessibleObjectFromEvent(window, static_cast<DWORD>(object),
                                                       static_cast<DWORD>(child), &found, &part);
    if (result != S_OK || !found) return;
    const TSpoken spoken{{found, TReleaser()}, part.lVal};
    Current()->FHeard.push_back({event, spoken.Name()});
  }

  HWINEVENTHOOK FHook;
  std::vector<THeard> FHeard;
};

}  // namespace screenreader
