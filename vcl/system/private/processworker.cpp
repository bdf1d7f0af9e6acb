// TProcess::TWorker: the pipes, and the program's end.
#include "vcl/system/private/processworker.h"

#include <array>
#include <exception>
#include <utility>

namespace vcl {

TProcess::TWorker::~TWorker() {
  EndThread();
  if (!FPending) return;
  // What is being written must stay until the pipe lets go of it.
  DWORD written = 0;
  ::CancelIo(FStarted.Input.get());
  ::CancelIoEx(FStarted.Input.get(), &FWrite);
  ::GetOverlappedResult(FStarted.Input.get(), &FWrite, &written, TRUE);
}

void TProcess::TWorker::End(int exitCode) const {
  const auto code = static_cast<UINT>(exitCode);
  if (FStarted.Job && ::TerminateJobObject(FStarted.Job.get(), code)) return;
  ::TerminateProcess(FStarted.Process.get(), code);
}

bool TProcess::TWorker::TakesInput() {
  const std::lock_guard lock(FInputGuard);
  return FHasInput && !FInputEnds;
}

void TProcess::TWorker::WriteInput(std::string_view bytes) {
  const std::lock_guard lock(FInputGuard);
  FInput += bytes;
}

void TProcess::TWorker::EndInput() {
  const std::lock_guard lock(FInputGuard);
  FInputEnds = true;
}

/// Has the main thread take what the pipe holds; false when that is nothing.
bool TProcess::TWorker::Listen(TKernelHandle& pipe, std::string& all,
                               const TProcessOutputEvent& event) {
  DWORD waiting = 0;
  if (!pipe) return false;
  if (!::PeekNamedPipe(pipe.get(), nullptr, 0, nullptr, &waiting, nullptr)) pipe.reset();
  if (waiting == 0 || !pipe) return false;
  std::array<char, 65536> buffer;
  DWORD count = 0;
  ::ReadFile(pipe.get(), buffer.data(), static_cast<DWORD>(buffer.size()), &count, nullptr);
  if (count == 0) return false;
  // One after another: a program that writes faster than it is heard waits.
  Synchronize([&] {
    try {
      FProcess.Heard(all, event, std::string(buffer.data(), count));
    } catch (...) {
      // A handler's fault is the application's to tell, and no reason to stop listening.
      Queue([fault = std::current_exception()] { std::rethrow_exception(fault); });
    }
  });
  return true;
}

bool TProcess::TWorker::ListenToAll() {
  const bool output = Listen(FStarted.Output, FProcess.FOutput, FProcess.OnOutput);
  return Listen(FStarted.Errors, FProcess.FErrors, FProcess.OnErrorOutput) || output;
}

bool TProcess::TWorker::WriteIsDone() {
  DWORD written = 0;
  if (::GetOverlappedResult(FStarted.Input.get(), &FWrite, &written, FALSE)) {
    FPending = false;
    FWriting.erase(0, written);
    return true;
  }
  if (::GetLastError() == ERROR_IO_INCOMPLETE) return false;
  FPending = false;  // The program reads no more.
  FStarted.Input.reset();
  return false;
}

bool TProcess::TWorker::BeginWrite() {
  FWrite = {};
  const BOOL done = ::WriteFile(FStarted.Input.get(), FWriting.data(),
                                static_cast<DWORD>(FWriting.size()), nullptr, &FWrite);
  FPending = done || ::GetLastError() == ERROR_IO_PENDING;
  if (!FPending) FStarted.Input.reset();
  return FPending;
}

/// False when there is nothing to do about the input now.
bool TProcess::TWorker::GiveInput() {
  if (!FStarted.Input) return false;
  if (FPending) return WriteIsDone();
  if (!FWriting.empty()) return BeginWrite();
  const std::lock_guard lock(FInputGuard);
  FWriting = std::exchange(FInput, {});
  if (FWriting.empty() && FInputEnds) FStarted.Input.reset();
  return !FWriting.empty();
}

bool TProcess::TWorker::Late(ULONGLONG begin) {
  const auto passed = ::GetTickCount64() - begin;
  return FTimeLimit > 0 && !FTimedOut && passed >= static_cast<ULONGLONG>(FTimeLimit);
}

void TProcess::TWorker::Execute() {
  constexpr DWORD pause = 10;    // Milliseconds.
  constexpr int timedOut = 258;  // The system's own word for it, WAIT_TIMEOUT.
  const ULONGLONG begin = ::GetTickCount64();
  while (!Terminated()) {
    const bool heard = ListenToAll();
    if (GiveInput() || heard) continue;
    if (::WaitForSingleObject(FStarted.Process.get(), pause) == WAIT_OBJECT_0) break;
    if (!Late(begin)) continue;
    FTimedOut = true;
    End(timedOut);
  }
  while (!Terminated() && ListenToAll()) {
  }
  if (!Terminated()) TellEnd();
}

void TProcess::TWorker::TellEnd() {
  DWORD code = 0;
  ::GetExitCodeProcess(FStarted.Process.get(), &code);
  Queue([this, code] { FProcess.Finish(static_cast<int>(code), FTimedOut); });
}

}  // namespace vcl
