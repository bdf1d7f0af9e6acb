// TWinControl: painting, and TCustomControl.
#include "vcl/controls/controlcanvas.h"
#include "vcl/controls/private/painthold.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/brush.h"
#include "vcl/graphics/canvasbinding.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// The part of a window's painting that is the system's: the context is given back in every case,
/// or the window would be asked to paint for ever.
class TPaintContext {
 public:
  TPaintContext(HWND window, HDC given) : FWindow(window), FGiven(given) {
    FContext = given ? given : ::BeginPaint(window, &FPaint);
  }
  ~TPaintContext() {
    if (!FGiven) ::EndPaint(FWindow, &FPaint);
  }
  TPaintContext(const TPaintContext&) = delete;
  TPaintContext& operator=(const TPaintContext&) = delete;
  HDC Get() const { return FContext; }

 private:
  HWND FWindow;
  HDC FGiven;
  HDC FContext;
  PAINTSTRUCT FPaint{};
};

void MoveOrigin(HDC dc, int x, int y) {
  POINT origin;
  ::GetViewportOrgEx(dc, &origin);
  ::SetViewportOrgEx(dc, origin.x + x, origin.y + y, nullptr);
}

}  // namespace

void TWinControl::Invalidate() {
  if (!FHandle || TPaintHold::Covers(*this)) return;
  ::InvalidateRect(FHandle, nullptr, !ControlStyle().Has(csOpaque));
}

void TWinControl::Update() {
  if (FHandle) ::UpdateWindow(FHandle);
}

void TWinControl::Repaint() {
  Invalidate();
  Update();
}

HDC TWinControl::GetDeviceContext(HWND& window) {
  window = Handle();
  const HDC dc = ::GetDC(window);
  if (!dc) RaiseOutOfResources("device context");
  return dc;
}

bool TWinControl::HasGraphicChildren() const {
  // They stand before the windows in the list.
  return !FControls.empty() && !dynamic_cast<const TWinControl*>(FControls.front());
}

void TWinControl::SetCtl3D(bool ctl3D) {
  if (ctl3D == FCtl3D && !FParentCtl3D) return;
  FCtl3D = ctl3D;
  FParentCtl3D = false;
  Perform(CM_CTL3DCHANGED);
}

void TWinControl::SetParentCtl3D(bool parentCtl3D) {
  if (parentCtl3D == FParentCtl3D) return;
  FParentCtl3D = parentCtl3D;
  if (Parent() && !ControlState().Has(csReadingState)) Perform(CM_PARENTCTL3DCHANGED);
}

void TWinControl::AddSingleBorder(TCreateParams& params) {
  FSingleBorder = true;
  if (FCtl3D) {
    params.ExStyle |= WS_EX_CLIENTEDGE;
  } else {
    params.Style |= WS_BORDER;
  }
}

void TWinControl::SetDoubleBuffered(bool doubleBuffered) {
  if (doubleBuffered == FDoubleBuffered) return;
  FDoubleBuffered = doubleBuffered;
  Invalidate();
}

void TWinControl::WMPaint(TMessage& message) {
  if (FDoubleBuffered && message.WParam == 0) return PaintDoubleBuffered();
  if (ControlState().Has(csCustomPaint) || HasGraphicChildren()) return PaintHandler(message);
  DefaultHandler(message);
}

void TWinControl::PaintDoubleBuffered() {
  const TPaintContext paint(FHandle, nullptr);
  const TRect client = ClientRect();
  if (client.Empty()) return;
  const TMemoryDC memory;
  const TOwnedBitmap picture(
      ::CreateCompatibleBitmap(paint.Get(), client.Width(), client.Height()));
  CheckHandle(picture.Get(), "bitmap");
  const TSelection selection(memory.Get(), picture.Get());
  const auto dc = reinterpret_cast<WPARAM>(memory.Get());
  Perform(WM_ERASEBKGND, dc, static_cast<LPARAM>(dc));
  Perform(WM_PAINT, dc);
  ::BitBlt(paint.Get(), 0, 0, client.Width(), client.Height(), memory.Get(), 0, 0, SRCCOPY);
}

void TWinControl::WMEraseBkgnd(TMessage& message) {
  message.Result = 1;
  // A double-buffered window is erased in its bitmap, for which both parameters are the same.
  if (FDoubleBuffered && message.WParam != static_cast<WPARAM>(message.LParam)) return;
  const RECT client = ClientRect();
  ::FillRect(reinterpret_cast<HDC>(message.WParam), &client, FBrush->Handle());
}

void TWinControl::PaintHandler(TMessage& message) {
  TWatch watch(this);
  const TPaintContext paint(FHandle, reinterpret_cast<HDC>(message.WParam));
  const HDC dc = paint.Get();
  if (!HasGraphicChildren()) return PaintWindow(dc);
  {
    const TSavedDC saved(dc);
    int clipped = SIMPLEREGION;
    for (const TControl* control : FControls) {
      if (dynamic_cast<const TWinControl*>(control)) break;
      if (!control->Visible() || !control->ControlStyle().Has(csOpaque)) continue;
      const TRect r = control->BoundsRect();
      clipped = ::ExcludeClipRect(dc, r.Left, r.Top, r.Right, r.Bottom);
      if (clipped == NULLREGION) break;
    }
    if (clipped != NULLREGION) PaintWindow(dc);
  }
  if (!watch.Gone()) PaintControls(dc, nullptr);
}

void TWinControl::PaintWindow(HDC dc) {
  TMessage message{WM_PAINT, reinterpret_cast<WPARAM>(dc), 0, 0};
  DefaultHandler(message);
}

void TWinControl::PaintControls(HDC dc, TControl* first) {
  TWatch watch(this);
  bool begun = first == nullptr;
  for (std::size_t i = 0; i < FControls.size(); ++i) {
    TControl* control = FControls[i];
    if (dynamic_cast<TWinControl*>(control)) return;
    begun = begun || control == first;
    const RECT bounds = control->BoundsRect();
    const bool seen = control->Seen();
    if (!begun || !seen || !::RectVisible(dc, &bounds)) continue;
    const TSavedDC saved(dc);
    MoveOrigin(dc, control->Left(), control->Top());
    ::IntersectClipRect(dc, 0, 0, control->Width(), control->Height());
    control->Perform(WM_PAINT, reinterpret_cast<WPARAM>(dc));
    if (watch.Gone()) return;
  }
}

void TWinControl::PaintTo(HDC dc, int x, int y) {
  const TSavedDC saved(dc);
  MoveOrigin(dc, x, y);
  const TRect client = ClientRect();
  ::IntersectClipRect(dc, 0, 0, client.Width(), client.Height());
  const auto context = reinterpret_cast<WPARAM>(dc);
  Handle();
  Perform(WM_ERASEBKGND, context, static_cast<LPARAM>(context));
  Perform(WM_PAINT, context);
  for (TControl* control : FControls) {
    auto* winControl = dynamic_cast<TWinControl*>(control);
    if (winControl && winControl->Visible()) {
      winControl->PaintTo(dc, winControl->Left(), winControl->Top());
    }
  }
}

const TClass& TCustomControl::Class() {
  static const TClass info =
      Describe<TCustomControl, TWinControl>("vcl::TCustomControl", "vcl/controls/controls.h", {});
  return info;
}

TCustomControl::TCustomControl(TComponent* owner)
    : TWinControl(owner), FCanvas(std::make_unique<TControlCanvas>()) {
  FCanvas->SetControl(this);
}

TCustomControl::~TCustomControl() { AnnounceEnd(); }

TCanvas* TCustomControl::Canvas() const { return FCanvas.get(); }

void TCustomControl::WMPaint(TMessage& message) {
  IncludeState(csCustomPaint);
  const TAtEnd done([this] { ExcludeState(csCustomPaint); }, this);
  TWinControl::WMPaint(message);
}

void TCustomControl::PaintWindow(HDC dc) {
  const TCanvasBinding binding(*this, *FCanvas, dc);
  Paint();
}

}  // namespace vcl
