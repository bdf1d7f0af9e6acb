// What Winsock calls its own way.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <winsock2.h>
// It needs what stands above.
#include <ws2tcpip.h>

namespace vcl::os {

using TSystemSocket = SOCKET;
using TByteCount = int;
constexpr TSystemSocket InvalidSocket = INVALID_SOCKET;
constexpr int SendFlags = 0;

}  // namespace vcl::os
