// The name of a class as C++ source has it, for messages.
#pragma once

#include <string>
#include <typeinfo>

namespace vcl {

/// The type's name with its namespaces.
std::string CppNameOf(const std::type_info& type);

}  // namespace vcl
