// Having the clipboard for oneself, and the text on it.
#include "vcl/forms/clipboardtext.h"

#include <algorithm>
#include <cstring>

#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

TClipboardTurn::TClipboardTurn() {
  constexpr int attempts = 10;
  constexpr DWORD pause = 20;  // Milliseconds; others hold it for a moment only.
  for (int i = 0; i < attempts; ++i) {
    if (::OpenClipboard(Application()->Handle())) return;
    ::Sleep(pause);
  }
  throw EInOutError("The clipboard is in use by another program");
}

TClipboardTurn::~TClipboardTurn() { ::CloseClipboard(); }

void SetClipboardText(const std::string& text) {
  std::string lines;
  for (char c : text) {
    if (c == '\n') lines += '\r';
    lines += c;
  }
  const std::wstring wide = ToUtf16(lines);
  const TClipboardTurn turn;
  ::EmptyClipboard();
  const std::size_t size = (wide.size() + 1) * sizeof(wchar_t);
  const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, size);
  if (!block) throw EInOutError("The text is too large for the clipboard");
  std::memcpy(::GlobalLock(block), wide.c_str(), size);
  ::GlobalUnlock(block);
  if (::SetClipboardData(CF_UNICODETEXT, block)) return;
  ::GlobalFree(block);
  throw EInOutError("The clipboard does not take the text");
}

std::string ClipboardText() {
  const TClipboardTurn turn;
  const HANDLE block = ::GetClipboardData(CF_UNICODETEXT);
  const auto* data = block ? static_cast<const wchar_t*>(::GlobalLock(block)) : nullptr;
  if (!data) return {};
  // The block may be longer than its text, and need not end with a zero.
  const std::size_t most = ::GlobalSize(block) / sizeof(wchar_t);
  std::string text =
      ToUtf8({data, static_cast<std::size_t>(std::find(data, data + most, L'\0') - data)});
  ::GlobalUnlock(block);
  std::erase(text, '\r');
  return text;
}

}  // namespace vcl
