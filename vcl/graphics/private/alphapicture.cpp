// Pictures with an alpha channel, to and from the system's bitmaps.
#include "vcl/graphics/private/alphapicture.h"

#include <algorithm>
#include <cmath>

#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

BYTE Channel(float premultiplied, float alpha) {
  return static_cast<BYTE>(std::min(255.0F, std::round(premultiplied * 255 / alpha)));
}

/// Fills the pixels of 32 bits as image lists take them, and the mask with white where nothing is.
void ToBitmaps(const TAlphaPicture& picture, TBitmap& pixels, TBitmap& mask) {
  for (int y = 0; y < picture.Height; ++y) {
    auto* row = static_cast<RGBQUAD*>(pixels.ScanLine(y));
    auto* holes = static_cast<RGBQUAD*>(mask.ScanLine(y));
    for (int x = 0; x < picture.Width; ++x) {
      const float* from = picture.Pixel(x, y);
      const auto alpha = static_cast<BYTE>(std::round(from[3]));
      holes[x] = alpha == 0 ? RGBQUAD{255, 255, 255, 0} : RGBQUAD{};
      row[x] = RGBQUAD{};
      if (alpha == 0) continue;
      row[x] = {Channel(from[0], from[3]), Channel(from[1], from[3]), Channel(from[2], from[3]),
                alpha};
    }
  }
}

}  // namespace

TAlphaPicture AlphaPicture(int width, int height,
                           const std::function<void(TBitmap& drawn, TColor background)>& draw) {
  TBitmap black;
  TBitmap white;
  draw(black, clBlack);
  draw(white, clWhite);
  black.SetPixelFormat(pf32bit);
  white.SetPixelFormat(pf32bit);
  TAlphaPicture picture(width, height);
  for (int y = 0; y < height; ++y) {
    const auto* dark = static_cast<const RGBQUAD*>(black.ScanLine(y));
    const auto* light = static_cast<const RGBQUAD*>(white.ScanLine(y));
    for (int x = 0; x < width; ++x) {
      float* pixel = picture.Pixel(x, y);
      pixel[0] = dark[x].rgbBlue;
      pixel[1] = dark[x].rgbGreen;
      pixel[2] = dark[x].rgbRed;
      pixel[3] = static_cast<float>(255 - (light[x].rgbGreen - dark[x].rgbGreen));
    }
  }
  return picture;
}

TAlphaPicture PartOf(const TAlphaPicture& picture, int x, int y, int width, int height) {
  TAlphaPicture part(width, height);
  for (int row = 0; row < height; ++row) {
    std::copy_n(picture.Pixel(x, y + row), std::size_t{4} * width, part.Pixel(0, row));
  }
  return part;
}

void AddPicture(HIMAGELIST list, const TAlphaPicture& picture) {
  TBitmap pixels(picture.Width, picture.Height);
  pixels.SetPixelFormat(pf32bit);
  TBitmap mask(picture.Width, picture.Height);
  mask.SetPixelFormat(pf32bit);
  ToBitmaps(picture, pixels, mask);
  mask.SetPixelFormat(pf1bit);
  if (::ImageList_Add(list, pixels.Handle(), mask.Handle()) < 0) {
    RaiseOutOfResources("to add an image to a list");
  }
}

}  // namespace vcl
