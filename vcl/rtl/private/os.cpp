// Reading and writing to the end, whatever a single call of the system moves.
#include "vcl/rtl/private/os.h"

namespace vcl::os {

bool WriteAll(std::intptr_t file, std::string_view bytes) {
  while (!bytes.empty()) {
    const std::int64_t done =
        WriteFile(file, bytes.data(), static_cast<std::int64_t>(bytes.size()));
    if (done <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(done));
  }
  return true;
}

bool ReadAll(std::intptr_t file, std::string& bytes) {
  const std::int64_t size = SizeOfFile(file);
  if (size < 0) return false;
  bytes.resize(static_cast<std::size_t>(size));
  std::int64_t done = 0, count = 1;
  while (count > 0 && done < size) {
    count = ReadFile(file, bytes.data() + done, size - done);
    if (count < 0) return false;
    done += count;
  }
  bytes.resize(static_cast<std::size_t>(done));
  return true;
}

}  // namespace vcl::os
