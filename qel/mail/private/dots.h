// The dots that lines of a mail begin with on its way: doubled, as a lone one ends it (RFC 5321,
// 4.5.2; RFC 1939, 3).
#pragma once

#include <string>
#include <string_view>

namespace qel {

/// Appends the line with its dot doubled, and its end.
inline void AppendLineWithDots(std::string_view line, std::string& mail) {
  if (line.starts_with('.')) mail += '.';
  mail.append(line).append("\r\n");
}

/// The mail with single dots.
inline std::string WithSingleDots(std::string_view mail) {
  std::string text;
  text.reserve(mail.size());
  if (mail.starts_with('.')) mail.remove_prefix(1);
  for (std::size_t at; (at = mail.find("\n.")) != mail.npos; mail.remove_prefix(at + 2)) {
    text.append(mail.substr(0, at + 1));
  }
  return text.append(mail);
}

}  // namespace qel
