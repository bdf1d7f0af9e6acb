// Starting a program: its file, environment, pipes and job.
#include "vcl/system/private/startedprocess.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <map>
#include <vector>

#include "vcl/rtl/filenames.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/system/process.h"

namespace vcl {

// The file.

namespace {

/// The system's folder and those along PATH, without the current one.
std::wstring SearchFolders() {
  std::array<wchar_t, MAX_PATH> system{};
  ::GetSystemDirectoryW(system.data(), static_cast<UINT>(system.size()));
  std::wstring folders = system.data();
  std::wstring path(::GetEnvironmentVariableW(L"PATH", nullptr, 0), L'\0');
  if (path.empty()) return folders;
  path.resize(::GetEnvironmentVariableW(L"PATH", path.data(), static_cast<DWORD>(path.size())));
  return folders + L";" + path;
}

std::wstring Found(const std::wstring& name) {
  const std::wstring folders = SearchFolders();
  std::wstring file(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = ::SearchPathW(folders.c_str(), name.c_str(), L".exe",
                                     static_cast<DWORD>(file.size()), file.data(), nullptr);
    const bool whole = size < file.size();
    file.resize(size);
    if (whole) return file;
  }
}

}  // namespace

std::string FileAlongPath(const std::string& name) { return ToUtf8(Found(ToUtf16(name))); }

std::wstring FindProgram(const std::string& fileName) {
  if (fileName.empty()) throw EProcessError("A program without a name cannot be started");
  const std::string ending = ExtractFileExt(fileName);
  if (SameText(ending, ".bat") || SameText(ending, ".cmd")) {
    throw EProcessError(Concat(fileName, " is a batch file: start its interpreter, cmd.exe"));
  }
  if (fileName.find_first_of("\\/:") != std::string::npos) {
    return ToUtf16(ending.empty() ? fileName + ".exe" : fileName);
  }
  std::wstring file = Found(ToUtf16(fileName));
  if (file.empty()) {
    throw EProcessError(
        Concat("There is no program ", fileName, " in the system's folder or along PATH"));
  }
  return file;
}

// The environment.

namespace {

/// The system's order of names, in which a block stands, and which knows no case.
struct TByName {
  bool operator()(const std::wstring& a, const std::wstring& b) const {
    return ::CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                                  static_cast<int>(b.size()), TRUE) == CSTR_LESS_THAN;
  }
};
using TVariables = std::map<std::wstring, std::wstring, TByName>;

TVariables OwnVariables() {
  TVariables variables;
  wchar_t* const block = ::GetEnvironmentStringsW();
  for (const wchar_t* each = block; each && *each; each += std::wcslen(each) + 1) {
    const std::wstring line = each;
    // The current folders of drives have names that begin with an equals sign.
    const std::size_t equals = line.find(L'=', 1);
    if (equals != std::wstring::npos) variables[line.substr(0, equals)] = line.substr(equals + 1);
  }
  ::FreeEnvironmentStringsW(block);
  return variables;
}

}  // namespace

std::wstring EnvironmentBlock(const TStrings& changes) {
  TVariables variables = OwnVariables();
  for (int i = 0; i < changes.Count(); ++i) {
    const std::string line = changes.Strings(i);
    const std::wstring wide = ToUtf16(line);
    const std::size_t equals = wide.find(L'=');
    if (equals == 0 || equals == std::wstring::npos || line.find('\0') != std::string::npos) {
      throw EProcessError(Concat("\"", line, "\" is no line NAME=value of an environment"));
    }
    const std::wstring name = wide.substr(0, equals);
    if (equals + 1 == wide.size()) {
      variables.erase(name);
    } else {
      variables[name] = wide.substr(equals + 1);
    }
  }
  std::wstring block;
  for (const auto& [name, value] : variables) {
    block += name;
    block += L'=';
    block += value;
    block += L'\0';
  }
  return block + L'\0';
}

// The pipes.

namespace {

/// One end stays here, the other one goes to the program.
struct TPipe {
  TKernelHandle Ours;
  TKernelHandle Theirs;
};

SECURITY_ATTRIBUTES Inherited() { return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE}; }

[[noreturn]] void RefusePipe() { RaiseLastOSError<EProcessError>("A pipe cannot be made"); }

TPipe PipeFromProgram() {
  SECURITY_ATTRIBUTES inherited = Inherited();
  HANDLE ours = nullptr;
  HANDLE theirs = nullptr;
  if (!::CreatePipe(&ours, &theirs, &inherited, 0)) RefusePipe();
  TPipe pipe{TKernelHandle(ours), TKernelHandle(theirs)};
  ::SetHandleInformation(ours, HANDLE_FLAG_INHERIT, 0);
  return pipe;
}

/// Only pipes with names can be written to without waiting.
TPipe PipeToProgram() {
  static std::atomic<unsigned> count{0};
  const std::wstring name = L"\\\\.\\pipe\\vcl-process-" +
                            std::to_wstring(::GetCurrentProcessId()) + L"-" +
                            std::to_wstring(++count);
  constexpr DWORD room = 65536;
  const HANDLE ours = ::CreateNamedPipeW(
      name.c_str(), PIPE_ACCESS_OUTBOUND | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
      PIPE_TYPE_BYTE | PIPE_REJECT_REMOTE_CLIENTS, 1, room, room, 0, nullptr);
  if (ours == INVALID_HANDLE_VALUE) RefusePipe();
  TPipe pipe{TKernelHandle(ours), nullptr};
  SECURITY_ATTRIBUTES inherited = Inherited();
  const HANDLE theirs =
      ::CreateFileW(name.c_str(), GENERIC_READ, 0, &inherited, OPEN_EXISTING, 0, nullptr);
  if (theirs == INVALID_HANDLE_VALUE) RefusePipe();
  pipe.Theirs.reset(theirs);
  return pipe;
}

/// What a program inherits: these handles and no others that this one happens to have.
class TInheritance {
 public:
  explicit TInheritance(std::vector<HANDLE> handles) : FHandles(std::move(handles)) {
    SIZE_T size = 0;
    ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    FMemory.resize(size);
    if (!::InitializeProcThreadAttributeList(List(), 1, 0, &size)) Refuse();
    if (!::UpdateProcThreadAttribute(List(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, FHandles.data(),
                                     FHandles.size() * sizeof(HANDLE), nullptr, nullptr)) {
      Refuse();
    }
  }
  ~TInheritance() { ::DeleteProcThreadAttributeList(List()); }
  TInheritance(const TInheritance&) = delete;
  TInheritance& operator=(const TInheritance&) = delete;
  LPPROC_THREAD_ATTRIBUTE_LIST List() {
    return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(FMemory.data());
  }

 private:
  [[noreturn]] static void Refuse() {
    RaiseLastOSError<EProcessError>("Handles cannot be given to a program");
  }
  std::vector<HANDLE> FHandles;
  std::vector<std::byte> FMemory;
};

// The job.

TKernelHandle MakeJob(const TProcessStart& start) {
  TKernelHandle job(::CreateJobObjectW(nullptr, nullptr));
  if (!job) return job;
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  if (start.EndWithThisOne) {
    limits.BasicLimitInformation.LimitFlags |= JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  }
  if (start.MemoryLimit > 0) {
    limits.BasicLimitInformation.LimitFlags |= JOB_OBJECT_LIMIT_JOB_MEMORY;
    limits.JobMemoryLimit = start.MemoryLimit;
  }
  ::SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

struct TPipes {
  TPipe Input;
  TPipe Output;
  TPipe Errors;
};

TPipes MakePipes(const TProcessStart& start, STARTUPINFOW& startup) {
  TPipes pipes{PipeToProgram(), PipeFromProgram(), {}};
  if (!start.ErrorsToOutput) pipes.Errors = PipeFromProgram();
  startup.dwFlags |= STARTF_USESTDHANDLES;
  startup.hStdInput = pipes.Input.Theirs.get();
  startup.hStdOutput = pipes.Output.Theirs.get();
  startup.hStdError = start.ErrorsToOutput ? pipes.Output.Theirs.get() : pipes.Errors.Theirs.get();
  return pipes;
}

}  // namespace

TStartedProcess StartProcess(const TProcessStart& start) {
  STARTUPINFOEXW startup{};
  startup.StartupInfo.cb = sizeof startup;
  DWORD flags = CREATE_SUSPENDED | CREATE_UNICODE_ENVIRONMENT;
  TPipes pipes;
  std::unique_ptr<TInheritance> inheritance;
  if (start.Capture) {
    pipes = MakePipes(start, startup.StartupInfo);
    std::vector<HANDLE> handles{startup.StartupInfo.hStdInput, startup.StartupInfo.hStdOutput};
    if (pipes.Errors.Theirs) handles.push_back(startup.StartupInfo.hStdError);
    inheritance = std::make_unique<TInheritance>(handles);
    startup.lpAttributeList = inheritance->List();
    flags |= EXTENDED_STARTUPINFO_PRESENT;
  } else {
    startup.StartupInfo.cb = sizeof(STARTUPINFOW);
  }
  if (start.NoWindow) {
    flags |= CREATE_NO_WINDOW;
    startup.StartupInfo.dwFlags |= STARTF_USESHOWWINDOW;
    startup.StartupInfo.wShowWindow = SW_HIDE;
  }
  std::wstring line = start.CommandLine;
  std::wstring environment = start.Environment;
  PROCESS_INFORMATION made{};
  const wchar_t* folder = start.Folder.empty() ? nullptr : start.Folder.c_str();
  if (!::CreateProcessW(start.Program.c_str(), line.data(), nullptr, nullptr, start.Capture, flags,
                        environment.data(), folder, &startup.StartupInfo, &made)) {
    RaiseLastOSError<EProcessError>(ToUtf8(start.Program), " cannot be started");
  }
  TStartedProcess started{TKernelHandle(made.hProcess), MakeJob(start),
                          std::move(pipes.Input.Ours),  std::move(pipes.Output.Ours),
                          std::move(pipes.Errors.Ours), made.dwProcessId};
  const TKernelHandle thread(made.hThread);
  // Before its first instruction, so that no program that it starts is left outside.
  if (started.Job && !::AssignProcessToJobObject(started.Job.get(), made.hProcess)) {
    started.Job.reset();
  }
  ::ResumeThread(thread.get());
  return started;
}

}  // namespace vcl
