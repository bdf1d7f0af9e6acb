// The tree of controls and their parts that screen readers walk through.
#pragma once

#include <optional>
#include <vector>

#include "vcl/controls/accessible.h"

namespace vcl {

class TControl;

/// A control, or a part of one.
struct TAccessibleNode {
  TControl* Control = nullptr;
  TAccessiblePath Part;
  bool operator==(const TAccessibleNode&) const = default;
};

/// What the node tells of itself, with its bounds on the screen, empty without a window; nothing
/// for a part that is gone.
std::optional<TAccessiblePart> Describe(const TAccessibleNode& node);
/// The controls inside from the lowest to the topmost, and then the parts.
std::vector<TAccessibleNode> ChildrenOf(const TAccessibleNode& node);
/// What the node lies in; nothing for a form.
std::optional<TAccessibleNode> ParentOf(const TAccessibleNode& node);
/// The node below this one, or this one itself, that has the focus.
std::optional<TAccessibleNode> FocusIn(const TAccessibleNode& node);
/// The first part of the node that is selected.
std::optional<TAccessibleNode> SelectionIn(const TAccessibleNode& node);
/// What is at the position on the screen: the topmost child, or the node itself.
std::optional<TAccessibleNode> NodeAt(const TAccessibleNode& node, TPoint screen);
/// Where one goes from the node in a direction (NAVDIR_...).
std::optional<TAccessibleNode> Navigate(const TAccessibleNode& node, long direction);

}  // namespace vcl
