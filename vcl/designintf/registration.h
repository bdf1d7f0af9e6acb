// What a package tells a form designer when it is loaded: its components and where they belong.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/object.h"

namespace vcl {

/// One call of RegisterComponents: a page of the palette and what was put on it, in order.
struct TPaletteEntry {
  std::string Page;
  std::vector<const TClass*> Classes;
};

/// One call of RegisterActions: a category and its classes of actions, in order.
struct TActionEntry {
  std::string Category;
  std::vector<const TClass*> Classes;
};

/// Puts component classes on a page of the designer's palette, behind what is there, and registers
/// them with the class registry. Raises EComponentError for an empty page name or a class that is
/// not a component that can be made by name, and then registers none of them.
VCL_API void RegisterComponents(const std::string& page, const std::vector<const TClass*>& classes);
/// Registers component classes that a designer shows on a form without an icon on the palette, as
/// the parts of another component that its own editor makes. Raises like RegisterComponents.
VCL_API void RegisterNoIcon(const std::vector<const TClass*>& classes);
VCL_API const std::vector<const TClass*>& NoIconComponents();
/// Registers classes of actions that the designer of action lists offers under the category; what
/// is offered already stays where it is. Raises like RegisterComponents, also for a class that is
/// no TContainedAction.
VCL_API void RegisterActions(const std::string& category,
                             const std::vector<const TClass*>& classes);
/// The calls so far, in order.
VCL_API const std::vector<TActionEntry>& RegisteredActions();
/// The calls so far, in order.
VCL_API const std::vector<TPaletteEntry>& RegisteredComponents();
/// The page that the class was put on first; empty when it is on none.
VCL_API std::string_view PalettePageOf(const TClass& aClass);

}  // namespace vcl
