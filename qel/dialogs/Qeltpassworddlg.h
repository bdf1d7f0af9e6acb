// TQELPasswordDlg: a dialog that asks for a name and a password, or for a new password.
#pragma once

#include <cstdint>
#include <string>

#include "qel/core/Qelsecret.h"
#include "qel/dialogs/Qelsecretdialog.h"

namespace qel {

/// What the dialog asks for.
enum TQELPasswordKind {
  pkLogin,     ///< A user's name and password.
  pkPassword,  ///< A password.
  pkChange     ///< The old password, and a new one twice.
};

/// Sender, and whether the password is right, which the handler says.
using TQELCheckEvent = vcl::TEvent<vcl::TObject*, bool&>;

/// Asks for a password. OnCheck says whether it is right; a wrong one may be typed anew, after a
/// pause that is a second at first and twice as long after each failure, up to half a minute. To
/// close the dialog and show it again does not shorten the pause.
///
/// The passwords are never published. Where OnCheck is bound they are there while it runs and wiped
/// after it; else the program checks them itself when Execute has returned true, and they are there
/// until ForgetPassword, the next Execute or the component's end.
class QEL_API TQELPasswordDlg : public TQELSecretDialog {
 public:
  explicit TQELPasswordDlg(vcl::TComponent* owner);
  ~TQELPasswordDlg() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Asks; true when the password was right, or when nobody checks it here. False when the user has
  /// cancelled, and after MaxTries wrong ones, as LastError then says.
  bool Execute() override;
  /// What was typed as the password; for pkChange the old one.
  const std::string& Password() const { return FPassword.Text(); }
  /// What was typed as the new password, for pkChange.
  const std::string& NewPassword() const { return FNewPassword.Text(); }
  /// Wipes both.
  void ForgetPassword();

  TQELPasswordKind Kind() const { return FKind; }
  /// What the dialog asks for.
  void SetKind(TQELPasswordKind kind) { FKind = kind; }
  const std::string& Username() const { return FUsername; }
  /// The name that the dialog begins with, and the one that the password was right for; for
  /// pkLogin.
  void SetUsername(const std::string& name) { FUsername = name; }
  int MaxTries() const { return FMaxTries; }
  /// How many wrong passwords close the dialog; 0 for any number. Refuses, silently, less than 0.
  void SetMaxTries(int tries);
  int MinLength() const { return FMinLength; }
  /// How many characters a new password has at least. Refuses, silently, less than 0.
  void SetMinLength(int length);
  const std::string& UsernameLabel() const { return FUsernameLabel; }
  /// What stands above the edit for the name.
  void SetUsernameLabel(const std::string& text) { FUsernameLabel = text; }
  const std::string& PasswordLabel() const { return FPasswordLabel; }
  /// What stands above the edit for the password.
  void SetPasswordLabel(const std::string& text) { FPasswordLabel = text; }
  const std::string& OldPasswordLabel() const { return FOldPasswordLabel; }
  /// What stands above the edit for the old password, which is not asked for when this is empty.
  void SetOldPasswordLabel(const std::string& text) { FOldPasswordLabel = text; }
  const std::string& NewPasswordLabel() const { return FNewPasswordLabel; }
  /// What stands above the edit for the new password.
  void SetNewPasswordLabel(const std::string& text) { FNewPasswordLabel = text; }
  const std::string& RepeatLabel() const { return FRepeatLabel; }
  /// What stands above the edit for the new password's repetition.
  void SetRepeatLabel(const std::string& text) { FRepeatLabel = text; }
  const std::string& WrongText() const { return FWrongText; }
  /// What is said of a wrong password.
  void SetWrongText(const std::string& text) { FWrongText = text; }
  const std::string& PauseText() const { return FPauseText; }
  /// What is said during the pause; "%d" stands for the seconds left.
  void SetPauseText(const std::string& text) { FPauseText = text; }
  const std::string& MismatchText() const { return FMismatchText; }
  /// What is said when the repetition is another one.
  void SetMismatchText(const std::string& text) { FMismatchText = text; }
  const std::string& ShortText() const { return FShortText; }
  /// What is said of a new password that is too short; "%d" stands for MinLength.
  void SetShortText(const std::string& text) { FShortText = text; }

  /// Username and Password have been typed, for pkChange NewPassword, too: the handler says whether
  /// they are right, which they are not at first.
  TQELCheckEvent OnCheck;

 protected:
  /// Why the dialog can't ask; empty when it can.
  virtual std::string Obstacle() const { return {}; }
  /// Whether the passwords are of no use to the program when Execute has returned.
  virtual bool ChecksItself() const { return OnCheck.Assigned(); }
  /// What is true of the password before OnCheck is asked; here that it is right when nobody is.
  virtual bool Verified() { return !OnCheck.Assigned(); }
  /// Keeps the new password, which may be changed; false, and the reason in `error`, when it can't.
  virtual bool KeepNew(std::string& /*error*/) { return true; }

 private:
  class TShown;
  bool Checked();
  void CountFailure();

  TQELPasswordKind FKind = pkLogin;
  std::string FUsername;
  TQELSecret FPassword;
  TQELSecret FNewPassword;
  int FMaxTries = 3;
  int FMinLength = 0;
  std::string FUsernameLabel = "&User name:";
  std::string FPasswordLabel = "&Password:";
  std::string FOldPasswordLabel = "&Old password:";
  std::string FNewPasswordLabel = "&New password:";
  std::string FRepeatLabel = "&Repeat the new password:";
  std::string FWrongText = "The password is wrong.";
  std::string FPauseText = "Wait for %d s.";
  std::string FMismatchText = "The new password and its repetition are not the same.";
  std::string FShortText = "The new password needs at least %d characters.";
  int FFailures = 0;  // Since a password was right.
  std::uint64_t FPauseEnd = 0;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELPasswordKind>{"TQELPasswordKind",
                                                                     "pkLogin pkPassword pkChange"};
