// Small drawing aids.
#include "qel/core/Qelfunctions.h"
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

}  // namespace

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
  vcl::TPen* pen = canvas->Pen();
  pen->SetWidth(1);
  pen->SetStyle(vcl::psSolid);
  pen->SetColor(enabled ? color : vcl::clGrayText);
  if (down) {
    for (int i = 0; i <= size - 2; ++i) Row(canvas, x + i, x + i + 2 * (size - i) - 1, y + i);
    Row(canvas, x + size - 1, x + size, y + size - 2);
  } else {
    const int center = x + size / 2;
    for (int i = 0; i < size; ++i) Row(canvas, center - i, center + i + 1, y + i);
  }
}

}  // namespace qel
