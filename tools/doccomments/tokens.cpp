// Cutting a source into its words.
#include "tools/doccomments/tokens.h"

#include <algorithm>
#include <cctype>

namespace doccomments {
namespace {

using TKind = TToken::TKind;

bool InWord(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

class TCutter {
 public:
  explicit TCutter(std::string_view source) : FSource(source) {}

  std::vector<TToken> Tokens() {
    while (FAt < FSource.size()) Cut();
    return std::move(FTokens);
  }

 private:
  bool Begins(std::string_view text) const { return FSource.substr(FAt).starts_with(text); }

  void Cut() {
    const char c = FSource[FAt];
    if (c == '\n') return EndLine();
    if (std::isspace(static_cast<unsigned char>(c))) return Skip(1);
    if (c == '#' && FLineStart) return SkipDirective();
    FLineStart = false;
    if (Begins("///<")) return Comment(TKind::After, 4);
    if (Begins("///")) return Comment(TKind::Comment, 3);
    if (Begins("//")) return Skip(Line().size());
    if (Begins("/*")) return Skip(std::min(FSource.find("*/", FAt) - FAt, FSource.size()) + 2);
    if (c == '"' || c == '\'') return Literal(c);
    if (InWord(c)) return Word();
    Add(TKind::Sign, std::string(FSource.substr(FAt, Begins("::") ? 2 : 1)));
    Skip(FTokens.back().Text.size());
  }

  void EndLine() {
    FLineStart = true;
    Skip(1);
  }

  void Skip(std::size_t count) { FAt = std::min(FAt + count, FSource.size()); }

  std::string_view Line() const { return FSource.substr(FAt, FSource.find('\n', FAt) - FAt); }

  /// A directive goes on behind a line that ends with a backslash.
  void SkipDirective() {
    while (Line().ends_with('\\')) Skip(Line().size() + 1);
    Skip(Line().size());
  }

  /// Lines under each other are one comment, in which an empty one ends a paragraph.
  void Comment(TKind kind, std::size_t sign) {
    std::string_view text = Line().substr(sign);
    Skip(Line().size());
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ') || text.ends_with('\r')) text.remove_suffix(1);
    const bool goesOn = !FTokens.empty() && FTokens.back().Kind == TKind::Comment;
    if (kind == TKind::Comment && goesOn) {
      FTokens.back().Text += text.empty() ? '\n' : ' ';
      FTokens.back().Text += text;
    } else {
      Add(kind, std::string(text));
    }
  }

  /// An escaped character stands for itself: only the literal's end matters.
  void Literal(char quote) {
    std::string text;
    Skip(1);
    while (FAt < FSource.size() && FSource[FAt] != quote) {
      if (FSource[FAt] == '\\') Skip(1);
      if (FAt < FSource.size()) text += FSource[FAt];
      Skip(1);
    }
    Skip(1);
    Add(TKind::Text, text);
  }

  /// A quote inside a number parts its digits.
  void Word() {
    const std::size_t first = FAt;
    const bool number = std::isdigit(static_cast<unsigned char>(FSource[FAt])) != 0;
    while (FAt < FSource.size() && (InWord(FSource[FAt]) || (number && FSource[FAt] == '\''))) {
      Skip(1);
    }
    Add(TKind::Word, std::string(FSource.substr(first, FAt - first)));
  }

  void Add(TKind kind, std::string text) { FTokens.push_back({kind, std::move(text)}); }

  std::string_view FSource;
  std::size_t FAt = 0;
  bool FLineStart = true;
  std::vector<TToken> FTokens;
};

}  // namespace

std::vector<TToken> TokensOf(std::string_view source) { return TCutter(source).Tokens(); }

}  // namespace doccomments
