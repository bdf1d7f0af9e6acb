// How a mail is put together: its header, its bodies, its parts.
#include "qel/mail/private/mimewriter.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "qel/mail/private/asciitext.h"
#include "qel/mail/private/base64.h"
#include "qel/mail/private/digests.h"
#include "qel/mail/private/encodedwords.h"
#include "qel/mail/private/mimeparameters.h"
#include "qel/mail/private/oneline.h"
#include "qel/mail/private/quotedprintable.h"
#include "qel/mail/textlines.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr std::size_t LineBytes = 57;
constexpr std::size_t MaxPlainLine = 78;
/// A multiple of what a line holds.
constexpr std::size_t BlockBytes = LineBytes * 1024;

using TSink = std::function<void(std::string_view)>;
using TAttachments = std::vector<const TWriteAttachment*>;

/// How a text travels.
enum class TCoding { SevenBit, QuotedPrintable, Base64 };

TCoding CodingOf(std::string_view text) {
  std::size_t special = 0, longest = 0;
  std::string_view line;
  bool froms = false;
  for (TLineReader lines(text); lines.Next(line);) {
    longest = std::max(longest, line.size());
    froms = froms || line.starts_with("From ") || line == ".";
    special += static_cast<std::size_t>(std::ranges::count_if(line, [](char c) {
      const auto byte = static_cast<unsigned char>(c);
      return byte >= 127 || (byte < ' ' && c != '\t');
    }));
  }
  // A lone CR would be one end of line more at the other side.
  if (special == 0 && longest <= MaxPlainLine && !froms) return TCoding::SevenBit;
  // Three letters for each of these, against four for each three bytes.
  return special * 2 > text.size() / 3 ? TCoding::Base64 : TCoding::QuotedPrintable;
}

bool EndsLine(std::string_view text) { return text.ends_with('\n') || text.ends_with('\r'); }

void WriteBase64(const unsigned char* bytes, std::size_t count, const TSink& sink) {
  std::array<char, Base64Size(LineBytes)> letters;
  for (std::size_t at = 0; at < count; at += LineBytes) {
    const std::size_t size = std::min(LineBytes, count - at);
    EncodeBase64(bytes + at, size, letters.data());
    sink({letters.data(), Base64Size(size)});
  }
}

class TMimeWriter {
 public:
  TMimeWriter(const TWriteMail& mail, const TSink& sink) : FMail(mail), FSink(sink) {}
  void Write();

 private:
  void WriteField(const char* name, const std::string& value);
  void WriteLines(std::string_view text);
  void WriteHeader();
  void WriteAll();
  void WriteTexts();
  void WriteHtml();
  void WriteText(const char* type, std::string_view text);
  void WriteAttachment(const TWriteAttachment& attachment);
  /// A multipart of the kind, whose parts the call writes, each behind Next.
  template <class Call>
  void WriteParts(const char* kind, const Call& call);
  void Line(std::string_view line) { FSink(line); }

  const TWriteMail& FMail;
  const TSink& FSink;
  TAttachments FShown, FFiles;
  int FDepth = 0;  ///< Of multiparts.
};

void TMimeWriter::WriteField(const char* name, const std::string& value) {
  if (value.empty()) return;
  CheckOneLine(name, value);
  WriteLines(FoldField(vcl::Concat(name, ": ", value)));
}

void TMimeWriter::WriteLines(std::string_view text) {
  std::string_view line;
  for (TLineReader lines(text); lines.Next(line);) Line(line);
}

void TMimeWriter::Write() {
  for (const TWriteAttachment& each : FMail.Attachments) {
    CheckOneLine("FileName", each.Name);
    CheckOneLine("MimeType", each.Type);
    const bool shown = !each.ContentId.empty() && !FMail.HtmlText.empty();
    (shown ? FShown : FFiles).push_back(&each);
  }
  WriteHeader();
  WriteAll();
}

void TMimeWriter::WriteHeader() {
  for (const auto* list : {&FMail.From, &FMail.ReplyTo, &FMail.To, &FMail.Cc}) {
    for (const TMailAddress& each : *list) {
      CheckOneLine("Name", each.Name);
      CheckOneLine("Address", each.Address);
    }
  }
  CheckOneLine("Subject", FMail.Subject);
  WriteField("Date", FMail.Date);
  WriteField("From", WriteAddresses(FMail.From));
  WriteField("Reply-To", WriteAddresses(FMail.ReplyTo));
  WriteField("To", WriteAddresses(FMail.To));
  WriteField("Cc", WriteAddresses(FMail.Cc));
  WriteField("Subject", EncodeWords(FMail.Subject, false, std::string_view("Subject: ").size()));
  WriteField("Message-ID", FMail.MessageId);
  WriteField("In-Reply-To", FMail.InReplyTo);
  WriteField("References", FMail.References);
  for (const std::string& each : FMail.Fields) {
    CheckOneLine("Field", each);
    WriteLines(FoldField(each));
  }
  Line("MIME-Version: 1.0");
}

template <class Call>
void TMimeWriter::WriteParts(const char* kind, const Call& call) {
  // Nobody can guess it, so it stands in no part.
  const std::string boundary = "=_" + HexText(RandomBytes(16));
  Line(vcl::Concat("Content-Type: multipart/", kind, ";"));
  Line(vcl::Concat(" boundary=\"", boundary, "\""));
  Line("");
  ++FDepth;
  call([&] { Line("--" + boundary); });
  --FDepth;
  Line(vcl::Concat("--", boundary, "--"));
}

void TMimeWriter::WriteAll() {
  if (FFiles.empty()) return WriteTexts();
  WriteParts("mixed", [this](const auto& next) {
    next();
    WriteTexts();
    for (const TWriteAttachment* each : FFiles) {
      next();
      WriteAttachment(*each);
    }
  });
}

void TMimeWriter::WriteTexts() {
  if (FMail.HtmlText.empty()) return WriteText("text/plain", FMail.Text);
  if (FMail.Text.empty()) return WriteHtml();
  WriteParts("alternative", [this](const auto& next) {
    next();
    WriteText("text/plain", FMail.Text);
    next();
    WriteHtml();
  });
}

void TMimeWriter::WriteHtml() {
  if (FShown.empty()) return WriteText("text/html", FMail.HtmlText);
  WriteParts("related", [this](const auto& next) {
    next();
    WriteText("text/html", FMail.HtmlText);
    for (const TWriteAttachment* each : FShown) {
      next();
      WriteAttachment(*each);
    }
  });
}

void TMimeWriter::WriteText(const char* type, std::string_view text) {
  const TCoding coding = CodingOf(text);
  Line(vcl::Concat("Content-Type: ", type, "; charset=utf-8"));
  std::string_view line;
  switch (coding) {
    case TCoding::SevenBit:
      Line("Content-Transfer-Encoding: 7bit");
      Line("");
      WriteLines(text);
      break;
    case TCoding::QuotedPrintable:
      Line("Content-Transfer-Encoding: quoted-printable");
      Line("");
      for (TLineReader lines(text); lines.Next(line);) EncodeQuotedPrintableLine(line, FSink);
      break;
    case TCoding::Base64: {
      Line("Content-Transfer-Encoding: base64");
      Line("");
      std::string ends;
      for (TLineReader lines(text); lines.Next(line);) ends.append(line).append("\r\n");
      if (!EndsLine(text)) ends.resize(ends.size() - std::min<std::size_t>(2, ends.size()));
      WriteBase64(reinterpret_cast<const unsigned char*>(ends.data()), ends.size(), FSink);
      return;
    }
  }
  // The last end of line before a boundary belongs to that (RFC 2046, 5.1.1).
  if (FDepth > 0 && EndsLine(text)) Line("");
}

void TMimeWriter::WriteAttachment(const TWriteAttachment& attachment) {
  const bool shown = !attachment.ContentId.empty();
  const auto write = [this](const std::string& field) {
    // Each parameter on a line of its own, which no fold then cuts.
    std::string_view rest = field;
    for (std::size_t at; (at = rest.find("; ", 1)) != rest.npos;) {
      Line(rest.substr(0, at + 1));
      rest.remove_prefix(at + 1);
    }
    Line(rest);
  };
  const std::string type = attachment.Type.empty() ? "application/octet-stream" : attachment.Type;
  write(vcl::Concat("Content-Type: ", type, MimeParameter("name", attachment.Name)));
  Line("Content-Transfer-Encoding: base64");
  write(vcl::Concat("Content-Disposition: ", shown ? "inline" : "attachment",
                    MimeParameter("filename", attachment.Name)));
  if (shown) WriteField("Content-ID", vcl::Concat("<", attachment.ContentId, ">"));
  Line("");
  std::vector<char> block(BlockBytes);
  std::size_t filled = 0;
  for (std::size_t more = 1; more > 0;) {
    more = attachment.Read(block.data() + filled, block.size() - filled);
    filled += more;
    if (filled < block.size() && more > 0) continue;
    WriteBase64(reinterpret_cast<const unsigned char*>(block.data()), filled, FSink);
    filled = 0;
  }
}

}  // namespace

void WriteMime(const TWriteMail& mail, const TSink& sink) { TMimeWriter(mail, sink).Write(); }

std::string MailDate(std::chrono::system_clock::time_point moment, int offsetMinutes) {
  // English wherever the user lives.
  constexpr std::array days{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr std::array months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                              "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  using namespace std::chrono;
  const auto local = floor<seconds>(moment) + minutes(offsetMinutes);
  const auto today = floor<std::chrono::days>(local);
  const year_month_day date(today);
  const hh_mm_ss time(local - today);
  const int ahead = std::abs(offsetMinutes);
  std::array<char, 64> text;
  std::snprintf(text.data(), text.size(), "%s, %02u %s %04d %02d:%02d:%02d %c%02d%02d",
                days[weekday(today).c_encoding()], unsigned{date.day()},
                months[unsigned{date.month()} - 1], int{date.year()},
                static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                static_cast<int>(time.seconds().count()), offsetMinutes < 0 ? '-' : '+',
                ahead / 60 % 100, ahead % 60);
  return text.data();
}

int UtcOffsetMinutes() {
  const std::time_t now = std::time(nullptr);
  // The moment in UTC, taken for one of the user's clocks.
  std::tm utc = *std::gmtime(&now);
  utc.tm_isdst = std::localtime(&now)->tm_isdst;
  return static_cast<int>(std::difftime(now, std::mktime(&utc)) / 60);
}

std::string NewMessageId(std::string_view domain) {
  std::string name(domain);
  std::erase_if(name, [](char c) {
    return !std::isalnum(static_cast<unsigned char>(c)) && c != '.' && c != '-';
  });
  if (name.empty()) name = "localhost";
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return vcl::Concat("<", std::to_string(now / std::chrono::milliseconds(1)), ".",
                     HexText(RandomBytes(12)), "@", name, ">");
}

}  // namespace qel
