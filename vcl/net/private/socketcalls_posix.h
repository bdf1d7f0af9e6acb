// What the sockets of POSIX call their own way.
#pragma once

#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstddef>

namespace vcl::os {

using TSystemSocket = int;
using TByteCount = std::size_t;
constexpr TSystemSocket InvalidSocket = -1;
/// Sending to a peer that has gone is an error, not a signal.
constexpr int SendFlags = MSG_NOSIGNAL;

}  // namespace vcl::os
