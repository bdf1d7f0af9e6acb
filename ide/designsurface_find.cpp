// TDesignSurface: which component is where.
#include <algorithm>
#include <cstdlib>

#include "ide/designsurface.h"

namespace ide {

using namespace vcl;

bool TDesignSurface::IsIcon(const TComponent& component) {
  return !dynamic_cast<const TControl*>(&component) && !component.HasParent();
}

bool TDesignSurface::Shows(const TComponent& component) const {
  return dynamic_cast<const TControl*>(&component) || (FShowIcons && IsIcon(component));
}

TRect TDesignSurface::BoundsOf(const TComponent& component) {
  if (const auto* control = dynamic_cast<const TControl*>(&component)) return control->BoundsRect();
  return Bounds(component.DesignLeft(), component.DesignTop(), PictureSize, PictureSize);
}

void TDesignSurface::SetBoundsOf(TComponent& component, const TRect& bounds) {
  if (auto* control = dynamic_cast<TControl*>(&component)) {
    control->SetBounds(bounds.Left, bounds.Top, bounds.Width(), bounds.Height());
  } else {
    component.SetDesignPosition(bounds.Left, bounds.Top);
  }
}

/// True for a component of the form itself, and for one of a frame on it.
bool TDesignSurface::IsPart(const TComponent& component) const {
  const TComponent* owner = component.Owner();
  return owner && (owner == FRoot || (owner->Inline() && owner->Owner() && IsPart(*owner)));
}

/// The control, or the nearest that it is a part of or lies in and that belongs to the form. A part
/// may stand beside its owner, as a labelled edit's label does.
TComponent* TDesignSurface::Selectable(TControl* control) const {
  while (control && control != FRoot && !IsPart(*control)) {
    auto* owner = dynamic_cast<TControl*>(control->Owner());
    control = owner ? owner : control->Parent();
  }
  return control ? control : FRoot;
}

/// The deepest component at a position that the system has found to be in the window.
TComponent* TDesignSurface::ComponentAt(TWinControl& window, TPoint screen) const {
  TControl* found = &window;
  for (auto* around = &window; around; around = dynamic_cast<TWinControl*>(found)) {
    TControl* inside = around->ControlAtPos(around->ScreenToClient(screen), true);
    if (!inside) break;
    found = inside;
  }
  return Selectable(found);
}

/// The control, or the nearest around it, that holds others. Nothing new comes into a frame here.
TWinControl* TDesignSurface::ContainerOf(TControl* control) const {
  for (; control && control != FRoot; control = control->Parent()) {
    auto* window = dynamic_cast<TWinControl*>(control);
    const bool holds = control->ControlStyle().Has(csAcceptsControls);
    if (window && holds && control->Owner() == FRoot && !control->Inline()) return window;
  }
  return FInside;
}

TWinControl* TDesignSurface::ContainerAt(TWinControl& window, TPoint screen) const {
  return ContainerOf(dynamic_cast<TControl*>(ComponentAt(window, screen)));
}

TWinControl& TDesignSurface::Container() const {
  const auto components = FSelection.Components();
  auto* control = components.empty() ? nullptr : dynamic_cast<TControl*>(components.front());
  return *ContainerOf(control);
}

TWinControl* TDesignSurface::ParentOf(const TComponent& component) const {
  const auto* control = dynamic_cast<const TControl*>(&component);
  return control && control != FRoot ? control->Parent() : FInside;
}

std::vector<TComponent*> TDesignSurface::Inside(TWinControl& container) const {
  std::vector<TComponent*> inside;
  for (int i = 0; i < FRoot->ComponentCount(); ++i) {
    TComponent* each = FRoot->Components(i);
    if (Shows(*each) && ParentOf(*each) == &container) inside.push_back(each);
  }
  return inside;
}

/// The nearest component of the same parent that lies in the direction.
TComponent* TDesignSurface::Neighbour(const TComponent& component, int dx, int dy) const {
  TComponent* best = nullptr;
  int nearest = 0;
  const TRect from = BoundsOf(component);
  for (TComponent* each : Inside(*ParentOf(component))) {
    const TRect to = BoundsOf(*each);
    const int x = to.Left + to.Right - from.Left - from.Right;
    const int y = to.Top + to.Bottom - from.Top - from.Bottom;
    const int ahead = x * dx + y * dy;
    // What lies aside is as far as it is off the way, and more.
    const int distance = ahead + 2 * std::abs(x * dy + y * dx);
    if (each == &component || ahead <= 0 || (best && distance >= nearest)) continue;
    best = each;
    nearest = distance;
  }
  return best;
}

}  // namespace ide
