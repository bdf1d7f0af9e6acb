// The binary form of a form file, written value by value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/formformat.h"

namespace vcl {

/// Collects the bytes of a form file. Raises EWriteError for texts that are too long for their
/// place and numbers that are not finite.
class TFormOutput {
 public:
  const std::string& Bytes() const { return FBytes; }
  /// Takes back what was written behind the first `size` bytes.
  void Truncate(std::size_t size) { FBytes.resize(size); }

  void WriteSignature() { FBytes += FormSignature; }
  void WriteHeading(const TFormHeading& heading);
  void WriteSort(TValueType sort) { FBytes += static_cast<char>(sort); }
  void WriteEnd() { WriteSort(TValueType::vaNull); }
  /// The name of a property.
  void WriteName(std::string_view name) { WriteShortText(name); }
  void WriteInteger(std::int64_t value);
  void WriteFloat(double value);
  void WriteBoolean(bool value);
  void WriteString(std::string_view text);
  void WriteIdent(std::string_view ident);
  void WriteSet(const std::vector<std::string>& idents);
  void WriteBinary(std::string_view bytes);
  /// What is in the binary form already.
  void WriteRaw(std::string_view bytes) { FBytes += bytes; }

 private:
  template <class T>
  void WriteNumber(TValueType sort, T value);
  void WriteBits(std::uint64_t bits, std::size_t size);
  void WriteShortText(std::string_view text);
  void WriteLongText(std::string_view text);

  std::string FBytes;
};

}  // namespace vcl
