// TCanvas: its device context and what is selected in it; canvases that get a context when needed.
#include "vcl/graphics/canvas.h"

#include <algorithm>
#include <vector>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

// The header that has no system's header repeats its numbers.
static_assert(cmBlackness == BLACKNESS);
static_assert(cmDstInvert == DSTINVERT);
static_assert(cmMergeCopy == MERGECOPY);
static_assert(cmMergePaint == MERGEPAINT);
static_assert(cmNotSrcCopy == NOTSRCCOPY);
static_assert(cmNotSrcErase == NOTSRCERASE);
static_assert(cmPatCopy == PATCOPY);
static_assert(cmPatInvert == PATINVERT);
static_assert(cmPatPaint == PATPAINT);
static_assert(cmSrcAnd == SRCAND);
static_assert(cmSrcCopy == SRCCOPY);
static_assert(cmSrcErase == SRCERASE);
static_assert(cmSrcInvert == SRCINVERT);
static_assert(cmSrcPaint == SRCPAINT);
static_assert(cmWhiteness == WHITENESS);

// ---- The device context and what is selected in it ----

TCanvas::TCanvas() = default;

TCanvas::~TCanvas() {
  if (FHandle) DeselectAll();
}

const TClass& TCanvas::Class() {
  static const TClass info =
      Describe<TCanvas, TPersistent>("vcl::TCanvas", "vcl/graphics/graphics.h", {});
  return info;
}

HDC TCanvas::Handle() { return Required(needAll); }

void TCanvas::SetHandle(HDC dc) {
  if (dc == FHandle) return;
  if (FHandle) DeselectAll();
  FHandle = dc;
}

HDC TCanvas::Required(unsigned needs) {
  if (!FHandle) CreateHandle();
  if (!FHandle) throw EInvalidOperation("The canvas has no device context to draw on");
  if ((needs & needFont) && Select(FUsedFont, FFont)) {
    ::SetTextColor(FHandle, ColorToRGB(FFont.Color()));
  }
  // Dashed pens draw their gaps in the background of the brush, so a pen needs the brush first.
  if ((needs & (needBrush | needPen)) && Select(FUsedBrush, FBrush))
    FBrush.ApplyBackground(FHandle);
  if ((needs & needPen) && Select(FUsedPen, FPen)) {
    static_assert(R2_BLACK == 1 && R2_WHITE == 16);
    static constexpr int modes[] = {R2_BLACK,       R2_WHITE,      R2_NOP,         R2_NOT,
                                    R2_COPYPEN,     R2_NOTCOPYPEN, R2_MERGEPENNOT, R2_MASKPENNOT,
                                    R2_MERGENOTPEN, R2_MASKNOTPEN, R2_MERGEPEN,    R2_NOTMERGEPEN,
                                    R2_MASKPEN,     R2_NOTMASKPEN, R2_XORPEN,      R2_NOTXORPEN};
    ::SetROP2(FHandle, modes[FPen.Mode()]);
  }
  return FHandle;
}

/// True when the object was not selected as it is now.
template <class H, class T>
bool TCanvas::Select(TUsed<H>& used, const T& object) {
  if (used.Share && used.Version == object.Version()) return false;
  std::shared_ptr<const H> share = object.Share();
  const HGDIOBJ former =
      CheckHandle(::SelectObject(FHandle, share->Get()), "to select an object for drawing");
  if (!used.Share) used.Former = former;
  used.Share = std::move(share);
  used.Version = object.Version();
  return true;
}

template <class H>
void TCanvas::Deselect(TUsed<H>& used) {
  if (used.Share) ::SelectObject(FHandle, used.Former);
  used = {};
}

void TCanvas::DeselectAll() {
  Deselect(FUsedFont);
  Deselect(FUsedPen);
  Deselect(FUsedBrush);
}

void TCanvas::Changing() { OnChanging(this); }
void TCanvas::Changed() { OnChange(this); }

// ---- Canvases that get their context themselves ----

namespace {

/// The canvases that hold a context of their own.
std::vector<TOnDemandCanvas*>& Holders() {
  static std::vector<TOnDemandCanvas*> holders;
  return holders;
}

}  // namespace

TOnDemandCanvas::~TOnDemandCanvas() { std::erase(Holders(), this); }

void TOnDemandCanvas::SetHandle(HDC dc) {
  if (dc && dc == FOwned) return;
  FreeHandle();
  TCanvas::SetHandle(dc);
}

void TOnDemandCanvas::CreateHandle() {
  const HDC dc = AcquireContext();
  Holders().push_back(this);
  FOwned = dc;
  TCanvas::SetHandle(dc);
}

void TOnDemandCanvas::FreeHandle() {
  if (!FOwned) return;
  TCanvas::SetHandle(nullptr);
  std::erase(Holders(), this);
  ReleaseContext(std::exchange(FOwned, nullptr));
}

void FreeDeviceContexts() {
  while (!Holders().empty()) Holders().back()->FreeHandle();
}

}  // namespace vcl
