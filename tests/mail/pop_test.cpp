// The receiver against scripted servers, well-behaved and not.
#include <utility>

#include "tests/mail/mailsession.h"

namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

TEST_F(Fetching, FetchesAndDeletesInOneSession) {
  for (const bool bytewise : {false, true}) {
    Mail->Messages()->Clear();
    EXPECT_TRUE(Execute({}, bytewise));
    EXPECT_THAT(Heard, ElementsAre("USER bob", "PASS secret", "STAT", "RETR 1", "DELE 1", "RETR 2",
                                   "DELE 2", "QUIT"));
    EXPECT_THAT(Application.Errors, IsEmpty());
    ASSERT_EQ(Mail->Messages()->Count(), 2);
    EXPECT_EQ(Mail->Messages()->GetQELMessage(1)->FromMail(), "ann@a.test");
    EXPECT_EQ(Mail->Messages()->GetQELMessage(1)->Message()->Text(), "text\r\nend\r\n");
    EXPECT_EQ(Mail->State(), qel::Transaction);
    EXPECT_EQ(Mail->MessageCount(), 0);
    EXPECT_TRUE(Mail->IsDeleted(2) && !Mail->Busy() && !Mail->Connected());
  }
  EXPECT_TRUE(Execute({{"STAT", "+OK 0 0\r\n"}}));
  EXPECT_THAT(Heard, ElementsAre("USER bob", "PASS secret", "STAT", "QUIT"));
  MakeMail();
  Mail->SetDeleteOfServer(false);
  EXPECT_TRUE(Execute());
  EXPECT_THAT(Heard, Not(Contains(HasSubstr("DELE"))));
  EXPECT_THAT(Events, ElementsAre("connect", "before 1", "percent 100", "after", "before 2",
                                  "percent 100", "after", "disconnect"));
}

TEST_F(Fetching, TellsOfProgressInPercentOfWhatWasAnnounced) {
  Mail->SetProgressStep(qel::TQELPStep(40));
  std::string body(4000, 'x');
  const auto retrieve = [&](const std::string& status) {
    EXPECT_TRUE(Execute({{"STAT", "+OK 1\r\n"}, {"RETR", status + body + "\r\n.\r\n"}}));
    std::erase_if(Events, [](auto& event) { return !event.starts_with("percent"); });
    return Events;
  };
  // The first piece, of 1024 bytes, is not counted for itself.
  EXPECT_THAT(retrieve("+OK 4000 octets\r\n"), ElementsAre("percent 51", "percent 101"));
  EXPECT_THAT(retrieve("+OK 1000\r\n"), ElementsAre("percent 205", "percent 307", "percent 402"));
  EXPECT_THAT(retrieve("+OK\r\n"), ElementsAre("percent 2048", "percent 3072", "percent 4010"));
  EXPECT_THAT(retrieve("+OK 0\r\n"), SizeIs(3));
  body = "";
  EXPECT_THAT(retrieve("+OK 9\r\n"), IsEmpty()) << "over 100 has been reached before";
}

TEST_F(Fetching, FindsTheTerminatorWhereverItIsSplit) {
  Mail->SetDeleteOfServer(false);
  const std::string status = "+OK 1500 octets\r\n";
  for (std::size_t filler = 1024 - status.size() - 16; filler < 1024 - status.size() + 2;
       ++filler) {
    Mail->Messages()->Clear();
    const std::string line(filler - 6, 'x');
    EXPECT_TRUE(
        Execute({{"STAT", "+OK 1 1\r\n"}, {"RETR", status + "A: b\r\n\r\n" + line + "\r\n.\r\n"}}));
    EXPECT_EQ(Mail->Messages()->GetQELMessage(0)->Message()->Text(), line + "\r\n") << filler;
  }
}

TEST_F(Fetching, TellsARefusalAndClosesTheConnection) {
  const std::map<std::string, int> codes = {{"", 2000},     {"USER", 2001}, {"PASS", 2001},
                                            {"STAT", 2006}, {"RETR", 2004}, {"DELE", 2003},
                                            {"QUIT", 2002}};
  for (const auto& [stage, code] : codes) {
    // What follows a refusal is sent on the closed connection, unless nothing follows.
    const bool goesOn = stage == "" || stage == "RETR" || stage == "DELE";
    EXPECT_EQ(Execute({{stage, "-ERR  go away \r\n"}}), !goesOn) << stage;
    EXPECT_THAT(Events, Contains("error " + std::to_string(code) + " go away")) << stage;
    EXPECT_THAT(Events, Contains("disconnect").Times(1)) << stage;
    if (stage == "USER" || stage == "PASS") {
      EXPECT_THAT(Application.Errors, ElementsAre("Unable to connect"));
    } else {
      EXPECT_THAT(Application.Errors, SizeIs(goesOn ? 1 : 0)) << stage;
    }
    EXPECT_EQ(Mail->Busy(), goesOn);
    if (goesOn) Mail->Execute();
  }
  // A refused last mail is followed by nothing, not even a farewell.
  Mail->SetDeleteOfServer(false);
  EXPECT_TRUE(Execute({{"RETR 2", "-ERR\r\n"}}));
  EXPECT_EQ(Heard.back(), "RETR 2");
}

TEST_F(Fetching, MayBeFreedWhileItTellsThatItCannotConnect) {
  Application.OnBox = [this] { delete std::exchange(Mail, nullptr); };
  EXPECT_FALSE(Execute({{"PASS", Refusal}}));
  EXPECT_THAT(Application.Errors, ElementsAre("Unable to connect"));
  EXPECT_EQ(Mail, nullptr);
}

TEST_F(Fetching, RefusesANameThatBreaksItsLineBeforeItConnects) {
  const std::string smuggling = "bob\r\nDELE 1";
  Mail->SetUsername(smuggling);
  ExpectRefusal("Username", smuggling);
  Mail->SetUsername("bob");
  Mail->SetPassword(smuggling);
  EXPECT_FALSE(Execute());
  EXPECT_THAT(Application.Errors, ElementsAre(AllOf(HasSubstr("Password"), Not(HasSubstr("bob")))));
  EXPECT_THAT(Events, IsEmpty());
}

TEST_F(Fetching, SurvivesNonsense) {
  const struct {
    std::string Stage, Reply, Error;
  } cases[] = {
      {"STAT", "+OK many\r\n", "many"},
      {"STAT", "+OK\r\n", "''"},
      {"STAT", "+OK -1 0\r\n", "-1"},
      {"STAT", "+OK 65536 0\r\n", "65536"},
      {"STAT", "+OK 99999999999999 0\r\n", "99999999999999"},
      {"", std::string(1 << 20, '+'), "does not end"},
      {"RETR", "+OK 9\r\nContent-Type: multipart/mixed\r\n\r\n.\r\n", "Message Format Error"},
      {"RETR", "+OK 9\r\n" + std::string(70'000, 'x') + "\r\n.\r\n", "larger than the 65536 bytes"},
  };
  EXPECT_EQ(Mail->MaxMessageSize(), std::size_t{256} << 20);
  Mail->SetMaxMessageSize(1 << 16);
  for (const auto& each : cases) {
    EXPECT_FALSE(Execute({{each.Stage, each.Reply}})) << each.Error;
    EXPECT_THAT(Application.Errors, ElementsAre(HasSubstr(each.Error)));
    EXPECT_TRUE(Mail->Execute()) << "only clears up";
  }
  Mail->SetMaxMessageSize(0);
  const std::string megabytes(3 << 20, 'x');
  EXPECT_TRUE(Execute({{"", "+OK"},  // Without an end.
                       {"STAT", "+OK 1"},
                       {"RETR", "+OK 2147483647\r\n" + megabytes + "\r\n.\r\nmore"}}));
  const qel::TQELMessage* last = Mail->Messages()->GetQELMessage(Mail->Messages()->Count() - 1);
  EXPECT_THAT(last->Message()->Strings(0), SizeIs(megabytes.size()));
}

TEST_F(Fetching, SurvivesTheEndOfAMailBeforeItsTerminator) {
  const TTestServer server([](TPeer& peer) {
    peer.Say("+OK\r\n");
    for (const char* reply : {"+OK\r\n", "+OK\r\n", "+OK 1 1\r\n", "+OK 40\r\nFrom: Ann\r\n"}) {
      peer.Hear();
      peer.Say(reply);
    }
  });
  Mail->SetPort(std::to_string(server.Port()));
  EXPECT_FALSE(Mail->Execute());
  EXPECT_EQ(Mail->Messages()->Count(), 0);
}

TEST_F(Fetching, IsAbortedInAMailOrHeaderWithoutEnd) {
  int pumps = 0;
  Application.OnPump = [&] {
    if (!Heard.empty() && Heard.back() == "RETR 1" && ++pumps % 5 == 0) Mail->Abort();
  };
  std::string endless = "+OK 1\r\n";
  while (endless.size() < 1 << 20) endless += "line\r\n";
  EXPECT_FALSE(Execute({{"RETR", endless}}));
  EXPECT_LT(pumps, 10);
  Application.OnPump = [&] {
    if (++pumps % 5 == 0) Mail->Abort();
  };
  Mail->BeforeRetrieve = [&](auto*, int) {
    std::string headers;
    Mail->RetrieveHeaders(1, headers);
  };
  EXPECT_FALSE(Execute({{"TOP ", endless}}));
  EXPECT_THAT(Application.Errors, IsEmpty());
}

TEST_F(Fetching, SaysFarewellWhenAnEventAborts) {
  Mail->OnDelete = [&](auto*, int) { Mail->Abort(); };
  EXPECT_FALSE(Execute());
  EXPECT_EQ(Heard.back(), "QUIT") << "so that the server keeps the deletion in mind";
  EXPECT_EQ(Mail->Messages()->Count(), 1);
  EXPECT_THAT(Heard, Not(Contains("RETR 2")));
}

TEST_F(Fetching, FetchesHeadersAlone) {
  std::string headers;
  Mail->BeforeRetrieve = [&](auto*, int index) {
    Mail->RetrieveHeaders(static_cast<std::uint16_t>(index), headers);
  };
  EXPECT_TRUE(Execute({{"TOP ", "+OK\r\nA: 1\r\n\r\n.\r\n"}}));
  EXPECT_THAT(Heard, AllOf(Contains("TOP 1 0"), Contains("TOP 2 0")));
  EXPECT_EQ(headers, "\nA: 1\r\n\r\n.\r\n");
  EXPECT_FALSE(Execute({{"TOP ", "-ERR no\r\n"}}));
  EXPECT_THAT(Events, Contains("error 2005 no"));
}

}  // namespace
