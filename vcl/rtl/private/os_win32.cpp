// What the library asks of Windows: files, threads, the order of texts, the clock.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <iterator>
#include <limits>

#include "vcl/rtl/private/os.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

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

/// The system's priorities in the order of TThreadPriority.
constexpr int Priorities[] = {THREAD_PRIORITY_IDLE,         THREAD_PRIORITY_LOWEST,
                              THREAD_PRIORITY_BELOW_NORMAL, THREAD_PRIORITY_NORMAL,
                              THREAD_PRIORITY_ABOVE_NORMAL, THREAD_PRIORITY_HIGHEST,
                              THREAD_PRIORITY_TIME_CRITICAL};

/// Opens the thread for a moment.
template <class Use>
void WithThread(std::uintptr_t thread, DWORD rights, Use use) {
  const HANDLE handle = OpenThread(rights, FALSE, static_cast<DWORD>(thread));
  if (!handle) return;
  use(handle);
  CloseHandle(handle);
}

/// One call reads or writes at most what fits its counter.
DWORD Portion(std::int64_t count) {
  return static_cast<DWORD>(std::min<std::int64_t>(count, std::numeric_limits<int>::max()));
}

}  // namespace

std::intptr_t OpenFile(const std::string& name, int mode) {
  const DWORD creation = mode == fmCreate ? CREATE_ALWAYS : OPEN_EXISTING;
  return reinterpret_cast<std::intptr_t>(CreateFileW(ToUtf16(name).c_str(), Access(mode),
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

std::uintptr_t CurrentThreadId() { return GetCurrentThreadId(); }

void SetThreadPriority(std::uintptr_t thread, int priority) {
  WithThread(thread, THREAD_SET_INFORMATION,
             [&](HANDLE handle) { ::SetThreadPriority(handle, Priorities[priority]); });
}

int ThreadPriority(std::uintptr_t thread) {
  int priority = THREAD_PRIORITY_NORMAL;
  WithThread(thread, THREAD_QUERY_INFORMATION, [&](HANDLE handle) {
    const int found = GetThreadPriority(handle);
    if (found != THREAD_PRIORITY_ERROR_RETURN) priority = found;
  });
  const auto above = std::ranges::find_if(Priorities, [&](int each) { return each > priority; });
  return std::max(0, static_cast<int>(above - std::begin(Priorities)) - 1);
}

void AnswerSentMessages() {
  // Looking for a message answers what is sent; the queue stays as it is.
  MSG message;
  PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

int CompareText(std::string_view a, std::string_view b) {
  const std::wstring first = ToUtf16(a);
  const std::wstring second = ToUtf16(b);
  const int order = ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, first.c_str(),
                                     static_cast<int>(first.size()), second.c_str(),
                                     static_cast<int>(second.size()));
  return order - CSTR_EQUAL;
}

std::string ExeName() {
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (size < name.size()) return ToUtf8(name.substr(0, size));
    name.resize(name.size() * 2);
  }
}

TWallClock WallClock() {
  SYSTEMTIME time;
  GetLocalTime(&time);
  return {time.wYear,   time.wMonth,  time.wDay,         time.wHour,
          time.wMinute, time.wSecond, time.wMilliseconds};
}

}  // namespace vcl::os
