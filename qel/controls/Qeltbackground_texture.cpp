// TQELTexture.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

#include "qel/controls/Qeltbackground.h"
#include "qel/controls/private/picturecache.h"
#include "qel/core/private/Qelownedsettings.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TBitmap;
using vcl::TColor;

namespace {

/// Repeats what stands at the beginning until the whole is filled.
void Repeat(TPixel* pixels, std::size_t have, std::size_t all) {
  while (have < all) {
    const std::size_t more = std::min(have, all - have);
    std::memcpy(pixels + have, pixels, more * sizeof(TPixel));
    have += more;
  }
}

/// A row of tiles, or a column.
struct TTiles {
  std::int64_t First;  ///< The number of the first one, from 0.
  std::int64_t Count;

  /// Those of them that touch what is seen, from the one pixel to before the other.
  TTiles Seen(std::int64_t from, std::int64_t to, int tile) const {
    const std::int64_t first = std::max<std::int64_t>(from, 0) / tile;
    const std::int64_t end = std::min(Count, (std::max<std::int64_t>(to, 0) + tile - 1) / tile);
    return {first, std::max<std::int64_t>(end - first, 0)};
  }
};

/// The tiles that an extent has: those that begin before its end, and one there when they fit it
/// exactly.
TTiles TilesOf(int extent, int tile) { return {0, std::int64_t{extent} / tile + 1}; }

/// Copies the tile over the whole surface, whose size is a multiple of the tile's.
void TileSurface(const TSurface& tile, TSurface& surface) {
  const std::size_t width = tile.Width();
  const std::size_t allWidth = surface.Width();
  for (int y = 0; y < tile.Height(); ++y) {
    for (std::size_t x = 0; x < allWidth; x += width) {
      std::memcpy(surface.Row(y) + x, tile.Row(y), width * sizeof(TPixel));
    }
  }
  Repeat(surface.Row(0), allWidth * tile.Height(), allWidth * surface.Height());
}

}  // namespace

TQELTexture::TQELTexture()
    : FImage(std::make_unique<TBitmap>()), FPictures(std::make_unique<TPictureCache>()) {
  FImage->OnChange = [this](vcl::TObject*) {
    FSource.reset();
    if (!FAssigning) Changed();
  };
}

TQELTexture::~TQELTexture() = default;

void TQELTexture::Changed() {
  FPictures->Outdate();
  TGraphicsObject::Changed();
}

void TQELTexture::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELTexture*>(source);
  if (!other) return TGraphicsObject::Assign(source);
  FImageStyle = other->FImageStyle;
  FTransparentColor = other->FTransparentColor;
  FTransparentBackground = other->FTransparentBackground;
  SetImage(other->FImage.get());
}

void TQELTexture::SetImage(const TBitmap* image) {
  if (image != FImage.get()) {
    const TQuietly quietly(FAssigning);
    FImage->Assign(image);
  }
  FSource.reset();
  Changed();
}

void TQELTexture::SetImageStyle(TQELImageStyle style) {
  FImageStyle = style;
  Changed();
}

void TQELTexture::SetTransparentColor(TColor color) {
  FTransparentColor = color;
  FSource.reset();
  Changed();
}

void TQELTexture::SetTransparentBackground(TColor color) {
  FTransparentBackground = color;
  FSource.reset();
  Changed();
}

void TQELTexture::Draw(HDC dc, int width, int height, TColor color) {
  if (FImage->Empty() || width <= 0 || height <= 0) return;
  switch (FImageStyle) {
    case isTile: return DrawTiled(dc, width, height);
    case isCenter: return DrawCentered(dc, width, height, color);
    case isStretched: return DrawStretched(dc, width, height);
  }
}

/// The picture, its see-through pixels painted in their background.
const TSurface& TQELTexture::Source() {
  const COLORREF background = vcl::ColorToRGB(FTransparentBackground);
  if (FSource && FSourceBackground == background) return *FSource;
  const vcl::TRect all(0, 0, FImage->Width(), FImage->Height());
  TBitmap work(all.Right, all.Bottom);
  work.Canvas()->Brush()->SetColor(FTransparentBackground);
  work.Canvas()->FillRect(all);
  if (FTransparentColor == vcl::clNone) {
    work.Canvas()->Draw(0, 0, FImage.get());
  } else {
    work.Canvas()->BrushCopy(all, FImage.get(), all, FTransparentColor);
  }
  auto source = std::make_unique<TSurface>(all.Right, all.Bottom);
  source->CopyFrom(work.Canvas()->Handle(), 0, 0);
  FSource = std::move(source);
  FSourceBackground = background;
  return *FSource;
}

/// What the pictures that are kept depend on, besides the settings whose changes outdate them.
std::vector<int> TQELTexture::Key(int width, int height, int mode) const {
  return {width,
          height,
          FImageStyle,
          mode,
          static_cast<int>(Version()),
          static_cast<int>(vcl::ColorToRGB(FTransparentBackground))};
}

void TQELTexture::DrawTiled(HDC dc, int width, int height) {
  const int tileWidth = FImage->Width();
  const int tileHeight = FImage->Height();
  TTiles columns = TilesOf(width, tileWidth);
  TTiles rows = TilesOf(height, tileHeight);
  if (!TPictureCache::Fits(columns.Count * tileWidth, rows.Count * tileHeight)) {
    // The whole would be too large: of such an area only what is seen is painted.
    RECT seen{};
    if (::GetClipBox(dc, &seen) != ERROR) {
      columns = columns.Seen(seen.left, seen.right, tileWidth);
      rows = rows.Seen(seen.top, seen.bottom, tileHeight);
    }
  }
  if (columns.Count == 0 || rows.Count == 0) return;
  PictureOfTiles(columns.Count * tileWidth, rows.Count * tileHeight)
      .CopyTo(dc, static_cast<int>(columns.First * tileWidth),
              static_cast<int>(rows.First * tileHeight));
}

const TSurface& TQELTexture::PictureOfTiles(std::int64_t width, std::int64_t height) {
  if (width == FImage->Width() && height == FImage->Height()) return Source();
  constexpr auto limit = std::int64_t{std::numeric_limits<int>::max()};
  const int allWidth = static_cast<int>(std::min(width, limit));
  const int allHeight = static_cast<int>(std::min(height, limit));
  return FPictures->Get(Key(allWidth, allHeight, 0), allWidth, allHeight,
                        [&](TSurface& surface) { TileSurface(Source(), surface); });
}

void TQELTexture::DrawCentered(HDC dc, int width, int height, TColor color) {
  ::SetBkColor(dc, vcl::ColorToRGB(color));
  ::SetBkMode(dc, OPAQUE);
  const int x = width > FImage->Width() ? (width - FImage->Width()) / 2 : 0;
  const int y = height > FImage->Height() ? (height - FImage->Height()) / 2 : 0;
  Source().CopyTo(dc, x, y);
}

void TQELTexture::DrawStretched(HDC dc, int width, int height) {
  const int mode = ::GetStretchBltMode(dc);
  FPictures
      ->Get(Key(width, height, mode), width, height,
            [&](TSurface& surface) {
              ::SetStretchBltMode(surface.DC(), mode);
              ::StretchBlt(surface.DC(), 0, 0, width, height, Source().DC(), 0, 0, FImage->Width(),
                           FImage->Height(), SRCCOPY);
            })
      .CopyTo(dc, 0, 0);
}

const vcl::TClass& TQELTexture::Class() {
  using T = TQELTexture;
  using namespace vcl;
  static const TClass info = Describe<T, TGraphicsObject>(
      "qel::TQELTexture", "qel/controls/Qeltbackground.h",
      {
          Property<&T::Image, &T::SetImage>("Image"),
          Property<&T::ImageStyle, &T::SetImageStyle>("ImageStyle").Default(isTile),
          Property<&T::TransparentColor, &T::SetTransparentColor>("TransparentColor")
              .Default(clNone),
          Property<&T::TransparentBackground, &T::SetTransparentBackground>("TransparentBackground")
              .Default(clBtnFace),
      });
  return info;
}

}  // namespace qel
