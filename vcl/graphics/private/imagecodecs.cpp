// Decoding of pictures, by way of the Windows Imaging Component.
#include "vcl/graphics/private/imagecodecs.h"

#include <cstdint>
#include <memory>

#include "vcl/graphics/private/imagesize.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

#include <objbase.h>
#include <shlwapi.h>
#include <wincodec.h>

namespace vcl {
namespace {

constexpr std::int64_t MostPixels = 64'000'000;

struct TRelease {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <class T>
using TCom = std::unique_ptr<T, TRelease>;

/// COM in use on this thread, in whichever way the program wants it there.
class TComUse {
 public:
  TComUse() : FStarted(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
  ~TComUse() {
    if (FStarted) ::CoUninitialize();
  }
  TComUse(const TComUse&) = delete;
  TComUse& operator=(const TComUse&) = delete;

 private:
  bool FStarted;
};

struct TKind {
  const char* MimeType;
  const char* Name;
  const GUID& Container;
};

const TKind& KindOf(const std::string& mimeType) {
  static const TKind kinds[] = {{"image/png", "PNG", GUID_ContainerFormatPng},
                                {"image/jpeg", "JPEG", GUID_ContainerFormatJpeg},
                                {"image/gif", "GIF", GUID_ContainerFormatGif}};
  for (const TKind& each : kinds) {
    if (mimeType == each.MimeType) return each;
  }
  throw EInvalidGraphic(Concat("\"", mimeType, "\" is no known kind of picture"));
}

/// What the system answered when it could not decode the data.
void Check(HRESULT result, const TKind& kind) {
  if (SUCCEEDED(result)) return;
  throw EInvalidGraphic(Concat("The picture is damaged or is no ", kind.Name, " (error ",
                               IntToHex(static_cast<std::uint32_t>(result), 8), ")"));
}

TCom<IWICImagingFactory> MakeFactory() {
  void* factory = nullptr;
  const HRESULT result = ::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                            IID_IWICImagingFactory, &factory);
  if (FAILED(result)) throw EOutOfResources("The system cannot decode pictures");
  return TCom<IWICImagingFactory>(static_cast<IWICImagingFactory*>(factory));
}

TCom<IWICBitmapDecoder> MakeDecoder(IWICImagingFactory& factory, IStream& stream,
                                    const TKind& kind) {
  IWICBitmapDecoder* made = nullptr;
  Check(factory.CreateDecoderFromStream(&stream, nullptr, WICDecodeMetadataCacheOnDemand, &made),
        kind);
  TCom<IWICBitmapDecoder> decoder(made);
  GUID container{};
  Check(decoder->GetContainerFormat(&container), kind);
  if (!::IsEqualGUID(container, kind.Container)) {
    throw EInvalidGraphic(Concat("The picture is of another format than ", kind.Name));
  }
  return decoder;
}

TCom<IWICBitmapSource> Converted(IWICImagingFactory& factory, IWICBitmapSource& frame,
                                 const TKind& kind) {
  IWICFormatConverter* made = nullptr;
  Check(factory.CreateFormatConverter(&made), kind);
  TCom<IWICFormatConverter> converter(made);
  Check(converter->Initialize(&frame, GUID_WICPixelFormat32bppPBGRA, WICBitmapDitherTypeNone,
                              nullptr, 0, WICBitmapPaletteTypeCustom),
        kind);
  return converter;
}

void CheckSize(UINT width, UINT height) {
  if (width > 0 && height > 0 && std::int64_t{width} * height <= MostPixels) return;
  throw EInvalidGraphic(Concat("A picture cannot have ", std::to_string(width), " by ",
                               std::to_string(height), " pixels"));
}

}  // namespace

TDecodedImage DecodeImage(const std::vector<unsigned char>& data, const std::string& mimeType) {
  const TKind& kind = KindOf(mimeType);
  // Some systems decode as they open: what the header says is looked at before.
  const TImageSize said = CodedImageSize(data);
  if (said.Width > 0) CheckSize(said.Width, said.Height);
  const TComUse com;
  const auto factory = MakeFactory();
  const TCom<IStream> stream(::SHCreateMemStream(data.data(), static_cast<UINT>(data.size())));
  if (!stream) throw EOutOfResources("The system has no memory for the picture");
  const auto decoder = MakeDecoder(*factory, *stream, kind);
  IWICBitmapFrameDecode* made = nullptr;
  Check(decoder->GetFrame(0, &made), kind);
  const TCom<IWICBitmapFrameDecode> frame(made);
  UINT width = 0;
  UINT height = 0;
  Check(frame->GetSize(&width, &height), kind);
  CheckSize(width, height);
  const auto source = Converted(*factory, *frame, kind);
  TDecodedImage decoded{static_cast<int>(width), static_cast<int>(height), {}};
  decoded.Pixels.resize(std::size_t{width} * height * 4);
  Check(source->CopyPixels(nullptr, width * 4, static_cast<UINT>(decoded.Pixels.size()),
                           decoded.Pixels.data()),
        kind);
  return decoded;
}

}  // namespace vcl
