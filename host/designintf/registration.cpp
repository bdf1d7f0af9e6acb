#include "host/designintf/registration.h"

#include <algorithm>

#include "host/designintf/palette.h"
#include "host/rtl/classregistry.h"
#include "host/rtl/exceptions.h"
#include "host/rtl/text.h"

namespace vcl {

std::vector<TPaletteEntry>& detail::Palette() {
  static std::vector<TPaletteEntry> entries;
  return entries;
}

void RegisterComponents(const std::string& page, std::initializer_list<const TClass*> classes) {
  if (page.empty()) throw EComponentError("A palette page needs a name");
  for (const TClass* each : classes) {
    if (each->Maker().Component) continue;
    throw EComponentError(Concat(each->Name(),
                                 " cannot be put on the palette: it is no component "
                                 "that can be made by name"));
  }
  RegisterClasses(classes);
  detail::Palette().push_back({page, classes});
}

const std::vector<TPaletteEntry>& RegisteredComponents() { return detail::Palette(); }

std::string_view PalettePageOf(const TClass& aClass) {
  for (const TPaletteEntry& entry : detail::Palette()) {
    if (std::ranges::count(entry.Classes, &aClass) > 0) return entry.Page;
  }
  return {};
}

}  // namespace vcl
