// TQELPasswordDlg: its table, the dialog, and what follows a wrong password.
#include "qel/dialogs/Qeltpassworddlg.h"

#include <algorithm>

#include "qel/dialogs/private/secretform.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TWatch;

namespace {

constexpr int LongestPause = 30;  // Seconds.

/// The characters of a text in UTF-8: the bytes that go on with one begin with the bits 10.
int CharacterCount(const std::string& text) {
  return static_cast<int>(std::ranges::count_if(
      text, [](char each) { return (static_cast<unsigned char>(each) & 0xC0) != 0x80; }));
}

}  // namespace

/// The dialog as it is on the screen.
class TQELPasswordDlg::TShown {
 public:
  explicit TShown(TQELPasswordDlg& dialog) : FDialog(dialog), FForm(dialog) {
    if (dialog.FKind == pkLogin) FName = FForm.AddName(dialog.FUsernameLabel, dialog.FUsername);
    if (dialog.FKind != pkChange) {
      FOld = FForm.AddSecret(dialog.FPasswordLabel);
    } else {
      if (!dialog.FOldPasswordLabel.empty()) FOld = FForm.AddSecret(dialog.FOldPasswordLabel);
      FNew = FForm.AddSecret(dialog.FNewPasswordLabel);
      FRepeat = FForm.AddSecret(dialog.FRepeatLabel);
    }
  }
  bool Run() {
    FForm.WaitUntil(FDialog.FPauseEnd, FDialog.FPauseText);
    vcl::TWinControl* first = First();
    if (FName && FDialog.FUsername.empty()) first = FName;
    return FForm.Run(first, [this] { Attempt(); });
  }

 private:
  TSecretEdit* First() const { return FOld ? FOld : FNew; }

  void Attempt() {
    const TWatch watch(&FDialog);
    const vcl::TOnFailure forget([this] { FDialog.ForgetPassword(); }, &FDialog);
    Read();
    std::string error = Objection();
    if (error.empty() && !FDialog.Checked()) {
      if (watch.Gone() || FForm.Closing()) return;
      return Fail();
    }
    if (watch.Gone() || FForm.Closing()) return;
    if (error.empty() && (!FNew || FDialog.KeepNew(error))) {
      if (!watch.Gone()) FDialog.FFailures = 0;
      return FForm.Accept();
    }
    if (watch.Gone() || FForm.Closing()) return;
    FDialog.ForgetPassword();
    FForm.Refuse(error, First());
  }

  void Read() {
    if (FName) FDialog.FUsername = FName->Text();
    if (FOld) FOld->Read(FDialog.FPassword);
    if (FNew) FNew->Read(FDialog.FNewPassword);
  }

  /// What is wrong with the new password; empty for nothing.
  std::string Objection() const {
    if (!FNew) return {};
    TQELSecret repeated;
    FRepeat->Read(repeated);
    if (repeated.Text() != FDialog.NewPassword()) return FDialog.FMismatchText;
    const bool tooShort = CharacterCount(FDialog.NewPassword()) < FDialog.FMinLength;
    return tooShort ? WithNumber(FDialog.FShortText, FDialog.FMinLength) : std::string();
  }

  void Fail() {
    FDialog.ForgetPassword();
    FDialog.CountFailure();
    if (++FTries == FDialog.FMaxTries) {
      FDialog.SetLastError(
          vcl::Concat("The password was wrong ", std::to_string(FTries), " times"));
      return FForm.Close();
    }
    FForm.Refuse(FDialog.FWrongText, First());
    FForm.WaitUntil(FDialog.FPauseEnd, FDialog.FPauseText);
  }

  TQELPasswordDlg& FDialog;
  TSecretForm FForm;
  vcl::TEdit* FName = nullptr;
  TSecretEdit* FOld = nullptr;
  TSecretEdit* FNew = nullptr;
  TSecretEdit* FRepeat = nullptr;
  int FTries = 0;
};

const vcl::TClass& TQELPasswordDlg::Class() {
  using T = TQELPasswordDlg;
  using namespace vcl;
  static const TClass info = Describe<T, TQELSecretDialog>(
      "qel::TQELPasswordDlg", "qel/dialogs/Qeltpassworddlg.h",
      {
          Property<&T::Kind, &T::SetKind>("Kind").Default(pkLogin),
          Property<&T::MaxTries, &T::SetMaxTries>("MaxTries").Default(3),
          Property<&T::MinLength, &T::SetMinLength>("MinLength").Default(0),
          Property<&T::MismatchText, &T::SetMismatchText>("MismatchText")
              .Default("The new password and its repetition are not the same."),
          Property<&T::NewPasswordLabel, &T::SetNewPasswordLabel>("NewPasswordLabel")
              .Default("&New password:"),
          Property<&T::OldPasswordLabel, &T::SetOldPasswordLabel>("OldPasswordLabel")
              .Default("&Old password:"),
          Property<&T::PasswordLabel, &T::SetPasswordLabel>("PasswordLabel").Default("&Password:"),
          Property<&T::PauseText, &T::SetPauseText>("PauseText").Default("Wait for %d s."),
          Property<&T::RepeatLabel, &T::SetRepeatLabel>("RepeatLabel")
              .Default("&Repeat the new password:"),
          Property<&T::ShortText, &T::SetShortText>("ShortText")
              .Default("The new password needs at least %d characters."),
          Property<&T::Username, &T::SetUsername>("Username").Default(""),
          Property<&T::UsernameLabel, &T::SetUsernameLabel>("UsernameLabel").Default("&User name:"),
          Property<&T::WrongText, &T::SetWrongText>("WrongText").Default("The password is wrong."),
          Event<&T::OnCheck>("OnCheck").Type("TQELCheckEvent", "vcl::TObject* sender, bool& ok"),
      });
  return info;
}

TQELPasswordDlg::TQELPasswordDlg(vcl::TComponent* owner) : TQELSecretDialog(owner) {}
TQELPasswordDlg::~TQELPasswordDlg() { AnnounceEnd(); }

void TQELPasswordDlg::SetMaxTries(int tries) {
  if (tries >= 0) FMaxTries = tries;
}

void TQELPasswordDlg::SetMinLength(int length) {
  if (length >= 0) FMinLength = length;
}

void TQELPasswordDlg::ForgetPassword() {
  FPassword.Wipe();
  FNewPassword.Wipe();
}

/// False, too, when it has been freed meanwhile.
bool TQELPasswordDlg::Checked() {
  const TWatch watch(this);
  bool ok = Verified();
  if (!watch.Gone()) OnCheck(this, ok);
  return !watch.Gone() && ok;
}

void TQELPasswordDlg::CountFailure() {
  const int doublings = std::min(FFailures++, 10);
  const int seconds = std::min(1 << doublings, LongestPause);
  FPauseEnd = ::GetTickCount64() + static_cast<std::uint64_t>(seconds) * 1000;
}

bool TQELPasswordDlg::Execute() {
  ForgetPassword();
  SetLastError(Obstacle());
  if (!LastError().empty()) return false;
  TQELSecretDialog::Execute();
  const TWatch watch(this);
  const std::string nameBefore = FUsername;
  TShown shown(*this);
  const bool agreed = shown.Run();
  if (watch.Gone()) return false;
  if (!agreed) FUsername = nameBefore;
  if (!agreed || ChecksItself()) ForgetPassword();
  return agreed;
}

}  // namespace qel
