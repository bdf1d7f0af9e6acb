// What differs between the systems' sockets, under one name each.
#pragma once

#ifdef _WIN32
#include "vcl/net/private/socketcalls_win32.h"
#else
#include "vcl/net/private/socketcalls_posix.h"
#endif
#include "vcl/net/private/socketsystem.h"

namespace vcl::os {

/// To be called before anything else is asked for.
void StartSockets();
/// Why the last call was refused.
TSocketError LastSocketError();
/// The same for the number that looking up a host has returned.
TSocketError LookUpError(int failure);
/// True when the error says no more than that a call would have had to wait.
bool WouldWait(int code);
/// Connects and waits for it. Returns 0, or -1 with a last error.
int ConnectBlocking(TSystemSocket socket, const sockaddr* address, socklen_t size);
/// From then on no call on the socket waits.
bool StopWaiting(TSystemSocket socket);

}  // namespace vcl::os
