// The system's headers without the macros that would rename methods of ours: what calls the system
// includes this instead of <windows.h>. Entry points with a narrow and a wide form are called by
// their full names (DrawTextExA).
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0601
#endif

#include <windows.h>
// The others need what stands above.
#include <cderr.h>
#include <commctrl.h>
#include <commdlg.h>
#include <windowsx.h>

#include "vcl/rtl/systemmacros.h"
