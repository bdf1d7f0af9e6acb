// TCustomWinSocket: a connection, its two ends, sending and receiving.
#include <array>

#include "vcl/net/private/tlschannel.h"
#include "vcl/net/sockets.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

[[noreturn]] void Raise(const char* doing, const os::TSocketError& error) {
  throw ESocketError(
      Concat("Cannot ", doing, ": ", error.Text, " (", std::to_string(error.Code), ")"),
      error.Code);
}

constexpr int ForEver = -1;

}  // namespace

ESocketError::~ESocketError() = default;

const TClass& TCustomWinSocket::Class() {
  static const TClass info =
      Describe<TCustomWinSocket, TObject>("vcl::TCustomWinSocket", "vcl/net/sockets.h", {});
  return info;
}

TCustomWinSocket::TCustomWinSocket(TClientSocket* client)
    : FClient(client),
      FLocal(std::make_unique<os::TSocketAddress>()),
      FRemote(std::make_unique<os::TSocketAddress>()) {}

TCustomWinSocket::~TCustomWinSocket() = default;

os::TSocketHandle& TCustomWinSocket::Handle() const {
  if (!FHandle) throw ESocketError("The socket is not connected");
  return *FHandle;
}

os::TSocketError TCustomWinSocket::Connect(const std::string& host, const std::string& service) {
  FTls = nullptr;
  std::vector<os::TSocketAddress> addresses;
  os::TSocketError error = os::LookUp(host, service, addresses);
  for (const os::TSocketAddress& each : addresses) {
    error = os::Connect(each, FHandle);
    if (error) continue;
    *FLocal = os::LocalAddress(*FHandle);
    *FRemote = os::RemoteAddress(*FHandle);
    return {};
  }
  return error;
}

void TCustomWinSocket::Close() {
  // The handler may free this object or raise: the connection ends all the same.
  const auto closing = std::move(FHandle);
  FHandle = nullptr;
  FTls = nullptr;  // Which takes its leave of the peer.
  if (closing) FClient->OnDisconnect(FClient, this);
}

std::string TCustomWinSocket::GetLocalHost() { return os::LocalHostName(); }

std::string TCustomWinSocket::LocalAddress() const {
  int port = 0;
  return os::AddressText(*FLocal, port);
}

int TCustomWinSocket::LocalPort() const {
  int port = 0;
  os::AddressText(*FLocal, port);
  return port;
}

std::string TCustomWinSocket::RemoteAddress() const {
  int port = 0;
  return os::AddressText(*FRemote, port);
}

int TCustomWinSocket::RemotePort() const {
  int port = 0;
  os::AddressText(*FRemote, port);
  return port;
}

std::string TCustomWinSocket::RemoteHost() const { return os::HostNameOf(*FRemote); }

int TCustomWinSocket::TrySend(const void* buffer, int count) {
  os::TSocketError error;
  const int done =
      FTls ? FTls->Send(buffer, count, error) : os::Send(Handle(), buffer, count, error);
  if (error) Raise("send", error);
  return done;
}

int TCustomWinSocket::TryReceive(void* buffer, int count) {
  os::TSocketError error;
  const int done =
      FTls ? FTls->Receive(buffer, count, error) : os::Receive(Handle(), buffer, count, error);
  if (error) Raise("receive", error);
  return done;
}

bool TCustomWinSocket::WaitFor(os::TWaitFor what, int milliseconds) {
  return FTls ? FTls->WaitFor(what, milliseconds) : os::WaitForSocket(Handle(), what, milliseconds);
}

int TCustomWinSocket::SendBuf(const void* buffer, int count) {
  const auto* next = static_cast<const char*>(buffer);
  for (int left = count; left > 0;) {
    const int done = TrySend(next, left);
    if (done < 0) {
      WaitFor(os::TWaitFor::Writing, ForEver);
    } else {
      next += done;
      left -= done;
    }
  }
  return count;
}

int TCustomWinSocket::SendText(std::string_view bytes) {
  return SendBuf(bytes.data(), static_cast<int>(bytes.size()));
}

int TCustomWinSocket::ReceiveBuf(void* buffer, int count) {
  int done = TryReceive(buffer, count);
  for (; done < 0; done = TryReceive(buffer, count)) {
    WaitFor(os::TWaitFor::Reading, ForEver);
  }
  return done;
}

std::string TCustomWinSocket::ReceiveText() {
  std::array<char, 4096> chunk;
  const int done = ReceiveBuf(chunk.data(), static_cast<int>(chunk.size()));
  return {chunk.data(), static_cast<std::size_t>(done)};
}

}  // namespace vcl
