// TQELGlyph: its strip of images, which one fits a state, drawing it, and greying it.
#include "qel/core/Qelglyph.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "qel/core/Qelclasses2.h"
#include "qel/core/private/Qelownedsettings.h"
#include "qel/core/private/arithmetic.h"
#include "vcl/controls/scaling.h"
#include "vcl/graphics/imagelist.h"
#include "vcl/rtl/component.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TBitmap;
using vcl::TColor;

namespace {

constexpr int MaxGlyphs = 4;

bool IsDesigned(const vcl::TObject* owner) {
  const auto* component = dynamic_cast<const vcl::TComponent*>(owner);
  return component && component->Designing();
}

/// A pixel as 0x00RRGGBB.
std::uint32_t PixelOf(TColor color) {
  const COLORREF rgb = vcl::ColorToRGB(color);
  return std::uint32_t{GetRValue(rgb)} << 16 | GetGValue(rgb) << 8 | GetBValue(rgb);
}

/// What pixels become by the sum of their channels, which must be above the limit times the
/// level; the last band takes the rest.
struct TGrayBand {
  int Limit;
  std::uint32_t Pixel;
};

/// The brightest pixels take the face's colour and the next ones the highlight: so it is meant.
std::array<TGrayBand, 4> GrayBands() {
  return {{{535, PixelOf(vcl::clBtnFace)},
           {274, PixelOf(vcl::clBtnHighlight)},
           {55, PixelOf(vcl::clBtnShadow)},
           {0, PixelOf(vcl::clBlack)}}};
}

}  // namespace

TQELGlyph::TQELGlyph(vcl::TObject* owner) : FOwner(owner), FBitmap(std::make_unique<TBitmap>()) {
  FBitmap->OnChange = vcl::TNotifyEvent(this, &TQELGlyph::BitmapChanged);
  OnChange = vcl::TNotifyEvent(this, &TQELGlyph::Invalidate);
}

TQELGlyph::~TQELGlyph() = default;

void TQELGlyph::Invalidate(vcl::TObject* /*sender*/) { InvalidateOwner(FOwner); }

void TQELGlyph::BitmapChanged(vcl::TObject* /*sender*/) {
  if (!FAssigning) Changed();
}

void TQELGlyph::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELGlyph*>(source);
  if (!other) return TGraphicsObject::Assign(source);
  AssignBitmap(other->FBitmap.get());
  FTransparentColor = other->FTransparentColor;
  FVisible = other->FVisible;
  FNumGlyphs = other->FNumGlyphs;
  FTransparent = other->FTransparent;
  Changed();
}

void TQELGlyph::AssignBitmap(const TBitmap* bitmap) {
  if (bitmap == FBitmap.get()) return;
  const TQuietly quietly(FAssigning);
  FBitmap->Assign(bitmap);
}

void TQELGlyph::SetBitmap(const TBitmap* bitmap) {
  if (bitmap == FBitmap.get()) return;
  AssignBitmap(bitmap);
  if (!FBitmap->Empty() && IsDesigned(FOwner)) AdoptStrip();
  Changed();
}

void TQELGlyph::AdoptStrip() {
  const int width = FBitmap->Width();
  const int height = FBitmap->Height();
  if (width % height == 0) {
    const int count = width / height;
    FNumGlyphs = TQELNumGlyphs(count > MaxGlyphs ? 1 : count);
  }
  FTransparentColor = FBitmap->Canvas()->Pixels(0, height - 1);
}

int TQELGlyph::GetWidth() const { return ScaledTo(PixelsPerInchOf(FOwner), ImageWidth()); }

int TQELGlyph::ImageWidth() const {
  if (FBitmap->Empty() || FNumGlyphs == 0) return 0;
  return Round(double(FBitmap->Width()) / int{FNumGlyphs});
}

int TQELGlyph::GetHeight() const {
  return FBitmap->Empty() ? 0 : ScaledTo(PixelsPerInchOf(FOwner), FBitmap->Height());
}

int TQELGlyph::ImageFor(bool enabled, bool down) const {
  if (!enabled) return FNumGlyphs;
  return down && FNumGlyphs >= 3 ? 2 : 1;
}

void TQELGlyph::CopyImage(int number, TBitmap& image) const {
  const int width = image.Width();
  const int height = image.Height();
  image.Canvas()->CopyRect({0, 0, width, height}, FBitmap->Canvas(),
                           vcl::Bounds((number - 1) * width, 0, width, height));
}

void TQELGlyph::Draw(vcl::TCanvas* canvas, int x, int y, bool enabled, bool down,
                     bool grayed) const {
  if (FBitmap->Empty() || !FVisible || ImageWidth() == 0) return;
  TBitmap image(ImageWidth(), FBitmap->Height());
  const int number = ImageFor(enabled, down);
  CopyImage(number, image);
  if (!enabled || number > FNumGlyphs) DrawGrayed(image, FTransparentColor, 2);
  if (enabled && grayed) {
    CopyImage(1, image);
    DrawGrayed(image, FTransparentColor, 1);
  }
  PutImage(canvas, image, x, y);
}

void TQELGlyph::DrawImage(vcl::TCanvas* canvas, int x, int y, int number, bool grayed) const {
  if (FBitmap->Empty() || !FVisible || ImageWidth() == 0) return;
  TBitmap image(ImageWidth(), FBitmap->Height());
  CopyImage(HasImage(number) ? number : 1, image);
  if (grayed) DrawGrayed(image, FTransparentColor, 2);
  PutImage(canvas, image, x, y);
}

void TQELGlyph::PutImage(vcl::TCanvas* canvas, TBitmap& image, int x, int y) const {
  if (PixelsPerInchOf(FOwner) != vcl::DefaultPixelsPerInch) {
    DrawScaled(canvas, image, x, y);
  } else if (FTransparent) {
    QELDrawTransparentBitmap(canvas, &image, x, y, FTransparentColor);
  } else {
    ::BitBlt(canvas->Handle(), x, y, image.Width(), image.Height(), image.Canvas()->Handle(), 0, 0,
             SRCCOPY);
  }
}

void TQELGlyph::DrawScaled(vcl::TCanvas* canvas, TBitmap& image, int x, int y) const {
  vcl::TImageList images(nullptr, image.Width(), image.Height());
  FTransparent ? images.AddMasked(&image, FTransparentColor) : images.Add(&image, nullptr);
  images.ForPPI(PixelsPerInchOf(FOwner))->Draw(canvas, x, y, 0);
}

void TQELGlyph::DrawGrayed(TBitmap& bitmap, TColor /*color*/, int level) const {
  bitmap.SetPixelFormat(vcl::pf32bit);
  ::GdiFlush();
  constexpr std::uint32_t None = 0xFF000000;  // No pixel's colour.
  const std::uint32_t kept = FTransparentColor == vcl::clNone ? None : PixelOf(FTransparentColor);
  const std::array<TGrayBand, 4> bands = GrayBands();
  for (int y = 0; y < bitmap.Height(); ++y) {
    auto* row = static_cast<std::uint32_t*>(bitmap.ScanLine(y));
    for (int x = 0; x < bitmap.Width(); ++x) {
      const std::uint32_t c = row[x] & 0xFFFFFF;
      const int sum = static_cast<int>((c >> 16) + (c >> 8 & 0xFF) + (c & 0xFF));
      if (c == kept) continue;
      row[x] = std::find_if(bands.begin(), bands.end() - 1, [&](const TGrayBand& band) {
                 return sum > band.Limit * level;
               })->Pixel;
    }
  }
}

void TQELGlyph::SetTransparentColor(TColor color) {
  if (Store(FTransparentColor, color)) Changed();
}

void TQELGlyph::SetVisible(bool visible) {
  if (Store(FVisible, visible)) Changed();
}

void TQELGlyph::SetNumGlyphs(TQELNumGlyphs count) {
  if (count > MaxGlyphs) {
    throw vcl::EArgumentOutOfRangeException("A glyph has 0 to 4 images, not " +
                                            std::to_string(count));
  }
  if (Store(FNumGlyphs, count)) Changed();
}

void TQELGlyph::SetTransparent(bool transparent) {
  if (Store(FTransparent, transparent)) Changed();
}

const vcl::TClass& TQELGlyph::Class() {
  using T = TQELGlyph;
  using namespace vcl;
  static const TClass info = Describe<T, TGraphicsObject>(
      "qel::TQELGlyph", "qel/core/Qelclasses.h",
      {
          Property<&T::TransparentColor, &T::SetTransparentColor>("TransparentColor"),
          Property<&T::Bitmap, &T::SetBitmap>("Bitmap"),
          Property<&T::Visible, &T::SetVisible>("Visible").Default(true),
          Property<&T::NumGlyphs, &T::SetNumGlyphs>("NumGlyphs").Default(0),
          Property<&T::Transparent, &T::SetTransparent>("Transparent").Default(true),
      });
  return info;
}

}  // namespace qel
