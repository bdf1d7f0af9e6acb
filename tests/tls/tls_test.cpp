// Secured connections to good servers, and to others.
#include "vcl/net/tls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <memory>

#include "qel/mail/Qeltiemails.h"
#include "tests/mail/mailtest.h"
#include "tests/support/authority.h"

namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;

std::string Environment(const std::string& name) {
  const char* const value = std::getenv(("QEL_TLS_" + name).c_str());
  return value ? value : "";
}

class Tls : public testing::Test {
 protected:
  static void SetUpTestSuite() { Authority = std::make_unique<TTrustedAuthority>(); }
  static void TearDownTestSuite() { Authority = nullptr; }

  /// A secured connection to the server; `why` becomes what is raised instead.
  void Open(const std::string& server, const std::string& host = "localhost") {
    Why.clear();
    Socket.Close();
    Socket.SetHost(host);
    Socket.SetPort(std::stoi(Environment(server)));
    Socket.Open();
    vcl::TTlsSettings settings;
    settings.HostName = host;
    settings.TimeOut = 5000;
    settings.Accept = Accept;
    try {
      Socket.Socket()->StartTls(settings);
    } catch (const vcl::ETlsError& error) {
      Why = error.what();
    }
  }
  std::string Refused(const std::string& server, const std::string& host = "localhost") {
    Open(server, host);
    return Why;
  }

  static inline std::unique_ptr<TTrustedAuthority> Authority;
  vcl::TClientSocket Socket{nullptr};
  std::function<bool(const vcl::TTlsCertificate&)> Accept;
  std::string Why;
};

TEST_F(Tls, SpeaksWithServersThatItTrusts) {
  for (const char* const host : {"localhost", "127.0.0.1"}) {
    Open("GOOD", host);
    ASSERT_EQ(Why, "") << host;
    EXPECT_THAT(Socket.Socket()->TlsVersion(), AnyOf("TLSv1.2", "TLSv1.3"));
    EXPECT_EQ(Socket.Socket()->ReceiveText(), "hello\r\n");
    EXPECT_THROW(Socket.Socket()->StartTls({}), vcl::ETlsError) << "twice";
  }
  // What fills the system's buffers in both directions.
  const std::string sent = Noise(3 << 20);
  vcl::TWinSocketStream stream(Socket.Socket(), 5000);
  std::string heard(sent.size(), '\0');
  std::size_t gone = 0, come = 0;
  while (come < sent.size()) {
    if (gone < sent.size())
      gone += static_cast<std::size_t>(stream.Write(
          sent.data() + gone,
          std::min<std::int64_t>(50000, std::ssize(sent) - static_cast<std::ptrdiff_t>(gone))));
    if (gone < sent.size() && !stream.WaitForData(0)) continue;
    const auto count =
        stream.Read(heard.data() + come, std::ssize(heard) - static_cast<std::ptrdiff_t>(come));
    ASSERT_GT(count, 0);
    come += static_cast<std::size_t>(count);
  }
  EXPECT_TRUE(heard == sent);
  Socket.Close();
  EXPECT_EQ(Socket.Socket()->TlsVersion(), "");
}

TEST_F(Tls, RefusesCertificatesThatAreNotTheServers) {
  EXPECT_THAT(Refused("EXPIRED"), HasSubstr("expired"));
  EXPECT_THAT(Refused("OTHER"), AnyOf(HasSubstr("another host"), HasSubstr("hostname mismatch")));
  EXPECT_THAT(Refused("OTHER", "127.0.0.1"),
              AnyOf(HasSubstr("another host"), HasSubstr("IP address mismatch")));
  EXPECT_THAT(Refused("SELF"), AnyOf(HasSubstr("no authority"), HasSubstr("self-signed")));
}

TEST_F(Tls, TakesOneThatIsKnownByItsFingerprint) {
  std::ifstream file(Environment("FOLDER") + "/fingerprint");
  std::string known;
  std::getline(file, known);
  ASSERT_EQ(known.size(), 32 * 3 - 1u);
  std::vector<std::string> problems;
  Accept = [&](const vcl::TTlsCertificate& certificate) {
    problems.push_back(certificate.Problem);
    EXPECT_THAT(certificate.Subject, HasSubstr("localhost"));
    return certificate.Fingerprint == known;
  };
  EXPECT_EQ(Refused("SELF"), "");
  EXPECT_EQ(Socket.Socket()->ReceiveText(), "hello\r\n");
  EXPECT_EQ(problems.size(), 1u);
  known.back() = known.back() == '0' ? '1' : '0';
  EXPECT_THAT(Refused("SELF"), HasSubstr("refused"));
  EXPECT_EQ(Refused("GOOD"), "");
  EXPECT_EQ(problems.size(), 2u) << "a good one is not asked for";
}

TEST_F(Tls, GivesUpServersThatDoNotSpeakIt) {
  EXPECT_NE(Refused("OLD"), "") << "TLS 1.1";
  EXPECT_THAT(Refused("CLOSING"), AnyOf(HasSubstr("has closed"), HasSubstr("Cannot secure")));
  EXPECT_THAT(Refused("CLEAR"), AnyOf(HasSubstr("Cannot secure"), HasSubstr("has closed")));
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_THAT(Refused("SILENT"), HasSubstr("in time"));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}

TEST_F(Tls, TellsAnEndThatIsNotThePeers) {
  Open("CUT");
  ASSERT_EQ(Why, "");
  EXPECT_EQ(Socket.Socket()->ReceiveText(), "half a mail");
  EXPECT_THROW(Socket.Socket()->ReceiveText(), vcl::ESocketError);
}

class MailOverTls : public Tls {
 protected:
  MailOverTls() {
    Mail.SetHost("localhost");
    Mail.OnError = [this](vcl::TObject*, int code, const std::string& text) {
      Errors.push_back(std::to_string(code) + " " + text);
    };
  }
  std::vector<std::string> Heard() const {
    std::vector<std::string> lines;
    std::ifstream file(Environment("FOLDER") + "/heard");
    for (std::string line; std::getline(file, line);)
      lines.push_back(line.substr(0, line.find(" ["))
                          .substr(0, line.starts_with("EHLO") ? 4 : std::string::npos));
    return lines;
  }
  TTestApplication Application;
  qel::TQELSMTPMail Mail{nullptr};
  std::vector<std::string> Errors;
};

TEST_F(MailOverTls, ThrowsAwayWhatWasSaidBeforeTheHandshake) {
  Mail.SetSecurity(qel::msStartTls);
  Mail.SetAuthMethod(qel::amAuto);
  Mail.SetUsername("bob");
  Mail.SetPassword("secret");
  Mail.SetPort(Environment("MAIL"));
  EXPECT_TRUE(Mail.Execute());
  EXPECT_THAT(Application.Errors, testing::IsEmpty());
  // Not PLAIN, which somebody between has offered.
  EXPECT_THAT(Heard(), ElementsAre("EHLO", "STARTTLS", "secured", "EHLO", "AUTH CRAM-MD5",
                                   testing::_, "QUIT"));
}

TEST_F(MailOverTls, AsksWhetherToTakeACertificate) {
  Mail.SetSecurity(qel::msTls);
  Mail.SetPort(Environment("SELF"));
  Mail.SetTimeout(5000);
  EXPECT_FALSE(Mail.Execute());
  EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("is refused")));
  Mail.Execute();  // Clears up.
  Application.Errors.clear();
  std::string problem;
  Mail.OnCertificate = [&](vcl::TObject*, const std::string& fingerprint, const std::string& why,
                           bool& accept) {
    EXPECT_EQ(fingerprint.size(), 32 * 3 - 1u);
    problem = why;
    accept = true;
  };
  EXPECT_FALSE(Mail.Execute()) << "it greets as no mail server does";
  EXPECT_NE(problem, "");
  EXPECT_THAT(Application.Errors, testing::Not(testing::Contains(HasSubstr("is refused"))));
}

TEST_F(MailOverTls, IsAbortedInTheMiddleOfTheHandshake) {
  Mail.SetSecurity(qel::msTls);
  Mail.SetPort(Environment("SILENT"));
  Application.OnPump = [&] { Mail.Abort(); };
  EXPECT_FALSE(Mail.Execute());
  EXPECT_TRUE(Mail.Aborted());
  EXPECT_THAT(Application.Errors, testing::IsEmpty());
}

}  // namespace
