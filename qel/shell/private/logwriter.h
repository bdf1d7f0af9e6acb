// TLogWriter: lines at the end of a file that several processes write to.
#pragma once

#include <cstdint>
#include <string>

#include "vcl/rtl/win32.h"

namespace qel {

/// Writes whole lines to the end of a file, and goes on with a new one when it is full. Others, in
/// this process or another or on another computer, may do the same with the file, by whatever name
/// they know it: each holds a lock on the file itself while it writes, behind all bytes that a file
/// may have, so that nobody who reads it is kept out. The system lets go of the lock when a process
/// ends in any way; a mutex would have to be found by a name, and only on this computer.
///
/// A full file "a.log" becomes "a.1.log", the next one "a.2.log".
class TLogWriter {
 public:
  TLogWriter() = default;
  ~TLogWriter() { Close(); }
  TLogWriter(const TLogWriter&) = delete;
  TLogWriter& operator=(const TLogWriter&) = delete;

  /// The file, which is made with its folder when the first line comes.
  void SetFile(const std::string& name);
  bool HasFile() const { return !FName.empty(); }
  /// In bytes; 0 for any size. A line that is longer has a file of its own.
  void SetMaxSize(std::uint64_t bytes) { FMaxSize = bytes; }
  /// How many files there are at most, with the one that is written to; 0 for any number.
  void SetMaxFiles(int count) { FMaxFiles = count; }

  /// Takes from the lines, of which each has its end, those that it writes: all, unless it raises
  /// EInOutError. A line is written wholly or not at all.
  void Write(std::string& lines);
  /// Has the system put what is written on the disk. Raises EInOutError.
  void Flush();

 private:
  class TLock;
  void Open();
  void Close();
  bool IsCurrent() const;
  std::uint64_t Size() const;
  std::size_t Fitting(const std::string& lines, std::uint64_t size) const;
  void EndTornLine(std::uint64_t size);
  void Append(std::uint64_t size, const char* bytes, std::size_t count) const;
  bool MakeRoom() const;
  std::string Former(int number) const;
  int NumberOf(const std::string& name) const;
  [[noreturn]] void Fail(int code) const;

  std::string FName;
  std::uint64_t FMaxSize = 0;
  int FMaxFiles = 0;
  HANDLE FFile = INVALID_HANDLE_VALUE;
  bool FSeen = false;  // Its last line has been looked at.
};

}  // namespace qel
