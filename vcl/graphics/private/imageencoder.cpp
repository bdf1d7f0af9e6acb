// Encoding of bitmaps, by way of GDI+.
#include <cstddef>
#include <memory>
#include <vector>

#include "vcl/graphics/private/imagecodecs.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

// GDI+ expects the whole of COM, and the names of its minimum and maximum without a namespace.
#include <objidl.h>
#include <shlwapi.h>

#include <algorithm>
namespace Gdiplus {
using std::max;  // NOLINT(misc-unused-using-decls): its header uses both.
using std::min;  // NOLINT(misc-unused-using-decls)
}  // namespace Gdiplus
#include <gdiplus.h>

namespace vcl {
namespace {

namespace gdip = Gdiplus::DllExports;

void Check(Gdiplus::GpStatus status, const char* what) {
  if (status == Gdiplus::Ok) return;
  throw EOutOfResources(Concat("The system could not ", what, " (GDI+ status ",
                               std::to_string(static_cast<int>(status)), ")"));
}

/// GDI+ in use.
class TSession {
 public:
  TSession() {
    const Gdiplus::GdiplusStartupInput input;
    Check(Gdiplus::GdiplusStartup(&FToken, &input, nullptr), "start GDI+");
  }
  ~TSession() { Gdiplus::GdiplusShutdown(FToken); }
  TSession(const TSession&) = delete;
  TSession& operator=(const TSession&) = delete;

 private:
  ULONG_PTR FToken = 0;
};

struct TDisposeImage {
  void operator()(Gdiplus::GpBitmap* image) const { gdip::GdipDisposeImage(image); }
};
using TImage = std::unique_ptr<Gdiplus::GpBitmap, TDisposeImage>;

struct TReleaseStream {
  void operator()(IStream* stream) const { stream->Release(); }
};
using TSystemStream = std::unique_ptr<IStream, TReleaseStream>;

/// GDI+'s view of the pixels, which stay the bitmap's: its rows are 24 bits a pixel.
TImage ViewOf(TBitmap& bitmap) {
  auto* top = static_cast<BYTE*>(bitmap.ScanLine(0));
  // Rows may lie from the bottom to the top.
  const auto stride = bitmap.Height() > 1 ? static_cast<BYTE*>(bitmap.ScanLine(1)) - top
                                          : (bitmap.Width() * 3 + 3) & ~3;
  Gdiplus::GpBitmap* image = nullptr;
  Check(gdip::GdipCreateBitmapFromScan0(bitmap.Width(), bitmap.Height(), static_cast<INT>(stride),
                                        PixelFormat24bppRGB, top, &image),
        "take the bitmap's pixels");
  return TImage(image);
}

CLSID EncoderOf(const std::string& mimeType) {
  UINT count = 0, size = 0;
  Check(gdip::GdipGetImageEncodersSize(&count, &size), "list its picture formats");
  std::vector<std::max_align_t> memory(size / sizeof(std::max_align_t) + 1);
  auto* encoders = reinterpret_cast<Gdiplus::ImageCodecInfo*>(memory.data());
  Check(gdip::GdipGetImageEncoders(count, size, encoders), "list its picture formats");
  for (UINT i = 0; i < count; ++i) {
    if (encoders[i].MimeType == ToUtf16(mimeType)) return encoders[i].Clsid;
  }
  throw EOutOfResources(Concat("The system has no encoder for pictures of the type ", mimeType));
}

std::vector<unsigned char> AllBytes(IStream& stream) {
  STATSTG stat{};
  const LARGE_INTEGER start{};
  ULONG count = 0;
  if (SUCCEEDED(stream.Stat(&stat, STATFLAG_NONAME)) &&
      SUCCEEDED(stream.Seek(start, STREAM_SEEK_SET, nullptr))) {
    std::vector<unsigned char> bytes(static_cast<std::size_t>(stat.cbSize.QuadPart));
    const auto size = static_cast<ULONG>(bytes.size());
    if (SUCCEEDED(stream.Read(bytes.data(), size, &count)) && count == size) return bytes;
  }
  throw EOutOfResources("The system could not give the encoded picture back");
}

}  // namespace

std::vector<unsigned char> EncodeImage(const TBitmap& bitmap, const std::string& mimeType) {
  TBitmap pixels;
  pixels.Assign(&bitmap);
  pixels.SetPixelFormat(pf24bit);
  const TSession session;
  const TSystemStream stream(::SHCreateMemStream(nullptr, 0));
  if (!stream) throw EOutOfResources("The system has no memory for the encoded picture");
  const TImage image = ViewOf(pixels);
  const CLSID encoder = EncoderOf(mimeType);
  Check(gdip::GdipSaveImageToStream(image.get(), stream.get(), &encoder, nullptr),
        "encode the picture");
  return AllBytes(*stream);
}

}  // namespace vcl
