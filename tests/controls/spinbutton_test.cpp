// The spin button: its pixels, and real mouse input.
#include "tests/controls/spinedit_form.h"
#include "tests/support/handles.h"
#include "tests/support/plainfill.h"

namespace qel {
namespace {

class SpinButton : public TSpinForm {
 protected:
  SpinButton() {
    Button = new TQELSpinButton(&Form);
    Button->SetParent(&Form);
    Button->SetLeft(200);
    Button->SetTop(20);
    Button->OnTopClick = [this](vcl::TObject*) { Clicks += "top "; };
    Button->OnBottomClick = [this](vcl::TObject*) { Clicks += "bottom "; };
    testinput::Pump();
  }
  ~SpinButton() override { testinput::LeftUp(); }
  void MoveTo(int x, int y) { testinput::MoveMouse(Button->ClientToScreen({x, y})); }
  void Draw() {
    Dib.Fill(0x123456);
    Button->Perform(WM_PAINT, reinterpret_cast<WPARAM>(Dib.DC()));
  }
  /// The number of pixels of the colour in the drawn button, which is 0xRRGGBB.
  int Count(std::uint32_t color) const {
    int count = 0;
    for (int y = 0; y < Button->Height(); ++y)
      for (int x = 0; x < Button->Width(); ++x) count += Dib.Pixel(x, y) == color;
    return count;
  }
  /// The pixels of the colour in one row, as "x x ".
  std::string Row(int y, std::uint32_t color) const {
    std::string found;
    for (int x = 0; x < Button->Width(); ++x)
      if (Dib.Pixel(x, y) == color) found += std::to_string(x) + " ";
    return found;
  }
  static std::uint32_t System(int index) { return plain::PixelOf(::GetSysColor(index)); }

  TQELSpinButton* Button;
  std::string Clicks;
  plain::TDib Dib{64, 64};
};

constexpr std::uint32_t Red = 0xFF0000, Aqua = 0x00FFFF;

TEST_F(SpinButton, ArrowsStandWhereTheirFormulasSay) {
  Button->SetArrowColor(vcl::clRed);
  Draw();
  // In a button of 20 pixels: the up arrow from (4, 4), the down arrow from (12, 12).
  EXPECT_EQ(Row(4, Red), "5 ");
  EXPECT_EQ(Row(5, Red), "4 5 6 ");
  EXPECT_EQ(Row(6, Red), "3 4 5 6 7 ");
  EXPECT_EQ(Row(12, Red), "12 13 14 15 16 ");
  EXPECT_EQ(Row(13, Red), "13 14 15 ");
  EXPECT_EQ(Count(Red), 17);
  Button->SetDown(bsTopDown);
  Draw();
  EXPECT_EQ(Row(5, Red), "6 ");
  EXPECT_EQ(Row(7, Red), "4 5 6 7 8 ");
  EXPECT_EQ(Row(12, Red), "12 13 14 15 16 ");
  Button->SetDown(bsBottomDown);
  Draw();
  EXPECT_EQ(Row(4, Red), "5 ");
  EXPECT_EQ(Row(13, Red), "13 14 15 16 17 ");
  EXPECT_EQ(Row(14, Red), "14 15 16 ");
}

TEST_F(SpinButton, ADisabledOneHasGreyArrows) {
  Button->SetArrowColor(vcl::clRed);
  Button->SetEnabled(false);
  EXPECT_EQ(Button->Down(), bsDisabled);
  Draw();
  EXPECT_EQ(Count(Red), 0);
  EXPECT_EQ(Dib.Pixel(5, 4), System(COLOR_GRAYTEXT));
  EXPECT_EQ(Dib.Pixel(8, 7), System(COLOR_HIGHLIGHTTEXT));
}

TEST_F(SpinButton, ThePressedHalfSwapsLightAndShadow) {
  const std::uint32_t light = System(COLOR_BTNHIGHLIGHT), dark = System(COLOR_BTNSHADOW);
  Button->SetColor(vcl::clAqua);
  const struct {
    TQELButtonState State;
    std::uint32_t Top;
    std::uint32_t Bottom;
  } cases[] = {{bsUp, light, dark}, {bsTopDown, dark, dark}, {bsBottomDown, light, light}};
  for (const auto& each : cases) {
    Button->SetDown(each.State);
    Draw();
    // The inner edge at the top left, and that at the bottom right.
    EXPECT_EQ(Dib.Pixel(8, 1), each.Top) << each.State;
    EXPECT_EQ(Dib.Pixel(1, 8), each.Top) << each.State;
    EXPECT_EQ(Dib.Pixel(10, 18), each.Bottom) << each.State;
    EXPECT_EQ(Dib.Pixel(18, 10), each.Bottom) << each.State;
    // The diagonal, and its two sides.
    EXPECT_EQ(Dib.Pixel(9, 10), System(COLOR_WINDOWFRAME)) << each.State;
    EXPECT_EQ(Dib.Pixel(9, 9), each.Top == light ? dark : light) << each.State;
    EXPECT_EQ(Dib.Pixel(10, 10), each.Bottom == light ? dark : light) << each.State;
    EXPECT_EQ(Dib.Pixel(0, 0), 0xFFFFFFu);
    EXPECT_EQ(Dib.Pixel(19, 19), System(COLOR_WINDOWFRAME));
    EXPECT_GT(Count(Aqua), 150);
  }
}

TEST_F(SpinButton, FollowsItsSizeAndTakesTheSystemsObjectsOnlyOnce) {
  for (const auto& [width, height] : {std::pair{40, 30}, {64, 64}, {1, 1}, {0, 0}, {20, 20}}) {
    Button->SetBounds(200, 20, width, height);
    Draw();
    EXPECT_EQ(Count(0x123456), 0) << width << " x " << height;
  }
  const int objects = handles::GdiObjects();
  for (int i = 0; i < 50; ++i) {
    Button->SetDown(i % 2 ? bsTopDown : bsUp);
    Draw();
  }
  EXPECT_EQ(handles::GdiObjects(), objects);
}

TEST_F(SpinButton, TheLookFollowsThePressedHalfOnly) {
  MoveTo(16, 16);
  testinput::LeftDown();
  const std::tuple<int, int, TQELButtonState> moves[] = {
      {4, 4, bsUp}, {15, 14, bsBottomDown}, {30, 30, bsUp}, {12, 17, bsBottomDown}};
  for (const auto& [x, y, look] : moves) {
    MoveTo(x, y);
    EXPECT_EQ(Button->Down(), look) << x << ", " << y;
  }
  MoveTo(40, 40);
  // With no half pressed, a release counts as a click of the upper one, even here.
  testinput::LeftUp();
  EXPECT_EQ(Clicks, "top ");
  MoveTo(16, 16);
  EXPECT_EQ(Button->Down(), bsUp);
  testinput::RightDown();  // Presses nothing either.
  EXPECT_EQ(Button->Down(), bsUp);
  testinput::RightUp();
  EXPECT_EQ(Clicks, "top top ");
}

TEST_F(SpinButton, IsPaintedOnlyWhenItsLookChanges) {
  const HDC dc = ::GetDC(Form.Handle());
  const int x = Button->Left() + 5, y = Button->Top() + 9;
  for (const TQELButtonState look : {bsUp, bsTopDown, bsTopDown, bsUp}) {
    const bool same = look == Button->Down();
    ::SetPixel(dc, x, y, RGB(255, 255, 0));
    Button->SetDown(look);
    EXPECT_EQ(::GetPixel(dc, x, y) == RGB(255, 255, 0), same) << look;
  }
  ::ReleaseDC(Form.Handle(), dc);
}

TEST_F(SpinButton, TheHalvesAreDividedByHeightAndNotByWidth) {
  // 40 wide and 20 high: the line falls twice as fast, from (0, 20) to (10, 0).
  Button->SetBounds(200, 20, 40, 20);
  const std::tuple<int, int, TQELButtonState> cases[] = {
      {0, 19, bsTopDown}, {5, 10, bsTopDown},    {5, 11, bsBottomDown},
      {10, 0, bsTopDown}, {11, 0, bsBottomDown}, {30, 2, bsBottomDown}};
  for (const auto& [x, y, half] : cases) {
    MoveTo(x, y);
    testinput::LeftDown();
    EXPECT_EQ(Clicks, "");
    EXPECT_EQ(Button->Down(), half) << x << ", " << y;
    testinput::LeftUp();
    EXPECT_EQ(Button->Down(), bsUp);
    EXPECT_EQ(std::exchange(Clicks, {}), half == bsTopDown ? "top " : "bottom ");
  }
}

TEST_F(SpinButton, WhatEndsThePressLeavesNothingPressed) {
  for (const bool disable : {false, true}) {
    MoveTo(4, 4);
    testinput::LeftDown();
    EXPECT_EQ(Button->Down(), bsTopDown);
    if (disable) {
      Button->SetEnabled(false);
      EXPECT_EQ(Button->Down(), bsDisabled);
      Button->SetEnabled(true);
    } else {
      ::SendMessageW(Form.Handle(), WM_CANCELMODE, 0, 0);
    }
    EXPECT_EQ(Button->Down(), bsUp);
    MoveTo(5, 5);
    EXPECT_EQ(Button->Down(), bsUp);
    testinput::LeftUp();
  }
}

}  // namespace
}  // namespace qel
