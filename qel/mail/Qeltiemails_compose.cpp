// How the sender composes a mail: its header, its text and its parts.
#include <chrono>
#include <random>

#include "qel/mail/Qeltiemails_smtp.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/oneline.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr const char* Credit = ", 2026 by the makers of the QEL component library";
constexpr const char* WebAddress = "https://qel.example/";

/// The clock decides, so two calls at the same moment give the same. There is no "z".
std::string RandomLetters(int count) {
  const auto now = std::chrono::system_clock::now().time_since_epoch().count();
  std::minstd_rand random(static_cast<std::uint_fast32_t>(now));
  std::uniform_int_distribution letter(0, 24);
  std::string letters;
  for (; count > 0; --count) letters += static_cast<char>('a' + letter(random));
  return letters;
}

void AddUnlessEmpty(const char* field, const std::string& value, vcl::TStrings& lines) {
  if (!value.empty()) lines.Add(field + value);
}

void CheckAttachment(const TQELAttachment& attachment) {
  CheckOneLine("FileName", attachment.FileName());
  CheckOneLine("MimeType", attachment.MimeType());
  CheckOneLine("ContentId", attachment.ContentId());
}

void AddLines(std::initializer_list<const char*> texts, vcl::TStrings& lines) {
  for (const char* text : texts) lines.Add(text);
}

}  // namespace

std::string TQELSMTPMail::CreateUIN() const {
  return vcl::Concat("<QELDT98.", vcl::FormatDateTime("hhnn.ddmmyyyy", vcl::Now()),
                     RandomLetters(8), "@", vcl::TCustomWinSocket::GetLocalHost(), ">");
}

std::string TQELSMTPMail::CreateBounds() { return "---QELMAIL" + RandomLetters(12); }

void TQELSMTPMail::CheckMessage(const TQELMessage& message) {
  CheckOneLine("FromMail", message.FromMail());
  CheckOneLine("FromName", message.FromName());
  CheckOneLine("ReplyTo", message.ReplyTo());
  CheckOneLine("InReplyTo", message.InReplyTo());
  CheckOneLine("SendTo", message.SendTo());
  CheckOneLine("Subject", message.Subject());
  CheckOneLine("Cc", message.Cc());
  CheckOneLine("Bcc", message.Bcc());
  CheckOneLine("References", message.References());
  for (int i = 0; i < message.Attachments()->Count(); ++i) {
    CheckAttachment(*message.Attachments()->GeTQELAttachment(i));
  }
}

std::unique_ptr<vcl::TStringList> TQELSMTPMail::InitializeMessage(TQELMessage& message) {
  CheckMessage(message);
  CheckOneLine("Date", message.Date());
  auto lines = std::make_unique<vcl::TStringList>();
  AddHeaders(message, *lines);
  const bool multipart = message.Attachments()->Count() > 0;
  if (multipart) {
    const std::string boundary = CreateBounds();
    lines->Add(vcl::Concat("Content-Type: multipart/mixed; boundary=\"", boundary, "\""));
    if (!AddParts(message, "--" + boundary, *lines)) return nullptr;
  } else {
    AddLines(
        {"Content-Type: Text/Plain; charset=ISO-8859-1", "Content-Transfer-Encoding: 8bit", ""},
        *lines);
    AddText(message, *lines);
  }
  Pump();
  return Aborted() ? nullptr : std::move(lines);
}

void TQELSMTPMail::AddHeaders(const TQELMessage& message, vcl::TStrings& lines) const {
  const std::string title = vcl::BaseApplication().Title();
  lines.Add("Message-Id: " + CreateUIN());
  AddUnlessEmpty("In-Reply-To: ", message.InReplyTo(), lines);
  lines.Add("Date: " + message.Date());
  lines.Add("From: " + Sender(message));
  AddUnlessEmpty("Reply-To: ", message.ReplyTo(), lines);
  lines.Add(vcl::Concat("X-Mailer: ", title, " - [", ClassName(), "]"));
  lines.Add(vcl::Concat("Generator: QEL Dravel Tools in [", Name(), "]", Credit));
  lines.Add(vcl::Concat("URL: ", WebAddress));
  lines.Add("To: " + message.SendTo());
  lines.Add("Subject: " + message.Subject());
  lines.Add("MIME-Version: 1.0");
}

std::string TQELSMTPMail::Sender(const TQELMessage& message) const {
  const std::string& address = message.FromMail();
  if (message.FromName().empty()) return address;
  // The server's name stands for the domain that an address lacks.
  const std::string domain = address.find('@') == address.npos ? "@" + Host() : "";
  return vcl::Concat("\"", message.FromName(), "\" <", address, domain, ">");
}

void TQELSMTPMail::AddText(const TQELMessage& message, vcl::TStrings& lines) const {
  vcl::TStringList text;
  text.SetText(message.Message()->Text());
  // Two empty lines, as it is sent with a line end of its own.
  text.Add("\r\n");
  text.AddStrings(*FSignature);
  // A dot that begins a line is doubled (RFC 821, 4.5.2), for a lone one ends the mail.
  for (int i = 0; i < text.Count(); ++i) {
    const std::string line = text.Strings(i);
    lines.Add(line.starts_with('.') ? "." + line : line);
  }
}

bool TQELSMTPMail::AddParts(TQELMessage& message, const std::string& boundary,
                            vcl::TStrings& lines) {
  const TLiving living(message);
  lines.Add("");
  lines.Add(boundary);
  // The colon behind "charset" is how these mails have always been written.
  AddLines({"Content-Type: Text/Plain; charset: ISO-8859-1", "Content-Transfer-Encoding: 8bit", ""},
           lines);
  AddText(message, lines);
  for (int i = 0; i < living->Attachments()->Count(); ++i) {
    lines.Add(boundary);
    if (!AddAttachment(*living->Attachments()->GeTQELAttachment(i), lines)) return false;
  }
  AddLines({""}, lines);
  lines.Add(boundary + "--");
  AddLines({""}, lines);
  return true;
}

bool TQELSMTPMail::AddAttachment(TQELAttachment& attachment, vcl::TStrings& lines) {
  CheckAttachment(attachment);  // Encoding the one before fired events.
  const TLiving living(attachment);
  const std::string& name = attachment.FileName();
  lines.Add(vcl::Concat("Content-Type: ", attachment.MimeType(), "; name=\"", name, "\""));
  lines.Add("Content-Transfer-Encoding: base64");
  lines.Add(vcl::Concat("Content-Disposition: inLine; filename=\"", name, "\""));
  lines.Add("");
  Base64Encode(attachment);
  if (Aborted()) return false;
  lines.AddStrings(*living->Lines());
  return true;
}

}  // namespace qel
