// TPrintDocument: the order of pages, and the canvas of the one that is drawn.
#include "vcl/printing/printdocument.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

EPrinter::~EPrinter() = default;

namespace {

constexpr int TenthsPerInch = 254;  // Of a millimetre.

int Tenths(int tenths, int pixelsPerInch) { return ::MulDiv(tenths, pixelsPerInch, TenthsPerInch); }

}  // namespace

TPageMetrics StandardPage(TPrinterOrientation orientation) {
  constexpr int dots = 600;
  constexpr int shortSide = 2100;
  constexpr int longSide = 2970;
  constexpr int edge = 50;
  const bool upright = orientation == poPortrait;
  const auto size = [upright](int border) {
    const int across = Tenths(shortSide - border, dots);
    const int down = Tenths(longSide - border, dots);
    return upright ? TSize{across, down} : TSize{down, across};
  };
  return {size(2 * edge), size(0), {Tenths(edge, dots), Tenths(edge, dots)}, {dots, dots}};
}

const TClass& TPrintDocument::Class() {
  static const TClass info =
      Describe<TPrintDocument, TObject>("vcl::TPrintDocument", "vcl/printing/printing.h", {});
  return info;
}

TPrintDocument::TPrintDocument() = default;
TPrintDocument::~TPrintDocument() = default;

int TPrintDocument::MillimetresX(int tenths) const {
  return Tenths(tenths, Metrics().PixelsPerInch.cx);
}

int TPrintDocument::MillimetresY(int tenths) const {
  return Tenths(tenths, Metrics().PixelsPerInch.cy);
}

void TPrintDocument::CheckPrinting() const {
  if (!Printing()) throw EPrinter(Concat("No document is being printed: ", ClassName()));
}

void TPrintDocument::CheckNotPrinting() const {
  if (Printing()) {
    throw EPrinter(Concat("Printing is under way: page ", std::to_string(FPage), " of \"", FTitle,
                          "\" is being drawn"));
  }
}

TCanvas* TPrintDocument::Canvas() {
  CheckPrinting();
  return &FCanvas;
}

void TPrintDocument::OpenPage() {
  const TOnFailure giveUp([this] { AbortQuietly(); });
  FCanvas.SetHandle(StartPage());
  ++FPage;
}

void TPrintDocument::ClosePage() {
  const TOnFailure giveUp([this] { AbortQuietly(); });
  FCanvas.SetHandle(nullptr);
  EndPage();
}

void TPrintDocument::BeginDoc() {
  CheckNotPrinting();
  FAborted = false;
  StartDocument();
  const TFont font(Metrics().PixelsPerInch.cy);
  FCanvas.SetFont(&font);
  OpenPage();
}

void TPrintDocument::NewPage() {
  CheckPrinting();
  ClosePage();
  OpenPage();
}

void TPrintDocument::EndDoc() {
  CheckPrinting();
  ClosePage();
  const TOnFailure giveUp([this] { AbortQuietly(); });
  EndDocument();
  FPage = 0;
}

void TPrintDocument::Abort() {
  CheckPrinting();
  FCanvas.SetHandle(nullptr);
  FPage = 0;
  FAborted = true;
  AbortDocument();
}

void TPrintDocument::AbortQuietly() noexcept {
  try {
    FCanvas.SetHandle(nullptr);
    FAborted = true;
    FPage = 0;
    AbortDocument();
  } catch (...) {  // NOLINT(bugprone-empty-catch): another error is on its way, or the end.
  }
}

}  // namespace vcl
