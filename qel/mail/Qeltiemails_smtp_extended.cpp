// Sending over a server of today (RFC 5321): its extensions, security, logging in, and mails
// without a pause.
#include <algorithm>
#include <cctype>

#include "qel/mail/Qeltiemails_smtp.h"
#include "qel/mail/mailerror.h"
#include "qel/mail/private/asciitext.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/sasl.h"
#include "qel/mail/private/smtpextensions.h"
#include "vcl/net/tls.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr int StreamTimeOut = 20;
/// How much of a mail is sent before the application is heard.
constexpr std::size_t PortionSize = 64 << 10;
/// How many recipients are named before their replies are read: so neither side waits for the
/// other with full hands.
constexpr std::size_t PipelinedAtOnce = 50;
/// No server has more to say to one command.
constexpr std::size_t MaxReplySize = 64 << 10;
/// No way of logging in has as many questions.
constexpr int MaxQuestions = 10;

/// This machine as servers want it named: a domain, else its address (RFC 5321, 4.1.3).
std::string HelloName(const vcl::TCustomWinSocket& connection) {
  std::string name = vcl::TCustomWinSocket::GetLocalHost();
  const bool domain = !name.empty() && std::ranges::all_of(name, [](char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '.';
  });
  if (domain) return name;
  const std::string address = connection.LocalAddress();
  const bool newer = address.find(':') != address.npos;
  return vcl::Concat("[", newer ? "IPv6:" : "", address, "]");
}

}  // namespace

bool TQELSMTPMail::WantsExtensions() const {
  return FSkipRefused || TQELMailHost::WantsExtensions();
}

void TQELSMTPMail::ReadWholeReply(std::string& text) {
  FReplyText.clear();
  do {
    text = ReadLine();
    const std::string_view words =
        std::string_view(text).substr(std::min<std::size_t>(4, text.size()));
    FReplyText.append(FReplyText.empty() ? "" : "\n").append(vcl::Trim(words));
    if (FReplyText.size() > MaxReplySize) throw EQELMailError("The server's reply does not end");
  } while (text.size() > 3 && text[3] == '-');
  FReplyCode = text.substr(0, 3);
}

bool TQELSMTPMail::Request(const std::string& command, const char* wanted) {
  SendSocketText(command + "\r\n");
  return ReadAnswer(wanted);
}

bool TQELSMTPMail::ReadAnswer(const char* wanted) {
  std::string text;
  GetSocketText(text);
  FError = !FReplyCode.starts_with(wanted);
  return !FError;
}

void TQELSMTPMail::OpenExtended() {
  FInsideLine = FMailUnderWay = false;
  FServer = std::make_unique<TSmtpExtensions>();
  if (!OpenConnection()) return;
  OpenStream(StreamTimeOut);
  if (Security() == msTls) Secure();
  std::string text;
  GetSocketText(text);
  FAborted = FAbortAsked;
  if (FReplyCode != "220") return EndRefused();
  if (!SayHello() || !SecureByCommand() || !LogIn()) return EndRefused();
}

/// EHLO, and to a server that does not know it HELO.
bool TQELSMTPMail::SayHello() {
  const std::string name = HelloName(*Connection());
  *FServer = {};
  if (!Request("EHLO " + name, "250")) return Request("HELO " + name, "250");
  std::vector<std::string> lines;
  std::string_view line;
  for (TLineReader reader(FReplyText); reader.Next(line);) lines.emplace_back(line);
  *FServer = ReadExtensions(lines);
  return true;
}

bool TQELSMTPMail::SecureByCommand() {
  if (Security() != msStartTls) return true;
  if (!FServer->StartTls) {
    throw vcl::ETlsError(vcl::Concat("\"", Host(),
                                     "\" does not offer STARTTLS, or somebody on the "
                                     "way hides it: the session ends before anything is said"));
  }
  if (!Request("STARTTLS", "220")) return false;
  Secure();
  // What was said before may have been another's (RFC 3207, 4.2).
  return SayHello();
}

bool TQELSMTPMail::LogIn() {
  if (AuthMethod() == amNone) return true;
  CheckLoginIsSafe();
  const std::vector<TQELMailAuthMethod> ways = WaysToLogIn(AuthMethod(), FServer->Auth);
  if (ways.empty()) {
    std::string offered;
    for (const std::string& each : FServer->Auth) offered += " " + each;
    throw EQELMailError(vcl::Concat("\"", Host(),
                                    "\" does not offer the way to log in that is "
                                    "wanted; it offers:",
                                    offered.empty() ? " none" : offered));
  }
  return std::ranges::any_of(ways, [this](TQELMailAuthMethod way) { return TryLogIn(way); });
}

bool TQELSMTPMail::TryLogIn(TQELMailAuthMethod way) {
  TSaslAttempt attempt(way, FUsername, FPassword);
  const auto first = attempt.FirstAnswer();
  std::string command = vcl::Concat("AUTH ", attempt.Name());
  if (first) command += " " + *first;
  for (int questions = 0; !Request(command, "235"); ++questions) {
    if (FReplyCode != "334" || questions == MaxQuestions) return false;
    command = attempt.Answer(FReplyText);
  }
  return true;
}

void TQELSMTPMail::EndRefused() {
  FLeftOut = true;
  DoErr(vcl::eeConnect);
}

void TQELSMTPMail::Refuse() {
  FLeftOut = true;
  if (!FSkipRefused || FReplyCode == "421") return DoErr(vcl::eeGeneral);
  Tell(vcl::StrToIntDef(FReplyCode, 0), FReplyText);
}

void TQELSMTPMail::RefuseUnsent(const char* code, const std::string& why) {
  FReplyCode = code;
  FReplyText = why;
  Refuse();
}

bool TQELSMTPMail::SendExtended(TQELMessage& message) {
  if (!Connected()) return false;
  const TLiving living(message);
  std::string mail = Compose(message);
  if (mail.empty() || Aborted()) return false;
  DoOnBeforeSend();
  CheckMessage(*living);  // It may be another one by now.
  if (FServer->MaxSize > 0 && mail.size() > FServer->MaxSize) {
    RefuseUnsent(
        "552", vcl::Concat("The mail has ", std::to_string(mail.size()),
                           " bytes, the server takes at most ", std::to_string(FServer->MaxSize)));
    return false;
  }
  // Its end goes with it: for a piece that comes alone the systems on both sides would wait.
  if (!SendEnvelope(*living, mail) || !SendContents(mail += ".\r\n")) return false;
  DoOnAfterSend();
  return true;
}

std::string TQELSMTPMail::Compose(TQELMessage& message) {
  try {
    if (Format() == mfStandard) return ComposeStandard(message);
    message.SetDate(vcl::FormatDateTime(FDateTimeFormat, vcl::Now()));
    const std::unique_ptr<vcl::TStringList> lines = InitializeMessage(message);
    std::string mail;
    // The text's dots are doubled already, and other lines have none.
    for (int i = 0; lines && i < lines->Count(); ++i) mail.append(lines->Strings(i)).append("\r\n");
    return mail.append("\r\n");
  } catch (const EQELMailError& error) {
    if (!FSkipRefused) throw;
    RefuseUnsent("553", error.what());
    return {};
  }
}

std::vector<std::string> TQELSMTPMail::EnvelopeOf(const TQELMessage& message,
                                                  std::string_view mail) const {
  std::vector<std::string> commands;
  bool utf8 = !IsAscii(message.FromMail());
  for (const std::string& recipient : RecipientsOf(message)) {
    commands.push_back("RCPT TO:<" + recipient + ">");
    utf8 = utf8 || !IsAscii(recipient);
  }
  std::string from = "MAIL FROM:<" + message.FromMail() + ">";
  if (FServer->Size) from += " SIZE=" + std::to_string(mail.size());
  if (FServer->EightBit && !IsAscii(mail)) from += " BODY=8BITMIME";
  if (FServer->Utf8 && utf8) from += " SMTPUTF8";
  commands.insert(commands.begin(), from);
  return commands;
}

bool TQELSMTPMail::SendEnvelope(const TQELMessage& message, std::string_view mail) {
  const std::vector<std::string> commands = EnvelopeOf(message, mail);
  const std::size_t atOnce = FServer->Pipelining ? PipelinedAtOnce : 1;
  std::size_t taken = 0;
  for (std::size_t begin = 0; begin < commands.size(); begin += atOnce) {
    const std::size_t end = std::min(begin + atOnce, commands.size());
    std::string group;
    for (std::size_t i = begin; i < end; ++i) group += commands[i] + "\r\n";
    SendSocketText(group);
    bool sender = true;
    for (std::size_t i = begin; i < end; ++i) {
      taken += ReadAnswer("2") ? 1 : 0;
      if (!FError || !sender) continue;
      // To the refusals behind that of the sender nobody listens.
      sender = i > 0;
      if (sender) FReplyText = vcl::Concat(FReplyText, " (", commands[i].substr(8), ")");
      Refuse();
      if (!Connected()) return false;
    }
    if (!sender) return ForgetEnvelope();
  }
  // None but the sender: there is nobody to send it to.
  return taken > 1 || ForgetEnvelope();
}

bool TQELSMTPMail::ForgetEnvelope() {
  Request("RSET", "250");
  return false;
}

bool TQELSMTPMail::SendContents(std::string_view mail) {
  if (!Request("DATA", "354")) {
    Refuse();
    return false;
  }
  {
    const vcl::TSetFor underWay(FMailUnderWay, true, this);
    int threshold = ProgressStep();
    for (std::size_t sent = 0; sent < mail.size();) {
      const std::string_view portion = mail.substr(sent, PortionSize);
      SendSocketText(portion);
      sent += portion.size();
      FLastSendPercent = Percent(static_cast<double>(sent), static_cast<double>(mail.size()));
      if (StepReached(FLastSendPercent, threshold)) DoSendProgress(FLastSendPercent);
      LetWait();
    }
    if (ReadAnswer("250")) return true;
  }
  Refuse();
  return false;
}

}  // namespace qel
