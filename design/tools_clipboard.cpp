// The tool that shows what is on the clipboard.
#include "design/toollist.h"
#include "design/tools.h"
#include "host/rtl/convert.h"
#include "host/rtl/text.h"
#include "host/vcl/clipboardtext.h"
#include "host/vcl/windowtext.h"

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

std::vector<UINT> FormatsOnClipboard() {
  std::vector<UINT> formats;
  const TClipboardTurn turn;
  for (UINT format = ::EnumClipboardFormats(0); format; format = ::EnumClipboardFormats(format)) {
    formats.push_back(format);
  }
  return formats;
}

}  // namespace

// Of the formats only text can be shown.
void ViewClipboard(TEnvironment&) {
  const auto formats = FormatsOnClipboard();
  const std::string text = ClipboardText();
  TQELToolList list{"Clipboard Contents", {}, [&](int index) {
                      const UINT format = formats[static_cast<std::size_t>(index)];
                      return format == CF_UNICODETEXT
                                 ? text
                                 : Concat("Data of the format \"", FormatName(format), "\"");
                    }};
  for (const UINT format : formats) list.Lines.push_back(FormatName(format));
  ShowToolList(list);
}

}  // namespace qel
