// What the library's sockets ask of the operating system, each with one implementation per system.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vcl::os {

/// Why the system refused something; the code 0 is success.
struct TSocketError {
  int Code = 0;
  std::string Text;

  explicit operator bool() const { return Code != 0; }
};

/// One end of a connection, as the system writes it (a sockaddr).
struct TSocketAddress {
  alignas(8) std::array<unsigned char, 128> Bytes{};
  int Size = 0;
};

/// A socket of the system's, closed with its last owner.
class TSocketHandle {
 public:
  explicit TSocketHandle(std::intptr_t value) : Value(value) {}
  ~TSocketHandle();
  TSocketHandle(const TSocketHandle&) = delete;
  TSocketHandle& operator=(const TSocketHandle&) = delete;

  const std::intptr_t Value;
};
using TSharedSocket = std::shared_ptr<TSocketHandle>;

/// The addresses of a host, a name or an address of IPv4 or IPv6, at a port given as a number or as
/// a service's name.
TSocketError LookUp(const std::string& host, const std::string& service,
                    std::vector<TSocketAddress>& found);
/// Connects and waits for it. From then on no call on the socket waits.
TSocketError Connect(const TSocketAddress& address, TSharedSocket& socket);
TSocketAddress LocalAddress(const TSocketHandle& socket);
TSocketAddress RemoteAddress(const TSocketHandle& socket);
/// The address and the port in digits; an empty text and 0 for no address.
std::string AddressText(const TSocketAddress& address, int& port);
/// The name of the host at the address; its digits when it has none.
std::string HostNameOf(const TSocketAddress& address);
/// This machine's name.
std::string LocalHostName();

enum class TWaitFor { Reading, Writing };
/// Waits until the socket can be read from (its end counts) resp. written to; negative milliseconds
/// wait for ever. False when the time is over.
bool WaitForSocket(const TSocketHandle& socket, TWaitFor what, int milliseconds);
/// These return how many bytes were moved, and -1 with an error of code 0 when it would have to
/// wait. Receiving 0 bytes is the end: the peer sends no more.
int Receive(const TSocketHandle& socket, void* buffer, int count, TSocketError& error);
int Send(const TSocketHandle& socket, const void* buffer, int count, TSocketError& error);

}  // namespace vcl::os
