// Encoding and decoding of words in headers.
#include "qel/mail/private/encodedwords.h"

#include <algorithm>
#include <cctype>
#include <optional>

#include "qel/mail/private/asciitext.h"
#include "qel/mail/private/charsets.h"
#include "qel/mail/private/quotedprintable.h"
#include "qel/mail/private/sasl.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr std::string_view Blanks = " \t\r\n";
constexpr std::string_view Begin = "=?", End = "?=", Prefix = "=?utf-8?";
constexpr std::size_t MaxWord = 75, MaxColumns = 78;
/// Without the blank that goes before a line that was cut.
constexpr std::size_t MaxLine = 997;

struct TWord {
  std::string Charset;
  std::string Bytes;
  std::size_t Size = 0;  ///< In the text.
};

std::string DecodeQ(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int high = text[i] == '=' && i + 2 < text.size() ? HexValue(text[i + 1]) : -1;
    const int low = high < 0 ? -1 : HexValue(text[i + 2]);
    if (low >= 0) {
      bytes += static_cast<char>(high * 16 + low);
      i += 2;
    } else {
      bytes += text[i] == '_' ? ' ' : text[i];
    }
  }
  return bytes;
}

/// Some senders leave the pad marks out.
std::string DecodeB(std::string_view text) {
  std::string letters(text);
  std::erase_if(letters, [](char c) { return Blanks.find(c) != Blanks.npos; });
  while (letters.ends_with('=')) letters.pop_back();
  while (letters.size() % 4 != 0) letters += '=';
  return FromBase64(letters);
}

/// The word that the text begins with: "=?charset?Q?letters?=".
std::optional<TWord> WordAt(std::string_view text) {
  if (!text.starts_with(Begin)) return std::nullopt;
  const std::size_t charset = text.find('?', Begin.size());
  if (charset == text.npos || charset + 3 >= text.size() || text[charset + 2] != '?') {
    return std::nullopt;
  }
  const std::size_t letters = charset + 3, end = text.find(End, letters);
  if (end == text.npos) return std::nullopt;
  const std::string_view name = text.substr(Begin.size(), charset - Begin.size());
  const std::string_view content = text.substr(letters, end - letters);
  // A word has no blanks in it; B of some senders has.
  if (name.empty() || name.find_first_of(Blanks) != name.npos) return std::nullopt;
  TWord word;
  // A language may follow the set (RFC 2231, 5).
  word.Charset = SmallLetters(name.substr(0, name.find('*')));
  word.Size = end + End.size();
  switch (text[charset + 1]) {
    case 'q':
    case 'Q': word.Bytes = DecodeQ(content); return word;
    case 'b':
    case 'B': word.Bytes = DecodeB(content); return word;
    default: return std::nullopt;
  }
}

std::string PlainText(std::string_view text) {
  return IsAscii(text) ? std::string(text) : CharsetToUtf8(text, "");
}

/// How many bytes the character has that begins there.
std::size_t CharacterSize(std::string_view text) {
  std::size_t size = 1;
  while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80) ++size;
  return size;
}

bool StandsForItself(char c, bool inPhrase) {
  if (std::isalnum(static_cast<unsigned char>(c))) return true;
  if (inPhrase) return std::string_view("!*+-/").find(c) != std::string_view::npos;
  return c > ' ' && c < 127 &&
         std::string_view("=?_\"(),.:;<>@[\\]").find(c) == std::string_view::npos;
}

std::string EncodeQ(std::string_view bytes, bool inPhrase) {
  std::string letters;
  for (const char c : bytes) {
    if (c == ' ') {
      letters += '_';
    } else if (StandsForItself(c, inPhrase)) {
      letters += c;
    } else {
      AppendHex('=', c, letters);
    }
  }
  return letters;
}

/// Behind the beginning, which is the field's name or the blank of the fold before.
std::size_t CutAt(std::string_view line, std::size_t beginning) {
  const std::size_t wanted = line.find_last_of(" \t", MaxColumns);
  if (wanted != line.npos && wanted > beginning) return wanted;
  const std::size_t next = line.find_first_of(" \t", std::max(MaxColumns, beginning + 1));
  if (next <= MaxLine) return next;
  return line.size() > MaxLine ? MaxLine : line.npos;
}

}  // namespace

std::string DecodeWords(std::string_view text) {
  std::string decoded, bytes, charset;
  const auto flush = [&] {
    if (!bytes.empty()) decoded += CharsetToUtf8(bytes, charset);
    bytes.clear();
  };
  bool behindWord = false;
  while (!text.empty()) {
    const std::size_t next = text.find(Begin);
    const std::string_view plain = text.substr(0, next);
    const auto word = next == text.npos ? std::nullopt : WordAt(text.substr(next));
    // Blanks between two words are only the fold.
    if (!behindWord || !word || plain.find_first_not_of(Blanks) != plain.npos) {
      flush();
      decoded += PlainText(plain);
    }
    if (next == text.npos) break;
    behindWord = word.has_value();
    if (!word) {
      flush();
      decoded += Begin;
      text.remove_prefix(next + Begin.size());
      continue;
    }
    if (word->Charset != charset) flush();
    // Characters that are cut in two between words are one again.
    charset = word->Charset;
    bytes += word->Bytes;
    text.remove_prefix(next + word->Size);
  }
  flush();
  return decoded;
}

std::string EncodeWords(std::string_view text, bool inPhrase, std::size_t columns) {
  const bool control =
      std::ranges::any_of(text, [](char c) { return c > 0 && c < ' ' && c != '\t'; });
  if (IsAscii(text) && !control && text.find(Begin) == text.npos) return std::string(text);
  const std::string all = EncodeQ(text, inPhrase);
  const bool useQ = all.size() <= (text.size() + 2) / 3 * 4;
  const std::size_t frame = Prefix.size() + 2 + End.size();
  std::size_t room = std::min(MaxWord, MaxColumns - std::min(columns, MaxColumns / 2)) - frame;
  std::string words;
  const auto add = [&](std::string_view part) {
    words.append(words.empty() ? "" : " ").append(Prefix).append(useQ ? "Q?" : "B?");
    words.append(useQ ? EncodeQ(part, inPhrase) : ToBase64(part)).append(End);
  };
  std::size_t begin = 0, letters = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t size = CharacterSize(text.substr(at));
    const std::size_t more = EncodeQ(text.substr(at, size), inPhrase).size();
    const std::size_t after = useQ ? letters + more : (at + size - begin + 2) / 3 * 4;
    if (after > room && at > begin) {
      add(text.substr(begin, at - begin));
      begin = at;
      letters = 0;
      room = MaxWord - frame;
    }
    letters += more;
    at += size;
  }
  add(text.substr(begin));
  return words;
}

std::string FoldField(std::string_view field) {
  std::string folded;
  // Some readers take a fold right behind the name for a blank of the value.
  std::size_t beginning = field.find(": ") + 1;
  for (; field.size() > MaxColumns; beginning = 1) {
    const std::size_t cut = CutAt(field, beginning);
    if (cut == field.npos) break;
    // A line of blanks alone would end the header.
    if (field.find_first_not_of(" \t", cut) == field.npos) break;
    folded.append(field.substr(0, cut)).append("\r\n");
    field.remove_prefix(cut);
    if (field.front() == ' ' || field.front() == '\t') continue;
    folded += ' ';
  }
  return folded.append(field);
}

}  // namespace qel
