// TWinSocketStream: reading and writing a blocking connection, with a limit to the waiting.
#include <algorithm>
#include <limits>

#include "vcl/net/private/socketsystem.h"
#include "vcl/net/sockets.h"
#include "vcl/rtl/properties.h"

namespace vcl {
namespace {

int Portion(std::int64_t count) {
  return static_cast<int>(std::clamp<std::int64_t>(count, 0, std::numeric_limits<int>::max()));
}

}  // namespace

const TClass& TWinSocketStream::Class() {
  static const TClass info =
      Describe<TWinSocketStream, TStream>("vcl::TWinSocketStream", "vcl/net/sockets.h", {});
  return info;
}

bool TWinSocketStream::WaitForData(int milliseconds) {
  return FSocket->WaitFor(os::TWaitFor::Reading, milliseconds);
}

std::int64_t TWinSocketStream::Read(void* buffer, std::int64_t count) {
  if (count <= 0 || !WaitForData(FTimeOut)) return 0;
  const int done = FSocket->TryReceive(buffer, Portion(count));
  FAtEnd = done == 0;
  return std::max(done, 0);
}

std::int64_t TWinSocketStream::Write(const void* buffer, std::int64_t count) {
  if (count <= 0) return 0;
  FSocket->WaitFor(os::TWaitFor::Writing, FTimeOut);
  return std::max(FSocket->TrySend(buffer, Portion(count)), 0);
}

std::int64_t TWinSocketStream::Seek(std::int64_t, TSeekOrigin) {
  throw EStreamError("A connection's stream has no position to move");
}

std::int64_t TWinSocketStream::Size() const {
  throw EStreamError("The size of a connection's stream is not known");
}

}  // namespace vcl
