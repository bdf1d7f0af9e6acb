// Copies of a guarded program: this test's own executable, started anew, is one.
#pragma once

#include <string>

#include "host/vcl/windowtext.h"
#include "tests/vcl/testinput.h"

/// A running copy with the title and the guard's settings, which ends when its form is shown
/// (unless its title is "Stranger") or with this object.
class TCopy {
 public:
  TCopy(const std::string& title, int instances, const std::string& onExceed) {
    wchar_t self[MAX_PATH];
    ::GetModuleFileNameW(nullptr, self, MAX_PATH);
    std::wstring line =
        L"\"" + std::wstring(self) + L"\" --copy " +
        vcl::ToUtf16("\"" + title + "\" " + std::to_string(instances) + " " + onExceed);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &FProcess);
  }
  ~TCopy() {
    ::TerminateProcess(FProcess.hProcess, 99);
    ::CloseHandle(FProcess.hThread);
    ::CloseHandle(FProcess.hProcess);
  }
  TCopy(const TCopy&) = delete;
  TCopy& operator=(const TCopy&) = delete;

  /// 0 when the guard ended it; else 100, and the number of copies when there were too many. This
  /// program's messages are handled meanwhile, as the copy may wait for its windows.
  DWORD ExitCode() const {
    DWORD code = STILL_ACTIVE;
    testinput::PumpUntil(
        [this] { return ::WaitForSingleObject(FProcess.hProcess, 0) == WAIT_OBJECT_0; }, 30000);
    ::GetExitCodeProcess(FProcess.hProcess, &code);
    return code;
  }

 private:
  PROCESS_INFORMATION FProcess{};
};
