// The hint's picture, on the screen and on a bitmap, against one drawn by plain GDI calls.
#include <algorithm>
#include <tuple>

#include "host/vcl/windowtext.h"
#include "tests/controls/hintform.h"
#include "tests/support/plainhint.h"

namespace {

using namespace hintform;
using namespace qel;

class HintPicture : public HintTest,
                    public testing::WithParamInterface<std::tuple<int, bool, bool, bool>> {
 protected:
  /// Where a hint stands when the mouse is in the middle.
  static vcl::TRect PlaceOf(int direction, const vcl::TRect& text) {
    const int width = text.Width() + 16;
    const int height = text.Height() + (direction < 2 ? 20 : 29);
    const int left = direction % 2 == 0 ? Middle.X : Middle.X + 6 - width;
    return vcl::Bounds(left, direction < 2 ? Middle.Y - 5 - height : Middle.Y + 15, width, height);
  }
  HintPicture() : Back(Form) {
    ShowForm();
    Hint->HintFont()->SetName("Arial");
    Hint->HintFont()->SetSize(11);
    Hint->HintFont()->SetColor(vcl::clNavy);
    Hint->SetHintShadowColor(vcl::clRed);
    Back.SetBackgroundStyle(bGradient);
  }
  plain::THintLook Look() const {
    plain::THintLook look;
    std::tie(look.Direction, look.Bubble, look.Shadow, std::ignore) = GetParam();
    look.ShadowColor = RGB(255, 0, 0);
    look.Font = Hint->HintFont()->Handle();
    look.FontColor = RGB(0, 0, 128);
    look.Text = vcl::ToUtf16(Text);
    return look;
  }
  const std::string Text = "A hint of\nseveral lines & words";
  TQELBackground Back;
};

TEST_P(HintPicture, IsWhatItsPartsDrawOnTheScreen) {
  const plain::THintLook look = Look();
  const bool background = std::get<3>(GetParam());
  Hint->SetHintDirection(TQELDirectionB(look.Direction));
  Hint->SetSpeechbubble(look.Bubble);
  Hint->SetShadow(look.Shadow);
  if (background) Hint->SetBackground(&Back);

  const vcl::TRect text = Window()->CalcHintRect(vcl::Screen()->Width(), Text);
  const vcl::TRect place = PlaceOf(look.Direction, text);
  const auto snapshot = ScreenShot(place);
  plain::TDib expected(place.Width(), place.Height());
  expected.Fill(RGB(255, 255, 255));
  if (background) Back.Draw(expected.DC(), place.Width(), place.Height(), true);
  const plain::THintPicture drawn(look, *snapshot, expected);

  ShowHint(Text);
  EXPECT_EQ(Window()->BoundsRect(), place);
  EXPECT_EQ(Hint->HintDirection(), look.Direction);
  Window()->Update();
  const auto onBitmap = PictureOf(Window());
  EXPECT_EQ(onBitmap->Difference(expected), "");
  EXPECT_EQ(ScreenDiffers(place.TopLeft(), expected), "");
  for (int y = 0; y < place.Height(); ++y) {
    for (int x = 0; x < place.Width(); ++x) ASSERT_NE(onBitmap->Pixel(x, y), 0x00FF00u);
  }
}

INSTANTIATE_TEST_SUITE_P(AllLooks, HintPicture,
                         testing::Combine(testing::Range(0, 4), testing::Bool(), testing::Bool(),
                                          testing::Bool()));

class HintCorner : public HintTest, public testing::WithParamInterface<std::tuple<int, int>> {};

TEST_P(HintCorner, IsWhereTheHintTurnsAndStaysWhole) {
  const auto [right, below] = GetParam();
  const vcl::TPoint edge{vcl::Screen()->Width() - 1, vcl::Screen()->Height() - 1};
  Form->SetBounds(right ? edge.X - 599 : 0, below ? edge.Y - 399 : 0, 600, 400);
  ShowForm();
  const vcl::TPoint mouse{right * edge.X, below * edge.Y};
  Hint->SetSpeechbubble(true);
  // Into the corner, where it cannot go.
  Hint->SetHintDirection(TQELDirectionB(2 * below + (right ? 0 : 1)));
  Pattern->SetHint("A hint");
  ::SetCursorPos(mouse.X, mouse.Y);
  const auto place =
      Window()->SelectProperHintDirection(Window()->CalcHintRect(vcl::Screen()->Width(), "A hint"));
  ASSERT_TRUE(place);
  EXPECT_EQ(place->Direction, 2 * (1 - below) + right);
  plain::THintLook look;
  look.Direction = place->Direction;
  look.Bubble = true;
  look.Font = Hint->HintFont()->Handle();
  look.FontColor = vcl::ColorToRGB(Hint->HintFont()->Color());
  look.Text = L"A hint";
  // A hint to the left of the right edge leaves the screen by a few pixels.
  vcl::TRect seen = place->Bounds;
  seen.Right = std::min(seen.Right, vcl::Screen()->Width());
  plain::TDib snapshot(place->Bounds.Width(), place->Bounds.Height());
  ::BitBlt(snapshot.DC(), 0, 0, seen.Width(), seen.Height(), ScreenShot(seen)->DC(), 0, 0, SRCCOPY);
  plain::TDib expected(snapshot.Width(), snapshot.Height());
  expected.Fill(RGB(255, 255, 255));
  const plain::THintPicture drawn(look, snapshot, expected);
  plain::TDib expectedSeen(seen.Width(), seen.Height());
  ::BitBlt(expectedSeen.DC(), 0, 0, seen.Width(), seen.Height(), expected.DC(), 0, 0, SRCCOPY);
  vcl::Application()->ActivateHint(mouse);
  EXPECT_EQ(ScreenDiffers(seen.TopLeft(), expectedSeen), "");
  EXPECT_EQ(Window()->BoundsRect(), place->Bounds);
}

INSTANTIATE_TEST_SUITE_P(All, HintCorner,
                         testing::Combine(testing::Values(0, 1), testing::Values(0, 1)));

/// Single pixels, worked out by hand.
class HintPixels : public HintTest {
 protected:
  HintPixels() {
    ShowForm();
    Hint->SetHintShadowColor(vcl::clRed);
  }
  void Show(TQELDirectionB direction, bool bubble) {
    Hint->SetHintDirection(direction);
    Hint->SetSpeechbubble(bubble);
    Window()->ReleaseHandle();
    AwaitForm();
    ShowHint("...................");
    W = Window()->Width();
    H = Window()->Height();
    Shot = PictureOf(Window());
  }
  unsigned At(int x, int y) const { return Shot->Pixel(x, y); }
  int W = 0;
  int H = 0;
  std::unique_ptr<plain::TDib> Shot;
};

TEST_F(HintPixels, ABoxHasALightAndADarkEdge) {
  Show(dUpRight, false);
  EXPECT_EQ(At(0, 0), 0xFFFFFFu);
  EXPECT_EQ(At(0, H - 16), 0xFFFFFFu);
  EXPECT_EQ(At(W - 8, 0), 0xFFFFFFu);
  EXPECT_EQ(At(W - 7, 0), 0x000000u);
  EXPECT_EQ(At(W - 7, H - 15), 0x000000u);
  EXPECT_EQ(At(1, H - 15), 0x000000u);
  // Outside, the screen as it was; the shadow begins 8 rows down, on every other pixel.
  EXPECT_EQ(At(W - 1, 0) & 0xFF00, 0x4000u);
  EXPECT_EQ(At(0, H - 1) & 0xFF00, 0x4000u);
  const int even = (W - 2) & ~1;
  EXPECT_EQ(At(even, 8), 0xFF0000u);
  EXPECT_NE(At(even - 1, 8), 0xFF0000u);
  EXPECT_EQ(At(even - 1, 9), 0xFF0000u);
  EXPECT_NE(At(even, 7), 0xFF0000u);
}

TEST_F(HintPixels, ABubbleIsRoundAndPointsAtTheMouse) {
  Show(dDownRight, true);
  EXPECT_EQ(At(0, 15) & 0xFF00, 0x4000u);  // The corner shows the screen,
  EXPECT_EQ(At(30, 15), 0xFFFFFFu);        // the pointer's tip is the window's.
  EXPECT_EQ(At(0, 0), 0xFFFFFFu);
  EXPECT_EQ(At(20, 15), 0x000000u);
  Show(dUpLeft, true);
  EXPECT_EQ(At(W - 27, H - 15), 0x000000u);  // The body's edge is open where the pointer begins,
  EXPECT_EQ(At(W - 20, H - 15), 0xFFFFFFu);
  EXPECT_EQ(At(W - 16, H - 15), 0x000000u);
  EXPECT_EQ(At(W - 6, H - 1) & 0xFF00, 0x4000u);  // and its tip is just outside the window.
}

TEST_F(HintPixels, WhatTheScreenShowsInTheKeyColourBecomesBackground) {
  Pattern->Only = vcl::clLime;
  Form->Repaint();
  TQELBackground back(Form);
  back.SetBackgroundStyle(bSolidcolor);
  back.SetSolidColor(vcl::clAqua);
  Hint->SetBackground(&back);
  Show(dUpRight, false);
  EXPECT_EQ(At(W - 1, 0), 0x00FFFFu);
  Hint->SetUnUsedHintColor(vcl::clYellow);
  Show(dUpRight, false);
  EXPECT_EQ(At(W - 1, 0), 0x00FF00u);
  EXPECT_EQ(At(3, 3), 0x00FFFFu);
}

TEST_F(HintPixels, PaintedAgainTheHintIsTheSame) {
  Show(dUpRight, true);
  Hint->SetShadow(false);  // Counts for the next hint.
  Window()->Repaint();
  EXPECT_EQ(ScreenDiffers(Window()->BoundsRect().TopLeft(), *Shot), "");
  Window()->Repaint();
  testinput::Pump();
  EXPECT_EQ(ScreenDiffers(Window()->BoundsRect().TopLeft(), *Shot), "");
}

TEST_F(HintPixels, ADisabledWindowWritesGrey) {
  Hint->HintFont()->SetColor(vcl::clFuchsia);
  const auto pinkPixels = [&] {
    Window()->ReleaseHandle();
    AwaitForm();
    ShowHint("HHHH");
    const auto shot = PictureOf(Window());
    int pink = 0;
    for (int y = 0; y < shot->Height(); ++y) {
      for (int x = 0; x < shot->Width(); ++x) pink += shot->Pixel(x, y) == 0xFF00FF;
    }
    return pink;
  };
  EXPECT_GT(pinkPixels(), 0);
  Window()->SetEnabled(false);
  EXPECT_EQ(pinkPixels(), 0);
}

}  // namespace
