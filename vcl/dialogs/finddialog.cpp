// TFindDialog and TReplaceDialog: what the system's dialog reads and writes while it is up.
#include "vcl/dialogs/finddialog.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "vcl/controls/messagewindow.h"
#include "vcl/controls/windowtext.h"
#include "vcl/forms/private/modelessdialogs.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

#include <dlgs.h>

namespace vcl {

namespace {

constexpr std::size_t LongestText = 1023;  // UTF-16 units.

// By the ordinals of TFindOption.
constexpr DWORD OptionFlags[] = {FR_DOWN,          FR_MATCHCASE,     FR_WHOLEWORD, FR_HIDEUPDOWN,
                                 FR_HIDEMATCHCASE, FR_HIDEWHOLEWORD, FR_NOUPDOWN,  FR_NOMATCHCASE,
                                 FR_NOWHOLEWORD,   FR_FINDNEXT,      FR_REPLACE,   FR_REPLACEALL};
constexpr TFindOptions Pressed{frFindNext, frReplace, frReplaceAll};
constexpr TFindOptions Told{frDown, frMatchCase, frWholeWord, frFindNext, frReplace, frReplaceAll};

UINT FindMessage() {
  static const UINT message = ::RegisterWindowMessageW(FINDMSGSTRINGW);
  return message;
}

void CopyText(const std::string& text, wchar_t* buffer) {
  const std::wstring wide = ToUtf16(text);
  buffer[wide.copy(buffer, LongestText)] = 0;
}

}  // namespace

/// What the system's dialog works on. It lives as long as the dialog's window, which may be longer
/// than the component does.
struct TFindDialog::TLink {
  explicit TLink(TFindDialog* owner) : Owner(owner) {
    Listener = AllocateHWnd([this](TMessage& message) { Handle(message); });
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = Listener;
    Data.Flags = FlagsOf(owner->FOptions - Pressed, OptionFlags) | FR_ENABLEHOOK;
    Data.lpfnHook = &Hook;
    Data.lpstrFindWhat = Find;
    Data.lpstrReplaceWith = Replace;
    Data.wFindWhatLen = Data.wReplaceWithLen = sizeof Find;
    CopyText(owner->FFindText, Find);
    CopyText(owner->FReplaceText, Replace);
  }
  ~TLink() {
    if (Owner) Owner->FLink = nullptr;
    if (Window) RemoveModelessDialog(Window);
    DeallocateHWnd(Listener);
  }
  TLink(const TLink&) = delete;
  TLink& operator=(const TLink&) = delete;

  void Follow(HWND window, HWND inFrontOf) {
    Window = window;
    // The system tells the listener; the dialog stands in front of the form all the same.
    ::SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(inFrontOf));
    ::SetWindowSubclass(window, &EndWith, 0, reinterpret_cast<DWORD_PTR>(this));
    AddModelessDialog(window);
  }

  /// What stands in the field. The system tells it in the buffer, too, but not always anew: under
  /// Wine what stood there at first was seen to stay.
  std::string TextOf(int field, const wchar_t* buffer) const {
    const HWND edit = ::GetDlgItem(Window, field);
    return edit ? WindowText(edit) : ToUtf8(buffer);
  }

  void Handle(TMessage& message) const {
    if (message.Msg != FindMessage()) {
      message.Result = ::DefWindowProcW(Listener, message.Msg, message.WParam, message.LParam);
    } else if (Owner && !(Data.Flags & FR_DIALOGTERM)) {
      Owner->Take(*this);
    }
  }

  static LRESULT CALLBACK EndWith(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                  DWORD_PTR link) {
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): that is how the system keeps it.
    if (message == WM_NCDESTROY) delete reinterpret_cast<TLink*>(link);
    return result;
  }

  TFindDialog* Owner;
  HWND Listener = nullptr;
  HWND Window = nullptr;
  FINDREPLACEW Data{};
  wchar_t Find[LongestText + 1];
  wchar_t Replace[LongestText + 1];
};

const TClass& TFindDialog::Class() {
  using T = TFindDialog;
  static const TClass info = Describe<T, TCommonDialog>(
      "vcl::TFindDialog", "vcl/dialogs/dialogs.h",
      {
          Property<&T::FindText, &T::SetFindText>("FindText"),
          Property<&T::Options, &T::SetOptions>("Options").Default(TFindOptions{frDown}),
          Event<&T::OnFind>("OnFind"),
      });
  return info;
}

const TClass& TReplaceDialog::Class() {
  using T = TReplaceDialog;
  static const TClass info =
      Describe<T, TFindDialog>("vcl::TReplaceDialog", "vcl/dialogs/dialogs.h",
                               {
                                   Property<&T::ReplaceText, &T::SetReplaceText>("ReplaceText"),
                                   Event<&T::OnReplace>("OnReplace"),
                               });
  return info;
}

TFindDialog::TFindDialog(TComponent* owner) : TCommonDialog(owner) {}

// The dialog's window ends by a message, for its own code may be what has called us; until then it
// is out of sight, and its link has no owner.
TFindDialog::~TFindDialog() {
  AnnounceEnd();
  if (!FLink) return;
  FLink->Owner = nullptr;
  ::ShowWindow(FLink->Window, SW_HIDE);
}

void TFindDialog::CheckText(const std::string& text) const {
  const std::size_t length = ToUtf16(text).size();
  if (length > LongestText) {
    throw EArgumentOutOfRangeException(Concat("The text for ", ClassName(), " has ",
                                              std::to_string(length), " characters, of which ",
                                              std::to_string(LongestText), " are taken"));
  }
}

void TFindDialog::SetFindText(const std::string& text) {
  CheckText(text);
  FFindText = text;
}

void TReplaceDialog::SetReplaceText(const std::string& text) {
  CheckText(text);
  FReplaceText = text;
}

bool TFindDialog::Execute() { return Open(&::FindTextW); }
bool TReplaceDialog::Execute() { return Open(&::ReplaceTextW); }

bool TFindDialog::Open(TFunction function) {
  if (FLink) return ::SetActiveWindow(FLink->Window), true;
  auto link = std::make_unique<TLink>(this);
  const TWatch watch(this);
  const HWND window = RunModeless([&](HWND owner) {
    const HWND made = function(&link->Data);
    if (made) link->Follow(made, owner);
    return made;
  });
  TLink* const kept = link.release();  // The window's own from now on.
  if (watch.Gone()) {
    kept->Owner = nullptr;
    return false;
  }
  FLink = kept;
  ::ShowWindow(window, SW_SHOW);
  return true;
}

void TFindDialog::CloseDialog() {
  if (!FLink) return;
  ::ShowWindow(FLink->Window, SW_HIDE);
  ::PostMessageW(FLink->Window, WM_COMMAND, IDCANCEL, 0);
}

void TFindDialog::Take(const TLink& link) {
  FFindText = link.TextOf(edt1, link.Find);
  FReplaceText = link.TextOf(edt2, link.Replace);
  for (std::size_t i = 0; i < std::size(OptionFlags); ++i) {
    const auto option = static_cast<TFindOption>(i);
    if (!Told.Has(option)) continue;
    link.Data.Flags& OptionFlags[i] ? FOptions.Include(option) : FOptions.Exclude(option);
  }
  Asked();
}

UINT_PTR TFindDialog::HandleMessage(HWND window, UINT message, LPARAM lParam) {
  TCommonDialog::HandleMessage(window, message, lParam);
  return message == WM_INITDIALOG;  // The dialog then shows itself and focuses its first field.
}

void TReplaceDialog::Asked() { Options().Has(frFindNext) ? OnFind(this) : OnReplace(this); }

}  // namespace vcl
