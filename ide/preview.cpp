// Starting the preview's process, and running a form in it.
#include "ide/preview.h"

#include <cstdio>

#include "ide/standins.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace ide {

using namespace vcl;

namespace {

/// A file of the user's for temporary files, which the preview removes when it has read it.
std::string TemporaryFile() {
  wchar_t folder[MAX_PATH + 1] = L"";
  wchar_t name[MAX_PATH + 1] = L"";
  ::GetTempPathW(MAX_PATH, folder);
  if (::GetTempFileNameW(folder, L"dfm", 0, name) == 0) {
    RaiseLastOSError<EInOutError>("No temporary file can be made");
  }
  return ToUtf8(name);
}

std::string Quoted(const std::string& text) { return Concat("\"", text, "\""); }

void StartProcess(const std::string& commandLine) {
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  std::wstring line = ToUtf16(commandLine);
  if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &process)) {
    RaiseLastOSError<EInOutError>("The preview cannot be started");
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
}

/// A form of a file, without a class of its own: its handlers are not there.
class TPreviewForm : public TForm {
 public:
  using TForm::TForm;
};

}  // namespace

void StartPreview(const std::string& text, const std::string& folder, const TPackages& packages) {
  const std::string file = TemporaryFile();
  ReplaceWholeFile(file, text);
  std::string line =
      Concat(Quoted(Application()->ExeName()), " --preview ", Quoted(file), " --remove");
  if (!folder.empty()) line += Concat(" --frames ", Quoted(folder));
  for (const auto& each : packages.Entries()) {
    if (each->Package) line += Concat(" --package ", Quoted(each->FileName));
  }
  StartProcess(line);
}

int RunPreview(const std::string& fileName, const std::string& folder,
               const std::vector<std::string>& packages) {
  TPackages loaded;
  for (const std::string& each : packages) {
    const TPackageEntry& entry = loaded.Load(each);
    if (!entry.Error.empty()) std::fprintf(stderr, "%s\n", entry.Error.c_str());
  }
  TFormKeeper keeper;
  keeper.Folder = folder;
  keeper.OnProblem = [](const std::string& message) {
    std::fprintf(stderr, "%s\n", message.c_str());
  };
  auto* form = Application()->CreateForm<TPreviewForm>();
  TFileStream file(fileName, fmOpenRead | fmShareDenyNone);
  ReadComponentFile(file, form, fileName, &keeper);
  return Application()->Run();
}

}  // namespace ide
