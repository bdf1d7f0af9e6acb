// The components and real servers, which with-servers starts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "qel/mail/Qeltiemails_smtp.h"
#include "tests/mail/mailtest.h"

namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

/// What with-servers says of its servers.
std::string Setting(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

/// The one file of a folder, once it is there.
fs::path Delivered(const fs::path& folder) {
  for (int i = 0; i < 200; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder, none)) return entry.path();
  }
  return {};
}

struct RealServers : testing::Test {
  RealServers() {
    Mail.SetHost("localhost");
    Message->SetFromMail("ann@example.test");
    Mail.OnError = [this](auto*, int code, auto&) { Errors.push_back(code); };
  }
  bool SendTo(const std::string& recipients, const char* portSetting) {
    Message->SetSendTo(recipients);
    Mail.SetPort(Setting(portSetting));
    return Mail.Execute();
  }

  TTestApplication Application;
  qel::TQELSMTPMail Mail{nullptr};
  qel::TQELMessage* Message = Mail.Messages()->Add();
  std::vector<int> Errors;
};

TEST_F(RealServers, TakeWhatWasWritten) {
  const std::string text = ".\r\n..\r\n\r\n" + std::string(900, 'x') + "\r\n.end\r\n";
  Message->Message()->SetText(text);
  EXPECT_TRUE(SendTo("bob@a.test,cy@b.test", "QEL_SINK_PORT"));
  const std::string mail = ReadFile(Setting("QEL_SINK") + "/1.eml");
  EXPECT_THAT(mail, StartsWith("ann@example.test bob@a.test cy@b.test\r\nMessage-Id: <"));
  EXPECT_THAT(mail, EndsWith("\r\n\r\n" + text + "\r\n\r\n\r\n"));
  EXPECT_TRUE(SendTo("bob@a.test,cy@refused.test", "QEL_SINK_PORT"));
  EXPECT_EQ(Errors, std::vector{550});
  EXPECT_FALSE(fs::exists(Setting("QEL_SINK") + "/2.eml"));
  EXPECT_THAT(Application.Errors, IsEmpty());
}

TEST_F(RealServers, DeliverAttachmentsByteForByte) {
  const TWorkFolder folder("qel-delivery");
  std::string expected = "Delivered|ann@example.test|1\n";
  for (const std::size_t size : {0, 1, 56, 57, 58, 2279, 2280, 2281}) {
    const std::string name = std::to_string(size) + ".bin";
    WriteFile(name, Noise(size));
    Message->Attachments()->Add(name);
    expected += name + " True\n";
  }
  Message->SetSubject("Delivered");
  EXPECT_TRUE(SendTo("bob@example.test", "QEL_SMTP_PORT"));
  EXPECT_THAT(Errors, IsEmpty());
  const fs::path mail = Delivered(Setting("QEL_MAILDIR") + "/new");
  ASSERT_FALSE(mail.empty()) << "nothing was delivered";
  EXPECT_EQ(ReadElsewhere(mail.string()), expected);
}

TEST(SendmailExample, SendsAFile) {
  const TWorkFolder folder("qel-sendmail");
  WriteFile("1.bin", Noise(100));
  const std::string command = std::string("echo text | ") + SENDMAIL_EXAMPLE + " 127.0.0.1 " +
                              Setting("QEL_SINK_PORT") +
                              " ann@example.test cy@example.test Example";
  EXPECT_NE(std::system((command + " missing.bin").c_str()), 0);
  ASSERT_EQ(std::system((command + " 1.bin").c_str()), 0);
  fs::path last;
  for (const auto& entry : fs::directory_iterator(Setting("QEL_SINK"))) {
    last = std::max(last, entry.path());
  }
  const std::string mail = ReadFile(last);
  WriteFile("mail", mail.substr(mail.find('\n') + 1));
  EXPECT_EQ(ReadElsewhere("mail"), "Example|ann@example.test|1\n1.bin True\n");
}

}  // namespace
