// A key of the registry that is open for a moment.
#pragma once

#include "vcl/rtl/registry.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <string_view>
#include <utility>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/utf16.h"

namespace vcl {

class TRegistry::TOpened {
 public:
  TOpened(HKEY base, const std::string& name, std::uint32_t access, bool canCreate) {
    const std::wstring wide = ToUtf16(WithoutRoot(name));
    FStatus = canCreate ? ::RegCreateKeyExW(base, wide.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                            access, nullptr, &FKey, nullptr)
                        : ::RegOpenKeyExW(base, wide.c_str(), 0, access, &FKey);
    if (FStatus != ERROR_SUCCESS) FKey = nullptr;
  }
  ~TOpened() {
    if (FKey) ::RegCloseKey(FKey);
  }
  TOpened(const TOpened&) = delete;
  TOpened& operator=(const TOpened&) = delete;
  HKEY Key() const { return FKey; }
  HKEY Take() { return std::exchange(FKey, nullptr); }
  LSTATUS Status() const { return FStatus; }

  static std::string_view WithoutRoot(std::string_view name) {
    return name.starts_with('\\') ? name.substr(1) : name;
  }
  /// The rights to read, in the same one of the system's views of the registry.
  static std::uint32_t Reading(std::uint32_t access) {
    return KEY_READ | (access & (KEY_WOW64_32KEY | KEY_WOW64_64KEY));
  }
  static bool Done(LSTATUS status) { return status == ERROR_SUCCESS; }
  [[noreturn]] static void Refuse(const char* what, const std::string& name, LSTATUS status) {
    RaiseOSError<ERegistryException>(status, "Cannot ", what, " \"", name, "\" of the registry");
  }

 private:
  HKEY FKey = nullptr;
  LSTATUS FStatus;
};

}  // namespace vcl
