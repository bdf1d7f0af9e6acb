// TBrush: its settings, and the system's brush that is made of them.
#include "vcl/graphics/brush.h"

#include "vcl/graphics/bitmap.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

HBRUSH MakeBrush(TBrushStyle style, TColor color) {
  if (style == bsSolid) return ::CreateSolidBrush(ColorToRGB(color));
  // Deleting a stock object, as the owner will, does nothing.
  if (style == bsClear) return static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH));
  static constexpr int hatches[] = {HS_HORIZONTAL, HS_VERTICAL, HS_FDIAGONAL,
                                    HS_BDIAGONAL,  HS_CROSS,    HS_DIAGCROSS};
  return ::CreateHatchBrush(hatches[style - bsHorizontal], ColorToRGB(color));
}

}  // namespace

TBrush::~TBrush() = default;

const TClass& TBrush::Class() {
  static const TClass info = Describe<TBrush, TGraphicsObject>(
      "vcl::TBrush", "vcl/graphics/graphics.h",
      {
          Property<&TBrush::Color, &TBrush::SetColor>("Color").Default(clWhite),
          Property<&TBrush::Style, &TBrush::SetStyle>("Style").Default(bsSolid),
      });
  return info;
}

void TBrush::Assign(const TPersistent* source) {
  const auto* brush = dynamic_cast<const TBrush*>(source);
  if (!brush) return TPersistent::Assign(source);
  if (brush == this || *brush == *this) return;
  FColor = brush->FColor;
  FStyle = brush->FStyle;
  FBitmap = brush->FBitmap;
  FHandle = brush->FHandle;
  Changed();
}

bool TBrush::operator==(const TBrush& other) const {
  return FColor == other.FColor && FStyle == other.FStyle && FBitmap == other.FBitmap;
}

std::shared_ptr<const TOwnedBrush> TBrush::Share() const {
  if (!FHandle) {
    const bool pattern = FBitmap && !FBitmap->Empty();
    FHandle = std::make_shared<const TOwnedBrush>(CheckHandle(
        pattern ? ::CreatePatternBrush(FBitmap->Handle()) : MakeBrush(FStyle, FColor), "a brush"));
  }
  return FHandle;
}

HBRUSH TBrush::Handle() const { return Share()->Get(); }

void TBrush::Remake() {
  FHandle.reset();
  Changed();
}

void TBrush::SetColor(TColor color) {
  if (color == FColor && FStyle != bsClear) return;
  FColor = color;
  if (FStyle == bsClear) FStyle = bsSolid;
  Remake();
}

void TBrush::SetStyle(TBrushStyle style) {
  if (style == FStyle) return;
  FStyle = style;
  Remake();
}

void TBrush::SetBitmap(const TBitmap* bitmap) {
  if (!bitmap && !FBitmap) return;
  FBitmap = bitmap;
  Remake();
}

void TBrush::ApplyBackground(HDC dc) const {
  const bool solid = FStyle == bsSolid && !FBitmap;
  const COLORREF color = ColorToRGB(FColor);
  ::SetBkColor(dc, solid ? color : ~color & 0xFFFFFF);
  ::SetBkMode(dc, solid ? OPAQUE : TRANSPARENT);
}

}  // namespace vcl
