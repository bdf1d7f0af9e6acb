// Sessions with servers of today, which answer by a table.
#include "tests/mail/mailsession.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SendingToday : public Sending {
 protected:
  SendingToday() {
    Mail->SetFormat(qel::mfStandard);
    Mail->SetUsername("bob");
    Mail->SetPassword("secret");
    Mail->SetAllowClearLogin(true);
  }
  /// A session with a server of these extensions.
  bool ExecuteWith(const std::string& extensions, const TReplies& except = {}) {
    TReplies replies = except;
    replies.try_emplace("EHLO", extensions);
    replies.try_emplace("RSET", "250 reset\r\n");
    replies.try_emplace("refused", "550 not here\r\n");
    return Execute(replies);
  }
  /// What was heard, without the mail's own lines.
  std::vector<std::string> Commands() const {
    std::vector<std::string> commands;
    bool data = false;
    for (const std::string& line : Heard) {
      if (!data) commands.push_back(line);
      data = line == "DATA" || (data && line != ".");
    }
    if (!commands.empty()) commands.front().resize(4);
    return commands;
  }
  qel::TQELMessage& Message(int index = 0) { return *Mail->Messages()->GetQELMessage(index); }
  std::optional<std::string> Stage(const std::string& line, const TReplies& replies) override {
    if (line == "RCPT TO:<" + FRefused + ">") return "refused";
    return Sending::Stage(line, replies);
  }
  std::string FRefused;
};

TEST_F(SendingToday, UsesWhatTheServerHas) {
  Message().SetSendTo("bob@a.test");
  EXPECT_TRUE(ExecuteWith("250-hello\r\n250-SIZE 9999\r\n250-8BITMIME\r\n250 PIPELINING\r\n"));
  const auto commands = Commands();
  ASSERT_EQ(commands.size(), 5u);
  EXPECT_EQ(commands[0], "EHLO");
  EXPECT_THAT(commands[1], testing::StartsWith("MAIL FROM:<ann@a.test> SIZE="));
  EXPECT_THAT(commands[2], "RCPT TO:<bob@a.test>");
  EXPECT_THAT(Events, ElementsAre("connect", "before", "after", "disconnect"));
  Mail->SetFormat(qel::mfClassic);
  Mail->SetSkipRefused(true);
  Message().Message()->Add("gr\xC3\xBCn");
  EXPECT_TRUE(ExecuteWith("250-hello\r\n250 8bitmime\r\n"));
  EXPECT_EQ(Commands().at(1), "MAIL FROM:<ann@a.test> BODY=8BITMIME");
  EXPECT_THAT(Heard, testing::Contains("gr\xC3\xBCn"));
  EXPECT_TRUE(ExecuteWith("500 what?\r\n")) << "it says HELO";
  EXPECT_EQ(Commands().at(1), "HELO " + vcl::TCustomWinSocket::GetLocalHost());
}

TEST_F(SendingToday, SendsToAllWhomTheMessageNames) {
  Message().SetSendTo("\"Smith, Bob\" <bob@a.test>, carl@a.test");
  Message().SetCc("dora@a.test, bob@a.test");
  Message().SetBcc("Eve <eve@a.test>");
  Message().Message()->SetText(".\r\n..two");
  EXPECT_TRUE(ExecuteWith("250-hello\r\n250 PIPELINING\r\n"));
  EXPECT_THAT(Commands(), ElementsAre("EHLO", "MAIL FROM:<ann@a.test>", "RCPT TO:<bob@a.test>",
                                      "RCPT TO:<carl@a.test>", "RCPT TO:<dora@a.test>",
                                      "RCPT TO:<eve@a.test>", "DATA", "QUIT"));
  EXPECT_THAT(Heard, testing::Not(testing::Contains(HasSubstr("eve@a.test>, "))))
      << "and nobody sees Bcc";
  EXPECT_THAT(Heard, testing::Not(testing::Contains(testing::StartsWith("Bcc"))));
  EXPECT_THAT(Heard, testing::Contains("...two"));
  Message().SetSendTo(" , ");
  Message().SetCc("");
  Message().SetBcc("");
  EXPECT_FALSE(ExecuteWith("250 hello\r\n"));
  EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("no recipient")));
}

TEST_F(SendingToday, LogsInAsItIsTold) {
  const auto heard = [&](qel::TQELMailAuthMethod method, const std::string& offered,
                         const TReplies& except = {}) {
    MakeMail();
    Mail->SetFormat(qel::mfStandard);
    Mail->SetUsername("bob");
    Mail->SetPassword("secret");
    Mail->SetAllowClearLogin(true);
    Mail->SetAuthMethod(method);
    TReplies replies = except;
    replies.try_emplace("AUTH", "235 in\r\n");
    ExecuteWith("250-hello\r\n250 AUTH " + offered + "\r\n", replies);
    std::string lines;
    for (const std::string& line : Heard) {
      if (line.starts_with("MAIL")) break;
      if (!line.starts_with("EHLO")) lines += line + "|";
    }
    return lines;
  };
  EXPECT_EQ(heard(qel::amPlain, "LOGIN PLAIN"), "AUTH PLAIN AGJvYgBzZWNyZXQ=|");
  EXPECT_EQ(heard(qel::amLogin, "LOGIN PLAIN",
                  {{"AUTH", "334 VXNlcm5hbWU6\r\n"},
                   {"Ym9i", "334 UGFzc3dvcmQ6\r\n"},
                   {"c2VjcmV0", "235 in\r\n"}}),
            "AUTH LOGIN|Ym9i|c2VjcmV0|");
  EXPECT_EQ(heard(qel::amXOAuth2, "XOAUTH2"),
            "AUTH XOAUTH2 dXNlcj1ib2IBYXV0aD1CZWFyZXIgc2VjcmV0AQE=|");
  EXPECT_EQ(heard(qel::amAuto, "CRAM-MD5 PLAIN LOGIN",
                  {{"AUTH", "334 PDEyMzRAeC50ZXN0Pg==\r\n"},
                   {"Ym9iIGY0MGVkNDlhMWY0ZTA1MTdjNmQxN2EzZGUzMjhhYjBl", "235 in\r\n"}})
                .substr(0, 14),
            "AUTH CRAM-MD5|")
      << "the safest first";
  EXPECT_EQ(heard(qel::amAuto, "CRAM-MD5 PLAIN LOGIN", {{"AUTH", "535 no\r\n"}}),
            "AUTH CRAM-MD5|AUTH PLAIN AGJvYgBzZWNyZXQ=|")
      << "one that is refused, then the next, and no third";
  EXPECT_THAT(Events, testing::Contains("error 535 no"));
  EXPECT_EQ(heard(qel::amCramMd5, "PLAIN"), "");
  EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("does not offer")));
}

TEST_F(SendingToday, KeepsSecretsFromConnectionsThatAreNotSecured) {
  Mail->SetAllowClearLogin(false);
  Mail->SetAuthMethod(qel::amAuto);
  EXPECT_FALSE(ExecuteWith("250-hello\r\n250 AUTH PLAIN\r\n"));
  EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("AllowClearLogin")));
  EXPECT_THAT(Commands(), ElementsAre("EHLO"));
  Mail->Execute();  // Clears up.
  Mail->SetSecurity(qel::msStartTls);
  EXPECT_FALSE(ExecuteWith("250-hello\r\n250 AUTH PLAIN\r\n")) << "somebody has taken STARTTLS out";
  EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("STARTTLS")));
  EXPECT_THAT(Commands(), ElementsAre("EHLO"));
}

TEST_F(SendingToday, LeavesOutWhatIsRefusedAndSendsTheRest) {
  Mail->SetSkipRefused(true);
  Message().SetSendTo("bad@a.test, bob@a.test");
  Message().SetSubject("first");
  AddMessage()->SetSendTo("bad@a.test");
  Message(1).SetSubject("second");
  AddMessage()->SetSendTo("carl@a.test");
  Message(2).SetSubject("third");
  FRefused = "bad@a.test";
  EXPECT_FALSE(ExecuteWith("250-hello\r\n250 PIPELINING\r\n"));
  EXPECT_THAT(Heard, testing::Contains("Subject: first"));
  EXPECT_THAT(Heard, testing::Not(testing::Contains("Subject: second")));
  EXPECT_THAT(Heard, testing::Contains("Subject: third"));
  EXPECT_THAT(Events, ElementsAre("connect", "before", "error 550 not here (<bad@a.test>)", "after",
                                  "before", "error 550 not here (<bad@a.test>)", "before", "after",
                                  "disconnect"));
  EXPECT_THAT(Application.Errors, IsEmpty());
  // One that the server would not take is not sent at all.
  FRefused.clear();
  Message(1).Message()->SetText(std::string(5000, 'x'));
  EXPECT_FALSE(ExecuteWith("250-hello\r\n250 SIZE 2000\r\n"));
  EXPECT_THAT(Events, testing::Contains(testing::StartsWith("error 552 The mail has 5")));
  EXPECT_THAT(Heard, testing::Contains("Subject: third"));
  Mail->SetSkipRefused(false);
  EXPECT_FALSE(ExecuteWith("250-hello\r\n250 SIZE 2000\r\n"));
  EXPECT_THAT(Heard, testing::Not(testing::Contains("Subject: third")))
      << "else the first ends the session";
}

TEST_F(SendingToday, SaysWhyItCouldNotConnect) {
  Mail->SetPort("1");
  Events.clear();
  EXPECT_FALSE(Mail->Execute());
  ASSERT_EQ(Events.size(), 1u);
  EXPECT_THAT(Events[0], HasSubstr(" Cannot connect to \"127.0.0.1\""));
  EXPECT_THAT(Application.Errors, IsEmpty());
}

TEST_F(SendingToday, WaitsNoLongerThanItIsTold) {
  Mail->SetTimeout(300);
  EXPECT_THROW(Mail->SetTimeout(-1), vcl::EArgumentOutOfRangeException);
  EXPECT_FALSE(ExecuteWith(Silence));
  EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("did not answer within 300 ms")));
}

class FetchingToday : public Fetching {
 protected:
  FetchingToday() {
    Mail->SetFormat(qel::mfStandard);
    Mail->SetAllowClearLogin(true);
  }
  bool ExecuteWith(const std::string& capabilities, const TReplies& except = {}) {
    TReplies replies = except;
    replies.try_emplace("CAPA", capabilities);
    replies.try_emplace("LIST", "+OK\r\n1 120\r\n2 30\r\n.\r\n");
    replies.try_emplace("UIDL", "+OK\r\n1 aa\r\n2 bb\r\n.\r\n");
    replies.try_emplace(
        "RETR", "+OK\r\nFrom: =?utf-8?Q?J=C3=BCrgen?= <j@a.test>\r\n\r\n..dot\r\ntext\r\n.\r\n");
    return Execute(replies);
  }
};

TEST_F(FetchingToday, ReadsMailsOfToday) {
  EXPECT_TRUE(ExecuteWith("-ERR what?\r\n"));
  EXPECT_THAT(Heard, ElementsAre("CAPA", "USER bob", "PASS secret", "STAT", "LIST", "RETR 1",
                                 "DELE 1", "RETR 2", "DELE 2", "QUIT"));
  ASSERT_EQ(Mail->Messages()->Count(), 2);
  const qel::TQELMessage& message = *Mail->Messages()->GetQELMessage(0);
  EXPECT_EQ(message.FromName(), "Jürgen");
  EXPECT_EQ(message.Message()->Strings(0), ".dot");
  EXPECT_EQ(message.Message()->Count(), 2);
  EXPECT_THAT(message.Headers()->Strings(0), HasSubstr("=?utf-8?"));
  for (const std::string& each : Events) {
    EXPECT_TRUE(!each.starts_with("percent") || std::stoi(each.substr(8)) <= 100) << each;
  }
}

TEST_F(FetchingToday, LogsInAsItIsTold) {
  const auto heard = [&](qel::TQELMailAuthMethod method, const std::string& capabilities,
                         const TReplies& except) {
    Mail->SetAuthMethod(method);
    ExecuteWith("+OK\r\n" + capabilities + ".\r\n", except);
    return Heard.size() > 1 ? Heard[1] : "";
  };
  // RFC 1939, 7, with its stamp and secret.
  Mail->SetUsername("mrose");
  Mail->SetPassword("tanstaaf");
  const std::string stamp = "+OK POP3 server ready <1896.697170952@dbc.mtview.ca.us>\r\n";
  EXPECT_EQ(heard(qel::amApop, "", {{"", stamp}, {"APOP", "+OK\r\n"}}),
            "APOP mrose c4c9334bac560ecc979e58001b3e22fb");
  EXPECT_EQ(heard(qel::amAuto, "USER\r\n", {{"", stamp}, {"APOP", "+OK\r\n"}}),
            "APOP mrose c4c9334bac560ecc979e58001b3e22fb");
  EXPECT_EQ(heard(qel::amPlain, "SASL PLAIN\r\n", {{"AUTH", "+OK\r\n"}}),
            "AUTH PLAIN AG1yb3NlAHRhbnN0YWFm");
  EXPECT_EQ(heard(qel::amUserPass, "", {{"USER mrose", "+OK\r\n"}}), "USER mrose");
  // RFC 2195, 2.
  Mail->SetUsername("tim");
  Mail->SetPassword("tanstaaftanstaaf");
  const std::string answer = "dGltIGI5MTNhNjAyYzdlZGE3YTQ5NWI0ZTZlNzMzNGQzODkw";
  EXPECT_EQ(heard(qel::amCramMd5, "SASL CRAM-MD5\r\n",
                  {{"AUTH", "+ PDE4OTYuNjk3MTcwOTUyQHBvc3RvZmZpY2UucmVzdG9uLm1jaS5uZXQ+\r\n"},
                   {answer, "+OK\r\n"}}),
            "AUTH CRAM-MD5");
  EXPECT_EQ(Heard.at(2), answer);
  EXPECT_EQ(Heard.at(3), "STAT");
  heard(qel::amPlain, "SASL PLAIN\r\n", {{"AUTH", "-ERR wrong\r\n"}});
  EXPECT_THAT(Events, testing::Contains("error 2001 wrong"));
  Mail->SetAllowClearLogin(false);
  EXPECT_EQ(heard(qel::amAuto, "USER\r\n", {}), "");
  EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("AllowClearLogin")));
}

TEST_F(FetchingToday, KeepsMailsAndKnowsThemAgain) {
  Mail->SetKeepOnServer(true);
  Mail->KnownIds()->Add("bb");
  Mail->KnownIds()->Add("gone");
  EXPECT_TRUE(ExecuteWith("-ERR\r\n"));
  EXPECT_THAT(Heard, ElementsAre("CAPA", "USER bob", "PASS secret", "STAT", "UIDL", "LIST",
                                 "RETR 1", "QUIT"));
  EXPECT_EQ(Mail->KnownIds()->CommaText(), "bb,aa");
  EXPECT_EQ(Mail->Messages()->Count(), 1);
  ExecuteWith("-ERR\r\n");
  EXPECT_EQ(Mail->Messages()->Count(), 1) << "nothing new";
}

TEST_F(FetchingToday, LeavesMailsThatItCannotReadOnTheServer) {
  Mail->SetSkipBadMessages(true);
  Mail->SetMaxMessageSize(100);
  EXPECT_FALSE(ExecuteWith("-ERR\r\n"));
  EXPECT_THAT(Heard, ElementsAre("CAPA", "USER bob", "PASS secret", "STAT", "LIST", "RETR 2",
                                 "DELE 2", "QUIT"));
  EXPECT_THAT(Events, testing::Contains(testing::StartsWith("error 2010 A mail is larger")));
  // One that is larger than it was said to be, and in the classic format one without a boundary.
  EXPECT_FALSE(
      ExecuteWith("-ERR\r\n", {{"RETR 1", "+OK\r\n" + std::string(1000, 'x') + "\r\n.\r\n"},
                               {"LIST", "+OK\r\n1 1\r\n2 1\r\n.\r\n"}}));
  EXPECT_THAT(Heard, testing::Contains("DELE 2"));
  Mail->SetFormat(qel::mfClassic);
  Mail->SetMaxMessageSize(0);
  EXPECT_FALSE(Execute({{"RETR 1", "+OK\r\nContent-Type: multipart/mixed\r\n\r\nx\r\n.\r\n"}}));
  EXPECT_THAT(Heard,
              ElementsAre("USER bob", "PASS secret", "STAT", "RETR 1", "RETR 2", "DELE 2", "QUIT"));
  EXPECT_THAT(Events, testing::Contains("error 2010 Message Format Error"));
  EXPECT_THAT(Application.Errors, IsEmpty());
}

}  // namespace
