// The system's handles, numbers and records under the names that its header gives them, without
// that header: what declares with them includes this, what calls the system includes
// "vcl/rtl/win32.h".
//
// Each declaration repeats one of <windows.h> or <commctrl.h>, so that both can be seen together,
// in either order; a compiler refuses one that differs.
#pragma once

#include "vcl/rtl/systemmacros.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the system's own names.
struct HBITMAP__;
struct HBRUSH__;
struct HDC__;
struct HENHMETAFILE__;
struct HFONT__;
struct HICON__;
struct HINSTANCE__;
struct HKEY__;
struct HMENU__;
struct HPEN__;
struct HRGN__;
struct HWND__;
struct _IMAGELIST;
struct _TREEITEM;
struct tagDRAWITEMSTRUCT;
struct tagFINDREPLACEW;
struct tagLOGFONTW;
struct tagMSG;
struct tagNMTREEVIEWW;
struct tagOFNW;
struct tagPOINT;
struct tagRECT;
struct tagTVDISPINFOW;

using HBITMAP = HBITMAP__*;
using HBRUSH = HBRUSH__*;
using HDC = HDC__*;
using HENHMETAFILE = HENHMETAFILE__*;
using HFONT = HFONT__*;
using HICON = HICON__*;
using HCURSOR = HICON;
using HINSTANCE = HINSTANCE__*;
using HKEY = HKEY__*;
using HMENU = HMENU__*;
using HPEN = HPEN__*;
using HRGN = HRGN__*;
using HWND = HWND__*;
using HGDIOBJ = void*;
using HIMAGELIST = _IMAGELIST*;
using HTREEITEM = _TREEITEM*;

using DRAWITEMSTRUCT = tagDRAWITEMSTRUCT;
using FINDREPLACEW = tagFINDREPLACEW;
using LOGFONTW = tagLOGFONTW;
using MSG = tagMSG;
using NMTREEVIEWW = tagNMTREEVIEWW;
using NMTVDISPINFOW = tagTVDISPINFOW;
using OPENFILENAMEW = tagOFNW;
using POINT = tagPOINT;
using RECT = tagRECT;

using BOOL = int;
using BYTE = unsigned char;
using DWORD = unsigned long;
using COLORREF = DWORD;
using UINT = unsigned int;
using ULONGLONG = unsigned long long;
#ifdef _WIN64
using DWORD_PTR = unsigned long long;
using LPARAM = long long;
using LRESULT = long long;
using UINT_PTR = unsigned long long;
using WPARAM = unsigned long long;
#else
using DWORD_PTR = unsigned long;
using LPARAM = long;
using LRESULT = long;
using UINT_PTR = unsigned int;
using WPARAM = unsigned int;
#endif
using WNDPROC = LRESULT(__stdcall*)(HWND, UINT, WPARAM, LPARAM);
// NOLINTEND(bugprone-reserved-identifier)
