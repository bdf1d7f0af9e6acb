// How many of the system's objects the process has.
#pragma once

#include <cstdint>

#include "vcl/rtl/win32.h"

namespace handles {

/// Wine answers 0 when it is asked for the numbers of objects, but it knows an object by the lower
/// half of its handle alone: so all of them can be tried.
template <class IsObject>
int CountByTrying(IsObject isObject) {
  int count = 0;
  for (std::uintptr_t handle = 1; handle <= 0xFFFF; ++handle) count += isObject(handle) ? 1 : 0;
  return count;
}

/// Pens, brushes, fonts, bitmaps, regions and device contexts.
inline int GdiObjects() {
  const DWORD count = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
  if (count) return static_cast<int>(count);
  return CountByTrying([](std::uintptr_t handle) {
    return ::GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0;
  });
}

/// Windows and menus.
inline int UserObjects() {
  const DWORD count = ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS);
  if (count) return static_cast<int>(count);
  return CountByTrying([](std::uintptr_t handle) {
    return ::IsWindow(reinterpret_cast<HWND>(handle)) || ::IsMenu(reinterpret_cast<HMENU>(handle));
  });
}

}  // namespace handles
