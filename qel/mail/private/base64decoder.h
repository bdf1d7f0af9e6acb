// Base64 as mails bring it: letters in groups of four, whatever stands between and behind them.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "qel/core/api.h"

namespace qel {

/// Decodes a text group by group. Characters are never skipped: one that is neither a letter nor
/// the pad mark takes its place in the group, and counts as what stood there in the group before.
/// What damages a line in its middle so damages no more than its group.
class QEL_API TBase64Decoder {
 public:
  /// Decodes the text's whole groups and appends their bytes; each has at most three.
  void Decode(std::string_view groups, std::string& bytes);

 private:
  /// Writes up to three bytes and returns their number.
  std::size_t DecodeGroup(const char* group, unsigned char* bytes);
  void Remember(const unsigned char* last);

  /// The six bits at each place of the last group, or the pad mark.
  std::array<std::uint8_t, 4> FPlaces{};
};

}  // namespace qel
