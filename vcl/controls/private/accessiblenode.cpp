// The tree that screen readers walk through: what is inside, around, beside, focused and selected.
#include "vcl/controls/private/accessiblenode.h"

#include <algorithm>
#include <cstdlib>

#include "vcl/controls/wincontrol.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/win32.h"
// The others need what stands above.
#include <ole2.h>
#include <oleacc.h>

namespace vcl {

// The header that has no system's header repeats its numbers.
static_assert(arToolTip == ROLE_SYSTEM_TOOLTIP && arWindow == ROLE_SYSTEM_WINDOW);
static_assert(arClient == ROLE_SYSTEM_CLIENT && arPane == ROLE_SYSTEM_PANE);
static_assert(arDialog == ROLE_SYSTEM_DIALOG && arGrouping == ROLE_SYSTEM_GROUPING);
static_assert(arSeparator == ROLE_SYSTEM_SEPARATOR && arToolBar == ROLE_SYSTEM_TOOLBAR);
static_assert(arStatusBar == ROLE_SYSTEM_STATUSBAR && arTable == ROLE_SYSTEM_TABLE);
static_assert(arColumnHeader == ROLE_SYSTEM_COLUMNHEADER && arRow == ROLE_SYSTEM_ROW);
static_assert(arCell == ROLE_SYSTEM_CELL && arList == ROLE_SYSTEM_LIST);
static_assert(arListItem == ROLE_SYSTEM_LISTITEM && arOutline == ROLE_SYSTEM_OUTLINE);
static_assert(arPageTab == ROLE_SYSTEM_PAGETAB && arPropertyPage == ROLE_SYSTEM_PROPERTYPAGE);
static_assert(arGraphic == ROLE_SYSTEM_GRAPHIC && arStaticText == ROLE_SYSTEM_STATICTEXT);
static_assert(arText == ROLE_SYSTEM_TEXT && arPushButton == ROLE_SYSTEM_PUSHBUTTON);
static_assert(arCheckBox == ROLE_SYSTEM_CHECKBUTTON && arRadioButton == ROLE_SYSTEM_RADIOBUTTON);
static_assert(arComboBox == ROLE_SYSTEM_COMBOBOX && arProgressBar == ROLE_SYSTEM_PROGRESSBAR);
static_assert(arSlider == ROLE_SYSTEM_SLIDER && arSpinButton == ROLE_SYSTEM_SPINBUTTON);
static_assert(arPageTabList == ROLE_SYSTEM_PAGETABLIST);

static_assert(TAccessibleState{asDisabled}.Bits() == STATE_SYSTEM_UNAVAILABLE);
static_assert(TAccessibleState{asSelected}.Bits() == STATE_SYSTEM_SELECTED);
static_assert(TAccessibleState{asFocused}.Bits() == STATE_SYSTEM_FOCUSED);
static_assert(TAccessibleState{asPressed}.Bits() == STATE_SYSTEM_PRESSED);
static_assert(TAccessibleState{asChecked}.Bits() == STATE_SYSTEM_CHECKED);
static_assert(TAccessibleState{asMixed}.Bits() == STATE_SYSTEM_MIXED);
static_assert(TAccessibleState{asReadOnly}.Bits() == STATE_SYSTEM_READONLY);
static_assert(TAccessibleState{asDefault}.Bits() == STATE_SYSTEM_DEFAULT);
static_assert(TAccessibleState{asExpanded}.Bits() == STATE_SYSTEM_EXPANDED);
static_assert(TAccessibleState{asCollapsed}.Bits() == STATE_SYSTEM_COLLAPSED);
static_assert(TAccessibleState{asInvisible}.Bits() == STATE_SYSTEM_INVISIBLE);
static_assert(TAccessibleState{asOffscreen}.Bits() == STATE_SYSTEM_OFFSCREEN);
static_assert(TAccessibleState{asFocusable}.Bits() == STATE_SYSTEM_FOCUSABLE);
static_assert(TAccessibleState{asSelectable}.Bits() == STATE_SYSTEM_SELECTABLE);
static_assert(TAccessibleState{asProtected}.Bits() == STATE_SYSTEM_PROTECTED);

namespace {

using TFound = std::optional<TAccessibleNode>;

TWinControl* AsWindow(TControl* control) { return dynamic_cast<TWinControl*>(control); }

/// Empty without a window, which nothing here is to make.
TRect ScreenBounds(TControl& control) {
  TWinControl* window = AsWindow(&control);
  TWinControl* holder = window ? window : control.Parent();
  if (!holder || !holder->HandleAllocated()) return {};
  // A form's own edge and caption bar are the system's to tell of.
  if (window && window->Parent()) {
    RECT rect;
    ::GetWindowRect(window->Handle(), &rect);
    return rect;
  }
  TRect rect = control.ClientRect();
  const TPoint origin = control.ClientOrigin();
  rect.Offset(origin.X, origin.Y);
  return rect;
}

/// The part in the control's own coordinates.
std::optional<TAccessiblePart> FindPart(const TAccessibleNode& node) {
  TAccessiblePart part;
  part.Parts = node.Control->AccessibleParts();
  for (const int index : node.Part) {
    if (index < 0 || index >= static_cast<int>(part.Parts.size())) return std::nullopt;
    TAccessiblePart inner = std::move(part.Parts[static_cast<std::size_t>(index)]);
    part = std::move(inner);
  }
  return part;
}

std::optional<TAccessiblePart> DescribePart(const TAccessibleNode& node) {
  std::optional<TAccessiblePart> part = FindPart(node);
  if (!part) return part;
  const TAccessibleState whole = node.Control->Accessible().State;
  part->State += whole * TAccessibleState{asDisabled, asInvisible};
  const bool shown = !ScreenBounds(*node.Control).Empty();
  const TPoint origin = shown ? node.Control->ClientOrigin() : TPoint();
  shown ? part->Bounds.Offset(origin.X, origin.Y) : void(part->Bounds = {});
  return part;
}

TAccessibleNode Inside(const TAccessibleNode& node, std::size_t index) {
  TAccessibleNode part = node;
  part.Part.push_back(static_cast<int>(index));
  return part;
}

TFound PartWith(const TAccessibleNode& node, TAccessibleStateValue state) {
  const std::optional<TAccessiblePart> whole = FindPart(node);
  for (std::size_t i = 0; whole && i < whole->Parts.size(); ++i) {
    if (whole->Parts[i].State.Has(state)) return Inside(node, i);
  }
  return std::nullopt;
}

/// The innermost one.
TAccessibleNode FocusedPart(const TAccessibleNode& node) {
  const TFound inner = PartWith(node, asFocused);
  return inner ? FocusedPart(*inner) : node;
}

}  // namespace

std::optional<TAccessiblePart> Describe(const TAccessibleNode& node) {
  if (!node.Part.empty()) return DescribePart(node);
  return TAccessiblePart{node.Control->Accessible(), ScreenBounds(*node.Control), {}};
}

std::vector<TAccessibleNode> ChildrenOf(const TAccessibleNode& node) {
  std::vector<TAccessibleNode> children;
  const TWinControl* window = node.Part.empty() ? AsWindow(node.Control) : nullptr;
  for (int i = 0; window && i < window->ControlCount(); ++i) {
    children.push_back({window->Controls(i), {}});
  }
  const std::optional<TAccessiblePart> whole = FindPart(node);
  for (std::size_t i = 0; whole && i < whole->Parts.size(); ++i) {
    children.push_back(Inside(node, i));
  }
  return children;
}

TFound ParentOf(const TAccessibleNode& node) {
  if (node.Part.empty()) {
    return node.Control->Parent() ? TFound({node.Control->Parent(), {}}) : std::nullopt;
  }
  TAccessibleNode parent = node;
  parent.Part.pop_back();
  return parent;
}

TFound FocusIn(const TAccessibleNode& node) {
  const TAccessibleNode whole{node.Control, {}};
  TWinControl* window = AsWindow(node.Control);
  if (!window) return std::nullopt;
  if (window->Focused()) {
    const TAccessibleNode focused = FocusedPart(whole);
    const auto& path = focused.Part;
    const bool inside = path.size() >= node.Part.size() &&
                        std::equal(node.Part.begin(), node.Part.end(), path.begin());
    return inside ? TFound(focused) : std::nullopt;
  }
  const TCustomForm* form = window->ParentForm();
  TWinControl* active = form ? form->ActiveControl() : nullptr;
  const bool below = node.Part.empty() && active && active != window && active->Focused() &&
                     window->ContainsControl(active);
  return below ? FocusIn({active, {}}) : std::nullopt;
}

TFound SelectionIn(const TAccessibleNode& node) { return PartWith(node, asSelected); }

TFound NodeAt(const TAccessibleNode& node, TPoint screen) {
  const std::optional<TAccessiblePart> whole = Describe(node);
  if (!whole || !whole->Bounds.Contains(screen)) return std::nullopt;
  const std::vector<TAccessibleNode> children = ChildrenOf(node);
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    const std::optional<TAccessiblePart> part = Describe(*child);
    if (part && !part->State.Has(asInvisible) && part->Bounds.Contains(screen)) return *child;
  }
  return node;
}

namespace {

/// How far the other rectangle lies in the direction, between the middles; 0 or less when it does
/// not.
int DistanceTo(const TRect& from, const TRect& to, long direction) {
  const int right = (to.Left + to.Right - from.Left - from.Right) / 2;
  const int down = (to.Top + to.Bottom - from.Top - from.Bottom) / 2;
  const bool sideways = direction == NAVDIR_LEFT || direction == NAVDIR_RIGHT;
  const bool forward = direction == NAVDIR_RIGHT || direction == NAVDIR_DOWN;
  const int along = (sideways ? right : down) * (forward ? 1 : -1);
  const int aside = std::abs(sideways ? down : right);
  // What lies more aside than along is in another direction.
  return along > 0 && along >= aside ? along + aside : 0;
}

TFound Nearest(const TAccessibleNode& node, const std::vector<TAccessibleNode>& siblings,
               long direction) {
  const std::optional<TAccessiblePart> self = Describe(node);
  TFound nearest;
  int least = 0;
  for (const TAccessibleNode& each : siblings) {
    const std::optional<TAccessiblePart> other = Describe(each);
    if (!self || !other || other->State.Has(asInvisible)) continue;
    const int distance = DistanceTo(self->Bounds, other->Bounds, direction);
    if (distance <= 0 || (nearest && distance >= least)) continue;
    nearest = each;
    least = distance;
  }
  return nearest;
}

}  // namespace

TFound Navigate(const TAccessibleNode& node, long direction) {
  const bool inwards = direction == NAVDIR_FIRSTCHILD || direction == NAVDIR_LASTCHILD;
  const TFound parent = ParentOf(node);
  if (!inwards && !parent) return std::nullopt;
  const std::vector<TAccessibleNode> nodes = ChildrenOf(inwards ? node : *parent);
  if (nodes.empty()) return std::nullopt;
  const auto self = std::ranges::find(nodes, node);
  switch (direction) {
    case NAVDIR_FIRSTCHILD: return nodes.front();
    case NAVDIR_LASTCHILD: return nodes.back();
    case NAVDIR_NEXT: return nodes.end() - self > 1 ? TFound(self[1]) : std::nullopt;
    case NAVDIR_PREVIOUS: return self != nodes.begin() ? TFound(self[-1]) : std::nullopt;
    default: return Nearest(node, nodes, direction);
  }
}

}  // namespace vcl
