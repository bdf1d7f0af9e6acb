// Finding the lines of a mail's header, and reading sender, recipients and the other fields from
// them.
#include "qel/mail/private/headerfields.h"

#include <algorithm>

#include "vcl/rtl/text.h"

namespace qel {
namespace {

char Capital(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::size_t FindHeader(std::string_view key, const THeaderLines& lines) {
  return static_cast<std::size_t>(
      std::ranges::find_if(lines, [&](auto line) { return StartsWithKey(line, key); }) -
      lines.begin());
}

/// The trimmed characters of the first line that starts with the key; empty without one.
std::string Field(std::string_view key, const THeaderLines& lines, std::size_t from,
                  std::size_t count = std::string_view::npos) {
  const auto line = FindInHeaders(key, lines);
  return line ? std::string(vcl::Trim(Characters(*line, from, count))) : "";
}

/// Appends the lines that continue the one at the index. Only a blank begins such a line: fields
/// that are folded with tabs end at their first line.
void AppendContinuation(const THeaderLines& lines, std::size_t index, std::string_view separator,
                        std::string& text) {
  while (++index < lines.size() && lines[index].starts_with(' ')) {
    text.append(separator).append(vcl::Trim(lines[index]));
  }
}

/// What stands between the first "<" and the first ">"; empty when they do not enclose anything.
std::string BetweenBrackets(std::string_view text) {
  const std::size_t open = text.find('<'), close = text.find('>');
  if (close == std::string_view::npos || close < open) return {};
  return std::string(text.substr(open + 1, close - open - 1));
}

/// The sender: `"Ann" <ann@example.test>`, or the address alone, which then is the name too.
void ReadFrom(const THeaderLines& lines, TMailFields& fields) {
  // A mail kept by another program may begin with its envelope: "From ", the sender, the date.
  if (!lines.empty()) fields.FromMail = Characters(lines.front(), 6, 72);
  const std::size_t index = FindHeader("FROM:", lines);
  if (index < lines.size()) {
    fields.FromMail = vcl::Trim(Characters(lines[index], 7, 127));
    AppendContinuation(lines, index, "", fields.FromMail);
  }
  const std::size_t open = fields.FromMail.find('<');
  fields.FromName = fields.FromMail.substr(0, open);
  if (open != std::string::npos) {
    // The blank before the address stays with the name.
    std::erase(fields.FromName, '"');
    fields.FromMail = BetweenBrackets(fields.FromMail);
  }
  std::erase(fields.FromMail, ' ');
}

std::string ReadReplyTo(const THeaderLines& lines, const TMailFields& fields) {
  const std::size_t index = FindHeader("REPLY-TO:", lines);
  if (index == lines.size()) return fields.FromMail;
  std::string text(Characters(lines[index], 11, 127));  // Not trimmed, unlike the others.
  AppendContinuation(lines, index, "", text);
  return text;
}

/// The recipient; of several with names the first one's address alone.
std::string ReadSendTo(const THeaderLines& lines) {
  const std::size_t index = FindHeader("TO:", lines);
  if (index == lines.size()) return {};
  std::string text(vcl::Trim(Characters(lines[index], 5)));
  AppendContinuation(lines, index, " ", text);
  if (text.find('<') != std::string::npos) text = BetweenBrackets(text);
  std::erase(text, ' ');
  return text;
}

}  // namespace

std::string_view Characters(std::string_view text, std::size_t from, std::size_t count) {
  return from > text.size() ? std::string_view() : text.substr(from - 1, count);
}

bool StartsWithKey(std::string_view line, std::string_view key) {
  return line.size() >= key.size() &&
         std::ranges::equal(line.substr(0, key.size()), key, {}, Capital);
}

std::size_t FindKey(std::string_view line, std::string_view key) {
  const auto found = std::search(line.begin(), line.end(), key.begin(), key.end(),
                                 [](char a, char b) { return Capital(a) == b; });
  return found == line.end() ? 0 : static_cast<std::size_t>(found - line.begin()) + 1;
}

std::optional<std::string_view> FindInHeaders(std::string_view key, const THeaderLines& lines) {
  const std::size_t index = FindHeader(key, lines);
  if (index == lines.size()) return std::nullopt;
  return lines[index];
}

std::optional<std::string_view> FindBehindKey(std::string_view key, const THeaderLines& lines) {
  for (const std::string_view line : lines) {
    const std::size_t position = FindKey(line, key);
    if (position > 0) return Characters(line, position + key.size());
  }
  return std::nullopt;
}

TMailFields ReadFields(const THeaderLines& lines) {
  TMailFields fields;
  ReadFrom(lines, fields);
  fields.MessageId = Field("MESSAGE-ID:", lines, 13, 127);
  fields.InReplyTo = Field("IN-REPLY-TO:", lines, 14, 127);
  fields.ReplyTo = ReadReplyTo(lines, fields);
  fields.SendTo = ReadSendTo(lines);
  fields.Date = Field("DATE:", lines, 7, 72);
  fields.Subject = Field("SUBJECT:", lines, 10);
  return fields;
}

std::optional<std::string> ContentType(const THeaderLines& lines) {
  if (!FindInHeaders("CONTENT-TYPE:", lines)) return std::nullopt;
  const std::string type = vcl::UpperCase(Field("CONTENT-TYPE:", lines, 15, 72));
  return type.substr(0, type.find(';'));
}

}  // namespace qel
