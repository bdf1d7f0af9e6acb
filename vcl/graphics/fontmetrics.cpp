// The height of a font, and drawing text with it.
#include "vcl/graphics/fontmetrics.h"

#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

int FontHeight(const TFont& font) {
  TWindowDC screen(nullptr);
  TSelection selection(screen.Get(), font.Handle());
  TEXTMETRICW metrics{};
  ::GetTextMetricsW(screen.Get(), &metrics);
  return static_cast<int>(metrics.tmHeight);
}

int TextWidth(const TFont& font, const std::string& text) {
  TWindowDC screen(nullptr);
  TSelection selection(screen.Get(), font.Handle());
  const std::wstring wide = ToUtf16(text);
  SIZE size{};
  ::GetTextExtentPoint32W(screen.Get(), wide.data(), static_cast<int>(wide.size()), &size);
  return static_cast<int>(size.cx);
}

void DrawTextOn(TCanvas* canvas, const std::string& text, TRect& rect, UINT flags) {
  const std::wstring wide = ToUtf16(text);
  RECT area = rect;
  ::DrawTextW(canvas->Handle(), wide.data(), static_cast<int>(wide.size()), &area, flags);
  rect = area;
}

}  // namespace vcl
