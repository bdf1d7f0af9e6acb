// TQELCustomPartEdit: where the parts are, their looks, and pressing them.
#include "qel/controls/Qelpartedit.h"

#include <algorithm>

#include "vcl/controls/windowmessages.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/canvasbinding.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TPoint;
using vcl::TRect;
using vcl::TWatch;

const vcl::TClass& TQELCustomPartEdit::Class() {
  using T = TQELCustomPartEdit;
  static const vcl::TClass info =
      vcl::Describe<T, TCustomEdit>("qel::TQELCustomPartEdit", "qel/controls/Qelpartedit.h",
                                    {vcl::ReadOnly<&T::About>("About").Unpublished()});
  return info;
}

TQELCustomPartEdit::TQELCustomPartEdit(vcl::TComponent* owner)
    : TCustomEdit(owner), FAbout(std::make_unique<TQELAbout>(this)) {}

TQELCustomPartEdit::~TQELCustomPartEdit() { AnnounceEnd(); }

// Places.

TRect TQELCustomPartEdit::PartRect(int number) const {
  TRect inside = ClientRect();
  for (const TQELEditPart& part : Parts()) {
    TRect rect = inside;
    int& edge = part.Left ? inside.Left : inside.Right;
    edge += part.Left ? part.Width : -part.Width;
    (part.Left ? rect.Right : rect.Left) = edge;
    if (part.Number == number) return rect;
  }
  return {};
}

TRect TQELCustomPartEdit::TextRect() const {
  TRect inside = ClientRect();
  for (const TQELEditPart& part : Parts()) {
    if (part.Left) inside.Left += part.Width;
    if (!part.Left) inside.Right -= part.Width;
  }
  return inside;
}

void TQELCustomPartEdit::SetMargins() {
  if (!HandleAllocated()) return;
  const TRect text = TextRect();
  const int least = ScaledPixels(1);
  vcl::Send(*this, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN,
            MAKELPARAM(text.Left + least, ClientWidth() - text.Right + least));
}

void TQELCustomPartEdit::PartsChanged() {
  SetMargins();
  Invalidate();
}

void TQELCustomPartEdit::CreateWnd() {
  const TWatch watch(this);
  TCustomEdit::CreateWnd();
  if (!watch.Gone()) SetMargins();
}

// Painting.

TQELPartLook TQELCustomPartEdit::LookOf(const TQELEditPart& part) const {
  if (!Enabled() || (part.Button && !PartEnabled(part.Number))) return TQELPartLook::Disabled;
  const bool over = FHotPart == part.Number;
  if (FPressed == part.Number) return over ? TQELPartLook::Pressed : TQELPartLook::Hot;
  return over && !FPressed ? TQELPartLook::Hot : TQELPartLook::Normal;
}

void TQELCustomPartEdit::PaintOver(vcl::TCanvas& canvas) {
  for (const TQELEditPart& part : Parts()) {
    const TRect rect = PartRect(part.Number);
    canvas.Brush()->SetColor(Color());
    canvas.FillRect(rect);
    DrawPart(canvas, part.Number, rect, LookOf(part));
  }
}

void TQELCustomPartEdit::Paint(const vcl::TMessage& message) {
  std::optional<vcl::TWindowDC> own;
  auto dc = reinterpret_cast<HDC>(message.WParam);
  if (!dc) dc = own.emplace(Handle()).Get();
  vcl::TCanvas canvas;
  const vcl::TCanvasBinding binding(*this, canvas, dc);
  canvas.SetFont(Font());
  PaintOver(canvas);
}

// The mouse.

std::optional<int> TQELCustomPartEdit::ButtonAt(TPoint point) const {
  for (const TQELEditPart& part : Parts()) {
    const bool pressable = part.Button && PartEnabled(part.Number);
    if (pressable && PartRect(part.Number).Contains(point)) return part.Number;
  }
  return std::nullopt;
}

void TQELCustomPartEdit::SetHotPart(std::optional<int> number) {
  if (number == FHotPart) return;
  FHotPart = number;
  Invalidate();
}

void TQELCustomPartEdit::Release(TPoint point) {
  const auto pressed = std::exchange(FPressed, std::nullopt);
  const TWatch watch(this);
  SetMouseCapture(false);
  if (watch.Gone()) return;
  Invalidate();
  if (pressed && ButtonAt(point) == pressed) PressPart(*pressed);
}

/// The mouse on a button; true when the text gets nothing of it.
bool TQELCustomPartEdit::TakeMouse(const vcl::TMessage& message) {
  const TPoint point{message.XPos(), message.YPos()};
  switch (message.Msg) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
      const auto button = ButtonAt(point);
      if (!button) return false;
      const TWatch watch(this);
      if (!Focused() && CanFocus()) SetFocus();
      if (watch.Gone()) return true;
      FPressed = FHotPart = button;
      SetMouseCapture(true);
      Invalidate();
      return true;
    }
    case WM_MOUSEMOVE: SetHotPart(ButtonAt(point)); return FPressed.has_value();
    case WM_LBUTTONUP:
      if (!FPressed) return false;
      Release(point);
      return true;
    case WM_SETCURSOR: {
      POINT at{};
      ::GetCursorPos(&at);
      if (LOWORD(message.LParam) != HTCLIENT || !ButtonAt(ScreenToClient(at))) return false;
      ::SetCursor(::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW)));
      return true;
    }
    default: return false;
  }
}

void TQELCustomPartEdit::WndProc(vcl::TMessage& message) {
  if (!Designing() && TakeMouse(message)) {
    message.Result = message.Msg == WM_SETCURSOR ? 1 : 0;
    return;
  }
  TCustomEdit::WndProc(message);
}

void TQELCustomPartEdit::Dispatch(vcl::TMessage& message) {
  const TWatch watch(this);
  TCustomEdit::Dispatch(message);
  if (watch.Gone()) return;
  switch (message.Msg) {
    case WM_PAINT:
    case WM_PRINTCLIENT: return Paint(message);
    case WM_SIZE:
    case WM_SETFONT: return SetMargins();
    case WM_CANCELMODE:
    case WM_CAPTURECHANGED: FPressed.reset(); return Invalidate();
    case vcl::CM_ENABLEDCHANGED: return Invalidate();
    case vcl::CM_MOUSEENTER:
    case vcl::CM_MOUSELEAVE:
      FHot = message.Msg == vcl::CM_MOUSEENTER;
      SetHotPart(std::nullopt);
      return HotChanged();
    default: return;
  }
}

// Screen readers.

std::vector<vcl::TAccessiblePart> TQELCustomPartEdit::AccessibleParts() {
  std::vector<vcl::TAccessiblePart> told;
  for (const TQELEditPart& part : Parts()) {
    if (!part.Button) continue;
    vcl::TAccessiblePart& button = told.emplace_back();
    button.Role = vcl::arPushButton;
    button.Name = part.Name;
    button.DefaultAction = "Press";
    if (!PartEnabled(part.Number)) button.State.Include(vcl::asDisabled);
    button.Bounds = PartRect(part.Number);
  }
  return told;
}

void TQELCustomPartEdit::DoAccessiblePart(const vcl::TAccessiblePath& path) {
  int index = path.empty() ? -1 : path.front();
  for (const TQELEditPart& part : Parts()) {
    if (!part.Button || index-- != 0) continue;
    if (PartEnabled(part.Number)) PressPart(part.Number);
    return;
  }
}

}  // namespace qel
