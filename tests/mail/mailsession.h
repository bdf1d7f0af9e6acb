// What the tests of the sender and the receiver share: sessions with a server that answers by a
// table.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <optional>

#include "qel/mail/Qeltiemails.h"
#include "tests/mail/mailtest.h"
#include "tests/support/server.h"
#include "vcl/rtl/valuetext.h"

/// What the server says to each command, and first of all (""); an empty text closes.
using TReplies = std::map<std::string, std::string>;
inline constexpr const char* Silence = "silence";

template <class T>
class TMailSession : public testing::Test {
 protected:
  /// Makes an event of the component run the other function.
  using TTakeEvent = void (*)(T& mail, std::function<void()> call);
  template <auto... Events>
  static constexpr TTakeEvent TakeEvent[] = {+[](T& mail, std::function<void()> call) {
    mail.*Events = [call](auto&&...) { call(); };
  }...};

  explicit TMailSession(TReplies polite) : Polite(std::move(polite)) {}

  void MakeMail() {
    delete Mail;
    Mail = new T(&Application);
    Mail->SetHost("127.0.0.1");
    Note(Mail->OnConnect, "connect");
    Note(Mail->OnDisconnect, "disconnect");
    Mail->OnError = [this](vcl::TObject* sender, int code, const std::string& text) {
      EXPECT_EQ(sender, static_cast<vcl::TObject*>(Mail));
      Events.push_back("error " + std::to_string(code) + " " + text);
    };
    SetUpMail();
  }
  virtual void SetUpMail() = 0;
  void Note(vcl::TNotifyEvent& event, const char* what) {
    event = [this, what](vcl::TObject*) { Events.push_back(what); };
  }

  /// The stage that the line belongs to; nothing when it gets no reply.
  virtual std::optional<std::string> Stage(const std::string& line, const TReplies& replies) = 0;

  /// One session with a server that is polite but for some replies. What it heard is in Heard.
  bool Execute(const TReplies& except = {}, bool bytewise = false) {
    Events.clear();
    Heard.clear();
    Application.Errors.clear();
    TReplies replies = Polite;
    for (const auto& [stage, reply] : except) replies[stage] = reply;
    const TTestServer server([&](TPeer& peer) { Serve(peer, replies, bytewise); });
    Mail->SetPort(std::to_string(server.Port()));
    return Mail->Execute();
  }

  /// A session does not begin, for the property's value breaks a line.
  void ExpectRefusal(const std::string& property, const std::string& value) {
    EXPECT_FALSE(Execute()) << property;
    EXPECT_THAT(Application.Errors,
                testing::ElementsAre(testing::AllOf(testing::HasSubstr(property),
                                                    testing::HasSubstr(vcl::FormString(value)))));
    ASSERT_TRUE(Application.ErrorType) << property;
    EXPECT_TRUE(*Application.ErrorType == typeid(qel::EQELMailError)) << property;
    EXPECT_THAT(Events, testing::IsEmpty()) << "nothing is connected";
    EXPECT_FALSE(Mail->Busy());
  }

  const TReplies Polite;
  TTestApplication Application;
  T* Mail = nullptr;
  std::vector<std::string> Events, Heard;

 private:
  void Serve(TPeer& peer, const TReplies& replies, bool bytewise) {
    std::optional<std::string> stage = "";
    for (;;) {
      if (stage) {
        const std::string& reply = replies.at(*stage);
        if (reply == Silence) return peer.HearEnd();
        if (reply.empty()) return;
        bytewise ? peer.SayBytewise(reply) : peer.Say(reply);
      }
      const auto line = peer.Hear();
      if (!line) return;
      Heard.push_back(*line);
      stage = Stage(*line, replies);
    }
  }
};

class Sending : public TMailSession<qel::TQELSMTPMail> {
  using T = qel::TQELSMTPMail;

 protected:
  static constexpr auto& EveryEvent =
      TakeEvent<&T::OnExecute, &T::OnConnect, &T::OnBeforeSend, &T::OnEncodeStart,
                &T::OnEncodeProgress, &T::OnSendProgress, &T::OnAfterSend, &T::OnDisconnect,
                &T::OnError>;
  /// Which of them comes between two commands.
  static constexpr int InTheMiddle = 2;
  static constexpr const char* Refusal = "500 no\r\n";

  Sending()
      : TMailSession({{"", "220 hello\r\n"},
                      {"HELO", "250 it is you\r\n"},
                      {"MAIL", "250 ok\r\n"},
                      {"RCPT", "250 2.1.5 ok\r\n"},
                      {"DATA", "354 go on\r\n"},
                      {".", "250 done\r\n"},
                      {"QUIT", "221 bye\r\n"}}) {
    MakeMail();
  }

  void SetUpMail() override {
    AddMessage();
    Note(Mail->OnBeforeSend, "before");
    Note(Mail->OnAfterSend, "after");
  }
  qel::TQELMessage* AddMessage() {
    qel::TQELMessage* message = Mail->Messages()->Add();
    message->SetFromMail("ann@a.test");
    message->SetSendTo("bob@a.test");
    return message;
  }
  /// Makes the first mail one that has something to encode.
  void AddFile(const char* name) { Mail->Messages()->GetQELMessage(0)->Attachments()->Add(name); }

  std::optional<std::string> Stage(const std::string& line, const TReplies& replies) override {
    const std::string command = line.substr(0, line.find(' '));
    if (FData && command != "." && command != "HELO") return std::nullopt;
    FData = command == "DATA" && replies.at("DATA").starts_with("354");
    return command;
  }

 private:
  bool FData = false;
};

class Fetching : public TMailSession<qel::TQELPOPMail> {
  using T = qel::TQELPOPMail;

 protected:
  static constexpr auto& EveryEvent =
      TakeEvent<&T::OnExecute, &T::OnConnect, &T::BeforeRetrieve, &T::OnRetrieveProgress,
                &T::OnDecodeStart, &T::OnDecodeProgress, &T::OnDecodeEnd, &T::AfterRetrieve,
                &T::OnDelete, &T::OnDisconnect, &T::OnError>;
  static constexpr int InTheMiddle = 2;
  static constexpr const char* Refusal = "-ERR no\r\n";

  Fetching()
      : TMailSession({{"", "+OK hello\r\n"},
                      {"USER", "+OK\r\n"},
                      {"PASS", "+OK in\r\n"},
                      {"STAT", "+OK 2 80\r\n"},
                      {"RETR",
                       "+OK 74 octets\r\nFrom: Ann <ann@a.test>\r\n\r\ntext\r\n"
                       "begin 644 a\r\n#86)C\r\n#86)C\r\n`\r\nend\r\n.\r\n"},
                      {"DELE", "+OK gone\r\n"},
                      {"QUIT", "+OK bye\r\n"}}) {
    MakeMail();
  }

  void SetUpMail() override {
    Mail->SetUsername("bob");
    Mail->SetPassword("secret");
    Mail->SetDeleteOfServer(true);
    const auto noteNumber = [this](const char* what) {
      return [this, what](auto*, int number) { Events.push_back(what + std::to_string(number)); };
    };
    Note(Mail->AfterRetrieve, "after");
    Mail->BeforeRetrieve = noteNumber("before ");
    Mail->OnRetrieveProgress = noteNumber("percent ");
    Mail->OnDelete = noteNumber("deleted ");
  }

  void AddFile(const char*) {}  // What is fetched has one.

  std::optional<std::string> Stage(const std::string& line, const TReplies& replies) override {
    return replies.contains(line) ? line : line.substr(0, 4);
  }
};
