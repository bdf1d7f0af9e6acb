// What a background paints behind other drawings: wherever a colour stands, and inside letters.
#include <algorithm>

#include "qel/controls/Qeltbackground.h"
#include "qel/controls/private/surface.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TColor;
using vcl::TRect;

namespace {

constexpr TPixel ColorMask = 0xFFFFFF;

/// A surface that begins as what the canvas shows in the rectangle.
class TCopy : public TSurface {
 public:
  TCopy(HDC source, const TRect& rect) : TSurface(rect.Width(), rect.Height()) {
    CopyFrom(source, rect.Left, rect.Top);
    ::SetViewportOrgEx(DC(), -rect.Left, -rect.Top, nullptr);
  }
};

/// The copy with the text, its letters in the colour.
std::unique_ptr<TSurface> Written(HDC dc, const TRect& visible, const TQELFont3D& font3D,
                                  const vcl::TFont& font, TColor color, const TRect& rect,
                                  const std::string& text, unsigned flags) {
  auto copy = std::make_unique<TCopy>(dc, visible);
  vcl::TFont face;
  face.AssignPixels(&font);
  face.SetColor(color);
  font3D.Write(&face, copy->DC(), rect, text, flags, true);
  ::GdiFlush();
  return copy;
}

/// Lets the pattern shine through: of each channel as much as lies between the text in black and
/// the text in white, which is 0 beside the letters, 255 inside them, and between the two at edges
/// that are smoothed.
TPixel Through(TPixel black, TPixel white, TPixel pattern) {
  TPixel result = 0;
  for (int shift : {0, 8, 16}) {
    const int dark = black >> shift & 0xFF;
    const int cover = std::max(0, static_cast<int>(white >> shift & 0xFF) - dark);
    const int value = dark + (cover * static_cast<int>(pattern >> shift & 0xFF) + 127) / 255;
    result |= static_cast<TPixel>(std::min(value, 255)) << shift;
  }
  return result;
}

/// What of the canvas can be seen.
TRect VisiblePart(HDC dc) {
  RECT box{};
  ::GetClipBox(dc, &box);
  return box;
}

}  // namespace

void TQELBackground::DrawTrans(vcl::TCanvas* canvas, int width, int height, bool forward,
                               TColor color) {
  if (width <= 0 || height <= 0) return;
  TSurface result(width, height);
  Draw(result.DC(), width, height, forward);
  const TSurface above(width, height);
  ::BitBlt(above.DC(), 0, 0, width, height, canvas->Handle(), 0, 0, SRCCOPY);
  ::GdiFlush();
  const TPixel key = PixelOf(vcl::ColorToRGB(color));
  for (int y = 0; y < height; ++y) {
    const TPixel* from = above.Row(y);
    std::transform(from, from + width, result.Row(y), result.Row(y), [&](TPixel top, TPixel under) {
      return (top & ColorMask) == key ? under : top;
    });
  }
  result.CopyTo(canvas->Handle(), 0, 0);
}

void TQELBackground::Write(TQELFont3D* font3D, const vcl::TFont* font, vcl::TCanvas* canvas,
                           const TRect& rect, const std::string& text, unsigned flags) {
  const HDC dc = canvas->Handle();
  const TRect visible = VisiblePart(dc);
  if (rect.Empty() || visible.Empty()) return;
  TSurface pattern(rect.Width(), rect.Height());
  FillPixels(pattern.Row(0), std::size_t(rect.Width()) * rect.Height(),
             PixelOf(vcl::ColorToRGB(FSolidColor)));
  Draw(pattern.DC(), rect.Width(), rect.Height(), true);
  const auto black = Written(dc, visible, *font3D, *font, vcl::clBlack, rect, text, flags);
  const auto white = Written(dc, visible, *font3D, *font, vcl::clWhite, rect, text, flags);
  for (int y = 0; y < visible.Height(); ++y) {
    TPixel* row = black->Row(y);
    const TPixel* light = white->Row(y);
    // Letters that reach out of the rectangle go on in the colours of its edge.
    const TPixel* fill = pattern.Row(std::clamp(y + visible.Top - rect.Top, 0, rect.Height() - 1));
    for (int x = 0; x < visible.Width(); ++x) {
      if (((row[x] ^ light[x]) & ColorMask) == 0) continue;
      row[x] = Through(row[x], light[x],
                       fill[std::clamp(x + visible.Left - rect.Left, 0, rect.Width() - 1)]);
    }
  }
  ::SetViewportOrgEx(black->DC(), 0, 0, nullptr);
  black->CopyTo(dc, visible.Left, visible.Top);
}

}  // namespace qel
