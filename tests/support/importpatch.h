// Takes the place of a system call that a module makes, by way of the module's import table, so
// that a test sees which calls are made without the product knowing.
#pragma once

#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>

#include "vcl/rtl/win32.h"

/// Calls `each` with the name and the slot of every function that the module (null: none) imports
/// by name, until it returns true; true when it did.
template <class Each>
bool FindImport(HMODULE module, Each each) {
  auto* base = reinterpret_cast<char*>(module);
  if (!base) return false;
  const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& imports =
      nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  const auto* library =
      reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
  for (; library->Name; ++library) {
    const auto* names =
        reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
    auto* slots = reinterpret_cast<std::uintptr_t*>(base + library->FirstThunk);
    for (int i = 0; names[i].u1.AddressOfData; ++i) {
      if (IMAGE_SNAP_BY_ORDINAL(names[i].u1.Ordinal)) continue;
      const auto* name =
          reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names[i].u1.AddressOfData);
      if (each(reinterpret_cast<const char*>(name->Name), slots + i)) return true;
    }
  }
  return false;
}

/// While it lives, `module` ("qel.dll") calls `replacement` instead of the imported `function`. The
/// replacement is a captureless lambda or a function of the same type.
class TImportPatch {
 public:
  template <class R, class... A>
  TImportPatch(const char* module, const char* function, R(WINAPI* replacement)(A...))
      : TImportPatch(module, function, reinterpret_cast<std::uintptr_t>(replacement)) {}
#ifndef _WIN64
  /// The same for a function of the compiler's own convention; there is only one in 64 bits.
  template <class R, class... A>
  TImportPatch(const char* module, const char* function, R (*replacement)(A...))
      : TImportPatch(module, function, reinterpret_cast<std::uintptr_t>(replacement)) {}
#endif
  ~TImportPatch() { Write(FFormer); }
  TImportPatch(const TImportPatch&) = delete;
  TImportPatch& operator=(const TImportPatch&) = delete;

 private:
  TImportPatch(const char* module, const char* function, std::uintptr_t replacement)
      : FSlot(FindSlot(::GetModuleHandleA(module), function)) {
    if (!FSlot) throw std::runtime_error(std::string(module) + " does not import " + function);
    FFormer = *FSlot;
    Write(replacement);
  }

  static std::uintptr_t* FindSlot(HMODULE module, const char* function) {
    std::uintptr_t* found = nullptr;
    FindImport(module, [&](const char* name, std::uintptr_t* slot) {
      if (std::strcmp(name, function) == 0) found = slot;
      return found != nullptr;
    });
    return found;
  }

  void Write(std::uintptr_t target) {
    DWORD former = 0;
    ::VirtualProtect(FSlot, sizeof *FSlot, PAGE_READWRITE, &former);
    *FSlot = target;
    ::VirtualProtect(FSlot, sizeof *FSlot, former, &former);
  }

  std::uintptr_t* FSlot;
  std::uintptr_t FFormer = 0;
};
