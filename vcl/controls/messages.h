// Messages as controls handle them: the record, and the library's own message numbers.
#pragma once

#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// A message on its way through a control. Handlers set Result.
struct TMessage {
  UINT Msg = 0;
  WPARAM WParam = 0;
  LPARAM LParam = 0;
  LRESULT Result = 0;

  /// The coordinates of a mouse message.
  int XPos() const { return static_cast<short>(LParam & 0xFFFF); }
  int YPos() const { return static_cast<short>(LParam >> 16 & 0xFFFF); }
};

// Notices from the library to its controls, sent with Perform. WParam and LParam are 0 unless said.
inline constexpr UINT CM_BASE = 0xB000;
inline constexpr UINT CM_ENTER = CM_BASE + 2;      ///< The focus has come in.
inline constexpr UINT CM_EXIT = CM_BASE + 3;       ///< The focus is leaving.
inline constexpr UINT CM_DIALOGKEY = CM_BASE + 4;  ///< WParam: key; Result 1: handled.
inline constexpr UINT CM_DIALOGCHAR =
    CM_BASE + 5;  ///< WParam: character with Alt; Result 1: handled.
inline constexpr UINT CM_FOCUSCHANGED = CM_BASE + 6;  ///< LParam: the TWinControl that has it now.
inline constexpr UINT CM_PARENTFONTCHANGED = CM_BASE + 7;
inline constexpr UINT CM_PARENTCOLORCHANGED = CM_BASE + 8;
inline constexpr UINT CM_PARENTSHOWHINTCHANGED = CM_BASE + 9;
inline constexpr UINT CM_VISIBLECHANGED = CM_BASE + 10;
inline constexpr UINT CM_ENABLEDCHANGED = CM_BASE + 11;
inline constexpr UINT CM_COLORCHANGED = CM_BASE + 12;
inline constexpr UINT CM_FONTCHANGED = CM_BASE + 13;
inline constexpr UINT CM_CURSORCHANGED = CM_BASE + 14;
inline constexpr UINT CM_TEXTCHANGED = CM_BASE + 15;
inline constexpr UINT CM_MOUSEENTER = CM_BASE + 16;
inline constexpr UINT CM_MOUSELEAVE = CM_BASE + 17;
inline constexpr UINT CM_SHOWINGCHANGED = CM_BASE + 18;
inline constexpr UINT CM_SHOWHINTCHANGED = CM_BASE + 19;
inline constexpr UINT CM_HINTSHOW = CM_BASE + 20;  ///< LParam: THintInfo*; Result 1: show none.
inline constexpr UINT CM_HITTEST = CM_BASE + 21;   ///< LParam: point; Result: 1 when it is in.
inline constexpr UINT CM_WANTSPECIALKEY =
    CM_BASE + 22;  ///< WParam: key; Result 1: the control takes it.
inline constexpr UINT CM_CHILDKEY =
    CM_BASE + 23;  ///< WParam: key, LParam: the child; Result 1: handled.
inline constexpr UINT CM_ACTIVATE = CM_BASE + 24;
inline constexpr UINT CM_DEACTIVATE = CM_BASE + 25;
inline constexpr UINT CM_SYSCOLORCHANGE = CM_BASE + 26;
inline constexpr UINT CM_DESIGNHITTEST =
    CM_BASE + 27;  ///< Result 1: the control wants the mouse in the designer.
inline constexpr UINT CM_CTL3DCHANGED = CM_BASE + 28;
inline constexpr UINT CM_PARENTCTL3DCHANGED = CM_BASE + 29;
inline constexpr UINT CM_CONTROLLISTCHANGE =
    CM_BASE + 61;  ///< LParam: TControl* that came in (WParam 1) or is leaving (0).
inline constexpr UINT CM_CAPTUREKEY =
    CM_BASE + 60;  ///< WParam: key pressed while the mouse is captured; Result 1: handled.

// Notifications that a window sends to its parent, sent back to the control it came from: CN_BASE
// and the number of the system's message (WM_COMMAND for CN_COMMAND).
inline constexpr UINT CN_BASE = 0xBC00;
inline constexpr UINT CN_COMMAND = CN_BASE + 0x0111;
inline constexpr UINT CN_NOTIFY = CN_BASE + 0x004E;
inline constexpr UINT CN_DRAWITEM = CN_BASE + 0x002B;
inline constexpr UINT CN_MEASUREITEM = CN_BASE + 0x002C;
inline constexpr UINT CN_HSCROLL = CN_BASE + 0x0114;
inline constexpr UINT CN_VSCROLL = CN_BASE + 0x0115;
inline constexpr UINT CN_CTLCOLOR = CN_BASE + 0x0132;  ///< Any of the WM_CTLCOLOR family.
inline constexpr UINT CN_KEYDOWN = CN_BASE + 0x0100;
inline constexpr UINT CN_CHAR = CN_BASE + 0x0102;
inline constexpr UINT CN_SYSKEYDOWN = CN_BASE + 0x0104;
inline constexpr UINT CN_SYSCHAR = CN_BASE + 0x0106;

}  // namespace vcl
