// The tool that shows what is on the clipboard.
#include "design/toollist.h"
#include "design/tools.h"
#include "host/rtl/convert.h"
#include "host/rtl/exceptions.h"
#include "host/rtl/text.h"
#include "host/vcl/application.h"
#include "host/vcl/windowtext.h"

namespace qel {
namespace {

using namespace vcl;

/// One kind of data on the clipboard.
struct TContent {
  std::string Name;
  std::string Details;
};

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

class TOpenClipboard {
 public:
  TOpenClipboard() {
    if (::OpenClipboard(Application()->Handle())) return;
    throw EOutOfResources("The clipboard cannot be opened: another program has it open");
  }
  ~TOpenClipboard() { ::CloseClipboard(); }
  TOpenClipboard(const TOpenClipboard&) = delete;
  TOpenClipboard& operator=(const TOpenClipboard&) = delete;
};

/// The text without what follows its NUL, or as much as the block holds.
std::string TextOf(HGLOBAL block) {
  const auto* text = static_cast<const wchar_t*>(::GlobalLock(block));
  if (!text) return {};
  const std::wstring_view whole(text, ::GlobalSize(block) / sizeof *text);
  std::string result = ToUtf8(whole.substr(0, whole.find(L'\0')));
  ::GlobalUnlock(block);
  return result;
}

/// Only text can be shown; pictures on the clipboard are no blocks of memory.
std::string DetailsOf(UINT format) {
  if (format != CF_UNICODETEXT) return Concat("Data of the format \"", FormatName(format), "\"");
  const HANDLE data = ::GetClipboardData(format);
  return data ? TextOf(data) : std::string();
}

std::vector<TContent> ReadClipboard() {
  std::vector<TContent> contents;
  const TOpenClipboard opened;
  for (UINT format = ::EnumClipboardFormats(0); format; format = ::EnumClipboardFormats(format)) {
    contents.push_back({FormatName(format), DetailsOf(format)});
  }
  return contents;
}

}  // namespace

void ViewClipboard(TEnvironment&) {
  const auto contents = ReadClipboard();
  TQELToolList list{"Clipboard Contents", {}, [&](int index) {
                      return contents[static_cast<std::size_t>(index)].Details;
                    }};
  for (const TContent& content : contents) list.Lines.push_back(content.Name);
  ShowToolList(list);
}

}  // namespace qel
