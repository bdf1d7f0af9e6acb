// The fills as plain sequences of GDI calls: what a background's pixels are compared with, and what
// its speed is measured against. Slow and literal on purpose; shares no code with the library.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "vcl/rtl/win32.h"

namespace plain {

/// A bitmap of 32 bits a pixel, with a context.
class TDib {
 public:
  TDib(int width, int height) : FWidth(width), FHeight(height) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    FBitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &FBits, nullptr, 0);
    FDC = ::CreateCompatibleDC(nullptr);
    FFormer = ::SelectObject(FDC, FBitmap);
  }
  ~TDib() {
    ::SelectObject(FDC, FFormer);
    ::DeleteDC(FDC);
    ::DeleteObject(FBitmap);
  }
  TDib(const TDib&) = delete;
  TDib& operator=(const TDib&) = delete;

  HDC DC() const { return FDC; }
  int Width() const { return FWidth; }
  int Height() const { return FHeight; }
  void* Bits() const { return FBits; }
  std::size_t Bytes() const { return std::size_t(FWidth) * FHeight * 4; }
  /// 0x00RRGGBB.
  std::uint32_t Pixel(int x, int y) const {
    ::GdiFlush();
    return static_cast<const std::uint32_t*>(FBits)[std::size_t(y) * FWidth + x] & 0xFFFFFF;
  }
  void Fill(COLORREF color) const {
    HBRUSH brush = ::CreateSolidBrush(color);
    const RECT all{0, 0, FWidth, FHeight};
    ::FillRect(FDC, &all, brush);
    ::DeleteObject(brush);
  }
  /// Where the first pixel differs, and how; empty when all are the same.
  std::string Difference(const TDib& other) const {
    if (FWidth != other.FWidth || FHeight != other.FHeight) return "the sizes differ";
    ::GdiFlush();
    if (std::memcmp(FBits, other.FBits, Bytes()) == 0) return {};
    for (int y = 0; y < FHeight; ++y) {
      for (int x = 0; x < FWidth; ++x) {
        if (Pixel(x, y) == other.Pixel(x, y)) continue;
        char text[80];
        std::snprintf(text, sizeof text, "at (%d, %d): %06x instead of %06x", x, y, Pixel(x, y),
                      other.Pixel(x, y));
        return text;
      }
    }
    return {};
  }

 private:
  int FWidth;
  int FHeight;
  HBITMAP FBitmap = nullptr;
  HDC FDC = nullptr;
  HGDIOBJ FFormer = nullptr;
  void* FBits = nullptr;
};

/// The colour as a pixel of a TDib.
inline std::uint32_t PixelOf(COLORREF color) {
  return std::uint32_t{GetRValue(color)} << 16 | GetGValue(color) << 8 | GetBValue(color);
}

inline int Rounded(double value) { return static_cast<int>(std::nearbyint(value)); }

/// A pen and a brush of one colour, selected while it lives.
class TTools {
 public:
  TTools(HDC dc, COLORREF color)
      : FDC(dc), FPen(::CreatePen(PS_SOLID, 1, color)), FBrush(::CreateSolidBrush(color)) {
    FFormerPen = ::SelectObject(dc, FPen);
    FFormerBrush = ::SelectObject(dc, FBrush);
  }
  ~TTools() {
    ::SelectObject(FDC, FFormerPen);
    ::SelectObject(FDC, FFormerBrush);
    ::DeleteObject(FPen);
    ::DeleteObject(FBrush);
  }
  TTools(const TTools&) = delete;
  TTools& operator=(const TTools&) = delete;

 private:
  HDC FDC;
  HPEN FPen;
  HBRUSH FBrush;
  HGDIOBJ FFormerPen;
  HGDIOBJ FFormerBrush;
};

enum TStyle {
  sCircle,
  sHorizontal,
  sVertical,
  sLeftBottom,
  sRoundMiddle,
  sSquareMiddle,
  sSpectral,
  sDoppelFlash,
  sSingleflash,
  sMiddleHBar,
  sMiddleVBar,
  sVerticalDoppelBar,
  sHorizontalDoppelBar
};

inline COLORREF StepColor(COLORREF c1, COLORREF c2, int j, int cc, bool raise) {
  const int from[] = {GetRValue(c1), GetGValue(c1), GetBValue(c1)};
  const int to[] = {GetRValue(c2), GetGValue(c2), GetBValue(c2)};
  BYTE result[3];
  for (int i = 0; i < 3; ++i) {
    result[i] =
        static_cast<BYTE>(cc <= 1 ? from[i] : from[i] + ::MulDiv(j, to[i] - from[i], cc - 1));
    if (raise && result[i] == 0) result[i] = 1;
  }
  return RGB(result[0], result[1], result[2]);
}

inline void Line(HDC dc, int x1, int y1, int x2, int y2) {
  ::MoveToEx(dc, x1, y1, nullptr);
  ::LineTo(dc, x2, y2);
}

inline void Fan(HDC dc, int W, int H, int pairs, int i, int j, int CC, bool spectral, COLORREF a,
                COLORREF b) {
  const int bh = Rounded(double(H) / pairs) + 1, bw = Rounded(double(W) / pairs) + 1;
  const int oy = bh * i, ox = bw * i;
  const int x0 = ::MulDiv(j, bw, CC), x1 = ::MulDiv(j + 2, bw, CC);
  const int y0 = ::MulDiv(j, bh, CC), y1 = ::MulDiv(j + 2, bh, CC);
  for (int k = x0; k <= x1; ++k) {
    const TTools tools(dc, spectral && k % 2 == 0 ? b : a);
    Line(dc, ox + k, 0, W - k - ox, H);
  }
  for (int k = y0; k <= y1; ++k) {
    const TTools tools(dc, spectral && k % 2 == 0 ? b : a);
    Line(dc, 0, oy + k, W, H - k - oy);
  }
}

/// Draws one step with the pen and brush that are selected.
inline void Shape(HDC dc, int style, int W, int H, int pairs, int i, int j, int CC) {
  const auto fill = [&](int x, int y, int w, int h) { ::PatBlt(dc, x, y, w, h, PATCOPY); };
  const double dw = double(W) / pairs, dh = double(H) / pairs;
  switch (style) {
    case sHorizontal: {
      const int bh = Rounded(dh) + 1, off = bh * i;
      const int y0 = ::MulDiv(j, bh, CC), y1 = ::MulDiv(j + 2, bh, CC);
      fill(0, off + y0, W, off + y1 - y0);
      break;
    }
    case sVertical: {
      const int bw = Rounded(dw) + 1, off = bw * i;
      const int x0 = ::MulDiv(j, bw, CC), x1 = ::MulDiv(j + 2, bw, CC);
      fill(off + x0, 0, off + x1 - x0, H);
      break;
    }
    case sSquareMiddle: {
      const int bh = Rounded(dh), bw = Rounded(dw);
      const int oy = Rounded(bh / 2.0 * i), ox = Rounded(bw / 2.0 * i);
      const int x0 = ::MulDiv(j, Rounded(bw / 2.0), CC), y0 = ::MulDiv(j, Rounded(bh / 2.0), CC);
      fill(ox + x0, oy + y0, (W - x0) - x0 - 2 * ox, (H - y0) - y0 - 2 * oy);
      break;
    }
    case sRoundMiddle: {
      const int bh = Rounded(dh) + 1, bw = Rounded(dw) + 1;
      const int oy = Rounded(bh / 2.0 * i) + 1, ox = Rounded(bw / 2.0 * i) + 1;
      const int x0 = ::MulDiv(j, Rounded(bw / 2.0) + 1, CC);
      const int y0 = ::MulDiv(j, Rounded(bh / 2.0) + 1, CC);
      ::Ellipse(dc, ox + x0, oy + y0, W - x0 - ox, H - y0 - oy);
      break;
    }
    case sLeftBottom: {
      const int bh = Rounded(dh) + 1, bw = Rounded(dw) + 1, oy = bh * i, ox = bw * i;
      const int x0 = ::MulDiv(j, bw, CC), y0 = ::MulDiv(j, bh, CC);
      fill(ox + x0, oy + y0, W - x0, H - y0);
      break;
    }
    case sSingleflash: {
      const int bh = Rounded(dh), bw = Rounded(dw), oy = bh * i, ox = bw * i;
      ::Ellipse(dc, ox + ::MulDiv(j, bw, CC), oy + ::MulDiv(j, bh, CC), W, H);
      break;
    }
    case sDoppelFlash: {
      const int bh = Rounded(dh) + 1, bw = Rounded(dw) + 1, oy = bh * i + 1, ox = bw * i + 1;
      const int x0 = ::MulDiv(j, bw, CC), y0 = ::MulDiv(j, bh, CC);
      ::Ellipse(dc, ox + x0, oy + y0, W, H);
      ::Ellipse(dc, W - x0 - ox, H - y0 - oy, 0, 0);
      break;
    }
    case sMiddleHBar: {
      const int bh = Rounded(dh) + 1, half = Rounded(bh / 2.0), oy = Rounded(bh / 2.0 * i) + 1;
      const int a = H - ::MulDiv(j, half + 1, CC), b = H - ::MulDiv(j + 2, half + 1, CC);
      const int c = ::MulDiv(j, half, CC), d = ::MulDiv(j + 2, half, CC);
      fill(0, a - 1 - oy, W, b - a);
      fill(0, oy + c, W, d - c + 1);
      break;
    }
    case sMiddleVBar: {
      const int bw = Rounded(dw) + 1, half = Rounded(bw / 2.0), ox = Rounded(bw / 2.0 * i) + 1;
      const int a = W - ::MulDiv(j, half + 1, CC), b = W - ::MulDiv(j + 2, half + 1, CC);
      const int c = ::MulDiv(j, half, CC), d = ::MulDiv(j + 2, half, CC);
      fill(a - 1 - ox, 0, b - a, H);
      fill(ox + c, 0, d - c + 1, H);
      break;
    }
    case sVerticalDoppelBar: {
      const int bw = Rounded(dw) + 1, t = Rounded(bw / 3.0) + 1, ox = Rounded(bw / 3.0 * i) + 1;
      const int c = ::MulDiv(j, t, CC), d = ::MulDiv(j + 1, t, CC), m = 2 * Rounded(W / 3.0);
      fill(ox + c, 0, d - c, H);
      fill(m - d - ox, 0, d - c, H);
      fill(m + ox + c, 0, d - c, H);
      break;
    }
    case sHorizontalDoppelBar: {
      const int bh = Rounded(dh) + 1, t = Rounded(bh / 3.0) + 1, oy = Rounded(bh / 3.0 * i) + 1;
      const int c = ::MulDiv(j, t, CC), d = ::MulDiv(j + 1, t, CC), m = 2 * Rounded(H / 3.0);
      fill(0, oy + c, W, d - c);
      fill(0, m - d - oy, W, d - c);
      fill(0, m + oy + c, W, d - c);
      break;
    }
    default: break;
  }
}

/// Paints the gradient from (0, 0) with one system call after the other.
inline void Gradient(HDC dc, int W, int H, int style, int CC, const std::vector<COLORREF>& colors) {
  {
    const TTools tools(dc, colors[0]);
    ::PatBlt(dc, 0, 0, W, H, PATCOPY);
  }
  const int pairs = static_cast<int>(colors.size()) - 1;
  for (int i = 0; i < pairs; ++i) {
    for (int j = 0; j < CC; ++j) {
      const COLORREF a = StepColor(colors[i], colors[i + 1], j, CC, true);
      const COLORREF b = StepColor(colors[i], colors[i + 1], CC - 1 - j, CC, false);
      if (style == sCircle || style == sSpectral) {
        Fan(dc, W, H, pairs, i, j, CC, style == sSpectral, a, b);
        continue;
      }
      const TTools tools(dc, a);
      Shape(dc, style, W, H, pairs, i, j, CC);
    }
  }
}

}  // namespace plain
