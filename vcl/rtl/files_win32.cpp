// Questions and changes about files, as Windows answers them.
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/private/os.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

DWORD AttributesOf(const std::string& name) {
  return GetFileAttributesW(SystemFileName(name).c_str());
}

/// True when there is a file of the name, and it has, or has not, the attribute.
bool IsThere(const std::string& name, DWORD attribute, bool wanted) {
  const DWORD attributes = AttributesOf(name);
  return attributes != INVALID_FILE_ATTRIBUTES && ((attributes & attribute) != 0) == wanted;
}

}  // namespace

bool FileExists(const std::string& fileName) {
  return IsThere(fileName, FILE_ATTRIBUTE_DIRECTORY, false);
}

bool DirectoryExists(const std::string& folder) {
  return IsThere(folder, FILE_ATTRIBUTE_DIRECTORY, true);
}

// Folders that the shell shows in a way of their own have the attribute, too.
bool FileIsReadOnly(const std::string& fileName) {
  return FileExists(fileName) && IsThere(fileName, FILE_ATTRIBUTE_READONLY, true);
}

bool RenameFile(const std::string& oldName, const std::string& newName) {
  return MoveFileW(SystemFileName(oldName).c_str(), SystemFileName(newName).c_str());
}

bool DeleteFile(const std::string& fileName) {
  return DeleteFileW(SystemFileName(fileName).c_str());
}

bool os::MakeFolder(const std::string& name) {
  if (CreateDirectoryW(SystemFileName(name).c_str(), nullptr)) return true;
  const DWORD reason = GetLastError();
  const bool made = DirectoryExists(name);
  SetLastError(reason);
  return made;
}

}  // namespace vcl
