// TQELBrushFill, and the fills by brush.
#include "qel/controls/Qeltbackground.h"
#include "qel/controls/private/picturecache.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TBitmap;
using vcl::TColor;

namespace {

void FillBitmap(TBitmap& bitmap, vcl::TBrushStyle style, TColor color) {
  vcl::TBrush* brush = bitmap.Canvas()->Brush();
  brush->SetColor(color);
  brush->SetStyle(style);
  bitmap.Canvas()->FillRect({0, 0, bitmap.Width(), bitmap.Height()});
}

void CopyWithout(TBitmap& dest, TBitmap& source, TColor color) {
  const vcl::TRect all(0, 0, dest.Width(), dest.Height());
  dest.Canvas()->BrushCopy(all, &source, all, color);
}

/// A new bitmap is white, so between a hatch's lines, and under a clear brush, the pattern is too.
void PaintPattern(TBitmap& a, TBitmap& b, const TQELBrushFill& fill) {
  FillBitmap(a, fill.BrushStyle(), fill.BrushColor());
  FillBitmap(b, fill.BrushStyle(), vcl::clBlack);
  CopyWithout(a, b, vcl::clBlack);
}

/// The white of the pattern becomes the colour.
void PutOnColor(TBitmap& a, TBitmap& b, TColor color) {
  FillBitmap(b, vcl::bsSolid, color);
  CopyWithout(b, a, vcl::clWhite);
  ::BitBlt(a.Canvas()->Handle(), 0, 0, a.Width(), a.Height(), b.Canvas()->Handle(), 0, 0, SRCCOPY);
}

}  // namespace

void TQELBackground::DrawBrush(HDC dc, int width, int height) {
  const TPictureCache::TKey key{width,
                                height,
                                FBackgroundStyle,
                                FBrushFill->BrushStyle(),
                                static_cast<int>(vcl::ColorToRGB(FBrushFill->BrushColor())),
                                static_cast<int>(vcl::ColorToRGB(FSolidColor))};
  const auto paint = [&](TSurface& surface) {
    TBitmap a(width, height);
    TBitmap b(width, height);
    PaintPattern(a, b, *FBrushFill);
    if (FBackgroundStyle == bBrushFillSolidColor) PutOnColor(a, b, FSolidColor);
    surface.CopyFrom(a.Canvas()->Handle(), 0, 0);
  };
  FPatterns->Get(key, width, height, paint).CopyTo(dc, 0, 0);
}

void TQELBrushFill::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELBrushFill*>(source);
  if (!other) return TGraphicsObject::Assign(source);
  FBrushStyle = other->FBrushStyle;
  FBrushColor = other->FBrushColor;
  Changed();
}

void TQELBrushFill::SetBrushStyle(vcl::TBrushStyle style) {
  FBrushStyle = style;
  Changed();
}

void TQELBrushFill::SetBrushColor(TColor color) {
  FBrushColor = color;
  Changed();
}

const vcl::TClass& TQELBrushFill::Class() {
  using T = TQELBrushFill;
  using namespace vcl;
  static const TClass info = Describe<T, TGraphicsObject>(
      "qel::TQELBrushFill", "qel/controls/Qeltbackground.h",
      {
          Property<&T::BrushStyle, &T::SetBrushStyle>("BrushStyle").Default(bsSolid),
          Property<&T::BrushColor, &T::SetBrushColor>("BrushColor").Default(clBtnFace),
      });
  return info;
}

}  // namespace qel
