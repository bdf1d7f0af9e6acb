// How each kind of value is spelled as text, and read again.
#include "vcl/rtl/valuetext.h"

#include "vcl/rtl/colors.h"
#include "vcl/rtl/component.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

[[noreturn]] void Refuse(const TTypeInfo& type, std::string_view text) {
  throw EConvertError(Concat("'", Shown(text), "' is not a value of ", type.Name()));
}

bool IsEnumerated(const TTypeInfo& type) {
  return type.Kind == TTypeKind::Enumeration || type.Kind == TTypeKind::Boolean;
}

std::string SetToText(const TTypeInfo& type, std::int64_t bits) {
  std::string text = "[";
  for (std::int64_t i = 0; const auto name = type.EnumName(i); ++i) {
    if (!(bits >> i & 1)) continue;
    if (text.size() > 1) text += ", ";
    text += *name;
  }
  return text + "]";
}

std::string OrdinalToText(const TTypeInfo& type, std::int64_t value) {
  if (type.Kind == TTypeKind::Set) return SetToText(type, value);
  if (type.Kind == TTypeKind::Color) return ColorToString(static_cast<TColor>(value));
  if (type.Kind == TTypeKind::Char) {
    // A control character has no form of its own to show.
    return value < ' ' ? Concat("#", IntToStr(value)) : Utf8(static_cast<char32_t>(value));
  }
  if (IsEnumerated(type)) {
    if (const auto name = type.EnumName(value)) return std::string(*name);
  }
  if (type.Integer.ToIdent) {
    if (const auto ident = type.Integer.ToIdent(value)) return *ident;
  }
  return IntToStr(value);
}

std::string ObjectToText(const TObject* object) {
  if (!object) return {};
  if (const auto* component = dynamic_cast<const TComponent*>(object)) return component->Name();
  return Concat("(", object->ClassName(), ")");
}

std::int64_t TextToSet(const TTypeInfo& type, std::string_view text) {
  const std::string_view whole = text;
  text = Trim(text);
  if (text.size() < 2 || text.front() != '[' || text.back() != ']') Refuse(type, whole);
  text = Trim(text.substr(1, text.size() - 2));
  std::int64_t bits = 0;
  while (!text.empty()) {
    const std::size_t comma = text.find(',');
    const auto ordinal = type.EnumOrdinal(Trim(text.substr(0, comma)));
    if (!ordinal) Refuse(type, whole);
    bits |= std::int64_t{1} << *ordinal;
    text = comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
  }
  return bits;
}

std::int64_t TextToInteger(const TTypeInfo& type, std::string_view text) {
  if (type.Integer.FromIdent) {
    if (const auto value = type.Integer.FromIdent(Trim(text))) return *value;
  }
  std::int64_t value = 0;
  if (!TryStrToInt64(text, value) || value < type.Min || value > type.Max) Refuse(type, text);
  return value;
}

std::int64_t TextToCharacter(const TTypeInfo& type, std::string_view text) {
  if (text.size() > 1 && text.front() == '#') return TextToInteger(type, text.substr(1));
  const auto character = OnlyCharacter(text);
  if (!character) Refuse(type, text);
  return static_cast<std::int64_t>(*character);
}

std::int64_t TextToOrdinal(const TTypeInfo& type, std::string_view text) {
  if (type.Kind == TTypeKind::Set) return TextToSet(type, text);
  if (type.Kind == TTypeKind::Char) return TextToCharacter(type, text);
  if (type.Kind == TTypeKind::Color) return StringToColor(text);
  if (!IsEnumerated(type)) return TextToInteger(type, text);
  if (const auto ordinal = type.EnumOrdinal(Trim(text))) return *ordinal;
  Refuse(type, text);
}

}  // namespace

std::string ValueToText(const TTypeInfo& type, const TValue& value) {
  if (const auto* ordinal = std::get_if<std::int64_t>(&value)) return OrdinalToText(type, *ordinal);
  if (const auto* number = std::get_if<double>(&value)) return FloatToStr(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  return ObjectToText(std::get<TObject*>(value));
}

TValue TextToValue(const TTypeInfo& type, std::string_view text) {
  switch (type.Kind) {
    case TTypeKind::Class:
    case TTypeKind::Component:
    case TTypeKind::Collection:
    case TTypeKind::Event: Refuse(type, text);
    case TTypeKind::String: return std::string(text);
    case TTypeKind::Float: return StrToFloat(text);
    case TTypeKind::Integer:
    case TTypeKind::Enumeration:
    case TTypeKind::Set:
    case TTypeKind::Char:
    case TTypeKind::Color:
    case TTypeKind::Boolean:
    default: return TextToOrdinal(type, text);
  }
}

std::string FormString(std::string_view text) {
  std::string printed;
  if (text.empty()) printed = "''";
  bool quoted = false;
  const auto quote = [&](bool wanted) {
    if (quoted != wanted) printed += '\'';
    quoted = wanted;
  };
  for (char c : text) {
    const auto code = static_cast<unsigned char>(c);
    const bool control = code < ' ' || code == 0x7F;
    quote(!control);
    if (control) {
      printed += Concat("#", IntToStr(code));
    } else {
      printed.append(c == '\'' ? 2 : 1, c);
    }
  }
  quote(false);
  return printed;
}

}  // namespace vcl
