// What the library's classes and events are called in C++.
#pragma once

#include <string>
#include <string_view>

#include "vcl/rtl/object.h"

namespace ide {

/// A class as C++ code names it.
struct TCppClass {
  std::string Name;    // With its namespace.
  std::string Header;  // What code includes for it.
};

/// Of a class of the library or of its package of components; empty names for any other.
TCppClass CppClassOf(const vcl::TClass& type);

/// The parameters of the handlers of an event type, as a declaration has them; empty for a type
/// that is not known.
std::string_view ParametersOf(std::string_view eventType);

/// True for a word that C++ keeps for itself.
bool IsCppKeyword(std::string_view name);

}  // namespace ide
