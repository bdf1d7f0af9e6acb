// Types of published properties: their kind, name, and how their values are spelled in a form file.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "vcl/rtl/api.h"
#include "vcl/rtl/sets.h"
#include "vcl/rtl/systemmacros.h"

namespace vcl {

class TClass;

/// What sort of value a published property holds.
enum class TTypeKind {
  Integer,
  Enumeration,
  Set,
  Char,
  String,
  Float,
  Color,
  Class,
  Component,
  Collection,
  Event,
  Boolean
};

/// The lower-case word for a kind, as the reference prints it.
VCL_API std::string_view KindName(TTypeKind kind);

/// The spelling of an enumeration: its name, its values in order of their ordinals (from 0),
/// separated by single spaces, and the name of the set type over it, if there is one. Stands beside
/// the enumeration:
///
///     enum TAlign { alNone, alTop };
///     template <> inline constexpr TEnumText EnumText<TAlign>{"TAlign", "alNone alTop"};
struct TEnumText {
  std::string_view Name;
  std::string_view Values;
  std::string_view SetName = {};
};
template <class E>
inline constexpr TEnumText EnumText{};

/// The spelling of an integer type some of whose values have names (cursors, modal results). A type
/// that has them is an unscoped enumeration with a fixed underlying type.
struct TIntegerText {
  std::string_view Name;
  std::optional<std::string> (*ToIdent)(std::int64_t value) = nullptr;
  std::optional<std::int64_t> (*FromIdent)(std::string_view ident) = nullptr;
  /// Calls `each` for every name, in the order in which a user chooses from them.
  void (*GetIdents)(const std::function<void(const std::string&)>& each) = nullptr;
};
template <class T>
inline constexpr TIntegerText IntegerText{};

/// The type of a published property.
struct VCL_API TTypeInfo {
  TTypeKind Kind;
  std::string_view FixedName;            ///< Empty for class types, which name their class.
  TEnumText Enum = {};                   ///< The enumeration, or a set's elements.
  TIntegerText Integer = {};             ///< Named values of an integer or colour.
  const TClass& (*ClassOf)() = nullptr;  ///< Class, component and collection types.
  std::int64_t Min = 0;                  ///< The least ordinal value.
  std::int64_t Max = 0;                  ///< The greatest ordinal value.

  std::string_view Name() const;
  /// The name of the ordinal's value; nothing when it has none.
  std::optional<std::string_view> EnumName(std::int64_t ordinal) const;
  /// The ordinal of the named value, compared without case; nothing when there is none.
  std::optional<std::int64_t> EnumOrdinal(std::string_view name) const;
};

class TObject;
class TComponent;
class TCollection;

namespace detail {

template <class T>
struct IsSet : std::false_type {};
template <class E>
struct IsSet<TSet<E>> : std::true_type {};

template <class T>
constexpr std::string_view NumberName() {
  if constexpr (std::is_same_v<T, float>) return "Single";
  if constexpr (std::is_same_v<T, double>) return "Double";
  if constexpr (std::is_unsigned_v<T>) {
    return sizeof(T) == 1   ? "Byte"
           : sizeof(T) == 2 ? "Word"
           : sizeof(T) == 4 ? "Cardinal"
                            : "UInt64";
  }
  return sizeof(T) == 1   ? "Shortint"
         : sizeof(T) == 2 ? "Smallint"
         : sizeof(T) == 4 ? "Integer"
                          : "Int64";
}

constexpr std::int64_t CountNames(std::string_view values) {
  std::int64_t count = values.empty() ? 0 : 1;
  for (char c : values) count += c == ' ';
  return count;
}

template <class T>
TTypeInfo IntegerInfo() {
  // Values travel as std::int64_t, so the upper half of an unsigned type of its size has no place.
  constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
  constexpr std::uint64_t own = std::numeric_limits<T>::max();
  constexpr std::uint64_t max = own < most ? own : most;
  return {TTypeKind::Integer,
          NumberName<T>(),
          {},
          {},
          nullptr,
          static_cast<std::int64_t>(std::numeric_limits<T>::min()),
          static_cast<std::int64_t>(max)};
}

template <class T>
TTypeInfo NamedInfo() {
  constexpr auto& integer = IntegerText<T>;
  if constexpr (!integer.Name.empty()) {
    using U = std::underlying_type_t<T>;
    return {integer.Name == "TColor" ? TTypeKind::Color : TTypeKind::Integer,
            integer.Name,
            {},
            integer,
            nullptr,
            std::numeric_limits<U>::min(),
            std::numeric_limits<U>::max()};
  } else {
    constexpr auto& text = EnumText<T>;
    static_assert(!text.Name.empty(), "a published enumeration needs its EnumText");
    return {TTypeKind::Enumeration, text.Name, text, {}, nullptr, 0, CountNames(text.Values) - 1};
  }
}

template <class E>
TTypeInfo SetInfo() {
  constexpr auto& text = EnumText<E>;
  static_assert(!text.SetName.empty(), "a published set needs its name in the EnumText");
  return {TTypeKind::Set,
          text.SetName,
          text,
          {},
          nullptr,
          0,
          (std::int64_t{1} << CountNames(text.Values)) - 1};
}

template <class C>
TTypeInfo ObjectInfo() {
  constexpr TTypeKind kind = std::is_base_of_v<TComponent, C>    ? TTypeKind::Component
                             : std::is_base_of_v<TCollection, C> ? TTypeKind::Collection
                                                                 : TTypeKind::Class;
  return {kind, {}, {}, {}, &C::Class};
}

template <class T>
TTypeInfo MakeTypeInfo() {
  if constexpr (std::is_pointer_v<T>) {
    return ObjectInfo<std::remove_const_t<std::remove_pointer_t<T>>>();
  } else if constexpr (std::is_same_v<T, bool>) {
    return {TTypeKind::Boolean, "Boolean", {"Boolean", "False True"}, {}, nullptr, 0, 1};
  } else if constexpr (std::is_same_v<T, char32_t>) {
    return {TTypeKind::Char, "Char", {}, {}, nullptr, 0, 0x10FFFF};
  } else if constexpr (std::is_same_v<T, std::string>) {
    return {TTypeKind::String, "string"};
  } else if constexpr (IsSet<T>::value) {
    return SetInfo<typename T::Element>();
  } else if constexpr (std::is_enum_v<T>) {
    return NamedInfo<T>();
  } else if constexpr (std::is_floating_point_v<T>) {
    return {TTypeKind::Float, NumberName<T>()};
  } else {
    return IntegerInfo<T>();
  }
}

}  // namespace detail

/// The type information of a property of type T.
template <class T>
const TTypeInfo& TypeInfoOf() {
  static const TTypeInfo info = detail::MakeTypeInfo<T>();
  return info;
}

}  // namespace vcl
