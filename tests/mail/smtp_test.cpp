// The sender against scripted servers, well-behaved and not.
#include <algorithm>

#include "tests/mail/mailsession.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

TEST_F(Sending, GoesThroughOneSession) {
  Mail->Messages()->GetQELMessage(0)->SetSendTo("ann,bob , cy");
  Mail->Messages()->GetQELMessage(0)->Message()->SetText("..\n2\n3\n4\n5\n6\n7\n8");
  Mail->SetProgressStep(qel::TQELPStep(10));
  std::vector<int> percents;
  Mail->OnSendProgress = [&](auto*, int percent) { percents.push_back(percent); };
  EXPECT_TRUE(Execute());
  EXPECT_THAT(Events, ElementsAre("connect", "before", "after", "disconnect"));
  EXPECT_THAT(percents, ElementsAre(10, 24, 33, 43, 52, 62, 71, 81, 90, 100));
  ASSERT_THAT(Heard, SizeIs(6 + 22 + 3));
  EXPECT_EQ(Heard[0], "HELO " + vcl::TCustomWinSocket::GetLocalHost());
  EXPECT_EQ(Heard[1], "MAIL FROM:<ann@a.test>");
  EXPECT_EQ(Heard[3], "RCPT TO:<bob>");
  EXPECT_EQ(Heard[4], "RCPT TO:< cy>") << "the last one is not trimmed";
  EXPECT_EQ(Heard[18], "...");
  EXPECT_THAT(std::vector(Heard.end() - 5, Heard.end()), ElementsAre("", "", "", ".", "QUIT"));
  Mail->Messages()->Clear();
  EXPECT_TRUE(Execute());
  EXPECT_THAT(Heard, ElementsAre(HasSubstr("HELO"), "QUIT"));
}

TEST_F(Sending, ReadsRepliesHoweverTheyCome) {
  Mail->Messages()->Clear();
  const std::string megabyte(1 << 20, 'x');
  for (const std::string& greeting :
       {std::string("220-one\r\n220 two\r\n"), std::string("220-1\r\n220-2\r\n220-3\r\n220 4\r\n"),
        "220-" + megabyte + "\r\n220 4\r\n", megabyte + "\r\n220 " + megabyte + "\r\n",
        std::string("220 no line end")}) {
    EXPECT_TRUE(Execute({{"", greeting}, {"HELO", "250-a 1\r\n250 2.0.0 b\r\n"}}));
    EXPECT_THAT(Heard, Contains("QUIT")) << greeting.substr(0, 40);
    EXPECT_THAT(Application.Errors, IsEmpty());
  }
  AddMessage()->SetSendTo("a,b");
  EXPECT_TRUE(Execute({{"HELO", "250-a 1\r\n250-2\r\n250 2.0.0 b\r\n"}}, true));
  EXPECT_THAT(Events, ElementsAre("connect", "before", "after", "disconnect"));
}

TEST_F(Sending, TellsARefusalAndEndsTheSession) {
  qel::TQELMessage* second = AddMessage();
  for (const auto& [stage, polite] : Polite) {
    for (const std::string reply : {"421 go away\r\n", "554-no\r\n554 never\r\n"}) {
      if (stage.empty() && reply[0] == '5') continue;  // Waits for another greeting.
      second->SetDate("");
      // A refused HELO is forgotten, so the first message is sent into the closed connection.
      EXPECT_EQ(Execute({{stage, reply}}), stage != "HELO") << stage;
      if (stage == "HELO") Mail->Execute();
      EXPECT_THAT(Events, Contains(reply[0] == '4' ? "error 421 go away" : "error 554 never"));
      EXPECT_THAT(Events, Contains("disconnect").Times(1)) << stage;
      EXPECT_EQ(std::ranges::count(Heard, "QUIT"), stage == "QUIT");
      EXPECT_EQ(second->Date().empty(), stage == "HELO") << "composed, though not sent";
    }
  }
}

TEST_F(Sending, IsAbortedInTheMiddleOfAReplyOrAMail) {
  int pumps = 0;
  Application.OnPump = [&] {
    if (++pumps == 5) Mail->Abort();
  };
  std::string endless;
  for (int i = 0; i < 100'000; ++i) endless += "500 wait\r\n";
  EXPECT_FALSE(Execute({{"", endless}}));
  EXPECT_LT(pumps, 10);
  Application.OnPump = nullptr;
  Mail->OnSendProgress = [&](auto*, int) { Mail->Abort(); };
  EXPECT_FALSE(Execute());
  EXPECT_THAT(Heard, Not(Contains(".")));
}

TEST_F(Sending, EndsWithoutAFarewellInTheMiddleOfAMail) {
  const std::function<void()> ends[] = {[this] { Mail->Execute(); },
                                        [this] { Mail->Disconnect(); }};
  for (const auto& end : ends) {
    for (const std::string stage : {"DATA", "", "."}) {
      MakeMail();
      int calls = 0;
      const auto endOnce = [&] {
        if (++calls == 1) end();
        if (calls > 50) Mail->Abort();  // It waits for an answer that doesn't come.
      };
      if (stage.empty()) Mail->OnSendProgress = [&](auto*, int) { endOnce(); };
      Application.OnPump = [&] {
        if (calls > 0 || (!Heard.empty() && Heard.back() == stage)) endOnce();
      };
      EXPECT_FALSE(stage.empty() ? Execute() : Execute({{stage, Silence}})) << stage;
      Application.OnPump = nullptr;
      Mail->OnSendProgress = nullptr;
      EXPECT_LT(calls, 50) << stage;
      EXPECT_THAT(Events, ElementsAre("connect", "before", "disconnect")) << stage;
      EXPECT_THAT(Heard, Not(Contains("QUIT"))) << stage;
      EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("is closed"))) << stage;
      if (Mail->Busy()) Mail->Execute();
      EXPECT_TRUE(Execute()) << "the next one is like any other";
      EXPECT_THAT(Heard, Contains("QUIT"));
    }
  }
}

/// Texts behind which a command or a header's field could stand.
const std::string Smuggling[] = {"a\r\nBcc: spy@a.test", "a\rb", "a\nb", std::string("a\0b", 3),
                                 "a\r\n"};

TEST_F(Sending, RefusesWhatBreaksALineBeforeItConnects) {
  using TSet = void (qel::TQELMessage::*)(const std::string&);
  const std::pair<const char*, TSet> properties[] = {
      {"SendTo", &qel::TQELMessage::SetSendTo},   {"FromMail", &qel::TQELMessage::SetFromMail},
      {"Subject", &qel::TQELMessage::SetSubject}, {"FromName", &qel::TQELMessage::SetFromName},
      {"ReplyTo", &qel::TQELMessage::SetReplyTo}, {"InReplyTo", &qel::TQELMessage::SetInReplyTo}};
  qel::TQELMessage* second = AddMessage();
  for (const auto& [name, set] : properties) {
    for (const std::string& value : Smuggling) {
      (second->*set)(value);
      ExpectRefusal(name, value);
      EXPECT_THROW(Mail->InitializeMessage(*second), qel::EQELMailError) << name;
    }
    (second->*set)("ann@a.test");
  }
  qel::TQELAttachment* file = second->Attachments()->Add("f");
  file->SetFileName(Smuggling[0]);
  ExpectRefusal("FileName", Smuggling[0]);
  second->Attachments()->Clear();
  EXPECT_TRUE(Execute()) << "nothing is left of the refusals";
}

TEST_F(Sending, RefusesWhatAHandlerBreaksInTheMiddleOfASession) {
  Mail->OnBeforeSend = [this](vcl::TObject*) {
    Mail->Messages()->GetQELMessage(0)->SetSendTo(Smuggling[0]);
  };
  EXPECT_FALSE(Execute());
  EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("SendTo")));
  EXPECT_THAT(Heard, ElementsAre(HasSubstr("HELO")));
}

}  // namespace
