// Whole names of files on a POSIX system.
#include <filesystem>

#include "vcl/rtl/filenames.h"

namespace vcl {

std::string ExpandFileName(const std::string& fileName) {
  std::error_code failed;
  const std::filesystem::path full = std::filesystem::absolute(fileName, failed);
  return failed ? fileName : full.string();
}

}  // namespace vcl
