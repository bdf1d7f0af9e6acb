// The forms beside the main one: writing a mail, the account.
#pragma once

#include "demos/mailer/account.h"
#include "demos/mailer/draft.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/forms/forms.h"
#include "vcl/stdctrls/stdctrls.h"

namespace mailer {

/// The form of compose.dfm.
class TComposeForm : public vcl::TForm {
 public:
  explicit TComposeForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  void Show(const TDraft& draft);
  TDraft Draft() const;
  using TForm::Show;

 private:
  void AttachClick(vcl::TObject* sender);
  void RemoveClick(vcl::TObject* sender);
  void SendClick(vcl::TObject* sender);
  void FilesClick(vcl::TObject* sender);
  void AddFile(const std::string& fileName);

  vcl::TEdit* ToEdit = nullptr;
  vcl::TEdit* CcEdit = nullptr;
  vcl::TEdit* BccEdit = nullptr;
  vcl::TEdit* SubjectEdit = nullptr;
  vcl::TMemo* TextMemo = nullptr;
  vcl::TListBox* FileList = nullptr;
  vcl::TButton* RemoveButton = nullptr;
  vcl::TOpenDialog* OpenDialog = nullptr;
};

/// The form of account.dfm.
class TAccountForm : public vcl::TForm {
 public:
  explicit TAccountForm(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  void Show(const TAccount& account);
  TAccount Account() const;
  using TForm::Show;

 private:
  struct TRow {
    vcl::TEdit* TAccountForm::*Edit;
    std::string TAccount::*Text;
  };
  static const TRow Rows[];
  void OkClick(vcl::TObject* sender);
  void SmtpSecurityChange(vcl::TObject* sender);
  void PopSecurityChange(vcl::TObject* sender);

  vcl::TEdit* NameEdit = nullptr;
  vcl::TEdit* AddressEdit = nullptr;
  vcl::TEdit* SmtpHostEdit = nullptr;
  vcl::TEdit* SmtpPortEdit = nullptr;
  vcl::TEdit* PopHostEdit = nullptr;
  vcl::TEdit* PopPortEdit = nullptr;
  vcl::TComboBox* SmtpSecurityBox = nullptr;
  vcl::TComboBox* PopSecurityBox = nullptr;
  vcl::TEdit* UserEdit = nullptr;
  vcl::TEdit* PasswordEdit = nullptr;
  vcl::TCheckBox* LogInBox = nullptr;
  vcl::TCheckBox* KeepPasswordBox = nullptr;
  vcl::TCheckBox* DeleteBox = nullptr;
  /// Those that were chosen before.
  qel::TQELMailSecurity FSmtpSecurity = qel::msNone, FPopSecurity = qel::msNone;
  std::string FCertificates;
};

}  // namespace mailer
