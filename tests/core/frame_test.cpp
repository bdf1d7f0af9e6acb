// Frames, pixel by pixel.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/support/plainfill.h"

namespace {

using qel::TQELFrame;
using vcl::TColor;
using vcl::TRect;

constexpr TColor H = TColor(0x00FF00), S = TColor(0xFF0000), Solid = TColor(0x0000FF),
                 None = vcl::clNone, Black = vcl::clBlack;
constexpr int Width = 40, Height = 30;
constexpr TRect Around(3, 4, 33, 27);
constexpr std::uint32_t Ground = 0x777777;

/// A border, `Depth` rings inside the rectangle.
struct TBorder {
  int Depth;
  TColor TopLeft;
  TColor BottomRight;
};

/// What the frame's pixel is to be, from its distance to the four sides.
std::uint32_t Expected(int x, int y, int rings, const std::vector<TBorder>& borders) {
  const int left = x - Around.Left, top = y - Around.Top;
  const int right = Around.Right - 1 - x, bottom = Around.Bottom - 1 - y;
  const int depth = std::min({left, top, right, bottom});
  for (const TBorder& border : borders) {
    if (depth < border.Depth || depth >= border.Depth + rings) continue;
    // The lower right half has the right column, upper corner included, and the bottom row; the
    // lower left corner is drawn by both, last by this one.
    const bool lower = right == depth || bottom == depth;
    const bool upper = (left == depth || top == depth) && right != depth;
    if (lower && border.BottomRight != None) return plain::PixelOf(border.BottomRight);
    if (upper && (left == depth || bottom != depth) && border.TopLeft != None) {
      return plain::PixelOf(border.TopLeft);
    }
  }
  return Ground;
}

struct TCase {
  qel::TQELFrameStyle Style;
  int Rings;
  int Offset;
  int Shrinks;  // Pixels that the rectangle loses on each side.
  int BorderWidth;
  std::vector<TBorder> Borders;
};

const TCase Cases[] = {
    {qel::frameSolid, 1, 5, 1, 1, {{0, Solid, Solid}}},
    {qel::frameRaised, 3, 5, 3, 3, {{0, H, S}}},
    {qel::frameLowered, 2, 0, 2, 2, {{0, S, H}}},
    {qel::frameNone, 4, 3, 0, 2, {}},
    {qel::frameFramedUp, 2, 1, 5, 5, {{0, H, S}, {3, S, H}}},
    {qel::frameFramedDown, 1, 0, 2, 2, {{0, S, H}, {1, H, S}}},
    {qel::framePanelUp, 1, 4, 2, 2, {{0, H, Black}, {1, None, S}}},
    {qel::framePanelDown, 2, 0, 4, 4, {{0, S, None}, {2, Black, H}}},
    {qel::frameLightBordered, 1, 0, 2, 2, {{0, None, S}, {1, H, H}}},
};

/// Frames whose owner is null, or stands on a form of so many times 96 dots per inch.
void ExpectBordersJustInside(vcl::TControl* owner, int times) {
  for (TCase each : Cases) {
    TQELFrame frame(owner);
    frame.SetHighlight(H);
    frame.SetShadow(S);
    frame.SetSolid(Solid);
    frame.SetFrameStyle(each.Style);
    frame.SetFrameWidth(each.Rings);
    frame.SetOffset(each.Offset);
    for (int* size : {&each.Rings, &each.Offset, &each.Shrinks, &each.BorderWidth}) *size *= times;
    for (TBorder& border : each.Borders) border.Depth *= times;
    const plain::TDib dib(Width, Height);
    dib.Fill(Ground);
    TRect rect = Around;
    frame.Draw(dib.DC(), rect);
    int wrong = 0;
    for (int y = 0; y < Height; ++y) {
      for (int x = 0; x < Width; ++x) {
        if (dib.Pixel(x, y) != Expected(x, y, each.Rings, each.Borders) && wrong++ == 0) {
          ADD_FAILURE() << "style " << each.Style << " at " << x << ", " << y << ": " << std::hex
                        << dib.Pixel(x, y) << ", not " << Expected(x, y, each.Rings, each.Borders);
        }
      }
    }
    TRect inner = Around;
    inner.Inflate(-each.Shrinks, -each.Shrinks);
    EXPECT_EQ(rect, inner) << each.Style;
    EXPECT_EQ(frame.BorderWidth(), each.BorderWidth) << each.Style;
    EXPECT_EQ(frame.RingCount(), each.Rings) << each.Style;
    EXPECT_EQ(frame.FrameWidth(), each.Rings / times) << "the property stays";
  }
}

TEST(Frame, DrawsItsBordersJustInside) { ExpectBordersJustInside(nullptr, 1); }

TEST(Frame, FollowsTheDotsPerInchOfItsOwner) {
  vcl::TForm form(nullptr);
  qel::TQELLabel label(&form);
  label.SetParent(&form);
  ExpectBordersJustInside(&label, 1);
  form.ScaleForPPI(192);
  ExpectBordersJustInside(&label, 2);
}

TEST(Frame, RefusesSizesSilently) {
  TQELFrame frame;
  int changes = 0;
  frame.OnChange = [&](vcl::TObject*) { ++changes; };
  frame.SetFrameWidth(0);
  frame.SetFrameWidth(-3);
  frame.SetOffset(-1);
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(frame.FrameWidth(), 1);
  EXPECT_EQ(frame.Offset(), 0);
  frame.SetFrameWidth(1);
  frame.SetOffset(0);
  frame.SetFrameStyle(qel::frameRaised);
  frame.SetSolid(frame.Solid());
  EXPECT_EQ(changes, 4);
}

TEST(Frame, WidthsBeyondTheAreaCostNothing) {
  TQELFrame frame;
  frame.SetSolid(Solid);
  frame.SetFrameStyle(qel::frameSolid);
  frame.SetFrameWidth(1'000'000'000);
  const plain::TDib dib(Width, Height);
  dib.Fill(Ground);
  TRect rect = Around;
  frame.Draw(dib.DC(), rect);
  EXPECT_EQ(rect, TRect(Around.Left + 1'000'000'000, Around.Top + 1'000'000'000,
                        Around.Right - 1'000'000'000, Around.Bottom - 1'000'000'000));
  // Past their middle the rings grow again, until they leave what can be seen.
  for (int x : {0, Around.Left, Width / 2, Width - 1}) {
    EXPECT_EQ(dib.Pixel(x, Height / 2), plain::PixelOf(Solid)) << x;
  }
}

TEST(Frame, TwoRingsMakeAButton) {
  TQELFrame frame;
  frame.SetHighlight(H);
  frame.SetShadow(S);
  for (const bool down : {false, true}) {
    vcl::TBitmap bitmap(20, 20);
    bitmap.Canvas()->Pen()->SetWidth(5);
    TRect rect(2, 2, 18, 18);
    frame.Drawbutton(bitmap.Canvas(), rect, down);
    EXPECT_EQ(rect, TRect(4, 4, 16, 16));
    const struct {
      int X, Y;
      TColor Up, Down;
    } pixels[] = {{2, 2, vcl::clWhite, S},
                  {16, 2, vcl::clWhite, S},
                  {17, 2, Black, H},
                  {2, 17, Black, H},
                  {3, 3, H, Black},
                  {16, 16, S, vcl::clWhite},
                  {3, 16, S, vcl::clWhite},
                  {4, 4, vcl::clWhite, vcl::clWhite},
                  {1, 1, vcl::clWhite, vcl::clWhite}};
    for (const auto& [x, y, whenUp, whenDown] : pixels) {
      EXPECT_EQ(bitmap.Canvas()->Pixels(x, y), down ? whenDown : whenUp) << x << ", " << y;
    }
  }
}

}  // namespace
