// The drawing methods of TCanvas.
#include <vector>

#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/graphic.h"
#include "vcl/graphics/private/keyedcopy.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

std::vector<POINT> SystemPoints(std::span<const TPoint> points) {
  return {points.begin(), points.end()};
}

/// GDI knows no UTF-8, whatever the process's code page, so texts reach it as UTF-16.
class TDrawnText {
 public:
  explicit TDrawnText(const std::string& text) : FText(ToUtf16(text)) {}
  void Draw(HDC dc, int x, int y, UINT options, const RECT* clip) const {
    ::ExtTextOutW(dc, x, y, options, clip, FText.data(), static_cast<UINT>(FText.size()), nullptr);
  }
  TSize Extent(HDC dc) const {
    SIZE size{};
    ::GetTextExtentPoint32W(dc, FText.data(), static_cast<int>(FText.size()), &size);
    return {static_cast<int>(size.cx), static_cast<int>(size.cy)};
  }

 private:
  std::wstring FText;
};

}  // namespace

template <class F>
void TCanvas::Paint(unsigned needs, F draw) {
  Changing();
  draw(Required(needs));
  Changed();
}

// ---- Lines and shapes ----

TPoint TCanvas::PenPos() {
  POINT position{};
  ::GetCurrentPositionEx(Required(0), &position);
  return position;
}

void TCanvas::MoveTo(int x, int y) { ::MoveToEx(Required(0), x, y, nullptr); }

void TCanvas::LineTo(int x, int y) {
  Paint(needPen, [&](HDC dc) { ::LineTo(dc, x, y); });
}

void TCanvas::Polyline(std::span<const TPoint> points) {
  const auto all = SystemPoints(points);
  Paint(needPen, [&](HDC dc) { ::Polyline(dc, all.data(), static_cast<int>(all.size())); });
}

void TCanvas::Polygon(std::span<const TPoint> points) {
  const auto all = SystemPoints(points);
  Paint(needPen, [&](HDC dc) { ::Polygon(dc, all.data(), static_cast<int>(all.size())); });
}

void TCanvas::Rectangle(int left, int top, int right, int bottom) {
  Paint(needPen, [&](HDC dc) { ::Rectangle(dc, left, top, right, bottom); });
}

void TCanvas::RoundRect(int left, int top, int right, int bottom, int width, int height) {
  Paint(needPen, [&](HDC dc) { ::RoundRect(dc, left, top, right, bottom, width, height); });
}

void TCanvas::Ellipse(int left, int top, int right, int bottom) {
  Paint(needPen, [&](HDC dc) { ::Ellipse(dc, left, top, right, bottom); });
}

void TCanvas::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
  Paint(needPen, [&](HDC dc) { ::Arc(dc, x1, y1, x2, y2, x3, y3, x4, y4); });
}

void TCanvas::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
  Paint(needPen, [&](HDC dc) { ::Chord(dc, x1, y1, x2, y2, x3, y3, x4, y4); });
}

void TCanvas::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
  Paint(needPen, [&](HDC dc) { ::Pie(dc, x1, y1, x2, y2, x3, y3, x4, y4); });
}

void TCanvas::FillRect(const TRect& rect) {
  const RECT r = rect;
  Paint(needBrush, [&](HDC dc) { ::FillRect(dc, &r, FBrush.Handle()); });
}

void TCanvas::FrameRect(const TRect& rect) {
  const RECT r = rect;
  Paint(needBrush, [&](HDC dc) { ::FrameRect(dc, &r, FBrush.Handle()); });
}

void TCanvas::DrawFocusRect(const TRect& rect) {
  const RECT r = rect;
  Paint(needBrush, [&](HDC dc) { ::DrawFocusRect(dc, &r); });
}

void TCanvas::FloodFill(int x, int y, TColor color, TFillStyle fillStyle) {
  const UINT kind = fillStyle == fsSurface ? FLOODFILLSURFACE : FLOODFILLBORDER;
  Paint(needBrush, [&](HDC dc) { ::ExtFloodFill(dc, x, y, ColorToRGB(color), kind); });
}

// ---- Text ----

void TCanvas::TextOut(int x, int y, const std::string& text) {
  const TDrawnText drawn(text);
  Paint(needFont | needBrush, [&](HDC dc) {
    drawn.Draw(dc, x, y, 0, nullptr);
    ::MoveToEx(dc, x + drawn.Extent(dc).cx, y, nullptr);
  });
}

void TCanvas::TextRect(const TRect& rect, int x, int y, const std::string& text) {
  const RECT r = rect;
  const bool fills = FBrush.Style() != bsClear;
  Paint(needFont | needBrush, [&](HDC dc) {
    if (fills) ::FillRect(dc, &r, FBrush.Handle());
    TDrawnText(text).Draw(dc, x, y, ETO_CLIPPED, &r);
  });
}

TSize TCanvas::TextExtent(const std::string& text) {
  return TDrawnText(text).Extent(Required(needFont));
}

// ---- Pictures ----

void TCanvas::Draw(int x, int y, TGraphic* graphic) {
  if (graphic) StretchDraw(Bounds(x, y, graphic->Width(), graphic->Height()), graphic);
}

void TCanvas::StretchDraw(const TRect& rect, TGraphic* graphic) {
  if (!graphic || graphic->Empty()) return;
  Paint(needAll, [&](HDC) { graphic->Draw(this, rect); });
}

void TCanvas::CopyRect(const TRect& dest, TCanvas* source, const TRect& sourceRect) {
  Paint(needFont | needBrush,
        [&](HDC dc) { CopyStretched(dc, dest, source->Required(0), sourceRect, FCopyMode); });
}

void TCanvas::BrushCopy(const TRect& dest, TBitmap* bitmap, const TRect& source, TColor color) {
  if (!bitmap || bitmap->Empty()) return;
  Paint(needFont | needBrush, [&](HDC dc) {
    CopyKeyed(dc, dest, bitmap->Canvas()->Required(0), source, ColorToRGB(color), FBrush.Handle());
  });
}

// ---- Pixels and clipping ----

TColor TCanvas::Pixels(int x, int y) { return static_cast<TColor>(::GetPixel(Required(0), x, y)); }

void TCanvas::SetPixel(int x, int y, TColor color) {
  Paint(0, [&](HDC dc) { ::SetPixelV(dc, x, y, ColorToRGB(color)); });
}

TRect TCanvas::ClipRect() {
  RECT r{};
  ::GetClipBox(Required(0), &r);
  return r;
}

void TCanvas::ExcludeClipRect(const TRect& r) {
  ::ExcludeClipRect(Required(0), r.Left, r.Top, r.Right, r.Bottom);
}

void TCanvas::IntersectClipRect(const TRect& r) {
  ::IntersectClipRect(Required(0), r.Left, r.Top, r.Right, r.Bottom);
}

}  // namespace vcl
