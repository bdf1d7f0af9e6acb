// Reading and writing the parameters of fields.
#include "qel/mail/private/mimeparameters.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <vector>

#include "qel/mail/private/asciitext.h"
#include "qel/mail/private/charsets.h"
#include "qel/mail/private/encodedwords.h"
#include "qel/mail/private/quotedprintable.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr std::string_view Blanks = " \t\r\n";
/// So many are enough for every mail that is one.
constexpr std::size_t MaxParameters = 1000;
constexpr std::size_t MaxColumns = 70;

/// One "name=value" as it stands there.
struct TPiece {
  std::string Name, Value;
  int Section = -1;      ///< Of "name*2"; -1 for none.
  bool Encoded = false;  ///< Of "name*": with "%" and two digits for bytes.
};

/// Walks over a field's text.
class TFieldReader {
 public:
  explicit TFieldReader(std::string_view text) : FText(text) {}

  std::string UpTo(std::string_view ends) {
    std::string text;
    for (SkipComment(); !FText.empty() && ends.find(FText.front()) == ends.npos; SkipComment()) {
      text += Take();
    }
    return std::string(vcl::Trim(text));
  }
  std::string Value() {
    SkipBlanks();
    if (!FText.starts_with('"')) return UpTo(";");
    Take();
    std::string text;
    while (!FText.empty() && FText.front() != '"') {
      if (FText.front() == '\\' && FText.size() > 1) Take();
      text += Take();
    }
    UpTo(";");
    return text;
  }
  bool Skip(char c) {
    if (!FText.starts_with(c)) return false;
    Take();
    return true;
  }
  bool AtEnd() const { return FText.empty(); }

 private:
  char Take() {
    const char c = FText.front();
    FText.remove_prefix(1);
    return c;
  }
  void SkipBlanks() {
    FText.remove_prefix(std::min(FText.find_first_not_of(Blanks), FText.size()));
    SkipComment();
  }
  void SkipComment() {
    if (FNoComments || !FText.starts_with('(')) return;
    std::size_t at = 0;
    for (int depth = 0; at < FText.size(); ++at) {
      if (FText[at] == '\\')
        ++at;
      else if (FText[at] == '(')
        ++depth;
      else if (FText[at] == ')' && --depth == 0)
        break;
    }
    // One that does not end is none, and those in it need not be tried.
    FNoComments = at >= FText.size();
    if (FNoComments) return;
    FText.remove_prefix(at + 1);
    FText.remove_prefix(std::min(FText.find_first_not_of(Blanks), FText.size()));
  }

  std::string_view FText;
  bool FNoComments = false;
};

/// Tells "name*0*" apart.
TPiece PieceOf(std::string name, std::string value) {
  TPiece piece;
  piece.Value = std::move(value);
  if (name.size() > 1 && name.ends_with('*')) {
    piece.Encoded = true;
    name.pop_back();
  }
  const std::size_t star = name.rfind('*');
  if (star != name.npos && star > 0) {
    const char* const end = name.data() + name.size();
    int section = -1;
    if (std::from_chars(name.data() + star + 1, end, section).ptr == end && section >= 0) {
      piece.Section = section;
      name.resize(star);
    }
  }
  piece.Name = std::move(name);
  return piece;
}

std::string DecodePercents(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int high = text[i] == '%' && i + 2 < text.size() ? HexValue(text[i + 1]) : -1;
    const int low = high < 0 ? -1 : HexValue(text[i + 2]);
    bytes += low < 0 ? text[i] : static_cast<char>(high * 16 + low);
    if (low >= 0) i += 2;
  }
  return bytes;
}

/// What the sections say together; the first one names the set: "set'language'text".
std::string Joined(const std::vector<TPiece>& pieces) {
  std::string bytes, charset = "utf-8";
  bool encoded = false;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    std::string_view value = pieces[i].Value;
    if (!pieces[i].Encoded) {
      bytes += value;
      continue;
    }
    encoded = true;
    const std::size_t first = value.find('\''), second = value.find('\'', first + 1);
    if (i == 0 && first != value.npos && second != value.npos) {
      charset = value.substr(0, first);
      value.remove_prefix(second + 1);
    }
    bytes += DecodePercents(value);
  }
  return encoded ? CharsetToUtf8(bytes, charset) : DecodeWords(bytes);
}

/// The pieces of one parameter that count: those in sections, in order and without a gap, or the
/// one that is whole; of two that say the same the encoded one.
std::vector<TPiece> Counting(std::vector<TPiece> pieces) {
  std::ranges::stable_sort(pieces, {}, &TPiece::Section);
  std::vector<TPiece> whole, sections;
  for (TPiece& piece : pieces) {
    if (piece.Section < 0) {
      if (whole.empty() || (piece.Encoded && !whole.front().Encoded)) whole = {std::move(piece)};
    } else if (piece.Section == static_cast<int>(sections.size())) {
      sections.push_back(std::move(piece));
    }
  }
  return sections.empty() || (!whole.empty() && whole.front().Encoded) ? whole : sections;
}

bool IsToken(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, [](char c) {
    return c > ' ' && c < 127 &&
           std::string_view("()<>@,;:\\\"/[]?=").find(c) == std::string_view::npos;
  });
}

std::string Quoted(std::string_view value) {
  std::string text = "\"";
  for (const char c : value) {
    if (c == '"' || c == '\\') text += '\\';
    text += c;
  }
  return text + '"';
}

bool IsAttributeCharacter(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) ||
         std::string_view("!#$&+-.^_`{|}~").find(c) != std::string_view::npos;
}

std::string EncodePercents(std::string_view value) {
  std::string text;
  for (const char c : value) {
    if (IsAttributeCharacter(c)) {
      text += c;
    } else {
      AppendHex('%', c, text);
    }
  }
  return text;
}

}  // namespace

std::string TMimeField::Parameter(const std::string& name) const {
  const auto found = Parameters.find(name);
  return found == Parameters.end() ? std::string() : found->second;
}

TMimeField ReadMimeField(std::string_view text) {
  TMimeField field;
  TFieldReader reader(text);
  field.Value = SmallLetters(reader.UpTo(";"));
  std::map<std::string, std::vector<TPiece>> found;
  for (std::size_t count = 0; !reader.AtEnd() && count < MaxParameters; ++count) {
    reader.Skip(';');
    std::string name = SmallLetters(reader.UpTo("=;"));
    if (!reader.Skip('=')) continue;
    TPiece piece = PieceOf(std::move(name), reader.Value());
    found[piece.Name].push_back(std::move(piece));
  }
  for (auto& [name, pieces] : found) {
    const std::vector<TPiece> counting = Counting(std::move(pieces));
    if (!counting.empty()) field.Parameters[name] = Joined(counting);
  }
  return field;
}

std::string MimeParameter(std::string_view name, std::string_view value) {
  const bool plain =
      IsAscii(value) && std::ranges::all_of(value, [](char c) { return c >= ' ' && c < 127; });
  // What looks like an encoded word would be read as one by many programs, this one among them.
  if (plain && value.size() < MaxColumns && value.find("=?") == value.npos) {
    return vcl::Concat("; ", name, "=", IsToken(value) ? std::string(value) : Quoted(value));
  }
  const std::string encoded = EncodePercents(value);
  const std::string begin = "utf-8''";
  if (begin.size() + encoded.size() + name.size() < MaxColumns) {
    return vcl::Concat("; ", name, "*=", begin, encoded);
  }
  std::string text;
  std::string_view rest = encoded;
  for (int section = 0; !rest.empty(); ++section) {
    const std::string key =
        vcl::Concat("; ", name, "*", std::to_string(section), "*=", section == 0 ? begin : "");
    std::size_t size = std::min(rest.size(), MaxColumns - std::min(MaxColumns / 2, key.size()));
    // Three characters that stand for one byte stay together.
    if (size < rest.size()) {
      if (rest[size - 1] == '%')
        size -= 1;
      else if (rest[size - 2] == '%')
        size -= 2;
    }
    text.append(key).append(rest.substr(0, size));
    rest.remove_prefix(size);
  }
  return text;
}

}  // namespace qel
