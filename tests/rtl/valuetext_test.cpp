// Values of properties as text, and back.
#include <gmock/gmock.h>

#include "tests/rtl/samples.h"
#include "vcl/rtl/valuetext.h"

using namespace vcl;
using namespace samples;

namespace {

TEST(ValueText, GoesBothWays) {
  const std::tuple<const TTypeInfo&, TValue, const char*> cases[] = {
      {TypeInfoOf<int>(), std::int64_t{-7}, "-7"},
      {TypeInfoOf<bool>(), std::int64_t{1}, "True"},
      {TypeInfoOf<TShape>(), std::int64_t{shStar}, "shStar"},
      {TypeInfoOf<TSet<TShape>>(), std::int64_t{0}, "[]"},
      {TypeInfoOf<TSet<TShape>>(), std::int64_t{TSet{shRound, shStar}.Bits()}, "[shRound, shStar]"},
      {TypeInfoOf<TCode>(), std::int64_t{coFirst}, "coFirst"},
      {TypeInfoOf<TCode>(), std::int64_t{5}, "5"},
      {TypeInfoOf<TColor>(), std::int64_t{clBtnFace}, "clBtnFace"},
      {TypeInfoOf<TColor>(), std::int64_t{0x123456}, "$00123456"},
      {TypeInfoOf<char32_t>(), std::int64_t{0xE4}, "\xC3\xA4"},
      {TypeInfoOf<char32_t>(), std::int64_t{13}, "#13"},
      {TypeInfoOf<std::string>(), std::string("it's"), "it's"},
      {TypeInfoOf<double>(), 0.1, "0.1"},
  };
  for (const auto& [type, value, text] : cases) {
    EXPECT_EQ(ValueToText(type, value), text);
    EXPECT_EQ(TextToValue(type, text), value) << text;
  }
  EXPECT_EQ(TextToValue(TypeInfoOf<TSet<TShape>>(), " [ SHSTAR ] "),
            TValue(std::int64_t{TSet{shStar}.Bits()}));
}

TEST(ValueText, RefusesWhatIsNoValue) {
  const std::pair<const TTypeInfo*, const char*> wrong[] = {
      {&TypeInfoOf<std::uint8_t>(), "256"},
      {&TypeInfoOf<int>(), ""},
      {&TypeInfoOf<int>(), "7x"},
      {&TypeInfoOf<TShape>(), "shNone"},
      {&TypeInfoOf<TSet<TShape>>(), "shStar"},
      {&TypeInfoOf<TSet<TShape>>(), "[shStar,, x]"},
      {&TypeInfoOf<TColor>(), "clNowhere"},
      {&TypeInfoOf<char32_t>(), "ab"},
      {&TypeInfoOf<char32_t>(), "#99999999"},
      {&TypeInfoOf<double>(), "one"},
      {&TypeInfoOf<TPart*>(), "Part1"},
  };
  for (const auto& [type, text] : wrong)
    EXPECT_THROW(TextToValue(*type, text), EConvertError) << text;
}

TEST(ValueText, AStringOfAFormFileIsQuoted) {
  EXPECT_EQ(FormString(""), "''");
  EXPECT_EQ(FormString("it's"), "'it''s'");
  EXPECT_EQ(FormString("a\tb\r\n"), "'a'#9'b'#13#10");
}

}  // namespace
