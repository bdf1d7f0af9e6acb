// Asking the system in which module an address lies.
#include "vcl/forms/module.h"

#include "vcl/rtl/win32.h"

namespace vcl {

HINSTANCE ModuleOf(const void* address) {
  HMODULE module = nullptr;
  ::GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      static_cast<LPCWSTR>(address), &module);
  return module;
}

}  // namespace vcl
