// The label: what is painted where, and the objects that it takes over.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/plainfill.h"

namespace {

using qel::TQELBackground;

struct TLabel : qel::TQELLabel {
  using TQELLabel::TQELLabel;
  void PaintOn(HDC dc) {
    Canvas()->SetHandle(dc);
    Paint();
    Canvas()->SetHandle(nullptr);
  }
};

struct TDrawn {
  RECT Rect;
  UINT Flags;
};
std::vector<TDrawn> Drawn;

class Label : public testing::Test {
 protected:
  Label() : Form(nullptr), Back(&Form) {
    It = new TLabel(&Form);
    It->SetParent(&Form);
    It->SetBounds(0, 0, 80, 40);
    It->SetColor(vcl::clYellow);
    Back.SetBackgroundStyle(qel::bSolidcolor);
    Back.SetSolidColor(vcl::clLime);
    Drawn.clear();
  }
  void Paint() {
    Dib.Fill(RGB(1, 2, 3));
    It->PaintOn(Dib.DC());
  }

  vcl::TForm Form;
  TQELBackground Back;
  TLabel* It;
  plain::TDib Dib{90, 50};
};

TEST_F(Label, IsPaintedInItsColorOnItsBackgroundOrNotAtAll) {
  Paint();
  EXPECT_EQ(Dib.Pixel(79, 39), 0xFFFF00u);
  EXPECT_EQ(Dib.Pixel(80, 39), 0x010203u);
  It->SetBack2(&Back);
  Paint();
  EXPECT_EQ(Dib.Pixel(79, 39), 0x00FF00u);
  It->SetTransparent(true);
  It->Frame()->SetFrameStyle(qel::frameSolid);
  It->Frame()->SetSolid(vcl::clRed);
  Paint();
  EXPECT_EQ(Dib.Pixel(40, 20), 0x010203u);
  EXPECT_EQ(Dib.Pixel(0, 20), 0xFF0000u);
}

class LabelText : public Label {
 protected:
  LabelText() {
    It->SetCaption("a&b");
    It->Font3D()->SetThreeDimensional(false);
  }
  TDrawn Written() {
    Drawn.clear();
    Paint();
    return Drawn.at(0);
  }
  TImportPatch Patch{
      "qel.dll", "DrawTextExW",
      +[](HDC, wchar_t*, int, RECT* rect, UINT flags, DRAWTEXTPARAMS*) WINAPI -> int {
        Drawn.push_back({*rect, flags});
        return 1;
      }};
};

TEST_F(LabelText, TheFrameTakesFromThreeSides) {
  RECT rect = Written().Rect;
  EXPECT_EQ(vcl::TRect(rect), vcl::TRect(0, 1, 78, 39));
  It->Frame()->SetFrameStyle(qel::frameFramedUp);
  It->Frame()->SetFrameWidth(2);
  It->Frame()->SetOffset(3);
  rect = Written().Rect;
  EXPECT_EQ(vcl::TRect(rect), vcl::TRect(0, 2, 73, 38));
}

TEST_F(LabelText, FlagsFollowTheSettings) {
  EXPECT_EQ(Written().Flags, 0x140u);
  It->SetAlignment(vcl::taRightJustify);
  EXPECT_EQ(Written().Flags, 0x142u);
  It->SetAlignment(vcl::taCenter);
  It->SetWordWrap(true);
  It->SetShowAccelChar(false);
  EXPECT_EQ(Written().Flags, 0x151u);
}

TEST_F(LabelText, ADisabledOneIsDrawnTwiceUnlessFilled) {
  It->SetEnabled(false);
  Written();
  EXPECT_EQ(Drawn.size(), 2u);
  EXPECT_EQ(Drawn[1].Rect.left, -1);
  It->SetBack(&Back);
  Written();
  for (const TDrawn& each : Drawn) EXPECT_EQ(each.Rect.left, 0);
}

TEST_F(Label, LettersAreFilledWithTheFontBackground) {
  It->SetCaption("IIII");
  It->Font()->SetName("Arial");
  It->Font()->SetHeight(-30);
  It->SetBack(&Back);
  Paint();
  int green = 0;
  for (int x = 0; x < 80; ++x) green += Dib.Pixel(x, 20) == 0x00FF00;
  EXPECT_GT(green, 8);
  EXPECT_EQ(Dib.Pixel(79, 20), 0xFFFF00u);
}

TEST_F(Label, TheFrameIsDrawnOverTheText) {
  It->SetCaption("IIIIIIIIII");
  It->Font()->SetHeight(-40);
  It->Frame()->SetFrameStyle(qel::frameSolid);
  It->Frame()->SetSolid(vcl::clRed);
  Paint();
  for (int y = 0; y < 40; ++y) {
    EXPECT_EQ(Dib.Pixel(0, y), 0xFF0000u);
    EXPECT_EQ(Dib.Pixel(79, y), 0xFF0000u);
  }
}

TEST_F(Label, IsAClientOfABackgroundTwiceForItselfAndItsLetters) {
  It->SetBack(&Back);
  It->SetBack2(&Back);
  EXPECT_EQ(Back.ClientCount(), 2);
  It->SetBack(nullptr);
  EXPECT_EQ(Back.ClientCount(), 1);
  It->SetBack(&Back);
  delete It;
  EXPECT_EQ(Back.ClientCount(), 0);
}

}  // namespace
