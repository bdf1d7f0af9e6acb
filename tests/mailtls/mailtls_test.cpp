// Mail of today, sent and fetched over TLS with logging in, through the servers of with-servers.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "qel/mail/Qeltiemails.h"
#include "tests/mail/mailtest.h"
#include "tests/support/authority.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string Setting(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

class MailOfToday : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (!Setting("QEL_EXIM_PORT").empty()) Authority = std::make_unique<TTrustedAuthority>();
  }
  static void TearDownTestSuite() { Authority = nullptr; }
  void SetUp() override {
    if (!Authority) GTEST_SKIP() << "There is no mail server that speaks TLS.";
    SetUpHost(Sender, qel::msStartTls, "QEL_EXIM_PORT");
    SetUpHost(Receiver, qel::msTls, "QEL_DOVECOT_TLS_PORT");
    Receiver.SetDeleteOfServer(true);
  }
  template <class T>
  void SetUpHost(T& host, qel::TQELMailSecurity security, const char* port) {
    host.SetHost("localhost");
    host.SetPort(Setting(port));
    host.SetSecurity(security);
    host.SetAuthMethod(qel::amAuto);
    host.SetFormat(qel::mfStandard);
    host.SetTimeout(20000);
    host.SetUsername("bob");
    host.SetPassword("secret");
    host.OnError = [this](vcl::TObject*, int code, const std::string& text) {
      Errors.push_back(std::to_string(code) + " " + text);
    };
  }
  qel::TQELMessage& AddMessage(const std::string& subject) {
    qel::TQELMessage* const message = Sender.Messages()->Add();
    message->SetFromMail("ann@example.test");
    message->SetFromName("Änn Größe, \"the one\"");
    message->SetSendTo("Jürgen <bob@example.test>");
    message->SetSubject(subject);
    return *message;
  }
  /// Fetches until so many mails are there: delivery takes a moment.
  void Fetch(int count) {
    Receiver.Messages()->Clear();
    for (int i = 0; i < 200 && Receiver.Messages()->Count() < count; ++i) {
      ASSERT_TRUE(Receiver.Execute())
          << testing::PrintToString(Errors) << testing::PrintToString(Application.Errors);
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    ASSERT_EQ(Receiver.Messages()->Count(), count);
  }

  static inline std::unique_ptr<TTrustedAuthority> Authority;
  TTestApplication Application;
  qel::TQELSMTPMail Sender{nullptr};
  qel::TQELPOPMail Receiver{nullptr};
  std::vector<std::string> Errors;
};

TEST_F(MailOfToday, ComesBackTheSame) {
  const TWorkFolder folder("qel_mailtls");
  const std::string picture = Noise(100000);
  qel::TQELMessage& sent =
      AddMessage("Grüße aus Köln: 漢字 😀 und noch viel mehr, bis die Zeile gefaltet wird");
  sent.Message()->SetText("Größe\r\n.\r\nFrom here\r\n" + std::string(2000, 'x') + "\r\n");
  sent.SetHtmlText(
      "<p>Gr\xC3\xB6\xC3\x9F"
      "e <img src=\"cid:pic1\">");
  sent.SetCc("Carl <bob@example.test>");
  const auto attach = [&](const char* name, const std::string& data, const char* id) {
    qel::TQELAttachment* const file = sent.Attachments()->Add(name);
    file->Data()->WriteText(data);
    file->SetContentId(id);
  };
  attach("grün.png", picture, "pic1");
  attach("leer.txt", "\r\n", "");
  for (const auto& [security, port] :
       {std::pair{qel::msStartTls, "QEL_EXIM_PORT"}, {qel::msTls, "QEL_EXIM_TLS_PORT"}}) {
    Sender.SetSecurity(security);
    Sender.SetPort(Setting(port));
    ASSERT_TRUE(Sender.Execute()) << testing::PrintToString(Errors)
                                  << testing::PrintToString(Application.Errors);
  }
  Fetch(2);
  for (int i = 0; i < 2; ++i) {
    const qel::TQELMessage& got = *Receiver.Messages()->GetQELMessage(i);
    EXPECT_EQ(got.Subject(), sent.Subject());
    EXPECT_EQ(got.FromName(), sent.FromName());
    EXPECT_EQ(got.FromMail(), sent.FromMail());
    EXPECT_EQ(got.SendTo(), "Jürgen <bob@example.test>");
    EXPECT_EQ(got.Cc(), "Carl <bob@example.test>");
    EXPECT_EQ(got.Message()->Text(), sent.Message()->Text());
    EXPECT_EQ(got.HtmlText(), sent.HtmlText());
    EXPECT_EQ(got.Notes(), "");
    ASSERT_EQ(got.Attachments()->Count(), 2);
    const qel::TQELAttachment& first = *got.Attachments()->GeTQELAttachment(0);
    EXPECT_EQ(first.FileName(), "grün.png");
    EXPECT_EQ(first.ContentId(), "pic1");
    first.SaveToFile("first");
    EXPECT_TRUE(ReadFile("first") == picture);
  }
  EXPECT_THAT(Errors, IsEmpty());
}

TEST_F(MailOfToday, LogsInInEachWay) {
  AddMessage("ways");
  for (const auto way : {qel::amPlain, qel::amLogin, qel::amCramMd5}) {
    Sender.SetAuthMethod(way);
    EXPECT_TRUE(Sender.Execute()) << way << testing::PrintToString(Errors);
  }
  Fetch(3);
  Receiver.SetSecurity(qel::msStartTls);
  Receiver.SetPort(Setting("QEL_DOVECOT_PORT"));
  for (const auto way :
       {qel::amPlain, qel::amLogin, qel::amCramMd5, qel::amApop, qel::amUserPass, qel::amNone}) {
    Receiver.SetAuthMethod(way);
    EXPECT_TRUE(Receiver.Execute())
        << way << testing::PrintToString(Errors) << testing::PrintToString(Application.Errors);
    EXPECT_EQ(Receiver.State(), qel::Transaction);
  }
  EXPECT_THAT(Errors, IsEmpty());
}

TEST_F(MailOfToday, TellsAWrongPasswordAndSendsNothing) {
  AddMessage("never");
  Sender.SetPassword("wrong");
  EXPECT_FALSE(Sender.Execute());
  EXPECT_THAT(Errors, ElementsAre(HasSubstr("535")));
  Errors.clear();
  Receiver.SetPassword("wrong");
  EXPECT_FALSE(Receiver.Execute());
  EXPECT_THAT(Errors, ElementsAre(HasSubstr("2001")));
  EXPECT_THAT(Application.Errors, IsEmpty());
}

TEST_F(MailOfToday, RefusesAServerOfAnotherName) {
  AddMessage("never");
  Sender.SetHost("127.0.0.1");
  EXPECT_FALSE(Sender.Execute());
  EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("is refused")));
}

TEST_F(MailOfToday, KnowsWhatItHasFetched) {
  AddMessage("kept");
  ASSERT_TRUE(Sender.Execute());
  Receiver.SetKeepOnServer(true);
  Fetch(1);
  EXPECT_EQ(Receiver.KnownIds()->Count(), 1);
  Receiver.Messages()->Clear();
  EXPECT_TRUE(Receiver.Execute());
  EXPECT_EQ(Receiver.Messages()->Count(), 0);
  Receiver.SetKeepOnServer(false);
  Fetch(1);
}

#ifndef _WIN32
std::string Hex(const std::string& bytes) {
  std::string text;
  for (const char c : bytes) {
    text += "0123456789abcdef"[static_cast<unsigned char>(c) >> 4];
    text += "0123456789abcdef"[static_cast<unsigned char>(c) & 15];
  }
  return text + "|";
}

/// Where the server looks for mails of others.
void Deliver(const std::string& name, const std::string& mail) {
  const fs::path folder = Setting("QEL_TLS_MAILDIR");
  ASSERT_EQ(std::system(("install -d -o mail -g mail '" + folder.string() + "' '" +
                         (folder / "new").string() + "' '" + (folder / "cur").string() + "' '" +
                         (folder / "tmp").string() + "'")
                            .c_str()),
            0);
  WriteFile((folder / "new" / name).string(), mail);
  fs::permissions(folder / "new" / name, fs::perms::all);
}

TEST_F(MailOfToday, AWholeMailboxOfAnotherProgramIsFetched) {
  const TWorkFolder folder("qel_mailbox");
  constexpr int count = 300;
  ASSERT_EQ(std::system(("/usr/bin/python3 " MAIL_TESTS "/pythonmail.py make " +
                         folder.Path().string() + " " + std::to_string(count))
                            .c_str()),
            0);
  for (int i = 0; i < count; ++i)
    Deliver(std::to_string(1000 + i) + ".x.y", ReadFile(std::to_string(i) + ".eml"));
  Receiver.SetSkipBadMessages(true);
  Fetch(count);
  for (int i = 0; i < count; ++i) {
    const qel::TQELMessage& got = *Receiver.Messages()->GetQELMessage(i);
    std::string found, wanted;
    for (int f = 0; f < got.Attachments()->Count(); ++f) {
      qel::TQELAttachment& file = *got.Attachments()->GeTQELAttachment(f);
      file.SaveToFile("found");
      found += Hex(file.FileName()) + Hex(ReadFile("found"));
    }
    std::ifstream made(std::to_string(i) + ".made");
    for (std::string name, value; std::getline(made, value);) {
      name = value.substr(0, value.find(' '));
      if (name == "name" || name == "data") wanted += value.substr(name.size() + 1) + "|";
      if (name == "subject") {
        EXPECT_EQ(Hex(got.Subject()), value.substr(name.size() + 1) + "|");
      }
    }
    EXPECT_EQ(found, wanted) << i;
  }
}
#endif

}  // namespace
