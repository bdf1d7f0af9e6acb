// Gradients, pixel by pixel against the plain sequence of GDI calls.
#include <gmock/gmock.h>

#include "qel/controls/Qeltbackground.h"
#include "tests/support/plainfill.h"

namespace {

using qel::TQELFillStyle;
using qel::TQELGradient;
using vcl::TColor;

constexpr int StyleCount = 13;
constexpr COLORREF Silver = RGB(192, 192, 192), Gray = RGB(128, 128, 128);
constexpr COLORREF Blue = RGB(0, 0, 255), Red = RGB(255, 0, 0), Black = RGB(0, 0, 0);

struct TCase {
  int Width;
  int Height;
  int ColorCount;
  std::vector<COLORREF> Colors;
};

std::string NameOf(int style) {
  return std::string(*vcl::TypeInfoOf<TQELFillStyle>().EnumName(style));
}

void SetColors(TQELGradient& gradient, const std::vector<COLORREF>& colors) {
  gradient.SetBeginColor(TColor(colors.front()));
  gradient.SetEndColor(TColor(colors.back()));
  gradient.ColorsInBetween()->Clear();
  for (std::size_t i = 1; i + 1 < colors.size(); ++i) {
    gradient.ColorsInBetween()->Add(vcl::ColorToString(TColor(colors[i])));
  }
}

/// Where the gradient differs from the plain calls; empty when it does not.
std::string Compare(const TCase& each, int style, bool forward) {
  TQELGradient gradient;
  SetColors(gradient, each.Colors);
  gradient.SetFillStyle(TQELFillStyle(style));
  gradient.SetColorCount(each.ColorCount);
  const plain::TDib painted(each.Width + 3, each.Height + 2);
  const plain::TDib expected(each.Width + 3, each.Height + 2);
  painted.Fill(RGB(1, 2, 3));
  expected.Fill(RGB(1, 2, 3));

  std::vector<COLORREF> colors = each.Colors;
  if (!forward) std::swap(colors.front(), colors.back());
  const plain::TDib own(each.Width, each.Height);
  plain::Gradient(own.DC(), each.Width, each.Height, style, each.ColorCount, colors);
  ::BitBlt(expected.DC(), 0, 0, each.Width, each.Height, own.DC(), 0, 0, SRCCOPY);
  gradient.MultiDraw(painted.DC(), each.Width, each.Height, gradient.ColorsInBetween(),
                     vcl::clBtnFace, forward);
  return painted.Difference(expected);
}

/// Wine draws ellipses that are much higher than they are wide from memory that it has not set, so
/// that two calls of the same may differ. Many pairs come to such ellipses in a high area.
bool MayBeThinEllipse(int style, int width, int height) {
  return height > width &&
         (style == qel::RoundMiddle || style == qel::DoppelFlash || style == qel::Singleflash);
}

class Gradients : public testing::TestWithParam<int> {};

TEST_P(Gradients, AreThePlainCallsPixelByPixel) {
  std::vector<COLORREF> many(24);
  for (std::size_t i = 0; i < many.size(); ++i) many[i] = RGB(i * 37 % 256, i * 91 % 256, i * 5);
  const std::vector<std::vector<COLORREF>> lists = {
      {Silver, Gray},
      {Black, Red, Blue},
      {RGB(255, 0, 7), Black, RGB(3, 250, 9), Silver, Blue},
      many};
  const std::pair<int, int> sizes[] = {{1, 1},   {2, 3},    {7, 1},   {1, 9},   {33, 17},
                                       {64, 64}, {101, 40}, {31, 90}, {320, 9}, {120, 121}};
  for (const auto& [width, height] : sizes) {
    for (int count : {-3, 0, 1, 2, 3, 32, 255, 1000}) {
      // The plain fan of a thousand colours takes minutes for all sizes, and the two smallest show
      // it.
      if (count > 255 && width * height > 2000) continue;
      for (const std::vector<COLORREF>& colors : lists) {
        if (&colors == &lists.back() && MayBeThinEllipse(GetParam(), width, height)) continue;
        EXPECT_EQ("", Compare({width, height, count, colors}, GetParam(), colors.size() % 2 == 0))
            << width << " x " << height << ", " << count << " colours, " << colors.size() - 1
            << " pairs";
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AllStyles, Gradients, testing::Range(0, StyleCount),
                         [](const auto& test) { return NameOf(test.param); });

}  // namespace
