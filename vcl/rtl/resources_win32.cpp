// TResourceStream: the bytes of a resource of an executable or DLL.
#include "vcl/rtl/resources.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace vcl {

TResourceStream::TResourceStream(void* module, const std::string& name, const char* type) {
  const auto from = static_cast<HMODULE>(module);
  HRSRC found = FindResourceA(from, name.c_str(), type);
  HGLOBAL data = found ? LoadResource(from, found) : nullptr;
  if (!data) throw EResNotFound(Concat("Resource ", name, " not found"));
  FBytes = {static_cast<const char*>(LockResource(data)), SizeofResource(from, found)};
}

bool ResourceExists(void* module, const std::string& name, const char* type) {
  return FindResourceA(static_cast<HMODULE>(module), name.c_str(), type) != nullptr;
}

}  // namespace vcl
