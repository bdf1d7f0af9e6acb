// What lies between a table of published properties and a class's members: what a member's type
// says of it, and the functions that call it for any object of the class.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <variant>

#include "vcl/rtl/events.h"
#include "vcl/rtl/object.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

/// The value of a property: an ordinal (integers, enumerations, sets as bits, characters, colours,
/// booleans), a float, a text, or a reference to an object (null for none).
using TValue = std::variant<std::int64_t, double, std::string, TObject*>;

namespace detail {

template <class>
struct MemberOf;
template <class C, class R, class... A>
struct MemberOf<R (C::*)(A...)> {
  using Class = C;
  using Result = std::decay_t<R>;
};
template <class C, class R>
struct MemberOf<R (C::*)() const> : MemberOf<R (C::*)()> {};
template <class C, class R>
struct MemberOf<R (C::*)() const noexcept> : MemberOf<R (C::*)()> {};
template <class C, class F>
struct MemberOf<F C::*> {
  using Class = C;
  using Result = F;
};
template <class>
struct SetterOf;
template <class C, class R, class A>
struct SetterOf<R (C::*)(A)> {
  using Class = C;
  using Argument = std::decay_t<A>;
};

// What tables refuse in one line: the checks stand in front of what would fail inside.
template <class>
inline constexpr bool Never = false;
template <class>
inline constexpr bool IsGetter = false;
template <class C, class R>
inline constexpr bool IsGetter<R (C::*)() const> = !std::is_void_v<R>;
template <class C, class R>
inline constexpr bool IsGetter<R (C::*)() const noexcept> = !std::is_void_v<R>;

/// The alternative of TValue that a type's values are of; -1 for a type that no property has.
template <class T>
constexpr int SortOf() {
  if (std::is_pointer_v<T>) return 3;
  if (std::is_convertible_v<T, std::string>) return 2;
  if (std::is_floating_point_v<T>) return 1;
  return std::is_integral_v<T> || std::is_enum_v<T> || IsSet<T>::value ? 0 : -1;
}

template <class Get>
constexpr bool ReadsProperty() {
  if constexpr (IsGetter<Get>) return SortOf<typename MemberOf<Get>::Result>() >= 0;
  return false;
}

template <class Set, class Get>
constexpr bool WritesWhatReads() {
  if constexpr (requires { typename SetterOf<Set>::Argument; }) {
    return SortOf<typename SetterOf<Set>::Argument>() == SortOf<typename MemberOf<Get>::Result>();
  }
  return false;
}

template <class Member>
constexpr bool IsEventMember() {
  if constexpr (std::is_member_object_pointer_v<Member>) {
    return std::is_base_of_v<TEventBase, typename MemberOf<Member>::Result>;
  }
  return false;
}

template <class Member>
constexpr bool IsComponentMember() {
  if constexpr (std::is_member_object_pointer_v<Member>) {
    using Result = typename MemberOf<Member>::Result;
    return std::is_pointer_v<Result> && std::is_class_v<std::remove_pointer_t<Result>>;
  }
  return false;
}

template <class>
inline constexpr bool IsHandler = false;
template <class C, class... A>
inline constexpr bool IsHandler<void (C::*)(A...)> = true;

template <class T>
TValue ToValue(const T& value) {
  if constexpr (std::is_pointer_v<T>) {
    return static_cast<TObject*>(const_cast<std::remove_const_t<std::remove_pointer_t<T>>*>(value));
  } else if constexpr (IsSet<T>::value) {
    return static_cast<std::int64_t>(value.Bits());
  } else if constexpr (std::is_floating_point_v<T>) {
    return static_cast<double>(value);
  } else if constexpr (std::is_convertible_v<T, std::string>) {
    return std::string(value);
  } else {
    return static_cast<std::int64_t>(value);
  }
}

template <class T>
T FromValue(const TValue& value) {
  if constexpr (std::is_pointer_v<T>) {
    return static_cast<T>(std::get<TObject*>(value));
  } else if constexpr (IsSet<T>::value) {
    return T::FromBits(static_cast<std::uint32_t>(std::get<std::int64_t>(value)));
  } else if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(std::get<double>(value));
  } else if constexpr (std::is_same_v<T, std::string>) {
    return std::get<std::string>(value);
  } else {
    return static_cast<T>(std::get<std::int64_t>(value));
  }
}

template <auto Get>
TValue GetThunk(const TObject& object) {
  using C = typename MemberOf<decltype(Get)>::Class;
  return ToValue<typename MemberOf<decltype(Get)>::Result>((static_cast<const C&>(object).*Get)());
}

template <auto SetMember>
void SetThunk(TObject& object, const TValue& value) {
  using S = SetterOf<decltype(SetMember)>;
  (static_cast<typename S::Class&>(object).*SetMember)(FromValue<typename S::Argument>(value));
}

template <auto Member>
TEventBase& EventThunk(TObject& object) {
  return static_cast<typename MemberOf<decltype(Member)>::Class&>(object).*Member;
}

template <auto Ask>
bool AskThunk(const TObject& object) {
  return (static_cast<const typename MemberOf<decltype(Ask)>::Class&>(object).*Ask)();
}

template <auto Member>
bool AssignField(TObject& form, TComponent* component) {
  using M = MemberOf<decltype(Member)>;
  auto* typed = dynamic_cast<typename M::Result>(component);
  if (component && !typed) return false;
  static_cast<typename M::Class&>(form).*Member = typed;
  return true;
}

// An imported function has no address before the program runs; a call of it has.
template <class C>
const TClass& ClassOf() {
  return C::Class();
}

template <class C, class... A>
constexpr const std::type_info* SignatureOf(void (C::*)(A...)) {
  return &typeid(TEvent<A...>);
}

// What binds a handler is compiled once for each type of event; a handler adds no more than a call.
template <auto Method, class C, class... A>
struct HandlerCall {
  static void Call(TObject& target, A... args) {
    (static_cast<C&>(target).*Method)(std::forward<A>(args)...);
  }
  static void Bind(TObject& target, TEventBase& event) {
    static_cast<TEvent<A...>&>(event).BindTo(target, &Call);
  }
};
template <auto Method, class C, class... A>
constexpr auto BinderOf(void (C::*)(A...)) {
  return &HandlerCall<Method, C, A...>::Bind;
}

VCL_API const TTypeInfo& EventTypeInfo();
inline const TTypeInfo& EventType() { return EventTypeInfo(); }  // See ClassOf.

template <class T>
constexpr TMaker MakerOf() {
  constexpr bool component = std::is_base_of_v<TComponent, T>;
  if constexpr (component && std::is_constructible_v<T, TComponent*>) {
    return {[](TComponent* owner) -> TComponent* { return new T(owner); }};
  } else if constexpr (!component && std::is_constructible_v<T, TCollection*>) {
    return {nullptr, [](TCollection* c) -> TObject* { return new T(c); }};
  } else if constexpr (!component && std::is_default_constructible_v<T>) {
    return {nullptr, nullptr, []() -> TObject* { return new T; }};
  } else {
    return {};
  }
}

}  // namespace detail

}  // namespace vcl
