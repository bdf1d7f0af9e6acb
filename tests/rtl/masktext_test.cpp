// Masks: what may be typed where, and what the text means.
#include <gtest/gtest.h>

#include <random>

#include "vcl/rtl/masktext.h"

namespace vcl {
namespace {

/// What is seen after the text has been typed into the empty mask.
std::string Typed(const std::string& mask, const std::string& keys) {
  const TMaskText with(mask, TFormatSettings());
  auto edited = with.Edited("");
  int caret = 0;
  with.TypeAll(edited, caret, ToCells(keys));
  return FromCells(edited);
}

std::string Missing(const std::string& mask, const std::string& keys) {
  const TMaskText with(mask, TFormatSettings());
  return std::to_string(with.FirstMissing(ToCells(Typed(mask, keys))));
}

TEST(MaskText, EachLetterTakesItsCharacters) {
  EXPECT_EQ(Typed("LlAa", "x9ü#5"), "xü5_");
  EXPECT_EQ(Typed("09#", "a1+2-"), "12-");
  EXPECT_EQ(Typed("Cc",
                  "%\x01"
                  "ß"),
            "%ß");
  EXPECT_EQ(Typed("CC", "\xF0\x9F\x98\x80z"), "z_") << "beyond the basic plane";
  EXPECT_EQ(Typed(">LLl<ll<>LL", "aäЖaÄÜbB"), "AÄЖaäÜb");
  EXPECT_EQ(Typed(">ll;1; ", "ż\xC5\x82"), "ŻŁ");
}

TEST(MaskText, LiteralsStandAndAreTypedOver) {
  EXPECT_EQ(Typed("(000)_000-0000", "0301234567"), "(030) 123-4567");
  EXPECT_EQ(Typed("99/99/00", "1/2/34"), "1_/2_/34");
  EXPECT_EQ(Typed("99:00", "123"), "12:3_");
  EXPECT_EQ(Typed("\\L\\;0", "7"), "L;7");
  TFormatSettings german;
  german.DateSeparator = ".";
  EXPECT_EQ(FromCells(TMaskText("00/00", german).Edited("2412")), "24.12");
}

TEST(MaskText, TheTextHasItsLiteralsOrNot) {
  const TFormatSettings settings;
  const TMaskText with("(00)_000", settings);
  EXPECT_EQ(with.Text(ToCells("(12) 3__")), "(12) 3  ");
  EXPECT_EQ(FromCells(with.Edited("(12) 3  ")), "(12) 3__");
  EXPECT_EQ(FromCells(with.Edited("123")), "(12) 3__");
  const TMaskText without("(00)_000;0;*", settings);
  EXPECT_EQ(without.Text(ToCells("(12) 3**")), "123");
  EXPECT_EQ(without.Text(ToCells("(1*) *3*")), "1  3");
  EXPECT_EQ(FromCells(without.Edited("1  3")), "(1*) *3*");
  EXPECT_EQ(without.Text(ToCells("(**) ***")), "") << "nothing is filled in";
  EXPECT_EQ(with.Text(ToCells("(__) ___")), "");
  const TMaskText right("!999;0", settings);
  EXPECT_EQ(FromCells(right.Edited("7")), "__7");
  EXPECT_EQ(right.Text(ToCells("__7")), "7");
  EXPECT_EQ(without.Text(ToCells("some text")), "") << "of another mask";
}

TEST(MaskText, RequiredCellsAreMissed) {
  EXPECT_EQ(Missing("00/99", "1"), "1");
  EXPECT_EQ(Missing("00/99", "12"), "-1");
  EXPECT_EQ(Missing("LAC0", "aa%"), "3");
  EXPECT_EQ(Missing("la9#c", ""), "-1");
}

TEST(MaskText, TheCaretGoesOverLiterals) {
  const TMaskText mask("(00) 0-", TFormatSettings());
  EXPECT_EQ(mask.Next(-3), 1);
  EXPECT_EQ(mask.Next(3), 5);
  EXPECT_EQ(mask.Next(6), 7);
  EXPECT_EQ(mask.Previous(5), 2);
  EXPECT_EQ(mask.Previous(1), 1);
  EXPECT_EQ(mask.Previous(99), 5);
  auto edited = mask.Edited("123");
  mask.Clear(edited, 2, 6);
  EXPECT_EQ(FromCells(edited), "(1_) _-");
  EXPECT_EQ(TMaskText("--").Previous(1), 2) << "no cell to fill";
}

TEST(MaskText, MalformedMasksAreRefused) {
  const auto refusal = [](const char* mask) -> std::string {
    try {
      const TMaskText refused(mask);
    } catch (const EMaskError& error) {
      return error.what();
    }
    return "taken";
  };
  EXPECT_EQ(refusal("00\\"),
            "The mask '00\\' ends behind a \\, which is to stand before a character");
  EXPECT_EQ(refusal("00;2"), "The mask '00;2' says neither 0 nor 1 of its literals");
  EXPECT_EQ(refusal("00;0;ab"),
            "The mask '00;0;ab' has more than one character for its empty cells");
  EXPECT_NE(refusal("\xF0\x9F\x98\x80"), "taken");
  EXPECT_EQ(refusal("00;;"), "taken");
  EXPECT_EQ(refusal(""), "taken");
}

TEST(MaskText, WhateverIsTypedFitsAndComesBack) {
  std::mt19937 random(7);
  const std::string letters = "LlAaCc09#!><\\:/_;01 x-ü";
  const auto some = [&](std::size_t most) {
    std::string text;
    for (auto count = random() % most; count > 0; --count)
      text += letters[random() % letters.size()];
    return text;
  };
  int read = 0;
  for (int round = 0; round < 20000; ++round) {
    const std::string source = some(16);
    try {
      const TMaskText mask(source, TFormatSettings());
      ++read;
      auto edited = mask.Edited(some(20));
      int caret = static_cast<int>(random() % 30) - 5;
      mask.TypeAll(edited, caret, ToCells(some(20)));
      mask.Clear(edited, static_cast<int>(random() % 20) - 3, static_cast<int>(random() % 20));
      ASSERT_TRUE(mask.Fits(edited)) << source << ": " << FromCells(edited);
      const std::string text = mask.Text(edited);
      ASSERT_EQ(mask.Text(mask.Edited(text)), text) << source << ": " << FromCells(edited);
    } catch (const EMaskError&) {
      continue;
    }
  }
  EXPECT_GT(read, 5000);
}

}  // namespace
}  // namespace vcl
