// Reading the records of a long query while others are being worked on.
#pragma once

#include <array>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <vector>

#include "vcl/db/private/odbcstatement.h"

namespace vcl::odbc {

/// Hands out the records of a statement. Once a query has turned out to be a long one, a thread of
/// its own reads a batch of records while those of the one before are handed out; so no more than
/// two batches are in memory.
///
/// While the thread runs, nobody else may use the statement's connection: Pause ends it.
class TReadAhead {
 public:
  explicit TReadAhead(TStatement& statement);
  ~TReadAhead();
  /// The next record; false behind the last one, and then `record` stays. Raises what reading has
  /// raised.
  bool Fetch(TRecord& record);
  /// What has been read already is still handed out. The thread begins again after a while.
  void Pause();
  /// The statement has been executed again.
  void Restart();

 private:
  struct TBatch {
    std::vector<TRecord> Records;
    std::size_t Count = 0;
    bool Last = false;
    std::exception_ptr Error;
  };
  class TReader;
  bool Start();
  bool TakeBatch();
  void Fill(TBatch& batch);
  void ReadBatches();

  TStatement& FStatement;
  /// What is handed out, and from where on.
  TBatch FTaken;
  std::size_t FNext = 0;
  /// How many records have been read without the thread.
  int FAlone = 0;
  std::unique_ptr<TReader> FReader;

  // Between the two threads: the batch belongs to the reader until it is full, then to the other.
  std::mutex FMutex;
  std::condition_variable FChanged;
  TBatch FFilled;
  bool FIsFull = false;
  std::atomic_bool FPausing = false;
};

}  // namespace vcl::odbc
