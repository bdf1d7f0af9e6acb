// How a secured connection shakes hands, waits, sends and receives.
#include "vcl/net/private/tlschannel.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>

#include "vcl/rtl/text.h"

namespace vcl::os {
namespace {

using TClock = std::chrono::steady_clock;

/// How long to wait at a time before who waits is heard.
constexpr int WaitMilliseconds = 100;
/// A record's largest payload.
constexpr int RecordSize = 16384;

/// What is left of so many milliseconds; negative ones are for ever.
class TTimeLeft {
 public:
  explicit TTimeLeft(int milliseconds)
      : FForEver(milliseconds < 0),
        FEnd(TClock::now() + std::chrono::milliseconds(std::max(milliseconds, 0))) {}
  int Milliseconds() const {
    if (FForEver) return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(FEnd - TClock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
  }

 private:
  bool FForEver;
  TClock::time_point FEnd;
};

void RaiseIf(const char* doing, const TSocketError& error) {
  if (error) {
    throw ETlsError(
        Concat("Cannot ", doing, ": ", error.Text, " (", std::to_string(error.Code), ")"),
        error.Code);
  }
}

}  // namespace

TTlsChannel::TTlsChannel(TSharedSocket socket, const TTlsSettings& settings)
    : FSocket(std::move(socket)), FEngine(NewTlsEngine(settings.HostName)) {
  ShakeHands(settings);
  CheckCertificate(settings);
  // The peer's first bytes may have come with the end of the handshake.
  FEnded = !FEngine->Decrypt(FReceived, FPlain, FToSend);
}

TTlsChannel::~TTlsChannel() {
  if (FEnded) return;
  // As far as the system takes it at once: the connection is closed behind it in any case.
  TSocketError error;
  FEngine->SayGoodbye(FToSend);
  Flush(error);
}

void TTlsChannel::ShakeHands(const TTlsSettings& settings) {
  TSocketError error;
  for (bool done = false; !done;) {
    done = FEngine->ShakeHands(FReceived, FToSend);
    while (!Flush(error)) {
      RaiseIf("secure the connection", error);
      Await(TWaitFor::Writing, settings);
    }
    if (done) return;
    Await(TWaitFor::Reading, settings);
    std::array<char, RecordSize> chunk;
    const int count = os::Receive(*FSocket, chunk.data(), RecordSize, error);
    RaiseIf("secure the connection", error);
    if (count == 0) {
      throw ETlsError(Concat("\"", settings.HostName,
                             "\" has closed the connection while it was being secured"));
    }
    if (count > 0) FReceived.append(chunk.data(), static_cast<std::size_t>(count));
  }
}

void TTlsChannel::Await(TWaitFor what, const TTlsSettings& settings) const {
  const TTimeLeft time(settings.TimeOut);
  for (;;) {
    const int left = time.Milliseconds();
    const int portion = left < 0 ? WaitMilliseconds : std::min(left, WaitMilliseconds);
    if (WaitForSocket(*FSocket, what, portion)) return;
    if (left == 0) {
      throw ETlsError(Concat("\"", settings.HostName,
                             "\" did not answer in time while the connection was being secured"));
    }
    if (settings.Waiting) settings.Waiting();
  }
}

void TTlsChannel::CheckCertificate(const TTlsSettings& settings) {
  const TTlsCertificate certificate = FEngine->CheckCertificate();
  if (certificate.Problem.empty() || (settings.Accept && settings.Accept(certificate))) return;
  throw ETlsError(Concat("The certificate of \"", settings.HostName,
                         "\" is refused: ", certificate.Problem, " (", certificate.Subject,
                         ", fingerprint ", certificate.Fingerprint, ")"));
}

bool TTlsChannel::Flush(TSocketError& error) {
  while (!FToSend.empty()) {
    const int count =
        os::Send(*FSocket, FToSend.data(),
                 static_cast<int>(std::min<std::size_t>(FToSend.size(), 1u << 20)), error);
    if (error || count < 0) return false;
    FToSend.erase(0, static_cast<std::size_t>(count));
  }
  return true;
}

void TTlsChannel::Take(TSocketError& error) {
  std::array<char, RecordSize> chunk;
  const int count = os::Receive(*FSocket, chunk.data(), RecordSize, error);
  if (error || count < 0) return;
  // Who listens between could have closed it: what is missing behind it is not the peer's end.
  if (count == 0) throw ETlsError("The secured connection was cut off");
  FReceived.append(chunk.data(), static_cast<std::size_t>(count));
  FEnded = !FEngine->Decrypt(FReceived, FPlain, FToSend);
}

bool TTlsChannel::WaitFor(TWaitFor what, int milliseconds) {
  const TTimeLeft time(milliseconds);
  TSocketError error;
  // The peer may wait for the rest before it says anything.
  while (!Flush(error) && !error) {
    if (!WaitForSocket(*FSocket, TWaitFor::Writing, time.Milliseconds())) return false;
  }
  // What is wrong with the socket is said by the reading or writing that follows.
  if (error || what == TWaitFor::Writing) return true;
  while (FTaken == FPlain.size() && !FEnded) {
    if (!WaitForSocket(*FSocket, TWaitFor::Reading, time.Milliseconds())) return false;
    Take(error);
    if (error) return true;
  }
  return true;
}

int TTlsChannel::Receive(void* buffer, int count, TSocketError& error) {
  if (!Flush(error) && error) return -1;
  if (FTaken == FPlain.size() && !FEnded) Take(error);
  if (error) return -1;
  const std::size_t size = std::min(FPlain.size() - FTaken, static_cast<std::size_t>(count));
  if (size == 0) return FEnded ? 0 : -1;
  std::memcpy(buffer, FPlain.data() + FTaken, size);
  FTaken += size;
  if (FTaken == FPlain.size()) {
    FPlain.clear();
    FTaken = 0;
  }
  return static_cast<int>(size);
}

int TTlsChannel::Send(const void* buffer, int count, TSocketError& error) {
  if (!Flush(error)) return -1;
  const int taken = std::min(count, RecordSize);
  FEngine->Encrypt({static_cast<const char*>(buffer), static_cast<std::size_t>(taken)}, FToSend);
  Flush(error);
  return error ? -1 : taken;
}

}  // namespace vcl::os
