// TQELFrame: its settings, and the rings that a frame is drawn with.
#include "qel/core/Qelframe.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "qel/core/private/Qelownedsettings.h"
#include "vcl/controls/scaling.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TColor;
using vcl::TPoint;
using vcl::TRect;

/// Draws borders on a context, which it gives back as it was.
class TQELFrame::TPainter {
 public:
  TPainter(HDC dc, int rings) : FDC(dc), FRings(rings), FSaved(dc) {
    ::SelectObject(dc, ::GetStockObject(DC_PEN));
    ::SetROP2(dc, R2_COPYPEN);
  }

  /// Draws a border just inside the rectangle, which loses it.
  void Border(TRect& rect, TColor topLeft, TColor bottomRight) {
    --rect.Right;
    --rect.Bottom;
    const int seen = SeenRings(rect);
    for (int ring = 0; ring < seen; ++ring) {
      Half({rect.Left, rect.Bottom}, {rect.Left, rect.Top}, {rect.Right, rect.Top}, topLeft);
      Half({rect.Right, rect.Top}, {rect.Right, rect.Bottom}, {rect.Left - 1, rect.Bottom},
           bottomRight);
      rect.Inflate(-1, -1);
    }
    rect.Inflate(seen - FRings, seen - FRings);
    ++rect.Right;
    ++rect.Bottom;
  }

 private:
  /// How many of the rings can touch what is seen of the context. The others would only take time,
  /// as any width may be asked for.
  int SeenRings(const TRect& rect) const {
    RECT box;
    if (!::GetClipBox(FDC, &box)) return FRings;
    const std::int64_t reach =
        std::max({std::int64_t{box.right} - rect.Left, std::int64_t{box.bottom} - rect.Top,
                  std::int64_t{rect.Right} - box.left, std::int64_t{rect.Bottom} - box.top});
    return static_cast<int>(std::clamp<std::int64_t>(reach + 2, 0, FRings));
  }

  void Half(TPoint from, TPoint corner, TPoint to, TColor color) {
    if (color == vcl::clNone) return;
    ::SetDCPenColor(FDC, vcl::ColorToRGB(color));
    ::MoveToEx(FDC, from.X, from.Y, nullptr);
    ::LineTo(FDC, corner.X, corner.Y);
    ::LineTo(FDC, to.X, to.Y);
  }

  HDC FDC;
  int FRings;
  vcl::TSavedDC FSaved;
};

TQELFrame::TQELFrame(vcl::TObject* owner) : FOwner(owner) {
  OnChange = vcl::TNotifyEvent(this, &TQELFrame::Invalidate);
}

void TQELFrame::Invalidate(vcl::TObject* /*sender*/) { InvalidateOwner(FOwner); }

void TQELFrame::Assign(const vcl::TPersistent* source) {
  const auto* other = dynamic_cast<const TQELFrame*>(source);
  if (!other) return TGraphicsObject::Assign(source);
  FFrameStyle = other->FFrameStyle;
  FHighlight = other->FHighlight;
  FShadow = other->FShadow;
  FSolid = other->FSolid;
  FOffset = other->FOffset;
  FFrameWidth = other->FFrameWidth;
  Calcwidth();
  Changed();
}

void TQELFrame::Draw(HDC dc, TRect& rect) {
  const int offset = ScaledTo(PixelsPerInchOf(FOwner), FOffset);
  TPainter painter(dc, RingCount());
  const auto two = [&](TColor outerTL, TColor outerBR, int gap, TColor innerTL, TColor innerBR) {
    painter.Border(rect, outerTL, outerBR);
    rect.Inflate(-gap, -gap);
    painter.Border(rect, innerTL, innerBR);
  };
  switch (FFrameStyle) {
    case frameSolid: return painter.Border(rect, FSolid, FSolid);
    case frameRaised: return painter.Border(rect, FHighlight, FShadow);
    case frameLowered: return painter.Border(rect, FShadow, FHighlight);
    case frameNone: return;
    case frameFramedUp: return two(FHighlight, FShadow, offset, FShadow, FHighlight);
    case frameFramedDown: return two(FShadow, FHighlight, offset, FHighlight, FShadow);
    case framePanelUp: return two(FHighlight, vcl::clBlack, 0, vcl::clNone, FShadow);
    case framePanelDown: return two(FShadow, vcl::clNone, 0, vcl::clBlack, FHighlight);
    case frameLightBordered: return two(vcl::clNone, FShadow, 0, FHighlight, FHighlight);
  }
}

void TQELFrame::Drawbutton(vcl::TCanvas* canvas, TRect& rect, bool down) const {
  struct TRing {
    TColor TopLeft;
    TColor BottomRight;
  };
  const TRing up[] = {{vcl::clWhite, vcl::clBlack}, {FHighlight, FShadow}};
  const TRing pressed[] = {{FShadow, FHighlight}, {vcl::clBlack, vcl::clWhite}};

  canvas->Pen()->SetWidth(1);
  --rect.Right;
  --rect.Bottom;
  for (const TRing& ring : down ? pressed : up) {
    canvas->Pen()->SetColor(ring.TopLeft);
    canvas->Polyline(std::array{TPoint(rect.Left, rect.Bottom), TPoint(rect.Left, rect.Top),
                                TPoint(rect.Right, rect.Top)});
    canvas->Pen()->SetColor(ring.BottomRight);
    canvas->Polyline(std::array{TPoint(rect.Right, rect.Top), TPoint(rect.Right, rect.Bottom),
                                TPoint(rect.Left - 1, rect.Bottom)});
    rect.Inflate(-1, -1);
  }
  ++rect.Right;
  ++rect.Bottom;
}

int TQELFrame::RingCount() const { return ScaledTo(PixelsPerInchOf(FOwner), FFrameWidth); }

int TQELFrame::BorderWidth() const {
  const int pixelsPerInch = PixelsPerInchOf(FOwner);
  return pixelsPerInch == vcl::DefaultPixelsPerInch ? FBorderWidth : Thickness(pixelsPerInch);
}

void TQELFrame::Calcwidth() { FBorderWidth = Thickness(vcl::DefaultPixelsPerInch); }

int TQELFrame::Thickness(int pixelsPerInch) const {
  const int width = ScaledTo(pixelsPerInch, FFrameWidth);
  switch (FFrameStyle) {
    case frameSolid:
    case frameRaised:
    case frameLowered: return width;
    case frameNone: return ScaledTo(pixelsPerInch, 2);
    case frameFramedUp:
    case frameFramedDown: return 2 * width + ScaledTo(pixelsPerInch, FOffset);
    case framePanelUp:
    case framePanelDown:
    case frameLightBordered: break;
  }
  return 2 * width;
}

void TQELFrame::SetFrameStyle(TQELFrameStyle style) {
  FFrameStyle = style;
  Calcwidth();
  Changed();
}

void TQELFrame::SetHighlight(TColor color) {
  FHighlight = color;
  Changed();
}

void TQELFrame::SetShadow(TColor color) {
  FShadow = color;
  Changed();
}

void TQELFrame::SetSolid(TColor color) {
  FSolid = color;
  Changed();
}

void TQELFrame::SetOffset(int offset) {
  if (offset < 0) return;
  FOffset = offset;
  Calcwidth();
  Changed();
}

void TQELFrame::SetFrameWidth(int width) {
  if (width <= 0) return;
  FFrameWidth = width;
  Calcwidth();
  Changed();
}

const vcl::TClass& TQELFrame::Class() {
  using T = TQELFrame;
  using namespace vcl;
  static const TClass info = Describe<T, TGraphicsObject>(
      "qel::TQELFrame", "qel/core/Qelclasses.h",
      {
          Property<&T::FrameStyle, &T::SetFrameStyle>("FrameStyle")
              .Default(frameRaised)
              .DefaultIf<&T::StyleHasDefault>(),
          Property<&T::Highlight, &T::SetHighlight>("Highlight").Default(clBtnHighlight),
          Property<&T::Shadow, &T::SetShadow>("Shadow").Default(clBtnShadow),
          Property<&T::Solid, &T::SetSolid>("Solid").Default(clBlack),
          Property<&T::Offset, &T::SetOffset>("Offset").Default(0),
          Property<&T::FrameWidth, &T::SetFrameWidth>("FrameWidth").Default(1),
      });
  return info;
}

}  // namespace qel
