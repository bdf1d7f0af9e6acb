// Sending and fetching.
#include "demos/mailer/dialogs.h"
#include "demos/mailer/mailerform.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace mailer {

using namespace vcl;

// What the user wants.

// A mail that has not gone out comes back to be changed or sent again.
void TMailerForm::ComposeExecute(TObject*) {
  if (!Solve(&SendingProblem)) return;
  TComposeForm form(nullptr);
  while (form.ShowModal() == mrOk) {
    try {
      return Send(form.Draft());
    } catch (const Exception& error) {
      if (Application()->Terminated()) return;
      Application()->HandleException(this, error);
    }
  }
}

void TMailerForm::FetchExecute(TObject*) {
  if (Solve(&FetchingProblem)) Fetch();
}

void TMailerForm::AccountExecute(TObject*) { AskAccount(); }

void TMailerForm::AbortExecute(TObject*) {
  Sender->Abort();
  Receiver->Abort();
}

bool TMailerForm::Solve(std::string (*problem)(const TAccount&)) {
  for (std::string text; !(text = problem(FAccount)).empty();) {
    MessageDlg(text, mtInformation, {mbOK});
    if (!AskAccount()) return false;
  }
  return true;
}

bool TMailerForm::AskAccount() {
  TAccountForm form(nullptr);
  form.Show(FAccount);
  if (form.ShowModal() != mrOk) return false;
  SetAccount(form.Account());
  return true;
}

// Sessions.

void TMailerForm::SetUp(qel::TQELMailHost& mail, const std::string& host, const std::string& port,
                        qel::TQELMailSecurity security) {
  mail.SetHost(host);
  mail.SetPort(port);
  mail.SetSecurity(security);
  // Whoever has chosen no security lets the password go as it is.
  mail.SetAllowClearLogin(security == qel::msNone);
}

void TMailerForm::Send(const TDraft& draft) {
  SetUp(*Sender, FAccount.SmtpHost, FAccount.SmtpPort, FAccount.SmtpSecurity);
  Sender->SetAuthMethod(FAccount.LogInToSend ? qel::amAuto : qel::amNone);
  Sender->SetUsername(FAccount.User);
  Sender->SetPassword(FAccount.Password);
  Sender->Messages()->Clear();
  FillMessage(*Sender->Messages()->Add(), draft, FAccount);
  Tell("The mail is being sent");
  FSent = false;
  RunSession(*Sender);
  if (!FSent) RaiseFailure();
  if (!FRefusals.empty()) {
    MessageDlg(Concat("The mail has been sent, but not to all:\n\n", FRefusals), mtWarning, {mbOK});
  }
  Tell("The mail has been sent");
}

int TMailerForm::Fetch() {
  SetUp(*Receiver, FAccount.PopHost, FAccount.PopPort, FAccount.PopSecurity);
  Receiver->SetAuthMethod(qel::amAuto);
  Receiver->SetUsername(FAccount.User);
  Receiver->SetPassword(FAccount.Password);
  Receiver->SetDeleteOfServer(FAccount.DeleteOfServer);
  // What stays on the server is known again.
  Receiver->SetKeepOnServer(!FAccount.DeleteOfServer);
  Tell("The mailbox is being opened");
  const int known = Mails().Count();
  const bool done = RunSession(*Receiver);
  ListMails();
  if (!done) RaiseFailure();
  const int fresh = Mails().Count() - known;
  Tell(Concat("New mails: ", IntToStr(fresh)));
  return fresh;
}

bool TMailerForm::RunSession(qel::TQELMailHost& mail) {
  FRefusals.clear();
  ShowRunning(true);
  const bool done = mail.Execute();
  // An error leaves the session half open; the next call clears that up and does nothing else.
  if (mail.Busy()) mail.Execute();
  ShowRunning(false);
  return done && FRefusals.empty();
}

// There is one session at a time: to start another would end the one that runs.
void TMailerForm::ShowRunning(bool running) {
  for (TAction* action : {ComposeAction, FetchAction, AccountAction}) action->SetEnabled(!running);
  AbortAction->SetEnabled(running);
  if (running) {
    Gauge->SetPercentage(0);
  } else {
    Tell("");
  }
}

void TMailerForm::RaiseFailure() const {
  if (FRefusals.empty()) throw EAbort("The session was ended");
  throw Exception(Concat("The server refuses:\n\n", FRefusals));
}

// What the components tell.

void TMailerForm::MailError(TObject*, int code, const std::string& text) {
  FRefusals.append(FRefusals.empty() ? "" : "\n").append(Concat(text, " (", IntToStr(code), ")"));
}

void TMailerForm::MailCertificate(TObject*, const std::string& fingerprint,
                                  const std::string& problem, bool& accept) {
  accept = FAccount.Certificates.find(fingerprint) != std::string::npos;
  if (accept) return;
  const std::string question =
      Concat("The server's certificate is refused: ", problem, ".\n\nIts fingerprint is\n",
             fingerprint.substr(0, fingerprint.size() / 2), "\n",
             fingerprint.substr(fingerprint.size() / 2),
             "\n\nSomebody else may pretend to be the server. Do you know that the certificate is "
             "its own, and take it from now on?");
  accept = MessageDlg(question, mtWarning, {mbYes, mbNo}, mbNo) == mrYes;
  if (!accept) return;
  FAccount.Certificates.append(FAccount.Certificates.empty() ? "" : ",").append(fingerprint);
  WriteAccount(*Settings, FAccount);
}

void TMailerForm::MailProgress(TObject*, std::uint16_t percent) { Gauge->SetPercentage(percent); }

void TMailerForm::EncodeStart(TObject*, const std::string& fileName, int) {
  Tell(Concat("The mail is being sent: ", fileName));
}

void TMailerForm::MailSent(TObject*) { FSent = true; }

void TMailerForm::MailBegins(TObject*, std::uint16_t index) {
  Gauge->SetPercentage(0);
  Tell(Concat("Mail ", IntToStr(index), " is being fetched"));
}

void TMailerForm::MailFetched(TObject*) { ListMails(); }

}  // namespace mailer
