// Drawing helpers that several controls share: masked bitmaps, lamps, button frames; cutting texts,
// centring controls.
#include "qel/core/Qelclasses2.h"

#include <algorithm>
#include <cstdint>

#include "qel/core/Qelcontrols.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/screen.h"
#include "vcl/graphics/imagelist.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

using vcl::TColor;

void DrawMasked(vcl::TCanvas* canvas, vcl::TBitmap* bitmap, int x, int y, TColor transparentColor,
                bool enabled) {
  if (!bitmap || bitmap->Empty()) return;
  vcl::TImageList images(nullptr, bitmap->Width(), bitmap->Height());
  images.AddMasked(bitmap, transparentColor);
  images.Draw(canvas, x, y, 0, enabled);
}

/// A lamp, a letter for a pixel: the ring's dark and light side, the lamp, its gleam.
constexpr std::string_view Led[] = {
    "....dddd....", "..ddccccdl..", ".dccccccccl.", ".dccggcccccl", "dccggccccccl", "dccgcccccccl",
    "dccccccccccl", "dccccccccccl", ".dcccccccccl", ".dccccccccl.", "..llccccll..", "....llll....",
};

TColor LedColor(char pixel, TColor lamp) {
  switch (pixel) {
    case 'd': return vcl::clBtnShadow;
    case 'l': return vcl::clBtnHighlight;
    case 'g': return vcl::clWhite;
    default: return lamp;
  }
}

int Centered(int available, int own) { return std::max(0, (available - own) / 2); }

}  // namespace

void QELDrawTransparentBitmap(vcl::TCanvas* canvas, vcl::TBitmap* bitmap, int x, int y,
                              TColor transparentColor) {
  DrawMasked(canvas, bitmap, x, y, transparentColor, true);
}

void QELDrawDisabledBitmap(vcl::TCanvas* canvas, int x, int y, vcl::TBitmap* bitmap) {
  if (bitmap) DrawMasked(canvas, bitmap, x, y, bitmap->TransparentColor(), false);
}

void QELDrawLed(vcl::TCanvas* canvas, int x, int y, TColor color) {
  const HDC dc = canvas->Handle();
  const vcl::TSavedDC saved(dc);
  ::SelectObject(dc, ::GetStockObject(DC_BRUSH));
  for (std::string_view row : Led) {
    for (int left = x; !row.empty();) {
      const std::size_t length = std::min(row.find_first_not_of(row.front()), row.size());
      ::SetDCBrushColor(dc, vcl::ColorToRGB(LedColor(row.front(), color)));
      if (row.front() != '.') ::PatBlt(dc, left, y, static_cast<int>(length), 1, PATCOPY);
      left += static_cast<int>(length);
      row.remove_prefix(length);
    }
    ++y;
  }
}

void QELDrawButtonFrame(vcl::TCanvas* canvas, vcl::TRect& rect, bool down) {
  RECT edge = rect;
  ::DrawEdge(canvas->Handle(), &edge, down ? EDGE_SUNKEN : EDGE_RAISED,
             BF_RECT | BF_SOFT | BF_ADJUST);
  rect = edge;
}

void QELPaintEffect(vcl::TCanvas* canvas, const vcl::TRect& rect, TQELCustomBackground* background,
                    bool forward) {
  if (!background || rect.Empty()) return;
  const HDC dc = canvas->Handle();
  const vcl::TSavedDC saved(dc);
  ::IntersectClipRect(dc, rect.Left, rect.Top, rect.Right, rect.Bottom);
  // A background paints from the origin.
  ::OffsetWindowOrgEx(dc, -rect.Left, -rect.Top, nullptr);
  background->Draw(dc, rect.Width(), rect.Height(), forward);
}

vcl::TStrings* QELStringIntoPieces(std::string_view text, std::string_view separator,
                                   vcl::TStrings* list) {
  for (;;) {
    const std::size_t found = separator.empty() ? text.npos : text.find(separator);
    // The position is kept in a byte, where 0 stands for none: part of what callers know.
    const auto position =
        found == text.npos ? std::uint8_t{0} : static_cast<std::uint8_t>(found + 1);
    if (position == 0) break;
    list->Add(std::string(text.substr(0, position - 1u)));
    text.remove_prefix(position - 1u + separator.size());
  }
  list->Add(std::string(text));
  return list;
}

void QELCenterControl(vcl::TControl* control) {
  int left = std::max(0, control->Left()), top = std::max(0, control->Top());
  if (const auto* form = dynamic_cast<vcl::TCustomForm*>(control)) {
    const vcl::TCustomForm* const main = vcl::Application()->MainForm();
    const bool inside = form->FormStyle() == vcl::fsMDIChild && main;
    left = Centered(inside ? main->ClientWidth() : vcl::Screen()->Width(), control->Width());
    top = Centered(inside ? main->ClientHeight() : vcl::Screen()->Height(), control->Height());
  } else if (vcl::TWinControl* parent = control->Parent()) {
    parent->HandleNeeded();
    left = Centered(parent->ClientWidth(), control->Width());
    top = Centered(parent->ClientHeight(), control->Height());
  }
  control->SetBounds(left, top, control->Width(), control->Height());
}

}  // namespace qel
