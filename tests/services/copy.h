// Copies of a guarded program: this test's own executable, started anew with its arguments, is one.
#pragma once

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "host/rtl/exceptions.h"
#include "host/vcl/windowtext.h"
#include "tests/vcl/testinput.h"

/// What a copy runs: a main form with a guard. The arguments are its title, Instances, OnExceed and
/// the file that it notes in what happens.
int RunCopy(char** arguments);

/// A running copy, which is ended with this object. Waiting for it handles this program's messages,
/// as the copy may be waiting for this program's windows.
class TCopy {
 public:
  TCopy(const std::string& title, int instances, const std::string& onExceed)
      : FLog(std::filesystem::temp_directory_path() /
             ("copy " + std::to_string(::GetCurrentProcessId()) + "." + std::to_string(++FStarted) +
              ".txt")) {
    std::filesystem::remove(FLog);
    wchar_t self[MAX_PATH];
    ::GetModuleFileNameW(nullptr, self, MAX_PATH);
    std::wstring line = L"\"" + std::wstring(self) + L"\" --copy \"" + vcl::ToUtf16(title) +
                        L"\" " + std::to_wstring(instances) + L" " + vcl::ToUtf16(onExceed) +
                        L" \"" + FLog.wstring() + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                          &startup, &FProcess)) {
      throw vcl::EInOutError("The copy cannot be started");
    }
  }
  ~TCopy() {
    if (!Ended()) ::TerminateProcess(FProcess.hProcess, 99);
    ::CloseHandle(FProcess.hThread);
    ::CloseHandle(FProcess.hProcess);
    std::error_code ignored;
    std::filesystem::remove(FLog, ignored);
  }
  TCopy(const TCopy&) = delete;
  TCopy& operator=(const TCopy&) = delete;

  bool Ended() const { return ::WaitForSingleObject(FProcess.hProcess, 0) == WAIT_OBJECT_0; }
  /// The exit code, once it has ended; STILL_ACTIVE when it does not.
  DWORD ExitCode() const {
    DWORD code = STILL_ACTIVE;
    testinput::PumpUntil([this] { return Ended(); }, 30000);
    ::GetExitCodeProcess(FProcess.hProcess, &code);
    return code;
  }
  /// Waits until its form is shown or it has ended, then closes the form; true when there was one.
  bool CloseForm() const {
    HWND form = nullptr;
    testinput::PumpUntil([&] { return (form = Form()) != nullptr || Ended(); }, 30000);
    return form && ::PostMessageW(form, WM_CLOSE, 0, 0);
  }
  /// What it noted. Once it has ended.
  std::string Log() const {
    std::ifstream file(FLog);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  HWND Form() const {
    for (HWND window = nullptr;
         (window = ::FindWindowExW(nullptr, window, L"TCopyForm", nullptr)) != nullptr;) {
      DWORD process = 0;
      ::GetWindowThreadProcessId(window, &process);
      if (process == FProcess.dwProcessId && ::IsWindowVisible(window)) return window;
    }
    return nullptr;
  }

  static inline int FStarted = 0;
  std::filesystem::path FLog;
  PROCESS_INFORMATION FProcess{};
};
