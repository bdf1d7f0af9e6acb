// TDesignSurface: selecting, moving, sizing and placing with the mouse.
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "ide/designsurface.h"

namespace ide {

using namespace vcl;

namespace {

bool IsDown(int key) { return ::GetKeyState(key) < 0; }

/// The nearest multiple of the grid's step.
int OnGrid(int value) {
  const int shifted = value + GridStep / 2;
  return (shifted >= 0 ? shifted : shifted - GridStep + 1) / GridStep * GridStep;
}

/// How far what the component stands in is scrolled; icons don't move with it.
TPoint ScrolledAround(const TComponent& component) {
  const auto* control = dynamic_cast<const TControl*>(&component);
  const auto* around =
      control ? dynamic_cast<const TScrollingWinControl*>(control->Parent()) : nullptr;
  if (!around) return {};
  return {around->HorzScrollBar()->Position(), around->VertScrollBar()->Position()};
}

}  // namespace

/// Alt leaves the grid aside.
int TDesignSurface::Snapped(int value) const {
  return FSnap && !IsDown(VK_MENU) ? OnGrid(value) : value;
}

void TDesignSurface::Press(TComponent& component, TWinControl& container, TPoint screen) {
  ::SetFocus(FForm->Handle());
  FStart = screen;
  FMoved = false;
  if (FPlacing) return BeginBand(TMode::Placing, container);
  if (&component == FRoot || IsDown(VK_CONTROL)) return BeginBand(TMode::Banding, container);
  if (IsDown(VK_SHIFT)) return FSelection.Toggle(&component);
  if (!FSelection.Contains(&component)) FSelection.Only(&component);
  FMode = TMode::Pressed;
  ::SetCapture(FForm->Handle());
}

/// The form gets the keyboard, so that the menu's commands are about it and not about a text.
void TDesignSurface::ShowMenu(TComponent& component, TPoint screen) {
  ::SetFocus(FForm->Handle());
  if (!FSelection.Contains(&component)) FSelection.Only(&component);
  if (Events.ContextMenu) Events.ContextMenu(screen);
}

void TDesignSurface::BeginBand(TMode mode, TWinControl& container) {
  FMode = mode;
  FBandIn = &container;
  ::SetCapture(FForm->Handle());
}

void TDesignSurface::BeginSizing(TGrab grab, TPoint screen) {
  if (FLocked) return;
  ::SetFocus(FForm->Handle());
  FStart = screen;
  FMoved = false;
  FGrab = grab;
  BeginDrag();
  FMode = TMode::Sizing;
  ::SetCapture(FForm->Handle());
}

/// Notes where the selected components are; those inside others move with them.
void TDesignSurface::BeginDrag() {
  FDragged.clear();
  for (TComponent* each : FSelection.Components()) {
    if (each == FRoot) continue;
    bool inside = false;
    for (TWinControl* around = ParentOf(*each); around; around = around->Parent()) {
      inside = inside || (around != FRoot && FSelection.Contains(around));
    }
    if (!inside) FDragged.push_back({each, BoundsOf(*each), ScrolledAround(*each)});
  }
}

/// Gives a dragged component a place that is meant as things stood when it was pressed: what it
/// stands in may scroll as it moves.
void TDesignSurface::Put(const TDragged& dragged, TRect bounds) {
  const TPoint scrolled = dragged.Scrolled - ScrolledAround(*dragged.Component);
  bounds.Offset(scrolled.X, scrolled.Y);
  FMoved = FMoved || bounds != BoundsOf(*dragged.Component);
  SetBoundsOf(*dragged.Component, bounds);
}

void TDesignSurface::MouseMove(TPoint screen) {
  const TPoint by = screen - FStart;
  const bool begun = std::abs(by.X) >= ::GetSystemMetrics(SM_CXDRAG) ||
                     std::abs(by.Y) >= ::GetSystemMetrics(SM_CYDRAG);
  switch (FMode) {
    case TMode::Idle: return;
    case TMode::Pressed:
      if (!begun || FLocked) return;
      BeginDrag();
      FMode = TMode::Moving;
      return Move(by);
    case TMode::Moving: return Move(by);
    case TMode::Sizing: return Size(by);
    case TMode::Placing:
    case TMode::Banding: ShowBand(Band(screen));
  }
}

/// The way, shortened so far that a piece of what is moved can still be seen and pressed.
TPoint TDesignSurface::Reachable(const TDragged& dragged, TPoint by) const {
  const TWinControl* around = ParentOf(*dragged.Component);
  const TRect inside = (around ? *around : *FInside).ClientRect();
  const auto within = [](int way, int low, int high, int limit) {
    constexpr int piece = GridStep;
    return std::max(std::min(way, limit - piece - low), piece - high);
  };
  const TRect& bounds = dragged.Bounds;
  return {within(by.X, bounds.Left, bounds.Right, inside.Right),
          within(by.Y, bounds.Top, bounds.Bottom, inside.Bottom)};
}

void TDesignSurface::Move(TPoint by) {
  if (FDragged.empty()) return;
  // The first one stands on the grid; the others keep their distance from it.
  const TRect first = FDragged.front().Bounds;
  by = {Snapped(first.Left + by.X) - first.Left, Snapped(first.Top + by.Y) - first.Top};
  for (auto each = FDragged.rbegin(); each != FDragged.rend(); ++each) by = Reachable(*each, by);
  for (const TDragged& each : FDragged) {
    TRect bounds = each.Bounds;
    bounds.Offset(by.X, by.Y);
    Put(each, bounds);
  }
  Refresh();
}

void TDesignSurface::Size(TPoint by) {
  for (const TDragged& each : FDragged) {
    TRect bounds = each.Bounds;
    if (FGrab.X < 0) bounds.Left = std::min(Snapped(bounds.Left + by.X), bounds.Right);
    if (FGrab.X > 0) bounds.Right = std::max(Snapped(bounds.Right + by.X), bounds.Left);
    if (FGrab.Y < 0) bounds.Top = std::min(Snapped(bounds.Top + by.Y), bounds.Bottom);
    if (FGrab.Y > 0) bounds.Bottom = std::max(Snapped(bounds.Bottom + by.Y), bounds.Top);
    Put(each, bounds);
  }
  Refresh();
}

/// The rectangle from the press to the position, inside the container.
TRect TDesignSurface::Band(TPoint screen) const {
  const TPoint a = FBandIn->ScreenToClient(FStart);
  const TPoint b = FBandIn->ScreenToClient(screen);
  return {std::min(a.X, b.X), std::min(a.Y, b.Y), std::max(a.X, b.X), std::max(a.Y, b.Y)};
}

void TDesignSurface::MouseUp(TPoint screen) {
  const TMode mode = FMode;
  if (mode == TMode::Idle) return;
  const bool moved = FMoved;
  const bool banding = mode == TMode::Banding || mode == TMode::Placing;
  const TRect band = banding ? Band(screen) : TRect();
  EndMode();
  if (banding) EndBand(band);
  FBandIn = nullptr;
  if (moved && Events.Changed) Events.Changed({});
}

/// Selects what the rectangle touches, or has a component placed there.
void TDesignSurface::EndBand(const TRect& band) {
  constexpr int click = 4;  // A smaller rectangle is a click.
  const bool clicked = band.Width() < click && band.Height() < click;
  if (const TClass* placing = std::exchange(FPlacing, nullptr)) {
    const TRect place(Snapped(band.Left), Snapped(band.Top),
                      clicked ? Snapped(band.Left) : Snapped(band.Right),
                      clicked ? Snapped(band.Top) : Snapped(band.Bottom));
    if (Events.Drop) Events.Drop(*placing, *FBandIn, place);
    return;
  }
  std::vector<TPersistent*> touched;
  if (!clicked) {
    for (TComponent* each : Inside(*FBandIn)) {
      if (!Intersection(BoundsOf(*each), band).Empty()) touched.push_back(each);
    }
  }
  if (touched.empty()) touched.push_back(Selectable(FBandIn));
  FSelection.Set(touched);
}

void TDesignSurface::EndMode() {
  FMode = TMode::Idle;
  FBandSides.clear();
  FDragged.clear();
  if (FRoot && ::GetCapture() == FForm->Handle()) ::ReleaseCapture();
}

/// Takes everything back to where it was before the mouse was pressed.
void TDesignSurface::Cancel() {
  if (FMode == TMode::Idle) return;
  for (const TDragged& each : FDragged) Put(each, each.Bounds);
  EndMode();
  FBandIn = nullptr;
  if (FRoot) Refresh();
}

}  // namespace ide
