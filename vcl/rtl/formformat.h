// The binary form of a form file: the signature and the sorts of values.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vcl {

/// The four bytes that a form file's binary form begins with.
inline constexpr std::string_view FormSignature = "TPF0";

/// The name under which a form file's components refer to its root.
inline constexpr std::string_view FormRootReference = "Owner";

/// How deep components, lists and collections may stand in each other.
inline constexpr int FormDepthLimit = 200;

/// A component's byte in front of its class name, which is there when one of the flags below is:
/// the component exists already and is only changed; a place among its siblings follows; the
/// component is a frame, which is made by its own form file and then changed.
inline constexpr std::uint8_t FormPrefix = 0xF0;
inline constexpr std::uint8_t FormInheritedFlag = 1;
inline constexpr std::uint8_t FormPositionFlag = 2;
inline constexpr std::uint8_t FormInlineFlag = 4;

/// The first words of a component in a form file.
struct TFormHeading {
  bool Inherited = false;
  bool Inline = false;
  std::optional<int> Position;
  std::string ClassName;
  std::string Name;
};

/// The byte in front of each value of a form file's binary form.
enum class TValueType : std::uint8_t {
  vaNull = 0,  ///< The end of a list.
  vaList = 1,  ///< Values up to the next vaNull.
  vaInt8 = 2,
  vaInt16 = 3,
  vaInt32 = 4,
  vaString = 6,  ///< A length byte and as many bytes.
  vaIdent = 7,   ///< The same, for an enumeration's value, a component's or a handler's name.
  vaFalse = 8,
  vaTrue = 9,
  vaBinary = 10,      ///< A 32-bit count and as many bytes.
  vaSet = 11,         ///< Identifiers (length byte and bytes), ended by an empty one.
  vaLString = 12,     ///< A 32-bit length and as many bytes.
  vaNil = 13,         ///< A reference to nothing.
  vaCollection = 14,  ///< Items, each a vaList of properties; ended by a vaNull.
  vaInt64 = 19,
  vaDouble = 21,
};

}  // namespace vcl
