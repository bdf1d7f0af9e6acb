// What differs on a POSIX system: errors, connecting, and waiting.
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>

#include "vcl/net/private/socketcalls.h"
#include "vcl/rtl/systemerrors.h"

namespace vcl::os {

void StartSockets() {}

TSocketError LastSocketError() { return {errno, SysErrorMessage(errno)}; }

TSocketError LookUpError(int failure) {
  return failure == EAI_SYSTEM ? LastSocketError() : TSocketError{failure, gai_strerror(failure)};
}

bool WouldWait(int code) { return code == EAGAIN || code == EWOULDBLOCK || code == EINTR; }

// A signal does not end the attempt: it goes on, and its outcome is asked for when it has ended.
int ConnectBlocking(TSystemSocket socket, const sockaddr* address, socklen_t size) {
  fcntl(socket, F_SETFD, FD_CLOEXEC);
  if (connect(socket, address, size) == 0) return 0;
  if (errno != EINTR) return -1;
  pollfd waiting{socket, POLLOUT, 0};
  while (poll(&waiting, 1, -1) < 0 && errno == EINTR) {
  }
  int outcome = 0;
  socklen_t outcomeSize = sizeof outcome;
  getsockopt(socket, SOL_SOCKET, SO_ERROR, &outcome, &outcomeSize);
  errno = outcome;
  return outcome == 0 ? 0 : -1;
}

bool StopWaiting(TSystemSocket socket) { return fcntl(socket, F_SETFL, O_NONBLOCK) == 0; }

TSocketHandle::~TSocketHandle() { close(static_cast<int>(Value)); }

bool WaitForSocket(const TSocketHandle& socket, TWaitFor what, int milliseconds) {
  const short events = what == TWaitFor::Reading ? POLLIN : POLLOUT;
  pollfd waiting{static_cast<int>(socket.Value), events, 0};
  // What is wrong with the socket is said by the reading or writing that follows.
  return poll(&waiting, 1, milliseconds) > 0;
}

}  // namespace vcl::os
