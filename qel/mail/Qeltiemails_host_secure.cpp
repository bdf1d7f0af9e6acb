// What sessions with a server of today need beside the described ones: security, lines read whole,
// and limits.
#include <algorithm>
#include <utility>

#include "qel/mail/Qeltiemails_host.h"
#include "qel/mail/mailerror.h"
#include "vcl/net/tls.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

/// No server has more to say in one line.
constexpr std::size_t MaxLine = 64 << 10;
constexpr std::size_t BlockSize = 64 << 10;
/// For shaking hands when the user sets no limit.
constexpr int HandshakeMilliseconds = 60000;

}  // namespace

void TQELMailHost::SetTimeout(int milliseconds) {
  if (milliseconds < 0) {
    throw vcl::EArgumentOutOfRangeException(
        vcl::Concat("Timeout cannot be less than 0 ms, as ", vcl::IntToStr(milliseconds), " is"));
  }
  FTimeout = milliseconds;
}

bool TQELMailHost::WantsExtensions() const {
  return FFormat != mfClassic || FSecurity != msNone || FAuthMethod != amNone;
}

std::string TQELMailHost::TlsVersion() const {
  return Connection() ? Connection()->TlsVersion() : std::string();
}

bool TQELMailHost::OpenConnection() {
  try {
    TQELMailHost::Connect();
    return Connected();
  } catch (const vcl::ESocketError& error) {
    if (FFormat != mfStandard) throw;
    Tell(error.ErrorCode(), error.what());
    return false;
  }
}

void TQELMailHost::Secure() {
  vcl::TTlsSettings settings;
  settings.HostName = FHost;
  settings.TimeOut = FTimeout > 0 ? FTimeout : HandshakeMilliseconds;
  settings.Waiting = [this] { LetWait(); };
  settings.Accept = [this](const vcl::TTlsCertificate& certificate) {
    bool accept = false;
    Guarded([&] { OnCertificate(this, certificate.Fingerprint, certificate.Problem, accept); });
    return accept;
  };
  // Who listens between could have said it: the server has not.
  FUnread.clear();
  ClientSocket().Socket()->StartTls(settings);
}

void TQELMailHost::CheckLoginIsSafe() const {
  if (FAllowClearLogin || !TlsVersion().empty()) return;
  throw EQELMailError(vcl::Concat("Nobody logs in to \"", FHost,
                                  "\" over a connection that is not secured, unless "
                                  "AllowClearLogin is set"));
}

std::string TQELMailHost::ReadBlock() {
  return FUnread.empty() ? ReadChunk(BlockSize) : std::exchange(FUnread, {});
}

std::string TQELMailHost::ReadLine() {
  std::string line;
  std::size_t end = line.npos;
  while (end == line.npos) {
    const std::size_t searched = line.size();
    line += ReadBlock();
    LetWait();
    end = line.find('\n', searched);
    if (std::min(end, line.size()) > MaxLine) {
      throw EQELMailError("The server's reply has a line that does not end");
    }
  }
  FUnread = line.substr(end + 1);
  line.resize(end);
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

void TQELMailHost::Tell(int code, const std::string& text) {
  FLeftOut = true;
  Fire(OnError, this, code, text);
}

}  // namespace qel
