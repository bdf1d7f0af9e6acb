// The hint's picture, on the screen and on a bitmap, against one drawn by plain GDI calls.
#include "tests/controls/hintform.h"
#include "tests/support/plainhint.h"
#include "vcl/rtl/utf16.h"

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
