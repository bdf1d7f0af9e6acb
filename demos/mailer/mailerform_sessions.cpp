// Sending and fetching.
#include "demos/mailer/dialogs.h"
#include "demos/mailer/mailerform.h"
#include "demos/mailer/outbox.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
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

void TMailerForm::Send(const TDraft& draft) {
  const TOutbox outbox(draft.Files);
  Sender->SetHost(FAccount.SmtpHost);
  Sender->SetPort(FAccount.SmtpPort);
  Sender->SetDateTimeFormat(MailDateFormat());
  Sender->Messages()->Clear();
  qel::TQELMessage& message = *Sender->Messages()->Add();
  FillMessage(message, draft, FAccount);
  for (const std::string& file : draft.Files) message.Attachments()->Add(ExtractFileName(file));
  Tell("The mail is being sent");
  FSent = false;
  RunSession(*Sender);
  if (!FSent) RaiseFailure();
  Tell("The mail has been sent");
}

int TMailerForm::Fetch() {
  Receiver->SetHost(FAccount.PopHost);
  Receiver->SetPort(FAccount.PopPort);
  Receiver->SetUsername(FAccount.User);
  Receiver->SetPassword(FAccount.Password);
  Receiver->SetDeleteOfServer(FAccount.DeleteOfServer);
  Tell("The mailbox is being opened");
  const int known = Mails().Count();
  const bool done = RunSession(*Receiver);
  const int fresh = DropKnown(known);
  ListMails();
  if (!done) RaiseFailure();
  Tell(Concat("New mails: ", IntToStr(fresh)));
  return fresh;
}

// Mails that are left on the server come again with every session.
int TMailerForm::DropKnown(int known) {
  for (int i = Mails().Count() - 1; i >= known; --i) {
    for (int j = 0; j < known; ++j) {
      if (Mails().GetQELMessage(i)->Headers()->Text() !=
          Mails().GetQELMessage(j)->Headers()->Text())
        continue;
      Mails().Delete(i);
      break;
    }
  }
  return Mails().Count() - known;
}

bool TMailerForm::RunSession(qel::TQELMailHost& mail) {
  FRefusal.clear();
  ShowRunning(true);
  const bool done = mail.Execute();
  // An error leaves the session half open; the next call clears that up and does nothing else.
  if (mail.Busy()) mail.Execute();
  ShowRunning(false);
  return done && FRefusal.empty();
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
  if (FRefusal.empty()) throw EAbort("The session was ended");
  throw Exception(Concat("The server refuses: ", FRefusal));
}

// What the components tell.

void TMailerForm::MailError(TObject*, int code, const std::string& text) {
  FRefusal = Concat(text, " (", IntToStr(code), ")");
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
