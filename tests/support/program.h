// Runs a program that lies beside the test, and says what came of it.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace testing_support {

inline constexpr DWORD Patience = 60000;  // Milliseconds.

/// A file that both this process and the program that it starts may write to.
class TOutputFile {
 public:
  explicit TOutputFile(const std::filesystem::path& path) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    FHandle = ::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
  }
  ~TOutputFile() { ::CloseHandle(FHandle); }
  TOutputFile(const TOutputFile&) = delete;
  TOutputFile& operator=(const TOutputFile&) = delete;
  HANDLE Handle() const { return FHandle; }

 private:
  HANDLE FHandle;
};

/// The running program. It is ended with this object.
class TProgram {
 public:
  /// The name has no folder and no extension. Without files its output goes nowhere.
  TProgram(const std::wstring& name, const std::wstring& arguments, HANDLE output = nullptr,
           HANDLE errors = nullptr) {
    std::array<wchar_t, 1024> self{};
    ::GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size()));
    const auto program = std::filesystem::path(self.data()).parent_path() / (name + L".exe");
    std::wstring line = L"\"" + program.wstring() + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output;
    startup.hStdError = errors;
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                          &startup, &FProcess)) {
      throw vcl::EInOutError(vcl::ToUtf8(name) + " cannot be started");
    }
  }
  ~TProgram() {
    if (ExitCode(0) == STILL_ACTIVE) End();
    ::CloseHandle(FProcess.hThread);
    ::CloseHandle(FProcess.hProcess);
  }
  TProgram(const TProgram&) = delete;
  TProgram& operator=(const TProgram&) = delete;

  /// The exit code, once the program has ended; STILL_ACTIVE when it does not within the time.
  DWORD ExitCode(DWORD milliseconds = Patience) const {
    DWORD code = STILL_ACTIVE;
    ::WaitForSingleObject(FProcess.hProcess, milliseconds);
    ::GetExitCodeProcess(FProcess.hProcess, &code);
    return code;
  }
  void End() const { ::TerminateProcess(FProcess.hProcess, 99); }
  DWORD ProcessId() const { return FProcess.dwProcessId; }

 private:
  PROCESS_INFORMATION FProcess{};
};

/// A folder of the test's own, empty, and gone at the end.
class TFolder {
 public:
  TFolder()
      : Path(std::filesystem::temp_directory_path() /
             ("test " + std::to_string(::GetCurrentProcessId()))) {
    std::filesystem::remove_all(Path);
    std::filesystem::create_directories(Path);
  }
  ~TFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(Path, ignored);
  }
  TFolder(const TFolder&) = delete;
  TFolder& operator=(const TFolder&) = delete;

  const std::filesystem::path Path;
};

}  // namespace testing_support
