// Any lines as base64, against the rule taken literally: letter by letter.
#include "tests/fuzz/target.h"

namespace {

constexpr std::string_view Letters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/=";
constexpr int Pad = 64;

std::string DecodeLiterally(std::string_view text) {
  int places[4] = {};
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t value = Letters.find(text[i]);
    if (value != Letters.npos) places[i % 4] = static_cast<int>(value);
    if (i % 4 != 3) continue;
    int bits = 0;
    for (const int place : places) bits = bits * 64 + place % Pad;
    std::size_t count = 3;
    if (places[0] == Pad) count = 0;
    if (places[2] == Pad) count = 1, places[3] = 0;
    if (places[3] == Pad) count = 2;
    const char group[] = {static_cast<char>(bits >> 16), static_cast<char>(bits >> 8),
                          static_cast<char>(bits)};
    bytes.append(group, count);
  }
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  qel::TQELPOPMail mail(nullptr);
  qel::TQELAttachment& attachment = *mail.Messages()->Add()->Attachments()->Add("a");
  attachment.Lines()->AddLines(Text(data, size));
  const std::string letters(attachment.Lines()->Letters());
  int last = 0;
  mail.OnDecodeProgress = [&](auto*, int percent) {
    Require(percent >= last, "progress goes forward");
    last = percent;
  };
  mail.Base64Decode(attachment);
  Require(Contents(attachment) == DecodeLiterally(letters), "both decode the same");
  return 0;
}
