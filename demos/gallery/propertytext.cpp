// Finding properties by their paths, their values as texts, and which values there are to choose
// from.
#include "demos/gallery/propertytext.h"

#include "vcl/rtl/colors.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/valuetext.h"

namespace gallery {
namespace {

using namespace vcl;

/// The string list behind the property; null when it is of another sort.
TStrings* StringsOf(const TPropertyRef& ref) {
  if (ref.Property->Kind() != TTypeKind::Class) return nullptr;
  return dynamic_cast<TStrings*>(std::get<TObject*>(ref.Property->Get(*ref.Object)));
}

TObject* NamedComponent(const TPropertyRef& ref, const std::string& text, const TComponent& root) {
  if (text.empty() || text == NoComponent) return nullptr;
  const TClass& wanted = ref.Property->Type->ClassOf();
  TComponent* found = root.FindComponent(text);
  if (found && found->InheritsFrom(wanted)) return found;
  throw EConvertError(Concat("There is no ", wanted.Name(), " with the name ", text));
}

/// Some setters keep the old value instead of raising an error.
void SetChecked(const TPropertyRef& ref, const TValue& value) {
  ref.Property->Set(*ref.Object, value);
  const TValue kept = ref.Property->Get(*ref.Object);
  if (kept == value) return;
  const TTypeInfo& type = *ref.Property->Type;
  throw EConvertError(Concat(ref.Property->Name, " does not take ", ValueToText(type, value),
                             " and stays ", ValueToText(type, kept)));
}

std::vector<std::string> EnumNames(const TTypeInfo& type) {
  std::vector<std::string> names;
  for (std::int64_t ordinal = type.Min; ordinal <= type.Max; ++ordinal)
    names.emplace_back(type.EnumName(ordinal).value_or(""));
  return names;
}

std::vector<std::string> ColorNames() {
  std::vector<std::string> names;
  GetColorValues([&](const std::string& name) { names.push_back(name); });
  return names;
}

std::vector<std::string> ComponentNames(const TClass& wanted, const TComponent& root) {
  std::vector<std::string> names{std::string(NoComponent)};
  for (int i = 0; i < root.ComponentCount(); ++i) {
    const TComponent& each = *root.Components(i);
    if (each.InheritsFrom(wanted) && !each.Name().empty()) names.push_back(each.Name());
  }
  return names;
}

}  // namespace

TPropertyRef FindProperty(TObject& object, std::string_view path) {
  const auto dot = path.find('.');
  const auto name = path.substr(0, dot);
  const TPropInfo* property = object.ClassType().FindPublished(name);
  if (!property) {
    throw EPropertyError(Concat(object.ClassName(), " has no property ", name));
  }
  if (dot == std::string_view::npos) return {&object, property};
  TObject* inner = nullptr;
  if (property->Kind() == TTypeKind::Class) inner = std::get<TObject*>(property->Get(object));
  if (!inner) throw EPropertyError(Concat(object.ClassName(), ".", name, " is no object"));
  return FindProperty(*inner, path.substr(dot + 1));
}

std::string PropertyText(const TPropertyRef& ref) {
  if (const TStrings* lines = StringsOf(ref)) return lines->Text();
  std::string text = ValueToText(*ref.Property->Type, ref.Property->Get(*ref.Object));
  const bool none = text.empty() && ref.Property->Kind() == TTypeKind::Component;
  return none ? std::string(NoComponent) : text;
}

void SetPropertyText(const TPropertyRef& ref, const std::string& text, const TComponent& root) {
  if (TStrings* lines = StringsOf(ref)) return lines->SetText(text);
  if (ref.Property->Kind() == TTypeKind::Component) {
    return ref.Property->Set(*ref.Object, NamedComponent(ref, text, root));
  }
  SetChecked(ref, TextToValue(*ref.Property->Type, text));
}

std::vector<std::string> PropertyChoices(const TPropertyRef& ref, const TComponent& root) {
  const TTypeInfo& type = *ref.Property->Type;
  const TTypeKind kind = ref.Property->Kind();
  if (kind == TTypeKind::Enumeration || kind == TTypeKind::Boolean) return EnumNames(type);
  if (kind == TTypeKind::Color) return ColorNames();
  if (kind == TTypeKind::Component) return ComponentNames(type.ClassOf(), root);
  return {};
}

}  // namespace gallery
