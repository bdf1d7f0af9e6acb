// Reading a long query ahead on a thread: batches of records, and pausing while others use the
// connection.
#include "vcl/db/private/odbcahead.h"

#include <utility>

#include "vcl/rtl/thread.h"

namespace vcl::odbc {
namespace {

constexpr std::size_t BatchSize = 256;
/// Fewer are read before a thread would have begun.
constexpr int LongQuery = 500;

}  // namespace

class TReadAhead::TReader : public TThread {
 public:
  explicit TReader(TReadAhead& owner) : FOwner(owner) {}
  ~TReader() override { EndThread(); }

 protected:
  void Execute() override { FOwner.ReadBatches(); }

 private:
  TReadAhead& FOwner;
};

TReadAhead::TReadAhead(TStatement& statement) : FStatement(statement) {}

TReadAhead::~TReadAhead() { Pause(); }

bool TReadAhead::Fetch(TRecord& record) {
  while (FNext == FTaken.Count) {
    if (const auto error = std::exchange(FTaken.Error, nullptr)) std::rethrow_exception(error);
    if (FTaken.Last) return false;
    if (TakeBatch()) continue;
    if (FAlone < LongQuery || !Start()) return ++FAlone, FStatement.Fetch(record);
  }
  // The former record's memory goes back to be read into.
  std::swap(record, FTaken.Records[FNext++]);
  return true;
}

/// Waits for the batch that is being read; false when none is.
bool TReadAhead::TakeBatch() {
  std::unique_lock lock(FMutex);
  if (!FReader && !FIsFull) return false;
  FChanged.wait(lock, [this] { return FIsFull; });
  std::swap(FTaken, FFilled);
  FNext = 0;
  FIsFull = false;
  FChanged.notify_all();
  return true;
}

/// False where no thread is to be had: reading goes on without one for a while.
bool TReadAhead::Start() {
  auto reader = std::make_unique<TReader>(*this);
  try {
    reader->Start();
  } catch (const EThread&) {
    FAlone = 0;
    return false;
  }
  FReader = std::move(reader);
  return true;
}

void TReadAhead::Pause() {
  if (!FReader) return;
  {
    const std::lock_guard lock(FMutex);
    FPausing = true;
  }
  FChanged.notify_all();
  FReader.reset();
  FPausing = false;
  FAlone = 0;
}

void TReadAhead::Restart() {
  Pause();
  FTaken = FFilled = {};
  FNext = 0;
  FAlone = 0;
  FIsFull = false;
}

void TReadAhead::Fill(TBatch& batch) {
  batch.Count = 0;
  try {
    batch.Records.resize(BatchSize);
    // When it is to pause, it must not wait for a slow database to fill the batch.
    while (batch.Count < BatchSize && !FPausing && !batch.Last) {
      batch.Last = !FStatement.Fetch(batch.Records[batch.Count]);
      if (!batch.Last) ++batch.Count;
    }
  } catch (...) {
    batch.Error = std::current_exception();
    batch.Last = true;
  }
}

/// What the thread does.
void TReadAhead::ReadBatches() {
  bool last = false;
  while (!last) {
    {
      std::unique_lock lock(FMutex);
      FChanged.wait(lock, [this] { return !FIsFull || FPausing; });
      if (FIsFull || FPausing) return;
    }
    Fill(FFilled);
    last = FFilled.Last;
    const std::lock_guard lock(FMutex);
    FIsFull = true;
    FChanged.notify_all();
  }
}

}  // namespace vcl::odbc
