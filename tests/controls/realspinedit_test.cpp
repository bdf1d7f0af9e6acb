// The spin edit for real numbers: texts, steps, bounds.
#include <limits>

#include "qel/qel.h"
#include "tests/vcl/standardform.h"

namespace qel {
namespace {

const TQELRealSigns English{".", ",", "$", false, false};
const TQELRealSigns German{",", ".", "\u20AC", true, true};

TEST(RealText, FollowsTheFormatAndTheUsersSigns) {
  EXPECT_EQ(QELRealText(1234.5, rfFixed, 2, English), "1234.50");
  EXPECT_EQ(QELRealText(1234.5, rfFixed, 0, German), "1234");
  EXPECT_EQ(QELRealText(-0.25, rfFixed, 1, German), "-0,2");
  EXPECT_EQ(QELRealText(-0.001, rfFixed, 2, English), "0.00");
  EXPECT_EQ(QELRealText(0.1 + 0.2, rfGeneral, 2, English), "0.3");
  EXPECT_EQ(QELRealText(12500, rfScientific, 2, English), "1.25E+04");
  EXPECT_EQ(QELRealText(1234567.891, rfCurrency, 2, English), "$1,234,567.89");
  EXPECT_EQ(QELRealText(-123456, rfCurrency, 2, German), "-123.456,00 \u20AC");
  EXPECT_EQ(QELRealText(-123, rfCurrency, 0, English), "-$123");
}

TEST(RealText, IsReadBack) {
  EXPECT_EQ(QELTextReal("-123.456,50 \u20AC", German), -123456.5);
  EXPECT_EQ(QELTextReal(" +1.25E+04 ", English), 12500);
  EXPECT_EQ(QELTextReal("$1,234.5", English), 1234.5);
  for (const char* text : {"", "-", "1.2.3", "0x10", "nan", "inf", "1E999", "12a"}) {
    EXPECT_EQ(QELTextReal(text, English), std::nullopt) << text;
  }
  for (const TQELRealFormat format : {rfFixed, rfGeneral, rfScientific, rfCurrency}) {
    for (const double value : {0.0, -2.5, 1e15, 123456.75}) {
      EXPECT_EQ(QELTextReal(QELRealText(value, format, 15, German), German), value) << value;
    }
  }
}

class RealSpinEdit : public vcl::TStandardForm {
 protected:
  RealSpinEdit() : Spin(Make<TQELRealSpinEdit>(10, 10)), Other(Make<vcl::TEdit>(10, 80)) {
    ShowForm();
    Spin->SetFocus();
  }
  std::string Shown() const {
    std::string text = Spin->Text();
    const std::string sign = QELRealSigns(false).Decimal;
    if (const auto at = text.find(sign); at != std::string::npos)
      text.replace(at, sign.size(), ".");
    return text;
  }
  TQELRealSpinEdit* Spin;
  vcl::TEdit* Other;
};

TEST_F(RealSpinEdit, StepsWithoutDrift) {
  EXPECT_EQ(Shown(), "0.00");
  Spin->SetIncrement(0.1);
  for (int i = 0; i < 10; ++i) Key(VK_UP);
  EXPECT_TRUE(testinput::PumpUntil([&] { return Shown() == "1.00"; })) << Shown();
  EXPECT_EQ(Spin->Value(), 1.0);
  Spin->SetFormat(rfGeneral);
  for (int i = 0; i < 7; ++i) Spin->DownClick(Spin);
  EXPECT_EQ(Shown(), "0.3");
  Key(VK_PRIOR);
  EXPECT_TRUE(testinput::PumpUntil([&] { return Shown() == "10.3"; })) << Shown();
}

TEST_F(RealSpinEdit, KeepsToItsBoundsWhereThereAreSome) {
  Spin->SetValue(-1e6);
  EXPECT_EQ(Spin->Value(), -1e6);
  Spin->SetMinValue(-2.5);
  Spin->SetMaxValue(2.5);
  EXPECT_EQ(Spin->Value(), -2.5);
  Spin->SetValue(std::numeric_limits<double>::infinity());
  Spin->SetMaxValue(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(Spin->Value(), -2.5);
  EXPECT_EQ(Spin->MaxValue(), 2.5);
  Spin->SetDecimals(16);
  Spin->SetDecimals(-1);
  EXPECT_EQ(Spin->Decimals(), 2);
}

TEST_F(RealSpinEdit, WhatIsTypedIsANumberWhenTheFocusLeaves) {
  Spin->SelectAll();
  Type("1x2");
  Other->SetFocus();
  EXPECT_EQ(Shown(), "12.00");
  Spin->SetFocus();
  Spin->SelectAll();
  Type("-+-");
  Other->SetFocus();
  EXPECT_EQ(Shown(), "0.00");
}

}  // namespace
}  // namespace qel
