// How a mail's parts are found, decoded and sorted into texts and attachments.
#include "qel/mail/private/mimereader.h"

#include <algorithm>

#include "qel/mail/private/asciitext.h"
#include "qel/mail/private/attachmentnames.h"
#include "qel/mail/private/charsets.h"
#include "qel/mail/private/encodedwords.h"
#include "qel/mail/private/lenientbase64.h"
#include "qel/mail/private/mimefields.h"
#include "qel/mail/private/mimeparameters.h"
#include "qel/mail/private/mimeparts.h"
#include "qel/mail/private/quotedprintable.h"
#include "qel/mail/private/uufiles.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

/// Deeper and more than any mail is that a person has written.
constexpr int MaxDepth = 50;
constexpr std::size_t MaxParts = 10000;

/// What a part's header says of it.
struct TPart {
  TMimeField Type, Disposition;
  std::string Encoding, ContentId, Name;
  std::string_view Body;

  bool IsMultipart() const { return Type.Value.starts_with("multipart/"); }
  bool IsText() const { return Type.Value == "text/plain" || Type.Value == "text/html"; }
  /// A text that stands for itself and is no file.
  bool IsBody() const { return IsText() && Disposition.Value != "attachment" && Name.empty(); }
};

class TMimeReader {
 public:
  TReadMail Read(std::string_view mail);

 private:
  TPart PartOf(std::string_view text, const std::string& defaultType);
  void Take(const TPart& part, int depth);
  void TakeMultipart(const TPart& part, int depth);
  void TakeBody(const TPart& part);
  void TakePlain(std::string text);
  void TakeFile(const TPart& part);
  std::string Decoded(const TPart& part);
  void Note(const std::string& sentence);

  TReadMail FMail;
  TAttachmentNames FNames;
  std::size_t FParts = 0;
};

std::string WithoutBrackets(std::string_view id) {
  id = vcl::Trim(id);
  if (id.starts_with('<') && id.ends_with('>')) id = id.substr(1, id.size() - 2);
  return std::string(id);
}

void AppendText(const std::string& text, std::string& to) {
  if (!to.empty()) {
    if (!to.ends_with('\n')) to += "\r\n";
    to += "\r\n";
  }
  to += text;
}

TPart TMimeReader::PartOf(std::string_view text, const std::string& defaultType) {
  const TMimeHeader header(text);
  TPart part;
  part.Type = ReadMimeField(header.Field("content-type"));
  // What is no type stands for one that is not known (RFC 2045, 5.2).
  if (part.Type.Value.find('/') == std::string::npos) part.Type.Value = defaultType;
  part.Disposition = ReadMimeField(header.Field("content-disposition"));
  part.Encoding = ReadMimeField(header.Field("content-transfer-encoding")).Value;
  part.ContentId = WithoutBrackets(header.Field("content-id"));
  part.Name = part.Disposition.Parameter("filename");
  if (part.Name.empty()) part.Name = part.Type.Parameter("name");
  part.Body = header.Body();
  return part;
}

TReadMail TMimeReader::Read(std::string_view mail) {
  const TMimeHeader header(mail);
  FMail.From = ReadAddresses(header.Field("from"));
  FMail.ReplyTo = ReadAddresses(header.Field("reply-to"));
  FMail.To = ReadAddresses(header.Field("to"));
  FMail.Cc = ReadAddresses(header.Field("cc"));
  FMail.Subject = DecodeWords(header.Field("subject"));
  FMail.Date = header.Field("date");
  FMail.MessageId = header.Field("message-id");
  FMail.InReplyTo = header.Field("in-reply-to");
  FMail.References = header.Field("references");
  Take(PartOf(mail, "text/plain"), 0);
  return std::move(FMail);
}

void TMimeReader::Note(const std::string& sentence) {
  if (std::ranges::find(FMail.Notes, sentence) == FMail.Notes.end())
    FMail.Notes.push_back(sentence);
}

void TMimeReader::Take(const TPart& part, int depth) {
  if (part.IsMultipart() && depth < MaxDepth && FParts < MaxParts)
    return TakeMultipart(part, depth);
  if (part.IsMultipart()) Note("The mail has more parts than are read; the rest is an attachment.");
  part.IsBody() ? TakeBody(part) : TakeFile(part);
}

void TMimeReader::TakeMultipart(const TPart& part, int depth) {
  const std::string boundary = part.Type.Parameter("boundary");
  const TMimeParts parts = FindParts(part.Body, boundary);
  if (parts.Found.empty()) {
    Note("The mail says that it has parts, but they are not there; it is shown as it is.");
    return TakePlain(CharsetToUtf8(part.Body, ""));
  }
  if (!parts.Closed) Note("The mail ends before its last part does.");
  const char* const kind = part.Type.Value == "multipart/digest" ? "message/rfc822" : "text/plain";
  for (const std::string_view each : parts.Found) {
    if (++FParts > MaxParts) {
      Note("The mail has more parts than are read; the rest is left out.");
      return;
    }
    Take(PartOf(each, kind), depth + 1);
  }
}

std::string TMimeReader::Decoded(const TPart& part) {
  if (part.Encoding == "base64") {
    TLenientBase64 decoded = DecodeLenientBase64(part.Body);
    if (decoded.Damaged) Note("A part of the mail is damaged; it was read as far as it goes.");
    return std::move(decoded.Bytes);
  }
  if (part.Encoding == "quoted-printable") return DecodeQuotedPrintable(part.Body);
  if (part.Encoding == "x-uuencode" || part.Encoding == "uuencode" || part.Encoding == "x-uue") {
    return DecodeUUText(part.Body);
  }
  const bool known = part.Encoding.empty() || part.Encoding == "7bit" || part.Encoding == "8bit" ||
                     part.Encoding == "binary";
  if (!known) Note(vcl::Concat("The encoding \"", vcl::Shown(part.Encoding), "\" is not known."));
  return std::string(part.Body);
}

void TMimeReader::TakeBody(const TPart& part) {
  std::string text = CharsetToUtf8(Decoded(part), part.Type.Parameter("charset"));
  if (part.Type.Value == "text/html") {
    AppendText(text, FMail.HtmlText);
  } else {
    TakePlain(std::move(text));
  }
}

/// A plain text may have files in it, as they were sent before MIME.
void TMimeReader::TakePlain(std::string text) {
  for (TUUFile& file : TakeUUFiles(text)) {
    FMail.Attachments.push_back({FNames.Give(file.Name, "application/octet-stream"),
                                 "application/octet-stream",
                                 {},
                                 std::move(file.Data)});
  }
  AppendText(text, FMail.Text);
}

void TMimeReader::TakeFile(const TPart& part) {
  std::string name = part.Name;
  if (name.empty() && part.Type.Value == "message/rfc822") {
    const std::string subject = DecodeWords(TMimeHeader(part.Body).Field("subject"));
    std::string stem = subject;
    // A subject is no path.
    std::ranges::replace(stem, '/', ' ');
    std::ranges::replace(stem, '\\', ' ');
    if (!stem.empty()) name = std::string(vcl::CutUtf8(stem, 100)) + ".eml";
  }
  FMail.Attachments.push_back(
      {FNames.Give(name, part.Type.Value), part.Type.Value, part.ContentId, Decoded(part)});
}

}  // namespace

TReadMail ReadMime(std::string_view mail) { return TMimeReader().Read(mail); }

}  // namespace qel
