// What a package tells a form designer when it is loaded: its components and where they belong.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "host/rtl/object.h"

namespace vcl {

/// One call of RegisterComponents: a page of the palette and what was put on it, in order.
struct TPaletteEntry {
  std::string Page;
  std::vector<const TClass*> Classes;
};

/// Puts component classes on a page of the designer's palette, behind what is there, and registers
/// them with the class registry. Raises EComponentError for an empty page name or a class that is
/// not a component that can be made by name, and then registers none of them.
VCL_API void RegisterComponents(const std::string& page,
                                std::initializer_list<const TClass*> classes);
/// The calls so far, in order.
VCL_API const std::vector<TPaletteEntry>& RegisteredComponents();
/// The page that the class was put on first; empty when it is on none.
VCL_API std::string_view PalettePageOf(const TClass& aClass);

}  // namespace vcl
