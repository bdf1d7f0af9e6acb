// TQELFont3D: its settings, and the copies of a text that make it look three-dimensional.
#include "qel/core/Qelfont3d.h"

#include <algorithm>
#include <cstdint>

#include "qel/core/private/Qelownedsettings.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

/// Draws copies of one text, each at the place that the rectangle has been moved to. They differ
/// only in their colour, so all else is selected once.
class TTextLayers {
 public:
  TTextLayers(const vcl::TFont* font, HDC dc, const vcl::TRect& rect, const std::string& text,
              unsigned flags)
      : FDC(dc),
        FRect(rect),
        FText(vcl::ToUtf16(text)),
        FFlags(flags),
        FPixelsPerInch(font->PixelsPerInch()) {
    // With DT_MODIFYSTRING the system may write an ellipsis, and a zero, behind the text.
    FText.append(4, L'\0');
    FBrush.SetStyle(vcl::bsClear);
    FFont.AssignPixels(font);
    const HBRUSH brush = FBrush.Handle();
    const HFONT layerFont = FFont.Handle();
    FSavedLevel = ::SaveDC(dc);
    ::UnrealizeObject(brush);
    ::SelectObject(dc, brush);
    ::SetBkColor(dc, ~vcl::ColorToRGB(FBrush.Color()));
    ::SetBkMode(dc, TRANSPARENT);
    ::SelectObject(dc, layerFont);
  }
  /// Gives the context back as it was, before the font and the brush go.
  ~TTextLayers() { ::RestoreDC(FDC, FSavedLevel); }
  TTextLayers(const TTextLayers&) = delete;
  TTextLayers& operator=(const TTextLayers&) = delete;

  /// A distance at 96 dots per inch in the font's.
  int Scaled(int pixels) const { return ScaledTo(FPixelsPerInch, pixels); }
  void Move(int dx, int dy) { ::OffsetRect(&FRect, dx, dy); }
  void Shrink(int by) { ::InflateRect(&FRect, -by, -by); }
  void SetColor(vcl::TColor color) { FFont.SetColor(color); }

  void Draw() {
    ::SetTextColor(FDC, vcl::ColorToRGB(FFont.Color()));
    // In UTF-16, as GDI's narrow functions know no UTF-8. The flag is added, not or-ed: flags that
    // have it already become others by it.
    ::DrawTextExW(FDC, FText.data(), -1, &FRect, FFlags + DT_NOCLIP, nullptr);
  }
  void DrawAt(int dx, int dy) {
    Move(dx, dy);
    Draw();
  }
  /// Draws copies, each one pixel further in the direction (1 or -1, the same for x and y).
  void DrawTrail(int copies, int direction) {
    const TSteps seen = copies > ManyCopies ? SeenSteps(copies, direction) : TSteps{0, copies};
    Move(direction * seen.First, direction * seen.First);
    for (int i = seen.First; i < seen.End; ++i) {
      Draw();
      Move(direction, direction);
    }
    Move(direction * (copies - seen.End), direction * (copies - seen.End));
  }

 private:
  /// More copies than this are not all drawn without asking which ones can be seen.
  static constexpr int ManyCopies = 1000;

  /// Steps of a trail: from the first to before the end.
  struct TSteps {
    int First;
    int End;
  };

  /// The steps at which the text can touch what is seen of the context.
  TSteps SeenSteps(int copies, int direction) {
    RECT box;
    if (!::GetClipBox(FDC, &box)) return {0, copies};
    RECT size = FRect;
    // A text that is not at the top is measured with the rectangle's room above it.
    const unsigned atTop = FFlags & ~unsigned{DT_VCENTER | DT_BOTTOM};
    ::DrawTextExW(FDC, FText.data(), -1, &size, atTop | DT_CALCRECT, nullptr);
    const std::int64_t width = std::int64_t{size.right} - size.left;
    const std::int64_t height = std::int64_t{size.bottom} - size.top;
    const bool line = FFlags & DT_SINGLELINE;
    const std::int64_t left =
        Start(FRect.left, FRect.right, width, FFlags & DT_CENTER, FFlags & DT_RIGHT);
    const std::int64_t top = Start(FRect.top, FRect.bottom, height, line && (FFlags & DT_VCENTER),
                                   line && (FFlags & DT_BOTTOM));
    // Slanted letters reach out of their own box.
    const std::int64_t margin = std::abs(width) + std::abs(height);
    std::int64_t first = 0;
    std::int64_t end = copies;
    const auto bound = [&](std::int64_t from, std::int64_t to, std::int64_t low,
                           std::int64_t high) {
      first = std::max(first, direction > 0 ? low - margin - to : from - high - margin);
      end = std::min(end, (direction > 0 ? high + margin - from : to - low + margin) + 1);
    };
    bound(left, left + width, box.left, box.right);
    bound(top, top + height, box.top, box.bottom);
    if (first >= end) return {copies, copies};
    return {static_cast<int>(first), static_cast<int>(end)};
  }

  /// Where something of the size begins between two ends.
  static std::int64_t Start(std::int64_t low, std::int64_t high, std::int64_t size, bool centered,
                            bool atEnd) {
    if (centered) return (low + high - size) / 2;
    return atEnd ? high - size : low;
  }

  HDC FDC;
  RECT FRect;
  std::wstring FText;
  unsigned FFlags;
  int FPixelsPerInch;
  vcl::TBrush FBrush;
  vcl::TFont FFont;
  int FSavedLevel = 0;
};

void DrawDisabled(TTextLayers& layers) {
  layers.SetColor(vcl::clBtnHighlight);
  layers.Draw();
  layers.SetColor(vcl::clGrayText);
  layers.DrawAt(-layers.Scaled(1), -layers.Scaled(1));
}

/// The copies that trail from the text. They end as far from it as there are copies.
void DrawRepetition(TTextLayers& layers, const TQELFont3D& font) {
  if (font.Repetition() == repeatNone) return;
  const int copies = layers.Scaled(font.Repetitionwidth());
  layers.Shrink(copies);
  layers.SetColor(font.RepetitionColor());
  const int towards = font.Repetition() == repeatOnShadow ? 1 : -1;
  const int offset = towards * layers.Scaled(font.Offset());
  layers.Move(offset, offset);
  layers.DrawTrail(copies, -towards);
}

void DrawOutline(TTextLayers& layers, const TQELFont3D& font) {
  const int by = layers.Scaled(1);
  layers.SetColor(font.Shadow());
  layers.DrawAt(-by, -by);
  layers.DrawAt(2 * by, 0);
  layers.DrawAt(0, 2 * by);
  layers.DrawAt(-2 * by, 0);
  layers.Move(by, -by);
}

void DrawLight(TTextLayers& layers, const TQELFont3D& font) {
  const TQELStyle3D style = font.Style3D();
  const int offset = layers.Scaled(font.Offset());
  const bool lightFirst = style == fontRaised || style == fontOnlyHighlight;
  const bool shadowSecond = style == fontRaised || style == fontOnlyShadow;
  layers.Move(-offset, -offset);
  layers.SetColor(lightFirst ? font.Highlight() : font.Shadow());
  if (style != fontOnlyShadow) layers.Draw();
  layers.Move(2 * offset, 2 * offset);
  layers.SetColor(shadowSecond ? font.Shadow() : font.Highlight());
  if (style != fontOnlyHighlight) layers.Draw();
  layers.Move(-offset, -offset);
}

}  // namespace

TQELFont3D::TQELFont3D(vcl::TObject* owner) : FOwner(owner) {
  OnChange = vcl::TNotifyEvent(this, &TQELFont3D::Invalidate);
}

void TQELFont3D::Invalidate(vcl::TObject* /*sender*/) { InvalidateOwner(FOwner); }

void TQELFont3D::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELFont3D*>(source);
  if (!other) return TGraphicsObject::Assign(source);
  FThreeDimensional = other->FThreeDimensional;
  FStyle3D = other->FStyle3D;
  FOffset = other->FOffset;
  FRepetition = other->FRepetition;
  FRepetitionColor = other->FRepetitionColor;
  FRepetitionwidth = other->FRepetitionwidth;
  FMaskFont = other->FMaskFont;
  FShadow = other->FShadow;
  FHighlight = other->FHighlight;
  Changed();
}

void TQELFont3D::Write(const vcl::TFont* font, HDC dc, const vcl::TRect& rect,
                       const std::string& text, unsigned flags, bool enabled) const {
  TTextLayers layers(font, dc, rect, text, flags);
  if (!enabled) return DrawDisabled(layers);
  if (FThreeDimensional) {
    DrawRepetition(layers, *this);
    FStyle3D == fontOutLineShadow ? DrawOutline(layers, *this) : DrawLight(layers, *this);
  }
  layers.SetColor(font->Color());
  layers.Draw();
}

void QELDrawDisabledText(const vcl::TFont* font, vcl::TCanvas* canvas, const vcl::TRect& rect,
                         unsigned flags, const std::string& text) {
  TTextLayers layers(font, canvas->Handle(), rect, text, flags);
  DrawDisabled(layers);
}

void TQELFont3D::SetThreeDimensional(bool threeDimensional) {
  FThreeDimensional = threeDimensional;
  Changed();
}

void TQELFont3D::SetStyle3D(TQELStyle3D style) {
  FStyle3D = style;
  Changed();
}

void TQELFont3D::SetOffset(int offset) {
  if (offset > 0) FOffset = offset;
  Changed();
}

void TQELFont3D::SetRepetition(TQELRepeat repetition) {
  FRepetition = repetition;
  Changed();
}

void TQELFont3D::SetRepetitionColor(vcl::TColor color) {
  FRepetitionColor = color;
  Changed();
}

void TQELFont3D::SetRepetitionwidth(int width) {
  if (width >= 0) FRepetitionwidth = width;
  Changed();
}

void TQELFont3D::SetMaskFont(bool maskFont) {
  FMaskFont = maskFont;
  Changed();
}

void TQELFont3D::SetShadow(vcl::TColor color) {
  FShadow = color;
  Changed();
}

void TQELFont3D::SetHighlight(vcl::TColor color) {
  FHighlight = color;
  Changed();
}

const vcl::TClass& TQELFont3D::Class() {
  using T = TQELFont3D;
  using namespace vcl;
  static const TClass info = Describe<T, TGraphicsObject>(
      "qel::TQELFont3D", "qel/core/Qelclasses.h",
      {
          Property<&T::ThreeDimensional, &T::SetThreeDimensional>("ThreeDimensional").Default(true),
          Property<&T::Style3D, &T::SetStyle3D>("Style3D").Default(fontOnlyHighlight),
          Property<&T::Offset, &T::SetOffset>("Offset").Default(1),
          Property<&T::Repetition, &T::SetRepetition>("Repetition").Default(repeatNone),
          Property<&T::RepetitionColor, &T::SetRepetitionColor>("RepetitionColor").Default(clBlack),
          Property<&T::Repetitionwidth, &T::SetRepetitionwidth>("Repetitionwidth").Default(0),
          Property<&T::MaskFont, &T::SetMaskFont>("MaskFont").Default(true),
          Property<&T::Shadow, &T::SetShadow>("Shadow").Default(clBtnShadow),
          Property<&T::Highlight, &T::SetHighlight>("Highlight").Default(clBtnHighlight),
          ReadOnly<&T::GetDrawingwidth>("DrawingWidth"),
      });
  return info;
}

}  // namespace qel
