// TProcess: what it starts, and what it has heard.
#include "vcl/system/process.h"

#include <chrono>
#include <utility>
#include <vector>

#include "vcl/rtl/commandline.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/system/private/processworker.h"

namespace vcl {

EProcessError::~EProcessError() = default;

const TClass& TProcess::Class() {
  using T = TProcess;
  static const TClass info = Describe<T, TComponent>(
      "vcl::TProcess", "vcl/system/process.h",
      {
          Property<&T::Arguments, &T::SetArguments>("Arguments"),
          Property<&T::Environment, &T::SetEnvironment>("Environment"),
          Property<&T::FileName, &T::SetFileName>("FileName"),
          Property<&T::Folder, &T::SetFolder>("Folder"),
          Property<&T::MemoryLimit, &T::SetMemoryLimit>("MemoryLimit").Default(0),
          Property<&T::Options, &T::SetOptions>("Options").Default(
              TProcessOptions{poCaptureOutput}),
          Property<&T::TimeLimit, &T::SetTimeLimit>("TimeLimit").Default(0),
          Event<&T::OnErrorOutput>("OnErrorOutput"),
          Event<&T::OnFinished>("OnFinished"),
          Event<&T::OnOutput>("OnOutput"),
      });
  return info;
}

TProcess::TProcess(TComponent* owner)
    : TComponent(owner),
      FArguments(std::make_unique<TStringList>()),
      FEnvironment(std::make_unique<TStringList>()) {}

TProcess::~TProcess() {
  AnnounceEnd();
  if (FWorker && FOptions.Has(poEndWithThisOne)) FWorker->End(1);
  FWorker.reset();
}

void TProcess::SetTimeLimit(int milliseconds) {
  if (milliseconds < 0) {
    throw EArgumentOutOfRangeException(
        Concat("A program cannot be ended after ", std::to_string(milliseconds), " milliseconds"));
  }
  FTimeLimit = milliseconds;
}

void TProcess::SetMemoryLimit(int megabytes) {
  if (megabytes < 0) {
    throw EArgumentOutOfRangeException(
        Concat("A program cannot use ", std::to_string(megabytes), " megabytes"));
  }
  FMemoryLimit = megabytes;
}

// Starting.

namespace {

std::wstring LineOf(const std::string& fileName, const TStrings& arguments,
                    const std::string& raw) {
  constexpr std::size_t most = 32766;  // CreateProcess takes no more.
  std::vector<std::string> each;
  for (int i = 0; i < arguments.Count(); ++i) each.push_back(arguments.Strings(i));
  std::string line = CommandLine(fileName, each);
  if (!raw.empty()) line += " " + raw;
  if (line.find('\0') != std::string::npos) {
    throw EProcessError(Concat("An argument of ", fileName, " holds a zero character"));
  }
  std::wstring wide = ToUtf16(line);
  if (wide.size() <= most) return wide;
  throw EProcessError(Concat("The arguments of ", fileName, " are longer than a command line: ",
                             std::to_string(wide.size()), " characters"));
}

}  // namespace

void TProcess::Execute() {
  if (FWorker) throw EInvalidOperation(Concat(FFileName, " is running"));
  constexpr std::size_t megabyte = 1 << 20;
  TProcessStart start;
  start.Program = FindProgram(FFileName);
  start.CommandLine = LineOf(ToUtf8(start.Program), *FArguments, FRawArguments);
  start.Environment = EnvironmentBlock(*FEnvironment);
  start.Folder = ToUtf16(FFolder);
  start.Capture = FOptions.Has(poCaptureOutput);
  start.ErrorsToOutput = FOptions.Has(poErrorsToOutput);
  start.NoWindow = FOptions.Has(poNoWindow);
  start.EndWithThisOne = FOptions.Has(poEndWithThisOne);
  start.MemoryLimit = static_cast<std::size_t>(FMemoryLimit) * megabyte;
  auto worker = std::make_unique<TWorker>(*this, StartProcess(start), FTimeLimit);
  FOutput.clear();
  FErrors.clear();
  FEnded = FTimedOut = false;
  worker->Start();
  FWorker = std::move(worker);
}

unsigned TProcess::ProcessId() const { return FWorker ? FWorker->ProcessId() : 0; }

// Hearing.

void TProcess::Heard(std::string& all, const TProcessOutputEvent& event, const std::string& text) {
  all += text;
  event(this, text);
}

void TProcess::Finish(int exitCode, bool timedOut) {
  FExitCode = exitCode;
  FTimedOut = timedOut;
  FEnded = true;
  FWorker.reset();
  OnFinished(this);
}

int TProcess::ExitCode() const {
  if (!FEnded) throw EInvalidOperation(Concat(FFileName, " has not ended"));
  return FExitCode;
}

bool TProcess::WaitFor(int milliseconds) {
  using std::chrono::steady_clock;
  constexpr int step = 20;
  const TWatch watch(this);
  const auto end = steady_clock::now() + std::chrono::milliseconds(milliseconds);
  while (FWorker) {
    if (milliseconds >= 0 && steady_clock::now() >= end) return false;
    CheckSynchronize(step);
    if (watch.Gone()) return true;
  }
  return true;
}

void TProcess::Terminate(int exitCode) {
  if (FWorker) FWorker->End(exitCode);
}

void TProcess::WriteInput(std::string_view bytes) {
  if (!FWorker || !FWorker->TakesInput()) {
    throw EInvalidOperation(Concat(FFileName, " does not take input now"));
  }
  FWorker->WriteInput(bytes);
}

void TProcess::EndInput() {
  if (FWorker) FWorker->EndInput();
}

}  // namespace vcl
