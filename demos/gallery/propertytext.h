// Published properties by path, and their values as texts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/component.h"
#include "vcl/rtl/properties.h"

namespace gallery {

/// The text that stands for a reference to no component.
inline constexpr std::string_view NoComponent = "(none)";

/// One published property of one object.
struct TPropertyRef {
  vcl::TObject* Object;
  const vcl::TPropInfo* Property;
};

/// The property at the path from `object`: a name, or the names of objects inside it and of the
/// last one's property ("Gradient.FillStyle"). Raises EPropertyError for a path that leads nowhere.
TPropertyRef FindProperty(vcl::TObject& object, std::string_view path);

/// The property's value: as an object inspector shows it, a string list as its lines.
std::string PropertyText(const TPropertyRef& property);

/// Sets the property to what the text says; the names of components are those of `root`'s. Raises
/// EConvertError for a text that says no value of the property's type, or a value that the property
/// refuses, and what its setter raises. What is refused leaves the property as it was.
void SetPropertyText(const TPropertyRef& property, const std::string& text,
                     const vcl::TComponent& root);

/// The texts that a list offers for the property: names of values, colours, or `root`'s components;
/// none for numbers and plain texts.
std::vector<std::string> PropertyChoices(const TPropertyRef& property, const vcl::TComponent& root);

}  // namespace gallery
