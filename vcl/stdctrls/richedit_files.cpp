// TCustomRichEdit: RTF and text in streams and files, and finding text.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <exception>

#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/private/richformats.h"
#include "vcl/stdctrls/richedit.h"

namespace vcl {
namespace {

constexpr std::string_view RtfStart = "{\\rtf";
constexpr std::string_view Utf8RtfStart = "{\\urtf";
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

bool IsRtf(std::string_view bytes) {
  return bytes.starts_with(RtfStart) || bytes.starts_with(Utf8RtfStart);
}

/// RTF in UTF-8, as some systems write it, with its characters by their numbers instead.
std::string ForEveryReader(const std::string& rtf) {
  if (!rtf.starts_with(Utf8RtfStart)) return rtf;
  std::string readable = "{\\rtf1\\ansi";
  for (const char16_t unit : ToUtf16Units(rtf.substr(Utf8RtfStart.size()))) {
    if (unit < 0x80) {
      readable += static_cast<char>(unit);
    } else {
      readable += Concat("\\u", std::to_string(static_cast<std::int16_t>(unit)), "?");
    }
  }
  return readable;
}

/// The system reads RTF that ends in the middle without a word.
void CheckRtf(std::string_view rtf) {
  if (!IsRtf(rtf)) throw EReadError(Concat("'", Shown(rtf), "' is no RTF"));
  int depth = 0;
  for (std::size_t at = 0; at < rtf.size(); ++at) {
    if (rtf[at] == '\\') {
      ++at;
    } else if (rtf[at] == '{') {
      ++depth;
    } else if (rtf[at] == '}' && --depth == 0) {
      return;
    }
  }
  throw EReadError(Concat("RTF of ", std::to_string(rtf.size()), " bytes ends with ",
                          std::to_string(depth), " groups open: it is cut off"));
}

DWORD CALLBACK Give(DWORD_PTR rest, LPBYTE to, LONG most, LONG* given) {
  auto& bytes = *reinterpret_cast<std::string_view*>(rest);
  const std::size_t count = std::min(bytes.size(), static_cast<std::size_t>(most));
  std::memcpy(to, bytes.data(), count);
  bytes.remove_prefix(count);
  *given = static_cast<LONG>(count);
  return 0;
}

DWORD CALLBACK Take(DWORD_PTR to, LPBYTE bytes, LONG count, LONG* taken) {
  try {
    reinterpret_cast<std::string*>(to)->append(reinterpret_cast<const char*>(bytes),
                                               static_cast<std::size_t>(count));
  } catch (const std::bad_alloc&) {
    return ERROR_NOT_ENOUGH_MEMORY;
  }
  *taken = count;
  return 0;
}

}  // namespace

void TCustomRichEdit::StreamIn(const std::string& rtf) {
  std::string_view rest = rtf;
  EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rest), 0, &Give};
  Send(*this, EM_LIMITTEXT, 0);  // The limit is for what the user types.
  const TAtEnd limited([this] { Send(*this, EM_LIMITTEXT, static_cast<WPARAM>(MaxLength())); },
                       this);
  FFormatted = true;
  Send(*this, EM_STREAMIN, SF_RTF, reinterpret_cast<LPARAM>(&stream));
  if (stream.dwError != 0) {
    throw EReadError(
        Concat("The system cannot read the RTF: error ", std::to_string(stream.dwError)));
  }
}

std::string TCustomRichEdit::Rtf() const {
  std::string rtf;
  EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rtf), 0, &Take};
  Send(*this, EM_STREAMOUT, SF_RTF, reinterpret_cast<LPARAM>(&stream));
  if (stream.dwError != 0) {
    throw EWriteError(
        Concat("The system cannot write the text as RTF: error ", std::to_string(stream.dwError)));
  }
  // Some systems end it with a zero.
  return ForEveryReader(rtf.substr(0, rtf.find('\0')));
}

void TCustomRichEdit::SetRtf(const std::string& rtf) {
  CheckRtf(rtf);
  HandleNeeded();
  const std::string former = Rtf();
  const TOnFailure refused([&] { StreamIn(former); }, this);
  const TWatch watch(this);
  StreamIn(rtf);
  if (watch.Gone()) return;
  SetModified(false);
  ClearUndo();
}

void TCustomRichEdit::LoadFromStream(TStream& stream) {
  const std::string bytes = stream.ReadRest();
  if (!FPlainText && IsRtf(bytes)) return SetRtf(bytes);
  SetText(bytes.starts_with(Utf8Mark) ? bytes.substr(Utf8Mark.size()) : bytes);
}

void TCustomRichEdit::SaveToStream(TStream& stream) const {
  stream.WriteText(FPlainText ? Text() : Rtf());
}

void TCustomRichEdit::LoadFromFile(const std::string& fileName) {
  TFileStream file(fileName, fmOpenRead | fmShareDenyWrite);
  LoadFromStream(file);
}

void TCustomRichEdit::SaveToFile(const std::string& fileName) const {
  // What cannot be written leaves the file as it was.
  TStringStream bytes;
  SaveToStream(bytes);
  bytes.SaveToFile(fileName);
}

int TCustomRichEdit::FindText(const std::string& text, int start, int length,
                              TSearchTypes options) const {
  const std::wstring wide = ToUtf16(text);
  FINDTEXTEXW find{};
  find.chrg = {start, start + length};
  find.lpstrText = wide.c_str();
  WPARAM flags = FR_DOWN;
  if (options.Has(stWholeWord)) flags |= FR_WHOLEWORD;
  if (options.Has(stMatchCase)) flags |= FR_MATCHCASE;
  return static_cast<int>(Send(*this, EM_FINDTEXTEXW, flags, reinterpret_cast<LPARAM>(&find)));
}

}  // namespace vcl
