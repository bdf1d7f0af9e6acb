// Reading and replacing small files that several programs use, on Windows, where others may have
// them open.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <cstdio>

#include "vcl/rtl/filenames.h"
#include "vcl/rtl/private/os.h"
#include "vcl/rtl/private/sharedfile.h"
#include "vcl/rtl/utf16.h"

namespace vcl::os {
namespace {

constexpr DWORD Patience = 10000;  // Milliseconds.
/// How often, and after how many milliseconds each, something is tried again that fails while
/// another program has the file open.
constexpr int Tries = 400;
constexpr DWORD BetweenTries = 5;
/// As many tries are made without a pause.
constexpr int ShortTries = 10;
constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE Handle(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

bool IsBare(const std::string& name) { return ExtractFilePath(name).empty(); }

/// Waits a little after a failure that another program's reading may have caused; false when it is
/// of another kind or has gone on for too long.
bool WorthAnotherTry(int& tries) {
  const DWORD error = GetLastError();
  if (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED) return false;
  if (++tries > Tries) return false;
  Sleep(tries < ShortTries ? 0 : BetweenTries);
  SetLastError(error);
  return true;
}

HANDLE OpenForReading(const std::wstring& name) {
  for (int tries = 0;;) {
    const HANDLE file = CreateFileW(name.c_str(), GENERIC_READ, ShareAll, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_SHARING_VIOLATION ||
        !WorthAnotherTry(tries))
      return file;
  }
}

bool WriteBeside(const std::wstring& name, DWORD attributes, const std::string& contents,
                 TWritten when) {
  const HANDLE file =
      CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, attributes, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const bool written = WriteAll(reinterpret_cast<std::intptr_t>(file), contents) &&
                       (when == TWritten::Later || FlushFileBuffers(file));
  const DWORD error = GetLastError();
  CloseHandle(file);
  SetLastError(error);
  return written;
}

/// True while a program has the file open without letting others delete it.
bool DeletionDenied(const std::wstring& name) {
  const HANDLE file = CreateFileW(name.c_str(), DELETE, ShareAll, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
  CloseHandle(file);
  return false;
}

/// Has the disk's room for a file that becomes larger before anything of it is changed. A system
/// that can't do so says it otherwise.
bool Reserve(HANDLE file, std::size_t bytes) {
  LARGE_INTEGER former{}, size{};
  size.QuadPart = static_cast<LONGLONG>(bytes);
  if (!GetFileSizeEx(file, &former)) return false;
  return former.QuadPart >= size.QuadPart ||
         SetFileInformationByHandle(file, FileAllocationInfo, &size, sizeof size) ||
         GetLastError() != ERROR_DISK_FULL;
}

/// Writes over what the file holds, and cuts off what is left of it.
bool WriteOver(const std::wstring& name, const std::string& contents) {
  const HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE | FILE_READ_ATTRIBUTES, ShareAll,
                                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const bool written = Reserve(file, contents.size()) &&
                       WriteAll(reinterpret_cast<std::intptr_t>(file), contents) &&
                       SetEndOfFile(file);
  const DWORD error = GetLastError();
  CloseHandle(file);
  SetLastError(error);
  return written;
}

/// A program that has the file open and doesn't let it be replaced may still let others write. The
/// contents stay beside it until they are in it.
bool WriteThrough(const std::wstring& beside, const std::wstring& name,
                  const std::string& contents) {
  if (!DeletionDenied(name) || !WriteOver(name, contents)) return false;
  DeleteFileW(beside.c_str());
  return true;
}

bool PutInPlace(const std::wstring& beside, const std::wstring& name, const std::string& contents,
                TWritten when) {
  const DWORD through = when == TWritten::OnDisk ? MOVEFILE_WRITE_THROUGH : 0;
  for (int tries = 0;;) {
    if (MoveFileExW(beside.c_str(), name.c_str(), MOVEFILE_REPLACE_EXISTING | through)) return true;
    if (!WorthAnotherTry(tries)) return false;
    if (when == TWritten::Later && tries >= ShortTries && WriteThrough(beside, name, contents))
      return true;
  }
}

/// A name for the file's mutex that is the same in every program: mutexes have no folders, and
/// their names end at 260 characters.
std::wstring TurnName(const std::string& fileName) {
  std::wstring name = ToUtf16(ExpandFileName(fileName));
  CharLowerW(name.data());
  std::uint64_t hash = 14695981039346656037u;  // FNV-1a.
  for (const wchar_t each : name) hash = (hash ^ each) * 1099511628211u;
  wchar_t text[40];
  std::swprintf(text, 40, L"Global\\vcl.file.%08x%08x", static_cast<unsigned>(hash >> 32),
                static_cast<unsigned>(hash));
  return text;
}

}  // namespace

std::string SettingsFileName(const std::string& name) {
  if (!IsBare(name)) return ExpandFileName(name);
  wchar_t folder[MAX_PATH];
  const UINT size = GetSystemWindowsDirectoryW(folder, MAX_PATH);
  if (size == 0 || size >= MAX_PATH) return name;
  return IncludeTrailingPathDelimiter(ToUtf8(std::wstring(folder, size))) + name;
}

TReading ReadWholeFile(const std::string& name, std::string& contents) {
  const HANDLE file = OpenForReading(ToUtf16(name));
  if (file == INVALID_HANDLE_VALUE) {
    const DWORD error = GetLastError();
    const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
    return missing ? TReading::Missing : TReading::Refused;
  }
  const bool read = ReadAll(reinterpret_cast<std::intptr_t>(file), contents);
  const DWORD error = GetLastError();
  CloseHandle(file);
  SetLastError(error);
  return read ? TReading::Done : TReading::Refused;
}

TFileTurn::TFileTurn(const std::string& fileName) {
  // Every user may take his turn.
  SECURITY_DESCRIPTOR everybody;
  InitializeSecurityDescriptor(&everybody, SECURITY_DESCRIPTOR_REVISION);
  SetSecurityDescriptorDacl(&everybody, TRUE, nullptr, FALSE);
  SECURITY_ATTRIBUTES security{sizeof security, &everybody, FALSE};
  const HANDLE mutex =
      CreateMutexExW(&security, TurnName(fileName).c_str(), 0, SYNCHRONIZE | MUTEX_MODIFY_STATE);
  FHandle = reinterpret_cast<std::intptr_t>(mutex);
  if (!mutex) return;
  const DWORD result = WaitForSingleObject(mutex, Patience);
  // A program that has ended in its turn has left a whole file.
  FHeld = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
  if (result == WAIT_TIMEOUT) SetLastError(ERROR_BUSY);
}

TFileTurn::~TFileTurn() {
  if (!FHandle) return;
  if (FHeld) ReleaseMutex(Handle(FHandle));
  CloseHandle(Handle(FHandle));
}

// The new file has the attributes of the former one, and the rights that its folder gives.
bool ReplaceWholeFile(const std::string& name, const std::string& contents, TWritten when) {
  const std::wstring wide = ToUtf16(name);
  const DWORD former = GetFileAttributesW(wide.c_str());
  const bool exists = former != INVALID_FILE_ATTRIBUTES;
  if (exists && (former & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY))) {
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
  }
  const std::wstring beside = wide + L".~new";
  if (WriteBeside(beside, exists ? former : FILE_ATTRIBUTE_NORMAL, contents, when) &&
      PutInPlace(beside, wide, contents, when))
    return true;
  const DWORD error = GetLastError();
  DeleteFileW(beside.c_str());
  SetLastError(error);
  return false;
}

}  // namespace vcl::os
