// How a message becomes a mail of the standard format, and whom it goes to.
#include <algorithm>
#include <chrono>

#include "qel/mail/Qeltiemails_smtp.h"
#include "qel/mail/mailerror.h"
#include "qel/mail/private/asciitext.h"
#include "qel/mail/private/dots.h"
#include "qel/mail/private/encodedwords.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/mimewriter.h"
#include "qel/mail/private/smtpextensions.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

/// What an attachment is read from: its data, or its file.
std::unique_ptr<vcl::TStream> OpenAttachment(const TQELAttachment& attachment) {
  if (attachment.Data() && attachment.Data()->Size() > 0) {
    auto copy = std::make_unique<vcl::TMemoryStream>();
    attachment.Data()->SaveToStream(*copy);
    copy->Seek(0, vcl::soBeginning);
    return copy;
  }
  return std::make_unique<vcl::TFileStream>(attachment.FileName(),
                                            vcl::fmOpenRead | vcl::fmShareDenyNone);
}

std::string TextOf(const TQELMessage& message, const vcl::TStrings& signature) {
  std::string text = message.Message()->Text();
  if (signature.Count() > 0) text.append("\r\n").append(signature.Text());
  return text;
}

}  // namespace

std::vector<std::string> TQELSMTPMail::RecipientsOf(const TQELMessage& message) const {
  if (Format() != mfStandard) return SplitRecipients(message.SendTo());
  std::vector<std::string> recipients;
  for (const std::string* list : {&message.SendTo(), &message.Cc(), &message.Bcc()}) {
    for (const TMailAddress& each : ReadAddresses(*list)) {
      const bool known = std::ranges::find(recipients, each.Address) != recipients.end();
      if (!known) recipients.push_back(each.Address);
    }
  }
  return recipients;
}

void TQELSMTPMail::CheckAddresses(const TQELMessage& message) const {
  if (message.FromMail().empty()) {
    throw EQELMailError(vcl::Concat("The mail \"", message.Subject(), "\" has no sender"));
  }
  std::vector<std::string> addresses = RecipientsOf(message);
  if (addresses.empty()) {
    throw EQELMailError(vcl::Concat("The mail \"", message.Subject(), "\" has no recipient"));
  }
  addresses.push_back(message.FromMail());
  for (const std::string& address : addresses) {
    if (address.find_first_of(" <>") != address.npos) {
      throw EQELMailError(vcl::Concat("\"", address, "\" is no mail address"));
    }
    if (!FServer->Utf8 && !IsAscii(address)) {
      throw EQELMailError(
          vcl::Concat("\"", Host(), "\" takes no addresses beyond ASCII, as \"", address, "\" is"));
    }
  }
}

std::string TQELSMTPMail::ComposeStandard(TQELMessage& message) {
  const TLiving living(message);
  CheckMessage(message);
  CheckAddresses(message);
  message.SetDate(MailDate(std::chrono::system_clock::now(), UtcOffsetMinutes()));
  const std::string& from = message.FromMail();
  message.SetMessageId(NewMessageId(std::string_view(from).substr(from.find('@') + 1)));

  TWriteMail mail;
  mail.From = {{message.FromName(), from}};
  mail.ReplyTo = ReadAddresses(message.ReplyTo());
  mail.To = ReadAddresses(message.SendTo());
  mail.Cc = ReadAddresses(message.Cc());
  mail.Subject = message.Subject();
  mail.Date = message.Date();
  mail.MessageId = message.MessageId();
  mail.InReplyTo = message.InReplyTo();
  mail.References = message.References();
  const std::string title = vcl::BaseApplication().Title();
  if (!title.empty()) mail.Fields.push_back("X-Mailer: " + EncodeWords(title));
  mail.Text = TextOf(message, *FSignature);
  mail.HtmlText = message.HtmlText();

  std::size_t room = mail.Text.size() + mail.HtmlText.size();
  for (int i = 0; i < message.Attachments()->Count(); ++i) {
    mail.Attachments.push_back(Encoding(*message.Attachments()->GeTQELAttachment(i), room));
  }
  std::string text;
  text.reserve(room / 3 * 4 + room / 24 + 4096);
  WriteMime(mail, [&](std::string_view line) { AppendLineWithDots(line, text); });
  Pump();
  return Aborted() ? std::string() : text;
}

TWriteAttachment TQELSMTPMail::Encoding(const TQELAttachment& attachment, std::size_t& room) {
  TWriteAttachment written;
  const std::string& name = attachment.FileName();
  written.Name = vcl::ExtractFileName(name);
  written.Type =
      attachment.MimeType().empty() ? TQELAttachments::GetMimeType(name) : attachment.MimeType();
  written.ContentId = attachment.ContentId();
  const std::shared_ptr<vcl::TStream> stream = OpenAttachment(attachment);
  const std::int64_t size = stream->Size();
  room += static_cast<std::size_t>(size);
  // The first bytes begin it, none end it.
  written.Read = [this, stream, name, size, done = std::int64_t{0},
                  threshold = int{ProgressStep()}](char* buffer, std::size_t count) mutable {
    constexpr std::int64_t most = 1 << 30;
    if (done == 0) DoEncodeStart(name, static_cast<int>(std::min(size, most)));
    const std::int64_t read = stream->Read(buffer, static_cast<std::int64_t>(count));
    done += read;
    LetWait();
    if (read == 0) {
      if (FLastEncodePercent < 100 || size == 0) DoEncodeProgress(100);
      DoEncodeEnd();
      return std::size_t{0};
    }
    FLastEncodePercent =
        Percent(static_cast<double>(std::min(done, size)), static_cast<double>(size));
    if (StepReached(FLastEncodePercent, threshold)) DoEncodeProgress(FLastEncodePercent);
    return static_cast<std::size_t>(read);
  };
  return written;
}

}  // namespace qel
