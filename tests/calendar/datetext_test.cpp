// The texts of dates.
#include <gtest/gtest.h>

#include <string>

#include "qel/core/Qelfunctions.h"
#include "vcl/rtl/exceptions.h"

using namespace qel;
using vcl::TDateTime;

namespace {

class DateText : public testing::Test {
 protected:
  DateText() : FFormer(vcl::FormatSettings()) {
    vcl::FormatSettings() = {};
    int month = 0, day = 0;
    vcl::DecodeDate(vcl::Date(), ThisYear, month, day);
  }
  ~DateText() override {
    vcl::FormatSettings() = FFormer;
    FourDigitYear = true;
  }
  int ThisYear = 0;
  int Century() const { return ThisYear / 100 * 100; }

 private:
  vcl::TFormatSettings FFormer;
};

TEST_F(DateText, TellsTheOrderOfAFormat) {
  const struct {
    const char* Format;
    int Order;
  } cases[] = {{"", dlDMY},           {"DD/MM/YY", dlDMY}, {"mm/dd/yy", dlMDY},
               {"yyyy-mm-dd", dlYMD}, {"Y", dlYMD},        {" . /", dlDMY},
               {"xx M", dlMDY},       {"1d", dlDMY},       {"\xC3\xA4y", dlYMD}};
  for (const auto& each : cases) EXPECT_EQ(QELGetDateOrder(each.Format), each.Order) << each.Format;
  EXPECT_EQ(dlMDY, 0);
  EXPECT_EQ(dlDMY, 1);
  EXPECT_EQ(dlYMD, 2);
}

TEST_F(DateText, IsRead) {
  const struct {
    const char* Format;
    const char* Separator;
    const char* Text;
    int Year, Month, Day;
  } cases[] = {
      {"DD/MM/YY", "/", "31/12/99", Century() + 99, 12, 31},
      {"DD/MM/YY", ".", "31.12.99", Century() + 99, 12, 31},
      {"MM/DD/YYYY", "/", "2/1/2004", 2004, 2, 1},
      {"YYYY/MM/DD", "-", "2004-02-29", 2004, 2, 29},
      {"", "/", "2/1/2004", 2004, 1, 2},
      {"MM/DD/YY", "/", "  2 / 1 / 4  ", Century() + 4, 2, 1},
      {"MM/DD/YY", "/", "2/1/0", Century(), 2, 1},
      {"MM/DD/YY", "/", "2/1/99", Century() + 99, 2, 1},
      {"MM/DD/YY", "/", "2/1/100", 100, 2, 1},
      {"MM/DD/YY", "/", "2/1/0001", Century() + 1, 2, 1},
      {"MM/DD/YY", "/", "12/31/9999", 9999, 12, 31},
      {"MM/DD/YY", "/", "2/1", ThisYear, 2, 1},
      {"DD/MM/YY", "/", "2/1 ", ThisYear, 1, 2},
      {"YY/MM/DD", "/", "2/1", ThisYear, 2, 1},
  };
  for (const auto& each : cases) {
    vcl::FormatSettings().DateSeparator = each.Separator;
    vcl::FormatSettings().ShortDateFormat = each.Format;
    const TDateTime date = vcl::EncodeDate(each.Year, each.Month, each.Day);
    EXPECT_EQ(QELStrToDateFmt(each.Format, each.Text), date) << each.Text;
    EXPECT_EQ(QELStrToDateFmtDef(each.Format, each.Text, 1), date) << each.Text;
    EXPECT_EQ(QELStrToDateDef(each.Text, 1), date) << each.Text;
  }
}

TEST_F(DateText, IsRefused) {
  using namespace std::string_literals;
  const std::string cases[] = {"",
                               " ",
                               "/",
                               "31",
                               "31/",
                               "/12",
                               "31/12/",
                               "31/12/99/",
                               "31/12/99 x",
                               "31/12/99x",
                               "31//99",
                               "31.12.99",
                               "31-12-99",
                               "12/31/99",
                               "30/2/2000",
                               "29/2/2001",
                               "29/2/1900",
                               "31/4/2000",
                               "0/1/2000",
                               "1/0/2000",
                               "32/1/2000",
                               "1/13/2000",
                               "-1/1/2000",
                               "1/1/-2000",
                               "+1/1/2000",
                               "1/1/20000",
                               "1/1/10000",
                               "00001/1/2000",
                               "1/1/2e3",
                               "1/1/0x10",
                               "a/b/c",
                               "31 12 99",
                               "1/1/99999999999999999999",
                               "1/Jan/2000",
                               "1/1/2000 12:00",
                               "1/1/2000\0"s,
                               "\xFF/1/2000",
                               std::string(100'000, '1'),
                               std::string(100'000, ' ') + "x"};
  vcl::FormatSettings().ShortDateFormat = "dd/mm/yyyy";
  for (const std::string& text : cases) {
    try {
      QELStrToDateFmt("DD/MM/YYYY", text);
      ADD_FAILURE() << text;
    } catch (const vcl::EConvertError& error) {
      EXPECT_EQ(error.Message(), "Invalid Date") << text;
    }
    EXPECT_EQ(QELStrToDateFmtDef("DD/MM/YYYY", text, 12.5), 12.5) << text;
    EXPECT_EQ(QELStrToDateDef(text, -3), -3) << text;
  }
}

TEST_F(DateText, HasDefaultFormatsAndMasks) {
  const struct {
    const char* Platform;
    bool FourDigits;
    const char* Format;
    const char* Mask;
  } cases[] = {
      {"m/d/yy", true, "MM/DD/YYYY", "!99/99/9999;1;_"},
      {"d.m.yyyy", true, "DD/MM/YYYY", "!99/99/9999;1;_"},
      {"yy-m-d", true, "YYYY/MM/DD", "!9999/99/99;1;_"},
      {"m/d/yyyy", false, "MM/DD/YY", "!99/99/99;1;_"},
      {"", false, "DD/MM/YY", "!99/99/99;1;_"},
      {"Y", false, "YY/MM/DD", "!99/99/99;1;_"},
  };
  for (const auto& each : cases) {
    vcl::FormatSettings().ShortDateFormat = each.Platform;
    FourDigitYear = each.FourDigits;
    EXPECT_EQ(QELDefDateFormat(), each.Format) << each.Platform;
    EXPECT_EQ(QELDefDateMask('_'), each.Mask) << each.Platform;
  }
  EXPECT_EQ(QELDefDateMask(' ').back(), ' ');
}

}  // namespace
