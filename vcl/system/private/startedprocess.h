// Starting a program, with pipes to it.
#pragma once

#include <memory>
#include <string>

#include "vcl/rtl/strings.h"
#include "vcl/rtl/win32.h"

namespace vcl {

struct TCloseHandle {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { ::CloseHandle(handle); }
};
/// The only owner of a handle that CloseHandle closes.
using TKernelHandle = std::unique_ptr<void, TCloseHandle>;

/// What a program is started with.
struct TProcessStart {
  std::wstring Program;  ///< Its file.
  std::wstring CommandLine;
  std::wstring Environment;  ///< As EnvironmentBlock makes it.
  std::wstring Folder;       ///< Empty for the current one.
  bool Capture = false;
  bool ErrorsToOutput = false;
  bool NoWindow = false;
  bool EndWithThisOne = false;
  std::size_t MemoryLimit = 0;  ///< In bytes; 0 for none.
};

/// A program that runs. The pipes are there when it was started with Capture; Input is written to
/// with overlapped calls.
struct TStartedProcess {
  TKernelHandle Process;
  TKernelHandle Job;  ///< Null where the system lets none begin.
  TKernelHandle Input;
  TKernelHandle Output;
  TKernelHandle Errors;  ///< Null when errors stand among the output.
  DWORD Id = 0;
};

/// The file of the program with that name (see TProcess::SetFileName). Raises EProcessError.
std::wstring FindProgram(const std::string& fileName);
/// This program's environment with these changes. Raises EProcessError for a line that is none.
std::wstring EnvironmentBlock(const TStrings& changes);
/// Raises EProcessError.
TStartedProcess StartProcess(const TProcessStart& start);

}  // namespace vcl
