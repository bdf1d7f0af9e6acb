// The classes that form files may name, by their names without case.
#include "vcl/rtl/classregistry.h"

#include <map>
#include <string>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// The registered classes by their names in capitals.
std::map<std::string, const TClass*, std::less<>>& Registry() {
  static std::map<std::string, const TClass*, std::less<>> registry;
  return registry;
}

}  // namespace

void RegisterClass(const TClass& aClass) {
  const TClass* holder = Registry().emplace(UpperCase(aClass.Name()), &aClass).first->second;
  if (holder == &aClass) return;
  throw EFilerError(Concat("A class named ", aClass.Name(), " is registered already, by the unit ",
                           holder->Unit()));
}

void RegisterClasses(std::initializer_list<const TClass*> classes) {
  for (const TClass* each : classes) RegisterClass(*each);
}

void UnRegisterClass(const TClass& aClass) {
  if (GetClass(aClass.Name()) == &aClass) Registry().erase(UpperCase(aClass.Name()));
}

const TClass* GetClass(std::string_view name) {
  const auto found = Registry().find(UpperCase(name));
  return found == Registry().end() ? nullptr : found->second;
}

const TClass& FindClass(std::string_view name) {
  if (const TClass* found = GetClass(name)) return *found;
  throw EClassNotFound(Concat("Class ", name, " not found"));
}

std::vector<const TClass*> RegisteredClasses() {
  std::vector<const TClass*> classes;
  for (const auto& [name, each] : Registry()) classes.push_back(each);
  return classes;
}

}  // namespace vcl
