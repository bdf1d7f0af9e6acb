// Events: what a component calls when something happens to it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "vcl/rtl/api.h"

namespace vcl {

class TObject;

/// What every event has, whatever its parameters: the name of its handler, which is all that a form
/// designer or a form file knows of it.
class VCL_API TEventBase {
 public:
  virtual ~TEventBase() = default;
  /// The handler's name as the form file gives it; empty when it was assigned by code.
  const std::string& HandlerName() const { return FHandlerName; }
  /// Names the handler without binding it; an empty name leaves the event without one.
  void SetHandlerName(std::string name) { FHandlerName = std::move(name); }
  /// True when a call would reach a handler.
  virtual bool Assigned() const = 0;
  /// Forgets the handler and its name.
  virtual void Clear() = 0;

 protected:
  TEventBase() = default;
  TEventBase(const TEventBase&) = default;
  TEventBase& operator=(const TEventBase&) = default;

 private:
  std::string FHandlerName;
};

/// An event with the parameters A. Empty until a method of an object or a lambda is assigned;
/// calling an empty event does nothing. Events are copied but never compared.
///
/// The handler may reassign the event or free its sender: a call keeps what it runs alive.
template <class... A>
class TEvent final : public TEventBase {
 public:
  TEvent() = default;
  TEvent(std::nullptr_t) {}  // NOLINT(google-explicit-constructor): `OnClick = nullptr` reads well.

  /// Any callable that takes the event's parameters.
  template <class F, class = std::enable_if_t<std::is_invocable_v<F&, A...> &&
                                              !std::is_base_of_v<TEventBase, std::decay_t<F>>>>
  TEvent(F handler) : FCall(std::move(handler)) {}  // NOLINT(google-explicit-constructor)

  /// A method of an object, which must outlive the event or clear it.
  template <class T, class C>
  TEvent(T* object, void (C::*method)(A...))
      : FCall([object, method](A... args) { (object->*method)(std::forward<A>(args)...); }) {}

  /// A function that is told the object; the event's handler name stays as it is.
  void BindTo(TObject& object, void (*function)(TObject&, A...)) {
    FCall = [object = &object, function](A... args) {
      function(*object, std::forward<A>(args)...);
    };
  }

  void operator()(A... args) const {
    if (!FCall) return;
    const auto call = FCall;
    call(std::forward<A>(args)...);
  }
  explicit operator bool() const { return static_cast<bool>(FCall); }
  bool Assigned() const override { return static_cast<bool>(FCall); }
  void Clear() override {
    FCall = nullptr;
    SetHandlerName({});
  }

 private:
  std::function<void(A...)> FCall;
};

/// The plain event: something happened to the sender.
using TNotifyEvent = TEvent<TObject*>;

/// The spelling of an event type: the name under which the reference and the designer show it, and
/// the parameters of its handlers as a declaration has them, which the designer writes. Stands
/// beside the type:
///
///     using TCloseEvent = TEvent<TObject*, TCloseAction&>;
///     template <> inline constexpr TEventText EventText<TCloseEvent>{
///         "TCloseEvent", "vcl::TObject* sender, vcl::TCloseAction& action"};
struct TEventText {
  std::string_view Name = "TEvent";
  std::string_view Parameters = {};
};
template <class TheEvent>
inline constexpr TEventText EventText{};
template <>
inline constexpr TEventText EventText<TNotifyEvent>{"TNotifyEvent", "vcl::TObject* sender"};

}  // namespace vcl
