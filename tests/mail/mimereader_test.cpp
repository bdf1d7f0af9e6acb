// How mails of the standard format are taken apart.
#include "qel/mail/private/mimereader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qel;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> Files(const TReadMail& mail) {
  std::vector<std::string> files;
  for (const TReadAttachment& each : mail.Attachments) {
    files.push_back(each.Name + "|" + each.Type + "|" + each.ContentId + "|" + each.Data);
  }
  return files;
}

TEST(MimeReader, ReadsFieldsFoldedAndEncoded) {
  const TReadMail mail = ReadMime(
      "From: =?utf-8?Q?J=C3=BCrgen?=\r\n\t<j@a.test>\r\n"
      "To: a@b.test,\r\n \"B, C\" <c@d.test>\r\nCC: x@y.test\r\n"
      "Subject: =?utf-8?B?R3LDvMOf?=\r\n =?utf-8?B?ZQ==?= to\r\n  you\r\n"
      "Message-ID:\r\n <1@a.test>\r\nReferences: <0@a.test>\r\n <00@a.test>\r\nIn-Reply-To: "
      "<0@a.test>\r\n"
      "Date: Mon, 2 Nov 2026 09:30:00 +0100\r\nsubject: second\r\n\r\nbody\r\n");
  ASSERT_EQ(mail.From.size(), 1u);
  EXPECT_EQ(mail.From[0].Name + mail.From[0].Address, "Jürgenj@a.test");
  EXPECT_EQ(ShowAddresses(mail.To), "a@b.test, \"B, C\" <c@d.test>");
  EXPECT_EQ(ShowAddresses(mail.Cc), "x@y.test");
  EXPECT_EQ(mail.Subject, "Grüße to  you");
  EXPECT_EQ(mail.MessageId, "<1@a.test>");
  EXPECT_EQ(mail.References, "<0@a.test> <00@a.test>");
  EXPECT_EQ(mail.Date, "Mon, 2 Nov 2026 09:30:00 +0100");
  EXPECT_EQ(mail.Text, "body\r\n");
  EXPECT_THAT(mail.Notes, IsEmpty());
}

TEST(MimeReader, SortsPartsIntoTextsAndFiles) {
  const TReadMail mail = ReadMime(
      "Content-Type: multipart/mixed; boundary=\"out\"\r\n\r\npreamble\r\n--out\r\n"
      "Content-Type: multipart/related; boundary=out-in\r\n\r\n"
      "--out-in\r\nContent-Type: multipart/alternative; boundary=alt\r\n\r\n"
      "--alt\r\nContent-Type: text/plain; charset=iso-8859-1\r\nContent-Transfer-Encoding: "
      "quoted-printable\r\n\r\n"
      "gr=FCn\r\n--alt\r\nContent-Type: text/html; charset=utf-8\r\nContent-Transfer-Encoding: "
      "base64\r\n\r\n"
      "PGI+Z3LDvG48L2I+\r\n--alt--\r\n"
      "--out-in\r\nContent-Type: image/png\r\nContent-ID: <pic@x>\r\nContent-Disposition: "
      "inline\r\n\r\nPNG\r\n--out-in--\r\n"
      "--out  \r\nContent-Type: text/plain; name=a.txt\r\n\r\nfile\r\n"
      "--out\r\nContent-Type: text/plain\r\nContent-Disposition: attachment; "
      "filename*=utf-8''%C3%BC.txt\r\n\r\nu\r\n"
      "--outer is no boundary\r\n"
      "--out\r\nContent-Type: message/rfc822\r\n\r\nSubject: in/side\r\n\r\n--not mine\r\n"
      "--out\r\n\r\nsecond text\r\n--out--\r\nepilogue\r\n");
  EXPECT_EQ(mail.Text, "grün\r\n\r\nsecond text");
  EXPECT_EQ(mail.HtmlText, "<b>grün</b>");
  EXPECT_THAT(Files(mail),
              ElementsAre("attachment.png|image/png|pic@x|PNG", "a.txt|text/plain||file",
                          "ü.txt|text/plain||u\r\n--outer is no boundary",
                          "in side.eml|message/rfc822||Subject: in/side\r\n\r\n--not mine"));
  EXPECT_THAT(mail.Notes, IsEmpty());
}

TEST(MimeReader, ReadsMailsOfOnePart) {
  const TReadMail pdf = ReadMime(
      "Content-Type: application/pdf; name=x.pdf\r\nContent-Transfer-Encoding: "
      "BASE64\r\n\r\nUERG\r\n");
  EXPECT_THAT(Files(pdf), ElementsAre("x.pdf|application/pdf||PDF"));
  EXPECT_EQ(pdf.Text, "");
  EXPECT_EQ(ReadMime("Content-Type: text/html\r\n\r\n<p>").HtmlText, "<p>");
  const TReadMail old = ReadMime(
      "Subject: s\r\n\r\nbefore\r\nbegin 644 c.txt\r\n#86)C\r\n`\r\nend\r\nafter\r\nbegin 644 "
      "never\r\n");
  EXPECT_EQ(old.Text, "before\r\nafter\r\nbegin 644 never\r\n");
  EXPECT_THAT(Files(old), ElementsAre("c.txt|application/octet-stream||abc"));
}

TEST(MimeReader, ReadsDamagedMailsAsFarAsTheyGo) {
  const TReadMail cut = ReadMime(
      "Content-Type: multipart/mixed; boundary=b\r\n\r\n--b\r\n\r\ntext\r\n--b\r\n"
      "Content-Type: a/b; name=n\r\nContent-Transfer-Encoding: base64\r\n\r\nYWJjZGV");
  EXPECT_EQ(cut.Text, "text");
  EXPECT_THAT(Files(cut), ElementsAre("n|a/b||abcde"));
  EXPECT_THAT(cut.Notes, ElementsAre(HasSubstr("ends before")));
  EXPECT_EQ(ReadMime("Content-Type: multipart/mixed\r\n\r\n--b\r\n\r\ntext").Text,
            "--b\r\n\r\ntext");
  EXPECT_EQ(ReadMime("no header at all").Text, "no header at all");
  EXPECT_EQ(ReadMime("").Text, "");
  EXPECT_EQ(ReadMime("Subject: only").Subject, "only");
  EXPECT_EQ(ReadMime("From x@y Mon\r\nSubject: kept\n\nbody").Subject, "kept")
      << "an envelope, LF alone";
  EXPECT_EQ(ReadMime("Subject: s\rX: y\r\rbody").Text, "body") << "CR alone";
  const TReadMail junk =
      ReadMime("Content-Type: a/b\r\nContent-Transfer-Encoding: base64\r\n\r\nYW!Jj=\r\nZGVm\r\n");
  EXPECT_THAT(Files(junk), ElementsAre("attachment.bin|a/b||abcdef"));
  EXPECT_THAT(junk.Notes, ElementsAre(HasSubstr("damaged")));
  EXPECT_THAT(ReadMime("Content-Type: a/b\r\nContent-Transfer-Encoding: x-zip\r\n\r\nz").Notes,
              ElementsAre(HasSubstr("x-zip")));
}

TEST(MimeReader, IsNotHeldUpByHostileMails) {
  std::string deep;
  for (int i = 0; i < 2000; ++i) {
    const std::string b = "b" + std::to_string(i);
    deep += "Content-Type: multipart/mixed; boundary=" + b + "\r\n\r\n--" + b + "\r\n";
  }
  EXPECT_THAT(ReadMime(deep).Notes, testing::Contains(HasSubstr("more parts")));
  std::string many = "Content-Type: multipart/mixed; boundary=b\r\n\r\n";
  for (int i = 0; i < 100000; ++i) many += "--b\r\nContent-Type: a/b; name=x\r\n\r\n";
  const TReadMail read = ReadMime(many);
  EXPECT_EQ(read.Attachments.size(), 10000u);
  EXPECT_EQ(read.Attachments.back().Name, "x (10000)");
  std::string parameters = "Content-Type: a/b";
  for (int i = 0; i < 100000; ++i) parameters += "; x*" + std::to_string(i) + "*=%41";
  EXPECT_EQ(ReadMime(parameters + "\r\n\r\n").Attachments.size(), 1u);
  EXPECT_EQ(
      ReadMime("Subject: " + std::string(1000000, '(') + "\r\nTo: " + std::string(1000000, '(') +
               "\r\nContent-Type: " + std::string(300000, '(') + "\r\n\r\n")
          .Subject.size(),
      1000000u);
}

}  // namespace
