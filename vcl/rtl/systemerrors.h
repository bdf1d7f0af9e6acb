// What the operating system says about its refusals.
#pragma once

#include <string>

#include "vcl/rtl/api.h"
#include "vcl/rtl/text.h"

namespace vcl {

/// The number of the calling thread's last failure: GetLastError's, elsewhere errno. It holds until
/// the next call of the system.
VCL_API int LastSystemError();
/// The system's words for such a number, or for one of its sockets, in the user's language; the
/// number itself where it has none.
VCL_API std::string SysErrorMessage(int code);

/// Raises an E, whose message is the pieces joined, ": " and the system's words for the number.
template <class E, class... Pieces>
[[noreturn]] void RaiseOSError(int code, const Pieces&... what) {
  throw E(Concat(what..., ": ", SysErrorMessage(code)));
}

/// The same for the calling thread's last failure.
template <class E, class... Pieces>
[[noreturn]] void RaiseLastOSError(const Pieces&... what) {
  RaiseOSError<E>(LastSystemError(), what...);
}

}  // namespace vcl
