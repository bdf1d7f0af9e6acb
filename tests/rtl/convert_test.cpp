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

// clang-format off
TEST(Convert, FormatsNumbers) {
  struct TCase { const char* Format; double Value; const char* Text; };
  const TCase cases[] = {
      {"", 1234.5, "1234.5"}, {"0", 1234.5, "1235"}, {"0", -1234.5, "-1235"}, {"0", 0.4, "0"},
      {"0.00", 2.675, "2.68"}, {"0.00", 0.995, "1.00"}, {"0.00", 99.999, "100.00"},
      {"0.00", -0.001, "0.00"}, {"0.00", 1e15, "1000000000000000.00"}, {"0.00", 1e-300, "0.00"},
      {"#.##", 1234.5, "1234.5"}, {"#.##", 0, ""}, {"#.##", 12, "12"}, {"#.##", 0.25, ".25"},
      {".00", 12.5, "12.50"}, {"0.0#", 1.25, "1.25"}, {"0.0#", 1, "1.0"}, {"0.#0", 1, "1.00"},
      {"#,##0", 1234567, "1,234,567"}, {"#,##0.00", 999.995, "1,000.00"}, {"#,##0", 12, "12"},
      {"0,", 1234, "1,234"}, {"000,000", 12, "000,012"}, {"000", 7, "007"}, {"#0#", 5, "05"},
      {"000-0000", 5551234, "555-1234"}, {"#-##", 12345, "123-45"},
      {"0.00 'EUR'", 3, "3.00 EUR"}, {"\"0;\"0", 4, "0;4"}, {"0 'open", 4, "4 open"},
      {"0;(0)", -5, "(5)"}, {"0;(0)", 5, "5"}, {"0;;'none'", -5, "-5"}, {"0.0;;'none'", 0.04, "none"},
      {"0.00;;'none'", 0.04, "0.04"}, {"0;(0);-", -0.2, "-"}, {"0.0.0", 1.25, "1.25"},
      {"0.000E+00", 123456, "1.235E+05"}, {"0.0E-0", 0.00123, "1.2E-3"}, {"0.0e-0", 1230, "1.2e3"},
      {"0.0E+0", 9.99, "1.0E+1"}, {"00.0E+0", 123456, "12.3E+4"}, {"0.0E+0", 0, "0.0E+0"},
      {"0E", 5, "5E"}, {"text", 5, "text"}, {"0.00", 1.7e308, nullptr},
  };
  // clang-format on
  const TFormatSettings english;
  for (const TCase& each : cases) {
    const std::string text = FormatFloat(each.Format, each.Value, english);
    if (each.Text) {
      EXPECT_EQ(text, each.Text) << each.Format << " of " << each.Value;
    } else {
      EXPECT_EQ(text.size(), 312u);
    }
  }
  TFormatSettings german;
  german.DecimalSeparator = ",";
  german.ThousandSeparator = ".";
  EXPECT_EQ(FormatFloat("#,##0.00", 1234567.5, german), "1.234.567,50");
  EXPECT_EQ(FormatFloat("0.0", std::numeric_limits<double>::infinity(), english), "inf");
}

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
