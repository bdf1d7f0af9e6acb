// TBevel: its shapes, and painting them.
#include "vcl/stdctrls/bevel.h"

#include <utility>

#include "vcl/graphics/canvas.h"
#include "vcl/rtl/properties.h"

namespace vcl {
namespace {

/// Two lines beside each other, from point to point, in the dark and the light colour.
struct TBevelPainter {
  TCanvas* Canvas;
  TColor Dark;
  TColor Light;

  void Line(TColor color, int x1, int y1, int x2, int y2) const {
    Canvas->Pen()->SetColor(color);
    Canvas->MoveTo(x1, y1);
    Canvas->LineTo(x2, y2);
  }
  void Box(TColor top, TColor bottom, const TRect& r) const {
    Line(top, r.Left, r.Bottom, r.Left, r.Top);
    Line(top, r.Left, r.Top, r.Right, r.Top);
    Line(bottom, r.Right, r.Top, r.Right, r.Bottom);
    Line(bottom, r.Right, r.Bottom, r.Left - 1, r.Bottom);
  }
  void Horizontal(int y, int width) const {
    Line(Dark, 0, y, width, y);
    Line(Light, 0, y + 1, width, y + 1);
  }
  void Vertical(int x, int height) const {
    Line(Dark, x, 0, x, height);
    Line(Light, x + 1, 0, x + 1, height);
  }
};

}  // namespace

const TClass& TBevel::Class() {
  static const TClass info = Describe<TBevel, TGraphicControl>(
      "vcl::TBevel", "vcl/stdctrls/extctrls.h",
      {
          Inherit("Align"),
          Inherit("ParentShowHint"),
          Property<&TBevel::Shape, &TBevel::SetShape>("Shape").Default(bsBox),
          Inherit("ShowHint"),
          Property<&TBevel::Style, &TBevel::SetStyle>("Style").Default(bsLowered),
          Inherit("Visible"),
      });
  return info;
}

TBevel::TBevel(TComponent* owner) : TGraphicControl(owner) {
  SetControlStyle(ControlStyle() + TControlStyle{csReplicatable});
  SetBounds(0, 0, 50, 50);
  HearOnlyAsked<TBevel>();
}

void TBevel::SetShape(TBevelShape shape) {
  if (shape == FShape) return;
  FShape = shape;
  Invalidate();
}

void TBevel::SetStyle(TBevelStyle style) {
  if (style == FStyle) return;
  FStyle = style;
  Invalidate();
}

void TBevel::Paint() {
  TBevelPainter paint{Canvas(), clBtnShadow, clBtnHighlight};
  if (FStyle == bsRaised) std::swap(paint.Dark, paint.Light);
  const int right = Width() - 1;
  const int bottom = Height() - 1;
  switch (FShape) {
    case bsBox: return paint.Box(paint.Dark, paint.Light, {0, 0, right, bottom});
    case bsFrame:
      paint.Box(paint.Light, paint.Light, {1, 1, right, bottom});
      return paint.Box(paint.Dark, paint.Dark, {0, 0, right - 1, bottom - 1});
    case bsTopLine: return paint.Horizontal(0, Width());
    case bsBottomLine: return paint.Horizontal(bottom - 1, Width());
    case bsLeftLine: return paint.Vertical(0, Height());
    case bsRightLine: return paint.Vertical(right - 1, Height());
    case bsSpacer: return;
  }
}

void TBevel::DescribeAccessible(TAccessibleInfo& info) const {
  TGraphicControl::DescribeAccessible(info);
  info.Role = arSeparator;
}

}  // namespace vcl
