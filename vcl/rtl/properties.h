// Published-property tables: what a class publishes, written once in its source file and read by
// form files, the designer, the reference and the tests.
//
//     const TClass& TGauge::Class() {
//       static const TClass info = Describe<TGauge, TGraphicControl>("shapes::TGauge",
//       "shapes/gauge.h", {
//           Inherit("Align"),
//           Property<&TGauge::Max, &TGauge::SetMax>("Max").Default(100),
//           Event<&TGauge::OnChange>("OnChange"),
//       });
//       return info;
//     }
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>

#include "vcl/rtl/propertythunks.h"

namespace vcl {

/// One published property or event of a class.
class VCL_API TPropInfo {
 public:
  enum class TStored { Always, Never, Asked };

  std::string Name;
  const TTypeInfo* Type = nullptr;
  /// Instead of the type's own name: an alias such as TCaption, or an event type.
  std::string_view Alias;
  /// The parameters of an event's handlers, as a declaration has them.
  std::string_view Parameters;
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
  std::string_view Name;
  /// The field's class, which form files of this form class may name without it being registered.
  const TClass& (*ClassOf)() = nullptr;
  /// Stores the component; false when it is of another class than the field.
  bool (*Assign)(TObject& form, TComponent* component) = nullptr;
};

/// A form class's handler.
struct TMethodInfo {
  std::string_view Name;
  const std::type_info* Signature = nullptr;
  void (*Bind)(TObject& target, TEventBase& event) = nullptr;
};

/// A declared default, as a table holds it.
struct TDeclaredDefault {
  enum class TKind { None, Ordinal, Float, Text };
  TKind Kind = TKind::None;
  std::int64_t Ordinal = 0;
  double Float = 0;
  std::string_view Text;
};

/// One line of a class's table: plain data that the compiler lays out, so its texts must be
/// literals.
class TClassEntry {
 public:
  enum class TSort { Property, Inherit, Field, Method };

  /// The declared default; a value equal to it is not written to form files.
  template <class T>
  constexpr TClassEntry Default(T value) const;
  /// The declared default holds only for objects that say so, as an owner may make them with
  /// another value; of the others the value is always written.
  template <auto Ask>
  constexpr TClassEntry DefaultIf() const;
  /// Takes back a default that the ancestor declares: the value is always written.
  constexpr TClassEntry NoDefault() const;
  /// False: never written to form files.
  constexpr TClassEntry Stored(bool stored) const;
  /// Written only when the object says so.
  template <auto Ask>
  constexpr TClassEntry StoredIf() const;
  /// Shows another name for the type (TCaption for a string).
  constexpr TClassEntry Type(std::string_view alias) const;
  /// Of an event: another name for its type, whose parameters have other names.
  constexpr TClassEntry Type(std::string_view alias, std::string_view parameters) const;
  /// Describes the property for descendants to publish, without publishing it here.
  constexpr TClassEntry Unpublished() const;

  TSort Sort = TSort::Property;
  std::string_view Name;
  const TTypeInfo& (*TypeOf)() = nullptr;
  std::string_view Alias;
  std::string_view Parameters;
  TValue (*Getter)(const TObject&) = nullptr;
  void (*Setter)(TObject&, const TValue&) = nullptr;
  TEventBase& (*EventOf)(TObject&) = nullptr;
  const std::type_info* Signature = nullptr;
  TDeclaredDefault DefaultValue;
  bool (*AskDefault)(const TObject&) = nullptr;
  bool (*AskStored)(const TObject&) = nullptr;
  std::optional<TPropInfo::TStored> StoredAs;
  bool WithoutDefault = false;
  bool OnlyDescribed = false;
  const char* const* Group = nullptr;  // The names that an Inherit of several publishes.
  std::size_t GroupSize = 0;
  const TClass& (*FieldClass)() = nullptr;
  bool (*AssignField)(TObject&, TComponent*) = nullptr;
  void (*BindMethod)(TObject&, TEventBase&) = nullptr;
};

/// A property read by one method and written by another.
template <auto Get, auto SetMember>
constexpr TClassEntry Property(std::string_view name) {
  TClassEntry entry;
  entry.Name = name;
  if constexpr (!detail::ReadsProperty<decltype(Get)>()) {
    static_assert(detail::Never<decltype(Get)>,
                  "Property<getter, setter>: the getter is a const method without parameters that "
                  "returns a number, an enumeration, a set, a text or an object's pointer");
  } else if constexpr (!detail::WritesWhatReads<decltype(SetMember), decltype(Get)>()) {
    static_assert(detail::Never<decltype(Get)>,
                  "Property<getter, setter>: the setter is a void method with one parameter, of "
                  "what the getter returns");
  } else {
    entry.TypeOf = &TypeInfoOf<typename detail::MemberOf<decltype(Get)>::Result>;
    entry.Getter = &detail::GetThunk<Get>;
    entry.Setter = &detail::SetThunk<SetMember>;
  }
  return entry;
}

/// A property that can only be read; form files never hold it, but an object behind it keeps its
/// own published properties there.
template <auto Get>
constexpr TClassEntry ReadOnly(std::string_view name) {
  TClassEntry entry;
  entry.Name = name;
  if constexpr (!detail::ReadsProperty<decltype(Get)>()) {
    static_assert(detail::Never<decltype(Get)>,
                  "ReadOnly<getter>: the getter is a const method without parameters that returns "
                  "a number, an enumeration, a set, a text or an object's pointer");
  } else {
    entry.TypeOf = &TypeInfoOf<typename detail::MemberOf<decltype(Get)>::Result>;
    entry.Getter = &detail::GetThunk<Get>;
  }
  return entry;
}

/// An event: a public member of a TEvent type.
template <auto Member>
constexpr TClassEntry Event(std::string_view name) {
  TClassEntry entry;
  entry.Name = name;
  if constexpr (!detail::IsEventMember<decltype(Member)>()) {
    static_assert(detail::Never<decltype(Member)>, "Event<member>: the member is a TEvent");
  } else {
    using E = typename detail::MemberOf<decltype(Member)>::Result;
    entry.TypeOf = &detail::EventType;
    entry.Alias = EventText<E>.Name;
    entry.Parameters = EventText<E>.Parameters;
    entry.EventOf = &detail::EventThunk<Member>;
    entry.Signature = &typeid(E);
  }
  return entry;
}

/// Publishes what an ancestor describes or publishes, with its default unless another is declared.
constexpr TClassEntry Inherit(std::string_view name) {
  TClassEntry entry;
  entry.Sort = TClassEntry::TSort::Inherit;
  entry.Name = name;
  return entry;
}

/// Publishes all of a group of names, in its order, each as Inherit does.
template <std::size_t Size>
constexpr TClassEntry Inherit(const char* const (&group)[Size]) {
  TClassEntry entry;
  entry.Sort = TClassEntry::TSort::Inherit;
  entry.Group = group;
  entry.GroupSize = Size;
  return entry;
}

/// A form class's field, filled with the component of the same name when a form file is read.
template <auto Member>
constexpr TClassEntry Field(std::string_view name) {
  TClassEntry entry;
  entry.Sort = TClassEntry::TSort::Field;
  entry.Name = name;
  if constexpr (!detail::IsComponentMember<decltype(Member)>()) {
    static_assert(detail::Never<decltype(Member)>,
                  "Field<member>: the member is a pointer to a component");
  } else {
    using C = std::remove_pointer_t<typename detail::MemberOf<decltype(Member)>::Result>;
    entry.FieldClass = &detail::ClassOf<C>;
    entry.AssignField = &detail::AssignField<Member>;
  }
  return entry;
}

/// A form class's handler, bound to the events that a form file names it for.
template <auto Member>
constexpr TClassEntry Method(std::string_view name) {
  TClassEntry entry;
  entry.Sort = TClassEntry::TSort::Method;
  entry.Name = name;
  if constexpr (!detail::IsHandler<decltype(Member)>) {
    static_assert(detail::Never<decltype(Member)>,
                  "Method<handler>: the handler is a void method with the event's parameters");
  } else {
    entry.Signature = detail::SignatureOf(Member);
    entry.BindMethod = detail::BinderOf<Member>(Member);
  }
  return entry;
}

/// Describes the class T, which descends from Parent: its name in C++, with its namespaces; the
/// header that code includes for it, whose name without folders and ending is the class's unit; and
/// the lines of its table. Raises EPropertyError when an inherited name is not described by an
/// ancestor, or a field hides a property.
template <class T, class Parent>
TClass Describe(std::string_view name, std::string_view header,
                std::initializer_list<TClassEntry> entries) {
  static_assert(std::is_base_of_v<Parent, T>, "Describe<Class, Ancestor>: no such ancestor");
  return TClass(name, header, typeid(T), &Parent::Class(), detail::MakerOf<T>(), entries.begin(),
                entries.size());
}

template <class T>
constexpr TClassEntry TClassEntry::Default(T value) const {
  using TKind = TDeclaredDefault::TKind;
  TClassEntry entry = *this;
  if constexpr (detail::IsSet<T>::value) {
    entry.DefaultValue = {TKind::Ordinal, value.Bits(), 0, {}};
  } else if constexpr (std::is_floating_point_v<T>) {
    entry.DefaultValue = {TKind::Float, 0, value, {}};
  } else if constexpr (std::is_convertible_v<T, std::string_view>) {
    entry.DefaultValue = {TKind::Text, 0, 0, value};
  } else {
    entry.DefaultValue = {TKind::Ordinal, static_cast<std::int64_t>(value), 0, {}};
  }
  return entry;
}

template <auto Ask>
constexpr TClassEntry TClassEntry::DefaultIf() const {
  TClassEntry entry = *this;
  entry.AskDefault = &detail::AskThunk<Ask>;
  return entry;
}

constexpr TClassEntry TClassEntry::NoDefault() const {
  TClassEntry entry = *this;
  entry.WithoutDefault = true;
  return entry;
}

constexpr TClassEntry TClassEntry::Stored(bool stored) const {
  TClassEntry entry = *this;
  entry.StoredAs = stored ? TPropInfo::TStored::Always : TPropInfo::TStored::Never;
  return entry;
}

template <auto Ask>
constexpr TClassEntry TClassEntry::StoredIf() const {
  TClassEntry entry = *this;
  entry.StoredAs = TPropInfo::TStored::Asked;
  entry.AskStored = &detail::AskThunk<Ask>;
  return entry;
}

constexpr TClassEntry TClassEntry::Type(std::string_view alias) const {
  TClassEntry entry = *this;
  entry.Alias = alias;
  return entry;
}

constexpr TClassEntry TClassEntry::Type(std::string_view alias, std::string_view parameters) const {
  TClassEntry entry = Type(alias);
  entry.Parameters = parameters;
  return entry;
}

constexpr TClassEntry TClassEntry::Unpublished() const {
  TClassEntry entry = *this;
  entry.OnlyDescribed = true;
  return entry;
}

}  // namespace vcl
