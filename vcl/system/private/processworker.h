// The thread that listens to a program and writes to it.
#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include "vcl/rtl/thread.h"
#include "vcl/system/private/startedprocess.h"
#include "vcl/system/process.h"

namespace vcl {

/// Reads what the program writes, gives it what is written to it, and waits for its end. It asks
/// the pipes again and again, so that neither a program that it has started and that holds them nor
/// one that reads nothing keeps it from hearing the end.
class TProcess::TWorker : public TThread {
 public:
  /// The limit is in milliseconds; 0 for none.
  TWorker(TProcess& process, TStartedProcess started, int timeLimit)
      : FProcess(process), FStarted(std::move(started)), FTimeLimit(timeLimit) {}
  ~TWorker() override;

  unsigned ProcessId() const { return FStarted.Id; }
  /// Ends the program with those that it has started.
  void End(int exitCode) const;
  bool TakesInput();
  void WriteInput(std::string_view bytes);
  void EndInput();

 protected:
  void Execute() override;

 private:
  bool Listen(TKernelHandle& pipe, std::string& all, const TProcessOutputEvent& event);
  bool ListenToAll();
  bool GiveInput();
  bool BeginWrite();
  bool WriteIsDone();
  bool Late(ULONGLONG begin);
  void TellEnd();

  TProcess& FProcess;
  TStartedProcess FStarted;
  const int FTimeLimit;
  const bool FHasInput = FStarted.Input != nullptr;
  std::mutex FInputGuard;
  std::string FInput;       // What waits.
  bool FInputEnds = false;  // Nothing comes behind it.
  std::string FWriting;     // What the pipe is taking.
  OVERLAPPED FWrite{};
  bool FPending = false;
  bool FTimedOut = false;
};

}  // namespace vcl
