// Any bytes as a whole mail: it is read or refused, with handlers that look at it meanwhile.
#include "tests/fuzz/target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  qel::TQELPOPMail mail(nullptr);
  int decoding = 0;
  mail.OnDecodeStart = [&](auto*, auto&, int lines) {
    Require(lines >= 0 && ++decoding == 1, "decodings begin one after the other");
  };
  mail.OnDecodeEnd = [&](auto*) { --decoding; };
  mail.OnDecodeProgress = [](auto*, int percent) {
    Require(percent <= 100, "percents end at 100");
  };
  try {
    const qel::TQELMessage& message = *mail.ReadMessage(std::string(Text(data, size)));
    for (int i = 0; i < message.Attachments()->Count(); ++i) {
      const qel::TQELAttachment& each = *message.Attachments()->GeTQELAttachment(i);
      Require(each.FileName().find_first_of("/\\:") == std::string::npos, "names have no folder");
      // An uuencoded line of one letter can stand for 45 bytes.
      Require(static_cast<std::size_t>(each.Data()->Size()) <= 45 * size, "contents are bounded");
    }
    Require(decoding == 0, "what begins ends");
  } catch (const vcl::Exception&) {
    Require(mail.Messages()->Count() == 1, "what could be read stays");
  }
  return 0;
}
