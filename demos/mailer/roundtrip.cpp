// Sending a mail to itself, fetching it, comparing, and saving pictures of it.
#include "demos/mailer/roundtrip.h"

#include <cstdio>
#include <cstdlib>

#include "demos/common/resolution.h"
#include "demos/mailer/dialogs.h"
#include "demos/mailer/mailerform.h"
#include "vcl/forms/formpicture.h"
#include "vcl/graphics/png.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace mailer {

using namespace vcl;

namespace {

constexpr const char* Text =
    "Dear Bob,\r\n"
    "\r\n"
    "the apples have come: crème fraîche and Grüner Tee, too. What is left of the money, and what "
    "it went on, stands in the list that comes with this mail.\r\n"
    ".\r\n"
    "Ann\r\n";

std::string Setting(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

TAccount SampleAccount() {
  TAccount account = NewAccount();
  account.Name = "Ann Bee";
  account.Address = "ann@example.test";
  account.SmtpHost = account.PopHost = "127.0.0.1";
  account.User = "bob";
  account.Password = "secret";
  account.DeleteOfServer = true;
  return account;
}

/// What a list of what was bought looks like, with bytes of all values in it.
void WriteSample(const std::string& fileName) {
  TMemoryStream file;
  for (int i = 0; i < 6000; ++i) {
    const char byte = static_cast<char>(i * 7 + i / 256);
    file.WriteBuffer(&byte, 1);
  }
  file.SaveToFile(fileName);
}

/// The mail takes a moment to be delivered.
void FetchOne(TMailerForm& form) {
  constexpr int attempts = 100;
  constexpr DWORD pause = 100;  // Milliseconds.
  for (int i = 0; i < attempts; ++i) {
    if (form.Fetch() > 0) return;
    ::Sleep(pause);
  }
  throw Exception("The mail that was sent has not come back");
}

void CheckAttachment(const qel::TQELMessage& mail, const std::string& sent) {
  TMemoryStream file;
  file.LoadFromFile(sent);
  if (mail.Attachments()->Count() == 1) {
    TMemoryStream& data = *mail.Attachments()->GeTQELAttachment(0)->Data();
    data.SetPosition(0);
    if (data.ReadRest() == file.ReadRest()) return;
  }
  throw Exception("The attachment has not come back as it was");
}

void MakeRoundTrip(TMailerForm& form, const TDraft& draft) {
  TAccount account = SampleAccount();
  account.SmtpSecurity = account.PopSecurity = qel::msNone;
  account.LogInToSend = false;
  account.SmtpPort = Setting("QEL_SMTP_PORT");
  account.PopPort = Setting("QEL_POP_PORT");
  form.SetAccount(account);
  form.Send(draft);
  FetchOne(form);
  form.ShowMail(0);
  CheckAttachment(*form.Mails().GetQELMessage(0), draft.Files.at(0));
}

}  // namespace

std::vector<std::string> SaveScreenshots(TMailerForm& form, const std::string& folder) {
  std::vector<std::string> names;
  const auto take = [&](TCustomForm& shown, const char* name) {
    shown.SetFormStyle(fsStayOnTop);
    shown.TCustomForm::Show();
    demos::ScaleForPictures(shown);
    TBitmap picture;
    vcl::TakePicture(shown, vcl::TFormPart::Whole, picture);
    names.push_back(Concat(folder, "/", name, ".png"));
    SavePng(picture, names.back());
  };
  const std::string sample = folder + "\\accounts.dat";
  WriteSample(sample);
  const TDraft draft{"bob@example.test", "Apples", Text, {sample}};
  TComposeForm compose(nullptr);
  compose.Show(draft);
  take(compose, "compose");
  compose.Hide();
  TAccountForm account(nullptr);
  account.Show(SampleAccount());
  take(account, "account");
  account.Hide();
  form.Show();
  if (Setting("QEL_SMTP_PORT").empty() || Setting("QEL_POP_PORT").empty()) {
    std::fprintf(stderr, "mailer: there are no mail servers, so no mail is sent and fetched\n");
  } else {
    MakeRoundTrip(form, draft);
  }
  take(form, "mailer");
  return names;
}

}  // namespace mailer
