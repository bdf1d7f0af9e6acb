// TCustomRichEdit: its window, fonts and colours in it, and what it tells.
#include "vcl/stdctrls/richedit.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/private/richformats.h"

namespace vcl {
namespace {

/// The window class of the newest rich edit that the system has. Its library stays loaded.
const char* RichEditClass() {
  static const char* const found = [] {
    if (::LoadLibraryW(L"msftedit.dll")) return "RICHEDIT50W";
    return ::LoadLibraryW(L"riched20.dll") ? "RichEdit20W" : static_cast<const char*>(nullptr);
  }();
  if (!found) RaiseOutOfResources("rich edit");
  return found;
}

constexpr LPARAM MostText = 0x7FFFFFFE;

}  // namespace

const TClass& TCustomRichEdit::Class() {
  using T = TCustomRichEdit;
  static const TClass info = Describe<T, TCustomMemo>(
      "vcl::TCustomRichEdit", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::HideScrollBars, &T::SetHideScrollBars>("HideScrollBars")
              .Default(true)
              .Unpublished(),
          Property<&T::PlainText, &T::SetPlainText>("PlainText").Default(false).Unpublished(),
          Event<&T::OnProtectChange>("OnProtectChange")
              .Type("TRichEditProtectChange",
                    "vcl::TObject* sender, int start, int end, bool& allow")
              .Unpublished(),
          Event<&T::OnResizeRequest>("OnResizeRequest").Unpublished(),
          Event<&T::OnSelectionChange>("OnSelectionChange").Unpublished(),
      });
  return info;
}

const TClass& TRichEdit::Class() {
  static const TClass info =
      Describe<TRichEdit, TCustomRichEdit>("vcl::TRichEdit", "vcl/stdctrls/comctrls.h",
                                           {
                                               Inherit("Align"),
                                               Inherit("Alignment"),
                                               Inherit("BorderStyle"),
                                               Inherit("Color"),
                                               Inherit("Ctl3D"),
                                               Inherit("DragCursor"),
                                               Inherit("DragMode"),
                                               Inherit("Enabled"),
                                               Inherit("Font"),
                                               Inherit("HideScrollBars"),
                                               Inherit("HideSelection"),
                                               Inherit("ImeMode"),
                                               Inherit("ImeName"),
                                               Inherit("Lines"),
                                               Inherit("MaxLength"),
                                               Inherit("ParentColor"),
                                               Inherit("ParentCtl3D"),
                                               Inherit("ParentFont"),
                                               Inherit("ParentShowHint"),
                                               Inherit("PlainText"),
                                               Inherit("PopupMenu"),
                                               Inherit("ReadOnly"),
                                               Inherit("ScrollBars"),
                                               Inherit("ShowHint"),
                                               Inherit("TabOrder"),
                                               Inherit("TabStop"),
                                               Inherit("Visible"),
                                               Inherit("WantReturns"),
                                               Inherit("WantTabs"),
                                               Inherit("WordWrap"),
                                               Inherit("OnChange"),
                                               Inherit("OnClick"),
                                               Inherit("OnDblClick"),
                                               Inherit(DragEvents),
                                               Inherit(FocusEvents),
                                               Inherit(KeyEvents),
                                               Inherit(MouseEvents),
                                               Inherit("OnProtectChange"),
                                               Inherit("OnResizeRequest"),
                                               Inherit("OnSelectionChange"),
                                               Inherit(WheelEvents),
                                               Inherit("OnStartDrag"),
                                           });
  return info;
}

TCustomRichEdit::TCustomRichEdit(TComponent* owner)
    : TCustomMemo(owner),
      FDefAttributes(std::make_unique<TTextAttributes>(*this, TTextAttributes::TOf::Default)),
      FSelAttributes(std::make_unique<TTextAttributes>(*this, TTextAttributes::TOf::Selection)),
      FParagraph(std::make_unique<TParaAttributes>(*this)) {}

TCustomRichEdit::~TCustomRichEdit() { AnnounceEnd(); }

void TCustomRichEdit::SetHideScrollBars(bool hide) {
  if (hide == FHideScrollBars) return;
  FHideScrollBars = hide;
  RecreateWnd();
}

void TCustomRichEdit::CreateParams(TCreateParams& params) {
  TCustomMemo::CreateParams(params);
  params.SubClassOf = RichEditClass();
  if (!FHideScrollBars) params.Style |= ES_DISABLENOSCROLL;
}

void TCustomRichEdit::CreateWnd() {
  const int start = SelStart();
  const int length = SelLength();
  TCustomMemo::CreateWnd();
  ApplyColor();
  const bool modified = Modified();
  if (!FKeptRtf.empty()) {
    StreamIn(std::exchange(FKeptRtf, {}));
    SetSelStart(start);
    SetSelLength(length);
    SetModified(modified);
  }
  ListenToWindow(true);
}

void TCustomRichEdit::DestroyWnd() {
  ListenToWindow(false);
  if (FFormatted) FKeptRtf = Rtf();
  TCustomMemo::DestroyWnd();
}

/// What the window tells of; nothing while the library changes the text for its own ends.
void TCustomRichEdit::ListenToWindow(bool listen) {
  const LPARAM all = ENM_CHANGE | ENM_SELCHANGE | ENM_PROTECTED | ENM_REQUESTRESIZE;
  Send(*this, EM_SETEVENTMASK, 0, listen ? all : 0);
}

void TCustomRichEdit::SetTextBuf(const char* text) {
  FKeptRtf.clear();
  FFormatted = false;
  TCustomMemo::SetTextBuf(text);
}

void TCustomRichEdit::ApplyCharFormat(std::uintptr_t range, void* format) {
  if (range == SCF_DEFAULT) {
    Send(*this, EM_SETCHARFORMAT, range, reinterpret_cast<LPARAM>(format));
    CHARFORMAT2W whole = rich::EmptyCharFormat();
    Send(*this, EM_GETCHARFORMAT, SCF_DEFAULT, reinterpret_cast<LPARAM>(&whole));
    FKeptDefault.assign(reinterpret_cast<const char*>(&whole), sizeof whole);
    return;
  }
  FFormatted = true;
  Send(*this, EM_SETCHARFORMAT, range, reinterpret_cast<LPARAM>(format));
}

/// The system would take the font's pixels for points of the screen. Points stay points here, and
/// the text is zoomed as the form is scaled.
void TCustomRichEdit::ApplyFont() {
  CHARFORMAT2W format = rich::FormatOf(*Font());
  if (!FKeptDefault.empty()) std::memcpy(&format, FKeptDefault.data(), sizeof format);
  Send(*this, EM_SETCHARFORMAT, SCF_DEFAULT, reinterpret_cast<LPARAM>(&format));
  if (!FFormatted) Send(*this, EM_SETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&format));
  const HDC dc = ::GetDC(nullptr);
  const int screen = ::GetDeviceCaps(dc, LOGPIXELSY);
  ::ReleaseDC(nullptr, dc);
  const int own = Font()->PixelsPerInch();
  Send(*this, EM_SETZOOM, own == screen ? 0 : static_cast<WPARAM>(own), own == screen ? 0 : screen);
}

void TCustomRichEdit::ApplyColor() { Send(*this, EM_SETBKGNDCOLOR, 0, ColorToRGB(Color())); }

std::string TCustomRichEdit::SelText() const {
  if (!HandleAllocated()) return TCustomMemo::SelText();
  std::wstring text(static_cast<std::size_t>(SelLength()) + 1, L'\0');
  text.resize(static_cast<std::size_t>(
      Send(*this, EM_GETSELTEXT, 0, reinterpret_cast<LPARAM>(text.data()))));
  std::string lines;
  for (const char c : ToUtf8(text)) c == '\r' ? lines.append("\r\n") : lines.append(1, c);
  return lines;
}

void TCustomRichEdit::AskProtected(TMessage& message) {
  const auto& asked = *reinterpret_cast<const ENPROTECTED*>(message.LParam);
  bool allow = false;
  OnProtectChange(this, static_cast<int>(asked.chrg.cpMin), static_cast<int>(asked.chrg.cpMax),
                  allow);
  message.Result = allow ? 0 : 1;
}

bool TCustomRichEdit::NotifyFromWindow(TMessage& message) {
  const auto& header = *reinterpret_cast<const NMHDR*>(message.LParam);
  switch (header.code) {
    case EN_SELCHANGE: OnSelectionChange(this); return true;
    case EN_PROTECTED: AskProtected(message); return true;
    case EN_REQUESTRESIZE:
      OnResizeRequest(this, reinterpret_cast<const REQRESIZE*>(message.LParam)->rc);
      return true;
    default: return false;
  }
}

void TCustomRichEdit::Dispatch(TMessage& message) {
  switch (message.Msg) {
    case CN_NOTIFY:
      if (NotifyFromWindow(message)) return;
      break;
    case WM_SETFONT: return ApplyFont();
    // Without a limit, the system would set its own.
    case EM_LIMITTEXT:
      Send(*this, EM_EXLIMITTEXT, 0, message.WParam == 0 ? MostText : message.WParam);
      return;
    default: break;
  }
  const TWatch watch(this);
  TCustomMemo::Dispatch(message);
  if (!watch.Gone() && message.Msg == CM_COLORCHANGED && HandleAllocated()) ApplyColor();
}

}  // namespace vcl
