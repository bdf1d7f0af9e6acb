// Writing the binary form of a form file, value by value, whole numbers in as few bytes as hold
// them.
#include "vcl/rtl/private/formoutput.h"

#include <bit>
#include <cmath>
#include <limits>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

constexpr std::size_t ShortLimit = 255;

template <class T>
bool Fits(std::int64_t value) {
  return value >= std::numeric_limits<T>::min() && value <= std::numeric_limits<T>::max();
}

}  // namespace

void TFormOutput::WriteHeading(const TFormHeading& heading) {
  const int flags = (heading.Inherited ? FormInheritedFlag : 0) |
                    (heading.Inline ? FormInlineFlag : 0) |
                    (heading.Position ? FormPositionFlag : 0);
  if (flags != 0) FBytes += static_cast<char>(FormPrefix | flags);
  if (heading.Position) WriteInteger(*heading.Position);
  // A longer class name's length would look like the flags.
  if (heading.ClassName.size() >= FormPrefix) {
    throw EWriteError(Concat("The class name ", heading.ClassName, " is too long"));
  }
  WriteShortText(heading.ClassName);
  WriteShortText(heading.Name);
}

void TFormOutput::WriteBits(std::uint64_t bits, std::size_t size) {
  for (; size > 0; --size, bits >>= 8) FBytes += static_cast<char>(bits & 0xFF);
}

template <class T>
void TFormOutput::WriteNumber(TValueType sort, T value) {
  WriteSort(sort);
  WriteBits(static_cast<std::uint64_t>(value), sizeof(T));
}

void TFormOutput::WriteInteger(std::int64_t value) {
  if (Fits<std::int8_t>(value)) {
    WriteNumber(TValueType::vaInt8, static_cast<std::int8_t>(value));
  } else if (Fits<std::int16_t>(value)) {
    WriteNumber(TValueType::vaInt16, static_cast<std::int16_t>(value));
  } else if (Fits<std::int32_t>(value)) {
    WriteNumber(TValueType::vaInt32, static_cast<std::int32_t>(value));
  } else {
    WriteNumber(TValueType::vaInt64, value);
  }
}

void TFormOutput::WriteFloat(double value) {
  if (!std::isfinite(value)) throw EWriteError("Only finite numbers can be kept in a form file");
  WriteNumber(TValueType::vaDouble, std::bit_cast<std::uint64_t>(value));
}

void TFormOutput::WriteBoolean(bool value) {
  WriteSort(value ? TValueType::vaTrue : TValueType::vaFalse);
}

void TFormOutput::WriteString(std::string_view text) {
  if (text.size() <= ShortLimit) {
    WriteSort(TValueType::vaString);
    WriteShortText(text);
  } else {
    WriteSort(TValueType::vaLString);
    WriteLongText(text);
  }
}

void TFormOutput::WriteIdent(std::string_view ident) {
  WriteSort(TValueType::vaIdent);
  WriteShortText(ident);
}

void TFormOutput::WriteSet(const std::vector<std::string>& idents) {
  WriteSort(TValueType::vaSet);
  for (const std::string& ident : idents) WriteShortText(ident);
  WriteShortText({});
}

void TFormOutput::WriteBinary(std::string_view bytes) {
  WriteSort(TValueType::vaBinary);
  WriteLongText(bytes);
}

void TFormOutput::WriteShortText(std::string_view text) {
  if (text.size() > ShortLimit) throw EWriteError(Concat("The name ", text, " is too long"));
  FBytes += static_cast<char>(text.size());
  FBytes += text;
}

void TFormOutput::WriteLongText(std::string_view text) {
  if (std::uint64_t{text.size()} > std::numeric_limits<std::uint32_t>::max()) {
    throw EWriteError("More than 4 gigabytes cannot be kept in a form file");
  }
  WriteBits(text.size(), sizeof(std::uint32_t));
  FBytes += text;
}

}  // namespace vcl
