// The texts of a POSIX system's errors.
#include <cerrno>
#include <system_error>

#include "vcl/rtl/systemerrors.h"

namespace vcl {

int LastSystemError() { return errno; }

std::string SysErrorMessage(int code) { return std::generic_category().message(code); }

}  // namespace vcl
