// The tool that shows what is on the clipboard.
#include "qel/design/toollist.h"
#include "qel/design/tools.h"
#include "vcl/forms/clipboardtext.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

#include <shellapi.h>

namespace qel {
namespace {

using namespace vcl;

constexpr struct {
  UINT Format;
  const char* Name;
} StandardFormats[] = {
    {CF_UNICODETEXT, "Text (Unicode)"},
    {CF_TEXT, "Text"},
    {CF_OEMTEXT, "Text (OEM)"},
    {CF_BITMAP, "Bitmap"},
    {CF_DIB, "Picture"},
    {CF_DIBV5, "Picture (V5)"},
    {CF_ENHMETAFILE, "Metafile"},
    {CF_HDROP, "Files"},
    {CF_LOCALE, "Language of the text"},
    {CF_PALETTE, "Palette"},
    {CF_WAVE, "Sound"},
    {CF_TIFF, "Picture (TIFF)"},
};

std::string FormatName(UINT format) {
  for (const auto& [each, name] : StandardFormats) {
    if (each == format) return name;
  }
  wchar_t name[256];
  const int length = ::GetClipboardFormatNameW(format, name, static_cast<int>(std::size(name)));
  if (length > 0) return ToUtf8({name, static_cast<std::size_t>(length)});
  return Concat("Format ", IntToStr(format));
}

std::string FileNames(HANDLE data) {
  const auto drop = static_cast<HDROP>(data);
  std::string names;
  for (UINT i = 0, count = ::DragQueryFileW(drop, ~0U, nullptr, 0); i < count; ++i) {
    std::wstring name(::DragQueryFileW(drop, i, nullptr, 0), L'\0');
    ::DragQueryFileW(drop, i, name.data(), static_cast<UINT>(name.size()) + 1);
    names += ToUtf8(name) + '\n';
  }
  return names;
}

std::string PictureSize(HANDLE data) {
  BITMAP bitmap{};
  ::GetObjectW(data, sizeof bitmap, &bitmap);
  return Concat("A picture of ", IntToStr(bitmap.bmWidth), " by ", IntToStr(bitmap.bmHeight),
                " pixels");
}

/// One kind of data on the clipboard, and what there is to see of it.
struct TContent {
  UINT Format;
  std::string Details;
};

TContent Read(UINT format) {
  const HANDLE data =
      format == CF_HDROP || format == CF_BITMAP ? ::GetClipboardData(format) : nullptr;
  if (!data) return {format, Concat("Data of the format \"", FormatName(format), "\"")};
  return {format, format == CF_HDROP ? FileNames(data) : PictureSize(data)};
}

std::vector<TContent> ReadClipboard() {
  std::vector<TContent> contents;
  const TClipboardTurn turn;
  for (UINT format = ::EnumClipboardFormats(0); format; format = ::EnumClipboardFormats(format)) {
    contents.push_back(Read(format));
  }
  return contents;
}

}  // namespace

void ViewClipboard(TEnvironment&) {
  auto contents = ReadClipboard();
  for (TContent& each : contents) {
    if (each.Format == CF_UNICODETEXT) each.Details = ClipboardText();
  }
  TQELToolList list{"Clipboard Contents", {}, [&](int index) {
                      return contents[static_cast<std::size_t>(index)].Details;
                    }};
  for (const TContent& each : contents) list.Lines.push_back(FormatName(each.Format));
  ShowToolList(list);
}

}  // namespace qel
