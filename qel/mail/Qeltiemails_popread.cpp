// How a fetched mail is taken apart into a message.
#include <cstring>

#include "qel/mail/Qeltiemails_pop.h"
#include "qel/mail/private/headerfields.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/multipart.h"
#include "qel/mail/private/uucode.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

/// Where the text's last line begins.
std::size_t LastLine(std::string_view text) {
  for (const std::string_view end : {"\n", "\r"}) {
    if (text.ends_with(end)) text.remove_suffix(1);
  }
  return text.find_last_of("\r\n") + 1;
}

/// A text whose lines are looked at one by one, and of which some are kept, in the place that it
/// has: a mail of any size is gone through without a copy.
class TLineFilter {
 public:
  TLineFilter(char* text, std::size_t size) : FText(text), FLines({text, size}) {}

  bool Next(std::string_view& line) {
    FBegin = FLines.Position();
    return FLines.Next(line);
  }
  bool IsLast() const { return FLines.Rest().empty(); }
  /// Keeps the line, with its end, except for so many characters at its beginning.
  void Keep(std::size_t except = 0) {
    const std::size_t from = FBegin + except, count = FLines.Position() - from;
    if (from != FKept) std::memmove(FText + FKept, FText + from, count);
    FKept += count;
  }
  std::string_view Kept() const { return {FText, FKept}; }

 private:
  char* FText;
  TLineReader FLines;
  std::size_t FBegin = 0, FKept = 0;
};

/// Far faster than going through the lines: letters of attachments have no dots.
bool HasLineWithDot(std::string_view text) {
  for (std::size_t dot = 0; (dot = text.find('.', dot)) != text.npos; ++dot) {
    if (dot == 0 || text[dot - 1] == '\n' || text[dot - 1] == '\r') return true;
  }
  return false;
}

/// A server doubles the dot that a line begins with, since a lone one ends the mail. Returns how
/// much is left.
std::size_t UndoDotStuffing(char* text, std::size_t size) {
  if (!HasLineWithDot({text, size})) return size;
  TLineFilter lines(text, size);
  for (std::string_view line; lines.Next(line);) {
    lines.Keep(line.size() > 1 && line.front() == '.' && !lines.IsLast() ? 1 : 0);
  }
  return lines.Kept().size();
}

void AppendLines(std::string_view text, vcl::TStrings& lines) {
  const vcl::TUpdating updating(lines);
  std::string_view line;
  for (TLineReader reader(text); reader.Next(line);) lines.Append(std::string(line));
}

void TakeFields(const THeaderLines& header, TQELMessage& message) {
  const TMailFields fields = ReadFields(header);
  message.SetFromMail(fields.FromMail);
  message.SetFromName(fields.FromName);
  message.SetMessageId(fields.MessageId);
  message.SetInReplyTo(fields.InReplyTo);
  message.SetReplyTo(fields.ReplyTo);
  message.SetSendTo(fields.SendTo);
  message.SetDate(fields.Date);
  message.SetSubject(fields.Subject);
  for (const std::string_view line : header) message.Headers()->Append(std::string(line));
}

bool IsOneText(const std::optional<std::string>& contentType) {
  return !contentType || contentType->find("TEXT") != std::string::npos ||
         *contentType == "MULTIPART/REPORT" || contentType->find("MESSAGE") != std::string::npos;
}

/// From the first blank line on, blanks counting as nothing; resp. from the first line that is not.
std::string_view FromLine(std::string_view text, bool blank) {
  std::string_view line;
  for (TLineReader lines(text);;) {
    const std::size_t begin = lines.Position();
    if (!lines.Next(line)) return {};
    if (vcl::Trim(line).empty() == blank) return text.substr(begin);
  }
}

std::string_view BehindFirstLine(std::string_view text) {
  TLineReader lines(text);
  lines.Next(text);
  return lines.Rest();
}

/// A part's contents that stand for themselves.
void WriteText(std::string_view text, vcl::TStream& stream) {
  std::string_view line;
  for (TLineReader lines(text); lines.Next(line);) {
    stream.WriteText(line);
    stream.WriteText("\r\n");
  }
}

std::unique_ptr<TTextLines> LinesOf(std::string_view text) {
  auto lines = std::make_unique<TTextLines>();
  constexpr std::size_t usualLine = 60;  // Room that is not used costs nothing.
  lines->Reserve(text.size(), text.size() / usualLine);
  lines->AddLines(text);
  return lines;
}

/// The lines of an embedded file, from the one that begins it, which has been read, to the one that
/// ends it. Empty lines are lost, and the line that ends it is kept in the text.
std::unique_ptr<TTextLines> TakeEmbedded(std::string_view line, TLineFilter& text) {
  auto lines = std::make_unique<TTextLines>();
  do {
    if (!line.empty()) lines->AddLine(line);
    if (!text.Next(line)) return lines;
  } while (!IsUUEnd(line));
  text.Keep();
  return lines;
}

}  // namespace

TQELMessage* TQELPOPMail::ReadMessage(std::string reply) {
  if (Format() == mfStandard) return ReadStandard(std::move(reply));
  const std::string_view mail = BehindFirstLine(std::string_view(reply).substr(0, LastLine(reply)));
  const TLiving living(*Messages()->Add());
  THeader read = ReadHeader(mail);
  // A mail without an empty line is all text.
  const THeaderLines header = read.Rest ? std::move(read.Lines) : THeaderLines();
  const std::string_view body = read.Rest.value_or(mail);
  char* const text = reply.data() + (body.data() - reply.data());
  const std::size_t size = UndoDotStuffing(text, body.size());
  TakeFields(header, *living);
  if (IsOneText(ContentType(header))) {
    ReadSinglePart(*living, text, size);
  } else {
    ReadParts(*living, {text, size}, ReadBoundary(header));
  }
  Fire(AfterRetrieve, this);
  return living.Get();
}

void TQELPOPMail::ReadSinglePart(TQELMessage& message, char* body, std::size_t size) {
  const TLiving living(message);
  TLineFilter text(body, size);
  std::string name;
  for (std::string_view line; text.Next(line);) {
    if (!IsUUBegin(line, name)) {
      text.Keep();
      continue;
    }
    TQELAttachment* const attachment = living->Attachments()->Add(name);
    attachment->SetLines(TakeEmbedded(line, text));
    UUDecode(*attachment);
  }
  AppendLines(text.Kept(), *living->Message());
}

void TQELPOPMail::ReadParts(TQELMessage& message, std::string_view body,
                            const std::string& boundary) {
  const TLiving living(message);
  for (const std::string_view part : SplitParts(body, boundary)) {
    const TPartKind kind = ReadPartKind(part);
    if (kind.IsAttachment()) {
      ReadAttachment(*living, part, kind);
      continue;
    }
    AppendLines(ReadHeader(part).Rest.value_or(""), *living->Message());
  }
}

void TQELPOPMail::ReadAttachment(TQELMessage& message, std::string_view part,
                                 const TPartKind& kind) {
  TQELAttachment* const attachment =
      message.Attachments()->Add(AttachmentName(kind, message.Subject()));
  const std::string_view text = FromLine(part, true);
  if (!kind.IsEncoded()) {
    // Its last line is the empty one that belongs to the boundary.
    const std::string_view lines = BehindFirstLine(text);
    WriteText(lines.substr(0, LastLine(lines)), *attachment->Data());
    return;
  }
  attachment->SetLines(LinesOf(FromLine(text, false)));
  kind.Encoding == "BASE64" ? Base64Decode(*attachment) : UUDecode(*attachment);
}

}  // namespace qel
