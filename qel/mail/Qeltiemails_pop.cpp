// How mails are fetched: the dialogue with the server.
#include <algorithm>
#include <limits>

#include "qel/mail/Qeltiemails_pop.h"
#include "qel/mail/mailerror.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/oneline.h"
#include "qel/mail/private/poprefusals.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr int StreamTimeOut = 100;
constexpr std::string_view Terminator = "\r\n.\r\n";
/// How long to wait for the next piece of a reply.
constexpr int PieceMilliseconds = 200;
/// No server has more to say in one line.
constexpr std::size_t MaxReplySize = 64 << 10;
/// What is believed of a size that a server announces.
constexpr int MaxReserved = 16 << 20;

bool HasTerminator(std::string_view text) { return text.find(Terminator) != text.npos; }

std::string_view UpToBlank(std::string_view text) { return text.substr(0, text.find(' ')); }

/// The size that the server announces; 100 when it does not.
int ExpectedSize(std::string_view replyText) {
  const int size = vcl::StrToIntDef(UpToBlank(replyText), 0);
  return size > 0 ? size : 100;
}

}  // namespace

const vcl::TClass& TQELPOPMail::Class() {
  using T = TQELPOPMail;
  using namespace vcl;
  static const TClass info = Describe<T, TQELMailHost>(
      "qel::TQELPOPMail", "qel/mail/Qeltiemails.h",
      {
          Property<&T::Messages, &T::SetMessages>("Messages").Stored(false),
          Property<&T::DeleteOfServer, &T::SetDeleteOfServer>("DeleteOfServer").Default(false),
          Property<&T::Username, &T::SetUsername>("Username"),
          Property<&T::Password, &T::SetPassword>("Password"),
          Property<&T::KeepOnServer, &T::SetKeepOnServer>("KeepOnServer").Default(false),
          Property<&T::SkipBadMessages, &T::SetSkipBadMessages>("SkipBadMessages").Default(false),
          Event<&T::OnConnect>("OnConnect"),
          Event<&T::OnDisconnect>("OnDisconnect"),
          Event<&T::OnError>("OnError"),
          Event<&T::OnDecodeStart>("OnDecodeStart"),
          Event<&T::OnDecodeProgress>("OnDecodeProgress"),
          Event<&T::OnDecodeEnd>("OnDecodeEnd"),
          Event<&T::BeforeRetrieve>("BeforeRetrieve")
              .Type("TQELBeforeRetrieve", "vcl::TObject* sender, std::uint16_t message"),
          Event<&T::AfterRetrieve>("AfterRetrieve"),
          Event<&T::OnRetrieveProgress>("OnRetrieveProgress"),
          Event<&T::OnDelete>("OnDelete")
              .Type("TQELOnDelete", "vcl::TObject* sender, std::uint16_t message"),
      });
  return info;
}

TQELPOPMail::TQELPOPMail(vcl::TComponent* owner)
    : TQELMailHost(owner), FKnownIds(std::make_unique<vcl::TStringList>()) {
  SetPort("110");
}

TQELPOPMail::~TQELPOPMail() { AnnounceEnd(); }

bool TQELPOPMail::Execute() {
  vcl::TWatch watch(this);
  const bool done = TQELMailHost::Execute();
  if (watch.Gone()) return false;
  return RunSession([this] {
           Connect();
           if (FExtended && !Connected()) return;
           if (!Login()) {
             if (!FExtended) ShowRefusal();
             return;
           }
           Init();
           RetrieveAllMessages(Messages());
         }) &&
         done;
}

void TQELPOPMail::ShowRefusal() {
  auto& application = vcl::BaseApplication();
  // The application goes on behind the box.
  qel::Guarded(this, [&] { application.MessageBox("Unable to connect", application.Title(), 0); });
}

void TQELPOPMail::CheckSession() const {
  TQELMailHost::CheckSession();
  CheckOneLine("Username", FUsername);
  if (BreaksLine(FPassword)) throw EQELMailError("Password cannot have a line break or a NUL");
}

void TQELPOPMail::Connect() {
  FMessageCount = 0;
  FDeleted.clear();
  FIds = FSizes = std::nullopt;
  FExtended = WantsExtensions();
  if (FExtended) return OpenExtended();
  TQELMailHost::Connect();
  if (!Connected()) return;
  OpenStream(StreamTimeOut);
  ReadReply();
  FState = Authorization;
  FAborted = FAbortAsked;
  if (FError) DoErr(GreetingRefused);
}

// Neither this nor any other command looks whether the connection is open: on a closed one sending
// raises.
bool TQELPOPMail::Login() {
  if (FExtended && AuthMethod() != amNone && AuthMethod() != amUserPass) return LogIn();
  if (FExtended && AuthMethod() == amUserPass) CheckLoginIsSafe();
  if (!Command("USER " + FUsername, LoginRefused) || !Command("PASS " + FPassword, LoginRefused)) {
    return false;
  }
  FState = Transaction;
  return true;
}

int TQELPOPMail::Init() {
  if (!Command("STAT", StatRefused)) return 0;
  const int count = vcl::StrToInt(UpToBlank(FReplyText));
  if (count < 0 || count > std::numeric_limits<std::uint16_t>::max()) {
    throw vcl::EConvertError(
        vcl::Concat("A mailbox cannot have ", std::to_string(count), " mails"));
  }
  FMessageCount = static_cast<std::uint16_t>(count);
  return count;
}

int TQELPOPMail::RetrieveAllMessages(TQELMessages*) {
  // Deletions count the mails down, but not the numbers that the server knows them by.
  const int last = FMessageCount;
  const std::set<std::string> known = Known();
  int count = 0;
  for (int i = 1; i <= last; ++i) {
    const auto index = static_cast<std::uint16_t>(i);
    if (IsDeleted(index)) continue;
    if (FKeepOnServer && known.contains(MailId(index))) continue;
    if (FetchOne(index) && FDeleteOfServer && !FKeepOnServer) DeleteMessage(index);
    if (Aborted() || (FExtended && !Connected())) break;
    ++count;
  }
  if (FKeepOnServer) ForgetGoneIds();
  return count;
}

void TQELPOPMail::DeleteMessage(std::uint16_t index) {
  Pump();
  if (Aborted() || !Command("DELE " + vcl::IntToStr(index), DeleRefused)) return;
  FDeleted.insert(index);
  if (FMessageCount > 0) --FMessageCount;
  Fire(OnDelete, this, index);
}

void TQELPOPMail::RetrieveHeaders(std::uint16_t index, std::string& headers, int lines) {
  std::string chunk;
  const std::string command = vcl::Concat("TOP ", vcl::IntToStr(index), " ", vcl::IntToStr(lines));
  if (!Command(command, TopRefused, chunk)) return;
  if (FExtended) {
    headers = "\n" + ReadLines() + ".\r\n";
    return;
  }
  // The status line goes, but for its line feed.
  headers = chunk.substr(chunk.find('\r') + 1);
  while (!HasTerminator(chunk)) {
    LetWait();
    GetSocketText(chunk);
    headers += chunk;
    CheckSize(headers.size());
  }
}

TQELMessage* TQELPOPMail::RetrieveMessage(std::uint16_t index) {
  Fire(BeforeRetrieve, this, index);
  std::string reply;
  if (!Command("RETR " + vcl::IntToStr(index), RetrRefused, reply)) return nullptr;
  if (FExtended && FSizes && FSizes->contains(index)) FReplyText = FSizes->at(index);
  reply = FetchRest(std::move(reply));
  if (reply.empty()) return nullptr;
  // What a mail has reached stays for the next: one that comes in one piece behind it has no event.
  if (FRetrievePercent < 100) Fire(OnRetrieveProgress, this, std::uint16_t{100});
  return ReadMessage(std::move(reply));
}

std::string TQELPOPMail::FetchRest(std::string reply) {
  const int expected = ExpectedSize(FReplyText);
  reply.reserve(static_cast<std::size_t>(std::min(expected, MaxReserved)));
  int threshold = ProgressStep();
  std::string chunk;
  // The terminator may come in two pieces.
  for (std::size_t searched = 0; reply.find(Terminator, searched) == reply.npos;) {
    Pump();
    if (Aborted()) return {};
    if (FExtended) {
      chunk = ReadBlock();
    } else {
      GetSocketText(chunk);
    }
    searched = reply.size() - std::min(reply.size(), Terminator.size() - 1);
    reply += chunk;
    if (FSkipBadMessages && IsTooLarge(reply.size())) SkipRest(reply);
    CheckSize(reply.size());
    // A server may send more than it announced, thus more than 100 percent.
    const double percent = static_cast<double>(reply.size()) * 100 / expected;
    FRetrievePercent = Percent(std::min(percent, FExtended ? 100.0 : 65535.0), 100);
    if (StepReached(FRetrievePercent, threshold)) {
      Fire(OnRetrieveProgress, this, static_cast<std::uint16_t>(FRetrievePercent));
    }
  }
  if (FExtended) {
    const std::size_t end = reply.find(Terminator) + Terminator.size();
    Unread(std::string_view(reply).substr(end));
    reply.resize(end);
  }
  return reply;
}

bool TQELPOPMail::IsTooLarge(std::size_t size) const {
  return FMaxMessageSize > 0 && size > FMaxMessageSize;
}

void TQELPOPMail::CheckSize(std::size_t size) const {
  if (!IsTooLarge(size)) return;
  throw EQELMailError(vcl::Concat("A mail is larger than the ", std::to_string(FMaxMessageSize),
                                  " bytes that are allowed"));
}

void TQELPOPMail::Disconnect() {
  if (Connected() && Command("QUIT", QuitRefused)) CloseConnection();
}

bool TQELPOPMail::Command(const std::string& command, int refusal) {
  std::string reply;
  return Command(command, refusal, reply);
}

bool TQELPOPMail::Command(const std::string& command, int refusal, std::string& reply) {
  SendSocketText(command + "\r\n");
  reply = ReadReply();
  if (FError) DoErr(refusal);
  return !FError;
}

std::string TQELPOPMail::ReadReply() {
  if (FExtended) return ReadReplyLine();
  std::string reply, chunk;
  GetSocketText(reply);
  // Nearly always one piece. What is sent in several is put together, as far as they come at once.
  while (reply.find('\n') == reply.npos && Stream().WaitForData(PieceMilliseconds)) {
    LetWait();
    GetSocketText(chunk);
    reply += chunk;
    if (reply.size() > MaxReplySize) throw EQELMailError("The server's reply does not end");
  }
  TakeReply(reply);
  return reply;
}

void TQELPOPMail::GetSocketText(std::string& text) {
  text = ReadChunk();
  TakeReply(text);
}

void TQELPOPMail::TakeReply(std::string_view text) {
  FStatus = vcl::Trim(text.substr(0, 4));
  const std::string_view line = text.substr(0, text.find("\r\n"));
  FReplyText = line.size() > 4 ? vcl::Trim(line.substr(4)) : std::string_view();
  FError = FStatus == "-ERR";
}

void TQELPOPMail::DoErr(int code) { DoError(this, Connection(), vcl::eeGeneral, code); }

void TQELPOPMail::DoError(vcl::TObject* sender, vcl::TCustomWinSocket*, vcl::TErrorEvent,
                          int& errorCode) {
  FError = true;
  // It is raised, and told then.
  if (FExtended && sender != this) return;
  FLeftOut = FLeftOut || FExtended;
  CloseConnection();
  Fire(OnError, sender, errorCode, FReplyText);
}

}  // namespace qel
