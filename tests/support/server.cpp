#include "tests/support/server.h"

#include <algorithm>

#ifdef _WIN32
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

#include <chrono>
#include <stdexcept>

namespace {

#ifdef _WIN32
using TSystemSocket = SOCKET;
constexpr int SendFlags = 0;
void CloseSocket(std::intptr_t socket) { closesocket(static_cast<SOCKET>(socket)); }
const DWORD Patience = 20'000;
const auto Started = [] {
  WSADATA data;
  return WSAStartup(MAKEWORD(2, 2), &data);
}();
#else
using TSystemSocket = int;
constexpr int SendFlags = MSG_NOSIGNAL;
void CloseSocket(std::intptr_t socket) { close(static_cast<int>(socket)); }
const timeval Patience{20, 0};
#endif

TSystemSocket System(std::intptr_t socket) { return static_cast<TSystemSocket>(socket); }

template <class T>
void Set(std::intptr_t socket, int level, int option, const T& value) {
  setsockopt(System(socket), level, option, reinterpret_cast<const char*>(&value), sizeof value);
}

}  // namespace

void TPeer::Say(const std::string& bytes) {
  for (std::size_t done = 0; done < bytes.size();) {
    const auto sent = send(System(FSocket), bytes.data() + done,
                           static_cast<int>(bytes.size() - done), SendFlags);
    if (sent <= 0) return;
    done += static_cast<std::size_t>(sent);
  }
}

void TPeer::SayBytewise(const std::string& bytes) {
  for (const char each : bytes) {
    Say({each});
    std::this_thread::sleep_for(std::chrono::milliseconds(3));
  }
}

std::optional<std::string> TPeer::Hear() {
  // Long lines come in many pieces: what has been searched is not searched again.
  for (std::size_t searched = 0;;) {
    if (const std::size_t end = FHeard.find("\r\n", searched); end != FHeard.npos) {
      const std::string line = FHeard.substr(0, end);
      FHeard.erase(0, end + 2);
      return line;
    }
    searched = FHeard.size() - std::min<std::size_t>(FHeard.size(), 1);
    char chunk[65536];
    const auto size = recv(System(FSocket), chunk, sizeof chunk, 0);
    if (size <= 0) return {};
    FHeard.append(chunk, static_cast<std::size_t>(size));
  }
}

void TPeer::HearEnd() {
  while (Hear()) {
  }
}

TTestServer::TTestServer(std::function<void(TPeer&)> script, const char* address) {
  addrinfo wanted{};
  wanted.ai_flags = AI_PASSIVE | AI_NUMERICHOST;
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (getaddrinfo(address, "0", &wanted, &found) != 0) throw std::runtime_error(address);
  FListener = static_cast<std::intptr_t>(socket(found->ai_family, SOCK_STREAM, 0));
  const bool listening =
      bind(System(FListener), found->ai_addr, static_cast<socklen_t>(found->ai_addrlen)) == 0 &&
      listen(System(FListener), 5) == 0;
  freeaddrinfo(found);
  if (!listening) throw std::runtime_error("The test's server cannot listen");
  sockaddr_storage own{};
  socklen_t size = sizeof own;
  getsockname(System(FListener), reinterpret_cast<sockaddr*>(&own), &size);
  FPort = ntohs(reinterpret_cast<sockaddr_in&>(own).sin_port);
  FThread = std::thread([this, script = std::move(script)] {
    for (;;) {
      const auto client = static_cast<std::intptr_t>(accept(System(FListener), nullptr, nullptr));
      if (client < 0) return;
      Set(client, SOL_SOCKET, SO_RCVTIMEO, Patience);
      Set(client, IPPROTO_TCP, TCP_NODELAY, 1);
      TPeer peer(client);
      script(peer);
      CloseSocket(client);
    }
  });
}

TTestServer::~TTestServer() {
  // Ends the waiting for the next connection.
  shutdown(System(FListener), 2);
#ifdef _WIN32
  CloseSocket(FListener);
  FThread.join();
#else
  FThread.join();
  CloseSocket(FListener);
#endif
}
