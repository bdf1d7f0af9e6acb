// The forms for writing a mail and for the account.
#include "demos/mailer/dialogs.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace mailer {

using namespace vcl;

// Writing a mail.

const TClass& TComposeForm::Class() {
  using T = TComposeForm;
  static const TClass info = Describe<T, TForm>("mailer::TComposeForm", "demos/mailer/dialogs.h",
                                                {
                                                    Field<&T::ToEdit>("ToEdit"),
                                                    Field<&T::CcEdit>("CcEdit"),
                                                    Field<&T::BccEdit>("BccEdit"),
                                                    Field<&T::SubjectEdit>("SubjectEdit"),
                                                    Field<&T::TextMemo>("TextMemo"),
                                                    Field<&T::FileList>("FileList"),
                                                    Field<&T::RemoveButton>("RemoveButton"),
                                                    Field<&T::OpenDialog>("OpenDialog"),
                                                    Method<&T::AttachClick>("AttachClick"),
                                                    Method<&T::RemoveClick>("RemoveClick"),
                                                    Method<&T::SendClick>("SendClick"),
                                                    Method<&T::FilesClick>("FilesClick"),
                                                });
  return info;
}

TComposeForm::TComposeForm(TComponent* owner) : TForm(owner) { LoadForm(); }

void TComposeForm::Show(const TDraft& draft) {
  ToEdit->SetText(draft.To);
  CcEdit->SetText(draft.Cc);
  BccEdit->SetText(draft.Bcc);
  SubjectEdit->SetText(draft.Subject);
  TextMemo->SetText(draft.Text);
  FileList->Items()->Clear();
  for (const std::string& file : draft.Files) AddFile(file);
}

TDraft TComposeForm::Draft() const {
  TDraft draft{ToEdit->Text(), SubjectEdit->Text(), TextMemo->Text(), {},
               CcEdit->Text(), BccEdit->Text()};
  for (int i = 0; i < FileList->Items()->Count(); ++i) {
    draft.Files.push_back(FileList->Items()->Strings(i));
  }
  return draft;
}

void TComposeForm::AttachClick(TObject*) {
  if (!OpenDialog->Execute()) return;
  for (int i = 0; i < OpenDialog->Files()->Count(); ++i) AddFile(OpenDialog->Files()->Strings(i));
}

void TComposeForm::AddFile(const std::string& fileName) {
  if (FileList->Items()->IndexOf(fileName) < 0) FileList->Items()->Add(fileName);
}

void TComposeForm::RemoveClick(TObject* sender) {
  FileList->Items()->Delete(FileList->ItemIndex());
  FilesClick(sender);
}

void TComposeForm::FilesClick(TObject*) { RemoveButton->SetEnabled(FileList->ItemIndex() >= 0); }

void TComposeForm::SendClick(TObject*) {
  if (!Trim(ToEdit->Text()).empty()) return SetModalResult(mrOk);
  MessageDlg("Whom is this mail for?", mtWarning, {mbOK});
  FocusControl(ToEdit);
}

// The account.

const TClass& TAccountForm::Class() {
  using T = TAccountForm;
  static const TClass info =
      Describe<T, TForm>("mailer::TAccountForm", "demos/mailer/dialogs.h",
                         {
                             Field<&T::NameEdit>("NameEdit"),
                             Field<&T::AddressEdit>("AddressEdit"),
                             Field<&T::SmtpHostEdit>("SmtpHostEdit"),
                             Field<&T::SmtpPortEdit>("SmtpPortEdit"),
                             Field<&T::PopHostEdit>("PopHostEdit"),
                             Field<&T::PopPortEdit>("PopPortEdit"),
                             Field<&T::SmtpSecurityBox>("SmtpSecurityBox"),
                             Field<&T::PopSecurityBox>("PopSecurityBox"),
                             Field<&T::UserEdit>("UserEdit"),
                             Field<&T::PasswordEdit>("PasswordEdit"),
                             Field<&T::LogInBox>("LogInBox"),
                             Field<&T::KeepPasswordBox>("KeepPasswordBox"),
                             Field<&T::DeleteBox>("DeleteBox"),
                             Method<&T::OkClick>("OkClick"),
                             Method<&T::SmtpSecurityChange>("SmtpSecurityChange"),
                             Method<&T::PopSecurityChange>("PopSecurityChange"),
                         });
  return info;
}

const TAccountForm::TRow TAccountForm::Rows[] = {
    {&TAccountForm::NameEdit, &TAccount::Name},
    {&TAccountForm::AddressEdit, &TAccount::Address},
    {&TAccountForm::SmtpHostEdit, &TAccount::SmtpHost},
    {&TAccountForm::SmtpPortEdit, &TAccount::SmtpPort},
    {&TAccountForm::PopHostEdit, &TAccount::PopHost},
    {&TAccountForm::PopPortEdit, &TAccount::PopPort},
    {&TAccountForm::UserEdit, &TAccount::User},
    {&TAccountForm::PasswordEdit, &TAccount::Password},
};

TAccountForm::TAccountForm(TComponent* owner) : TForm(owner) { LoadForm(); }

void TAccountForm::Show(const TAccount& account) {
  for (const TRow& row : Rows) (this->*row.Edit)->SetText(account.*row.Text);
  SmtpSecurityBox->SetItemIndex(FSmtpSecurity = account.SmtpSecurity);
  PopSecurityBox->SetItemIndex(FPopSecurity = account.PopSecurity);
  FCertificates = account.Certificates;
  LogInBox->SetChecked(account.LogInToSend);
  KeepPasswordBox->SetChecked(account.KeepPassword);
  DeleteBox->SetChecked(account.DeleteOfServer);
}

TAccount TAccountForm::Account() const {
  TAccount account;
  for (const TRow& row : Rows) account.*row.Text = (this->*row.Edit)->Text();
  account.SmtpSecurity = FSmtpSecurity;
  account.PopSecurity = FPopSecurity;
  account.Certificates = FCertificates;
  account.LogInToSend = LogInBox->Checked();
  account.KeepPassword = KeepPasswordBox->Checked();
  account.DeleteOfServer = DeleteBox->Checked();
  return account;
}

// The port follows the security as long as it is the usual one.
void TAccountForm::SmtpSecurityChange(TObject*) {
  const auto chosen = static_cast<qel::TQELMailSecurity>(SmtpSecurityBox->ItemIndex());
  if (SmtpPortEdit->Text() == UsualSmtpPort(FSmtpSecurity)) {
    SmtpPortEdit->SetText(UsualSmtpPort(chosen));
  }
  FSmtpSecurity = chosen;
}

void TAccountForm::PopSecurityChange(TObject*) {
  const auto chosen = static_cast<qel::TQELMailSecurity>(PopSecurityBox->ItemIndex());
  if (PopPortEdit->Text() == UsualPopPort(FPopSecurity)) PopPortEdit->SetText(UsualPopPort(chosen));
  FPopSecurity = chosen;
}

void TAccountForm::OkClick(TObject*) {
  for (TEdit* edit : {SmtpPortEdit, PopPortEdit}) {
    if (IsPort(edit->Text())) continue;
    MessageDlg(Concat("\"", edit->Text(), "\" is no port: that is a number from 1 to 65535."),
               mtWarning, {mbOK});
    return FocusControl(edit);
  }
  SetModalResult(mrOk);
}

}  // namespace mailer
