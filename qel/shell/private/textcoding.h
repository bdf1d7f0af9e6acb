// Texts of files as characters, and back again without a byte's being lost.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace qel {

/// How a text's characters are written: UTF-8, with a mark before it or not, UTF-16 with a mark,
/// either byte first, or the system's code page.
enum class TTextCoding { Utf8, Utf8Mark, Utf16Little, Utf16Big, CodePage };

struct TCodedText {
  TTextCoding Coding = TTextCoding::Utf8;
  /// Without the mark. Bytes that are no part of a character have numbers above all characters'.
  std::u32string Text;
};

/// The text of these bytes; nothing for what is none, as it holds zeros, or bytes that are no
/// characters in the system's code page.
std::optional<TCodedText> DecodeText(std::string_view bytes);
/// The bytes of the text, with its mark. Raises vcl::EConvertError for a character that the code
/// page has not.
std::string EncodeText(const TCodedText& text);
/// The mark at the beginning of a text, and what it says; its size is 0 for none.
struct TMark {
  TTextCoding Coding = TTextCoding::Utf8;
  std::size_t Size = 0;
};
TMark MarkOf(std::string_view bytes);
bool LooksLikeUtf8(std::string_view bytes);
/// Calls the call with each character of bytes without a mark, and how many bytes it has; with a
/// number above all characters' for what is none.
void EachCharacter(std::string_view bytes, TTextCoding coding,
                   const std::function<void(char32_t character, std::size_t size)>& each);
/// A text in UTF-8 as characters, and back.
std::u32string CharactersOf(std::string_view utf8);
std::string Utf8Of(std::u32string_view characters);

}  // namespace qel
