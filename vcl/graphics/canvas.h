// TCanvas: drawing with a font, a pen and a brush on a device context.
#pragma once

#include <memory>
#include <span>
#include <string>

#include "vcl/graphics/brush.h"
#include "vcl/graphics/font.h"
#include "vcl/graphics/pen.h"
#include "vcl/graphics/types.h"
#include "vcl/rtl/systemmacros.h"

namespace vcl {

class TBitmap;
class TGraphic;

/// How CopyRect and drawn pictures combine with what is there: a ternary raster operation.
using TCopyMode = DWORD;
inline constexpr TCopyMode cmBlackness = 0x00000042, cmDstInvert = 0x00550009,
                           cmMergeCopy = 0x00C000CA, cmMergePaint = 0x00BB0226,
                           cmNotSrcCopy = 0x00330008, cmNotSrcErase = 0x001100A6,
                           cmPatCopy = 0x00F00021, cmPatInvert = 0x005A0049,
                           cmPatPaint = 0x00FB0A09, cmSrcAnd = 0x008800C6, cmSrcCopy = 0x00CC0020,
                           cmSrcErase = 0x00440328, cmSrcInvert = 0x00660046,
                           cmSrcPaint = 0x00EE0086, cmWhiteness = 0x00FF0062;

/// How FloodFill finds its bounds: it fills what has the colour, or up to what has it.
enum TFillStyle { fsSurface, fsBorder };

/// A surface to draw on. Font, pen and brush are selected into the device context when a drawing
/// method needs them and have changed since; they leave it when the context does. All methods raise
/// EInvalidOperation when there is no device context and none can be had.
class VCL_API TCanvas : public TPersistent {
 public:
  TCanvas();
  /// Deselects what is selected. The device context stays whose it was.
  ~TCanvas() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The device context, with font, pen and brush selected. Until one of the three changes, what is
  /// set on the context through it stays set.
  HDC Handle();
  /// Draws on this context from now on, which stays the caller's; null lets the present one go,
  /// with the objects selected in it that were there before.
  virtual void SetHandle(HDC dc);
  bool HandleAllocated() const { return FHandle != nullptr; }

  TFont* Font() { return &FFont; }
  TPen* Pen() { return &FPen; }
  TBrush* Brush() { return &FBrush; }
  const TFont* Font() const { return &FFont; }
  const TPen* Pen() const { return &FPen; }
  const TBrush* Brush() const { return &FBrush; }
  /// Setting one of them copies it.
  void SetFont(const TFont* font) { FFont.AssignPixels(font); }
  void SetPen(const TPen* pen) { FPen.Assign(pen); }
  void SetBrush(const TBrush* brush) { FBrush.Assign(brush); }
  TCopyMode CopyMode() const { return FCopyMode; }
  void SetCopyMode(TCopyMode mode) { FCopyMode = mode; }

  TPoint PenPos();
  void MoveTo(int x, int y);
  void LineTo(int x, int y);
  void Polyline(std::span<const TPoint> points);
  void Polygon(std::span<const TPoint> points);
  void Rectangle(int left, int top, int right, int bottom);
  void Rectangle(const TRect& r) { Rectangle(r.Left, r.Top, r.Right, r.Bottom); }
  void RoundRect(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight);
  void Ellipse(int left, int top, int right, int bottom);
  void Ellipse(const TRect& r) { Ellipse(r.Left, r.Top, r.Right, r.Bottom); }
  /// Part of an ellipse's outline, from the ray to (x3, y3) counter-clockwise to the ray to (x4,
  /// y4).
  void Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
  void Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
  void Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
  /// Fills with the brush, without an outline. A clear brush fills nothing.
  void FillRect(const TRect& rect);
  /// A border one pixel wide, in the brush.
  void FrameRect(const TRect& rect);
  /// The dotted frame of what has the focus; drawn again, it vanishes.
  void DrawFocusRect(const TRect& rect);
  void FloodFill(int x, int y, TColor color, TFillStyle fillStyle);

  /// Text in the font, its upper left corner at (x, y); its background is filled when the brush is
  /// solid. Moves the pen's position behind it.
  void TextOut(int x, int y, const std::string& text);
  /// Text at (x, y) inside the rectangle only, which is filled first unless the brush is clear.
  void TextRect(const TRect& rect, int x, int y, const std::string& text);
  /// The text's size in pixels.
  TSize TextExtent(const std::string& text);
  int TextWidth(const std::string& text) { return TextExtent(text).cx; }
  int TextHeight(const std::string& text) { return TextExtent(text).cy; }

  /// The picture in its own size resp. stretched. A null or empty one draws nothing.
  void Draw(int x, int y, TGraphic* graphic);
  void StretchDraw(const TRect& rect, TGraphic* graphic);
  /// Copies a part of a canvas (this one too) by CopyMode, stretched where the sizes differ.
  void CopyRect(const TRect& dest, TCanvas* source, const TRect& sourceRect);
  /// Copies a part of a bitmap, stretched where the sizes differ, save its pixels of the given
  /// colour: there the brush is painted (its pattern or hatch lined up with the rest of the
  /// canvas), and where it paints nothing, because it is clear or hatched, what the canvas shows
  /// stays.
  void BrushCopy(const TRect& dest, TBitmap* bitmap, const TRect& source, TColor color);

  /// One pixel's colour; -1 outside the clipping area.
  TColor Pixels(int x, int y);
  void SetPixel(int x, int y, TColor color);
  /// What bounds all that is visible.
  TRect ClipRect();
  /// Takes a rectangle out of what can be drawn on resp. keeps to it, until the context goes.
  void ExcludeClipRect(const TRect& rect);
  void IntersectClipRect(const TRect& rect);

  /// Before resp. after something is drawn.
  TNotifyEvent OnChanging;
  TNotifyEvent OnChange;

 protected:
  /// Gives the canvas a device context (SetHandle) when it is needed and there is none.
  virtual void CreateHandle() {}
  virtual void Changing();
  virtual void Changed();

 private:
  enum TNeed : unsigned { needFont = 1, needPen = 2, needBrush = 4, needAll = 7 };
  template <class H>
  struct TUsed {
    std::shared_ptr<const H> Share;  ///< Kept alive while it is selected.
    unsigned Version = 0;
    HGDIOBJ Former = nullptr;
  };

  /// The device context with what a drawing needs selected in it.
  HDC Required(unsigned needs);
  /// Draws, between the two announcements.
  template <class F>
  void Paint(unsigned needs, F draw);
  template <class H, class T>
  bool Select(TUsed<H>& used, const T& object);
  template <class H>
  void Deselect(TUsed<H>& used);
  void DeselectAll();

  HDC FHandle = nullptr;
  TFont FFont;
  TPen FPen;
  TBrush FBrush;
  TCopyMode FCopyMode = cmSrcCopy;
  TUsed<TOwnedFont> FUsedFont;
  TUsed<TOwnedPen> FUsedPen;
  TUsed<TOwnedBrush> FUsedBrush;
};

/// A canvas that gets its device context when it is first drawn on, and can do without it again.
class VCL_API TOnDemandCanvas : public TCanvas {
 public:
  ~TOnDemandCanvas() override;
  void SetHandle(HDC dc) override;
  /// Lets go of the context that the canvas got itself; one that it was given stays.
  void FreeHandle();

 protected:
  void CreateHandle() final;
  /// Gets a device context. Descendants' destructors call FreeHandle.
  virtual HDC AcquireContext() = 0;
  virtual void ReleaseContext(HDC dc) = 0;

 private:
  HDC FOwned = nullptr;
};

/// Lets go of every device context that a canvas got on demand, of controls and of bitmaps. The
/// application does so when no message waits; nobody may be drawing.
VCL_API void FreeDeviceContexts();

}  // namespace vcl
