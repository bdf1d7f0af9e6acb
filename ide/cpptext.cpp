// TCppText: the tokens of a C++ text, its lines, and changes to it.
#include "ide/cpptext.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;
using TSort = TCppToken::TSort;

namespace {

bool IsWordByte(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || static_cast<signed char>(c) < 0;
}
bool IsSpace(char c) { return std::string_view(" \t\r\n\f\v").find(c) != std::string_view::npos; }

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

TCppText::TCppText(std::string fileName, std::string_view text)
    : FFileName(std::move(fileName)), FText(text) {
  Read();
  Match();
}

const TCppToken& TCppText::operator[](std::size_t index) const {
  static const TCppToken none{TSort::Sign, 0, 0, {}};
  return index < FTokens.size() ? FTokens[index] : none;
}

bool TCppText::IsName(std::size_t index) const {
  return index < Count() && FTokens[index].Sort == TSort::Name;
}

int TCppText::Uses(std::string_view name) const {
  return static_cast<int>(std::ranges::count_if(FTokens, [&](const TCppToken& token) {
    return token.Sort == TSort::Name && token.Text == name;
  }));
}

void TCppText::Refuse(std::size_t position, const std::string& why) const {
  const auto line = 1 + std::ranges::count(FText.substr(0, position), '\n');
  throw EUnitError(Concat(FFileName, ", line ", std::to_string(line), ": ", why));
}

// Tokens.

std::size_t TCppText::Add(TSort sort, std::size_t begin, std::size_t end) {
  FTokens.push_back({sort, begin, end, FText.substr(begin, end - begin)});
  return end;
}

void TCppText::Read() {
  std::size_t at = FText.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0;
  while (at < FText.size()) {
    const char c = FText[at];
    if (IsSpace(c)) {
      ++at;
    } else if (const std::size_t end = SkipComment(at); end != at) {
      at = end;
    } else if (c == '#' && BeginsLine(at)) {
      at = Add(TSort::Directive, at, EndOfDirective(at));
    } else if (c == '"' || c == '\'') {
      const bool raw = !FTokens.empty() && c == '"' && FTokens.back().End == at &&
                       FTokens.back().Sort == TSort::Name && FTokens.back().Text.back() == 'R';
      at = Add(TSort::Text, at, raw ? EndOfRaw(at) : EndOfQuoted(at));
    } else if (IsWordByte(c)) {
      at = Add(TSort::Name, at, EndOfWord(at));
    } else {
      at = Add(TSort::Sign, at, at + (FText.substr(at, 2) == "::" ? 2 : 1));
    }
  }
}

std::size_t TCppText::SkipComment(std::size_t at) const {
  const std::string_view start = FText.substr(at, 2);
  if (start == "//") return std::min(FText.find('\n', at), FText.size());
  if (start != "/*") return at;
  const std::size_t end = FText.find("*/", at + 2);
  if (end == std::string_view::npos) Refuse(at, "the comment is not closed");
  return end + 2;
}

/// A line that ends with a backslash goes on in the next.
std::size_t TCppText::EndOfDirective(std::size_t at) const {
  for (;;) {
    const std::size_t end = std::min(FText.find('\n', at), FText.size());
    const std::string_view line = Trim(FText.substr(at, end - at));
    if (end == FText.size() || !line.ends_with('\\')) return end;
    at = end + 1;
  }
}

std::size_t TCppText::EndOfQuoted(std::size_t at) const {
  for (std::size_t i = at + 1; i < FText.size() && FText[i] != '\n'; ++i) {
    if (FText[i] == FText[at]) return i + 1;
    if (FText[i] == '\\') ++i;
  }
  Refuse(at, "the text is not closed");
}

std::size_t TCppText::EndOfRaw(std::size_t at) const {
  const std::size_t open = FText.find('(', at);
  if (open == std::string_view::npos) Refuse(at, "the text is not closed");
  const std::string end = Concat(")", FText.substr(at + 1, open - at - 1), "\"");
  const std::size_t found = FText.find(end, open);
  if (found == std::string_view::npos) Refuse(at, "the text is not closed");
  return found + end.size();
}

/// A number may hold apostrophes between its digits.
std::size_t TCppText::EndOfWord(std::size_t at) const {
  const bool number = std::isdigit(static_cast<unsigned char>(FText[at])) != 0;
  std::size_t end = at;
  while (end < FText.size() &&
         (IsWordByte(FText[end]) ||
          (number && FText[end] == '\'' && end + 1 < FText.size() && IsWordByte(FText[end + 1])))) {
    ++end;
  }
  return end;
}

void TCppText::Match() {
  constexpr std::string_view opening = "([{", closing = ")]}";
  std::vector<std::size_t> open;
  for (std::size_t i = 0; i < FTokens.size(); ++i) {
    TCppToken& token = FTokens[i];
    if (token.Sort != TSort::Sign) continue;
    if (opening.find(token.Text) != std::string_view::npos) open.push_back(i);
    const std::size_t sort = closing.find(token.Text);
    if (sort == std::string_view::npos) continue;
    if (open.empty() || FTokens[open.back()].Text[0] != opening[sort]) {
      Refuse(token.Begin, Concat("\"", token.Text, "\" closes nothing"));
    }
    token.Mate = open.back();
    FTokens[open.back()].Mate = i;
    open.pop_back();
  }
  if (open.empty()) return;
  const TCppToken& token = FTokens[open.back()];
  Refuse(token.Begin, Concat("\"", token.Text, "\" is not closed"));
}

// Lines.

std::size_t TCppText::LineBegin(std::size_t position) const {
  const std::size_t end = position == 0 ? std::string_view::npos : FText.rfind('\n', position - 1);
  return end == std::string_view::npos ? 0 : end + 1;
}

bool TCppText::BeginsLine(std::size_t position) const {
  const std::size_t begin = LineBegin(position);
  return std::ranges::all_of(FText.substr(begin, position - begin), IsSpace) ||
         FText.substr(0, position) == ByteOrderMark;
}

std::size_t TCppText::RestOfLine(std::size_t position) const {
  const std::size_t end = std::min(FText.find('\n', position), FText.size());
  const std::string_view rest = Trim(FText.substr(position, end - position));
  if (!rest.empty() && !rest.starts_with("//")) return position;
  return std::min(end + 1, FText.size());
}

// Changes.

void TTextEdits::Replace(std::size_t begin, std::size_t end, std::string text) {
  FEdits.push_back({begin, end, std::move(text)});
}

void TTextEdits::Remove(const TCppText& text, std::size_t begin, std::size_t end) {
  const std::size_t rest = text.RestOfLine(end);
  const bool whole = text.BeginsLine(begin) && rest != end;
  whole ? Replace(text.LineBegin(begin), rest, {}) : Replace(begin, end, {});
}

std::string TTextEdits::Apply(std::string_view text) const {
  const bool crLf = text.find("\r\n") != std::string_view::npos;
  std::vector<TEdit> edits = FEdits;
  std::ranges::stable_sort(edits, {}, &TEdit::Begin);
  std::string result;
  std::size_t done = 0;
  for (const TEdit& edit : edits) {
    result.append(text.substr(done, edit.Begin - done));
    for (const char c : edit.Text) {
      if (c == '\n' && crLf) result += '\r';
      result += c;
    }
    done = edit.End;
  }
  return result.append(text.substr(done));
}

}  // namespace ide
