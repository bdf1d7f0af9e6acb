// TLogQueue: the lines that several threads want written to one file.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>

#include "qel/shell/private/logwriter.h"

namespace qel {

/// Takes lines from any thread, and keeps each thread's in their order. The thread that comes while
/// nobody writes writes its line, and then what others have left meanwhile; so many lines are
/// written at once when many come, and none waits for one that may never come. What can't be
/// written is kept, up to a megabyte, and comes first when another line is written.
class TLogQueue {
 public:
  /// `failed` is called with why a line was not written, once until one is, in any thread.
  explicit TLogQueue(std::function<void(const std::string& why)> failed)
      : FFailed(std::move(failed)) {}
  ~TLogQueue();

  /// The line has its end. `through` comes back when it is on the disk, with all before it. False
  /// when that could not be done, and the line is kept, or dropped for too many.
  bool Add(const std::string& line, bool through);
  /// Comes back when all that was added is on the disk; false when that could not be done.
  bool Flush();
  /// Why the last line could not be written; empty when it was.
  std::string LastError() const;
  /// Changes the writer, between two lines.
  void Change(const std::function<void(TLogWriter& writer)>& change);

 private:
  using TLock = std::unique_lock<std::mutex>;
  bool Write(TLock& lock, bool through);
  void AwaitTurn(TLock& lock);
  void EndTurn();
  void WriteWaiting(TLock& lock, bool through);
  void Keep(const std::string& lines, const std::string& why);

  std::function<void(const std::string& why)> FFailed;
  mutable std::mutex FMutex;
  std::condition_variable FTurnOver;
  TLogWriter FWriter;  // That of the thread whose turn it is.
  std::string FLines;  // Not yet written.
  std::string FError;
  std::uint64_t FAdded = 0;    // Bytes, since the beginning.
  std::uint64_t FOnDisk = 0;   // How many of them are there for sure.
  std::uint64_t FRetryAt = 0;  // When it is tried again, as GetTickCount64 counts.
  int FAwaiting = 0;           // Threads.
  bool FWriting = false;       // It is a thread's turn.
  bool FTired = false;         // Whose turn has been long.
};

}  // namespace qel
