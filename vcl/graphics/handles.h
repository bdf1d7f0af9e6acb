// Owners of the system's drawing handles: each frees its handle, once, whatever happens.
#pragma once

#include <string>
#include <utility>

#include "vcl/rtl/api.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// Raises EOutOfResources: `what` could not be made, and the system's reason (GetLastError).
[[noreturn]] VCL_API void RaiseOutOfResources(const std::string& what);

/// The handle, when it is one; otherwise raises EOutOfResources as above.
template <class H>
H CheckHandle(H handle, const char* what) {
  if (!handle) RaiseOutOfResources(what);
  return handle;
}

/// The only owner of a handle H that `Free` frees.
template <class H, auto Free>
class TOwned {
 public:
  TOwned() = default;
  explicit TOwned(H handle) : FHandle(handle) {}
  TOwned(TOwned&& other) noexcept : FHandle(other.Release()) {}
  TOwned& operator=(TOwned&& other) noexcept {
    if (this != &other) Reset(other.Release());
    return *this;
  }
  ~TOwned() { Reset(); }

  H Get() const { return FHandle; }
  explicit operator bool() const { return FHandle != nullptr; }
  /// Gives the handle away.
  H Release() { return std::exchange(FHandle, nullptr); }
  void Reset(H handle = nullptr) {
    if (H old = std::exchange(FHandle, handle)) Free(old);
  }

 private:
  H FHandle = nullptr;
};

namespace detail {
// The system's own functions are named by sources only.
VCL_API void DeleteGdiObject(HGDIOBJ object);
VCL_API void DeleteContext(HDC dc);
VCL_API void DeleteCursor(HCURSOR cursor);
VCL_API void DeleteIcon(HICON icon);
inline void FreeObject(HGDIOBJ object) { DeleteGdiObject(object); }
inline void FreeContext(HDC dc) { DeleteContext(dc); }
inline void FreeCursor(HCURSOR cursor) { DeleteCursor(cursor); }
inline void FreeIcon(HICON icon) { DeleteIcon(icon); }
}  // namespace detail

using TOwnedBitmap = TOwned<HBITMAP, &detail::FreeObject>;
using TOwnedBrush = TOwned<HBRUSH, &detail::FreeObject>;
using TOwnedFont = TOwned<HFONT, &detail::FreeObject>;
using TOwnedPen = TOwned<HPEN, &detail::FreeObject>;
using TOwnedRegion = TOwned<HRGN, &detail::FreeObject>;
using TOwnedIcon = TOwned<HICON, &detail::FreeIcon>;
using TOwnedCursor = TOwned<HCURSOR, &detail::FreeCursor>;
using TOwnedDC = TOwned<HDC, &detail::FreeContext>;

/// A memory device context, compatible with the screen.
class VCL_API TMemoryDC {
 public:
  /// Raises EOutOfResources.
  TMemoryDC();
  HDC Get() const { return FHandle.Get(); }

 private:
  TOwnedDC FHandle;
};

/// A window's device context; of the whole screen for null.
class VCL_API TWindowDC {
 public:
  /// Raises EOutOfResources.
  explicit TWindowDC(HWND window);
  ~TWindowDC();
  TWindowDC(const TWindowDC&) = delete;
  TWindowDC& operator=(const TWindowDC&) = delete;
  HDC Get() const { return FHandle; }

 private:
  HWND FWindow;
  HDC FHandle;
};

/// An object selected into a device context, where it gives the former one its place back. Declare
/// it after the owners of both.
class VCL_API TSelection {
 public:
  /// Raises EOutOfResources when the system refuses (a bitmap that is selected elsewhere).
  TSelection(HDC dc, HGDIOBJ object);
  ~TSelection();
  TSelection(const TSelection&) = delete;
  TSelection& operator=(const TSelection&) = delete;

 private:
  HDC FDC;
  HGDIOBJ FFormer;
};

/// Keeps all of a device context's state, clipping included, and brings it back.
class VCL_API TSavedDC {
 public:
  explicit TSavedDC(HDC dc);
  ~TSavedDC();
  TSavedDC(const TSavedDC&) = delete;
  TSavedDC& operator=(const TSavedDC&) = delete;

 private:
  HDC FDC;
  int FLevel;
};

}  // namespace vcl
