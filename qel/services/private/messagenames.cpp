// The system's names of messages, and reading what a developer writes for one.
#include "qel/services/private/messagenames.h"

#include <algorithm>
#include <iterator>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

struct TNamed {
  std::string_view Name;
  UINT Number;
};

// Only the preprocessor can write a name twice, once as a text.
#define NAMED(message) \
  { #message, message }  // NOLINT(cppcoreguidelines-macro-usage)
constexpr TNamed Named[] = {NAMED(WM_NULL),
                            NAMED(WM_CREATE),
                            NAMED(WM_DESTROY),
                            NAMED(WM_MOVE),
                            NAMED(WM_SIZE),
                            NAMED(WM_ACTIVATE),
                            NAMED(WM_SETFOCUS),
                            NAMED(WM_KILLFOCUS),
                            NAMED(WM_ENABLE),
                            NAMED(WM_SETREDRAW),
                            NAMED(WM_SETTEXT),
                            NAMED(WM_GETTEXT),
                            NAMED(WM_GETTEXTLENGTH),
                            NAMED(WM_PAINT),
                            NAMED(WM_CLOSE),
                            NAMED(WM_QUERYENDSESSION),
                            NAMED(WM_QUIT),
                            NAMED(WM_QUERYOPEN),
                            NAMED(WM_ERASEBKGND),
                            NAMED(WM_SYSCOLORCHANGE),
                            NAMED(WM_ENDSESSION),
                            NAMED(WM_SHOWWINDOW),
                            NAMED(WM_SETTINGCHANGE),
                            NAMED(WM_WININICHANGE),
                            NAMED(WM_DEVMODECHANGE),
                            NAMED(WM_ACTIVATEAPP),
                            NAMED(WM_FONTCHANGE),
                            NAMED(WM_TIMECHANGE),
                            NAMED(WM_CANCELMODE),
                            NAMED(WM_SETCURSOR),
                            NAMED(WM_MOUSEACTIVATE),
                            NAMED(WM_CHILDACTIVATE),
                            NAMED(WM_QUEUESYNC),
                            NAMED(WM_GETMINMAXINFO),
                            NAMED(WM_NEXTDLGCTL),
                            NAMED(WM_DRAWITEM),
                            NAMED(WM_MEASUREITEM),
                            NAMED(WM_DELETEITEM),
                            NAMED(WM_VKEYTOITEM),
                            NAMED(WM_CHARTOITEM),
                            NAMED(WM_SETFONT),
                            NAMED(WM_GETFONT),
                            NAMED(WM_SETHOTKEY),
                            NAMED(WM_GETHOTKEY),
                            NAMED(WM_COMPAREITEM),
                            NAMED(WM_GETOBJECT),
                            NAMED(WM_COMPACTING),
                            NAMED(WM_WINDOWPOSCHANGING),
                            NAMED(WM_WINDOWPOSCHANGED),
                            NAMED(WM_POWER),
                            NAMED(WM_COPYDATA),
                            NAMED(WM_NOTIFY),
                            NAMED(WM_INPUTLANGCHANGEREQUEST),
                            NAMED(WM_INPUTLANGCHANGE),
                            NAMED(WM_HELP),
                            NAMED(WM_USERCHANGED),
                            NAMED(WM_NOTIFYFORMAT),
                            NAMED(WM_CONTEXTMENU),
                            NAMED(WM_STYLECHANGING),
                            NAMED(WM_STYLECHANGED),
                            NAMED(WM_DISPLAYCHANGE),
                            NAMED(WM_GETICON),
                            NAMED(WM_SETICON),
                            NAMED(WM_NCCREATE),
                            NAMED(WM_NCDESTROY),
                            NAMED(WM_NCCALCSIZE),
                            NAMED(WM_NCHITTEST),
                            NAMED(WM_NCPAINT),
                            NAMED(WM_NCACTIVATE),
                            NAMED(WM_GETDLGCODE),
                            NAMED(WM_NCMOUSEMOVE),
                            NAMED(WM_NCLBUTTONDOWN),
                            NAMED(WM_NCLBUTTONUP),
                            NAMED(WM_NCLBUTTONDBLCLK),
                            NAMED(WM_NCRBUTTONDOWN),
                            NAMED(WM_NCRBUTTONUP),
                            NAMED(WM_NCRBUTTONDBLCLK),
                            NAMED(WM_NCMBUTTONDOWN),
                            NAMED(WM_NCMBUTTONUP),
                            NAMED(WM_NCMBUTTONDBLCLK),
                            NAMED(WM_NCXBUTTONDOWN),
                            NAMED(WM_NCXBUTTONUP),
                            NAMED(WM_NCXBUTTONDBLCLK),
                            NAMED(WM_INPUT),
                            NAMED(WM_KEYDOWN),
                            NAMED(WM_KEYUP),
                            NAMED(WM_CHAR),
                            NAMED(WM_DEADCHAR),
                            NAMED(WM_SYSKEYDOWN),
                            NAMED(WM_SYSKEYUP),
                            NAMED(WM_SYSCHAR),
                            NAMED(WM_SYSDEADCHAR),
                            NAMED(WM_UNICHAR),
                            NAMED(WM_IME_STARTCOMPOSITION),
                            NAMED(WM_IME_ENDCOMPOSITION),
                            NAMED(WM_IME_COMPOSITION),
                            NAMED(WM_INITDIALOG),
                            NAMED(WM_COMMAND),
                            NAMED(WM_SYSCOMMAND),
                            NAMED(WM_TIMER),
                            NAMED(WM_HSCROLL),
                            NAMED(WM_VSCROLL),
                            NAMED(WM_INITMENU),
                            NAMED(WM_INITMENUPOPUP),
                            NAMED(WM_MENUSELECT),
                            NAMED(WM_MENUCHAR),
                            NAMED(WM_ENTERIDLE),
                            NAMED(WM_MENURBUTTONUP),
                            NAMED(WM_MENUDRAG),
                            NAMED(WM_MENUGETOBJECT),
                            NAMED(WM_UNINITMENUPOPUP),
                            NAMED(WM_MENUCOMMAND),
                            NAMED(WM_CHANGEUISTATE),
                            NAMED(WM_UPDATEUISTATE),
                            NAMED(WM_QUERYUISTATE),
                            NAMED(WM_CTLCOLORMSGBOX),
                            NAMED(WM_CTLCOLOREDIT),
                            NAMED(WM_CTLCOLORLISTBOX),
                            NAMED(WM_CTLCOLORBTN),
                            NAMED(WM_CTLCOLORDLG),
                            NAMED(WM_CTLCOLORSCROLLBAR),
                            NAMED(WM_CTLCOLORSTATIC),
                            NAMED(WM_MOUSEMOVE),
                            NAMED(WM_LBUTTONDOWN),
                            NAMED(WM_LBUTTONUP),
                            NAMED(WM_LBUTTONDBLCLK),
                            NAMED(WM_RBUTTONDOWN),
                            NAMED(WM_RBUTTONUP),
                            NAMED(WM_RBUTTONDBLCLK),
                            NAMED(WM_MBUTTONDOWN),
                            NAMED(WM_MBUTTONUP),
                            NAMED(WM_MBUTTONDBLCLK),
                            NAMED(WM_MOUSEWHEEL),
                            NAMED(WM_XBUTTONDOWN),
                            NAMED(WM_XBUTTONUP),
                            NAMED(WM_XBUTTONDBLCLK),
                            NAMED(WM_MOUSEHWHEEL),
                            NAMED(WM_PARENTNOTIFY),
                            NAMED(WM_ENTERMENULOOP),
                            NAMED(WM_EXITMENULOOP),
                            NAMED(WM_NEXTMENU),
                            NAMED(WM_SIZING),
                            NAMED(WM_CAPTURECHANGED),
                            NAMED(WM_MOVING),
                            NAMED(WM_POWERBROADCAST),
                            NAMED(WM_DEVICECHANGE),
                            NAMED(WM_MDICREATE),
                            NAMED(WM_MDIDESTROY),
                            NAMED(WM_MDIACTIVATE),
                            NAMED(WM_MDIRESTORE),
                            NAMED(WM_MDINEXT),
                            NAMED(WM_MDIMAXIMIZE),
                            NAMED(WM_MDITILE),
                            NAMED(WM_MDICASCADE),
                            NAMED(WM_MDIICONARRANGE),
                            NAMED(WM_MDIGETACTIVE),
                            NAMED(WM_MDISETMENU),
                            NAMED(WM_ENTERSIZEMOVE),
                            NAMED(WM_EXITSIZEMOVE),
                            NAMED(WM_DROPFILES),
                            NAMED(WM_MDIREFRESHMENU),
                            NAMED(WM_IME_SETCONTEXT),
                            NAMED(WM_IME_NOTIFY),
                            NAMED(WM_IME_CONTROL),
                            NAMED(WM_IME_COMPOSITIONFULL),
                            NAMED(WM_IME_SELECT),
                            NAMED(WM_IME_CHAR),
                            NAMED(WM_IME_REQUEST),
                            NAMED(WM_IME_KEYDOWN),
                            NAMED(WM_IME_KEYUP),
                            NAMED(WM_MOUSEHOVER),
                            NAMED(WM_MOUSELEAVE),
                            NAMED(WM_NCMOUSEHOVER),
                            NAMED(WM_NCMOUSELEAVE),
                            NAMED(WM_WTSSESSION_CHANGE),
                            NAMED(WM_DPICHANGED),
                            NAMED(WM_CUT),
                            NAMED(WM_COPY),
                            NAMED(WM_PASTE),
                            NAMED(WM_CLEAR),
                            NAMED(WM_UNDO),
                            NAMED(WM_RENDERFORMAT),
                            NAMED(WM_RENDERALLFORMATS),
                            NAMED(WM_DESTROYCLIPBOARD),
                            NAMED(WM_DRAWCLIPBOARD),
                            NAMED(WM_PAINTCLIPBOARD),
                            NAMED(WM_VSCROLLCLIPBOARD),
                            NAMED(WM_SIZECLIPBOARD),
                            NAMED(WM_ASKCBFORMATNAME),
                            NAMED(WM_CHANGECBCHAIN),
                            NAMED(WM_HSCROLLCLIPBOARD),
                            NAMED(WM_QUERYNEWPALETTE),
                            NAMED(WM_PALETTEISCHANGING),
                            NAMED(WM_PALETTECHANGED),
                            NAMED(WM_HOTKEY),
                            NAMED(WM_PRINT),
                            NAMED(WM_PRINTCLIENT),
                            NAMED(WM_APPCOMMAND),
                            NAMED(WM_THEMECHANGED),
                            NAMED(WM_CLIPBOARDUPDATE),
                            NAMED(WM_DWMCOMPOSITIONCHANGED),
                            NAMED(WM_USER),
                            NAMED(WM_APP)};
#undef NAMED

std::optional<UINT> ByName(std::string_view name) {
  const auto* const found = std::ranges::find_if(
      Named, [&](const TNamed& each) { return vcl::SameText(each.Name, name); });
  return found == std::end(Named) ? std::nullopt : std::optional(found->Number);
}

std::optional<UINT> ByNumber(std::string_view digits) {
  int number = 0;
  if (!vcl::TryStrToInt(digits, number) || number < 0) return std::nullopt;
  return static_cast<UINT>(number);
}

std::optional<UINT> ByEither(std::string_view text) {
  const std::string_view word = vcl::Trim(text);
  const std::optional<UINT> named = ByName(word);
  return named ? named : ByNumber(word);
}

}  // namespace

std::optional<UINT> MessageNumber(std::string_view text) {
  const std::size_t plus = text.find('+');
  if (plus == std::string_view::npos) return ByEither(text);
  const std::optional<UINT> base = ByEither(text.substr(0, plus));
  const std::optional<UINT> more = ByEither(text.substr(plus + 1));
  if (!base || !more) return std::nullopt;
  return *base + *more;
}

}  // namespace qel
