// TQELMailHost: a session with a server, its connection, its waiting and its end.
#include <algorithm>
#include <chrono>

#include "qel/core/private/arithmetic.h"
#include "qel/mail/Qeltiemails_host.h"
#include "qel/mail/private/living.h"
#include "qel/mail/private/oneline.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

/// Goes through what is running when it waits in a session that is aborted. Nobody shows it.
class TSessionAborted : public vcl::EAbort {
 public:
  TSessionAborted() : EAbort("The session was aborted") {}
};

/// How long to wait at a time before the application handles its messages.
constexpr int WaitMilliseconds = 200;

using TClock = std::chrono::steady_clock;

}  // namespace

const vcl::TClass& TQELMailHost::Class() {
  using T = TQELMailHost;
  static const vcl::TClass info = vcl::Describe<T, TQELExecComponent>(
      "qel::TQELMailHost", "qel/mail/Qeltiemails.h",
      {
          vcl::Property<&T::Messages, &T::SetMessages>("Messages"),
          vcl::Event<&T::OnExecute>("OnExecute"),
          vcl::Property<&T::ProgressStep, &T::SetProgressStep>("ProgressStep"),
          vcl::Property<&T::Port, &T::SetPort>("Port"),
          vcl::Property<&T::Host, &T::SetHost>("Host"),
          vcl::Property<&T::AllowClearLogin, &T::SetAllowClearLogin>("AllowClearLogin")
              .Default(false),
          vcl::Property<&T::AuthMethod, &T::SetAuthMethod>("AuthMethod").Default(amNone),
          vcl::Property<&T::Format, &T::SetFormat>("Format").Default(mfClassic),
          vcl::Property<&T::Security, &T::SetSecurity>("Security").Default(msNone),
          vcl::Property<&T::Timeout, &T::SetTimeout>("Timeout").Default(0),
          vcl::Event<&T::OnCertificate>("OnCertificate"),
      });
  return info;
}

TQELMailHost::TQELMailHost(vcl::TComponent* owner)
    : TQELExecComponent(owner), FMessages(std::make_unique<TQELMessages>(this)) {}

TQELMailHost::~TQELMailHost() { AnnounceEnd(); }

void TQELMailHost::SetProgressStep(TQELPStep step) {
  if (step < 1 || step > 100) {
    throw vcl::EArgumentOutOfRangeException(vcl::Concat("ProgressStep runs from 1 to 100 percent, ",
                                                        std::to_string(step), " is outside"));
  }
  FProgressStep = step;
}

bool TQELMailHost::Execute() {
  OnExecute(this);
  return true;
}

void TQELMailHost::Abort() { FAborted = FAbortAsked = true; }

void TQELMailHost::BeginSession() {
  FBusy = true;
  FAbortAsked = FLeftOut = false;
  FUnread.clear();
  FClientSocket = std::make_unique<vcl::TClientSocket>(nullptr);
  FClientSocket->SetClientType(vcl::ctBlocking);
  FClientSocket->OnConnect = {this, &TQELMailHost::DoConnect};
  FClientSocket->OnDisconnect = {this, &TQELMailHost::DoDisconnect};
  FClientSocket->OnError = {this, &TQELMailHost::DoError};
}

bool TQELMailHost::RunSession(const std::function<void()>& dialogue) {
  vcl::TWatch watch(this);
  try {
    try {
      // A call from inside a running session closes that one, and its owner finds it closed.
      if (!FBusy) {
        CheckSession();
        BeginSession();
        dialogue();
      }
      Disconnect();
    } catch (const TSessionAborted&) {
      CloseConnection();
    }
    FBusy = false;
    DropConnection();
    return !FAbortAsked && !FLeftOut;
  } catch (...) {
    vcl::BaseApplication().HandleCurrentException(watch.Gone() ? nullptr : this);
  }
  // A session that has begun stays busy: the next call finds nothing to close and only ends it.
  if (!watch.Gone()) DropConnection();
  return false;
}

void TQELMailHost::CheckSession() const { CheckOneLine("Host", FHost); }

void TQELMailHost::DropConnection() {
  FStream = nullptr;
  FClientSocket = nullptr;
  FConnected = false;
}

void TQELMailHost::CloseConnection() {
  FStream = nullptr;
  if (FClientSocket) FClientSocket->Close();
  FConnected = false;
}

void TQELMailHost::Connect() {
  ClientSocket().SetPort(vcl::StrToInt(FPort));
  ClientSocket().SetHost(FHost);
  ClientSocket().Open();
}

void TQELMailHost::Disconnect() { CloseConnection(); }

void TQELMailHost::DoConnect(vcl::TObject* sender, vcl::TCustomWinSocket*) {
  FConnected = true;
  Fire(OnConnect, sender);
}

void TQELMailHost::DoDisconnect(vcl::TObject* sender, vcl::TCustomWinSocket*) {
  FConnected = false;
  Fire(OnDisconnect, sender);
}

void TQELMailHost::DoError(vcl::TObject*, vcl::TCustomWinSocket*, vcl::TErrorEvent, int&) {
  FError = true;
  CloseConnection();
}

void TQELMailHost::Guarded(const std::function<void()>& call) { qel::Guarded(this, call); }

void TQELMailHost::Pump() {
  vcl::TWatch watch(this);
  vcl::BaseApplication().ProcessMessages();
  if (watch.Gone())
    throw vcl::EAbort("The component was freed while the application's messages ran");
}

vcl::TClientSocket& TQELMailHost::ClientSocket() const {
  if (FClientSocket) return *FClientSocket;
  throw vcl::EInvalidOperation(vcl::Concat("There is no session with \"", FHost, "\""));
}

vcl::TWinSocketStream& TQELMailHost::Stream() const {
  if (FStream) return *FStream;
  throw vcl::EInvalidOperation(vcl::Concat("The session with \"", FHost, "\" is closed"));
}

vcl::TCustomWinSocket* TQELMailHost::Connection() const {
  return FClientSocket ? FClientSocket->Socket() : nullptr;
}

void TQELMailHost::OpenStream(int timeOut) {
  FStream = std::make_unique<vcl::TWinSocketStream>(ClientSocket().Socket(), timeOut);
}

void TQELMailHost::LetWait() {
  Pump();
  // A program that is to end does not wait for a silent server.
  if (vcl::BaseApplication().Terminated()) Abort();
  if (FAbortAsked) throw TSessionAborted();
}

void TQELMailHost::CheckTime(TClock::time_point since) const {
  const auto waited = TClock::now() - since;
  if (FTimeout == 0 || waited < std::chrono::milliseconds(FTimeout)) return;
  throw vcl::ESocketError(
      vcl::Concat("\"", FHost, "\" did not answer within ", vcl::IntToStr(FTimeout), " ms"));
}

void TQELMailHost::SendSocketText(std::string_view text) {
  for (auto since = TClock::now(); !text.empty();) {
    const auto done = Stream().Write(text.data(), static_cast<std::int64_t>(text.size()));
    text.remove_prefix(static_cast<std::size_t>(done));
    if (done > 0) since = TClock::now();
    if (!text.empty()) {
      LetWait();
      CheckTime(since);
    }
  }
}

std::string TQELMailHost::ReadChunk(std::size_t most) {
  if (FAbortAsked) throw TSessionAborted();
  const int wait = FTimeout > 0 ? std::min(FTimeout, WaitMilliseconds) : WaitMilliseconds;
  for (const auto since = TClock::now(); !Stream().WaitForData(wait);) {
    LetWait();
    CheckTime(since);
  }
  FChunk.resize(std::max(FChunk.size(), most));
  const auto size = Stream().Read(FChunk.data(), static_cast<std::int64_t>(most));
  if (Stream().AtEnd()) {
    throw vcl::ESocketError(vcl::Concat("\"", FHost, "\" has closed the connection"));
  }
  return {FChunk.data(), static_cast<std::size_t>(size)};
}

int TQELMailHost::Percent(double part, double whole) { return Round(part * 100 / whole); }

bool TQELMailHost::StepReached(int percent, int& threshold) const {
  if (percent < threshold) return false;
  threshold += FProgressStep;
  return true;
}

}  // namespace qel
