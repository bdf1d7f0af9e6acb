// Mail that goes out through one real server and comes back from another.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "qel/mail/Qeltiemails.h"
#include "tests/mail/mailtest.h"
#include "vcl/rtl/convert.h"

namespace {

using testing::IsEmpty;

int Port(const char* setting) {
  const char* value = std::getenv(setting);
  return value ? vcl::StrToInt(value) : 0;
}

struct RoundTrip : testing::Test {
  RoundTrip() {
    Sender.SetHost("localhost");
    Sender.SetPort(std::to_string(Port("QEL_SMTP_PORT")));
    Message->SetFromName("Ann Bee");
    Message->SetFromMail("ann@example.test");
    Sender.OnError = Receiver.OnError = [this](auto*, int, const std::string& text) {
      Application.Errors.push_back(text);
    };
    Receiver.SetHost("localhost");
    Receiver.SetPort(std::to_string(Port("QEL_POP_PORT")));
    Receiver.SetPassword("secret");
    Receiver.SetDeleteOfServer(true);
  }

  void Attach(std::size_t size) {
    const std::string name = std::to_string(size) + ".bin";
    WriteFile(name, Noise(size));
    Message->Attachments()->Add(name);
  }

  /// Fetches the user's mails, which take a moment to be delivered, until there are so many.
  void Fetch(const char* user, int count) {
    Receiver.SetUsername(user);
    Receiver.Messages()->Clear();
    for (int i = 0; i < 100 && Receiver.Messages()->Count() < count; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
      ASSERT_TRUE(Receiver.Execute());
    }
    ASSERT_EQ(Receiver.Messages()->Count(), count);
    EXPECT_EQ(Receiver.MessageCount(), 0);
  }

  static void ExpectAttachments(const qel::TQELMessage& message,
                                const std::vector<std::size_t>& sizes) {
    ASSERT_EQ(message.Attachments()->Count(), static_cast<int>(sizes.size()));
    for (int i = 0; i < message.Attachments()->Count(); ++i) {
      qel::TQELAttachment& each = *message.Attachments()->GeTQELAttachment(i);
      const std::size_t size = sizes[static_cast<std::size_t>(i)];
      each.Data()->SetPosition(0);
      EXPECT_TRUE(each.Data()->ReadRest() == Noise(size)) << size;
      EXPECT_EQ(each.FileName(), std::to_string(size) + ".bin");
    }
  }

  const TWorkFolder Folder{"qel-round-trip"};
  TTestApplication Application;
  qel::TQELSMTPMail Sender{nullptr};
  qel::TQELPOPMail Receiver{nullptr};
  qel::TQELMessage* Message = Sender.Messages()->Add();
};

TEST_F(RoundTrip, BringsTextsAndAttachmentsToAllRecipients) {
  const std::vector<std::size_t> sizes = {0, 1, 56, 57, 58, 2279, 2280, 2281};
  for (const std::size_t size : sizes) Attach(size);
  const std::string text = ".\r\n..\r\n.dot\r\n\r\nlast\r\n";
  Message->Message()->SetText(text);
  Message->SetSubject("Sizes");
  Message->SetSendTo("dee@example.test,eve@example.test");
  Sender.Messages()->Add()->Assign(Message);
  qel::TQELMessage& empty = *Sender.Messages()->GetQELMessage(1);
  empty.Message()->Clear();
  empty.Attachments()->Clear();
  EXPECT_TRUE(Sender.Execute());
  for (const char* user : {"dee", "eve"}) {
    Fetch(user, 2);
    for (int i = 0; i < Receiver.Messages()->Count(); ++i) {
      const qel::TQELMessage& message = *Receiver.Messages()->GetQELMessage(i);
      EXPECT_EQ(message.Subject(), "Sizes");
      EXPECT_EQ(message.FromName(), "Ann Bee ");
      EXPECT_EQ(message.FromMail(), "ann@example.test");
      EXPECT_EQ(message.SendTo(), "dee@example.test,eve@example.test");
      const bool withFiles = message.Attachments()->Count() > 0;
      // Two empty lines follow each text, and one the mail.
      EXPECT_EQ(message.Message()->Text(), withFiles ? text + "\r\n\r\n" : "\r\n\r\n\r\n");
      if (withFiles) ExpectAttachments(message, sizes);
    }
  }
  EXPECT_THAT(Application.Errors, IsEmpty());
}

/// Hands a composed mail to the server at once: the sender, which rests behind each line, would
/// take three quarters of an hour for a large one.
void Deliver(const std::string& mail, const char* recipient) {
  vcl::TClientSocket client(nullptr);
  client.SetHost("localhost");
  client.SetPort(Port("QEL_SMTP_PORT"));
  client.Open();
  vcl::TCustomWinSocket& socket = *client.Socket();
  EXPECT_THAT(socket.ReceiveText(), testing::StartsWith("220"));
  for (const std::string& command :
       {std::string("HELO here"), std::string("MAIL FROM:<ann@example.test>"),
        std::string("RCPT TO:<") + recipient + ">", std::string("DATA"), mail + "."}) {
    socket.SendText(command + "\r\n");
    EXPECT_THAT(socket.ReceiveText(), testing::MatchesRegex("(250|354) .*"))
        << command.substr(0, 99);
  }
}

TEST_F(RoundTrip, BringsALargeFile) {
  Attach(5'000'000);
  Deliver(Sender.InitializeMessage(*Message)->Text(), "fay@example.test");
  std::vector<int> percents;
  Receiver.OnRetrieveProgress = [&](auto*, int percent) { percents.push_back(percent); };
  Fetch("fay", 1);
  ExpectAttachments(*Receiver.Messages()->GetQELMessage(0), {5'000'000});
  EXPECT_THAT(percents, testing::SizeIs(100));
  EXPECT_THAT(Application.Errors, IsEmpty());
}

TEST_F(RoundTrip, IsRefusedWithoutThePassword) {
  Receiver.SetUsername("gus");
  Receiver.SetPassword("wrong");
  EXPECT_TRUE(Receiver.Execute());
  EXPECT_THAT(Application.Errors, testing::ElementsAre(testing::HasSubstr("Authentication failed"),
                                                       "Unable to connect"));
}

}  // namespace
