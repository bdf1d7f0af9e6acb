// Any lines as an uuencoded file, against the rule taken literally: bit by bit.
#include <optional>

#include "qel/mail/mailerror.h"
#include "tests/fuzz/target.h"

namespace {

/// Nothing for a character that is no letter.
std::optional<int> Value(char letter) {
  if (letter == '`' || letter == ' ') return 0;
  if (letter < 33 || letter > 95) return {};
  return letter - 32;
}

/// Appends the line's bytes; false when it is refused.
bool DecodeLiterally(const std::string& line, std::string& bytes) {
  if (line.empty()) return true;
  const auto count = Value(line[0]);
  if (!count) return false;
  const bool full = *count * 4 / 3 == 60;
  std::string bits;
  for (std::size_t i = 1; i < line.size() && (!full || i <= 60); ++i) {
    const auto value = Value(line[i]);
    if (!value) return false;
    for (int bit = 5; bit >= 0; --bit) bits += static_cast<char>(*value >> bit & 1);
  }
  bits.resize(45 * 8);
  for (int i = 0; i < *count && i < 45; ++i) {
    int byte = 0;
    for (std::size_t bit = 0; bit < 8; ++bit)
      byte = byte * 2 + bits[static_cast<std::size_t>(i) * 8 + bit];
    bytes += static_cast<char>(byte);
  }
  return true;
}

std::optional<std::string> DecodeLiterally(const vcl::TStrings& lines) {
  std::string bytes;
  for (int i = 1; i < lines.Count(); ++i) {
    if (i > 1 && (lines.Strings(i) == "end" || lines.Strings(i) == "`")) break;
    if (!DecodeLiterally(lines.Strings(i), bytes)) return {};
  }
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  qel::TQELPOPMail mail(nullptr);
  qel::TQELAttachment& attachment = *mail.Messages()->Add()->Attachments()->Add("a");
  attachment.Lines()->AddLines(Text(data, size));
  const auto expected = DecodeLiterally(*attachment.Lines());
  try {
    mail.UUDecode(attachment);
    Require(expected && Contents(attachment) == *expected, "both decode the same");
  } catch (const qel::EQELMailError&) {
    Require(!expected, "both refuse the same");
  }
  return 0;
}
