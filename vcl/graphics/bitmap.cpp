// TBitmap: its pixels, size and format, its handles, and drawing it.
#include "vcl/graphics/bitmap.h"

#include <cstring>
#include <vector>

#include "vcl/graphics/icon.h"
#include "vcl/graphics/private/dib.h"
#include "vcl/graphics/private/keyedcopy.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// A header with room for what may follow it.
struct TBitmapInfo {
  BITMAPINFOHEADER Header{};
  DWORD Colors[256]{};
};

struct TDepth {
  TPixelFormat Format;
  int BitCount;
  bool SixBitGreen = false;
};
/// A bitmap of the screen's format has what every screen now shows.
constexpr TDepth Depths[] = {{pfDevice, 32}, {pf1bit, 1},         {pf4bit, 4},   {pf8bit, 8},
                             {pf15bit, 16},  {pf16bit, 16, true}, {pf24bit, 24}, {pf32bit, 32}};

TPixelFormat FormatOf(int bitCount, bool sixBitGreen) {
  for (const TDepth& depth : Depths) {
    if (depth.Format == pfDevice) continue;
    if (depth.BitCount == bitCount && depth.SixBitGreen == sixBitGreen) return depth.Format;
  }
  return pfCustom;
}

TBitmapInfo InfoFor(int width, int height, int bitCount, bool sixBitGreen) {
  TBitmapInfo info;
  info.Header.biSize = sizeof info.Header;
  info.Header.biWidth = width;
  info.Header.biHeight = height;
  info.Header.biPlanes = 1;
  info.Header.biBitCount = static_cast<WORD>(bitCount);
  if (sixBitGreen) {
    info.Header.biCompression = BI_BITFIELDS;
    info.Colors[0] = 0xF800;
    info.Colors[1] = 0x07E0;
    info.Colors[2] = 0x001F;
  }
  return info;
}

DIBSECTION Section(HBITMAP bitmap) {
  DIBSECTION section{};
  if (::GetObjectW(bitmap, sizeof section, &section) != sizeof section) {
    RaiseOutOfResources("to describe a bitmap");
  }
  return section;
}

/// A DIB section of the picture's size, depth and palette; its pixels are still zero.
TOwnedBitmap MakeSection(const TDib& dib) {
  CheckDibSize(dib.Width, dib.Height, dib.BitCount);
  TBitmapInfo info = InfoFor(dib.Width, dib.Height, dib.BitCount, dib.SixBitGreen);
  std::copy(dib.Palette.begin(), dib.Palette.end(), info.Colors);
  void* bits = nullptr;
  return TOwnedBitmap(
      CheckHandle(::CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info),
                                     DIB_RGB_COLORS, &bits, nullptr, 0),
                  "a bitmap"));
}

/// The picture of any GDI bitmap that is selected nowhere.
TDib ReadHandle(HBITMAP handle) {
  DIBSECTION description{};
  const int got = ::GetObjectW(handle, sizeof description, &description);
  if (!got) throw EInvalidGraphic("The handle is none of a bitmap");
  const BITMAP& bitmap = description.dsBm;
  const bool section = got == sizeof description;
  TDib dib;
  dib.Width = static_cast<int>(bitmap.bmWidth);
  dib.Height = static_cast<int>(bitmap.bmHeight);
  const int bits = bitmap.bmBitsPixel * bitmap.bmPlanes;
  // A device's own bitmaps have its palette or arrangement of bits, so they are asked for all
  // colours.
  dib.BitCount = section || bits == 1 ? bits : 32;
  dib.SixBitGreen = section && bits == 16 && description.dsBitfields[1] == 0x07E0;
  dib.Allocate();
  TBitmapInfo info = InfoFor(dib.Width, dib.Height, dib.BitCount, dib.SixBitGreen);
  const TWindowDC screen(nullptr);
  if (!::GetDIBits(screen.Get(), handle, 0, static_cast<UINT>(dib.Height), dib.Bits.data(),
                   reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS)) {
    RaiseOutOfResources("to read a bitmap's pixels");
  }
  std::copy_n(info.Colors, dib.Palette.size(), dib.Palette.begin());
  return dib;
}

}  // namespace

/// Draws on the pixels of its bitmap.
class TBitmap::TBitmapCanvas final : public TOnDemandCanvas {
 public:
  explicit TBitmapCanvas(TBitmap& bitmap) : FBitmap(bitmap) {}
  ~TBitmapCanvas() override { FreeHandle(); }

 protected:
  /// An empty bitmap's context has one pixel that nobody sees, enough to measure texts.
  HDC AcquireContext() override {
    TOwnedDC dc(CheckHandle(::CreateCompatibleDC(nullptr), "a memory context"));
    if (FBitmap.FHandle) {
      FFormer = CheckHandle(::SelectObject(dc.Get(), FBitmap.FHandle.Get()),
                            "to select a bitmap to draw on");
    }
    return dc.Release();
  }
  void ReleaseContext(HDC dc) override {
    if (FFormer) ::SelectObject(dc, std::exchange(FFormer, nullptr));
    ::DeleteDC(dc);
  }
  void Changed() override {
    TOnDemandCanvas::Changed();
    FBitmap.Changed();
  }

 private:
  TBitmap& FBitmap;
  HGDIOBJ FFormer = nullptr;
};

TBitmap::TBitmap() : FCanvas(std::make_unique<TBitmapCanvas>(*this)) {}

TBitmap::TBitmap(int width, int height) : TBitmap() { SetSize(width, height); }

TBitmap::~TBitmap() { LetGo(); }

const TClass& TBitmap::Class() {
  static const TClass info =
      Describe<TBitmap, TGraphic>("vcl::TBitmap", "vcl/graphics/graphics.h", {});
  return info;
}

void TBitmap::Assign(const TPersistent* source) {
  if (source == this) return;
  if (!source) return SetHandle(nullptr);
  if (const auto* icon = dynamic_cast<const TIcon*>(source)) return AssignIcon(*icon);
  const auto* bitmap = dynamic_cast<const TBitmap*>(source);
  if (!bitmap) return TGraphic::Assign(source);
  if (bitmap->Empty()) {
    Replace({}, bitmap->FWidth, bitmap->FHeight);
    FPixelFormat = bitmap->FPixelFormat;
  } else {
    Adopt(bitmap->ToDib(), bitmap->FPixelFormat);
  }
  FTransparentColor = bitmap->FTransparentColor;
  FTransparentMode = bitmap->FTransparentMode;
  AssignTransparent(bitmap->Transparent());
  Changed();
}

void TBitmap::AssignIcon(const TIcon& icon) {
  TBitmap drawn(icon.Width(), icon.Height());
  if (!icon.Empty())
    ::DrawIconEx(drawn.Canvas()->Handle(), 0, 0, icon.Handle(), drawn.Width(), drawn.Height(), 0,
                 nullptr, DI_NORMAL);
  Assign(&drawn);
}

// ---- Pixels ----

void TBitmap::LetGo() const { FCanvas->FreeHandle(); }

void TBitmap::Replace(TOwnedBitmap handle, int width, int height) {
  LetGo();
  FHandle = std::move(handle);
  FWidth = width;
  FHeight = height;
}

TDib TBitmap::ToDib() const {
  ::GdiFlush();
  const DIBSECTION section = Section(FHandle.Get());
  TDib dib;
  dib.Width = FWidth;
  dib.Height = FHeight;
  dib.BitCount = Depths[FPixelFormat].BitCount;
  dib.SixBitGreen = Depths[FPixelFormat].SixBitGreen;
  dib.Allocate();
  std::memcpy(dib.Bits.data(), section.dsBm.bmBits, dib.Bits.size());
  if (!dib.Palette.empty()) {
    LetGo();
    const TMemoryDC dc;
    const TSelection selection(dc.Get(), FHandle.Get());
    ::GetDIBColorTable(dc.Get(), 0, static_cast<UINT>(dib.Palette.size()),
                       reinterpret_cast<RGBQUAD*>(dib.Palette.data()));
  }
  return dib;
}

void TBitmap::Adopt(const TDib& dib, TPixelFormat format) {
  TOwnedBitmap handle = MakeSection(dib);
  std::memcpy(Section(handle.Get()).dsBm.bmBits, dib.Bits.data(), dib.Bits.size());
  Replace(std::move(handle), dib.Width, dib.Height);
  FPixelFormat = format;
}

void TBitmap::Load(const TDib& dib) {
  Adopt(dib, FormatOf(dib.BitCount, dib.SixBitGreen));
  Changed();
}

void TBitmap::SetSize(int width, int height) {
  if (width == FWidth && height == FHeight) return;
  if (width < 0 || height < 0) CheckDibSize(width, height, Depths[FPixelFormat].BitCount);
  Replace(width && height ? Resized(width, height) : TOwnedBitmap(), width, height);
  Changed();
}

/// The pixels in a new size.
TOwnedBitmap TBitmap::Resized(int width, int height) {
  TDib frame;
  if (FHandle) {
    frame = ToDib();
  } else {
    frame.BitCount = Depths[FPixelFormat].BitCount;
    frame.SixBitGreen = Depths[FPixelFormat].SixBitGreen;
    frame.Palette = StandardPalette(frame.BitCount);
  }
  frame.Width = width;
  frame.Height = height;
  TOwnedBitmap handle = MakeSection(frame);
  const TMemoryDC dc;
  const TSelection selection(dc.Get(), handle.Get());
  const RECT whole{0, 0, width, height};
  const bool clear = FCanvas->Brush()->Style() == bsClear;
  ::FillRect(
      dc.Get(), &whole,
      clear ? static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)) : FCanvas->Brush()->Handle());
  if (FHandle) {
    LetGo();
    const TMemoryDC old;
    const TSelection oldSelection(old.Get(), FHandle.Get());
    ::BitBlt(dc.Get(), 0, 0, FWidth, FHeight, old.Get(), 0, 0, SRCCOPY);
  }
  return handle;
}

void TBitmap::SetPixelFormat(TPixelFormat format) {
  if (format == FPixelFormat) return;
  if (format == pfCustom) throw EInvalidGraphic("A bitmap cannot be given the format pfCustom");
  if (Empty()) {
    FPixelFormat = format;
    return;
  }
  const TDepth& depth = Depths[format];
  Adopt(ConvertDib(ToDib(), depth.BitCount, depth.SixBitGreen), format);
  Changed();
}

const void* TBitmap::ScanLine(int row) const {
  if (row < 0 || row >= FHeight || Empty()) {
    throw EInvalidOperation(
        Concat("Row ", std::to_string(row), " is outside the bitmap's ", std::to_string(FHeight)));
  }
  ::GdiFlush();
  const BITMAP bitmap = Section(FHandle.Get()).dsBm;
  const auto below = static_cast<std::size_t>(FHeight - 1 - row);
  return static_cast<const char*>(bitmap.bmBits) +
         below * static_cast<std::size_t>(bitmap.bmWidthBytes);
}

void* TBitmap::ScanLine(int row) { return const_cast<void*>(std::as_const(*this).ScanLine(row)); }

// ---- Handles ----

TCanvas* TBitmap::Canvas() { return FCanvas.get(); }

HBITMAP TBitmap::Handle() const {
  LetGo();
  return FHandle.Get();
}

void TBitmap::SetHandle(HBITMAP handle) {
  if (handle && handle == FHandle.Get()) return;
  if (handle) {
    const TOwnedBitmap taken(handle);
    Load(ReadHandle(handle));
  } else {
    Replace({}, 0, 0);
    Changed();
  }
}

HBITMAP TBitmap::ReleaseHandle() {
  LetGo();
  const HBITMAP handle = FHandle.Release();
  Replace({}, 0, 0);
  Changed();
  return handle;
}

// ---- Drawing ----

TColor TBitmap::TransparentColor() const {
  if (FTransparentMode == tmFixed) return FTransparentColor;
  return Empty() ? clNone : FCanvas->Pixels(0, FHeight - 1);
}

void TBitmap::SetTransparentColor(TColor color) {
  if (color == FTransparentColor) return;
  FTransparentColor = color;
  FTransparentMode = color == clDefault ? tmAuto : tmFixed;
  Changed();
}

void TBitmap::SetTransparentMode(TTransparentMode mode) {
  if (mode == FTransparentMode) return;
  // What has been automatic so far becomes fixed as it is.
  FTransparentColor = mode == tmAuto ? clDefault : TransparentColor();
  FTransparentMode = mode;
  Changed();
}

void TBitmap::Draw(TCanvas* canvas, const TRect& rect) {
  if (Empty()) return;
  const HDC dest = canvas->Handle();
  const HDC source = FCanvas->Handle();
  const TRect whole(0, 0, FWidth, FHeight);
  if (Transparent()) {
    CopyKeyed(dest, rect, source, whole, ColorToRGB(TransparentColor()), nullptr);
  } else {
    CopyStretched(dest, rect, source, whole, canvas->CopyMode());
  }
}

}  // namespace vcl
