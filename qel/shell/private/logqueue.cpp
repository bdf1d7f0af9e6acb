// TLogQueue: whose turn it is to write, and what becomes of lines that can't be written.
#include "qel/shell/private/logqueue.h"

#include <exception>
#include <utility>

namespace qel {
namespace {

constexpr std::size_t Enough = 0x40000;  // Bytes; who brings more waits for his turn.
constexpr std::size_t TooMany = 0x100000;
constexpr int LongTurn = 16;           // Rounds; who comes then takes the turn.
constexpr std::uint64_t Pause = 1000;  // Milliseconds between attempts that fail.

}  // namespace

TLogQueue::~TLogQueue() { Flush(); }

bool TLogQueue::Add(const std::string& line, bool through) {
  TLock lock(FMutex);
  const bool rests = !FError.empty() && !through && ::GetTickCount64() < FRetryAt;
  if (rests && FLines.size() + line.size() > TooMany) return false;
  FLines += line;
  FAdded += line.size();
  if (rests) return false;
  // Who writes now takes it along.
  if (FWriting && !through && FLines.size() < Enough && !FTired) return true;
  return Write(lock, through);
}

bool TLogQueue::Flush() {
  TLock lock(FMutex);
  return Write(lock, true);
}

std::string TLogQueue::LastError() const {
  const TLock lock(FMutex);
  return FError;
}

void TLogQueue::Change(const std::function<void(TLogWriter& writer)>& change) {
  TLock lock(FMutex);
  AwaitTurn(lock);
  if (!FLines.empty() && FWriter.HasFile()) WriteWaiting(lock, false);
  change(FWriter);
  FRetryAt = 0;
  EndTurn();
}

bool TLogQueue::Write(TLock& lock, bool through) {
  const std::uint64_t mine = FAdded;
  AwaitTurn(lock);
  const bool done = through ? FOnDisk >= mine : FLines.empty();
  if (!done && FWriter.HasFile()) WriteWaiting(lock, through);
  EndTurn();
  return FError.empty();
}

void TLogQueue::AwaitTurn(TLock& lock) {
  ++FAwaiting;
  FTurnOver.wait(lock, [this] { return !FWriting; });
  --FAwaiting;
  FWriting = true;
  FTired = false;
}

void TLogQueue::EndTurn() {
  FWriting = false;
  FTurnOver.notify_all();
}

/// Ends when nothing is left, or another thread waits for its turn.
void TLogQueue::WriteWaiting(TLock& lock, bool through) {
  int rounds = 0;
  do {
    std::string lines = std::exchange(FLines, {});
    const std::uint64_t taken = FAdded;
    std::string why;
    lock.unlock();
    try {
      FWriter.Write(lines);
      if (through) FWriter.Flush();
    } catch (const std::exception& error) {
      why = error.what();
    }
    lock.lock();
    if (!why.empty()) return Keep(lines, why);
    FError.clear();
    if (through) FOnDisk = taken;
    FTired = ++rounds >= LongTurn;
  } while (!FLines.empty() && FAwaiting == 0);
}

void TLogQueue::Keep(const std::string& lines, const std::string& why) {
  FLines.insert(0, lines);
  if (FLines.size() > TooMany) FLines.erase(FLines.rfind('\n', TooMany) + 1);
  FRetryAt = ::GetTickCount64() + Pause;
  if (std::exchange(FError, why).empty()) FFailed(why);
}

}  // namespace qel
