// Hashes of codes, and texts that leave nothing behind.
#include "qel/core/Qelsecret.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "vcl/rtl/convert.h"

namespace qel {
namespace {

std::string InHex(const std::string& bytes) {
  std::string text;
  for (const char each : bytes) text += vcl::IntToHex(static_cast<unsigned char>(each), 2);
  return text;
}

// RFC 7914, section 11.
TEST(Secret, KeysAreDerivedAsTheStandardSays) {
  EXPECT_EQ(InHex(QELDerivedKey("passwd", "salt", 1, 64)),
            "55AC046E56E3089FEC1691C22544B605F94185216DDE0465E68B9D57C20DACBC"
            "49CA9CCCF179B645991664B39D77EF317C71B845B1E30BD509112041D3A19783");
  EXPECT_EQ(InHex(QELDerivedKey("Password", "NaCl", 80000, 64)),
            "4DDCD8F60B98BE21830CEE5EF22701F9641A4418D04C0414AEFF08876B34AB56"
            "A1D425A1225833549ADB841B51C9B3176A272BDEBBA1D078478F62B397F33C8D");
}

TEST(Secret, AHashedCodeMatchesNoOther) {
  const std::string hash = QELHashedCode("Grüße");
  EXPECT_EQ(hash.rfind("pbkdf2-sha256$210000$", 0), 0U) << hash;
  EXPECT_EQ(hash.size(), 118U);
  EXPECT_TRUE(QELCodeMatches("Grüße", hash));
  for (const char* wrong : {"", "Grüß", "Grüßen", "grüße", hash.c_str()}) {
    EXPECT_FALSE(QELCodeMatches(wrong, hash)) << wrong;
  }
  EXPECT_NE(QELHashedCode("Grüße"), hash) << "another salt";
  EXPECT_TRUE(QELCodeMatches("", QELHashedCode("", 1000)));
}

TEST(Secret, WhatIsNoHashMatchesNothing) {
  const std::string rest = "$000102030405060708090a0b0c0d0e0f$" + std::string(64, 'a');
  const std::string good = "pbkdf2-sha256$1000" + rest;
  ASSERT_TRUE(QELIsHashedCode(good));
  const std::string bad[] = {"",
                             "code",
                             "$$$",
                             "pbkdf2-sha256",
                             "pbkdf2-sha512$1000" + rest,
                             good + "$",
                             good + "a",
                             good.substr(0, good.size() - 2),
                             good.substr(0, good.size() - 1) + "g",
                             "pbkdf2-sha256$" + rest,
                             "pbkdf2-sha256$1000x" + rest,
                             "pbkdf2-sha256$-1000" + rest,
                             "pbkdf2-sha256$999" + rest,
                             "pbkdf2-sha256$2000001" + rest,
                             "pbkdf2-sha256$99999999999999999999" + rest,
                             "pbkdf2-sha256$1000$0001$" + std::string(64, 'a'),
                             "pbkdf2-sha256$1000$" + std::string(4000, '0') + rest.substr(33)};
  const auto begin = std::chrono::steady_clock::now();
  for (const std::string& text : bad) {
    EXPECT_FALSE(QELIsHashedCode(text)) << text;
    EXPECT_FALSE(QELCodeMatches("code", text)) << text;
    EXPECT_FALSE(QELCodeMatches("", text)) << text;
  }
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1)) << "nothing waits";
}

TEST(Secret, TextsAreComparedWhole) {
  EXPECT_TRUE(QELSameSecret("", ""));
  EXPECT_TRUE(QELSameSecret("abc", "abc"));
  for (const char* other : {"", "ab", "abd", "abca", "abcabc"}) {
    EXPECT_FALSE(QELSameSecret("abc", other)) << other;
    EXPECT_FALSE(QELSameSecret(other, "abc")) << other;
  }
}

TEST(Secret, NothingIsLeftInMemory) {
  for (const std::size_t size : {std::size_t{5}, std::size_t{500}}) {
    std::string text(size, 'x');
    text.resize(2);
    const volatile char* const at = text.data();
    const std::size_t all = text.capacity();
    QELWipe(text);
    EXPECT_EQ(text, "");
    EXPECT_EQ(text.capacity(), all);
    EXPECT_TRUE(std::all_of(at, at + all, [](char each) { return each == 0; })) << size;
  }
  TQELSecret secret;
  secret.SetText("a longer text than fits into the object itself");
  const volatile char* const at = secret.Text().data();
  secret.SetText("short");
  EXPECT_EQ(secret.Text(), "short");
  EXPECT_TRUE(std::all_of(at + 5, at + 40, [](char each) { return each == 0; }));
}

}  // namespace
}  // namespace qel
