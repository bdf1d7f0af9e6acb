// TDesignSurface: the keyboard.
#include <algorithm>

#include "ide/designsurface.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

bool IsDown(int key) { return ::GetKeyState(key) < 0; }

struct TArrow {
  WPARAM Key;
  int X;
  int Y;
};
constexpr TArrow Arrows[] = {{VK_LEFT, -1, 0}, {VK_RIGHT, 1, 0}, {VK_UP, 0, -1}, {VK_DOWN, 0, 1}};

}  // namespace

bool TDesignSurface::KeyDown(WPARAM key) {
  switch (key) {
    case VK_ESCAPE:
      if (FMode != TMode::Idle) {
        Cancel();
      } else if (FPlacing) {
        FPlacing = nullptr;
        if (Events.PlacingEnded) Events.PlacingEnded();
      } else {
        SelectAround();
      }
      return true;
    case VK_TAB: Walk(!IsDown(VK_SHIFT)); return true;
    default: break;
  }
  if (!Arrow(key) && Events.Key) Events.Key(key);
  return true;
}

/// Ctrl moves, Shift sizes, both together move by the grid; alone the arrows select.
bool TDesignSurface::Arrow(WPARAM key) {
  const auto* arrow = std::ranges::find(Arrows, key, &TArrow::Key);
  if (arrow == std::end(Arrows)) return false;
  const bool ctrl = IsDown(VK_CONTROL);
  const bool shift = IsDown(VK_SHIFT);
  const auto components = FSelection.Components();
  if (!ctrl && !shift) {
    TComponent* next = components.empty() || components.front() == FRoot
                           ? nullptr
                           : Neighbour(*components.front(), arrow->X, arrow->Y);
    if (next) FSelection.Only(next);
    return true;
  }
  if (FLocked) return true;
  const int step = ctrl && shift ? GridStep : 1;
  BeginDrag();
  for (const TDragged& each : std::exchange(FDragged, {})) {
    TRect bounds = each.Bounds;
    const TPoint by = Reachable(each, {step * arrow->X, step * arrow->Y});
    ctrl ? bounds.Offset(by.X, by.Y) : void((bounds.Right += arrow->X, bounds.Bottom += arrow->Y));
    SetBoundsOf(*each.Component, bounds);
  }
  Refresh();
  // One step of undo, as long as the same components are moved.
  const std::string which = IntToStr(FSelection.Changes());
  if (Events.Changed) Events.Changed(Concat(ctrl ? "move by key " : "size by key ", which));
  return true;
}

/// Selects the next component in the order in which they were made.
void TDesignSurface::Walk(bool forward) {
  std::vector<TComponent*> all;
  for (int i = 0; i < FRoot->ComponentCount(); ++i) {
    TComponent* each = FRoot->Components(i);
    if (Shows(*each)) all.push_back(each);
  }
  if (all.empty()) return;
  if (!forward) std::ranges::reverse(all);
  const auto components = FSelection.Components();
  auto at = components.empty() ? all.end() : std::ranges::find(all, components.front());
  at = at == all.end() || at + 1 == all.end() ? all.begin() : at + 1;
  FSelection.Only(*at);
}

/// Selects what is around the selected component.
void TDesignSurface::SelectAround() {
  const auto components = FSelection.Components();
  if (components.empty() || components.front() == FRoot) return FSelection.Only(FRoot);
  FSelection.Only(Selectable(ParentOf(*components.front())));
}

}  // namespace ide
