// The pictures of a navigator's buttons, and drawing them; TNavButton.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "vcl/dbctrls/navpictures.h"
#include "vcl/dbctrls/private/navbutton.h"
#include "vcl/graphics/canvas.h"

namespace vcl {
namespace {

/// A corner in a square of 16 by 16.
struct TCorner {
  double X, Y;
};
using TShape = std::vector<TCorner>;
using TPicture16 = std::vector<TShape>;

constexpr double Square = 16;

TShape Box(double left, double top, double width, double height) {
  return {{left, top}, {left + width, top}, {left + width, top + height}, {left, top + height}};
}

/// Three quarters of a ring with an arrow at its end.
TPicture16 Circling() {
  constexpr double outer = 5.5, inner = 3.7;
  constexpr int steps = 18, last = 27;  // Of 10 degrees, from the right downwards.
  TShape ring;
  const auto add = [&](int step, double radius) {
    const double angle = step * std::numbers::pi / steps;
    ring.push_back({8 + radius * std::cos(angle), 8 + radius * std::sin(angle)});
  };
  for (int i = 0; i <= last; ++i) add(i, outer);
  for (int i = last; i >= 0; --i) add(i, inner);
  return {ring, {{8, 0}, {8, 6.6}, {11.6, 3.3}}};
}

TPicture16 PictureOf(TNavigateBtn button) {
  switch (button) {
    case nbFirst: return {Box(3, 3, 2, 10), {{13, 3}, {13, 13}, {6, 8}}};
    case nbPrior: return {{{11, 3}, {11, 13}, {4, 8}}};
    case nbNext: return {{{5, 3}, {5, 13}, {12, 8}}};
    case nbLast: return {{{3, 3}, {3, 13}, {10, 8}}, Box(11, 3, 2, 10)};
    case nbInsert:
      return {{{7, 3},
               {9, 3},
               {9, 7},
               {13, 7},
               {13, 9},
               {9, 9},
               {9, 13},
               {7, 13},
               {7, 9},
               {3, 9},
               {3, 7},
               {7, 7}}};
    case nbDelete: return {Box(3, 7, 10, 2)};
    case nbEdit:
      return {{{3, 13}, {3.8, 9.8}, {6.2, 12.2}},
              {{4.6, 9}, {9.6, 4}, {12, 6.4}, {7, 11.4}},
              {{10.4, 3.2}, {11.4, 2.2}, {13.8, 4.6}, {12.8, 5.6}}};
    case nbPost: return {{{2.5, 8.5}, {4.5, 6.5}, {7, 9}, {12, 3}, {14, 5}, {7.2, 13.2}}};
    case nbCancel:
      return {{{3, 4.5},
               {4.5, 3},
               {8, 6.5},
               {11.5, 3},
               {13, 4.5},
               {9.5, 8},
               {13, 11.5},
               {11.5, 13},
               {8, 9.5},
               {4.5, 13},
               {3, 11.5},
               {6.5, 8}}};
    case nbRefresh: return Circling();
  }
  return {};
}

void DrawIn(TCanvas& canvas, TNavigateBtn button, TPoint place, int side, TColor color) {
  canvas.Pen()->SetColor(color);
  canvas.Brush()->SetColor(color);
  for (const TShape& shape : PictureOf(button)) {
    std::vector<TPoint> points;
    for (const TCorner& corner : shape) {
      points.emplace_back(place.X + static_cast<int>(std::lround(corner.X * side / Square)),
                          place.Y + static_cast<int>(std::lround(corner.Y * side / Square)));
    }
    canvas.Polygon(points);
  }
}

}  // namespace

void DrawNavigatorPicture(TCanvas& canvas, TNavigateBtn button, const TRect& area, int side,
                          bool enabled) {
  const int drawn = std::min({side, area.Width() - 2, area.Height() - 2});
  const TPoint place(area.Left + (area.Width() - drawn) / 2,
                     area.Top + (area.Height() - drawn) / 2);
  if (enabled) return DrawIn(canvas, button, place, drawn, clBtnText);
  DrawIn(canvas, button, {place.X + 1, place.Y + 1}, drawn, clBtnHighlight);
  DrawIn(canvas, button, place, drawn, clBtnShadow);
}

TNavButton::TNavButton(TDBNavigator& navigator, TNavigateBtn button)
    : TSpeedButton(&navigator), FNavigator(navigator), FButton(button) {}

void TNavButton::Click() { FNavigator.BtnClick(FButton); }

void TNavButton::Paint() {
  TSpeedButton::Paint();
  DrawNavigatorPicture(*Canvas(), FButton, ClientRect(), ScaledPixels(16), Enabled());
  if (!FNavigator.Focused() || FNavigator.FocusedButton() != FButton) return;
  const int inset = ScaledPixels(3);
  Canvas()->Brush()->SetColor(clBtnFace);
  Canvas()->Font()->SetColor(clBtnText);
  Canvas()->DrawFocusRect({inset, inset, Width() - inset, Height() - inset});
}

}  // namespace vcl
