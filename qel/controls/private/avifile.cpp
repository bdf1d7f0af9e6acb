// Opening an AVI file's video and decoding its frames.
#include "qel/controls/private/avifile.h"

#include "qel/controls/Qeltanimator.h"
#include "qel/core/private/multimedia.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

[[noreturn]] void RaiseUnplayable(const std::string& fileName, const std::string& cause) {
  throw EQELAnimatorError(vcl::Concat("Cannot play '", fileName, "': ", cause));
}

/// The system's words, and the number where they are none of its own.
std::string CauseOf(HRESULT code) {
  switch (static_cast<DWORD>(code)) {
    case static_cast<DWORD>(AVIERR_BADFORMAT): return "it is damaged, or no AVI file";
    case static_cast<DWORD>(AVIERR_NODATA): return "it has no video";
    case static_cast<DWORD>(AVIERR_FILEOPEN): return "it cannot be opened";
    case static_cast<DWORD>(AVIERR_FILEREAD): return "it cannot be read";
    case static_cast<DWORD>(AVIERR_NOCOMPRESSOR): return "there is no decoder for it";
    default:
      return vcl::Concat(vcl::SysErrorMessage(code), " (",
                         vcl::IntToHex(static_cast<DWORD>(code), 8), ")");
  }
}

/// The decoded picture behind its header and its colours.
const unsigned char* PixelsOf(const BITMAPINFOHEADER& header) {
  std::size_t colors = header.biClrUsed;
  if (colors == 0 && header.biBitCount <= 8) colors = std::size_t{1} << header.biBitCount;
  if (header.biCompression == BI_BITFIELDS) colors = 3;
  return reinterpret_cast<const unsigned char*>(&header) + header.biSize + colors * sizeof(RGBQUAD);
}

}  // namespace

/// The library, its entry points, and what is open by them.
struct TAviFile::TVideo {
  TVideo() : Library(::LoadLibraryExW(L"avifil32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {}
  ~TVideo() {
    if (Decoder) Close(Decoder);
    if (Stream) Release(Stream);
    if (Begun) Exit();
    if (Library) ::FreeLibrary(Library);
  }
  TVideo(const TVideo&) = delete;
  TVideo& operator=(const TVideo&) = delete;

  bool Complete() {
    return Library && Resolve(Init, "AVIFileInit") && Resolve(Exit, "AVIFileExit") &&
           Resolve(OpenStream, "AVIStreamOpenFromFileW") && Resolve(Release, "AVIStreamRelease") &&
           Resolve(Length, "AVIStreamLength") && Resolve(Open, "AVIStreamGetFrameOpen") &&
           Resolve(Get, "AVIStreamGetFrame") && Resolve(Close, "AVIStreamGetFrameClose");
  }
  template <class T>
  bool Resolve(T& entry, const char* name) {
    entry = reinterpret_cast<T>(reinterpret_cast<void*>(::GetProcAddress(Library, name)));
    return entry != nullptr;
  }

  HMODULE Library;
  void(WINAPI* Init)() = nullptr;
  void(WINAPI* Exit)() = nullptr;
  HRESULT(WINAPI* OpenStream)
  (PAVISTREAM*, LPCWSTR, DWORD, LONG, UINT, CLSID*) = nullptr;
  ULONG(WINAPI* Release)(PAVISTREAM) = nullptr;
  LONG(WINAPI* Length)(PAVISTREAM) = nullptr;
  PGETFRAME(WINAPI* Open)(PAVISTREAM, BITMAPINFOHEADER*) = nullptr;
  void*(WINAPI* Get)(PGETFRAME, LONG) = nullptr;
  HRESULT(WINAPI* Close)(PGETFRAME) = nullptr;
  PAVISTREAM Stream = nullptr;
  PGETFRAME Decoder = nullptr;
  bool Begun = false;
};

TAviFile::TAviFile(const std::string& fileName) : FVideo(std::make_unique<TVideo>()) {
  TVideo& video = *FVideo;
  if (!video.Complete()) RaiseUnplayable(fileName, "the system has no video library");
  video.Init();
  video.Begun = true;
  const HRESULT code =
      video.OpenStream(&video.Stream, vcl::SystemFileName(vcl::ExpandFileName(fileName)).c_str(),
                       streamtypeVIDEO, 0, OF_READ | OF_SHARE_DENY_WRITE, nullptr);
  if (FAILED(code) || !video.Stream) RaiseUnplayable(fileName, CauseOf(code));
  video.Decoder = video.Open(video.Stream, nullptr);
  if (!video.Decoder) RaiseUnplayable(fileName, CauseOf(AVIERR_NOCOMPRESSOR));
  FFrameCount = static_cast<int>(video.Length(video.Stream));
  vcl::TBitmap first;
  if (FFrameCount < 1 || !GetFrame(0, first)) RaiseUnplayable(fileName, CauseOf(AVIERR_NODATA));
}

TAviFile::~TAviFile() = default;

bool TAviFile::GetFrame(int index, vcl::TBitmap& frame) const {
  const auto* header = static_cast<const BITMAPINFOHEADER*>(FVideo->Get(FVideo->Decoder, index));
  if (!header) return false;
  const int width = static_cast<int>(header->biWidth);
  const int height = static_cast<int>(header->biHeight < 0 ? -header->biHeight : header->biHeight);
  if (width < 1 || height < 1) return false;
  frame.SetSize(width, height);
  return ::StretchDIBits(frame.Canvas()->Handle(), 0, 0, width, height, 0, 0, width, height,
                         PixelsOf(*header), reinterpret_cast<const BITMAPINFO*>(header),
                         DIB_RGB_COLORS, SRCCOPY) != 0;
}

}  // namespace qel
