// TQELExitWindows: its table, the question, and what the system is asked for.
#include "qel/services/Qeltexitwindows.h"

#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <powrprof.h>

namespace qel {
namespace {

[[noreturn]] void Refused(const char* what) {
  throw EQELSystemError(what, static_cast<int>(::GetLastError()));
}

/// The right to end the computer's work, which a program has to ask for; given back at the end.
class TPrivilege {
 public:
  TPrivilege() {
    constexpr DWORD access = TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY;
    if (!::OpenProcessToken(::GetCurrentProcess(), access, &FToken)) Refused(What);
    TOKEN_PRIVILEGES wanted{};
    wanted.PrivilegeCount = 1;
    wanted.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    DWORD size = 0;
    const bool asked =
        ::LookupPrivilegeValueW(nullptr, L"SeShutdownPrivilege", &wanted.Privileges[0].Luid) &&
        ::AdjustTokenPrivileges(FToken, FALSE, &wanted, sizeof FFormer, &FFormer, &size);
    const DWORD error = ::GetLastError();  // Which tells, too, that not all was given.
    if (asked && error == ERROR_SUCCESS) return;
    ::CloseHandle(FToken);
    throw EQELSystemError(What, static_cast<int>(error));
  }
  ~TPrivilege() {
    ::AdjustTokenPrivileges(FToken, FALSE, &FFormer, 0, nullptr, nullptr);
    ::CloseHandle(FToken);
  }
  TPrivilege(const TPrivilege&) = delete;
  TPrivilege& operator=(const TPrivilege&) = delete;

 private:
  static constexpr const char* What = "This program may not end the computer's work";
  HANDLE FToken = nullptr;
  TOKEN_PRIVILEGES FFormer{};
};

}  // namespace

const vcl::TClass& TQELExitWindows::Class() {
  using T = TQELExitWindows;
  using namespace vcl;
  static const TClass info = Describe<T, TQELActionComponent>(
      "qel::TQELExitWindows", "qel/services/Qeltexitwindows.h",
      {
          Property<&T::Action, &T::SetAction>("Action").Default(ewLogOff),
          Property<&T::Confirm, &T::SetConfirm>("Confirm").Default(true),
          Property<&T::ConfirmText, &T::SetConfirmText>("ConfirmText").Default(""),
          Property<&T::Force, &T::SetForce>("Force").Default(false),
      });
  return info;
}

TQELExitWindows::TQELExitWindows(vcl::TComponent* owner) : TQELActionComponent(owner) {}
TQELExitWindows::~TQELExitWindows() { AnnounceEnd(); }

std::string TQELExitWindows::Question() const {
  if (!FConfirmText.empty()) return FConfirmText;
  static constexpr const char* questions[] = {
      "Do you want to log off?",
      "Do you want to restart the computer?",
      "Do you want to shut the computer down?",
      "Do you want to switch the computer off?",
      "Do you want to lock the session?",
      "Do you want to put the computer to sleep?",
  };
  return questions[FAction];
}

std::string TQELExitWindows::DesignText() const {
  return vcl::Concat("At run time it would ask \"", Question(), "\" and have the system do so.");
}

bool TQELExitWindows::DoExecute() {
  if (FConfirm) {
    vcl::TCustomApplication& application = vcl::BaseApplication();
    const vcl::TWatch watch(this);
    const int answer = application.MessageBox(Question(), application.Title(),
                                              MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2);
    if (answer != IDYES || watch.Gone()) return false;
  }
  switch (FAction) {
    case ewLock:
      if (!::LockWorkStation()) Refused("The session cannot be locked");
      return true;
    case ewSleep: {
      const TPrivilege privilege;
      if (!::SetSuspendState(FALSE, FForce, FALSE)) Refused("The computer cannot sleep");
      return true;
    }
    case ewLogOff: return Exit(), true;
    case ewRestart:
    case ewShutdown:
    case ewPowerOff: break;
  }
  const TPrivilege privilege;
  Exit();
  return true;
}

void TQELExitWindows::Exit() const {
  static constexpr UINT kinds[] = {EWX_LOGOFF, EWX_REBOOT, EWX_SHUTDOWN, EWX_POWEROFF};
  const UINT flags = kinds[FAction] | (FForce ? EWX_FORCE : 0U);
  if (!::ExitWindowsEx(flags, SHTDN_REASON_FLAG_PLANNED)) Refused("The session cannot be ended");
}

}  // namespace qel
