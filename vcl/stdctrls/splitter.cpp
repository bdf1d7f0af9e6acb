// TSplitter: painting, and being moved with the mouse.
#include "vcl/stdctrls/splitter.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/panel.h"

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

int TSplitter::SizeOf(const TControl& control) const {
  return Across() ? control.Width() : control.Height();
}

TControl* TSplitter::Pane() const {
  TPoint beside;
  switch (Align()) {
    case alLeft: beside = {Left() - 1, Top() + Height() / 2}; break;
    case alRight: beside = {Left() + Width(), Top() + Height() / 2}; break;
    case alTop: beside = {Left() + Width() / 2, Top() - 1}; break;
    case alBottom: beside = {Left() + Width() / 2, Top() + Height()}; break;
    case alNone:
    case alClient:
    default: return nullptr;
  }
  for (int i = Parent() ? Parent()->ControlCount() - 1 : -1; i >= 0; --i) {
    TControl* each = Parent()->Controls(i);
    if (each == this || !each->Visible() || each->Align() != Align()) continue;
    // One that has vanished still lies beside the splitter.
    TRect bounds = each->BoundsRect();
    bounds.Inflate(bounds.Width() == 0, bounds.Height() == 0);
    if (bounds.Contains(beside)) return each;
  }
  return nullptr;
}

/// As far as the panes aligned along this way leave the least size to the others.
int TSplitter::MostSize() const {
  int room = Across() ? Parent()->ClientWidth() : Parent()->ClientHeight();
  for (int i = 0; i < Parent()->ControlCount(); ++i) {
    const TControl* each = Parent()->Controls(i);
    const TAlign align = each->Align();
    const bool along =
        Across() ? align == alLeft || align == alRight : align == alTop || align == alBottom;
    if (each != FPane && each->Visible() && along) room -= SizeOf(*each);
  }
  return std::max(room - FMinSize, FMinSize);
}

int TSplitter::SizeAt(TPoint mouse) const {
  const int way = Across() ? mouse.X - FStart.X : mouse.Y - FStart.Y;
  const bool near = Align() == alLeft || Align() == alTop;
  return std::clamp(FOldSize + (near ? way : -way), FMinSize, MostSize());
}

bool TSplitter::AskSize(int& size) {
  if (FAutoSnap && size <= FMinSize) size = 0;
  bool accept = true;
  const TWatch watch(this);
  OnCanResize(this, size, accept);
  size = std::max(size, 0);
  return accept && !watch.Gone() && FPane;
}

void TSplitter::SizePane(int size) {
  TRect bounds = FPane->BoundsRect();
  switch (Align()) {
    case alLeft: bounds.Right = bounds.Left + size; break;
    case alRight: bounds.Left = bounds.Right - size; break;
    case alTop: bounds.Bottom = bounds.Top + size; break;
    case alBottom: bounds.Top = bounds.Bottom - size; break;
    case alNone:
    case alClient:
    default: return;
  }
  FPane->SetBounds(bounds.Left, bounds.Top, bounds.Width(), bounds.Height());
}

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

/// Inverts the place that the splitter would come to, over all that stands in the parent.
void TSplitter::ToggleLine() {
  if (FResizeStyle != rsLine && FResizeStyle != rsPattern) return;
  if (!Parent() || !Parent()->HandleAllocated()) return;
  FLineShown = !FLineShown;
  const int way =
      (Align() == alLeft || Align() == alTop) ? FNewSize - FOldSize : FOldSize - FNewSize;
  TRect line = BoundsRect();
  Across() ? line.Offset(way, 0) : line.Offset(0, way);
  static constexpr WORD points[] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
  const TOwnedBitmap pattern(::CreateBitmap(8, 8, 1, 1, points));
  const TOwnedBrush dotted(::CreatePatternBrush(pattern.Get()));
  const HWND window = Parent()->Handle();
  const HDC dc = ::GetDCEx(window, nullptr, DCX_CACHE | DCX_CLIPSIBLINGS | DCX_LOCKWINDOWUPDATE);
  const bool plain = FResizeStyle == rsLine;
  const auto former = ::SelectObject(dc, plain ? ::GetStockObject(WHITE_BRUSH) : dotted.Get());
  ::PatBlt(dc, line.Left, line.Top, line.Width(), line.Height(), PATINVERT);
  ::SelectObject(dc, former);
  ::ReleaseDC(window, dc);
}

}  // namespace vcl
