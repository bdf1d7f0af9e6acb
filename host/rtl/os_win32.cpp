#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <limits>

#include "host/rtl/os.h"
#include "host/rtl/streams.h"
#include "host/rtl/text.h"
#include "host/rtl/utf16_win32.h"

namespace vcl::os {
namespace {

HANDLE Handle(std::intptr_t file) { return reinterpret_cast<HANDLE>(file); }

DWORD Access(int mode) {
  if (mode == fmCreate) return GENERIC_READ | GENERIC_WRITE;
  static constexpr DWORD access[] = {GENERIC_READ, GENERIC_WRITE, GENERIC_READ | GENERIC_WRITE,
                                     GENERIC_READ | GENERIC_WRITE};
  return access[mode & 3];
}

DWORD Sharing(int mode) {
  static constexpr DWORD sharing[] = {
      0, 0, FILE_SHARE_READ, FILE_SHARE_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, 0, 0, 0};
  return mode == fmCreate ? 0 : sharing[(mode >> 4) & 7];
}

/// One call reads or writes at most what fits its counter.
DWORD Portion(std::int64_t count) {
  return static_cast<DWORD>(std::min<std::int64_t>(count, std::numeric_limits<int>::max()));
}

}  // namespace

std::intptr_t OpenFile(const std::string& name, int mode) {
  const DWORD creation = mode == fmCreate ? CREATE_ALWAYS : OPEN_EXISTING;
  return reinterpret_cast<std::intptr_t>(CreateFileW(Wide(name).c_str(), Access(mode),
                                                     Sharing(mode), nullptr, creation,
                                                     FILE_ATTRIBUTE_NORMAL, nullptr));
}

void CloseFile(std::intptr_t file) { CloseHandle(Handle(file)); }

std::int64_t ReadFile(std::intptr_t file, void* buffer, std::int64_t count) {
  DWORD done = 0;
  return ::ReadFile(Handle(file), buffer, Portion(count), &done, nullptr) ? std::int64_t{done} : -1;
}

std::int64_t WriteFile(std::intptr_t file, const void* buffer, std::int64_t count) {
  DWORD done = 0;
  return ::WriteFile(Handle(file), buffer, Portion(count), &done, nullptr) ? std::int64_t{done}
                                                                           : -1;
}

std::int64_t SeekFile(std::intptr_t file, std::int64_t offset, int origin) {
  LARGE_INTEGER distance{};
  distance.QuadPart = offset;
  LARGE_INTEGER position{};
  const auto method = static_cast<DWORD>(origin);
  return SetFilePointerEx(Handle(file), distance, &position, method) ? position.QuadPart : -1;
}

std::int64_t SizeOfFile(std::intptr_t file) {
  LARGE_INTEGER size{};
  return GetFileSizeEx(Handle(file), &size) ? size.QuadPart : -1;
}

bool SetSizeOfFile(std::intptr_t file, std::int64_t size) {
  const std::int64_t position = SeekFile(file, 0, 1);
  const bool done = SeekFile(file, size, 0) >= 0 && SetEndOfFile(Handle(file));
  SeekFile(file, position, 0);
  return done;
}

std::string LastErrorText() {
  const DWORD code = GetLastError();
  wchar_t text[512];
  const DWORD size = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                    nullptr, code, 0, text, std::size(text), nullptr);
  if (size == 0) return Concat("System error ", std::to_string(code));
  return std::string(Trim(Narrow(std::wstring(text, size))));
}

std::string ExeName() {
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (size < name.size()) return Narrow(name.substr(0, size));
    name.resize(name.size() * 2);
  }
}

TWallClock WallClock() {
  SYSTEMTIME time;
  GetLocalTime(&time);
  return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond,
          time.wMilliseconds};
}

}  // namespace vcl::os
