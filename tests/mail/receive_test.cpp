// What a fetched mail becomes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "qel/mail/Qeltiemails_pop.h"
#include "qel/mail/mailerror.h"
#include "qel/mail/private/base64.h"
#include "tests/mail/mailtest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

struct Receiving : testing::Test {
  /// Reads a mail as a server sends it.
  qel::TQELMessage& Read(const std::string& mail) {
    return *Mail.ReadMessage("+OK 1 octets\r\n" + mail + "\r\n.\r\n");
  }
  qel::TQELMessage& ReadFields(const std::string& header) { return Read(header + "\r\n\r\ntext"); }

  qel::TQELPOPMail Mail{nullptr};
};

/// name, type, contents of each attachment.
std::vector<std::string> Attachments(const qel::TQELMessage& message) {
  std::vector<std::string> all;
  for (int i = 0; i < message.Attachments()->Count(); ++i) {
    qel::TQELAttachment& each = *message.Attachments()->GeTQELAttachment(i);
    each.Data()->SetPosition(0);
    all.push_back(each.FileName() + "=" + each.Data()->ReadRest());
  }
  return all;
}

TEST_F(Receiving, ReadsFieldsAtTheirColumns) {
  using T = qel::TQELMessage;
  const std::string longText(150, 'x');
  const struct {
    const char* What;
    std::string Header;
    const std::string& (T::*Field)() const;
    std::string Expected;
  } cases[] = {
      {"a name in quotes", "From: \"Ann Bee\" <ann @a.test>", &T::FromName, "Ann Bee "},
      {"its address", "From: \"Ann Bee\" <ann @a.test>", &T::FromMail, "ann@a.test"},
      {"an address alone", "from:  a b@a.test ", &T::FromName, "a b@a.test"},
      {"without blanks", "from:  a b@a.test ", &T::FromMail, "ab@a.test"},
      {"an open bracket", "From: Ann <ann@a.test", &T::FromMail, ""},
      {"brackets the wrong way", "From: >Ann <ann@a.test", &T::FromMail, ""},
      {"folded with a blank", "From: Ann\r\n <ann@a.test>", &T::FromMail, "ann@a.test"},
      {"folded with a tab", "From: Ann\r\n\t<ann@a.test>", &T::FromMail, "Ann"},
      {"127 characters", "From: " + longText, &T::FromMail, longText.substr(0, 127)},
      {"the envelope", "From joe@a.test\r\nTo: me", &T::FromMail, "joe@a.test"},
      {"a first line of another kind", "X-Any: value", &T::FromMail, ":value"},
      {"a number", "Message-ID:  <1@a>  ", &T::MessageId, "<1@a>"},
      {"without its blank", "Message-Id:<1@a>", &T::MessageId, "1@a>"},
      {"the number answered", "In-Reply-To: <0@a>", &T::InReplyTo, "<0@a>"},
      {"where to reply", "Reply-To: cy@a.test \r\n  dee", &T::ReplyTo, "cy@a.test dee"},
      {"by default", "From: Ann <ann@a.test>", &T::ReplyTo, "ann@a.test"},
      {"several recipients", "To: Bob <bob@a.test>,\r\n Cy <cy@a.test>", &T::SendTo, "bob@a.test"},
      {"without names", "To: bob@a.test,\r\n  cy@a.test", &T::SendTo, "bob@a.test,cy@a.test"},
      {"a date", "Date:  Fri, 1 Jan 2027 ", &T::Date, "Fri, 1 Jan 2027"},
      {"72 characters", "Date: " + longText, &T::Date, longText.substr(0, 72)},
      {"a subject", "sUbJeCt:  Hello  ", &T::Subject, "Hello"},
      {"the first of two", "Subject: 1\r\nSubject: 2", &T::Subject, "1"},
      {"nothing", "Subject:", &T::Subject, ""},
  };
  for (const auto& each : cases) {
    EXPECT_EQ((ReadFields(each.Header).*each.Field)(), each.Expected) << each.What;
  }
}

TEST_F(Receiving, ReadsTextsOfOnePart) {
  const struct {
    const char* What;
    std::string Mail;
    std::string Text;
  } cases[] = {
      {"dots", "S: 1\r\n\r\n..\r\n.\r\n..a\r\n.b\r\nc", ".\r\n.\r\n.a\r\nb\r\nc\r\n"},
      {"a dot in the last line", "S: 1\r\n\r\na\r\n..b", "a\r\n..b\r\n"},
      {"no text", "S: 1\r\n", ""},
      {"no header: all is text", "S: 1\r\n..2", "S: 1\r\n..2\r\n"},
      {"nothing at all", "", ""},
      {"ends of lines of all kinds", "S: 1\n\na\nb\rc\r\n\r\nd", "a\r\nb\r\nc\r\n\r\nd\r\n"},
      {"zeros", std::string("S: 1\r\n\r\na\0b", 11), std::string("a\0b\r\n", 5)},
      {"text of any kind", "content-type: text/html; x=y\r\n\r\n<p>", "<p>\r\n"},
      {"a report", "Content-Type: multipart/report; boundary=b\r\n\r\n--b", "--b\r\n"},
      {"a mail in a mail", "Content-Type: message/rfc822\r\n\r\nFrom: x", "From: x\r\n"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(Read(each.Mail).Message()->Text(), each.Text) << each.What;
  }
  EXPECT_EQ(Read("A: 1\r\nB: 2\r\n\r\nx").Headers()->Text(), "A: 1\r\nB: 2\r\n");
}

TEST_F(Receiving, TakesUuencodedFilesOutOfTexts) {
  const struct {
    const char* What;
    std::string Text;
    std::vector<std::string> Files;
    std::string Rest;
  } cases[] = {
      {"a file",
       "hi\r\nbegin 644 a.txt\r\n\r\n#86)C\r\n`\r\nend\r\nbye",
       {"a.txt=abc"},
       "hi\r\nend\r\nbye\r\n"},
      {"two, in capitals, without their last line",
       "BEGIN 600 a b\r\n#86)C\r\n END \r\nbegin   1 c\r\n!80",
       {"a b=abc", "c=a"},
       " END \r\n"},
      {"a mode too high",
       "begin 777 a.txt\r\n#86)C\r\nend",
       {},
       "begin 777 a.txt\r\n#86)C\r\nend\r\n"},
      {"no mode", "beginning of a text", {}, "beginning of a text\r\n"},
      {"too short", "begin 644 ", {}, "begin 644 \r\n"},
      {"nothing behind it", "begin 644 a.txt", {"a.txt="}, ""},
      {"letters that are missing count as none",
       "begin 644 a\r\n#86\r\n`\r\nend",
       {std::string("a=a`\0", 5)},
       "end\r\n"},
      {"a folder in the name", "begin 644 ../x/a\r\n!80\r\nend", {"a=a"}, "end\r\n"},
  };
  for (const auto& each : cases) {
    const qel::TQELMessage& read = Read("S: 1\r\n\r\n" + each.Text);
    EXPECT_EQ(Attachments(read), each.Files) << each.What;
    EXPECT_EQ(read.Message()->Text(), each.Rest) << each.What;
  }
  EXPECT_THROW(Read("S: 1\r\n\r\nbegin 100 reasons why\r\nnot\r\n"), qel::EQELMailError);
}

/// A mail of parts, each given with its header.
std::string Multipart(const std::vector<std::string>& parts,
                      const std::string& boundary = "\"b c\"; other=\"x\"",
                      const std::string& subject = "Subj") {
  std::string mail = "Subject: " + subject +
                     "\r\nContent-Type: multipart/mixed;\r\n BOUNDARY=" + boundary +
                     "\r\n\r\nprologue\r\n";
  for (const std::string& part : parts) mail += "--b c\r\n" + part + "\r\n";
  return mail + "--b c--\r\nepilogue";
}

TEST_F(Receiving, TellsPartsApart) {
  const std::string coded = "Content-Transfer-Encoding: base64\r\n";
  const struct {
    const char* What;
    std::string Part;
    std::vector<std::string> Files;
    std::string Text;
  } cases[] = {
      {"a text",
       "Content-Type: text/plain\r\n\r\nhello\r\n--b c-\r\nyou",
       {},
       "hello\r\n--b c-\r\nyou\r\n"},
      {"a part without header", "\r\nhello", {}, "hello\r\n"},
      {"a part of nothing", "Content-Type: text/plain", {}, ""},
      {"base64 with a name",
       coded + "Content-Disposition: x; filename=\"a.b\"\r\n\r\n \r\nYWJj\r\nZA==",
       {"a.b=abcd"},
       ""},
      {"a name without quotes loses two characters",
       coded + "X: FileName=abcd\r\n\r\nYQ==",
       {"bc=a"},
       ""},
      {"a name of the type", coded + "Content-Type: x/y; name=\"d\"\r\n\r\nYQ==", {"d=a"}, ""},
      {"not in quotes", coded + "Content-Type: x/y; name= d.e \r\n\r\nYQ==", {"d.e=a"}, ""},
      {"a file's name is preferred",
       coded + "X: name=n\r\nY: filename=\"f\"\r\n\r\nYQ==",
       {"f=a"},
       ""},
      {"characters that no name may have",
       coded + "X: filename=\"a\\/:*?\"<>|b\"\r\n\r\nYQ==",
       {"ab=a"},
       ""},
      {"nothing left of it", coded + "X: filename=\"??\"\r\n\r\nYQ==", {"_Cosa_=a"}, ""},
      {"no name: the subject", coded + "\r\nYQ==", {"Subj=a"}, ""},
      {"a page",
       "Content-Type: TEXT/html; x=y\r\n\r\n<p>\r\n</p>\r\n",
       {"Subj.html=<p>\r\n</p>\r\n"},
       ""},
      {"a named text loses its last line", "X: name=n\r\n\r\none\r\ntwo", {"n=one\r\n"}, ""},
      {"uuencoded",
       "Content-Transfer-Encoding: x-uuencode\r\n\r\n\r\nbegin 644 x\r\n#86)C\r\n`\r\nend\r\n",
       {"Subj=abc"},
       ""},
      {"base64 of nothing", coded + "\r\n", {"Subj="}, ""},
  };
  for (const auto& each : cases) {
    const qel::TQELMessage& message = Read(Multipart({each.Part}));
    EXPECT_EQ(Attachments(message), each.Files) << each.What;
    EXPECT_EQ(message.Message()->Text(), each.Text) << each.What;
  }
  for (const char* subject : {"", "<?>"}) {
    EXPECT_THAT(
        Attachments(Read(Multipart({"content-type: text/html\r\n\r\n.\r\n"}, "b c", subject))),
        ElementsAre(StartsWith("_Cosa_.html=")))
        << subject;
  }
  const qel::TQELMessage& several = Read(Multipart({"\r\none", coded + "\r\nYQ==", "", "\r\ntwo"}));
  EXPECT_EQ(several.Message()->Text(), "one\r\ntwo\r\n");
  EXPECT_THAT(Attachments(several), ElementsAre("Subj=a"));
}

TEST_F(Receiving, RefusesPartsThatCannotBeToldApart) {
  const std::string type = "Content-Type: multipart/mixed";
  EXPECT_THROW(Read("Content-Type: image/png\r\n\r\nx"), qel::EQELMailError);
  EXPECT_THROW(Read(type + "; boundary=b\r\n\r\nx"), qel::EQELMailError);
  EXPECT_THROW(Read(type + "; boundary=b; x=y\r\n\r\n--b\r\n\r\n--b--"), qel::EQELMailError);
  EXPECT_THROW(Read(type + "; boundary=b\r\n\r\n--b\r\n\r\ntext\r\n--b-- "), vcl::EStringListError);
}

struct Decoding : Receiving {
  Decoding() {
    Mail.OnDecodeStart = [this](auto*, const std::string& name, int lines) {
      Events.push_back("start " + name + " " + std::to_string(lines));
    };
    Mail.OnDecodeProgress = [this](auto*, int percent) {
      Events.push_back(std::to_string(percent));
    };
    Mail.OnDecodeEnd = [this](auto*) { Events.push_back("end"); };
    Attachment->SetFileName("a");
  }
  std::string Decode(const std::vector<std::string>& lines) {
    Attachment->SetData(std::make_unique<vcl::TMemoryStream>());
    Attachment->Lines()->Clear();
    for (const std::string& line : lines) Attachment->Lines()->Add(line);
    Mail.Base64Decode(*Attachment);
    Attachment->Data()->SetPosition(0);
    return Attachment->Data()->ReadRest();
  }

  qel::TQELAttachment* Attachment = Mail.Messages()->Add()->Attachments()->Add("a");
  std::vector<std::string> Events;
};

TEST_F(Decoding, CountsBytesByThePadMarks) {
  const struct {
    std::vector<std::string> Lines;
    std::string Bytes;
  } cases[] = {
      {{"YWJj"}, "abc"},
      {{"YWI="}, "ab"},
      {{"YQ=="}, "a"},
      {{"YQ=j"}, "a"},
      {{"=WJj"}, ""},
      {{"=WJ="}, std::string("\x01\x62", 2)},
      {{"===="}, std::string("\0", 1)},
      {{"Y=Jj"}, std::string("`\x02\x63", 3)},
      {{"YW", "", "JjZG", "Vm"}, "abcdef"},  // Groups go on in the next line.
      {{"YWJjZ"}, "abc"},                    // What is no whole group is lost.
      {{"YWJj", "ZG!m"}, "abcdbf"},          // "!" counts as the place's last letter, the J.
      {{"!!!!"}, std::string(3, '\0')},
      {{"YQ==", "YWJ "},
       std::string("a"
                   "ab@")},  // The fourth place was taken as 0.
  };
  for (const auto& each : cases) EXPECT_EQ(Decode(each.Lines), each.Bytes) << each.Lines[0];
}

TEST_F(Decoding, TellsOfProgressGroupByGroup) {
  Mail.SetProgressStep(qel::TQELPStep{20});
  Decode({"YWJjYWJjYWJj", "YWJjYWJjYWJj", "YWJj", "YWJj"});
  // The line that completes the group counts, from 0; the second has three groups, the last one
  // completes two steps late.
  EXPECT_THAT(Events, ElementsAre("start a 4", "25", "50", "75", "100", "end"));
  Mail.SetProgressStep(qel::TQELPStep{10});
  Events.clear();
  Decode(std::vector<std::string>(300, "YWJj"));
  EXPECT_THAT(Events, ElementsAre("start a 300", "10", "20", "30", "40", "50", "60", "70", "80",
                                  "90", "100", "end"));
  Events.clear();
  Decode({});
  EXPECT_THAT(Events, ElementsAre("start a 0", "end"));  // 100 has been reached before.
}

TEST_F(Decoding, GivesBackWhatWasEncoded) {
  TTestApplication application;
  int pumped = 0;
  application.OnPump = [&] { ++pumped; };
  for (const std::size_t size : {0, 1, 2, 3, 57, 58, 100'000}) {
    const std::string bytes = Noise(size);
    std::string text(qel::Base64Size(size), ' ');
    qel::EncodeBase64(reinterpret_cast<const unsigned char*>(bytes.data()), size, text.data());
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size(); at += 76) lines.push_back(text.substr(at, 76));
    EXPECT_EQ(Decode(lines), bytes) << size;
  }
  EXPECT_GE(pumped, 8);
}

TEST_F(Decoding, SurvivesHandlersThatChangeWhatIsDecoded) {
  const std::vector<std::string> lines(100, "YWJj");
  Mail.OnDecodeProgress = [this](auto*, int) { Attachment->Lines()->Clear(); };
  EXPECT_EQ(Decode(lines), "abcabc");
  Mail.OnDecodeProgress = [this](auto*, int percent) {
    if (percent == 97) Attachment->SetData(nullptr);
  };
  EXPECT_EQ(Decode(lines), "abcabc");
  Mail.OnDecodeProgress = [this](auto*, int) { Mail.Messages()->Clear(); };
  EXPECT_THROW(Decode(lines), vcl::EInvalidOperation);
  Mail.OnDecodeProgress = nullptr;
  Mail.AfterRetrieve = [this](auto*) { Mail.Messages()->Clear(); };
  EXPECT_EQ(Mail.ReadMessage("+OK\r\nS: 1\r\n\r\nx\r\n.\r\n"), nullptr);
}

TEST_F(Receiving, FindsLines) {
  vcl::TStringList list;
  list.SetText("x\r\nSub: a\r\nsubject: b Sub\r\nbegin 777 x\r\nbegin 644 x y\r\n");
  int index = -1, position = -1;
  std::string name;
  EXPECT_TRUE(Mail.FindInHeaders("SUBJ", list, index));
  EXPECT_EQ(index, 2);
  EXPECT_TRUE(Mail.FindInStringList("B SUB", list, index, position));
  EXPECT_EQ(index, 2);
  EXPECT_EQ(position, 10);
  EXPECT_TRUE(Mail.FindInStringListCS("sub", list, index));
  EXPECT_EQ(index, 2);
  EXPECT_TRUE(Mail.GetUUAttachments(list, index, name));
  EXPECT_EQ(index, 4);
  EXPECT_EQ(name, "x y");
  EXPECT_FALSE(Mail.FindInHeaders("subj", list, index));
  EXPECT_FALSE(Mail.FindInStringListCS("SUBJ", list, index));
  EXPECT_EQ(index, 4);
}

#ifndef _WIN32
TEST_F(Receiving, ReadsWhatOthersCompose) {
  const TWorkFolder folder("qel-composed");
  const std::vector<std::size_t> sizes = {0, 1, 56, 57, 58, 2279, 2280, 2281, 500'000};
  for (const std::size_t size : sizes) WriteFile(std::to_string(size), Noise(size));
  WriteFile("compose.py", R"(
import email.message, email.policy, sys
m = email.message.EmailMessage(policy=email.policy.SMTP)
m['From'], m['To'] = '"Ann Bee" <ann@a.test>', 'bob@a.test, cy@a.test'
m['Subject'], m['Message-ID'] = 'Noise', '<1@a.test>'
m.set_content('.\n..\n\nlast\n')
for name in sys.argv[1:]:
  m.add_attachment(open(name, 'rb').read(), 'application', 'octet-stream', filename=name + '.bin')
m.add_attachment('<p>\n', 'html')
mail = m.as_bytes().replace(b'\r\n.', b'\r\n..')
open('mail', 'wb').write(b'+OK\r\n' + mail + b'.\r\n')
)");
  std::string command = "timeout 60 /usr/bin/python3 compose.py";
  for (const std::size_t size : sizes) command += " " + std::to_string(size);
  ASSERT_EQ(std::system(command.c_str()), 0);
  vcl::TMemoryStream mail;
  mail.LoadFromFile("mail");

  const qel::TQELMessage& message = *Mail.ReadMessage(mail.ReadRest());
  EXPECT_EQ(message.FromName() + message.FromMail(), "Ann Bee ann@a.test");
  EXPECT_EQ(message.SendTo(), "bob@a.test,cy@a.test");
  EXPECT_EQ(message.Subject() + message.MessageId(), "Noise<1@a.test>");
  EXPECT_EQ(message.Message()->Text(), ".\r\n..\r\n\r\nlast\r\n\r\n");
  std::vector<std::string> expected;
  for (const std::size_t size : sizes) {
    expected.push_back(std::to_string(size) + ".bin=" + Noise(size));
  }
  expected.push_back("Noise.html=<p>\r\n");
  EXPECT_TRUE(Attachments(message) == expected);
}
#endif

TEST(TextLines, AreAList) {
  qel::TTextLines lines;
  vcl::TStringList plain;
  for (vcl::TStrings* each :
       {static_cast<vcl::TStrings*>(&lines), static_cast<vcl::TStrings*>(&plain)}) {
    each->SetText("one\r\n\r\nthree\n");
    each->Insert(0, "zero");
    each->Insert(3, "two");
    each->SetStrings(1, "1");
    each->Move(4, 0);
    each->Delete(2);
  }
  EXPECT_TRUE(lines.Equals(plain)) << lines.Text();
  EXPECT_EQ(lines.Letters(), "threezerotwo");
  EXPECT_THROW(lines.SetObjects(0, &plain), vcl::EStringListError);
  EXPECT_THROW(lines.Strings(4), vcl::EStringListError);
}

}  // namespace
