// How a fetched mail of the standard format becomes a message.
#include "qel/mail/Qeltiemails_pop.h"
#include "qel/mail/private/dots.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/mimefields.h"
#include "qel/mail/private/mimereader.h"
#include "qel/mail/textlines.h"
#include "vcl/rtl/scope.h"

namespace qel {
namespace {

/// Without the line of status before it and the lone dot behind it.
std::string_view MailIn(std::string_view reply) {
  TLineReader lines(reply);
  lines.Next(reply);
  std::string_view mail = lines.Rest();
  constexpr std::string_view end = ".\r\n";
  if (mail.ends_with(end)) mail.remove_suffix(end.size());
  return mail;
}

void TakeFields(const TReadMail& mail, TQELMessage& message) {
  if (!mail.From.empty()) {
    message.SetFromMail(mail.From.front().Address);
    message.SetFromName(mail.From.front().Name);
  }
  message.SetReplyTo(ShowAddresses(mail.ReplyTo));
  message.SetSendTo(ShowAddresses(mail.To));
  message.SetCc(ShowAddresses(mail.Cc));
  message.SetSubject(mail.Subject);
  message.SetDate(mail.Date);
  message.SetMessageId(mail.MessageId);
  message.SetInReplyTo(mail.InReplyTo);
  message.SetReferences(mail.References);
  message.Message()->SetText(mail.Text);
  message.SetHtmlText(mail.HtmlText);
  std::string notes;
  for (const std::string& each : mail.Notes) notes.append(notes.empty() ? "" : "\r\n").append(each);
  message.SetNotes(notes);
}

void TakeHeader(std::string_view mail, TQELMessage& message) {
  const std::string_view header = mail.substr(0, mail.size() - TMimeHeader(mail).Body().size());
  std::string_view line;
  const vcl::TUpdating updating(*message.Headers());
  for (TLineReader lines(header); lines.Next(line) && !line.empty();) {
    message.Headers()->Append(std::string(line));
  }
}

}  // namespace

TQELMessage* TQELPOPMail::ReadStandard(std::string reply) {
  const std::string_view received = MailIn(reply);
  // Most mails have no such dots, and are large.
  const bool doubled = received.starts_with('.') || received.find("\n.") != received.npos;
  const std::string single = doubled ? WithSingleDots(received) : std::string();
  const std::string_view text = doubled ? single : received;
  TReadMail mail = ReadMime(text);
  const TLiving living(*Messages()->Add());
  TakeFields(mail, *living);
  TakeHeader(text, *living);
  for (TReadAttachment& each : mail.Attachments) {
    TQELAttachment* const attachment = living->Attachments()->Add(each.Name);
    attachment->SetMimeType(each.Type);
    attachment->SetContentId(each.ContentId);
    Fire(OnDecodeStart, this, each.Name, static_cast<int>(each.Data.size()));
    // An event may have deleted it.
    const int last = living->Attachments()->Count() - 1;
    if (last < 0 || living->Attachments()->GeTQELAttachment(last) != attachment) continue;
    attachment->SetData(std::make_unique<vcl::TStringStream>(std::move(each.Data)));
    Fire(OnDecodeProgress, this, std::uint16_t{100});
    Fire(OnDecodeEnd, this);
  }
  Fire(AfterRetrieve, this);
  return living.Get();
}

}  // namespace qel
