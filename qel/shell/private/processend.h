// TProcessEnd: hearing that a program has ended.
#pragma once

#include <functional>

#include "vcl/rtl/thread.h"
#include "vcl/rtl/win32.h"

namespace qel {

/// Waits for a program's end in a thread, and tells it in the main thread. Freed before that, it
/// tells nothing and leaves the program running.
class TProcessEnd : public vcl::TThread {
 public:
  /// Takes the handle of the program, which it closes. The call is told the program's exit code.
  TProcessEnd(HANDLE process, std::function<void(int)> ended);
  ~TProcessEnd() override;
  /// Ends the program itself, not what it has started.
  void EndProgram(int exitCode) const;

 protected:
  void Execute() override;

 private:
  HANDLE FProcess;
  HANDLE FStop;
  std::function<void(int)> FEnded;
};

}  // namespace qel
