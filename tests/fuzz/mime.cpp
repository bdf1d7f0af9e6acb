// Any bytes as a mail of the standard format.
#include "qel/mail/private/mimereader.h"

#include "qel/mail/private/charsets.h"
#include "tests/fuzz/target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const qel::TReadMail mail = qel::ReadMime(Text(data, size));
  for (const std::string* text : {&mail.Subject, &mail.Text, &mail.HtmlText}) {
    Require(qel::IsUtf8(*text), "texts are UTF-8");
  }
  Require(mail.Subject.find_first_of("\r\n") == std::string::npos, "a subject is one line");
  std::size_t bytes = 0;
  for (const qel::TReadAttachment& each : mail.Attachments) {
    bytes += each.Data.size();
    Require(!each.Name.empty() && each.Name.size() <= 250 && qel::IsUtf8(each.Name),
            "files have names");
    Require(each.Name.find_first_of("\\/:*?\"<>|\r\n") == std::string::npos,
            "names are such as files may have");
  }
  // One letter of a uuencoded line stands for 45 bytes.
  Require(bytes <= 45 * size, "attachments are not larger than what they were made of");
  return 0;
}
