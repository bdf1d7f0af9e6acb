// TLogWriter: the file, its lock, and the files that were full before it.
#include "qel/shell/private/logwriter.h"

#include <set>
#include <tuple>
#include <utility>

#include "qel/shell/private/folders.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr DWORD Shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE OpenFile(const std::string& name, DWORD access, DWORD how) {
  return ::CreateFileW(vcl::SystemFileName(name).c_str(), access, Shared, nullptr, how,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// Who looks at every file as it is made, or copies it, keeps others out for a moment.
HANDLE OpenInTime(const std::string& name) {
  HANDLE file = INVALID_HANDLE_VALUE;
  for (int i = 0; i < 20; ++i) {
    if (i > 0) ::Sleep(50);
    file = OpenFile(name, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
    if (file != INVALID_HANDLE_VALUE || ::GetLastError() != ERROR_SHARING_VIOLATION) break;
  }
  return file;
}

/// The one byte that is locked, the last that can be.
OVERLAPPED LockedByte() {
  OVERLAPPED place{};
  place.Offset = 0xFFFFFFFE;
  place.OffsetHigh = 0x7FFFFFFF;
  return place;
}

void Seek(HANDLE file, std::uint64_t position) {
  LARGE_INTEGER place{};
  place.QuadPart = static_cast<LONGLONG>(position);
  ::SetFilePointerEx(file, place, nullptr, FILE_BEGIN);
}

}  // namespace

/// Holds the lock on the file that has the name now.
class TLogWriter::TLock {
 public:
  explicit TLock(TLogWriter& writer) : FWriter(writer) {
    // A disk may give a file another number each time it is asked.
    constexpr int enough = 20;
    for (int i = 0;; ++i) {
      writer.Open();
      Lock();
      if (i == enough || writer.IsCurrent()) return;
      // Another process has found it full meanwhile, or somebody has moved it.
      Unlock();
      writer.Close();
    }
  }
  ~TLock() { Unlock(); }
  TLock(const TLock&) = delete;
  TLock& operator=(const TLock&) = delete;

 private:
  void Lock() const {
    OVERLAPPED place = LockedByte();
    if (!::LockFileEx(FWriter.FFile, LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &place))
      FWriter.Fail(vcl::LastSystemError());
  }
  void Unlock() const {
    OVERLAPPED place = LockedByte();
    ::UnlockFileEx(FWriter.FFile, 0, 1, 0, &place);
  }
  TLogWriter& FWriter;
};

void TLogWriter::Fail(int code) const {
  vcl::RaiseOSError<vcl::EInOutError>(code, "The log file '", FName, "' cannot be written");
}

void TLogWriter::SetFile(const std::string& name) {
  Close();
  FName = name.empty() ? name : vcl::ExpandFileName(name);
}

void TLogWriter::Open() {
  if (FFile != INVALID_HANDLE_VALUE) return;
  FFile = OpenInTime(FName);
  if (FFile == INVALID_HANDLE_VALUE && vcl::LastSystemError() == ERROR_PATH_NOT_FOUND) {
    vcl::ForceDirectories(vcl::ExtractFileDir(FName));
    FFile = OpenInTime(FName);
  }
  if (FFile == INVALID_HANDLE_VALUE) Fail(vcl::LastSystemError());
  FSeen = false;
}

void TLogWriter::Close() {
  if (FFile != INVALID_HANDLE_VALUE) ::CloseHandle(FFile);
  FFile = INVALID_HANDLE_VALUE;
}

bool TLogWriter::IsCurrent() const {
  const HANDLE named = OpenFile(FName, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
  if (named == INVALID_HANDLE_VALUE) return false;
  BY_HANDLE_FILE_INFORMATION own{}, others{};
  const bool told =
      ::GetFileInformationByHandle(FFile, &own) && ::GetFileInformationByHandle(named, &others);
  ::CloseHandle(named);
  const auto id = [](const BY_HANDLE_FILE_INFORMATION& info) {
    return std::tuple(info.dwVolumeSerialNumber, info.nFileIndexHigh, info.nFileIndexLow);
  };
  return told && id(own) == id(others);
}

std::uint64_t TLogWriter::Size() const {
  LARGE_INTEGER size{};
  if (!::GetFileSizeEx(FFile, &size)) Fail(vcl::LastSystemError());
  return static_cast<std::uint64_t>(size.QuadPart);
}

void TLogWriter::Write(std::string& lines) {
  bool canEnd = true;  // The file, for a new one.
  while (!lines.empty()) {
    const TLock lock(*this);
    EndTornLine(Size());
    const std::uint64_t size = Size();
    const std::size_t part = canEnd ? Fitting(lines, size) : lines.size();
    if (part == 0) {
      // What can't make room, as somebody keeps the file, goes on with it: no line is lost.
      canEnd = MakeRoom();
      continue;
    }
    Append(size, lines.data(), part);
    lines.erase(0, part);
  }
}

/// How many bytes of the lines the file still takes; 0 when it is full.
std::size_t TLogWriter::Fitting(const std::string& lines, std::uint64_t size) const {
  const std::uint64_t room = FMaxSize > size ? FMaxSize - size : 0;
  if (FMaxSize == 0 || lines.size() <= room) return lines.size();
  const std::size_t end =
      room == 0 ? std::string::npos : lines.rfind('\n', static_cast<std::size_t>(room) - 1);
  if (end != std::string::npos) return end + 1;
  return size == 0 ? lines.find('\n') + 1 : 0;
}

/// Where the power failed in the middle of a line, the next one does not become part of it.
void TLogWriter::EndTornLine(std::uint64_t size) {
  if (std::exchange(FSeen, true) || size == 0) return;
  char last = 0;
  DWORD count = 0;
  Seek(FFile, size - 1);
  if (::ReadFile(FFile, &last, 1, &count, nullptr) && count == 1 && last != '\n')
    Append(size, "\r\n", 2);
}

void TLogWriter::Append(std::uint64_t size, const char* bytes, std::size_t count) const {
  Seek(FFile, size);
  DWORD written = 0;
  if (::WriteFile(FFile, bytes, static_cast<DWORD>(count), &written, nullptr) && written == count)
    return;
  const int code = written == 0 ? vcl::LastSystemError() : ERROR_DISK_FULL;
  Seek(FFile, size);
  ::SetEndOfFile(FFile);
  Fail(code);
}

void TLogWriter::Flush() {
  if (FFile != INVALID_HANDLE_VALUE && !::FlushFileBuffers(FFile)) Fail(vcl::LastSystemError());
}

// Former files.

std::string TLogWriter::Former(int number) const {
  const std::string extension = vcl::ExtractFileExt(FName);
  return vcl::ChangeFileExt(FName, vcl::Concat(".", vcl::IntToStr(number), extension));
}

/// The number in the name of a file in the folder; 0 for one that is none of them.
int TLogWriter::NumberOf(const std::string& name) const {
  const std::string number = vcl::ExtractFileExt(vcl::ChangeFileExt(name, {}));  // With its dot.
  int found = 0;
  if (number.size() < 2 || !vcl::TryStrToInt(number.substr(1), found) || found < 1) return 0;
  return vcl::SameText(name, vcl::ExtractFileName(Former(found))) ? found : 0;
}

/// Gives the file its number, and deletes those that are too many. False when the system refuses.
bool TLogWriter::MakeRoom() const {
  if (FMaxFiles == 1) {
    Seek(FFile, 0);
    return ::SetEndOfFile(FFile);
  }
  std::set<int> numbers;
  const std::string folder = vcl::ExtractFilePath(FName);
  folders::ScanEntries(folder, [&](const folders::TEntry& entry) {
    const int number = entry.IsFolder() ? 0 : NumberOf(entry.Name);
    if (number > 0) numbers.insert(number);
    return true;
  });
  const int next = numbers.empty() ? 1 : *numbers.rbegin() + 1;
  ::FlushFileBuffers(FFile);
  if (!vcl::RenameFile(FName, Former(next))) return false;
  numbers.insert(next);
  while (FMaxFiles > 0 && numbers.size() >= static_cast<std::size_t>(FMaxFiles)) {
    vcl::DeleteFile(Former(*numbers.begin()));
    numbers.erase(numbers.begin());
  }
  return true;
}

}  // namespace qel
