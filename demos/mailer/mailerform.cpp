// TMailerForm: the list of mails, the one that is shown, and its attachments.
#include "demos/mailer/mailerform.h"

#include "demos/common/commandline.h"
#include "demos/mailer/htmltext.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace mailer {

using namespace vcl;

const TClass& TMailerForm::Class() {
  using T = TMailerForm;
  static const TClass info = Describe<T, TForm>("mailer::TMailerForm", "demos/mailer/mailerform.h",
                                                {
                                                    Field<&T::ComposeAction>("ComposeAction"),
                                                    Field<&T::FetchAction>("FetchAction"),
                                                    Field<&T::AccountAction>("AccountAction"),
                                                    Field<&T::AbortAction>("AbortAction"),
                                                    Field<&T::Gauge>("Gauge"),
                                                    Field<&T::MailList>("MailList"),
                                                    Field<&T::HeaderLabel>("HeaderLabel"),
                                                    Field<&T::TextMemo>("TextMemo"),
                                                    Field<&T::AttachmentList>("AttachmentList"),
                                                    Field<&T::SaveAction>("SaveAction"),
                                                    Field<&T::StatusBar>("StatusBar"),
                                                    Field<&T::SaveDialog>("SaveDialog"),
                                                    Field<&T::Settings>("Settings"),
                                                    Field<&T::Sender>("Sender"),
                                                    Field<&T::Receiver>("Receiver"),
                                                    Method<&T::FormClose>("FormClose"),
                                                    Method<&T::MailListClick>("MailListClick"),
                                                    Method<&T::SaveUpdate>("SaveUpdate"),
                                                    Method<&T::SaveExecute>("SaveExecute"),
                                                    Method<&T::ComposeExecute>("ComposeExecute"),
                                                    Method<&T::FetchExecute>("FetchExecute"),
                                                    Method<&T::AccountExecute>("AccountExecute"),
                                                    Method<&T::AbortExecute>("AbortExecute"),
                                                    Method<&T::MailError>("MailError"),
                                                    Method<&T::MailCertificate>("MailCertificate"),
                                                    Method<&T::MailProgress>("MailProgress"),
                                                    Method<&T::EncodeStart>("EncodeStart"),
                                                    Method<&T::MailSent>("MailSent"),
                                                    Method<&T::MailBegins>("MailBegins"),
                                                    Method<&T::MailFetched>("MailFetched"),
                                                });
  return info;
}

TMailerForm::TMailerForm(TComponent* owner) : TForm(owner) {
  LoadForm();
  ReadAccount(*Settings, FAccount);
  if (FAccount.SmtpHost.empty() && FAccount.PopHost.empty()) FAccount = NewAccount();
  ShowRunning(false);
}

TMailerForm::~TMailerForm() = default;

void TMailerForm::Loaded() {
  TForm::Loaded();
  qel::TQELIniFile& file = *Settings->DataStore()->Inifile();
  file.SetFilename(demos::CommandLine().SettingsFolder + "\\" + file.Filename());
}

// A session that still runs ends with the window.
void TMailerForm::FormClose(TObject* sender, TCloseAction&) { AbortExecute(sender); }

void TMailerForm::SetAccount(const TAccount& account) {
  FAccount = account;
  WriteAccount(*Settings, FAccount);
}

void TMailerForm::Tell(const std::string& message) { StatusBar->SetSimpleText(message); }

// Mails.

void TMailerForm::ListMails() {
  TStrings& items = *MailList->Items();
  while (items.Count() > Mails().Count()) items.Delete(items.Count() - 1);
  for (int i = items.Count(); i < Mails().Count(); ++i) {
    const qel::TQELMessage& mail = *Mails().GetQELMessage(i);
    const std::string name = mail.FromName().empty() ? mail.FromMail() : mail.FromName();
    items.Add(Concat(Trim(name), ": ", mail.Subject()));
  }
  MailListClick(nullptr);
}

void TMailerForm::MailListClick(TObject*) {
  if (MailList->ItemIndex() >= 0) ShowMail(MailList->ItemIndex());
}

void TMailerForm::ShowMail(int index) {
  const qel::TQELMessage& mail = *Mails().GetQELMessage(index);
  MailList->SetItemIndex(index);
  HeaderLabel->SetCaption(Concat("From:  ", Trim(mail.FromName()), " <", mail.FromMail(),
                                 ">\nTo:  ", mail.SendTo(), mail.Cc().empty() ? "" : ", ",
                                 mail.Cc(), "\nDate:  ", mail.Date(),
                                 "\nSubject:  ", mail.Subject()));
  const std::string text = mail.Message()->Text();
  // What was wrong with it stands before it.
  const std::string notes = mail.Notes().empty() ? "" : Concat("[", mail.Notes(), "]\r\n\r\n");
  TextMemo->SetText(notes + (Trim(text).empty() ? HtmlToText(mail.HtmlText()) : text));
  AttachmentList->Items()->Clear();
  for (int i = 0; i < mail.Attachments()->Count(); ++i) {
    AttachmentList->Items()->Add(
        ExtractFileName(mail.Attachments()->GeTQELAttachment(i)->FileName()));
  }
  if (mail.Attachments()->Count() > 0) AttachmentList->SetItemIndex(0);
  SaveAction->Update();
}

void TMailerForm::SaveUpdate(TObject*) { SaveAction->SetEnabled(AttachmentList->ItemIndex() >= 0); }

void TMailerForm::SaveExecute(TObject*) {
  if (AttachmentList->ItemIndex() < 0) return;  // A double click may hit no attachment.
  const qel::TQELAttachment& attachment = *Mails()
                                               .GetQELMessage(MailList->ItemIndex())
                                               ->Attachments()
                                               ->GeTQELAttachment(AttachmentList->ItemIndex());
  // The sender has chosen the name, and must not choose a folder with it.
  SaveDialog->SetFileName(ExtractFileName(attachment.FileName()));
  if (SaveDialog->Execute()) attachment.SaveToFile(SaveDialog->FileName());
}

}  // namespace mailer
