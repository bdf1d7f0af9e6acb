// TIniText: finding sections and values in a settings file's text, and changing them in place.
#include "vcl/rtl/private/initext.h"

#include <cstring>

#include "vcl/rtl/text.h"

namespace vcl {
namespace {

constexpr std::size_t None = std::string_view::npos;
constexpr std::size_t BlockSize = 64;

bool IsLineBreak(char c) { return c == '\n' || c == '\r'; }
/// Line breaks included, and the mark that ended texts long ago.
bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r') || c == '\x1A'; }

std::string_view WithoutBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::size_t Position(std::string_view text, char wanted) {
  const void* found = text.empty() ? nullptr : std::memchr(text.data(), wanted, text.size());
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - text.data()) : None;
}

/// Whether the character is among the 64 from there on. The compiler makes this one comparison of
/// many at a time, which a search that could stop at each would not be.
bool IsInBlock(const char* block, char wanted) {
  unsigned char found = 0;  // As wide as what is compared.
  for (std::size_t i = 0; i < BlockSize; ++i) {
    found = static_cast<unsigned char>(found | (block[i] == wanted));
  }
  return found != 0;
}

/// The position of the first one, in a long text that has few of them.
std::size_t RarePosition(std::string_view text, std::size_t from, char wanted) {
  while (from + BlockSize <= text.size() && !IsInBlock(text.data() + from, wanted)) {
    from += BlockSize;
  }
  return text.find(wanted, from);
}

/// Where the text's first line ends, before its break.
std::size_t LineEnd(std::string_view text) {
  std::size_t end = 0;
  while (end < text.size() && !IsLineBreak(text[end])) ++end;
  return end;
}

bool IsHeader(std::string_view line) {
  return !line.empty() && line.front() == '[' && line.rfind(']') != None;
}

std::string_view HeaderName(std::string_view line) {
  return WithoutBlanks(line.substr(1, line.rfind(']') - 1));
}

TIniText::TEntry EntryOf(std::string_view line) {
  const std::size_t equals = Position(line, '=');
  if (equals == None) return {line, std::nullopt};
  return {WithoutBlanks(line.substr(0, equals)), WithoutBlanks(line.substr(equals + 1))};
}

/// Whether the line is an entry of that name. It looks for the name first: most lines are others'.
bool IsEntryOf(std::string_view line, std::string_view ident) {
  if (line.size() < ident.size() || !SameText(line.substr(0, ident.size()), ident)) return false;
  const std::string_view rest = WithoutBlanks(line.substr(ident.size()));
  return rest.empty() || rest.front() == '=';
}

bool IsOneLine(std::string_view text) {
  return text.find_first_of(std::string_view("\r\n\0", 3)) == None;
}

}  // namespace

/// A line of the text: from Begin to before Next, which is where the next one begins.
struct TIniText::TLine {
  std::size_t Begin = None;
  std::size_t Next = None;
  /// What it says, without blanks and line break.
  std::string_view Content;

  explicit operator bool() const { return Begin != None; }
};

TIniText::TLine TIniText::LineAt(std::size_t begin) const {
  if (begin >= FText.size()) return {};
  const std::string_view rest = std::string_view(FText).substr(begin);
  const std::size_t end = LineEnd(rest);
  const std::size_t size = rest.substr(end).starts_with("\r\n") ? 2 : end < rest.size() ? 1 : 0;
  return {begin, begin + end + size, WithoutBlanks(rest.substr(0, end))};
}

/// The first header from a line's begin on. It looks for the bracket instead of at each line: few
/// lines are headers.
TIniText::TLine TIniText::NextHeader(std::size_t begin) const {
  for (std::size_t bracket = begin;; ++bracket) {
    bracket = RarePosition(FText, bracket, '[');
    if (bracket == None) return {};
    const std::size_t start = LineBegin(bracket, begin);
    if (start == None) continue;
    const TLine line = LineAt(start);
    if (IsHeader(line.Content)) return line;
  }
}

/// Where the line begins whose first character stands there; none when others stand before it.
std::size_t TIniText::LineBegin(std::size_t first, std::size_t limit) const {
  while (first > limit && !IsLineBreak(FText[first - 1])) {
    if (!IsBlank(FText[--first])) return None;
  }
  return first;
}

/// The header of the section, or an empty line where the text begins for the one without a name.
TIniText::TLine TIniText::SectionHeader(std::string_view section, std::size_t from) const {
  section = WithoutBlanks(section);
  if (section.empty()) return from == 0 ? TLine{0, 0, {}} : TLine{};
  TLine line = NextHeader(from);
  while (line && !SameText(HeaderName(line.Content), section)) line = NextHeader(line.Next);
  return line;
}

/// The first entry of that name in the section that begins there.
TIniText::TLine TIniText::EntryLine(std::size_t begin, std::string_view ident) const {
  ident = WithoutBlanks(ident);
  if (Position(ident, '=') != None) return {};
  for (TLine line = LineAt(begin); line; line = LineAt(line.Next)) {
    if (IsHeader(line.Content)) return {};
    if (!line.Content.empty() && IsEntryOf(line.Content, ident)) return line;
  }
  return {};
}

std::optional<std::string_view> TIniText::Find(std::string_view section,
                                               std::string_view ident) const {
  const TLine header = SectionHeader(section, 0);
  if (!header) return std::nullopt;
  const TLine line = EntryLine(header.Next, ident);
  if (!line) return std::nullopt;
  return EntryOf(line.Content).Value;
}

std::vector<std::string_view> TIniText::Sections() const {
  std::vector<std::string_view> names;
  for (TLine line = NextHeader(0); line; line = NextHeader(line.Next)) {
    const std::string_view name = HeaderName(line.Content);
    if (!name.empty()) names.push_back(name);
  }
  return names;
}

bool TIniText::HasSection(std::string_view section) const {
  return static_cast<bool>(SectionHeader(section, 0));
}

std::vector<TIniText::TEntry> TIniText::Entries(std::string_view section) const {
  std::vector<TEntry> entries;
  const TLine header = SectionHeader(section, 0);
  if (!header) return entries;
  for (TLine line = LineAt(header.Next); line && !IsHeader(line.Content);
       line = LineAt(line.Next)) {
    if (line.Content.empty() || line.Content.front() == ';') continue;
    entries.push_back(EntryOf(line.Content));
  }
  return entries;
}

bool TIniText::CanHold(std::string_view ident, std::string_view value) {
  ident = WithoutBlanks(ident);
  return IsOneLine(ident) && IsOneLine(value) && Position(ident, '=') == None &&
         !IsHeader(Concat(ident, "=", value));
}

bool TIniText::CanHold(std::string_view section) { return IsOneLine(WithoutBlanks(section)); }

void TIniText::Write(std::string_view section, std::string_view ident, std::string_view value) {
  const TLine header = SectionHeader(section, 0);
  if (!header) {
    const std::string line = Concat("[", WithoutBlanks(section), "]", LineBreak());
    InsertLines(FText.size(), Concat(line, WithoutBlanks(ident), "=", value, LineBreak()));
    return;
  }
  const TLine line = EntryLine(header.Next, ident);
  if (!line) return AddEntry(header.Next, Concat(WithoutBlanks(ident), "=", value, LineBreak()));
  const std::string entry = Concat(EntryOf(line.Content).Ident, "=", value);
  const auto begin = static_cast<std::size_t>(line.Content.data() - FText.data());
  // The place, without the blanks before the line's break.
  std::size_t end = line.Next;
  while (end > begin && IsLineBreak(FText[end - 1])) --end;
  FText.replace(begin, end - begin, entry);
}

void TIniText::AddEntry(std::size_t sectionBegin, const std::string& line) {
  std::size_t at = sectionBegin;
  for (TLine each = LineAt(at); each && !IsHeader(each.Content); each = LineAt(each.Next)) {
    if (!each.Content.empty()) at = each.Next;
  }
  InsertLines(at, line);
}

/// Inserts whole lines where a line begins; the last one before them may lack its end.
void TIniText::InsertLines(std::size_t at, std::string lines) {
  if (at > 0 && !IsLineBreak(FText[at - 1])) lines.insert(0, LineBreak());
  FText.insert(at, lines);
}

std::string TIniText::LineBreak() const {
  const std::size_t feed = Position(FText, '\n');
  return feed != None && (feed == 0 || FText[feed - 1] != '\r') ? "\n" : "\r\n";
}

void TIniText::Delete(std::string_view section, std::string_view ident) {
  for (TLine header = SectionHeader(section, 0); header;
       header = SectionHeader(section, header.Next)) {
    const TLine line = EntryLine(header.Next, ident);
    if (line) {
      FText.erase(line.Begin, line.Next - line.Begin);
      return;
    }
    if (header.Next == 0) return;  // There is only one without a name.
  }
}

void TIniText::Erase(std::string_view section) {
  const TLine header = SectionHeader(section, 0);
  if (!header) return;
  const TLine next = NextHeader(header.Next);
  FText.erase(header.Begin, (next ? next.Begin : FText.size()) - header.Begin);
}

}  // namespace vcl
