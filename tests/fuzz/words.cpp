// Any bytes as what stands in headers of the standard format: words, parameters, addresses, names.
#include "qel/mail/private/attachmentnames.h"
#include "qel/mail/private/charsets.h"
#include "qel/mail/private/encodedwords.h"
#include "qel/mail/private/mailaddresses.h"
#include "qel/mail/private/mimeparameters.h"
#include "qel/mail/private/quotedprintable.h"
#include "tests/fuzz/target.h"

namespace {

void ComesBack(const std::string& text) {
  if (text.find_first_of("\r\n", 0) != text.npos || text.find('\0') != text.npos) return;
  Require(qel::DecodeWords(qel::EncodeWords(text)) == text, "encoded words are the same again");
  const std::string field = "a/b" + qel::MimeParameter("name", text);
  Require(qel::ReadMimeField(field).Parameter("name") == text, "parameters are the same again");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = Text(data, size);
  Require(qel::IsUtf8(qel::DecodeWords(text)), "words are UTF-8");
  for (const auto& [name, value] : qel::ReadMimeField(text).Parameters) {
    Require(qel::IsUtf8(value), "parameters are UTF-8");
  }
  for (const qel::TMailAddress& each : qel::ReadAddresses(text)) {
    Require(!each.Address.empty() && qel::IsUtf8(each.Name), "addresses are not empty");
  }
  const std::string name = qel::TAttachmentNames().Give(text, "");
  Require(name.find_first_of("\\/:*?\"<>|\r\n") == std::string::npos,
          "names are such as files may have");
  qel::DecodeQuotedPrintable(text);
  ComesBack(qel::CharsetToUtf8(text, ""));
  return 0;
}
