// How mails of the standard format are written: they come back as they were, to this reader and to
// another one.
#include "qel/mail/private/mimewriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "qel/mail/mailerror.h"
#include "qel/mail/private/digests.h"
#include "qel/mail/private/mimereader.h"
#include "tests/mail/mailtest.h"
#include "vcl/rtl/text.h"

namespace {

using namespace qel;

std::function<std::size_t(char*, std::size_t)> From(std::string data) {
  return [data = std::move(data), at = std::size_t{0}](char* buffer, std::size_t count) mutable {
    // In portions of any size.
    count = std::min({count, data.size() - at, std::size_t{1000}});
    data.copy(buffer, count, at);
    at += count;
    return count;
  };
}

std::string Written(const TWriteMail& mail) {
  std::string text;
  WriteMime(mail, [&](std::string_view line) {
    EXPECT_LE(line.size(), 998u);
    EXPECT_EQ(line.find_first_of("\r\n"), line.npos) << line;
    text.append(line).append("\r\n");
  });
  return text;
}

/// Random mails, the same in each run.
class TMails {
 public:
  TWriteMail Next() {
    TWriteMail mail;
    // Python puts blanks between the words that a long name is encoded in.
    mail.From = {{std::string(vcl::CutUtf8(Words(3), 30)), "ann@a.test"}};
    mail.To = {{Words(2), "bob@b.test"}, {"", "carl@c.test"}};
    mail.Subject = Words(12);
    mail.Date = MailDate(std::chrono::system_clock::time_point(), 60);
    mail.MessageId = NewMessageId("a.test");
    mail.Text = Lines();
    if (Below(3) == 0) mail.HtmlText = "<p>" + Lines();
    FData.clear();
    for (int files = Below(4); files > 0; --files) {
      static constexpr std::size_t sizes[] = {0, 1, 56, 57, 58, 60000};
      std::string data(sizes[static_cast<std::size_t>(Below(6))], '\0');
      for (char& c : data) c = static_cast<char>(Below(256));
      FData.push_back(data);
      const bool shown = !mail.HtmlText.empty() && Below(2) == 0;
      mail.Attachments.push_back({std::to_string(files) + Name(), "application/x-test",
                                  shown ? "id" + std::to_string(files) : "", From(data)});
    }
    return mail;
  }
  const std::vector<std::string>& Data() const { return FData; }

 private:
  int Below(int limit) { return static_cast<int>(FRandom() % static_cast<unsigned>(limit)); }
  std::string Name() {
    static const std::string names[] = {".bin",
                                        "grün.txt",
                                        " with blank.pdf",
                                        "漢字漢字漢字漢字漢字漢字漢字漢字漢字漢字漢字漢字.d",
                                        "a; b.c",
                                        std::string(120, 'n')};
    return names[Below(6)];
  }
  std::string Words(int most) {
    static const char* const words[] = {
        "plain",
        "größer",
        "漢字かな",
        "тест",
        "😀",
        "a,b",
        "quo\"te",
        "=?no?",
        "(c)",
        "co:lon",
        "\\",
        "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"};
    std::string text = words[Below(12)];
    for (int count = Below(most); count > 0; --count) text.append(" ").append(words[Below(12)]);
    return text;
  }
  std::string Lines() {
    std::string text;
    for (int count = 1 + Below(12); count > 0; --count) {
      switch (Below(6)) {
        case 0: break;
        case 1: text += '.'; break;
        case 2: text += "From here"; break;
        case 3: text += std::string(2000, 'y'); break;
        case 4: text += "end "; break;
        default: text += Words(8); break;
      }
      text += "\r\n";
    }
    return text;
  }

  std::mt19937 FRandom{11};
  std::vector<std::string> FData;
};

TEST(MimeWriter, WritesOneTextPlainly) {
  TWriteMail mail;
  mail.From = {{"Ann", "ann@a.test"}};
  mail.To = {{"", "bob@b.test"}};
  mail.Subject = "Hello";
  mail.Text = "Hi\n.dot\n";
  EXPECT_EQ(Written(mail),
            "From: Ann <ann@a.test>\r\nTo: bob@b.test\r\nSubject: Hello\r\nMIME-Version: 1.0\r\n"
            "Content-Type: text/plain; charset=utf-8\r\nContent-Transfer-Encoding: "
            "7bit\r\n\r\nHi\r\n.dot\r\n");
  EXPECT_EQ(MailDate(std::chrono::system_clock::time_point(std::chrono::seconds(1793608200)), -330),
            "Mon, 02 Nov 2026 03:00:00 -0530");
}

TEST(MimeWriter, RefusesWhatBreaksAHeader) {
  for (std::string TWriteMail::*field :
       {&TWriteMail::Subject, &TWriteMail::Date, &TWriteMail::MessageId, &TWriteMail::InReplyTo,
        &TWriteMail::References}) {
    TWriteMail mail;
    mail.*field = "a\r\nBcc: x@y.test";
    EXPECT_THROW(Written(mail), EQELMailError);
  }
  TWriteMail mail;
  mail.To = {{"a\nb", "x@y.test"}};
  EXPECT_THROW(Written(mail), EQELMailError);
  mail.To.clear();
  mail.Attachments = {{"a\nb", "", "", From("")}};
  EXPECT_THROW(Written(mail), EQELMailError);
}

TEST(MimeWriter, WhatItWritesIsReadTheSame) {
  TMails mails;
  for (int i = 0; i < 300; ++i) {
    const TWriteMail mail = mails.Next();
    const TReadMail read = ReadMime(Written(mail));
    EXPECT_EQ(read.From.at(0).Name, mail.From[0].Name);
    EXPECT_EQ(read.To.at(0).Name, mail.To[0].Name);
    EXPECT_EQ(read.To.at(1).Address, "carl@c.test");
    EXPECT_EQ(read.Subject, mail.Subject);
    EXPECT_EQ(read.MessageId, mail.MessageId);
    EXPECT_EQ(read.Text, mail.Text);
    EXPECT_EQ(read.HtmlText, mail.HtmlText);
    ASSERT_EQ(read.Attachments.size(), mail.Attachments.size());
    std::vector<std::string> written = mails.Data(), found;
    for (const TReadAttachment& each : read.Attachments) found.push_back(each.Data);
    EXPECT_THAT(found, testing::UnorderedElementsAreArray(written));
    EXPECT_THAT(read.Notes, testing::IsEmpty());
  }
}

#ifndef _WIN32
using TValues = std::vector<std::pair<std::string, std::string>>;

std::string Dump(const TValues& values) {
  std::string text;
  for (const auto& [name, value] : values) text += name + " " + HexText(value) + "\n";
  return text;
}

void RunPython(const std::string& arguments) {
  const std::string command = "/usr/bin/python3 " MAIL_TESTS "/pythonmail.py " + arguments;
  ASSERT_EQ(std::system(command.c_str()), 0) << command;
}

std::string WithLineFeeds(std::string text) {
  std::erase(text, '\r');
  return text;
}

TEST(MimeWriter, AnotherReaderFindsTheSame) {
  const TWorkFolder folder("qel_mime_written");
  constexpr int count = 500;
  TMails mails;
  std::vector<std::string> wanted;
  for (int i = 0; i < count; ++i) {
    TWriteMail mail = mails.Next();
    WriteFile(std::to_string(i) + ".eml", Written(mail));
    TValues values{
        {"from", mail.From[0].Name}, {"subject", mail.Subject}, {"message-id", mail.MessageId}};
    values.push_back({"text", WithLineFeeds(mail.Text)});
    if (!mail.HtmlText.empty()) values.push_back({"html", WithLineFeeds(mail.HtmlText)});
    // Pictures that the HTML text shows come behind it.
    for (const bool shown : {true, false}) {
      for (std::size_t f = 0; f < mail.Attachments.size(); ++f) {
        if (mail.Attachments[f].ContentId.empty() == shown) continue;
        values.push_back({"name", mail.Attachments[f].Name});
        values.push_back({"data", mails.Data()[f]});
      }
    }
    wanted.push_back(Dump(values));
  }
  RunPython("read " + folder.Path().string());
  for (int i = 0; i < count; ++i)
    EXPECT_EQ(ReadFile(std::to_string(i) + ".read"), wanted[static_cast<std::size_t>(i)]) << i;
}

TEST(MimeReader, FindsWhatAnotherWriterHasWritten) {
  const TWorkFolder folder("qel_mime_read");
  constexpr int count = 500;
  RunPython("make " + folder.Path().string() + " " + std::to_string(count));
  for (int i = 0; i < count; ++i) {
    const TReadMail read = ReadMime(ReadFile(std::to_string(i) + ".eml"));
    TValues values{{"from", read.From.at(0).Name},
                   {"subject", read.Subject},
                   {"text", WithLineFeeds(read.Text)}};
    if (!read.HtmlText.empty()) values.push_back({"html", WithLineFeeds(read.HtmlText)});
    for (const TReadAttachment& each : read.Attachments) {
      values.push_back({"name", each.Name});
      values.push_back({"data", each.Data});
    }
    EXPECT_EQ(Dump(values), ReadFile(std::to_string(i) + ".made")) << i;
  }
}
#endif

}  // namespace
