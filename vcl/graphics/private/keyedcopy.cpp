// Copying pixels save those of one colour, stretched if need be, and with a brush painted behind
// them if asked.
#include "vcl/graphics/private/keyedcopy.h"

#include <cstdint>
#include <span>

#include "vcl/graphics/handles.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// Pixels of 32 bits in memory, top row first, with a context to draw on them.
class TPixelBuffer {
 public:
  explicit TPixelBuffer(TSize size)
      : FSize(size), FBitmap(Create(size)), FSelection(FDC.Get(), FBitmap.Get()) {}

  HDC DC() const { return FDC.Get(); }
  /// All pixels, once the system has drawn what it was told to.
  std::span<std::uint32_t> Pixels() const {
    ::GdiFlush();
    return {static_cast<std::uint32_t*>(FBits),
            static_cast<std::size_t>(FSize.cx) * static_cast<std::size_t>(FSize.cy)};
  }

 private:
  HBITMAP Create(TSize size) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return CheckHandle(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &FBits, nullptr, 0),
                       "a bitmap to draw with");
  }

  TSize FSize;
  void* FBits = nullptr;
  TMemoryDC FDC;
  TOwnedBitmap FBitmap;
  TSelection FSelection;
};

/// Paints the brush on `work`, which stands for what lies at `place` on `dest`.
void PaintBrush(const TPixelBuffer& work, const TRect& place, HDC dest, HBRUSH brush) {
  POINT at{place.Left, place.Top};
  ::LPtoDP(dest, &at, 1);
  POINT origin{};
  ::GetBrushOrgEx(dest, &origin);
  ::SetBrushOrgEx(work.DC(), origin.x - at.x, origin.y - at.y, nullptr);
  ::SetBkMode(work.DC(), ::GetBkMode(dest));
  ::SetBkColor(work.DC(), ::GetBkColor(dest));
  ::SetTextColor(work.DC(), ::GetTextColor(dest));
  const TSelection selection(work.DC(), brush);
  ::PatBlt(work.DC(), 0, 0, place.Width(), place.Height(), PATCOPY);
}

/// The colour as it stands in a pixel of 32 bits.
std::uint32_t PixelOf(COLORREF color) {
  return std::uint32_t{GetRValue(color)} << 16 | std::uint32_t{GetGValue(color)} << 8 |
         GetBValue(color);
}

}  // namespace

void CopyStretched(HDC dest, const TRect& d, HDC source, const TRect& s, DWORD operation) {
  const int mode = ::SetStretchBltMode(dest, COLORONCOLOR);
  ::StretchBlt(dest, d.Left, d.Top, d.Width(), d.Height(), source, s.Left, s.Top, s.Width(),
               s.Height(), operation);
  ::SetStretchBltMode(dest, mode);
}

void CopyKeyed(HDC dest, const TRect& destRect, HDC source, const TRect& sourceRect, COLORREF key,
               HBRUSH brush) {
  if (destRect.Empty() || sourceRect.Empty()) return;
  const TSize size = destRect.Size();
  const TRect whole(0, 0, size.cx, size.cy);
  const TPixelBuffer image(size);
  const TPixelBuffer work(size);
  CopyStretched(image.DC(), whole, source, sourceRect, SRCCOPY);
  ::BitBlt(work.DC(), 0, 0, size.cx, size.cy, dest, destRect.Left, destRect.Top, SRCCOPY);
  if (brush) PaintBrush(work, destRect, dest, brush);

  const auto result = work.Pixels();
  const std::uint32_t keyPixel = PixelOf(key);
  std::size_t i = 0;
  for (const std::uint32_t pixel : image.Pixels()) {
    if ((pixel & 0xFFFFFF) != keyPixel) result[i] = pixel;
    ++i;
  }
  ::BitBlt(dest, destRect.Left, destRect.Top, size.cx, size.cy, work.DC(), 0, 0, SRCCOPY);
}

}  // namespace vcl
