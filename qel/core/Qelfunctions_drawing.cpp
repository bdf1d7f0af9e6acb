// Small drawing aids.
#include "qel/core/Qelfunctions.h"
#include "qel/core/private/triangles.h"
#include "vcl/graphics/graphics.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

constexpr int SmallestTriangle = 2;
constexpr int LargestTriangle = 15;

void Row(vcl::TCanvas* canvas, int left, int right, int y) {
  canvas->MoveTo(left, y);
  canvas->LineTo(right, y);
}

void TakePen(vcl::TCanvas* canvas, vcl::TColor color) {
  vcl::TPen* pen = canvas->Pen();
  pen->SetWidth(1);
  pen->SetStyle(vcl::psSolid);
  pen->SetColor(color);
}

}  // namespace

void DrawTriangle(vcl::TCanvas* canvas, vcl::TPoint tip, TPointing pointing, vcl::TColor color,
                  int size) {
  TakePen(canvas, color);
  const int way = pointing == TPointing::Up || pointing == TPointing::Left ? 1 : -1;
  for (int i = 0; i < size; ++i) {
    if (pointing == TPointing::Up || pointing == TPointing::Down) {
      Row(canvas, tip.X - i, tip.X + i + 1, tip.Y + way * i);
    } else {
      canvas->MoveTo(tip.X + way * i, tip.Y - i);
      canvas->LineTo(tip.X + way * i, tip.Y + i + 1);
    }
  }
}

int QELFontHeight(const vcl::TFont* font) {
  const vcl::TWindowDC screen(nullptr);
  const vcl::TSelection selection(screen.Get(), font->Handle());
  SIZE size{};
  return ::GetTextExtentPointW(screen.Get(), L"W", 1, &size) ? static_cast<int>(size.cy) : 0;
}

void QELGetTriangle(vcl::TCanvas* canvas, int x, int y, bool enabled, bool down, vcl::TColor color,
                    int size) {
  if (size < SmallestTriangle || size > LargestTriangle) return;
  if (!enabled) QELGetTriangle(canvas, x + 1, y + 1, true, down, vcl::clHighlightText, size);
  const vcl::TColor shown = enabled ? color : vcl::clGrayText;
  if (!down) return DrawTriangle(canvas, {x + size / 2, y}, TPointing::Up, shown, size);
  TakePen(canvas, shown);
  for (int i = 0; i <= size - 2; ++i) Row(canvas, x + i, x + i + 2 * (size - i) - 1, y + i);
  Row(canvas, x + size - 1, x + size, y + size - 2);
}

}  // namespace qel
