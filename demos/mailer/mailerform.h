// TMailerForm: the main window, the mails that have been fetched.
#pragma once

#include <string>

#include "demos/mailer/account.h"
#include "demos/mailer/draft.h"
#include "qel/controls/Qeltgauge.h"
#include "qel/core/Qeltstoredata.h"
#include "qel/mail/Qeltiemails.h"
#include "vcl/actions/actions.h"
#include "vcl/dialogs/dialogs.h"
#include "vcl/forms/forms.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/extctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace mailer {

/// The form of mailer.dfm. mailerform.cpp shows mails and saves attachments,
/// mailerform_sessions.cpp talks to the servers.
class TMailerForm : public vcl::TForm {
 public:
  explicit TMailerForm(vcl::TComponent* owner);
  ~TMailerForm() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  const TAccount& Account() const { return FAccount; }
  /// The account for what follows, which is remembered.
  void SetAccount(const TAccount& account);
  /// Sends a mail. When it has not gone out: raises an exception with the server's refusal, or
  /// EAbort when the reason has been shown or the user ended the session.
  void Send(const TDraft& draft);
  /// Fetches the mailbox's mails and returns how many of them are new. Raises as Send does; what
  /// has been fetched until then stays.
  int Fetch();
  /// The mails that have been fetched.
  qel::TQELMessages& Mails() const { return *Receiver->Messages(); }
  /// Shows one of them, counted from 0.
  void ShowMail(int index);

 protected:
  void Loaded() override;

 private:
  // What the form file fills.
  vcl::TAction* ComposeAction = nullptr;
  vcl::TAction* FetchAction = nullptr;
  vcl::TAction* AccountAction = nullptr;
  vcl::TAction* AbortAction = nullptr;
  vcl::TAction* SaveAction = nullptr;
  qel::TQELGauge* Gauge = nullptr;
  vcl::TListBox* MailList = nullptr;
  vcl::TLabel* HeaderLabel = nullptr;
  vcl::TMemo* TextMemo = nullptr;
  vcl::TListBox* AttachmentList = nullptr;
  vcl::TStatusBar* StatusBar = nullptr;
  vcl::TSaveDialog* SaveDialog = nullptr;
  qel::TQELStoreData* Settings = nullptr;
  qel::TQELSMTPMail* Sender = nullptr;
  qel::TQELPOPMail* Receiver = nullptr;

  void FormClose(vcl::TObject* sender, vcl::TCloseAction& action);
  void MailListClick(vcl::TObject* sender);
  void SaveExecute(vcl::TObject* sender);
  void SaveUpdate(vcl::TObject* sender);
  void ListMails();
  void Tell(const std::string& message);

  // Sessions.
  void ComposeExecute(vcl::TObject* sender);
  void FetchExecute(vcl::TObject* sender);
  void AccountExecute(vcl::TObject* sender);
  void AbortExecute(vcl::TObject* sender);
  void MailError(vcl::TObject* sender, int code, const std::string& text);
  void MailCertificate(vcl::TObject* sender, const std::string& fingerprint,
                       const std::string& problem, bool& accept);
  void MailProgress(vcl::TObject* sender, std::uint16_t percent);
  void EncodeStart(vcl::TObject* sender, const std::string& fileName, int size);
  void MailSent(vcl::TObject* sender);
  void MailBegins(vcl::TObject* sender, std::uint16_t index);
  void MailFetched(vcl::TObject* sender);
  /// Asks for the account as long as there is a problem with it; false when the user gives up.
  bool Solve(std::string (*problem)(const TAccount&));
  bool AskAccount();
  bool RunSession(qel::TQELMailHost& mail);
  void ShowRunning(bool running);
  [[noreturn]] void RaiseFailure() const;
  void SetUp(qel::TQELMailHost& mail, const std::string& host, const std::string& port,
             qel::TQELMailSecurity security);

  TAccount FAccount;
  std::string FRefusals;  ///< By a server, in the last session, a line each.
  bool FSent = false;     ///< The last session's mail.
};

}  // namespace mailer
