// TRecovery: a run's list of unsaved copies, and finding those of runs that are gone.
#include "ide/recovery.h"

#include "vcl/rtl/convert.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace ide {

using namespace vcl;

namespace {

constexpr std::string_view Prefix = "Unsaved ";

/// A name that no other run has or had.
std::string NewRun() {
  FILETIME now{};
  ::GetSystemTimeAsFileTime(&now);
  const auto time = std::uint64_t{now.dwHighDateTime} << 32 | now.dwLowDateTime;
  return Concat(Prefix, IntToStr(static_cast<std::int64_t>(time)), " ",
                IntToStr(static_cast<std::int64_t>(::GetCurrentProcessId())));
}

bool IsAlive(const std::string& run) {
  const TOwned<HANDLE, &::CloseHandle> mutex(
      ::OpenMutexW(SYNCHRONIZE, FALSE, ToUtf16(run).c_str()));
  return static_cast<bool>(mutex);
}

}  // namespace

TRecovery::TRecovery(const TSettings& settings)
    : FSettings(settings),
      FRun(NewRun()),
      FAlive(::CreateMutexW(nullptr, FALSE, ToUtf16(FRun).c_str())) {}

TRecovery::~TRecovery() {
  try {
    SetFiles({});
  } catch (const std::exception&) {
    // Settings that can't be written hold nothing of this run either.
  }
}

std::string TRecovery::NewName() {
  return Concat(ExtractFilePath(FSettings.FileName()), FRun, "-", IntToStr(++FCount), ".dfm");
}

void TRecovery::SetFiles(const std::vector<std::string>& files) {
  if (files == FFiles) return;
  FSettings.SetList(FRun, files);
  FFiles = files;
}

std::vector<std::string> TRecovery::TakeLost() const {
  std::vector<std::string> lost;
  for (const std::string& run : FSettings.Sections()) {
    if (!run.starts_with(Prefix) || IsAlive(run)) continue;
    for (std::string& file : FSettings.List(run)) lost.push_back(std::move(file));
    FSettings.SetList(run, {});
  }
  return lost;
}

}  // namespace ide
