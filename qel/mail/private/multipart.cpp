// Mails of several parts: boundaries, the parts between them, their kinds and names.
#include "qel/mail/private/multipart.h"

#include <algorithm>

#include "qel/mail/mailerror.h"
#include "qel/mail/textlines.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr std::string_view ForbiddenInNames = "\\/:*?\"<>|";

/// From the line behind the first one that has the text anywhere in it.
std::string_view BehindLineWith(std::string_view text, const std::string& wanted) {
  const std::size_t found = text.find(wanted);
  if (found == std::string_view::npos) throw EQELMailError("Message Format Error");
  TLineReader lines(text.substr(found));
  std::string_view line;
  lines.Next(line);
  return lines.Rest();
}

/// The line that begins there, without its end; empty where none begins.
std::string_view LineAt(std::string_view text, std::size_t begin) {
  constexpr std::string_view ends = "\r\n";
  if (begin > 0 && ends.find(text[begin - 1]) == ends.npos) return {};
  return text.substr(begin, text.find_first_of(ends, begin) - begin);
}

/// A name behind FILENAME= is taken to stand in quotes: without them it loses its first and its
/// last character.
std::string FileName(std::string_view behindKey) {
  std::string name(vcl::Trim(Characters(behindKey, 2, 127)));
  if (!name.empty()) name.pop_back();
  return name;
}

std::string QuotedOrPlainName(std::string_view behindKey) {
  const std::string_view name = vcl::Trim(behindKey.substr(0, 127));
  if (!name.starts_with('"')) return std::string(name);
  return std::string(name.size() < 2 ? "" : name.substr(1, name.size() - 2));
}

std::string ReadName(const THeaderLines& lines) {
  if (const auto name = FindBehindKey("FILENAME=", lines)) return FileName(*name);
  if (const auto name = FindBehindKey("NAME=", lines)) return QuotedOrPlainName(*name);
  return {};
}

}  // namespace

std::string ReadBoundary(const THeaderLines& lines) {
  const auto found = FindBehindKey("BOUNDARY=", lines);
  if (!found) throw EQELMailError("Message Format Error");
  std::string boundary(vcl::Trim(found->substr(0, 72)));
  if (!boundary.starts_with('"')) return boundary;
  boundary.erase(0, 1);
  // Other parameters may follow; more than 32 characters of them are not expected.
  const std::size_t quote = boundary.find('"');
  if (quote != std::string::npos) boundary.erase(quote, 32);
  return boundary;
}

// The boundary is looked for as a text: far faster than going through the lines of what lies
// between.
std::vector<std::string_view> SplitParts(std::string_view body, const std::string& boundary) {
  const std::string start = "--" + boundary, end = start + "--";
  const std::string_view text = BehindLineWith(body, start);
  std::vector<std::string_view> parts;
  std::size_t begin = 0;
  for (std::size_t here = 0; (here = text.find(start, here)) != text.npos; ++here) {
    const std::string_view line = LineAt(text, here);
    if (line != start && line != end) continue;
    parts.push_back(text.substr(begin, here - begin));
    if (line == end) return parts;
    here += line.size();
    begin = std::min(text.size(), here + (text.substr(here).starts_with("\r\n") ? 2 : 1));
  }
  throw vcl::EStringListError("The mail ends before its last part does");
}

THeader ReadHeader(std::string_view text) {
  THeader header;
  std::string_view line;
  for (TLineReader lines(text); lines.Next(line);) {
    if (line.empty()) {
      header.Rest = lines.Rest();
      break;
    }
    header.Lines.push_back(line);
  }
  return header;
}

TPartKind ReadPartKind(std::string_view part) {
  const THeaderLines lines = ReadHeader(part).Lines;
  TPartKind kind;
  if (const auto line = FindInHeaders("CONTENT-TRANSFER-ENCODING:", lines)) {
    kind.Encoding = vcl::UpperCase(vcl::Trim(Characters(*line, 28, 20)));
  }
  kind.Type = ContentType(lines).value_or("");
  kind.Name = ReadName(lines);
  return kind;
}

std::string AttachmentName(const TPartKind& kind, std::string_view subject) {
  std::string name(kind.Name.empty() ? vcl::Trim(subject) : std::string_view(kind.Name));
  std::erase_if(name, [](char c) { return ForbiddenInNames.find(c) != std::string_view::npos; });
  if (name.empty()) name = "_Cosa_";
  return kind.IsHtml() ? name + ".html" : name;
}

}  // namespace qel
