// The name of a class as C++ source has it, which compilers encode each in its own way.
#include "vcl/rtl/private/cppname.h"

#ifdef __GNUC__
#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#endif

namespace vcl {

std::string CppNameOf(const std::type_info& type) {
#ifdef __GNUC__
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> name(
      abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), &std::free);
  if (name) return name.get();
#endif
  return type.name();
}

}  // namespace vcl
