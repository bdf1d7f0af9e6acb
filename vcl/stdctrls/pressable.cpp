// TPressable: pressing and releasing.
#include "vcl/stdctrls/pressable.h"

#include "vcl/controls/accelerators.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/win32.h"

namespace vcl {

TPressable::TPressable(TComponent* owner) : TGraphicControl(owner) {}
TPressable::~TPressable() = default;

void TPressable::SetPressed(bool pressed) {
  if (pressed == FPressed) return;
  FPressed = pressed;
  AccessibleChanged(acState);
  Repaint();
}

void TPressable::SetHot(bool hot) {
  if (hot == FHot) return;
  FHot = hot;
  HotChanged();
}

void TPressable::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TGraphicControl::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != mbLeft || !Enabled() || !TakesPress({x, y})) return;
  FTracking = true;
  SetPressed(true);
}

void TPressable::MouseMove(TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TGraphicControl::MouseMove(shift, x, y);
  if (!watch.Gone() && FTracking) SetPressed(ClientRect().Contains({x, y}));
}

void TPressable::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TGraphicControl::MouseUp(button, shift, x, y);
  if (watch.Gone() || button != mbLeft || !FTracking) return;
  FTracking = false;
  SetPressed(false);
  if (!watch.Gone() && ClientRect().Contains({x, y})) Released();
}

bool TPressable::IsAccelerated(const TMessage& message) const {
  return message.Msg == CM_DIALOGCHAR && IsAccel(message.WParam, Caption()) && Enabled() &&
         Visible() && Parent() && Parent()->Showing();
}

void TPressable::Dispatch(TMessage& message) {
  const TWatch watch(this);
  TGraphicControl::Dispatch(message);
  if (watch.Gone()) return;
  switch (message.Msg) {
    case CM_MOUSEENTER:
    case CM_MOUSELEAVE: return SetHot(message.Msg == CM_MOUSEENTER);
    case CM_TEXTCHANGED: return Invalidate();
    case CM_ENABLEDCHANGED:
    case WM_CANCELMODE: FTracking = false; return SetPressed(false);
    default: return;
  }
}

}  // namespace vcl
