// A bitmap in memory that is both drawn on by the system and written pixel by pixel.
#pragma once

#include <cstddef>
#include <cstdint>

#include "vcl/graphics/handles.h"

namespace qel {

/// A pixel of a surface: 0x00RRGGBB.
using TPixel = std::uint32_t;

constexpr TPixel PixelOf(COLORREF color) {
  return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

/// Sets `count` pixels to the same value.
void FillPixels(TPixel* first, std::size_t count, TPixel value);

/// A bitmap of 32 bits a pixel, top row first, with a device context of its own.
class TSurface {
 public:
  /// Raises EOutOfResources for a size that the system refuses.
  TSurface(int width, int height);
  ~TSurface();
  TSurface(const TSurface&) = delete;
  TSurface& operator=(const TSurface&) = delete;

  int Width() const { return FWidth; }
  int Height() const { return FHeight; }
  std::size_t Bytes() const { return std::size_t(FWidth) * FHeight * sizeof(TPixel); }
  HDC DC() const { return FDC.Get(); }
  /// The pixels of a row. Call `GdiFlush` between drawing on the context and this.
  TPixel* Row(int y) const { return FPixels + std::size_t(y) * FWidth; }
  /// Copies a part of another context's picture, of the surface's size, from (x, y).
  void CopyFrom(HDC source, int x, int y);
  /// Copies the surface to (x, y) of another context.
  void CopyTo(HDC dest, int x, int y) const;

 private:
  int FWidth;
  int FHeight;
  vcl::TMemoryDC FDC;
  vcl::TOwnedBitmap FBitmap;
  HGDIOBJ FFormer = nullptr;
  TPixel* FPixels = nullptr;
};

}  // namespace qel
