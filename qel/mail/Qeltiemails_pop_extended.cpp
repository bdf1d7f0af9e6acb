// Fetching from a server of today: what it can do (CAPA, RFC 2449), security (RFC 2595), logging in
// (RFC 5034, APOP), identifiers, and mails that cannot be read.
#include <algorithm>
#include <charconv>

#include "qel/mail/Qeltiemails_pop.h"
#include "qel/mail/mailerror.h"
#include "qel/mail/private/digests.h"
#include "qel/mail/private/poprefusals.h"
#include "qel/mail/private/sasl.h"
#include "vcl/net/tls.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr int StreamTimeOut = 100;
constexpr std::string_view Terminator = "\r\n.\r\n";
/// Of lists and headers.
constexpr std::size_t MaxListSize = 64u << 20;
constexpr int MaxQuestions = 10;

std::vector<std::string> WordsOf(std::string_view line) {
  std::vector<std::string> words;
  while (!(line = vcl::Trim(line)).empty()) {
    const std::size_t end = std::min(line.find(' '), line.size());
    words.emplace_back(line.substr(0, end));
    line.remove_prefix(end);
  }
  return words;
}

/// The stamp that a server which knows APOP greets with, its brackets included; else empty.
std::string StampOf(const std::string& greeting) {
  const std::size_t open = greeting.find('<'), close = greeting.find('>', open);
  if (open == greeting.npos || close == greeting.npos) return {};
  const std::string stamp = greeting.substr(open, close - open + 1);
  return stamp.find('@') == stamp.npos ? std::string() : stamp;
}

}  // namespace

bool TQELPOPMail::WantsExtensions() const {
  return FKeepOnServer || TQELMailHost::WantsExtensions();
}

void TQELPOPMail::OpenExtended() {
  FCapabilities.clear();
  FState = Authorization;
  if (!OpenConnection()) return;
  OpenStream(StreamTimeOut);
  if (Security() == msTls) Secure();
  ReadReplyLine();
  FGreeting = FReplyText;
  FAborted = FAbortAsked;
  if (FError) return DoErr(GreetingRefused);
  AskCapabilities();
  SecureByCommand();
}

std::string TQELPOPMail::ReadReplyLine() {
  std::string line = ReadLine() + "\r\n";
  TakeReply(line);
  return line;
}

void TQELPOPMail::AskCapabilities() {
  FCapabilities.clear();
  SendSocketText("CAPA\r\n");
  ReadReplyLine();
  // Older servers do not know the question.
  if (FError) return;
  const std::string lines = ReadLines();
  std::string_view line;
  for (TLineReader reader(lines); reader.Next(line);) FCapabilities.push_back(vcl::UpperCase(line));
}

bool TQELPOPMail::HasCapability(std::string_view name) const {
  return std::ranges::any_of(FCapabilities, [&](const std::string& line) {
    return line == name || line.starts_with(std::string(name) + " ");
  });
}

bool TQELPOPMail::SecureByCommand() {
  if (Security() != msStartTls) return true;
  if (!HasCapability("STLS")) {
    throw vcl::ETlsError(vcl::Concat("\"", Host(),
                                     "\" does not offer STLS, or somebody on the way "
                                     "hides it: the session ends before anything is said"));
  }
  if (!Command("STLS", StlsRefused)) return false;
  Secure();
  // What was said before may have been another's (RFC 2595, 4).
  AskCapabilities();
  return true;
}

std::string TQELPOPMail::ReadLines() {
  std::string text;
  for (std::string line; (line = ReadLine()) != ".";) {
    text.append(line.starts_with('.') ? std::string_view(line).substr(1) : line).append("\r\n");
    if (text.size() > MaxListSize) throw EQELMailError("The server's list does not end");
  }
  return text;
}

bool TQELPOPMail::LogIn() {
  CheckLoginIsSafe();
  std::vector<std::string> offered;
  for (const std::string& line : FCapabilities) {
    if (line.starts_with("SASL ")) offered = WordsOf(line.substr(5));
  }
  std::vector<TQELMailAuthMethod> ways = WaysToLogIn(AuthMethod(), offered);
  const bool automatic = AuthMethod() == amAuto;
  if (!StampOf(FGreeting).empty() && (automatic || AuthMethod() == amApop)) {
    std::erase(ways, amCramMd5);
    ways.insert(ways.begin(), amApop);
  }
  const bool saysPassword = !ways.empty() && (ways.back() == amPlain || ways.back() == amLogin);
  if (automatic && !saysPassword) ways.push_back(amUserPass);
  if (ways.empty()) {
    throw EQELMailError(
        vcl::Concat("\"", Host(), "\" does not offer the way to log in that is wanted"));
  }
  if (std::ranges::any_of(ways, [this](TQELMailAuthMethod way) { return TryLogIn(way); })) {
    FState = Transaction;
    return true;
  }
  DoErr(LoginRefused);
  return false;
}

bool TQELPOPMail::TryLogIn(TQELMailAuthMethod way) {
  std::string reply;
  const auto request = [&](const std::string& command) {
    SendSocketText(command + "\r\n");
    reply = ReadReplyLine();
    return reply.starts_with("+OK");
  };
  if (way == amUserPass) return request("USER " + FUsername) && request("PASS " + FPassword);
  if (way == amApop) {
    return request(vcl::Concat("APOP ", FUsername, " ", Md5Text(StampOf(FGreeting) + FPassword)));
  }
  TSaslAttempt attempt(way, FUsername, FPassword);
  const auto first = attempt.FirstAnswer();
  std::string command = vcl::Concat("AUTH ", attempt.Name());
  if (first) command += " " + *first;
  for (int questions = 0; !request(command); ++questions) {
    if (!reply.starts_with('+') || questions == MaxQuestions) return false;
    command = attempt.Answer(vcl::Trim(std::string_view(reply).substr(1)));
  }
  return true;
}

std::map<int, std::string> TQELPOPMail::AskList(const char* command, int refusal) {
  std::map<int, std::string> list;
  if (!Command(command, refusal)) return list;
  const std::string lines = ReadLines();
  std::string_view line;
  for (TLineReader reader(lines); reader.Next(line);) {
    const std::vector<std::string> words = WordsOf(line);
    if (words.size() > 1) list[vcl::StrToIntDef(words[0], 0)] = words[1];
  }
  return list;
}

std::string TQELPOPMail::MailId(std::uint16_t index) {
  if (!FIds) FIds = AskList("UIDL", UidlRefused);
  const auto found = FIds->find(index);
  return found == FIds->end() ? std::string() : found->second;
}

std::set<std::string> TQELPOPMail::Known() const {
  std::set<std::string> ids;
  for (int i = 0; FKeepOnServer && i < FKnownIds->Count(); ++i) ids.insert(FKnownIds->Strings(i));
  return ids;
}

void TQELPOPMail::ForgetGoneIds() {
  if (!FIds || !Connected()) return;
  std::set<std::string> there;
  for (const auto& [index, id] : *FIds) there.insert(id);
  const vcl::TUpdating updating(*FKnownIds);
  for (int i = FKnownIds->Count() - 1; i >= 0; --i) {
    if (!there.contains(FKnownIds->Strings(i))) FKnownIds->Delete(i);
  }
}

void TQELPOPMail::CheckAnnouncedSize(std::uint16_t index) {
  if (!FSizes) FSizes = AskList("LIST", ListRefused);
  std::size_t size = 0;
  const std::string& text = (*FSizes)[index];
  std::from_chars(text.data(), text.data() + text.size(), size);
  CheckSize(size);
}

void TQELPOPMail::SkipRest(std::string end) {
  while (end.find(Terminator) == end.npos) {
    end.erase(0, end.size() - std::min(end.size(), Terminator.size() - 1));
    LetWait();
    end += FExtended ? ReadBlock() : ReadChunk();
  }
  if (FExtended) Unread(std::string_view(end).substr(end.find(Terminator) + Terminator.size()));
}

bool TQELPOPMail::FetchOne(std::uint16_t index) {
  try {
    if (FExtended) CheckAnnouncedSize(index);
    if (FExtended && !Connected()) return false;
    RetrieveMessage(index);
    if (FKeepOnServer && !Aborted() && Connected()) FKnownIds->Add(MailId(index));
    return true;
  } catch (const vcl::ESocketError&) {
    throw;
  } catch (const vcl::EAbort&) {
    throw;
  } catch (const vcl::Exception& error) {
    if (!FSkipBadMessages) throw;
    Tell(MailUnreadable, error.what());
    return false;
  }
}

}  // namespace qel
