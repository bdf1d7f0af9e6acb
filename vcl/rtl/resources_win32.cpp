// TResourceStream: the bytes of a resource of an executable or DLL.
#include "vcl/rtl/resources.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl {

namespace {

/// A type's number goes on as it is, a name as text.
HRSRC FindIn(void* module, const std::string& name, const char* type) {
  const bool named = !IS_INTRESOURCE(type);
  const std::wstring typeName = named ? ToUtf16(type) : std::wstring();
  return ::FindResourceW(static_cast<HMODULE>(module), ToUtf16(name).c_str(),
                         named ? typeName.c_str() : reinterpret_cast<LPCWSTR>(type));
}

}  // namespace

TResourceStream::TResourceStream(void* module, const std::string& name, const char* type) {
  const auto from = static_cast<HMODULE>(module);
  HRSRC found = FindIn(module, name, type);
  HGLOBAL data = found ? LoadResource(from, found) : nullptr;
  if (!data) throw EResNotFound(Concat("Resource ", name, " not found"));
  FBytes = {static_cast<const char*>(LockResource(data)), SizeofResource(from, found)};
}

bool ResourceExists(void* module, const std::string& name, const char* type) {
  return FindIn(module, name, type) != nullptr;
}

}  // namespace vcl
