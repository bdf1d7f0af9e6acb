// Published-property tables: what a class publishes, written once in its source file and read by
// form files, the designer, the reference and the tests.
//
//     const TClass& TGauge::Class() {
//       static const TClass info = Describe<TGauge, TGraphicControl>("TGauge", "gauge", {
//           Inherit("Align"),
//           Property<&TGauge::Max, &TGauge::SetMax>("Max").Default(100),
//           Event<&TGauge::OnChange>("OnChange"),
//       });
//       return info;
//     }
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <variant>
#include <vector>

#include "vcl/rtl/events.h"
#include "vcl/rtl/object.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

/// The value of a property: an ordinal (integers, enumerations, sets as bits, characters, colours,
/// booleans), a float, a text, or a reference to an object (null for none).
using TValue = std::variant<std::int64_t, double, std::string, TObject*>;

/// One published property or event of a class.
class VCL_API TPropInfo {
 public:
  enum class TStored { Always, Never, Asked };

  std::string Name;
  const TTypeInfo* Type = nullptr;
  /// Instead of the type's own name: an alias such as TCaption, or an event type.
  std::string_view Alias;
  TValue (*Getter)(const TObject&) = nullptr;
  void (*Setter)(TObject&, const TValue&) = nullptr;
  TEventBase& (*EventOf)(TObject&) = nullptr;
  const std::type_info* Signature = nullptr;
  std::optional<TValue> DefaultValue;
  /// When set, the declared default holds only for objects of which it is true.
  bool (*AskDefault)(const TObject&) = nullptr;
  TStored Stored = TStored::Always;
  bool (*AskStored)(const TObject&) = nullptr;

  TTypeKind Kind() const { return Type->Kind; }
  std::string_view TypeName() const { return Alias.empty() ? Type->Name() : Alias; }
  bool IsEvent() const { return EventOf != nullptr; }
  bool ReadOnly() const { return Setter == nullptr; }
  /// The alternative of TValue that the property's values are of.
  std::size_t ValueIndex() const;
  /// The current value. Not for events.
  TValue Get(const TObject& object) const { return Getter(object); }
  /// Sets the value as code would. Raises EPropertyError for a read-only property, an ordinal
  /// outside the type's range, or a value of another sort.
  void Set(TObject& object, const TValue& value) const;
  /// True when form files may hold the property of this object.
  bool IsStored(const TObject& object) const;
  /// True when a form file would hold the property of this object: it is stored, and has no
  /// declared default or differs from it. Says nothing of an object's own properties.
  bool NeedsWriting(const TObject& object) const;
};

/// A form class's field for one of its components.
struct TFieldInfo {
  std::string Name;
  /// The field's class, which form files of this form class may name without it being registered.
  const TClass& (*ClassOf)();
  /// Stores the component; false when it is of another class than the field.
  bool (*Assign)(TObject& form, TComponent* component);
};

/// A form class's handler.
struct TMethodInfo {
  std::string Name;
  const std::type_info* Signature;
  void (*Bind)(TObject& target, TEventBase& event);
};

/// Names of properties that classes publish together.
using TPropertyGroup = std::span<const char* const>;

/// One line of a class's table.
class VCL_API TClassEntry {
 public:
  enum class TSort { Property, Inherit, Field, Method };

  /// The declared default; a value equal to it is not written to form files.
  template <class T>
  TClassEntry Default(T value) &&;
  /// The declared default holds only for objects that say so, as an owner may make them with
  /// another value; of the others the value is always written.
  template <auto Ask>
  TClassEntry DefaultIf() &&;
  /// Takes back a default that the ancestor declares: the value is always written.
  TClassEntry NoDefault() && { return FNoDefault = true, std::move(*this); }
  /// False: never written to form files.
  TClassEntry Stored(bool stored) &&;
  /// Written only when the object says so.
  template <auto Ask>
  TClassEntry StoredIf() &&;
  /// Shows another name for the type (TCaption for a string).
  TClassEntry Type(std::string_view alias) && { return Prop.Alias = alias, std::move(*this); }
  /// Describes the property for descendants to publish, without publishing it here.
  TClassEntry Unpublished() && { return FUnpublished = true, std::move(*this); }

  TSort Sort = TSort::Property;
  TPropInfo Prop;
  TPropertyGroup Group;  // What an Inherit of several publishes.
  TFieldInfo Field{};
  TMethodInfo Method{};
  bool FUnpublished = false;
  bool FNoDefault = false;
  std::optional<TPropInfo::TStored> FStored;
};

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

template <class C, class... A>
TMethodInfo MethodInfo(std::string name, void (C::*)(A...), void (*bind)(TObject&, TEventBase&)) {
  return {std::move(name), &typeid(TEvent<A...>), bind};
}

template <auto Method, class C, class... A>
void BindTyped(TObject& target, TEventBase& event, void (C::*)(A...)) {
  static_cast<TEvent<A...>&>(event) = TEvent<A...>(static_cast<C*>(&target), Method);
}

template <auto Method>
void BindThunk(TObject& target, TEventBase& event) {
  BindTyped<Method>(target, event, Method);
}

VCL_API const TTypeInfo& EventTypeInfo();

template <class T>
TMaker MakerOf() {
  if constexpr (std::is_abstract_v<T>) {
    return {};
  } else if constexpr (std::is_base_of_v<TComponent, T>) {
    if constexpr (std::is_constructible_v<T, TComponent*>) {
      return {[](TComponent* owner) -> TComponent* { return new T(owner); }};
    } else {
      return {};
    }
  } else if constexpr (std::is_constructible_v<T, TCollection*>) {
    return {nullptr, [](TCollection* c) -> TObject* { return new T(c); }};
  } else if constexpr (std::is_default_constructible_v<T>) {
    return {nullptr, nullptr, []() -> TObject* { return new T; }};
  } else {
    return {};
  }
}

}  // namespace detail

/// A property read by one method and written by another.
template <auto Get, auto SetMember>
TClassEntry Property(std::string name) {
  TClassEntry entry;
  entry.Prop.Name = std::move(name);
  entry.Prop.Type = &TypeInfoOf<typename detail::MemberOf<decltype(Get)>::Result>();
  entry.Prop.Getter = &detail::GetThunk<Get>;
  entry.Prop.Setter = &detail::SetThunk<SetMember>;
  return entry;
}

/// A property that can only be read; form files never hold it, but an object behind it keeps its
/// own published properties there.
template <auto Get>
TClassEntry ReadOnly(std::string name) {
  TClassEntry entry;
  entry.Prop.Name = std::move(name);
  entry.Prop.Type = &TypeInfoOf<typename detail::MemberOf<decltype(Get)>::Result>();
  entry.Prop.Getter = &detail::GetThunk<Get>;
  return entry;
}

/// An event: a public member of a TEvent type.
template <auto Member>
TClassEntry Event(std::string name) {
  using E = typename detail::MemberOf<decltype(Member)>::Result;
  TClassEntry entry;
  entry.Prop.Name = std::move(name);
  entry.Prop.Type = &detail::EventTypeInfo();
  entry.Prop.Alias = EventName<E>;
  entry.Prop.EventOf = &detail::EventThunk<Member>;
  entry.Prop.Signature = &typeid(E);
  return entry;
}

/// Publishes what an ancestor describes or publishes, with its default unless another is declared.
inline TClassEntry Inherit(std::string name) {
  TClassEntry entry;
  entry.Sort = TClassEntry::TSort::Inherit;
  entry.Prop.Name = std::move(name);
  return entry;
}

/// Publishes all of a group, in its order, each as Inherit does.
inline TClassEntry Inherit(TPropertyGroup group) {
  TClassEntry entry;
  entry.Sort = TClassEntry::TSort::Inherit;
  entry.Group = group;
  return entry;
}

/// A form class's field, filled with the component of the same name when a form file is read.
template <auto Member>
TClassEntry Field(std::string name) {
  TClassEntry entry;
  entry.Sort = TClassEntry::TSort::Field;
  using C = std::remove_pointer_t<typename detail::MemberOf<decltype(Member)>::Result>;
  entry.Field = {std::move(name), &C::Class, &detail::AssignField<Member>};
  return entry;
}

/// A form class's handler, bound to the events that a form file names it for.
template <auto Member>
TClassEntry Method(std::string name) {
  TClassEntry entry;
  entry.Sort = TClassEntry::TSort::Method;
  entry.Method = detail::MethodInfo(std::move(name), Member, &detail::BindThunk<Member>);
  return entry;
}

/// Describes the class T, which descends from Parent: its name, the unit that declares it, and the
/// lines of its table. Raises EPropertyError when an inherited name is not described by an
/// ancestor.
template <class T, class Parent>
TClass Describe(std::string name, std::string unit, std::vector<TClassEntry> entries) {
  static_assert(std::is_base_of_v<Parent, T>);
  return TClass(std::move(name), std::move(unit), &Parent::Class(), detail::MakerOf<T>(),
                std::move(entries));
}

template <class T>
TClassEntry TClassEntry::Default(T value) && {
  Prop.DefaultValue = detail::ToValue(value);
  return std::move(*this);
}

template <auto Ask>
TClassEntry TClassEntry::DefaultIf() && {
  Prop.AskDefault = &detail::AskThunk<Ask>;
  return std::move(*this);
}

template <auto Ask>
TClassEntry TClassEntry::StoredIf() && {
  FStored = TPropInfo::TStored::Asked;
  Prop.AskStored = &detail::AskThunk<Ask>;
  return std::move(*this);
}

}  // namespace vcl
