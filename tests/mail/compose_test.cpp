// How a message becomes a mail.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>

#ifdef _WIN32
#include "vcl/rtl/registry.h"
#include "vcl/rtl/win32.h"
#endif
#include "qel/mail/Qeltiemails_smtp.h"
#include "qel/mail/private/base64.h"
#include "tests/mail/mailtest.h"

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::StartsWith;

std::vector<std::string> Lines(const vcl::TStrings& lines) {
  std::vector<std::string> all;
  for (int i = 0; i < lines.Count(); ++i) all.push_back(lines.Strings(i));
  return all;
}

struct Composing : testing::Test {
  Composing() {
    Mail.SetName("Mail1");
    Mail.SetHost("mx.test");
    Message->SetFromMail("ann@example.test");
    Message->SetSendTo("bob@example.test, cy@example.test");
    Message->SetDate("today");
  }
  std::vector<std::string> Compose() { return Lines(*Mail.InitializeMessage(*Message)); }

  TTestApplication Application;
  qel::TQELSMTPMail Mail{nullptr};
  qel::TQELMessage* Message = Mail.Messages()->Add();
};

TEST_F(Composing, WritesHeadersInOrderAndStuffsDots) {
  Message->Message()->SetText("first\r\n.dot\r\n..\r\n\r\nlast");
  Mail.Signature()->SetText("--\n.sig");
  const std::string host = vcl::TCustomWinSocket::GetLocalHost();
  const std::vector<testing::Matcher<std::string>> expected = {
      AllOf(StartsWith("Message-Id: <QELDT98."), HasSubstr("@" + host), testing::EndsWith(">")),
      "Date: today",
      "From: ann@example.test",
      "X-Mailer: Mail test - [TQELSMTPMail]",
      StartsWith("Generator: QEL Dravel Tools in [Mail1]"),
      StartsWith("URL: http"),
      "To: bob@example.test, cy@example.test",
      "Subject: ",
      "MIME-Version: 1.0",
      "Content-Type: Text/Plain; charset=ISO-8859-1",
      "Content-Transfer-Encoding: 8bit",
      "",
      "first",
      "..dot",
      "...",
      "",
      "last",
      "\r\n",
      "--",
      "..sig"};
  EXPECT_THAT(Compose(), ElementsAreArray(expected));
}

TEST_F(Composing, NumbersMailsByTheClockWithLettersWithoutZ) {
  const std::string digits = "0123456789";
  std::string letters;
  for (int i = 0; i < 200; ++i) {
    const std::string number = Mail.CreateUIN();
    ASSERT_EQ(number.find_first_not_of(digits, 9), 13u) << number;
    ASSERT_EQ(number.find_first_not_of(digits, 14), 22u) << number;
    ASSERT_EQ(number.find('@'), 30u) << number;
    letters += number.substr(22, 8);
  }
  EXPECT_EQ(letters.find_first_not_of("abcdefghijklmnopqrstuvwxy"), letters.npos);
  EXPECT_NE(letters.find_first_not_of(letters[0]), letters.npos);
}

TEST_F(Composing, WritesOptionalHeadersOnlyWhenSet) {
  struct {
    const char *Name, *Address, *From;
  } const table[] = {{"", "ann", "From: ann"},
                     {"Ann", "ann@a.test", "From: \"Ann\" <ann@a.test>"},
                     {"Ann", "ann", "From: \"Ann\" <ann@mx.test>"}};
  Message->SetReplyTo("r@a.test");
  Message->SetInReplyTo("<1@a>");
  for (const auto& each : table) {
    Message->SetFromName(each.Name);
    Message->SetFromMail(each.Address);
    const auto lines = Compose();
    EXPECT_EQ(lines[1], "In-Reply-To: <1@a>");
    EXPECT_EQ(lines[3], each.From);
    EXPECT_EQ(lines[4], "Reply-To: r@a.test");
  }
}

TEST_F(Composing, PutsAttachmentsIntoParts) {
  const TWorkFolder folder("qel-parts");
  WriteFile("a.bin", "abcd");
  qel::TQELAttachment* attachment = Message->Attachments()->Add("/some/where/a.bin");
  EXPECT_EQ(attachment->FileName(), "a.bin");
  attachment->SetMimeType("x/y");
  const auto lines = Compose();
  const std::string start = "Content-Type: multipart/mixed; boundary=\"";
  ASSERT_THAT(lines[9], StartsWith(start + "---QELMAIL"));
  const std::string boundary = "--" + lines[9].substr(start.size(), 22);
  EXPECT_EQ(lines[9], start + boundary.substr(2) + "\"");
  EXPECT_THAT(std::vector(lines.begin() + 10, lines.end()),
              ElementsAre("", boundary, "Content-Type: Text/Plain; charset: ISO-8859-1",
                          "Content-Transfer-Encoding: 8bit", "", "\r\n", boundary,
                          "Content-Type: x/y; name=\"a.bin\"", "Content-Transfer-Encoding: base64",
                          "Content-Disposition: inLine; filename=\"a.bin\"", "", "YWJjZA==", "",
                          boundary + "--", ""));
  attachment->SetFileName("missing.bin");
  EXPECT_THROW(Compose(), vcl::EFOpenError);
  Mail.OnEncodeStart = [&](auto*, auto&, int) { Mail.Abort(); };
  attachment->SetFileName("a.bin");
  EXPECT_EQ(Mail.InitializeMessage(*Message), nullptr) << "aborted";
}

TEST_F(Composing, TellsHowFarEncodingIs) {
  const TWorkFolder folder("qel-encoding");
  std::vector<int> percents;
  Mail.SetProgressStep(qel::TQELPStep(25));
  Mail.OnEncodeProgress = [&](auto*, int percent) { percents.push_back(percent); };
  // One component after the other: what the first file has reached counts for the second.
  struct {
    std::size_t Size;
    std::vector<int> Percents;
    std::vector<std::size_t> LineSizes;
  } const table[] = {{0, {100}, {}},
                     {57, {100}, {76}},
                     {58, {100}, {76, 4}},
                     {4000, {26, 50, 100}, {}},  // The rest behind the last block tells nothing.
                     {2280, {25, 50, 75, 100}, {}},
                     {0, {}, {}}};
  for (const auto& each : table) {
    WriteFile("f", Noise(each.Size));
    qel::TQELAttachment* attachment = Message->Attachments()->Add("f");
    percents.clear();
    Mail.Base64Encode(*attachment);
    EXPECT_THAT(percents, ElementsAreArray(each.Percents)) << each.Size;
    std::vector<std::size_t> sizes;
    for (const std::string& line : Lines(*attachment->Lines())) sizes.push_back(line.size());
    const auto letters = std::accumulate(sizes.begin(), sizes.end(), std::size_t{0});
    EXPECT_EQ(letters, qel::Base64Size(each.Size));
    EXPECT_TRUE(each.LineSizes.empty() || sizes == each.LineSizes);
  }
}

#ifdef _WIN32
TEST(MimeType, IsTheRegisteredOneOfTheExtension) {
  vcl::TRegistry classes;
  classes.SetRootKey(HKEY_CLASSES_ROOT);
  ASSERT_TRUE(classes.OpenKey(".qel-test", true));
  classes.WriteString("Content Type", "x-test/one");
  EXPECT_EQ(qel::TQELAttachments::GetMimeType("C:\\a.b\\c.d.qel-test"), "x-test/one");
  classes.WriteInteger("Content Type", 1);
  EXPECT_EQ(qel::TQELAttachments::GetMimeType("a.qel-test"), "application/octet-stream");
  classes.DeleteKey("\\.qel-test");
#else
TEST(MimeType, IsTheGeneralOneWhereNoneIsRegistered) {
#endif
  for (const char* path : {"a.qel-test", "a", "", ".", "C:\\a.txt\\b"}) {
    EXPECT_EQ(qel::TQELAttachments::GetMimeType(path), "application/octet-stream") << path;
  }
}

#ifndef _WIN32
TEST_F(Composing, IsReadByOtherMailReaders) {
  const TWorkFolder folder("qel-readers");
  Message->SetSubject("Noise");
  std::string expected = "Noise|ann@example.test|2\n";
  for (const std::size_t size : {0, 1, 56, 57, 58, 2279, 2280, 2281, 5'000'000}) {
    const std::string name = std::to_string(size) + ".bin";
    WriteFile(name, Noise(size));
    Message->Attachments()->Add(name);
    expected += name + " True\n";
  }
  WriteFile("mail", Mail.InitializeMessage(*Message)->Text());
  EXPECT_EQ(ReadElsewhere("mail"), expected);
}
#endif

}  // namespace
