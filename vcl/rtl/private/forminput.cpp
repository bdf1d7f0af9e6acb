// Reading the binary form of a form file, value by value, with the place in every error.
#include "vcl/rtl/private/forminput.h"

#include <bit>
#include <cmath>
#include <type_traits>

#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

std::string_view SortName(TValueType sort) {
  switch (sort) {
    case TValueType::vaNull: return "the end of a list";
    case TValueType::vaList: return "a list";
    case TValueType::vaInt8:
    case TValueType::vaInt16:
    case TValueType::vaInt32:
    case TValueType::vaInt64: return "an integer";
    case TValueType::vaString:
    case TValueType::vaLString: return "a string";
    case TValueType::vaIdent: return "an identifier";
    case TValueType::vaFalse:
    case TValueType::vaTrue: return "a boolean";
    case TValueType::vaBinary: return "binary data";
    case TValueType::vaSet: return "a set";
    case TValueType::vaNil: return "nil";
    case TValueType::vaCollection: return "a collection";
    case TValueType::vaDouble: return "a floating point number";
  }
  return {};
}

}  // namespace

TFormInput::TFormInput(TStream& stream)
    : FStream(stream), FBase(stream.Position()), FBytes(stream.ReadRest()) {}

void TFormInput::Finish() { FStream.SetPosition(FBase + static_cast<std::int64_t>(FPosition)); }

std::string TFormInput::Place(std::size_t at) const {
  const std::int64_t offset = FBase + static_cast<std::int64_t>(at);
  const int line = LineOf ? LineOf(offset) : 0;
  const std::string where =
      line > 0 ? Concat("Line ", std::to_string(line)) : Concat("Offset ", std::to_string(offset));
  return Context.empty() ? where + ": " : Concat(where, ": ", Context, ": ");
}

void TFormInput::FailAt(std::size_t at, std::string_view text) const {
  throw EPlacedReadError(Concat(Place(at), text));
}

std::string_view TFormInput::Bytes(std::size_t count) {
  const std::size_t left = FBytes.size() - FPosition;
  if (count > left) {
    FailAt(FPosition, Concat("the file ends: ", std::to_string(count), " bytes are expected, ",
                             std::to_string(left), " are left"));
  }
  const std::string_view bytes = std::string_view(FBytes).substr(FPosition, count);
  FPosition += count;
  return bytes;
}

/// Numbers stand with their lowest byte first.
template <class T>
T TFormInput::Number() {
  std::make_unsigned_t<T> bits = 0;
  int shift = 0;
  for (char byte : Bytes(sizeof(T))) {
    bits |= static_cast<std::make_unsigned_t<T>>(
        static_cast<std::make_unsigned_t<T>>(static_cast<std::uint8_t>(byte)) << shift);
    shift += 8;
  }
  return static_cast<T>(bits);
}

TValueType TFormInput::NextValue() {
  if (AtEnd()) FailAt(FPosition, "the file ends where a value is expected");
  return static_cast<TValueType>(static_cast<std::uint8_t>(FBytes[FPosition]));
}

TValueType TFormInput::TakeSort() {
  FMark = FPosition;
  const TValueType sort = NextValue();
  ++FPosition;
  return sort;
}

void TFormInput::FailSort(std::string_view wanted, TValueType found) const {
  const std::string_view name = SortName(found);
  if (!name.empty()) Fail(Concat(wanted, " is expected, not ", name));
  Fail(Concat(wanted, " is expected, not the unknown sort of value ",
              std::to_string(static_cast<int>(found))));
}

void TFormInput::Take(TValueType wanted) {
  const TValueType found = TakeSort();
  if (found != wanted) FailSort(SortName(wanted), found);
}

void TFormInput::ReadSignature() {
  FMark = FPosition;
  if (FBytes.size() - FPosition < FormSignature.size() ||
      Bytes(FormSignature.size()) != FormSignature) {
    Fail("this is no form file");
  }
}

TFormHeading TFormInput::ReadHeading() {
  const std::size_t start = FPosition;
  TFormHeading heading;
  const auto first = static_cast<std::uint8_t>(NextValue());
  if ((first & FormPrefix) == FormPrefix) {
    const int flags = Byte() & ~FormPrefix;
    heading.Inherited = (flags & FormInheritedFlag) != 0;
    heading.Inline = (flags & FormInlineFlag) != 0;
    // What is inherited has been made already.
    const bool both = heading.Inherited && heading.Inline;
    if (both || (flags & ~(FormInheritedFlag | FormPositionFlag | FormInlineFlag)) != 0) {
      FailAt(start, Concat("unknown flags of a component: ", std::to_string(flags)));
    }
    if ((flags & FormPositionFlag) != 0) heading.Position = static_cast<int>(ReadInteger());
  }
  heading.ClassName = ShortText();
  heading.Name = ShortText();
  FMark = start;
  return heading;
}

std::string TFormInput::ReadName() {
  FMark = FPosition;
  return ShortText();
}

std::int64_t TFormInput::ReadInteger() {
  const TValueType sort = TakeSort();
  if (sort == TValueType::vaInt8) return Number<std::int8_t>();
  if (sort == TValueType::vaInt16) return Number<std::int16_t>();
  if (sort == TValueType::vaInt32) return Number<std::int32_t>();
  if (sort == TValueType::vaInt64) return Number<std::int64_t>();
  FailSort("an integer", sort);
}

double TFormInput::ReadFloat() {
  if (NextValue() != TValueType::vaDouble) return static_cast<double>(ReadInteger());
  TakeSort();
  const double value = std::bit_cast<double>(Number<std::uint64_t>());
  if (!std::isfinite(value)) Fail("this is no finite number");
  return value;
}

bool TFormInput::ReadBoolean() {
  const TValueType sort = TakeSort();
  if (sort != TValueType::vaTrue && sort != TValueType::vaFalse) FailSort("a boolean", sort);
  return sort == TValueType::vaTrue;
}

std::string TFormInput::ReadString() {
  const TValueType sort = TakeSort();
  if (sort == TValueType::vaString) return ShortText();
  if (sort == TValueType::vaLString) return std::string(LongText());
  FailSort("a string", sort);
}

std::string TFormInput::ReadIdent() {
  Take(TValueType::vaIdent);
  return ShortText();
}

std::vector<std::string> TFormInput::ReadSet() {
  Take(TValueType::vaSet);
  std::vector<std::string> idents;
  for (std::string ident = ShortText(); !ident.empty(); ident = ShortText()) {
    idents.push_back(std::move(ident));
  }
  return idents;
}

std::string_view TFormInput::ReadBinary() {
  Take(TValueType::vaBinary);
  return LongText();
}

void TFormInput::SkipValue() {
  switch (const TValueType sort = NextValue()) {
    case TValueType::vaList: return SkipList();
    case TValueType::vaCollection: return SkipCollection();
    case TValueType::vaInt8:
    case TValueType::vaInt16:
    case TValueType::vaInt32:
    case TValueType::vaInt64: return static_cast<void>(ReadInteger());
    case TValueType::vaDouble: return static_cast<void>(ReadFloat());
    case TValueType::vaString:
    case TValueType::vaLString: return static_cast<void>(ReadString());
    case TValueType::vaIdent: return static_cast<void>(ReadIdent());
    case TValueType::vaSet: return static_cast<void>(ReadSet());
    case TValueType::vaBinary: return static_cast<void>(ReadBinary());
    case TValueType::vaFalse:
    case TValueType::vaTrue:
    case TValueType::vaNil: return static_cast<void>(TakeSort());
    case TValueType::vaNull:
    default: FMark = FPosition; FailSort("a value", sort);
  }
}

void TFormInput::SkipList() {
  const TLevel level(*this);
  Take(TValueType::vaList);
  while (!EndOfList()) SkipValue();
  Take(TValueType::vaNull);
}

void TFormInput::SkipCollection() {
  const TLevel level(*this);
  Take(TValueType::vaCollection);
  while (!EndOfList()) {
    Take(TValueType::vaList);
    while (!EndOfList()) {
      ReadName();
      SkipValue();
    }
    Take(TValueType::vaNull);
  }
  Take(TValueType::vaNull);
}

TFormInput::TLevel::TLevel(TFormInput& input) : FInput(input) {
  if (input.FDepth >= FormDepthLimit) input.FailAt(input.FPosition, "things are nested too deeply");
  ++input.FDepth;
}

}  // namespace vcl
