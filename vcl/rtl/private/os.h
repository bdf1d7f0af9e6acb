// What the library asks of the operating system, each with one implementation per system.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vcl::os {

/// What `OpenFile` returns when the system refuses; LastSystemError says why.
inline constexpr std::intptr_t NoFile = -1;

/// Opens a file with TFileStream's modes.
std::intptr_t OpenFile(const std::string& name, int mode);
void CloseFile(std::intptr_t file);
/// These return -1 when the system refuses.
std::int64_t ReadFile(std::intptr_t file, void* buffer, std::int64_t count);
std::int64_t WriteFile(std::intptr_t file, const void* buffer, std::int64_t count);
/// Moves to an offset from the beginning (0), the position (1) or the end (2).
std::int64_t SeekFile(std::intptr_t file, std::int64_t offset, int origin);
std::int64_t SizeOfFile(std::intptr_t file);
bool SetSizeOfFile(std::intptr_t file, std::int64_t size);
/// Writes all the bytes at the position; false when the system refuses.
bool WriteAll(std::intptr_t file, std::string_view bytes);
/// Reads what is in the file from its beginning, where the position is; false when the system
/// refuses.
bool ReadAll(std::intptr_t file, std::string& bytes);

/// Makes one folder; true when there is one now. When the system refuses, LastSystemError says why.
bool MakeFolder(const std::string& name);

/// The system's number of the calling thread; 0 is none.
std::uintptr_t CurrentThreadId();
/// Gives a running thread a priority, the ordinal of a TThreadPriority. The system may refuse it.
void SetThreadPriority(std::uintptr_t thread, int priority);
/// The running thread's priority: the greatest that is not above what the system has for it.
int ThreadPriority(std::uintptr_t thread);
/// Answers the messages that other threads send to windows of the calling one and wait for.
void AnswerSentMessages();

/// Compares without case, by the user's language: negative, zero or positive.
int CompareText(std::string_view a, std::string_view b);

/// The full name of the running program.
std::string ExeName();

/// The date and the time of day where the user is.
struct TWallClock {
  int Year, Month, Day, Hour, Minute, Second, Millisecond;
};
TWallClock WallClock();

}  // namespace vcl::os
