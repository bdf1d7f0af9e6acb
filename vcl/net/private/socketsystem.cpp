// What Winsock and the sockets of POSIX spell alike.
#include "vcl/net/private/socketsystem.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "vcl/net/private/socketcalls.h"

namespace vcl::os {
namespace {

const sockaddr* Plain(const TSocketAddress& address) {
  return reinterpret_cast<const sockaddr*>(address.Bytes.data());
}

template <class Ask>
TSocketAddress AskAddress(const TSocketHandle& socket, Ask ask) {
  TSocketAddress address;
  socklen_t size = address.Bytes.size();
  if (ask(static_cast<TSystemSocket>(socket.Value),
          reinterpret_cast<sockaddr*>(address.Bytes.data()), &size) == 0) {
    address.Size = static_cast<int>(size);
  }
  return address;
}

int Moved(long long done, TSocketError& error) {
  error = done < 0 ? LastSocketError() : TSocketError{};
  if (error && WouldWait(error.Code)) error = {};
  return static_cast<int>(done);
}

}  // namespace

TSocketError LookUp(const std::string& host, const std::string& service,
                    std::vector<TSocketAddress>& found) {
  StartSockets();
  addrinfo wanted{};
  wanted.ai_family = AF_UNSPEC;
  wanted.ai_socktype = SOCK_STREAM;
  wanted.ai_protocol = IPPROTO_TCP;
  addrinfo* first = nullptr;
  const int failure = getaddrinfo(host.c_str(), service.c_str(), &wanted, &first);
  if (failure != 0) return LookUpError(failure);
  for (const addrinfo* each = first; each; each = each->ai_next) {
    TSocketAddress address;
    address.Size = static_cast<int>(std::min<std::size_t>(each->ai_addrlen, address.Bytes.size()));
    std::memcpy(address.Bytes.data(), each->ai_addr, static_cast<std::size_t>(address.Size));
    found.push_back(address);
  }
  freeaddrinfo(first);
  return {};
}

TSocketError Connect(const TSocketAddress& address, TSharedSocket& socket) {
  StartSockets();
  const TSystemSocket made = ::socket(Plain(address)->sa_family, SOCK_STREAM, IPPROTO_TCP);
  if (made == InvalidSocket) return LastSocketError();
  auto handle = std::make_shared<TSocketHandle>(static_cast<std::intptr_t>(made));
  if (ConnectBlocking(made, Plain(address), static_cast<socklen_t>(address.Size)) != 0) {
    return LastSocketError();
  }
  if (!StopWaiting(made)) return LastSocketError();
  socket = std::move(handle);
  return {};
}

TSocketAddress LocalAddress(const TSocketHandle& socket) {
  return AskAddress(socket, [](auto... a) { return getsockname(a...); });
}

TSocketAddress RemoteAddress(const TSocketHandle& socket) {
  return AskAddress(socket, [](auto... a) { return getpeername(a...); });
}

std::string AddressText(const TSocketAddress& address, int& port) {
  char host[NI_MAXHOST] = "", service[NI_MAXSERV] = "0";
  port = 0;
  if (address.Size == 0 ||
      getnameinfo(Plain(address), static_cast<socklen_t>(address.Size), host, sizeof host, service,
                  sizeof service, NI_NUMERICHOST | NI_NUMERICSERV) != 0) {
    return {};
  }
  port = std::atoi(service);
  return host;
}

std::string HostNameOf(const TSocketAddress& address) {
  char host[NI_MAXHOST] = "";
  if (address.Size > 0) {
    getnameinfo(Plain(address), static_cast<socklen_t>(address.Size), host, sizeof host, nullptr, 0,
                0);
  }
  return host;
}

std::string LocalHostName() {
  StartSockets();
  char name[NI_MAXHOST] = "";
  return gethostname(name, sizeof name - 1) == 0 ? name : "";
}

int Receive(const TSocketHandle& socket, void* buffer, int count, TSocketError& error) {
  return Moved(recv(static_cast<TSystemSocket>(socket.Value), static_cast<char*>(buffer),
                    static_cast<TByteCount>(count), 0),
               error);
}

int Send(const TSocketHandle& socket, const void* buffer, int count, TSocketError& error) {
  return Moved(send(static_cast<TSystemSocket>(socket.Value), static_cast<const char*>(buffer),
                    static_cast<TByteCount>(count), SendFlags),
               error);
}

}  // namespace vcl::os
