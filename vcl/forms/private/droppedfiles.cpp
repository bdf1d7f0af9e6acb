// Reading and writing the record of names of files.
#include "vcl/forms/private/droppedfiles.h"

#include <cstring>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <shellapi.h>
#include <shlobj.h>

#include "vcl/rtl/systemmacros.h"

namespace vcl {

namespace {

std::string FromCodePage(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size)));
  return ToUtf8(wide);
}

std::string TextOf(const std::wstring& text) { return ToUtf8(text); }
std::string TextOf(const std::string& text) { return FromCodePage(text); }

/// The texts one behind another, each ended by a zero, up to an empty one.
template <class Char>
std::vector<std::string> ReadTexts(std::string_view bytes) {
  std::vector<std::string> texts;
  std::basic_string<Char> text;
  for (; bytes.size() >= sizeof(Char); bytes.remove_prefix(sizeof(Char))) {
    Char character;
    std::memcpy(&character, bytes.data(), sizeof character);
    if (character) {
      text += character;
      continue;
    }
    if (text.empty()) return texts;
    texts.push_back(TextOf(text));
    text.clear();
  }
  throw EConvertError("The list of files is cut off: it has no end");
}

}  // namespace

TDroppedFiles ReadDroppedFiles(std::string_view bytes) {
  DROPFILES head{};
  if (bytes.size() < sizeof head) {
    throw EConvertError(
        Concat("The list of files is cut off: it has ", std::to_string(bytes.size()), " bytes"));
  }
  std::memcpy(&head, bytes.data(), sizeof head);
  if (head.pFiles < sizeof head || head.pFiles > bytes.size()) {
    throw EConvertError(Concat("The list of files has its names at ", std::to_string(head.pFiles),
                               ", outside of its ", std::to_string(bytes.size()), " bytes"));
  }
  bytes.remove_prefix(head.pFiles);
  return {head.fWide ? ReadTexts<wchar_t>(bytes) : ReadTexts<char>(bytes), head.pt};
}

std::string WriteDroppedFiles(const std::vector<std::string>& names) {
  DROPFILES head{};
  head.pFiles = sizeof head;
  head.fWide = TRUE;
  std::wstring texts;
  for (const std::string& name : names) (texts += ToUtf16(name)) += L'\0';
  texts += L'\0';
  std::string bytes(reinterpret_cast<const char*>(&head), sizeof head);
  bytes.append(reinterpret_cast<const char*>(texts.data()), texts.size() * sizeof(wchar_t));
  return bytes;
}

TDroppedFiles TakeDroppedFiles(WPARAM drop) {
  const auto block = reinterpret_cast<HDROP>(drop);  // NOLINT(performance-no-int-to-ptr)
  const TAtEnd finish([block] { ::DragFinish(block); });
  const auto* data = static_cast<const char*>(::GlobalLock(block));
  if (!data) throw EConvertError("The list of dropped files cannot be read");
  const TAtEnd unlock([block] { ::GlobalUnlock(block); });
  return ReadDroppedFiles({data, ::GlobalSize(block)});
}

}  // namespace vcl
