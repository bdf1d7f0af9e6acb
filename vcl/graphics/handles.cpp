// Contexts and selections that end by themselves, and the error when the system has no handles
// left.
#include "vcl/graphics/handles.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

void RaiseOutOfResources(const std::string& what) {
  const int code = LastSystemError();
  // GDI refuses many things without leaving an error code.
  const std::string reason = code ? SysErrorMessage(code) : "no reason is given";
  throw EOutOfResources(Concat("The system refused ", what, ": ", reason));
}

void detail::DeleteGdiObject(HGDIOBJ object) { ::DeleteObject(object); }
void detail::DeleteContext(HDC dc) { ::DeleteDC(dc); }
void detail::DeleteCursor(HCURSOR cursor) { ::DestroyCursor(cursor); }
void detail::DeleteIcon(HICON icon) { ::DestroyIcon(icon); }

TMemoryDC::TMemoryDC() : FHandle(CheckHandle(::CreateCompatibleDC(nullptr), "a memory context")) {}

TWindowDC::TWindowDC(HWND window)
    : FWindow(window), FHandle(CheckHandle(::GetDC(window), "a window's device context")) {}

TWindowDC::~TWindowDC() { ::ReleaseDC(FWindow, FHandle); }

TSelection::TSelection(HDC dc, HGDIOBJ object)
    : FDC(dc),
      FFormer(CheckHandle(::SelectObject(dc, object), "to select an object for drawing")) {}

TSelection::~TSelection() { ::SelectObject(FDC, FFormer); }

TSavedDC::TSavedDC(HDC dc) : FDC(dc), FLevel(::SaveDC(dc)) {}
TSavedDC::~TSavedDC() { ::RestoreDC(FDC, FLevel); }

}  // namespace vcl
