// TQELFileExecute: its table, the two ways of starting, and the wait.
#include "qel/shell/Qeltfileexecute.h"

#include "qel/shell/private/outputlines.h"
#include "qel/shell/private/processend.h"
#include "vcl/rtl/commandline.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/thread.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <shellapi.h>

namespace qel {

const vcl::TClass& TQELFileExecute::Class() {
  using T = TQELFileExecute;
  using namespace vcl;
  static const TClass info = Describe<T, TQELActionComponent>(
      "qel::TQELFileExecute", "qel/shell/Qeltfileexecute.h",
      {
          Property<&T::CaptureOutput, &T::SetCaptureOutput>("CaptureOutput").Default(false),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          Property<&T::Folder, &T::SetFolder>("Folder").Default(""),
          Property<&T::OutputEncoding, &T::SetOutputEncoding>("OutputEncoding").Default(oeAuto),
          Property<&T::Parameters, &T::SetParameters>("Parameters"),
          Property<&T::RawParameters, &T::SetRawParameters>("RawParameters").Default(""),
          Property<&T::ShowMode, &T::SetShowMode>("ShowMode").Default(smNormal),
          Property<&T::Timeout, &T::SetTimeout>("Timeout").Default(0),
          Property<&T::Verb, &T::SetVerb>("Verb").Default("open"),
          Property<&T::Wait, &T::SetWait>("Wait").Default(wmNone),
          Event<&T::OnFinished>("OnFinished"),
          Event<&T::OnOutput>("OnOutput")
              .Type("TProcessOutputEvent", "vcl::TObject* sender, const std::string& text"),
      });
  return info;
}

TQELFileExecute::TQELFileExecute(vcl::TComponent* owner)
    : TQELActionComponent(owner),
      FParameters(std::make_unique<vcl::TStringList>()),
      FOutput(std::make_unique<vcl::TStringList>()),
      FProcess(std::make_unique<vcl::TProcess>(nullptr)) {
  FProcess->OnOutput = [this](vcl::TObject*, const std::string& bytes) { Heard(bytes); };
  FProcess->OnFinished = [this](vcl::TObject*) { Ended(FProcess->ExitCode()); };
}

TQELFileExecute::~TQELFileExecute() { AnnounceEnd(); }

void TQELFileExecute::SetTimeout(int milliseconds) {
  if (milliseconds >= 0) FTimeout = milliseconds;
}

std::string TQELFileExecute::DesignText() const {
  return vcl::Concat("At run time it would ", FCaptureOutput || FVerb.empty() ? "start" : FVerb,
                     " '", FFilename, "'.");
}

bool TQELFileExecute::DoExecute() {
  if (FRunning) throw vcl::EInvalidOperation(vcl::Concat(FFilename, " is running"));
  if (FFilename.empty()) throw vcl::EInvalidOperation("There is no file to execute");
  FOutput->Clear();
  if (FCaptureOutput) {
    StartDirectly();
  } else if (!StartByShell()) {
    return false;
  }
  return FWait == wmNone || WaitForEnd();
}

// Starting.

void TQELFileExecute::StartDirectly() {
  constexpr TOutputSet sets[] = {TOutputSet::Guessed, TOutputSet::Utf8, TOutputSet::Console,
                                 TOutputSet::System, TOutputSet::Utf16};
  FLines = std::make_shared<TOutputLines>(sets[FOutputEncoding]);
  vcl::TProcessOptions options{vcl::poCaptureOutput, vcl::poErrorsToOutput};
  if (FShowMode == smHidden) options += vcl::TProcessOptions{vcl::poNoWindow};
  FProcess->SetOptions(options);
  FProcess->SetFileName(FFilename);
  FProcess->SetFolder(FFolder);
  FProcess->SetArguments(FParameters.get());
  FProcess->SetRawArguments(FRawParameters);
  FProcess->Execute();
  FRunning = true;
}

namespace {

/// "https:" and "shell:" as against "C:".
bool IsAddress(const std::string& name) {
  const std::size_t colon = name.find_first_of(":\\/");
  return colon != std::string::npos && colon > 1 && name[colon] == ':';
}

}  // namespace

/// The system would look for a bare name in the current folder first.
std::string TQELFileExecute::FileToOpen() const {
  if (IsAddress(FFilename)) return FFilename;
  if (FFilename.find_first_of("\\/:") != std::string::npos) return vcl::ExpandFileName(FFilename);
  std::string file = vcl::FileAlongPath(FFilename);
  if (!file.empty()) return file;
  throw EQELSystemError(
      vcl::Concat("There is no file ", FFilename, " in the system's folder or along PATH"),
      ERROR_FILE_NOT_FOUND);
}

/// What stands behind the program's name.
std::string TQELFileExecute::CommandLine() const {
  std::string line;
  for (int i = 0; i < FParameters->Count(); ++i) {
    line += (i == 0 ? "" : " ") + vcl::QuoteArgument(FParameters->Strings(i));
  }
  if (!FRawParameters.empty()) line += (line.empty() ? "" : " ") + FRawParameters;
  if (line.find('\0') == std::string::npos) return line;
  throw vcl::EProcessError(vcl::Concat("A parameter of ", FFilename, " holds a zero character"));
}

/// False when the user, whom the system may ask, does not want it.
bool TQELFileExecute::StartByShell() {
  constexpr int shows[] = {SW_SHOWNORMAL, SW_SHOWMINIMIZED, SW_SHOWMAXIMIZED, SW_HIDE};
  const std::wstring file = vcl::ToUtf16(FileToOpen());
  const std::wstring verb = vcl::ToUtf16(FVerb);
  const std::wstring line = vcl::ToUtf16(CommandLine());
  const std::wstring folder = vcl::ToUtf16(FFolder);
  SHELLEXECUTEINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
  info.lpVerb = verb.empty() ? nullptr : verb.c_str();
  info.lpFile = file.c_str();
  info.lpParameters = line.empty() ? nullptr : line.c_str();
  info.lpDirectory = folder.empty() ? nullptr : folder.c_str();
  info.nShow = shows[FShowMode];
  if (!::ShellExecuteExW(&info)) {
    const DWORD error = ::GetLastError();
    if (error == ERROR_CANCELLED) return false;
    throw EQELSystemError(vcl::Concat("The file '", FFilename, "' cannot be opened"),
                          static_cast<int>(error));
  }
  if (!info.hProcess) return true;
  FRunning = true;
  FEnd = std::make_unique<TProcessEnd>(info.hProcess, [this](int exitCode) { Ended(exitCode); });
  return true;
}

void TQELFileExecute::Terminate(int exitCode) {
  if (!FRunning) return;
  FProcess->Running() ? FProcess->Terminate(exitCode) : FEnd->EndProgram(exitCode);
}

// Hearing.

/// False when the component has been freed meanwhile.
bool TQELFileExecute::Tell(const std::string& line) {
  const vcl::TWatch watch(this);
  FOutput->Add(line);
  OnOutput(this, line);
  return !watch.Gone();
}

/// The lines are kept meanwhile, as the event's handler may free the component.
void TQELFileExecute::Heard(const std::string& bytes) {
  const std::shared_ptr<TOutputLines> lines = FLines;
  lines->Add(bytes);
  std::string line;
  while (lines->Next(line)) {
    if (!Tell(line)) return;
  }
}

void TQELFileExecute::Ended(int exitCode) {
  std::string line;
  if (FLines && FLines->Rest(line) && !Tell(line)) return;
  FExitCode = exitCode;
  FRunning = false;
  OnFinished(this);
}

/// The events are fired meanwhile, and may free the component.
bool TQELFileExecute::WaitForEnd() {
  constexpr int step = 10;  // Milliseconds.
  const vcl::TWatch watch(this);
  const bool pumping = FWait == wmPumping;
  const ULONGLONG begin = ::GetTickCount64();
  while (!watch.Gone() && FRunning) {
    if (FTimeout > 0 && ::GetTickCount64() - begin >= static_cast<ULONGLONG>(FTimeout)) {
      throw EQELSystemError(vcl::Concat(FFilename, " has not ended"), WAIT_TIMEOUT);
    }
    if (pumping) {
      ::MsgWaitForMultipleObjects(0, nullptr, FALSE, step, QS_ALLINPUT);
      vcl::BaseApplication().ProcessMessages();
      if (watch.Gone() || vcl::BaseApplication().Terminated()) break;
    }
    vcl::CheckSynchronize(pumping ? 0 : step);
  }
  return !watch.Gone() && !FRunning;
}

}  // namespace qel
