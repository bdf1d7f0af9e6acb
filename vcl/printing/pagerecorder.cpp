// TPageRecorder: pages as metafiles in memory.
#include "vcl/printing/pagerecorder.h"

#include <utility>

#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

void CheckMeasures(const TPageMetrics& metrics) {
  for (const TSize size : {metrics.Page, metrics.Paper, metrics.PixelsPerInch}) {
    if (size.cx >= 1 && size.cy >= 1) continue;
    throw EArgumentOutOfRangeException(
        Concat("No page: ", std::to_string(size.cx), " by ", std::to_string(size.cy)));
  }
}

/// Makes the page's pixels those of the context, whatever device it is like.
void UsePagePixels(HDC context, const TPageMetrics& metrics) {
  const auto pixels = [context](int size, int perInch, int which) {
    return ::MulDiv(size, ::GetDeviceCaps(context, which), perInch);
  };
  ::SetMapMode(context, MM_ANISOTROPIC);
  ::SetWindowExtEx(context, metrics.Page.cx, metrics.Page.cy, nullptr);
  ::SetViewportExtEx(context, pixels(metrics.Page.cx, metrics.PixelsPerInch.cx, LOGPIXELSX),
                     pixels(metrics.Page.cy, metrics.PixelsPerInch.cy, LOGPIXELSY), nullptr);
}

/// The page's size as the metafile's frame, so that the context's measures of an inch meet it.
RECT FrameOf(HDC screen, const TPageMetrics& metrics) {
  const auto measure = [screen](int size, int perInch, int logical, int millimetres, int pixels) {
    const int onScreen = ::MulDiv(size, ::GetDeviceCaps(screen, logical), perInch);
    return ::MulDiv(onScreen, 100 * ::GetDeviceCaps(screen, millimetres),
                    ::GetDeviceCaps(screen, pixels));
  };
  return {0, 0, measure(metrics.Page.cx, metrics.PixelsPerInch.cx, LOGPIXELSX, HORZSIZE, HORZRES),
          measure(metrics.Page.cy, metrics.PixelsPerInch.cy, LOGPIXELSY, VERTSIZE, VERTRES)};
}

}  // namespace

void detail::DeleteMetafile(HENHMETAFILE metafile) { ::DeleteEnhMetaFile(metafile); }

const TClass& TPageRecorder::Class() {
  static const TClass info =
      Describe<TPageRecorder, TPrintDocument>("vcl::TPageRecorder", "vcl/printing/printing.h", {});
  return info;
}

TPageRecorder::TPageRecorder(const TPageMetrics& metrics) : FMetrics(metrics) {
  CheckMeasures(metrics);
}

TPageRecorder::~TPageRecorder() {
  if (Printing()) AbortQuietly();
}

HENHMETAFILE TPageRecorder::Page(int index) const {
  if (index < 0 || index >= PageCount()) {
    throw EListError(Concat("There is no page of the index ", std::to_string(index), " among ",
                            std::to_string(PageCount())));
  }
  return FPages[static_cast<std::size_t>(index)].Get();
}

void TPageRecorder::Draw(int index, TCanvas* canvas, const TRect& rect) const {
  const RECT place = rect;
  ::PlayEnhMetaFile(canvas->Handle(), Page(index), &place);
}

HDC TPageRecorder::StartPage() {
  const TWindowDC screen(nullptr);
  const RECT frame = FrameOf(screen.Get(), FMetrics);
  FContext = CheckHandle(::CreateEnhMetaFileW(screen.Get(), nullptr, &frame, nullptr),
                         "The metafile of a page");
  UsePagePixels(FContext, FMetrics);
  return FContext;
}

void TPageRecorder::EndPage() {
  FPages.emplace_back(
      CheckHandle(::CloseEnhMetaFile(std::exchange(FContext, nullptr)), "The metafile of a page"));
}

void TPageRecorder::AbortDocument() {
  if (FContext) ::DeleteEnhMetaFile(::CloseEnhMetaFile(std::exchange(FContext, nullptr)));
  FPages.clear();
}

}  // namespace vcl
