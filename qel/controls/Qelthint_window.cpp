// TQELNewHint as a window: how it is made, shown and taken away.
#include "qel/controls/Qelthint.h"
#include "vcl/forms/application.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

const vcl::TClass& TQELNewHint::Class() {
  static const vcl::TClass info =
      vcl::Describe<TQELNewHint, THintWindow>("qel::TQELNewHint", "qel/controls/Qelthint.h", {});
  return info;
}

TQELNewHint::TQELNewHint(vcl::TComponent* owner) : THintWindow(owner) {
  SetControlStyle(ControlStyle() - vcl::TControlStyle{vcl::csOpaque});
  if (Designing()) return;
  Canvas()->Brush()->SetStyle(vcl::bsClear);
  Canvas()->Brush()->SetColor(vcl::clBackground);
  vcl::Application()->SetHintColor(vcl::clBackground);
  // A program that switches its hints off and on gets a window that measures as the former one.
  if (const TQELHint* hint = FindHintQEL()) SetTextFont(hint->HintFont());
}

TQELNewHint::~TQELNewHint() { AnnounceEnd(); }

void TQELNewHint::CreateParams(vcl::TCreateParams& params) {
  THintWindow::CreateParams(params);
  params.Style &= ~static_cast<DWORD>(WS_BORDER);
  params.ClassStyle |= CS_SAVEBITS;
}

TQELHint* TQELNewHint::FindHintQEL() const {
  const vcl::TCustomForm* const main = vcl::Application()->MainForm();
  if (Designing() || !main) return nullptr;
  for (int i = 0; i < main->ComponentCount(); ++i) {
    if (auto* hint = dynamic_cast<TQELHint*>(main->Components(i))) return hint;
  }
  return nullptr;
}

/// Keeps the main form's TQELHint until it goes; false when there is none.
bool TQELNewHint::TakeHint() {
  FHint = FindHintQEL();
  if (FHint) FHint->FreeNotification(this);
  return FHint != nullptr;
}

void TQELNewHint::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  THintWindow::Notification(component, operation);
  if (operation == vcl::opRemove && component == FHint) FHint = nullptr;
}

void TQELNewHint::ActivateHint(vcl::TRect rect, const std::string& text) {
  ReleaseHandle();  // A hint that is still up would be in the snapshot.
  if (!TakeHint()) return THintWindow::ActivateHint(rect, text);
  SetCaption(text);
  const auto placement = SelectProperHintDirection(rect);
  if (!placement) return;  // A handler has freed this window, or the TQELHint.
  FDirection = placement->Direction;
  const vcl::TRect& bounds = placement->Bounds;
  SetBounds(bounds.Left, bounds.Top, bounds.Width(), bounds.Height());
  TakeSnapshot();
  ::SetWindowPos(Handle(), HWND_TOPMOST, bounds.Left, bounds.Top, 0, 0,
                 SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  ShowSnapshot();
}

/// Copies what the screen shows where the window is going to stand, while it is hidden.
void TQELNewHint::TakeSnapshot() {
  FSnapshot = std::make_unique<vcl::TBitmap>();
  FSnapshot->SetPixelFormat(vcl::pf32bit);
  FSnapshot->SetSize(Width(), Height());
  const vcl::TOwnedDC screen(
      vcl::CheckHandle(::CreateDCA("DISPLAY", nullptr, nullptr, nullptr), "the screen's context"));
  const vcl::TPoint origin = ClientOrigin();
  // A hint to the left of a mouse at the right edge leaves the screen by some pixels, and not every
  // system copies the rest of a rectangle that does.
  const vcl::TRect all =
      vcl::Bounds(::GetSystemMetrics(SM_XVIRTUALSCREEN), ::GetSystemMetrics(SM_YVIRTUALSCREEN),
                  ::GetSystemMetrics(SM_CXVIRTUALSCREEN), ::GetSystemMetrics(SM_CYVIRTUALSCREEN));
  const vcl::TRect seen =
      vcl::Intersection(vcl::Bounds(origin.X, origin.Y, Width(), Height()), all);
  ::BitBlt(FSnapshot->Canvas()->Handle(), seen.Left - origin.X, seen.Top - origin.Y, seen.Width(),
           seen.Height(), screen.Get(), seen.Left, seen.Top, SRCCOPY);
}

/// Lets the window look as if it were not there, until it is painted.
void TQELNewHint::ShowSnapshot() {
  const vcl::TWindowDC window(Handle());
  ::BitBlt(window.Get(), 0, 0, Width(), Height(), FSnapshot->Canvas()->Handle(), 0, 0, SRCCOPY);
}

void TQELNewHint::WMEraseBkgnd(vcl::TMessage& message) {
  // Erased, the window would be seen in the background colour for a moment.
  if (FSnapshot || FPicture) {
    message.Result = 1;
  } else {
    THintWindow::WMEraseBkgnd(message);
  }
}

void TQELNewHint::ReleaseHandle() {
  THintWindow::ReleaseHandle();
  FSnapshot.reset();
  FPicture.reset();
}

}  // namespace qel
