// Reading and replacing small files that several programs use, on a POSIX system.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <thread>

#include "vcl/rtl/filenames.h"
#include "vcl/rtl/private/os.h"
#include "vcl/rtl/private/sharedfile.h"
#include "vcl/rtl/streams.h"

namespace vcl::os {
namespace {

constexpr int NewFileRights = 0666;
constexpr auto Patience = std::chrono::seconds(10);

/// The file that a symbolic link stands for.
std::string TargetOf(const std::string& name) {
  std::error_code failed;
  const std::filesystem::path target = std::filesystem::weakly_canonical(name, failed);
  return failed ? name : target.string();
}

int OpenFolderOf(const std::string& name) {
  const std::string folder = std::filesystem::path(name).parent_path().string();
  return open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

/// Writes a file with the rights of another one, where there is one.
bool WriteBeside(const std::string& name, const std::string& like, const std::string& contents,
                 TWritten when) {
  const int file = open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, NewFileRights);
  if (file < 0) return false;
  struct stat status {};
  bool done = stat(like.c_str(), &status) != 0 || fchmod(file, status.st_mode & 07777) == 0;
  done = done && WriteAll(file, contents) && (when == TWritten::Later || fsync(file) == 0);
  return close(file) == 0 && done;
}

/// Has the names in a file's folder on the disk, as far as the system can.
void WriteFolderOf(const std::string& name) {
  const int folder = OpenFolderOf(name);
  if (folder < 0) return;
  fsync(folder);
  close(folder);
}

}  // namespace

std::string SettingsFileName(const std::string& name) { return ExpandFileName(name); }

TReading ReadWholeFile(const std::string& name, std::string& contents) {
  const std::intptr_t file = OpenFile(name, fmOpenRead);
  if (file == NoFile) {
    const bool missing = errno == ENOENT || errno == ENOTDIR;
    return missing ? TReading::Missing : TReading::Refused;
  }
  const bool done = ReadAll(file, contents);
  const int reason = errno;
  CloseFile(file);
  errno = reason;
  return done ? TReading::Done : TReading::Refused;
}

// The folder is what is locked, so that nothing is left lying about.
TFileTurn::TFileTurn(const std::string& fileName) : FHandle(NoFile) {
  const int lock = OpenFolderOf(TargetOf(fileName));
  FHandle = lock;
  if (lock < 0) return;
  const auto end = std::chrono::steady_clock::now() + Patience;
  do {
    FHeld = flock(lock, LOCK_EX | LOCK_NB) == 0;
    if (FHeld || errno != EWOULDBLOCK) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  } while (std::chrono::steady_clock::now() < end);
}

TFileTurn::~TFileTurn() {
  if (FHandle != NoFile) CloseFile(FHandle);
}

bool ReplaceWholeFile(const std::string& name, const std::string& contents, TWritten when) {
  const std::string target = TargetOf(name);
  if (access(target.c_str(), W_OK) != 0 && errno != ENOENT) return false;
  const std::string beside = target + ".~new";
  if (WriteBeside(beside, target, contents, when) && rename(beside.c_str(), target.c_str()) == 0) {
    if (when == TWritten::OnDisk) WriteFolderOf(target);
    return true;
  }
  const int reason = errno;
  unlink(beside.c_str());
  errno = reason;
  return false;
}

}  // namespace vcl::os
