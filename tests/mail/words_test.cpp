// Words, parameters, addresses and names of the standard format.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qel/mail/private/attachmentnames.h"
#include "qel/mail/private/charsets.h"
#include "qel/mail/private/encodedwords.h"
#include "qel/mail/private/mailaddresses.h"
#include "qel/mail/private/mimeparameters.h"
#include "qel/mail/private/quotedprintable.h"
#include "vcl/rtl/text.h"

namespace {

using namespace qel;
using testing::ElementsAre;

std::string Addresses(std::string_view text) {
  std::string found;
  for (const TMailAddress& each : ReadAddresses(text))
    found += "[" + each.Name + "|" + each.Address + "]";
  return found;
}

TEST(Words, AreReadAsTheirStandardSays) {
  // RFC 2047, 8.
  EXPECT_EQ(Addresses("=?US-ASCII?Q?Keith_Moore?= <moore@cs.utk.edu>"),
            "[Keith Moore|moore@cs.utk.edu]");
  EXPECT_EQ(Addresses("=?ISO-8859-1?Q?Keld_J=F8rn_Simonsen?= <keld@dkuug.dk>"),
            "[Keld Jørn Simonsen|keld@dkuug.dk]");
  EXPECT_EQ(Addresses("=?ISO-8859-1?Q?Andr=E9?= Pirard <PIRARD@vm1.ulg.ac.be>"),
            "[André Pirard|PIRARD@vm1.ulg.ac.be]");
  EXPECT_EQ(DecodeWords("=?ISO-8859-1?B?SWYgeW91IGNhbiByZWFkIHRoaXMgeW8=?=\r\n"
                        "    =?ISO-8859-2?B?dSB1bmRlcnN0YW5kIHRoZSBleGFtcGxlLg==?="),
            "If you can read this you understand the example.");
  EXPECT_EQ(DecodeWords("=?ISO-8859-1?Q?Olle_J=E4rnefors?="), "Olle Järnefors");
  EXPECT_EQ(DecodeWords("=?ISO-8859-1?Q?Patrik_F=E4ltstr=F6m?="), "Patrik Fältström");
  EXPECT_EQ(DecodeWords("Nathaniel Borenstein (=?iso-8859-8?b?7eXs+SDv4SDs6Pj08A==?=)"),
            "Nathaniel Borenstein (\u05DD\u05D5\u05DC\u05E9 \u05DF\u05D1 "
            "\u05DC\u05D8\u05E8\u05E4\u05E0)");
  EXPECT_EQ(DecodeWords("(=?ISO-8859-1?Q?a?=)"), "(a)");
  EXPECT_EQ(DecodeWords("(=?ISO-8859-1?Q?a?= b)"), "(a b)");
  EXPECT_EQ(DecodeWords("(=?ISO-8859-1?Q?a?= =?ISO-8859-1?Q?b?=)"), "(ab)");
  EXPECT_EQ(DecodeWords("(=?ISO-8859-1?Q?a?=  =?ISO-8859-1?Q?b?=)"), "(ab)");
  EXPECT_EQ(DecodeWords("(=?ISO-8859-1?Q?a?=\r\n    =?ISO-8859-1?Q?b?=)"), "(ab)");
  EXPECT_EQ(DecodeWords("(=?ISO-8859-1?Q?a_b?=)"), "(a b)");
  EXPECT_EQ(DecodeWords("(=?ISO-8859-1?Q?a?= =?ISO-8859-2?Q?_b?=)"), "(a b)");
  // RFC 2231, 5: a language.
  EXPECT_EQ(DecodeWords("=?US-ASCII*EN?Q?Keith_Moore?= <moore@cs.utk.edu>"),
            "Keith Moore <moore@cs.utk.edu>");
}

TEST(Words, OfBadSendersAreReadAsFarAsTheyGo) {
  EXPECT_EQ(DecodeWords("=?utf-8?Q?=C3?= =?utf-8?Q?=BC?="), "ü") << "cut within a character";
  EXPECT_EQ(DecodeWords("=?utf-8?B?w7w?="), "ü") << "no pad marks";
  EXPECT_EQ(DecodeWords("=?utf-8?Q?a b?="), "a b") << "a blank in it";
  EXPECT_EQ(DecodeWords("=?x-none?Q?gr=FCn?="), "grün") << "a set that nobody knows";
  EXPECT_EQ(DecodeWords("=?utf-8?X?a?= =? =?a?b =?utf-8?Q?"), "=?utf-8?X?a?= =? =?a?b =?utf-8?Q?");
  EXPECT_EQ(DecodeWords("gr\xFCn gr\xC3\xBCn"), "gr\xC3\xBCn gr\xC3\x83\xC2\xBCn") << "raw bytes";
  EXPECT_EQ(DecodeWords("=?utf-8?Q?a=FFb?="),
            "a\xEF\xBF\xBD"
            "b");
  EXPECT_EQ(DecodeWords("=?shift_jis?B?g2WDWINn?= =?koi8-r?B?9MXT1A==?= =?gbk?B?suLK1A==?="),
            "テストТест测试");
#ifndef _WIN32  // Wine knows no code pages of several alphabets.
  EXPECT_EQ(DecodeWords("=?iso-2022-jp?B?GyRCJUYlOSVIGyhC?= =?gb18030?B?suLK1A==?="), "テスト测试");
#endif
}

TEST(Words, ComeBackAsTheyWereWritten) {
  const std::string longText = [] {
    std::string text;
    for (int i = 0; i < 60; ++i) text += "größe 漢字 😀 ";
    return text + "Ende";
  }();
  for (const std::string& text : {std::string("plain"), std::string("=?utf-8?Q?not a word?="),
                                  std::string("Grüße"), std::string("漢字かな交じり文"),
                                  std::string("a\tb"), std::string("ü_?=. \"x\" <y>"), longText}) {
    for (const bool inPhrase : {false, true}) {
      const std::string words = EncodeWords(text, inPhrase);
      EXPECT_TRUE(std::ranges::all_of(words, [](char c) { return c > 0; })) << words;
      for (std::size_t at = 0, end; at < words.size(); at = end + 1) {
        end = std::min(words.find(' ', at), words.size());
        EXPECT_TRUE(words == text || end - at <= 75) << words;
      }
      EXPECT_EQ(DecodeWords(words), text);
      const std::string folded = FoldField("Subject: " + words);
      for (std::size_t at = 0, end; at < folded.size(); at = end + 2) {
        end = std::min(folded.find("\r\n", at), folded.size());
        EXPECT_LE(end - at, 90u) << folded;
      }
      EXPECT_EQ(vcl::Trim(DecodeWords(folded.substr(9))), text);
    }
  }
  EXPECT_EQ(EncodeWords("A Grüß to you all"), "=?utf-8?Q?A_Gr=C3=BC=C3=9F_to_you_all?=")
      << "readable where it is shorter";
  EXPECT_EQ(EncodeWords("漢字"), "=?utf-8?B?5ryi5a2X?=");
  const std::string endless = FoldField("X: " + std::string(3000, 'a'));
  EXPECT_THAT(endless, testing::StartsWith("X: aaa"));
  EXPECT_EQ(endless.find("\r\n"), 997u);
  EXPECT_EQ(endless.find("\r\n", 1100), 997 + 2 + 1 + 997u);
}

TEST(Parameters, AreReadAsTheirStandardSays) {
  // RFC 2231, 3 and 4.
  EXPECT_EQ(ReadMimeField("message/external-body; access-type=URL;\r\n URL*0=\"ftp://\";\r\n"
                          " URL*1=\"cs.utk.edu/pub/moore/bulk-mailer/bulk-mailer.tar\"")
                .Parameter("url"),
            "ftp://cs.utk.edu/pub/moore/bulk-mailer/bulk-mailer.tar");
  EXPECT_EQ(
      ReadMimeField("application/x-stuff; title*=us-ascii'en-us'This%20is%20%2A%2A%2Afun%2A%2A%2A")
          .Parameter("title"),
      "This is ***fun***");
  EXPECT_EQ(ReadMimeField("application/x-stuff; title*0*=us-ascii'en'This%20is%20even%20more%20;"
                          " title*1*=%2A%2A%2Afun%2A%2A%2A%20; title*2=\"isn't it!\"")
                .Parameter("title"),
            "This is even more ***fun*** isn't it!");
  // What other programs write.
  const auto name = [](std::string_view text) { return ReadMimeField(text).Parameter("name"); };
  EXPECT_EQ(name("a/b; name=\"=?utf-8?Q?gr=C3=BCn?=.txt\""), "grün.txt");
  EXPECT_EQ(name("a/b; name=my file.txt; x=y"), "my file.txt") << "no quotes";
  EXPECT_EQ(name("a/b; name=\"open.txt"), "open.txt") << "a quote is missing";
  EXPECT_EQ(name("a/b; (a (nested) comment) name = \"a\\\"b;c\" (end)"), "a\"b;c");
  EXPECT_EQ(name("a/b; name=old; name*=utf-8''n%C3%A9w"), "néw") << "the encoded one counts";
  EXPECT_EQ(name("a/b; name*1=b; name*0=a; name*3=d"), "ab") << "out of order, with a gap";
  EXPECT_EQ(name("a/b; name*=%C3%BC"), "ü") << "no set";
  EXPECT_EQ(name("a/b;;; ; =x; name"), "");
  EXPECT_EQ(ReadMimeField(" TEXT/Plain (x) ; Charset=US-ASCII").Value, "text/plain");
}

TEST(Parameters, ComeBackAsTheyWereWritten) {
  for (const std::string& value :
       {std::string("plain.txt"), std::string("with blank.txt"), std::string("quo\"te\\.txt"),
        std::string("grün.txt"), std::string(300, 'a') + ".txt", std::string("'%*()"),
        std::string("長い名前長い名前長い名前長い名前長い名前長い名前長い名前長い名前.pdf")}) {
    const std::string field = "a/b" + MimeParameter("filename", value);
    EXPECT_EQ(ReadMimeField(field).Parameter("filename"), value) << field;
  }
}

TEST(Addresses, AreReadFromListsOfAllKinds) {
  EXPECT_EQ(Addresses("ann@a.test"), "[|ann@a.test]");
  EXPECT_EQ(Addresses("\"Smith, Ann\" <ann@a.test>, Bob <bob@b.test>"),
            "[Smith, Ann|ann@a.test][Bob|bob@b.test]");
  EXPECT_EQ(Addresses("ann@a.test (Ann (the one))"), "[Ann (the one)|ann@a.test]");
  EXPECT_EQ(Addresses("A Group:Ed Jones <joe@where.test>,joe@where.test;, x@y.test"),
            "[Ed Jones|joe@where.test][|joe@where.test][|x@y.test]")
      << "a group of RFC 5322, A.1.3";
  EXPECT_EQ(Addresses("Undisclosed recipients:;"), "");
  EXPECT_EQ(Addresses("\"a b\"@c.test"), "[|\"a b\"@c.test]");
  EXPECT_EQ(Addresses("<@x.test,@y.test:ann@a.test>"), "[|ann@a.test]") << "a route";
  EXPECT_EQ(Addresses("Ann <ann@a.test"), "[Ann|ann@a.test]") << "no end";
  EXPECT_EQ(Addresses(" , ,,;<>,\"\", ()"), "");
  const std::vector<TMailAddress> addresses{
      {"Smith, \"Ann\"", "ann@a.test"}, {"Jürgen Größe", "j@b.test"}, {"", "c@c.test"}};
  const std::string written = WriteAddresses(addresses);
  EXPECT_EQ(
      written,
      "\"Smith, \\\"Ann\\\"\" <ann@a.test>, =?utf-8?B?SsO8cmdlbiBHcsO2w59l?= <j@b.test>, c@c.test");
  EXPECT_EQ(Addresses(written), "[Smith, \"Ann\"|ann@a.test][Jürgen Größe|j@b.test][|c@c.test]");
}

TEST(AttachmentNames, AreSafeAndDifferent) {
  TAttachmentNames names;
  const auto give = [&](std::string_view name, std::string_view type = "") {
    return names.Give(name, type);
  };
  EXPECT_EQ(give("../../etc/passwd"), "passwd");
  EXPECT_EQ(give("C:\\Windows\\x.dll"), "x.dll");
  EXPECT_EQ(give("a<b>:c|d?.txt. . "), "abcd.txt");
  EXPECT_EQ(give("con"), "_con");
  EXPECT_EQ(give("COM1.txt"), "_COM1.txt");
  EXPECT_EQ(give("LPT\xC2\xB2.log"), "_LPT\xC2\xB2.log");
  EXPECT_EQ(give("company.txt"), "company.txt");
  EXPECT_EQ(give("a\xE2\x80\xAEgpj.exe"), "agpj.exe") << "turned around";
  EXPECT_EQ(give(std::string("a\0\r\n\x7F"
                             "b.txt",
                             10)),
            "ab.txt");
  EXPECT_EQ(give("", "image/png"), "attachment.png");
  EXPECT_EQ(give("..", "x/y"), "attachment.bin");
  EXPECT_EQ(give("grün.txt"), "grün.txt");
  EXPECT_EQ(give("GRÜN.TXT"), "GRÜN (2).TXT");
  EXPECT_EQ(give("grün.txt"), "grün (3).txt");
  const std::string longName = give(std::string(400, 'x') + "ü.jpeg");
  EXPECT_LE(longName.size(), 200u);
  EXPECT_TRUE(longName.ends_with(".jpeg"));
  EXPECT_TRUE(IsUtf8(give("b\xFF.txt")));
}

TEST(QuotedPrintable, GoesBothWays) {
  EXPECT_EQ(DecodeQuotedPrintable(
                "Now's the time =\r\nfor all folk to come=\r\n to the aid of their country."),
            "Now's the time for all folk to come to the aid of their country.");
  EXPECT_EQ(DecodeQuotedPrintable("gr=C3=bcn=3D  \t\r\n=\r\na=XY=4\n="), "grün=\r\na=XY=4\n");
  for (const std::string& line :
       {std::string(), std::string("."), std::string("From here"), std::string("a \t "),
        std::string(500, 'x'), std::string("ü=ü", 5), std::string(200, '=')}) {
    std::string text;
    EncodeQuotedPrintableLine(line, [&](std::string_view each) {
      EXPECT_LE(each.size(), 76u);
      EXPECT_FALSE(each == "." || each.starts_with("From ") || each.ends_with(' ')) << each;
      text.append(each).append("\r\n");
    });
    EXPECT_EQ(DecodeQuotedPrintable(text), line + "\r\n");
  }
}

}  // namespace
