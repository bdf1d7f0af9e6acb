// TQELIllegalAbort: its table, and the notes.
#include "qel/services/Qeltillegalabort.h"

#include <cstdint>

#include "qel/core/private/keptvalues.h"
#include "vcl/controls/messagewindow.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

constexpr const char* StoreSection = "Runs";

std::int64_t CountOf(const FILETIME& time) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(time.dwHighDateTime) << 32 |
                                   time.dwLowDateTime);
}

/// When a process was made; 0 for one that the system does not tell of.
std::int64_t MadeAt(HANDLE process) {
  FILETIME made{}, ended{}, kernel{}, user{};
  return ::GetProcessTimes(process, &made, &ended, &kernel, &user) ? CountOf(made) : 0;
}

vcl::TDateTime LocalTime(std::int64_t count) {
  const FILETIME time{static_cast<DWORD>(count), static_cast<DWORD>(count >> 32)};
  SYSTEMTIME world{}, local{};
  if (!::FileTimeToSystemTime(&time, &world) ||
      !::SystemTimeToTzSpecificLocalTime(nullptr, &world, &local))
    return 0;
  return vcl::EncodeDate(local.wYear, local.wMonth, local.wDay) +
         vcl::EncodeTime(local.wHour, local.wMinute, local.wSecond, local.wMilliseconds);
}

}  // namespace

/// What a program that runs has noted.
struct TQELIllegalAbort::TNote {
  int Process = 0;
  std::int64_t Made = 0;

  /// A number is given to another process when one has ended. One that this program may not look at
  /// is taken for the one that was noted.
  bool Runs() const {
    const HANDLE process = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION | SYNCHRONIZE, FALSE,
                                         static_cast<DWORD>(Process));
    if (!process) return ::GetLastError() == ERROR_ACCESS_DENIED;
    const vcl::TAtEnd close([process] { ::CloseHandle(process); });
    return MadeAt(process) == Made && ::WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
  }
};

const vcl::TClass& TQELIllegalAbort::Class() {
  using T = TQELIllegalAbort;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELComponent>("qel::TQELIllegalAbort", "qel/services/Qeltillegalabort.h",
                                 {
                                     ReadOnly<&T::AbortStore>("AbortStore"),
                                     Event<&T::OnIllegalAbort>("OnIllegalAbort"),
                                 });
  return info;
}

TQELIllegalAbort::TQELIllegalAbort(vcl::TComponent* owner)
    : TQELComponent(owner), FAbortStore(std::make_unique<TQELDataStore>()) {
  FAbortStore->Registry()->SetSection(StoreSection);
  FAbortStore->Inifile()->SetSection(StoreSection);
  FAbortStore->SetInitialEnabled(false);
}

TQELIllegalAbort::~TQELIllegalAbort() {
  AnnounceEnd();
  Withdraw();
  vcl::DeallocateHWnd(FWindow);
}

/// The notes of programs that run no more, which are taken out of the store.
std::vector<TQELIllegalAbort::TNote> TQELIllegalAbort::TakeAborted(const std::string& prefix) {
  std::vector<TNote> aborted;
  vcl::TStringList lines;
  {
    const TQELDataStore::TStrictReading strict(*FAbortStore, this);
    FAbortStore->ReadStrs(lines);
  }
  for (int i = 0; i < lines.Count(); ++i) {
    const std::string name = lines.Names(i);
    TNote note;
    if (name.size() <= prefix.size() || !vcl::SameText(name.substr(0, prefix.size()), prefix) ||
        !vcl::TryStrToInt(name.substr(prefix.size()), note.Process) ||
        !vcl::TryStrToInt64(lines.Values(name), note.Made) || note.Runs())
      continue;
    FAbortStore->DeleteKey(name);
    aborted.push_back(note);
  }
  return aborted;
}

void TQELIllegalAbort::Loaded() {
  TQELComponent::Loaded();
  if (Designing() || !FAbortStore->Enabled() || !FNote.empty()) return;
  const vcl::TWatch watch(this);
  std::vector<TNote> aborted;
  try {
    const std::string prefix = TKeptValues(*FAbortStore, *this).NameOf("Run");
    aborted = TakeAborted(prefix);
    if (watch.Gone()) return;
    FNote = prefix + vcl::IntToStr(::GetCurrentProcessId());
    FAbortStore->WriteStr(FNote, vcl::IntToStr(MadeAt(::GetCurrentProcess())));
    FWindow = vcl::AllocateHWnd({this, &TQELIllegalAbort::Heard});
  } catch (const vcl::EIniFileException&) {
    FAbortStore->OnError(FAbortStore.get());
  } catch (const vcl::ERegistryException&) {
    FAbortStore->OnError(FAbortStore.get());
  }
  for (const TNote& note : aborted) {
    if (watch.Gone()) return;
    OnIllegalAbort(this, LocalTime(note.Made), note.Process);
  }
}

/// The system ends the program behind this message, wherever it is.
void TQELIllegalAbort::Heard(vcl::TMessage& message) {
  if (message.Msg == WM_ENDSESSION && message.WParam != 0) Withdraw();
  message.Result = ::DefWindowProcW(FWindow, message.Msg, message.WParam, message.LParam);
}

void TQELIllegalAbort::Withdraw() {
  const std::string note = std::exchange(FNote, {});
  if (note.empty()) return;
  try {
    FAbortStore->DeleteKey(note);
  } catch (...) {
    vcl::BaseApplication().HandleCurrentException(nullptr);
  }
}

}  // namespace qel
