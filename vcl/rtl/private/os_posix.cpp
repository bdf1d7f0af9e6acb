// What the library asks of a POSIX system: files, threads, the order of texts, the clock.
#include "vcl/rtl/private/os.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <wctype.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"

namespace vcl::os {
namespace {

constexpr int NewFileRights = 0666;

int Flags(int mode) {
  if (mode == fmCreate) return O_RDWR | O_CREAT | O_TRUNC;
  static constexpr int access[] = {O_RDONLY, O_WRONLY, O_RDWR, O_RDWR};
  return access[mode & 3];
}

/// The text's characters without case. What is no UTF-8 stands for itself.
std::u32string Folded(std::string_view text) {
  static const locale_t characters = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  std::u32string folded;
  while (!text.empty()) {
    std::size_t size = std::min<std::size_t>(4, text.size());
    while (size > 1 && !OnlyCharacter(text.substr(0, size))) --size;
    const char32_t byte = static_cast<unsigned char>(text.front());
    const char32_t character = OnlyCharacter(text.substr(0, size)).value_or(byte);
    folded += static_cast<char32_t>(::towlower_l(static_cast<wint_t>(character), characters));
    text.remove_prefix(size);
  }
  return folded;
}

/// How nice a thread of each priority is to the others.
constexpr int Niceness[] = {19, 10, 5, 0, -5, -10, -20};

int Descriptor(std::intptr_t file) { return static_cast<int>(file); }

}  // namespace

std::intptr_t OpenFile(const std::string& name, int mode) {
  const int file = open(name.c_str(), Flags(mode) | O_CLOEXEC, NewFileRights);
  if (file < 0) return NoFile;
  // The system opens folders for reading; nothing can be read from them.
  struct stat status {};
  if (fstat(file, &status) == 0 && !S_ISDIR(status.st_mode)) return file;
  close(file);
  errno = EISDIR;
  return NoFile;
}

void CloseFile(std::intptr_t file) { close(Descriptor(file)); }

std::int64_t ReadFile(std::intptr_t file, void* buffer, std::int64_t count) {
  return read(Descriptor(file), buffer, static_cast<std::size_t>(count));
}

std::int64_t WriteFile(std::intptr_t file, const void* buffer, std::int64_t count) {
  return write(Descriptor(file), buffer, static_cast<std::size_t>(count));
}

std::int64_t SeekFile(std::intptr_t file, std::int64_t offset, int origin) {
  static constexpr int whence[] = {SEEK_SET, SEEK_CUR, SEEK_END};
  return lseek(Descriptor(file), offset, whence[origin]);
}

std::int64_t SizeOfFile(std::intptr_t file) {
  struct stat status {};
  return fstat(Descriptor(file), &status) == 0 ? status.st_size : -1;
}

bool SetSizeOfFile(std::intptr_t file, std::int64_t size) {
  return ftruncate(Descriptor(file), size) == 0;
}

std::uintptr_t CurrentThreadId() { return static_cast<std::uintptr_t>(syscall(SYS_gettid)); }

// Contrary to POSIX, Linux keeps the niceness per thread.
void SetThreadPriority(std::uintptr_t thread, int priority) {
  setpriority(PRIO_PROCESS, static_cast<id_t>(thread), Niceness[priority]);
}

int ThreadPriority(std::uintptr_t thread) {
  const int niceness = getpriority(PRIO_PROCESS, static_cast<id_t>(thread));
  const auto below = std::ranges::find_if(Niceness, [&](int each) { return each < niceness; });
  return std::max(0, static_cast<int>(below - std::begin(Niceness)) - 1);
}

void AnswerSentMessages() {}

int CompareText(std::string_view a, std::string_view b) { return Folded(a).compare(Folded(b)); }

std::string ExeName() {
  std::error_code failed;
  return std::filesystem::read_symlink("/proc/self/exe", failed).string();
}

TWallClock WallClock() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  std::tm local{};
  localtime_r(&now.tv_sec, &local);
  return {local.tm_year + 1900,
          local.tm_mon + 1,
          local.tm_mday,
          local.tm_hour,
          local.tm_min,
          std::min(local.tm_sec, 59),  // No leap seconds.
          static_cast<int>(now.tv_nsec / 1'000'000)};
}

}  // namespace vcl::os
