// What sockets ask of Winsock: errors, connecting, and waiting.
#include "vcl/net/private/socketsystem.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <winsock2.h>
// It needs what stands above.
#include <ws2tcpip.h>

#include <iterator>

#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl::os {
namespace {

using TSystemSocket = SOCKET;
using TByteCount = int;
constexpr TSystemSocket InvalidSocket = INVALID_SOCKET;
constexpr int SendFlags = 0;

void StartSockets() {
  static const int started = [] {
    WSADATA data;
    return WSAStartup(MAKEWORD(2, 2), &data);
  }();
  // What could not be started is refused by the calls that follow.
  static_cast<void>(started);
}

TSocketError ErrorOf(int code) {
  wchar_t text[512];
  const DWORD size =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                     static_cast<DWORD>(code), 0, text, std::size(text), nullptr);
  if (size == 0) return {code, Concat("System error ", std::to_string(code))};
  return {code, std::string(Trim(ToUtf8(std::wstring(text, size))))};
}

TSocketError LastError() { return ErrorOf(WSAGetLastError()); }
TSocketError LookUpError(int failure) { return ErrorOf(failure); }
bool WouldWait(int code) { return code == WSAEWOULDBLOCK; }

int ConnectBlocking(TSystemSocket socket, const sockaddr* address, socklen_t size) {
  return connect(socket, address, size);
}

bool StopWaiting(TSystemSocket socket) {
  u_long on = 1;
  return ioctlsocket(socket, static_cast<long>(FIONBIO), &on) == 0;
}

}  // namespace

TSocketHandle::~TSocketHandle() { closesocket(static_cast<SOCKET>(Value)); }

bool WaitForSocket(const TSocketHandle& socket, TWaitFor what, int milliseconds) {
  fd_set waiting;
  waiting.fd_count = 1;
  waiting.fd_array[0] = static_cast<SOCKET>(socket.Value);
  timeval time{milliseconds / 1000, milliseconds % 1000 * 1000};
  const bool reading = what == TWaitFor::Reading;
  // What is wrong with the socket is said by the reading or writing that follows.
  return select(0, reading ? &waiting : nullptr, reading ? nullptr : &waiting, nullptr,
                milliseconds < 0 ? nullptr : &time) != 0;
}

}  // namespace vcl::os

#include "vcl/net/private/bsdsockets.h"
