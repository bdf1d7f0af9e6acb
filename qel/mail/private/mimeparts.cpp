// Looking for boundaries.
#include "qel/mail/private/mimeparts.h"

#include <algorithm>

namespace qel {
namespace {

constexpr std::string_view Ends = "\r\n";

/// The text without the end of line at its end.
std::string_view WithoutLineEnd(std::string_view text) {
  if (text.ends_with('\n')) text.remove_suffix(1);
  if (text.ends_with('\r')) text.remove_suffix(1);
  return text;
}

/// Behind the end of line that the place stands before.
std::size_t NextLine(std::string_view text, std::size_t at) {
  at = std::min(text.find_first_of(Ends, at), text.size());
  if (text.substr(at).starts_with("\r\n")) return at + 2;
  return std::min(at + 1, text.size());
}

}  // namespace

// The boundary is looked for as a text: far faster than going through the lines of what lies
// between.
TMimeParts FindParts(std::string_view body, const std::string& boundary) {
  TMimeParts parts;
  if (boundary.empty()) return parts;
  const std::string mark = "--" + boundary;
  std::size_t begin = body.npos;
  for (std::size_t at = 0; (at = body.find(mark, at)) != body.npos;) {
    const bool beginsLine = at == 0 || Ends.find(body[at - 1]) != Ends.npos;
    std::size_t end = at + mark.size();
    const bool closes = body.substr(end).starts_with("--");
    if (closes) end += 2;
    const std::size_t rest = std::min(body.find_first_not_of(" \t", end), body.size());
    // A longer boundary begins so, too.
    if (!beginsLine || (rest < body.size() && Ends.find(body[rest]) == Ends.npos)) {
      at += mark.size();
      continue;
    }
    if (begin != body.npos) {
      parts.Found.push_back(WithoutLineEnd(body.substr(begin, std::max(at, begin) - begin)));
    }
    begin = NextLine(body, rest);
    at = rest;
    if (closes) {
      parts.Closed = begin != body.npos && !parts.Found.empty();
      return parts;
    }
  }
  if (begin != body.npos && begin < body.size()) parts.Found.push_back(body.substr(begin));
  return parts;
}

}  // namespace qel
