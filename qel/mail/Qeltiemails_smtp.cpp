// How mails are sent: the dialogue with the server.
#include <chrono>
#include <thread>
#include <vector>

#include "qel/mail/Qeltiemails_smtp.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/oneline.h"
#include "qel/mail/private/smtpextensions.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr std::chrono::milliseconds LinePause(40);
constexpr int StreamTimeOut = 20;
constexpr std::size_t MaxRecipients = 256;

}  // namespace

const vcl::TClass& TQELSMTPMail::Class() {
  using T = TQELSMTPMail;
  using namespace vcl;
  static const TClass info = Describe<T, TQELMailHost>(
      "qel::TQELSMTPMail", "qel/mail/Qeltiemails.h",
      {
          Property<&T::Signature, &T::SetSignature>("Signature"),
          Property<&T::DateTimeFormat, &T::SetDateTimeFormat>("DateTimeFormat"),
          Property<&T::Password, &T::SetPassword>("Password").Default(""),
          Property<&T::SkipRefused, &T::SetSkipRefused>("SkipRefused").Default(false),
          Property<&T::Username, &T::SetUsername>("Username").Default(""),
          Event<&T::OnConnect>("OnConnect"),
          Event<&T::OnDisconnect>("OnDisconnect"),
          Event<&T::OnError>("OnError"),
          Event<&T::OnBeforeSend>("OnBeforeSend"),
          Event<&T::OnAfterSend>("OnAfterSend"),
          Event<&T::OnEncodeStart>("OnEncodeStart"),
          Event<&T::OnEncodeProgress>("OnEncodeProgress"),
          Event<&T::OnEncodeEnd>("OnEncodeEnd"),
          Event<&T::OnSendProgress>("OnSendProgress")
              .Type("TQELSendingProgress", "vcl::TObject* sender, std::uint16_t percent"),
      });
  return info;
}

TQELSMTPMail::TQELSMTPMail(vcl::TComponent* owner)
    : TQELMailHost(owner),
      FSignature(std::make_unique<vcl::TStringList>()),
      FDateTimeFormat(vcl::Concat(vcl::FormatSettings().LongDateFormat, ", ",
                                  vcl::FormatSettings().LongTimeFormat)) {
  SetPort("25");
}

TQELSMTPMail::~TQELSMTPMail() { AnnounceEnd(); }

bool TQELSMTPMail::Execute() {
  vcl::TWatch watch(this);
  const bool done = TQELMailHost::Execute();
  if (watch.Gone()) return false;
  return RunSession([this] {
           Connect();
           if (FExtended && !Connected()) return;
           for (int i = 0; i < Messages()->Count(); ++i) {
             SendMessage(*Messages()->GetQELMessage(i));
           }
         }) &&
         done;
}

void TQELSMTPMail::CheckSession() const {
  TQELMailHost::CheckSession();
  CheckOneLine("The application's title", vcl::BaseApplication().Title());
  CheckOneLine("DateTimeFormat", FDateTimeFormat);
  for (int i = 0; i < Messages()->Count(); ++i) CheckMessage(*Messages()->GetQELMessage(i));
}

void TQELSMTPMail::Connect() {
  FError = false;
  FExtended = WantsExtensions();
  if (FExtended) return OpenExtended();
  TQELMailHost::Connect();
  OpenStream(StreamTimeOut);
  FInsideLine = FMailUnderWay = false;
  if (!ReadGreeting()) return;
  if (FReplyCode != "220") {
    DoErr(vcl::eeConnect);
    return;
  }
  Command("HELO " + vcl::TCustomWinSocket::GetLocalHost(), "250", vcl::eeConnect);
  // Also after a refused HELO, which has closed the connection: the first message then fails on it,
  // and that ends the session.
  FAborted = FAbortAsked;
}

bool TQELSMTPMail::ReadGreeting() {
  std::string text;
  GetSocketText(text);
  while (FReplyCode != "220" && FReplyCode != "421") {
    GetSocketText(text);
    Pump();
    if (!Connected()) return false;
  }
  return true;
}

void TQELSMTPMail::Disconnect() {
  if (!Connected()) return;
  if (!Aborted() && !FMailUnderWay) Command("QUIT", "221", vcl::eeDisconnect);
  CloseConnection();
}

bool TQELSMTPMail::SendMessage(TQELMessage& message) {
  // Neither a closed connection nor a missing sender or recipient is looked for here: the server
  // answers for them.
  if (FExtended) return SendExtended(message);
  const TLiving living(message);
  message.SetDate(vcl::FormatDateTime(FDateTimeFormat, vcl::Now()));
  const std::unique_ptr<vcl::TStringList> lines = InitializeMessage(message);
  if (!lines || Aborted()) return false;
  DoOnBeforeSend();
  CheckMessage(*living);  // It may be another one by now.
  if (!Command("MAIL FROM:<" + living->FromMail() + ">", "250") ||
      !SendRecipients(living->SendTo()) || !SendMail(*lines)) {
    return false;
  }
  if (FLastSendPercent < 100) DoSendProgress(100);
  DoOnAfterSend();
  return true;
}

std::vector<std::string> TQELSMTPMail::SplitRecipients(const std::string& sendTo) {
  std::string_view rest = vcl::Trim(sendTo);
  std::vector<std::string> recipients;
  for (std::size_t comma; (comma = rest.find(',')) != rest.npos; rest.remove_prefix(comma + 1)) {
    recipients.emplace_back(vcl::Trim(rest.substr(0, comma)));
  }
  // Nothing trims the last one: a blank behind the last comma is sent.
  recipients.emplace_back(rest);
  if (recipients.size() > MaxRecipients) {
    throw vcl::EInvalidOperation(vcl::Concat("A mail goes to at most ",
                                             std::to_string(MaxRecipients), " recipients, not to ",
                                             std::to_string(recipients.size())));
  }
  return recipients;
}

bool TQELSMTPMail::SendRecipients(const std::string& sendTo) {
  for (const std::string& recipient : SplitRecipients(sendTo)) {
    if (!Command("RCPT TO:<" + recipient + ">", "250")) return false;
  }
  return true;
}

bool TQELSMTPMail::SendMail(const vcl::TStrings& lines) {
  const vcl::TSetFor underWay(FMailUnderWay, true, this);
  return Command("DATA", "354") && SendLines(lines) && Command("\r\n.", "250");
}

bool TQELSMTPMail::SendLines(const vcl::TStrings& lines) {
  int threshold = ProgressStep();
  for (int i = 0; i < lines.Count(); ++i) {
    SendSocketText(lines.Strings(i) + "\r\n");
    FLastSendPercent = Percent(i, lines.Count());
    if (StepReached(FLastSendPercent, threshold)) DoSendProgress(FLastSendPercent);
    Pump();
    if (Aborted()) return false;
    // Servers of slow machines and lines are not to be overrun.
    std::this_thread::sleep_for(LinePause);
  }
  return true;
}

bool TQELSMTPMail::Command(const std::string& command, const char* wanted, vcl::TErrorEvent kind) {
  SendSocketText(command + "\r\n");
  std::string text;
  GetSocketText(text);
  FError = FReplyCode != wanted;
  if (FError) DoErr(kind);
  return !FError;
}

void TQELSMTPMail::DoErr(vcl::TErrorEvent kind) {
  int noCode = 0;
  DoError(this, Connection(), kind, noCode);
}

void TQELSMTPMail::DoError(vcl::TObject* sender, vcl::TCustomWinSocket*, vcl::TErrorEvent, int&) {
  FError = true;
  // It is raised, and told then.
  if (FExtended && sender != this) return;
  FAborted = true;
  Disconnect();
  // Without a reply so far there is no code, and the conversion raises.
  if (OnError) Fire(OnError, sender, vcl::StrToInt(FReplyCode), FReplyText);
}

void TQELSMTPMail::DoEncodeStart(const std::string& fileName, int count) {
  Fire(OnEncodeStart, this, fileName, count);
}

// Percentages are from 0 to 100: the events' narrower type holds them.
void TQELSMTPMail::DoEncodeProgress(int percent) {
  Fire(OnEncodeProgress, this, static_cast<std::uint16_t>(percent));
}

void TQELSMTPMail::DoSendProgress(int percent) {
  Fire(OnSendProgress, this, static_cast<std::uint16_t>(percent));
}

}  // namespace qel
