// Runs the tests, or the program itself until it ends in the middle of writing a document.
#include <gmock/gmock.h>

#include <cstring>

#include "demos/common/commandline.h"
#include "demos/notes/notesform.h"
#include "tests/support/importpatch.h"
#include "vcl/forms/application.h"

namespace {

/// What writes the documents.
constexpr const char* Library = "qelhost.dll";

[[noreturn]] void EndHere() {
  ::TerminateProcess(::GetCurrentProcess(), 42);
  std::abort();
}

bool IsDocument(HANDLE file) {
  wchar_t name[MAX_PATH] = L"";
  ::GetFinalPathNameByHandleW(file, name, MAX_PATH, 0);
  return std::wcsstr(name, L"document") != nullptr;
}

/// The system's function, whatever the library's import table has in its place.
template <class F>
F* Real(F*, const char* name) {
  return reinterpret_cast<F*>(
      reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("kernel32.dll"), name)));
}

BOOL WINAPI HalfWrite(HANDLE file, LPCVOID data, DWORD size, LPDWORD done, LPOVERLAPPED how) {
  const bool document = IsDocument(file);
  const BOOL result =
      Real(&::WriteFile, "WriteFile")(file, data, document ? size / 2 : size, done, how);
  if (document) EndHere();
  return result;
}
BOOL WINAPI NoFlush(HANDLE file) {
  if (IsDocument(file)) EndHere();
  return Real(&::FlushFileBuffers, "FlushFileBuffers")(file);
}
BOOL WINAPI NoMove(LPCWSTR from, LPCWSTR to, DWORD flags) {
  if (std::wcsstr(to, L"document")) EndHere();
  return Real(&::MoveFileExW, "MoveFileExW")(from, to, flags);
}

/// `arguments`: the function in which the program ends, then those of the program.
int RunUntilIt(int count, char** arguments) {
  using vcl::Application;
  const std::string function = arguments[0];
  if (!demos::ReadCommandLine(count, arguments, "Notes")) return 2;
  std::unique_ptr<TImportPatch> patch;
  if (function == "WriteFile")
    patch = std::make_unique<TImportPatch>(Library, "WriteFile", &HalfWrite);
  if (function == "FlushFileBuffers")
    patch = std::make_unique<TImportPatch>(Library, "FlushFileBuffers", &NoFlush);
  if (function == "MoveFileExW")
    patch = std::make_unique<TImportPatch>(Library, "MoveFileExW", &NoMove);
  Application()->Initialize();
  Application()->SetTitle("Notes");
  Application()->CreateForm<notes::TNotesForm>();
  return Application()->Run();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 2 && std::strcmp(argv[1], "--until") == 0) return RunUntilIt(argc - 2, argv + 2);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
