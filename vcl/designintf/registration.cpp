// The components that packages have registered, and the palette pages they stand on.
#include "vcl/designintf/registration.h"

#include <algorithm>
#include <utility>

#include "vcl/actions/actions.h"
#include "vcl/designintf/registered.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {

namespace {

void CheckComponents(const std::vector<const TClass*>& classes) {
  for (const TClass* each : classes) {
    if (each->Maker().Component) continue;
    throw EComponentError(Concat(each->Name(),
                                 " cannot be registered with a designer: it is no component "
                                 "that can be made by name"));
  }
}

void RegisterAll(const std::vector<const TClass*>& classes) {
  for (const TClass* each : classes) RegisterClass(*each);
}

}  // namespace

std::vector<TPaletteEntry>& detail::Palette() {
  static std::vector<TPaletteEntry> entries;
  return entries;
}

std::vector<const TClass*>& detail::NoIcons() {
  static std::vector<const TClass*> classes;
  return classes;
}

std::vector<TActionEntry>& detail::Actions() {
  static std::vector<TActionEntry> entries;
  return entries;
}

void RegisterComponents(const std::string& page, const std::vector<const TClass*>& classes) {
  if (page.empty()) throw EComponentError("A palette page needs a name");
  CheckComponents(classes);
  RegisterAll(classes);
  detail::Palette().push_back({page, classes});
}

void RegisterNoIcon(const std::vector<const TClass*>& classes) {
  CheckComponents(classes);
  RegisterAll(classes);
  detail::NoIcons().insert(detail::NoIcons().end(), classes.begin(), classes.end());
}

void RegisterActions(const std::string& category, const std::vector<const TClass*>& classes) {
  if (category.empty()) throw EComponentError("A category of actions needs a name");
  for (const TClass* each : classes) {
    if (each->InheritsFrom(TContainedAction::Class())) continue;
    throw EComponentError(Concat(each->Name(), " is no action"));
  }
  RegisterNoIcon(classes);
  TActionEntry entry{category, classes};
  std::erase_if(entry.Classes, [](const TClass* each) {
    return std::ranges::any_of(detail::Actions(), [each](const TActionEntry& known) {
      return std::ranges::count(known.Classes, each) > 0;
    });
  });
  if (!entry.Classes.empty()) detail::Actions().push_back(std::move(entry));
}

const std::vector<TActionEntry>& RegisteredActions() { return detail::Actions(); }

const std::vector<TPaletteEntry>& RegisteredComponents() { return detail::Palette(); }

const std::vector<const TClass*>& NoIconComponents() { return detail::NoIcons(); }

std::string_view PalettePageOf(const TClass& aClass) {
  for (const TPaletteEntry& entry : detail::Palette()) {
    if (std::ranges::count(entry.Classes, &aClass) > 0) return entry.Page;
  }
  return {};
}

}  // namespace vcl
