// What differs with Winsock: errors, connecting, and waiting.
#include "vcl/net/private/socketcalls.h"
#include "vcl/rtl/systemerrors.h"

namespace vcl::os {

void StartSockets() {
  static const int started = [] {
    WSADATA data;
    return WSAStartup(MAKEWORD(2, 2), &data);
  }();
  // What could not be started is refused by the calls that follow.
  static_cast<void>(started);
}

// The numbers of Winsock are among the system's.
TSocketError LookUpError(int failure) { return {failure, SysErrorMessage(failure)}; }
TSocketError LastSocketError() { return LookUpError(WSAGetLastError()); }
bool WouldWait(int code) { return code == WSAEWOULDBLOCK; }

int ConnectBlocking(TSystemSocket socket, const sockaddr* address, socklen_t size) {
  return connect(socket, address, size);
}

bool StopWaiting(TSystemSocket socket) {
  u_long on = 1;
  return ioctlsocket(socket, static_cast<long>(FIONBIO), &on) == 0;
}

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
