// Any lines as a mail's header.
#include "qel/mail/mailerror.h"
#include "qel/mail/private/headerfields.h"
#include "qel/mail/private/multipart.h"
#include "tests/fuzz/target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = Text(data, size);
  const qel::THeader header = qel::ReadHeader(text);
  vcl::TStringList lines;
  lines.SetText(text);
  Require(header.Rest.has_value() == (lines.IndexOf("") >= 0), "an empty line ends a header");

  const qel::TMailFields fields = qel::ReadFields(header.Lines);
  Require(fields.FromMail.find(' ') == std::string::npos, "addresses have no blanks");
  Require(fields.SendTo.find(' ') == std::string::npos, "addresses have no blanks");
  Require(fields.MessageId.size() <= 127 && fields.Date.size() <= 72, "fields are cut");

  const qel::TPartKind kind = qel::ReadPartKind(text);
  const std::string name = qel::AttachmentName(kind, fields.Subject);
  Require(!name.empty() && name.find_first_of("\\/:*?\"<>|") == std::string::npos,
          "names are such as files may have");
  try {
    qel::SplitParts(header.Rest.value_or(text), qel::ReadBoundary(header.Lines));
  } catch (const vcl::Exception&) {
  }
  return 0;
}
