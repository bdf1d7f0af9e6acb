// The sender against scripted servers, well-behaved and not.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "mail/Qeltiemails_smtp.h"
#include "tests/mail/mailtest.h"
#include "tests/support/server.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// What the server says to each command, and first of all (""); an empty text closes.
using TReplies = std::map<std::string, std::string>;
constexpr const char* Stages[] = {"", "HELO", "MAIL", "RCPT", "DATA", ".", "QUIT"};
constexpr const char* Silence = "silence";

TReplies Polite(const TReplies& except = {}) {
  TReplies replies = {{"", "220 hello\r\n"},     {"HELO", "250 it is you\r\n"},
                      {"MAIL", "250 ok\r\n"},    {"RCPT", "250 2.1.5 ok\r\n"},
                      {"DATA", "354 go on\r\n"}, {".", "250 done\r\n"},
                      {"QUIT", "221 bye\r\n"}};
  for (const auto& [stage, reply] : except) replies[stage] = reply;
  return replies;
}

struct Sending : testing::Test {
  Sending() { MakeMail(); }

  void MakeMail() {
    Mail = new qel::TQELSMTPMail(&Application);
    Mail->SetHost("127.0.0.1");
    AddMessage();
    Mail->OnConnect = [this](auto*) { Events.push_back("connect"); };
    Mail->OnDisconnect = [this](auto*) { Events.push_back("disconnect"); };
    Mail->OnBeforeSend = [this](auto*) { Events.push_back("before"); };
    Mail->OnAfterSend = [this](auto*) { Events.push_back("after"); };
    Mail->OnError = [this](auto*, int code, const std::string& text) {
      Events.push_back("error " + std::to_string(code) + " " + text);
    };
  }

  qel::TQELMessage* AddMessage() {
    qel::TQELMessage* message = Mail->Messages()->Add();
    message->SetFromMail("ann@a.test");
    message->SetSendTo("bob@a.test");
    return message;
  }

  /// One session; what the server heard is in Heard.
  bool Execute(const TReplies& replies, bool bytewise = false) {
    Events.clear();
    Heard.clear();
    Application.Errors.clear();
    const TTestServer server([&](TPeer& peer) { Serve(peer, replies, bytewise); });
    Mail->SetPort(std::to_string(server.Port()));
    return Mail->Execute();
  }

  void Serve(TPeer& peer, const TReplies& replies, bool bytewise) {
    const auto answer = [&](const std::string& stage) {
      const std::string& reply = replies.at(stage);
      if (reply == Silence) peer.HearEnd();
      bytewise ? peer.SayBytewise(reply) : peer.Say(reply);
      return !reply.empty() && reply != Silence;
    };
    bool data = false;
    for (bool goesOn = answer(""); goesOn;) {
      const auto line = peer.Hear();
      if (!line) return;
      Heard.push_back(*line);
      const std::string command = line->substr(0, line->find(' '));
      if (data && command != ".") continue;
      goesOn = answer(replies.contains(command) ? command : "HELO");
      data = command == "DATA" && replies.at("DATA").starts_with("354");
    }
  }

  TTestApplication Application;
  qel::TQELSMTPMail* Mail;
  std::vector<std::string> Events, Heard;
};

TEST_F(Sending, GoesThroughOneSession) {
  Mail->Messages()->GetQELMessage(0)->SetSendTo("ann,bob , cy");
  Mail->Messages()->GetQELMessage(0)->Message()->SetText("..\n2\n3\n4\n5\n6\n7\n8");
  Mail->SetProgressStep(qel::TQELPStep(10));
  std::vector<int> percents;
  Mail->OnSendProgress = [&](auto*, int percent) { percents.push_back(percent); };
  EXPECT_TRUE(Execute(Polite()));
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
  EXPECT_TRUE(Execute(Polite()));
  EXPECT_THAT(Heard, ElementsAre(HasSubstr("HELO"), "QUIT"));
}

TEST_F(Sending, ReadsRepliesHoweverTheyCome) {
  Mail->Messages()->Clear();
  const std::string megabyte(1 << 20, 'x');
  for (const std::string& greeting :
       {std::string("220-one\r\n220 two\r\n"), std::string("220-1\r\n220-2\r\n220-3\r\n220 4\r\n"),
        "220-" + megabyte + "\r\n220 4\r\n", megabyte + "\r\n220 " + megabyte + "\r\n",
        std::string("220 no line end")}) {
    EXPECT_TRUE(Execute(Polite({{"", greeting}, {"HELO", "250-a 1\r\n250 2.0.0 b\r\n"}})));
    EXPECT_THAT(Heard, Contains("QUIT")) << greeting.substr(0, 40);
    EXPECT_THAT(Application.Errors, IsEmpty());
  }
  AddMessage()->SetSendTo("a,b");
  EXPECT_TRUE(Execute(Polite({{"HELO", "250-a 1\r\n250-2\r\n250 2.0.0 b\r\n"}}), true));
  EXPECT_THAT(Events, ElementsAre("connect", "before", "after", "disconnect"));
}

TEST_F(Sending, TellsARefusalAndEndsTheSession) {
  qel::TQELMessage* second = AddMessage();
  for (const std::string stage : Stages) {
    for (const std::string reply : {"421 go away\r\n", "554-no\r\n554 never\r\n"}) {
      if (stage.empty() && reply[0] == '5') continue;  // Waits for another greeting.
      second->SetDate("");
      // A refused HELO is forgotten, so the first message is sent into the closed connection.
      EXPECT_EQ(Execute(Polite({{stage, reply}})), stage != "HELO") << stage;
      if (stage == "HELO") Mail->Execute();
      EXPECT_THAT(Events, Contains(reply[0] == '4' ? "error 421 go away" : "error 554 never"));
      EXPECT_THAT(Events, Contains("disconnect").Times(1)) << stage;
      EXPECT_EQ(std::ranges::count(Heard, "QUIT"), stage == "QUIT");
      EXPECT_EQ(second->Date().empty(), stage == "HELO") << "composed, though not sent";
    }
  }
}

TEST_F(Sending, SurvivesTheEndOfTheConnection) {
  for (const std::string stage : Stages) {
    EXPECT_FALSE(Execute(Polite({{stage, ""}}))) << stage;
    EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("127.0.0.1"))) << stage;
    EXPECT_TRUE(Mail->Busy());
    EXPECT_TRUE(Mail->Execute()) << "only clears up";
    EXPECT_FALSE(Mail->Busy());
  }
  EXPECT_TRUE(Execute(Polite())) << "all is well again";
  Mail->SetPort("1");
  Mail->OnError = nullptr;
  EXPECT_FALSE(Mail->Execute());
  EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr("Cannot connect")));
}

TEST_F(Sending, IsAbortedWhileItWaits) {
  for (const std::string stage : Stages) {
    int pumps = 0;
    Application.OnPump = [&] {
      const bool waits = stage.empty() || (!Heard.empty() && Heard.back().starts_with(stage));
      if (waits && ++pumps > 1) Mail->Abort();
    };
    EXPECT_FALSE(Execute(Polite({{stage, Silence}}))) << stage;
    Application.OnPump = nullptr;
    EXPECT_THAT(Application.Errors, IsEmpty());
    EXPECT_THAT(Events, Contains("disconnect"));
    EXPECT_FALSE(Mail->Busy());
  }
  EXPECT_TRUE(Execute(Polite())) << "the next session forgets it";
  // One that talks without end is ended too.
  Application.OnPump = [&, pumps = 0]() mutable {
    if (++pumps == 50) Mail->Abort();
  };
  std::string endless;
  for (int i = 0; i < 100'000; ++i) endless += "500 wait\r\n";
  EXPECT_FALSE(Execute(Polite({{"", endless}})));
}

TEST_F(Sending, LetsHandlersFreeTheComponentOrItsMessages) {
  const TWorkFolder folder("qel-freed");
  WriteFile("f", Noise(2280));
  for (const std::string what :
       {"execute", "connect", "before", "after", "encode start", "encode progress", "send progress",
        "disconnect", "error", "pump"}) {
    for (const bool wholeComponent : {true, false}) {
      delete Mail;
      MakeMail();
      if (what.starts_with("encode")) {
        Mail->Messages()->GetQELMessage(0)->Attachments()->Add("f");
      }
      bool done = false;
      const auto end = [&](auto&&...) {
        if (done) return;
        done = true;
        if (!wholeComponent) return Mail->Messages()->Clear();
        delete Mail;
        Mail = nullptr;
      };
      if (what == "execute") Mail->OnExecute = end;
      if (what == "connect") Mail->OnConnect = end;
      if (what == "disconnect") Mail->OnDisconnect = end;
      if (what == "before") Mail->OnBeforeSend = end;
      if (what == "after") Mail->OnAfterSend = end;
      if (what == "encode start") Mail->OnEncodeStart = end;
      if (what == "encode progress") Mail->OnEncodeProgress = end;
      if (what == "send progress") Mail->OnSendProgress = end;
      if (what == "error") Mail->OnError = end;
      if (what == "pump") Application.OnPump = end;
      const bool result =
          Execute(Polite({{"MAIL", what == "error" ? "500 no\r\n" : "250 ok\r\n"}}));
      EXPECT_TRUE(done) << what;
      EXPECT_FALSE(wholeComponent && result) << what;
      Application.OnPump = nullptr;
    }
  }
}

TEST_F(Sending, IsClosedByACallFromInside) {
  bool nested = false;
  Mail->OnBeforeSend = [&](auto*) {
    if (std::exchange(nested, true)) return;
    EXPECT_TRUE(Mail->Execute());
  };
  EXPECT_FALSE(Execute(Polite()));
  EXPECT_THAT(Application.Errors, SizeIs(1)) << "the outer one finds its connection closed";
  EXPECT_FALSE(Mail->Busy());
  EXPECT_TRUE(Execute(Polite()));
}

}  // namespace
