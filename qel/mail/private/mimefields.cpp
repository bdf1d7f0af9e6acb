// Finding the fields of a header.
#include "qel/mail/private/mimefields.h"

#include <algorithm>

#include "qel/mail/private/asciitext.h"
#include "qel/mail/textlines.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

/// The name that the line begins with; empty for a line that begins no field.
std::string_view NameOf(std::string_view line) {
  const std::string_view name = vcl::Trim(line.substr(0, line.find(':')));
  const bool plain = std::ranges::all_of(name, [](char c) { return c > ' ' && c < 127; });
  return name.size() == line.size() || !plain ? std::string_view() : name;
}

bool Continues(std::string_view line) { return line.starts_with(' ') || line.starts_with('\t'); }

}  // namespace

TMimeHeader::TMimeHeader(std::string_view text) {
  TLineReader lines(text);
  std::string_view line;
  std::size_t begin = 0;
  std::string name;
  const auto keep = [&](std::size_t end) {
    if (!name.empty()) FFields.emplace(name, text.substr(begin, end - begin));
  };
  for (bool first = true;; first = false) {
    const std::size_t at = lines.Position();
    if (!lines.Next(line) || line.empty()) {
      keep(at);
      FBody = text.substr(lines.Position());
      return;
    }
    if (!first && Continues(line)) continue;
    keep(at);
    name = SmallLetters(NameOf(line));
    begin = at + std::min(line.find(':'), line.size() - 1) + 1;
    // Mail programs keep an envelope before the header: "From ", the sender, the date.
    if (!name.empty() || (first && line.starts_with("From "))) continue;
    FBody = text.substr(at);
    return;
  }
}

std::string TMimeHeader::Field(std::string_view name) const {
  const auto found = FFields.find(name);
  if (found == FFields.end()) return {};
  std::string text;
  std::string_view line;
  // A fold is the blank that it begins with.
  for (TLineReader lines(found->second); lines.Next(line);) text += line;
  std::ranges::replace(text, '\t', ' ');
  std::erase(text, '\0');
  return std::string(vcl::Trim(text));
}

}  // namespace qel
