// TQELExitWindows: ending the user's session, or the computer's day.
#pragma once

#include <string>

#include "qel/core/Qelactioncomponent.h"

namespace qel {

/// What is ended, and how.
enum TQELExitWindowsAction {
  ewLogOff,    ///< The user's session.
  ewRestart,   ///< All sessions; the computer starts again.
  ewShutdown,  ///< All sessions, to where the computer can be switched off.
  ewPowerOff,  ///< The same, and switches it off.
  ewLock,      ///< Nothing: the session waits for the user's password.
  ewSleep      ///< Nothing: the computer sleeps.
};

/// Has the system end the session or the computer's work. It asks the user before, and says why the
/// system has refused; the programs that are asked may, too, of which nobody hears.
class QEL_API TQELExitWindows : public TQELActionComponent {
 public:
  explicit TQELExitWindows(vcl::TComponent* owner);
  ~TQELExitWindows() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELExitWindowsAction Action() const { return FAction; }
  /// What Execute does.
  void SetAction(TQELExitWindowsAction action) { FAction = action; }
  bool Confirm() const { return FConfirm; }
  /// True: the user is asked before.
  void SetConfirm(bool confirm) { FConfirm = confirm; }
  const std::string& ConfirmText() const { return FConfirmText; }
  /// What he is asked; empty for a question of the action's own.
  void SetConfirmText(const std::string& text) { FConfirmText = text; }
  bool Force() const { return FForce; }
  /// True: programs are not asked, and lose what is not saved.
  void SetForce(bool force) { FForce = force; }

 protected:
  bool DoExecute() override;
  std::string DesignText() const override;

 private:
  std::string Question() const;
  void Exit() const;

  TQELExitWindowsAction FAction = ewLogOff;
  bool FConfirm = true;
  std::string FConfirmText;
  bool FForce = false;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELExitWindowsAction>{
    "TQELExitWindowsAction", "ewLogOff ewRestart ewShutdown ewPowerOff ewLock ewSleep"};
