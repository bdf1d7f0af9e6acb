// TCodedImage: its data and the pixels that are shown of them.
#include "vcl/graphics/codedimage.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "vcl/graphics/canvas.h"
#include "vcl/graphics/private/imagecodecs.h"
#include "vcl/graphics/private/keyedcopy.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/win32.h"

namespace vcl {

struct TImageFormat {
  const char* MimeType;
};

namespace {

constexpr TImageFormat Png{"image/png"};
constexpr TImageFormat Jpeg{"image/jpeg"};
constexpr TImageFormat Gif{"image/gif"};

constexpr int PixelBytes = 4;

void Fill(TBitmap& bitmap, const TDecodedImage& decoded) {
  bitmap.SetPixelFormat(pf32bit);
  bitmap.SetSize(decoded.Width, decoded.Height);
  const auto row = static_cast<std::size_t>(decoded.Width) * PixelBytes;
  for (int y = 0; y < decoded.Height; ++y) {
    std::memcpy(bitmap.ScanLine(y), &decoded.Pixels[static_cast<std::size_t>(y) * row], row);
  }
}

bool CoversInPart(const TDecodedImage& decoded) {
  for (std::size_t i = PixelBytes - 1; i < decoded.Pixels.size(); i += PixelBytes) {
    if (decoded.Pixels[i] != 0xFF) return true;
  }
  return false;
}

}  // namespace

const TClass& TCodedImage::Class() {
  static const TClass info =
      Describe<TCodedImage, TGraphic>("vcl::TCodedImage", "vcl/graphics/graphics.h", {});
  return info;
}

const TClass& TPngImage::Class() {
  static const TClass info =
      Describe<TPngImage, TCodedImage>("vcl::TPngImage", "vcl/graphics/graphics.h", {});
  return info;
}

const TClass& TJpegImage::Class() {
  static const TClass info =
      Describe<TJpegImage, TCodedImage>("vcl::TJpegImage", "vcl/graphics/graphics.h", {});
  return info;
}

const TClass& TGifImage::Class() {
  static const TClass info =
      Describe<TGifImage, TCodedImage>("vcl::TGifImage", "vcl/graphics/graphics.h", {});
  return info;
}

TCodedImage::TCodedImage(const TImageFormat& format) : FFormat(format) {}
TCodedImage::~TCodedImage() = default;
TPngImage::TPngImage() : TCodedImage(Png) {}
TJpegImage::TJpegImage() : TCodedImage(Jpeg) {}
TGifImage::TGifImage() : TCodedImage(Gif) {}

// Its data.

void TCodedImage::Take(std::vector<unsigned char> data) {
  TBitmap pixels;
  bool hasAlpha = false;
  if (!data.empty()) {
    const TDecodedImage decoded = DecodeImage(data, FFormat.MimeType);
    Fill(pixels, decoded);
    hasAlpha = CoversInPart(decoded);
  }
  FPixels.SetHandle(pixels.ReleaseHandle());
  FData = std::move(data);
  FHasAlpha = hasAlpha;
  Changed();
}

void TCodedImage::Encode(const TBitmap& bitmap) {
  Take(bitmap.Empty() ? std::vector<unsigned char>() : EncodeImage(bitmap, FFormat.MimeType));
}

void TCodedImage::Assign(const TPersistent* source) {
  const auto* image = dynamic_cast<const TCodedImage*>(source);
  if (!source || (image && &image->FFormat == &FFormat)) {
    AssignTransparent(image && image->Transparent());
    return Take(image ? image->FData : std::vector<unsigned char>());
  }
  if (!dynamic_cast<const TGraphic*>(source)) return TGraphic::Assign(source);
  TBitmap bitmap;
  bitmap.Assign(source);
  Encode(bitmap);
}

void TCodedImage::AssignTo(TPersistent* dest) const {
  auto* bitmap = dynamic_cast<TBitmap*>(dest);
  if (!bitmap) return TGraphic::AssignTo(dest);
  TBitmap whole(Width(), Height());
  if (!Empty()) const_cast<TCodedImage*>(this)->Draw(whole.Canvas(), {0, 0, Width(), Height()});
  bitmap->Assign(&whole);
}

void TCodedImage::LoadFromStream(TStream& stream) {
  std::vector<unsigned char> data(static_cast<std::size_t>(stream.Size() - stream.Position()));
  stream.ReadBuffer(data.data(), static_cast<std::int64_t>(data.size()));
  if (data.empty()) throw EInvalidGraphic("There is no picture in an empty stream");
  Take(std::move(data));
}

void TCodedImage::SaveToStream(TStream& stream) const {
  stream.WriteBuffer(FData.data(), static_cast<std::int64_t>(FData.size()));
}

// Drawing.

void TCodedImage::Draw(TCanvas* canvas, const TRect& rect) {
  if (Empty()) return;
  if (!FHasAlpha) return FPixels.Draw(canvas, rect);
  const HDC dest = canvas->Handle();
  const HDC source = FPixels.Canvas()->Handle();
  ::AlphaBlend(dest, rect.Left, rect.Top, rect.Width(), rect.Height(), source, 0, 0, Width(),
               Height(), {AC_SRC_OVER, 0, 0xFF, AC_SRC_ALPHA});
}

}  // namespace vcl
