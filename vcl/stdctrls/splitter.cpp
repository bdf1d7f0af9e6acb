// TSplitter: painting, and being moved with the mouse.
#include "vcl/stdctrls/splitter.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/panel.h"
#include "vcl/stdctrls/panes.h"

namespace vcl {

const TClass& TSplitter::Class() {
  using T = TSplitter;
  static const TClass info = Describe<T, TGraphicControl>(
      "vcl::TSplitter", "vcl/stdctrls/extctrls.h",
      {
          Inherit("Align").Default(alLeft),
          Property<&T::AutoSnap, &T::SetAutoSnap>("AutoSnap").Default(true),
          Property<&T::Beveled, &T::SetBeveled>("Beveled").Default(false),
          Inherit("Color"),
          Inherit("Cursor").Default(crHSplit),
          Inherit("Enabled"),
          Property<&T::MinSize, &T::SetMinSize>("MinSize").Default(30),
          Inherit("ParentColor"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::ResizeStyle, &T::SetResizeStyle>("ResizeStyle").Default(rsPattern),
          Inherit("ShowHint"),
          Inherit("Visible"),
          Event<&T::OnCanResize>("OnCanResize"),
          Inherit("OnClick"),
          Inherit("OnConstrainedResize"),
          Inherit("OnDblClick"),
          Inherit(MouseEvents),
          Event<&T::OnMoved>("OnMoved"),
      });
  return info;
}

TSplitter::TSplitter(TComponent* owner) : TGraphicControl(owner) {
  SetControlStyle(ControlStyle() + TControlStyle{csOpaque});
  SetBounds(0, 0, 3, 100);
  SetAlign(alLeft);
  SetCursor(crHSplit);
}

TSplitter::~TSplitter() {
  AnnounceEnd();
  HideLine();
}

void TSplitter::SetBeveled(bool beveled) {
  if (beveled == FBeveled) return;
  FBeveled = beveled;
  Invalidate();
}

void TSplitter::SetMinSize(int minSize) {
  if (minSize < 1) {
    throw EArgumentOutOfRangeException(
        Concat("The least size of a pane cannot be ", std::to_string(minSize)));
  }
  FMinSize = minSize;
}

void TSplitter::Paint() {
  TRect rect = ClientRect();
  if (FBeveled) Frame3D(Canvas(), rect, clBtnHighlight, clBtnShadow, 1);
  Canvas()->Brush()->SetColor(Color());
  Canvas()->FillRect(rect);
  if (!Designing()) return;
  Canvas()->Pen()->SetStyle(psDot);
  Canvas()->Pen()->SetColor(clBtnShadow);
  Canvas()->Brush()->SetStyle(bsClear);
  Canvas()->Rectangle(ClientRect());
}

// The panes.

int TSplitter::SizeOf(const TControl& control) const { return PaneSize(*this, control); }

TControl* TSplitter::Pane() const { return PaneBeside(*this); }

int TSplitter::MostSize() const { return MostPaneSize(*this, *FPane, FMinSize); }

int TSplitter::SizeAt(TPoint mouse) const {
  const TPoint way{mouse.X - FStart.X, mouse.Y - FStart.Y};
  return std::clamp(PaneSizeAfter(*this, FOldSize, way), FMinSize, MostSize());
}

bool TSplitter::AskSize(int& size) {
  if (FAutoSnap && size <= FMinSize) size = 0;
  bool accept = true;
  const TWatch watch(this);
  OnCanResize(this, size, accept);
  size = std::max(size, 0);
  return accept && !watch.Gone() && FPane;
}

void TSplitter::SizePane(int size) { vcl::SizePane(*this, *FPane, size); }

// Moving.

void TSplitter::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TGraphicControl::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != mbLeft || FPane || !Parent()) return;
  FPane = Pane();
  if (!FPane) return;
  FPane->FreeNotification(this);
  FStart = InParent(x, y);
  FOldSize = FNewSize = SizeOf(*FPane);
  ToggleLine();
}

void TSplitter::MouseMove(TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TGraphicControl::MouseMove(shift, x, y);
  if (watch.Gone() || !FPane) return;
  if (!MouseCapture()) return Finish(false);
  int size = SizeAt(InParent(x, y));
  if (size == FNewSize || !AskSize(size) || size == FNewSize) return;
  HideLine();
  FNewSize = size;
  if (FResizeStyle == rsUpdate) return SizePane(size);
  ToggleLine();
}

void TSplitter::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TGraphicControl::MouseUp(button, shift, x, y);
  if (!watch.Gone() && button == mbLeft && FPane) Finish(true);
}

/// Takes what is seen of the move away and gives the pane its new or its former size.
void TSplitter::Finish(bool apply) {
  HideLine();
  const TWatch watch(this);
  const bool moved = FNewSize != FOldSize;
  const bool sized = FResizeStyle == rsUpdate;
  if (moved && apply != sized) SizePane(apply ? FNewSize : FOldSize);
  if (watch.Gone()) return;
  FPane = nullptr;
  if (MouseCapture()) SetMouseCapture(false);
  if (moved && apply) OnMoved(this);
}

void TSplitter::Dispatch(TMessage& message) {
  if (message.Msg == CM_CAPTUREKEY && FPane && message.WParam == VK_ESCAPE) {
    message.Result = 1;
    return Finish(false);
  }
  const TWatch watch(this);
  TGraphicControl::Dispatch(message);
  if (!watch.Gone() && message.Msg == WM_CANCELMODE && FPane) Finish(false);
}

void TSplitter::Notification(TComponent* component, TOperation operation) {
  TGraphicControl::Notification(component, operation);
  if (operation != opRemove || component != FPane) return;
  HideLine();
  FPane = nullptr;
}

// The line.

void TSplitter::HideLine() {
  if (FLineShown) ToggleLine();
}

void TSplitter::ToggleLine() {
  if (FResizeStyle != rsLine && FResizeStyle != rsPattern) return;
  if (!Parent() || !Parent()->HandleAllocated()) return;
  FLineShown = !FLineShown;
  InvertStrip(*this, FNewSize - FOldSize, FResizeStyle == rsPattern);
}

}  // namespace vcl
