// TClipboard: opening it, and its data.
#include "vcl/transfer/clipboard.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "vcl/forms/application.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/transfer/private/comdata.h"

namespace vcl {

EClipboardError::~EClipboardError() = default;
EClipboardInUse::~EClipboardInUse() = default;

namespace {

constexpr DWORD Pause = 20;  // Milliseconds; others hold it for a moment only.

/// A block that is freed unless the clipboard has taken it.
using TOwnedBlock = TOwned<HGLOBAL, [](HGLOBAL block) { ::GlobalFree(block); }>;

std::string ProgramOf(DWORD process) {
  const HANDLE handle = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
  if (!handle) return {};
  wchar_t name[1024];
  DWORD size = static_cast<DWORD>(std::size(name));
  const bool known = ::QueryFullProcessImageNameW(handle, 0, name, &size);
  ::CloseHandle(handle);
  return known ? ToUtf8({name, size}) : std::string();
}

[[noreturn]] void RaiseInUse() {
  const HWND window = ::GetOpenClipboardWindow();
  if (!window) throw EClipboardInUse("The clipboard is in use by another program", nullptr, 0);
  DWORD process = 0;
  ::GetWindowThreadProcessId(window, &process);
  // Never asks the window itself, which may be waiting for us.
  wchar_t title[256] = L"";
  ::InternalGetWindowText(window, title, static_cast<int>(std::size(title)));
  throw EClipboardInUse(Concat("The clipboard is in use by the window \"", ToUtf8(title), "\" of ",
                               ProgramOf(process), " (process ", std::to_string(process), ")"),
                        window, process);
}

/// Formats whose data is a handle of another kind than a block of memory.
bool IsBlock(TTransferFormat format) {
  switch (format) {
    case CF_BITMAP:
    case CF_DSPBITMAP:
    case CF_PALETTE:
    case CF_METAFILEPICT:
    case CF_DSPMETAFILEPICT:
    case CF_ENHMETAFILE:
    case CF_DSPENHMETAFILE:
    case CF_OWNERDISPLAY: return false;
    default: return format < CF_GDIOBJFIRST || format > CF_GDIOBJLAST;
  }
}

}  // namespace

TClipboard* Clipboard() {
  static TClipboard clipboard;
  return &clipboard;
}

TClipboardTurn::TClipboardTurn() { Clipboard()->Open(); }
TClipboardTurn::~TClipboardTurn() { Clipboard()->Close(); }

void TClipboard::Open() {
  if (FOpened == 0) {
    const ULONGLONG end = ::GetTickCount64() + static_cast<ULONGLONG>(std::max(FPatience, 0));
    while (!::OpenClipboard(Application()->Handle())) {
      if (::GetTickCount64() >= end) RaiseInUse();
      ::Sleep(Pause);
    }
    FEmptied = false;
  }
  ++FOpened;
}

void TClipboard::Close() {
  if (FOpened == 0) throw EInvalidOperation("The clipboard is closed, but was not open");
  if (--FOpened == 0) ::CloseClipboard();
}

std::vector<TTransferFormat> TClipboard::Formats() const {
  const TClipboardTurn turn;
  std::vector<TTransferFormat> formats;
  for (UINT format = 0; (format = ::EnumClipboardFormats(format)) != 0;) formats.push_back(format);
  return formats;
}

bool TClipboard::HasFormat(TTransferFormat format) const {
  return ::IsClipboardFormatAvailable(format);
}

std::optional<std::string> TClipboard::Bytes(TTransferFormat format) const {
  if (!HasFormat(format) || !IsBlock(format)) return std::nullopt;
  const TClipboardTurn turn;
  const HANDLE block = ::GetClipboardData(format);
  if (!block) return std::nullopt;
  return BlockBytes(block);
}

void TClipboard::Clear() {
  const TClipboardTurn turn;
  if (!::EmptyClipboard()) RaiseLastOSError<EClipboardError>("The clipboard cannot be emptied");
  FEmptied = true;
}

void TClipboard::Put(const TDataObject& data) {
  std::vector<std::pair<TTransferFormat, TOwnedBlock>> blocks;
  for (const TTransferFormat format : data.Formats()) {
    blocks.emplace_back(format, TOwnedBlock(MakeBlock(*data.Bytes(format))));
  }
  const TClipboardTurn turn;
  if (!FEmptied) Clear();
  for (auto& [format, block] : blocks) {
    if (!::SetClipboardData(format, block.Get())) {
      RaiseLastOSError<EClipboardError>("The clipboard does not take the format ",
                                        TransferFormatName(format));
    }
    block.Release();
  }
}

void TClipboard::SetAsText(const std::string& text) {
  TDataObject data;
  data.SetText(text);
  Put(data);
}

void TClipboard::SetHtml(const THtmlPiece& piece) {
  TDataObject data;
  data.SetHtml(piece);
  Put(data);
}

void TClipboard::SetFiles(const std::vector<std::string>& names) {
  TDataObject data;
  data.SetFiles(names);
  Put(data);
}

void TClipboard::SetPicture(const TGraphic& picture) {
  TDataObject data;
  data.SetPicture(picture);
  Put(data);
}

void TClipboard::SetComponent(TComponent& component) {
  TDataObject data;
  data.SetComponent(component);
  Put(data);
}

void TClipboard::SetBytes(TTransferFormat format, const std::string& bytes) {
  TDataObject data;
  data.SetBytes(format, bytes);
  Put(data);
}

}  // namespace vcl
