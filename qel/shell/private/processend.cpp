// TProcessEnd: the thread that waits.
#include "qel/shell/private/processend.h"

#include <utility>

namespace qel {

TProcessEnd::TProcessEnd(HANDLE process, std::function<void(int)> ended)
    : FProcess(process),
      FStop(::CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      FEnded(std::move(ended)) {
  if (FStop) Start();
}

TProcessEnd::~TProcessEnd() {
  ::SetEvent(FStop);
  EndThread();
  ::CloseHandle(FStop);
  ::CloseHandle(FProcess);
}

void TProcessEnd::EndProgram(int exitCode) const {
  ::TerminateProcess(FProcess, static_cast<UINT>(exitCode));
}

/// The call is copied, as it may free this object.
void TProcessEnd::Execute() {
  const HANDLE both[] = {FStop, FProcess};
  if (::WaitForMultipleObjects(2, both, FALSE, INFINITE) != WAIT_OBJECT_0 + 1) return;
  DWORD code = 0;
  ::GetExitCodeProcess(FProcess, &code);
  Queue([ended = FEnded, code] { ended(static_cast<int>(code)); });
}

}  // namespace qel
