// TBitmap: a picture of pixels with a canvas to draw on it.
#pragma once

#include <memory>
#include <string>

#include "vcl/graphics/canvas.h"
#include "vcl/graphics/graphic.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/colors.h"

namespace vcl {

class TIcon;
struct TDib;

/// The depth of a bitmap's pixels. pfDevice is what the screen has; pf15bit keeps 5 bits a channel,
/// pf16bit 5, 6 and 5; up to pf8bit the pixels are indexes into a table of colours.
enum TPixelFormat {
  pfDevice,
  pf1bit,
  pf4bit,
  pf8bit,
  pf15bit,
  pf16bit,
  pf24bit,
  pf32bit,
  pfCustom
};
template <>
inline constexpr TEnumText EnumText<TPixelFormat>{
    "TPixelFormat", "pfDevice pf1bit pf4bit pf8bit pf15bit pf16bit pf24bit pf32bit pfCustom"};

/// Where the transparent colour comes from: the lower left pixel, or TransparentColor.
enum TTransparentMode { tmAuto, tmFixed };
template <>
inline constexpr TEnumText EnumText<TTransparentMode>{"TTransparentMode", "tmAuto tmFixed"};

/// A bitmap. A new one is empty; given a size, it is filled with its canvas's brush (white). Its
/// pixels are always in memory (a DIB section).
class VCL_API TBitmap : public TGraphic {
 public:
  TBitmap();
  TBitmap(int width, int height);
  ~TBitmap() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  /// Copies a bitmap, at its depth, or an icon, drawn on white; null makes it empty.
  void Assign(const TPersistent* source) override;

  bool Empty() const override { return !FHandle; }
  int Width() const override { return FWidth; }
  int Height() const override { return FHeight; }
  /// Keep the pixels that are in both sizes; the others are filled with the canvas's brush. A width
  /// or a height of 0 makes the bitmap empty until both are more. Raise EInvalidGraphic for a
  /// negative size or one beyond what memory addresses, EOutOfResources for what the system
  /// refuses; the bitmap then stays as it was.
  void SetWidth(int width) { SetSize(width, FHeight); }
  void SetHeight(int height) { SetSize(FWidth, height); }
  void SetSize(int width, int height);
  TPixelFormat PixelFormat() const { return FPixelFormat; }
  /// Converts the pixels, to the nearest colours where fewer are to be had. Raises EInvalidGraphic
  /// for pfCustom.
  void SetPixelFormat(TPixelFormat format);

  /// The canvas draws on the bitmap's pixels; it stays the bitmap's own.
  TCanvas* Canvas();
  /// The GDI bitmap, selected in no context: the canvas lets go of it first. It stays the TBitmap's
  /// own; null when empty.
  HBITMAP Handle() const;
  /// Takes over a GDI bitmap, which must be selected nowhere; its pixels may move to another
  /// handle. Null makes the bitmap empty.
  void SetHandle(HBITMAP bitmap);
  /// Gives the GDI bitmap away and leaves this one empty.
  HBITMAP ReleaseHandle();
  /// The bytes of a row, 0 at the top, each row padded to 4 bytes: red, green and blue lie in
  /// memory as blue, green, red. Valid until size or format change. Raises EInvalidOperation
  /// outside.
  void* ScanLine(int row);
  const void* ScanLine(int row) const;

  TColor TransparentColor() const;
  /// Also sets TransparentMode: to tmAuto for clDefault, to tmFixed for all others.
  void SetTransparentColor(TColor color);
  TTransparentMode TransparentMode() const { return FTransparentMode; }
  void SetTransparentMode(TTransparentMode mode);

  /// By the canvas's CopyMode; when Transparent, without the pixels of TransparentColor.
  void Draw(TCanvas* canvas, const TRect& rect) override;

  /// Read and write files of the format BMP: every depth from 1 to 32, run-length coded or not,
  /// with every header since the first, bottom or top row first.
  void LoadFromStream(TStream& stream) override;
  void SaveToStream(TStream& stream) const override;
  /// The module's BITMAP of that name. Raises EResNotFound and EInvalidGraphic.
  void LoadFromResourceName(HINSTANCE instance, const std::string& name);

 protected:
  void ReadData(TStream& stream) override;
  void WriteData(TStream& stream) const override;

 private:
  class TBitmapCanvas;
  TDib ToDib() const;
  /// Makes the picture the bitmap's own; until the new pixels are there the old ones stay.
  void Adopt(const TDib& dib, TPixelFormat format);
  /// Adopts what was read, at its own depth.
  void Load(const TDib& dib);
  void AssignIcon(const TIcon& icon);
  TOwnedBitmap Resized(int width, int height);
  void Replace(TOwnedBitmap handle, int width, int height);
  /// The canvas lets go of the handle, which then can be selected elsewhere.
  void LetGo() const;

  TOwnedBitmap FHandle;
  int FWidth = 0;
  int FHeight = 0;
  TPixelFormat FPixelFormat = pfDevice;
  std::unique_ptr<TBitmapCanvas> FCanvas;
  TColor FTransparentColor = clDefault;
  TTransparentMode FTransparentMode = tmAuto;
};

}  // namespace vcl
