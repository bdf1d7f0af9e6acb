// The one place that includes the system's headers, without the macros that would rename methods of
// ours. Entry points with a narrow and a wide form are called by their full names (DrawTextExA).
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

#undef AppendMenu
#undef CallWindowProc
#undef CharLower
#undef CharUpper
#undef CopyFile
#undef CreateDialog
#undef CreateDirectory
#undef CreateEvent
#undef CreateFile
#undef CreateFont
#undef CreateFontIndirect
#undef CreateIC
#undef CreateMutex
#undef CreateProcess
#undef CreateWindow
#undef CreateWindowEx
#undef DefWindowProc
#undef DeleteFile
#undef DispatchMessage
#undef DrawState
#undef DrawText
#undef DrawTextEx
#undef EnumProps
#undef FindResource
#undef FindText
#undef FindWindow
#undef GetCharWidth
#undef GetClassInfo
#undef GetClassName
#undef GetCurrentDirectory
#undef GetCurrentTime
#undef GetFirstChild
#undef GetFreeSpace
#undef GetMenuItemInfo
#undef GetMenuString
#undef GetMessage
#undef GetNextSibling
#undef GetNextWindow
#undef GetObject
#undef GetPrevSibling
#undef GetProp
#undef GetTextExtentPoint
#undef GetTextMetrics
#undef GetTopWindow
#undef GetUserName
#undef GetWindowText
#undef InsertMenu
#undef InsertMenuItem
#undef IsMaximized
#undef IsMinimized
#undef LoadBitmap
#undef LoadCursor
#undef LoadIcon
#undef LoadImage
#undef LoadLibrary
#undef LoadMenu
#undef LoadString
#undef MessageBox
#undef ModifyMenu
#undef MoveFile
#undef PeekMessage
#undef PlaySound
#undef PostMessage
#undef RegisterClass
#undef RegisterClassEx
#undef RemoveProp
#undef ReplaceText
#undef SendMessage
#undef SetCurrentDirectory
#undef SetProp
#undef SetWindowText
#undef ShellExecute
#undef StartDoc
#undef SubclassWindow
#undef TextOut
#undef UnregisterClass
#undef WinHelp
#undef Yield
#undef far
#undef near
#undef small
