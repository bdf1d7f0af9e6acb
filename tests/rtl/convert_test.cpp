// Numbers, booleans and colours as texts.
#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <set>

#include "vcl/rtl/classes.h"

using namespace vcl;
using testing::HasSubstr;

namespace {

// clang-format off
TEST(Convert, ReadsIntegers) {
  const std::pair<const char*, std::optional<int>> cases[] = {
      {"0", 0}, {"-12", -12}, {"+12", 12}, {"  7", 7}, {"2147483647", 2147483647},
      {"-2147483648", std::numeric_limits<int>::min()},
      {"$ff", 255}, {"0XfF", 255}, {"-$10", -16}, {"$FFFFFFFF", -1},
      {"", {}}, {" ", {}}, {"abc", {}}, {"12 ", {}}, {"1.0", {}}, {"2147483648", {}},
      {"$100000000", {}}, {"$", {}}, {"+-1", {}}, {"--1", {}}, {"$-1", {}}, {"- 1", {}},
  };
  for (const auto& [text, expected] : cases) {
    int value = 99;
    EXPECT_EQ(TryStrToInt(text, value), expected.has_value()) << text;
    EXPECT_EQ(value, expected.value_or(99)) << text;
    EXPECT_EQ(StrToIntDef(text, -5), expected.value_or(-5)) << text;
  }
}
// clang-format on

TEST(Convert, NamesWhatIsNoValue) {
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { StrToInt("abc"); }, "'abc' is not a valid integer value"},
      {[] { StrToInt64("9223372036854775808"); },
       "'9223372036854775808' is not a valid integer value"},
      {[] { StrToFloat("1,5"); }, "'1,5' is not a valid floating point value"},
      {[] { StrToBool("maybe"); }, "'maybe' is not a valid boolean value"},
      {[] { StringToColor("clPlaid"); }, "'clPlaid' is not a valid colour"}};
  for (const auto& [convert, message] : cases) {
    EXPECT_THAT(convert, testing::ThrowsMessage<EConvertError>(message));
  }
}

TEST(Convert, GivesFloatsBack) {
  for (double value :
       {0.0, 0.1, -1.5, 1e300, 5e-324, 1.0 / 3, 123456789.0, std::numeric_limits<double>::max()}) {
    EXPECT_EQ(StrToFloat(FloatToStr(value)), value);
  }
  EXPECT_EQ(FloatToStr(0.1), "0.1");
  EXPECT_EQ(StrToFloat(" +2.5e1 "), 25);
  for (const char* text : {"", "inf", "nan", "1e999", "1.5x", "+-1", "0x10"}) {
    EXPECT_EQ(StrToFloatDef(text, -7), -7) << text;
  }
}

TEST(Convert, WritesAndReadsTheRest) {
  EXPECT_EQ(IntToStr(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
  EXPECT_EQ(IntToHex(0xBEEF, 8), "0000BEEF");
  EXPECT_EQ(IntToHex(0xBEEF, 2), "BEEF");
  EXPECT_EQ(StrToInt64("$7FFFFFFFFFFFFFFF"), std::numeric_limits<std::int64_t>::max());
  EXPECT_TRUE(StrToBool("tRUE"));
  EXPECT_TRUE(StrToBool("-1"));
  EXPECT_FALSE(StrToBool("0"));
  EXPECT_EQ(StrToBool(BoolToStr(false)), false);
}

TEST(Convert, CutsLongValuesInItsMessages) {
  const std::string text = "a" + std::string(99, 'b') + std::string(100'000, 'c');
  EXPECT_THAT([&] { StrToInt(text); },
              testing::ThrowsMessage<EConvertError>("'a" + std::string(99, 'b') +
                                                    "...' is not a valid integer value"));
}

TEST(Colors, HaveNamesOrNumbers) {
  EXPECT_EQ(ColorToString(clBtnFace), "clBtnFace");
  EXPECT_EQ(ColorToString(clLtGray), "clSilver");
  EXPECT_EQ(ColorToString(static_cast<TColor>(0xC0C0C1)), "$00C0C0C1");
  EXPECT_EQ(StringToColor("CLLTGRAY"), clSilver);
  EXPECT_EQ(StringToColor("$00C0C0C0"), clSilver);
  EXPECT_EQ(StringToColor("$FF00000F"), clBtnFace);
  EXPECT_EQ(StringToColor("255"), clRed);
  // The system's indexes, from the documentation of GetSysColor.
  EXPECT_EQ(static_cast<std::uint32_t>(clBackground), 0x80000001u);
  EXPECT_EQ(static_cast<std::uint32_t>(clBtnFace), 0x8000000Fu);
  EXPECT_EQ(static_cast<std::uint32_t>(clInfoBk), 0x80000018u);
  EXPECT_EQ(StringToColor("$8000000F"), clBtnFace);
}

TEST(Colors, AreEachNamedOnce) {
  std::set<TColor> colors;
  GetColorValues([&](const std::string& name) {
    EXPECT_TRUE(colors.insert(StringToColor(name)).second) << name;
    EXPECT_EQ(ColorToString(StringToColor(name)), name);
  });
  EXPECT_EQ(colors.size(), 43u);
}

}  // namespace
