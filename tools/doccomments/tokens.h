// The words of a C++ source, with the doc comments between them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace doccomments {

/// A name, a literal, a sign of one character (but for "::") or a doc comment.
struct TToken {
  /// After: a comment behind the declaration that it is for ("///<").
  enum class TKind { Word, Text, Sign, Comment, After };

  TKind Kind;
  /// Of a string literal what stands between the quotes; of a comment its lines, joined,
  /// with a line feed between paragraphs.
  std::string Text;

  bool Is(std::string_view text) const { return Kind != TKind::Text && Text == text; }
  bool IsComment() const { return Kind == TKind::Comment || Kind == TKind::After; }
};

/// Ordinary comments and the preprocessor's lines are left out.
std::vector<TToken> TokensOf(std::string_view source);

}  // namespace doccomments
