// The program's form, and real servers, which with-servers starts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "demos/common/commandline.h"
#include "demos/mailer/htmltext.h"
#include "demos/mailer/mailerform.h"
#include "tests/mail/mailtest.h"
#include "tests/support/authority.h"
#include "tests/support/program.h"
#include "tests/support/server.h"
#include "vcl/forms/application.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using vcl::Application;

std::string Setting(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

/// The form keeps its settings in the folder, which is here before it.
struct TSettings : testing_support::TFolder {
  TSettings() {
    const std::string folder = Path.string();
    std::string words[] = {"mailer", "--settings", folder};
    char* arguments[] = {words[0].data(), words[1].data(), words[2].data()};
    demos::ReadCommandLine(3, arguments, "Mailer");
  }
};

struct Mailer : testing::Test {
  Mailer() {
    Account.Name = "Ann Bee";
    Account.Address = "ann@example.test";
    Account.SmtpHost = Account.PopHost = "127.0.0.1";
    Account.SmtpPort = Setting("QEL_SMTP_PORT");
    Account.PopPort = Setting("QEL_POP_PORT");
    Account.Password = "secret";
    Application()->OnException = [this](auto*, const std::exception& error) {
      if (!dynamic_cast<const vcl::EAbort*>(&error)) Errors.push_back(error.what());
    };
  }
  ~Mailer() override { Application()->OnException.Clear(); }

  /// A file in a folder of its own.
  std::string NewFile(const std::string& name, const std::string& bytes) {
    const auto folder = Folder.Path / std::to_string(++Folders);
    std::filesystem::create_directory(folder);
    const std::string file = folder.string() + "\\" + name;
    WriteFile(file, bytes);
    return file;
  }
  void ForUser(const char* user) {
    Account.User = user;
    Draft.To = std::string(" ") + user + "@example.test , ";
    Form.SetAccount(Account);
  }
  int FetchWhenDelivered() {
    for (int i = 0; i < 100; ++i) {
      if (const int count = Form.Fetch(); count > 0) return count;
      ::Sleep(100);
    }
    return 0;
  }
  std::string ReadSettings() const {
    std::ifstream file(Folder.Path / "mailer.ini");
    return {std::istreambuf_iterator<char>(file), {}};
  }

  TSettings Folder;
  mailer::TMailerForm Form{nullptr};
  mailer::TAccount Account;
  mailer::TDraft Draft;
  std::vector<std::string> Errors;
  int Folders = 0;
};

TEST_F(Mailer, FetchesWhatItHasSent) {
  const std::string contents[] = {Noise(3000), ""};
  Draft.Subject = "Files";
  Draft.Text = ".\r\n" + std::string(1000, 'x') + "\r\n";
  Draft.Files = {NewFile("noise é.bin", contents[0]), NewFile("empty", contents[1])};
  ForUser("mia");
  Form.Send(Draft);
  ASSERT_EQ(FetchWhenDelivered(), 1);
  const qel::TQELMessage& mail = *Form.Mails().GetQELMessage(0);
  EXPECT_EQ(mail.Subject(), "Files");
  EXPECT_EQ(mail.SendTo(), "mia@example.test");
  EXPECT_EQ(mail.Message()->Text(), Draft.Text);
  ASSERT_EQ(mail.Attachments()->Count(), 2);
  for (int i = 0; i < 2; ++i) {
    const qel::TQELAttachment& file = *mail.Attachments()->GeTQELAttachment(i);
    EXPECT_EQ(file.FileName(), i == 0 ? "noise é.bin" : "empty");
    file.Data()->SetPosition(0);
    EXPECT_TRUE(file.Data()->ReadRest() == contents[i]) << i;
  }
  EXPECT_EQ(Form.Fetch(), 0) << "what stays on the server is listed once";
  EXPECT_EQ(Form.Mails().Count(), 1);
  EXPECT_THAT(Errors, IsEmpty());
}

TEST_F(Mailer, SendsAndFetchesOverTls) {
  if (Setting("QEL_EXIM_PORT").empty()) GTEST_SKIP() << "There is no mail server that speaks TLS.";
  const TTrustedAuthority authority;
  const std::string contents[] = {Noise(70000), Noise(70001)};
  Account.Name = "Änn Größe";
  Account.SmtpHost = Account.PopHost = "localhost";
  Account.SmtpPort = Setting("QEL_EXIM_PORT");
  Account.PopPort = Setting("QEL_DOVECOT_TLS_PORT");
  Account.SmtpSecurity = qel::msStartTls;
  Account.PopSecurity = qel::msTls;
  Account.LogInToSend = true;
  Draft.Subject = "Grüße";
  Draft.Text = "Größe\r\n";
  Draft.Cc = "Carl <bob@example.test>";
  Draft.Bcc = "bob@example.test";
  Draft.Files = {NewFile("grün.bin", contents[0]), NewFile("GRÜN.bin", contents[1])};
  ForUser("bob");
  Form.Send(Draft);
  ASSERT_EQ(FetchWhenDelivered(), 1);
  const qel::TQELMessage& mail = *Form.Mails().GetQELMessage(0);
  EXPECT_EQ(mail.Subject(), "Grüße");
  EXPECT_EQ(mail.FromName(), "Änn Größe");
  EXPECT_EQ(mail.Cc(), "Carl <bob@example.test>");
  EXPECT_EQ(mail.Message()->Text(), "Größe\r\n");
  ASSERT_EQ(mail.Attachments()->Count(), 2);
  EXPECT_EQ(mail.Attachments()->GeTQELAttachment(0)->FileName(), "grün.bin");
  EXPECT_EQ(mail.Attachments()->GeTQELAttachment(1)->FileName(), "GRÜN (2).bin");
  for (int i = 0; i < 2; ++i) {
    vcl::TMemoryStream& data = *mail.Attachments()->GeTQELAttachment(i)->Data();
    data.SetPosition(0);
    EXPECT_TRUE(data.ReadRest() == contents[i]) << i;
  }
  EXPECT_EQ(Form.Fetch(), 0) << "what it has fetched is known";
  EXPECT_THAT(Errors, IsEmpty());
}

TEST(HtmlText, SaysWhatThePageSays) {
  using mailer::HtmlToText;
  EXPECT_EQ(HtmlToText("<head><title>x</title><style>p{}</style></head><p>Gr&uuml;&szlig;e &amp; "
                       "<b>mehr</b>&#33;<br>\n"
                       "  zwei   &euro;<script>if (a<b) x()</script><ul><li>eins<li>zwei</ul>"
                       "<a href='https://a.test/?a=1&amp;b'>hier</a> <a "
                       "href=\"https://b.test\">https://b.test</a>"
                       "<img alt=Bild src=x> 3 < 4 &unknown; <!-- <p> -->Ende"),
            "Grüße & mehr!\r\nzwei €\r\n\r\n- eins\r\n- zwei\r\n\r\n"
            "hier <https://a.test/?a=1&b> https://b.testBild 3 < 4 &unknown; Ende\r\n");
  EXPECT_EQ(HtmlToText(""), "\r\n");
  EXPECT_EQ(HtmlToText("<p"), "<p\r\n");
}

TEST_F(Mailer, GoesOnAfterWhatGoesWrong) {
  const auto place = std::filesystem::current_path();
  ForUser("ned");
  const mailer::TDraft good = Draft;
  Draft.To = "ned@elsewhere.test";
  EXPECT_THROW(Form.Send(Draft), vcl::Exception) << "refused";
  Draft = good;
  Draft.Files = {Folder.Path.string() + "\\missing"};
  EXPECT_THROW(Form.Send(Draft), vcl::EFOpenError);
  EXPECT_EQ(std::filesystem::current_path(), place);
  const std::string port = std::exchange(Account.SmtpPort, "1");
  ForUser("ned");
  EXPECT_THROW(Form.Send(good), vcl::Exception) << "nobody listens";
  Account.SmtpPort = port;
  ForUser("ned");
  Form.Send(good);
  EXPECT_EQ(FetchWhenDelivered(), 1);
}

TEST_F(Mailer, EndsASessionWithASilentServer) {
  const TTestServer silent([](TPeer& peer) { peer.HearEnd(); });
  Account.PopPort = std::to_string(silent.Port());
  ForUser("ola");
  vcl::TTimer timer(nullptr);
  timer.SetInterval(100);
  timer.OnTimer = [this](auto*) {
    auto& button = dynamic_cast<vcl::TButton&>(*Form.FindComponent("AbortButton"));
    if (button.Enabled()) button.Click();
  };
  EXPECT_THROW(Form.Fetch(), vcl::EAbort);
  EXPECT_THAT(Errors, IsEmpty());
}

TEST_F(Mailer, KeepsThePasswordOnlyWhenAsked) {
  for (const bool keep : {false, true, false}) {
    Account.KeepPassword = keep;
    ForUser("pia");
    EXPECT_EQ(ReadSettings().find("Secret=") != std::string::npos, keep);
    EXPECT_EQ(ReadSettings().find("secret"), std::string::npos) << "never in clear";
    const mailer::TMailerForm next(nullptr);
    EXPECT_EQ(next.Account().Password, keep ? "secret" : "");
    EXPECT_EQ(next.Account().User, "pia");
  }
}

}  // namespace
