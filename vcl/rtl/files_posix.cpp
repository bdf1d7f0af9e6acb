// Questions and changes about files, as a POSIX system answers them.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "vcl/rtl/files.h"
#include "vcl/rtl/private/os.h"

namespace vcl {
namespace {

constexpr mode_t NewFolderRights = 0777;

/// What the system has of the name; 0 for nothing.
mode_t KindOf(const std::string& name) {
  struct stat status {};
  return stat(name.c_str(), &status) == 0 ? status.st_mode : 0;
}

}  // namespace

bool FileExists(const std::string& fileName) {
  const mode_t kind = KindOf(fileName);
  return kind != 0 && !S_ISDIR(kind);
}

bool DirectoryExists(const std::string& folder) { return S_ISDIR(KindOf(folder)); }

bool FileIsReadOnly(const std::string& fileName) {
  return FileExists(fileName) && access(fileName.c_str(), W_OK) != 0;
}

bool RenameFile(const std::string& oldName, const std::string& newName) {
  return renameat2(AT_FDCWD, oldName.c_str(), AT_FDCWD, newName.c_str(), RENAME_NOREPLACE) == 0;
}

bool DeleteFile(const std::string& fileName) { return unlink(fileName.c_str()) == 0; }

bool os::MakeFolder(const std::string& name) {
  if (mkdir(name.c_str(), NewFolderRights) == 0) return true;
  const int reason = errno;
  const bool made = DirectoryExists(name);
  errno = reason;
  return made;
}

}  // namespace vcl
