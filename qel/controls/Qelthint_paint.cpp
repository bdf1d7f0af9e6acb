// TQELNewHint's picture: shadow, body and pointer drawn on the snapshot of the screen, which is
// laid over the background, and the text on it all.
#include <algorithm>
#include <array>

#include "qel/controls/Qelthint.h"
#include "qel/controls/private/surface.h"
#include "qel/core/Qelclasses2.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TBitmap;
using vcl::TColor;
using vcl::TPoint;
using vcl::TRect;

namespace {

using TTriangle = std::array<TPoint, 3>;

constexpr int PointerHeight = 15;  // Above the body of a hint below the mouse.

/// The drawing of one hint on the snapshot of the screen.
class THintShape {
 public:
  THintShape(const TQELHint& hint, TQELDirectionB direction, TBitmap& snapshot)
      : FHint(hint),
        FDirection(direction),
        FAbove(direction == dUpRight || direction == dUpLeft),
        FSnapshot(snapshot),
        FCanvas(*snapshot.Canvas()),
        FWidth(snapshot.Width()),
        FHeight(snapshot.Height()) {}

  /// The body's first row.
  int Top() const { return FAbove ? 0 : PointerHeight; }

  void Draw() {
    if (FHint.Shadow()) DrawShadow();
    DrawBody();
    if (FHint.Speechbubble()) DrawPointer();
  }

 private:
  void DrawShadow();
  void Shade(HRGN region, const TRect& area);
  void DrawBody();
  void DrawOutline(TColor pen, const TRect& rect);
  void DrawPointer();
  TTriangle Pointer() const;
  TTriangle PointerShadow() const;

  const TQELHint& FHint;
  TQELDirectionB FDirection;
  bool FAbove;
  TBitmap& FSnapshot;
  vcl::TCanvas& FCanvas;
  int FWidth;
  int FHeight;
};

vcl::TOwnedRegion Region(const TTriangle& triangle) {
  const POINT points[] = {triangle[0], triangle[1], triangle[2]};
  return vcl::TOwnedRegion(vcl::CheckHandle(::CreatePolygonRgn(points, 3, WINDING), "a region"));
}

// Shadow.

void THintShape::DrawShadow() {
  constexpr int corner = 8;
  constexpr int strip = 14;  // Wide: what is further inside lies under the body.
  const int top = Top() + 8;
  const int bottom = FAbove ? FHeight - 9 : FHeight - 2;
  const int inside = FAbove ? FHeight - strip : FHeight - 8;
  const vcl::TOwnedRegion body(vcl::CheckHandle(
      FHint.Speechbubble() ? ::CreateRoundRectRgn(10, top, FWidth, bottom, corner, corner)
                           : ::CreateRectRgn(10, top, FWidth, bottom),
      "a region"));
  Shade(body.Get(), {FWidth - strip, top, FWidth, inside});
  Shade(body.Get(), {10, inside, FWidth, bottom});
  // A pointer that goes up throws no shadow.
  if (!FHint.Speechbubble() || !FAbove) return;
  const TTriangle tip = PointerShadow();
  Shade(Region(tip).Get(), {tip[0].X, tip[0].Y, tip[1].X, tip[2].Y});
}

/// Sets every other pixel of the region inside the area, whose last column and row count too.
void THintShape::Shade(HRGN region, const TRect& area) {
  const TPixel shade = PixelOf(vcl::ColorToRGB(FHint.HintShadowColor()));
  const int left = std::max(area.Left, 0);
  const int right = std::min(area.Right, FWidth - 1);
  const int bottom = std::min(area.Bottom, FHeight - 1);
  for (int y = std::max(area.Top, 0); y <= bottom; ++y) {
    auto* const row = static_cast<TPixel*>(FSnapshot.ScanLine(y));
    for (int x = left + ((left ^ y) & 1); x <= right; x += 2) {
      if (::PtInRegion(region, x, y)) row[x] = shade;
    }
  }
}

// Body: light edges at the top and left, dark ones at the right and bottom, a pixel further out.

void THintShape::DrawBody() {
  const int top = Top();
  const int bottom = FHeight - 15 + (FAbove ? 0 : 6);
  FCanvas.Brush()->SetColor(FHint.UnUsedHintColor());
  DrawOutline(vcl::clBlack, {1, top, FWidth - 6, bottom + 1});
  DrawOutline(vcl::clWhite, {0, top, FWidth - 7, bottom});
  DrawOutline(FHint.UnUsedHintColor(), {1, top + 1, FWidth - 7, bottom});
}

void THintShape::DrawOutline(TColor pen, const TRect& rect) {
  constexpr int corner = 9;
  FCanvas.Pen()->SetColor(pen);
  if (FHint.Speechbubble()) {
    FCanvas.RoundRect(rect.Left, rect.Top, rect.Right, rect.Bottom, corner, corner);
  } else {
    FCanvas.Rectangle(rect);
  }
}

// Pointer: joined to the body where the first line wipes out its edge.

TTriangle THintShape::Pointer() const {
  const int base = FAbove ? FHeight - 15 : PointerHeight;
  const int tip = FAbove ? FHeight : 0;
  const bool right = FDirection == dUpRight || FDirection == dDownRight;
  if (right) return {TPoint(10, base), TPoint(20, base), TPoint(0, tip)};
  return {TPoint(FWidth - 26, base), TPoint(FWidth - 16, base), TPoint(FWidth - 6, tip)};
}

/// Only of a pointer that goes down.
TTriangle THintShape::PointerShadow() const {
  const int base = FHeight - 15;
  if (FDirection == dUpRight) return {TPoint(12, base), TPoint(25, base), TPoint(12, FHeight)};
  return {TPoint(FWidth - 33, base), TPoint(FWidth - 11, base), TPoint(FWidth - 6, FHeight)};
}

void THintShape::DrawPointer() {
  const TTriangle pointer = Pointer();
  const auto lineTo = [this](TColor pen, TPoint to) {
    FCanvas.Pen()->SetColor(pen);
    FCanvas.LineTo(to.X, to.Y);
  };
  FCanvas.MoveTo(pointer[0].X, pointer[0].Y);
  lineTo(FHint.UnUsedHintColor(), pointer[1]);
  ::FillRgn(FCanvas.Handle(), Region(pointer).Get(), FCanvas.Brush()->Handle());
  lineTo(vcl::clBlack, pointer[2]);
  lineTo(vcl::clWhite, pointer[0]);
}

}  // namespace

void TQELNewHint::Paint() {
  if (!FPicture && (!FHint || !FSnapshot)) return THintWindow::Paint();
  if (!FPicture) FPicture = Picture();
  FSnapshot.reset();
  Canvas()->Draw(0, 0, FPicture.get());
}

/// The whole hint, from the snapshot, which is used up. It is made once for each showing.
std::unique_ptr<TBitmap> TQELNewHint::Picture() {
  auto picture = std::make_unique<TBitmap>(Width(), Height());
  vcl::TCanvas* const canvas = picture->Canvas();
  if (FHint->Background()) {
    FHint->Background()->Draw(canvas->Handle(), Width(), Height(), true);
  }
  THintShape shape(*FHint, FDirection, *FSnapshot);
  shape.Draw();
  // The background shows where body and pointer have been drawn, and wherever else the screen has
  // their colour.
  QELDrawTransparentBitmap(canvas, FSnapshot.get(), 0, 0, FHint->UnUsedHintColor());
  // In its points at the window's dots per inch, as the text has been measured.
  canvas->Font()->SetPixelsPerInch(Canvas()->Font()->PixelsPerInch());
  canvas->Font()->Assign(FHint->HintFont());
  TRect area = ClientRect();
  area.Left += 8;
  area.Top += 3 + shape.Top();
  FHint->Font3D()->Write(canvas->Font(), canvas->Handle(), area, Caption(),
                         DT_WORDBREAK | DT_NOPREFIX, Enabled());
  return picture;
}

}  // namespace qel
