// Blocks of cells as text: quoting and its reverse.
#include "vcl/grids/gridtext.h"

#include <algorithm>

namespace vcl {
namespace {

void AddCell(std::string& text, const std::string& cell) {
  if (cell.find_first_of("\t\"\r\n") == std::string::npos) {
    text += cell;
    return;
  }
  text += '"';
  for (const char c : cell) {
    if (c == '"') text += '"';
    // The clipboard's lines end with LF here.
    if (c != '\r') text += c;
  }
  text += '"';
}

/// Takes a cell in quotes, and what follows it up to the next separator, off the text.
std::string TakeQuoted(std::string_view& rest) {
  std::string cell;
  rest.remove_prefix(1);
  while (!rest.empty()) {
    const char c = rest.front();
    rest.remove_prefix(1);
    if (c == '"' && !rest.starts_with('"')) break;
    if (c == '"') rest.remove_prefix(1);
    cell += c;
  }
  return cell;
}

std::string TakeCell(std::string_view& rest) {
  std::string cell = rest.starts_with('"') ? TakeQuoted(rest) : std::string();
  const std::size_t end = std::min(rest.find_first_of("\t\r\n"), rest.size());
  cell += rest.substr(0, end);
  rest.remove_prefix(end);
  return cell;
}

}  // namespace

std::string BlockToText(const TTextBlock& block) {
  std::string text;
  for (const std::vector<std::string>& row : block) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) text += '\t';
      AddCell(text, row[i]);
    }
    text += '\n';
  }
  return text;
}

TTextBlock TextToBlock(std::string_view rest) {
  TTextBlock block;
  while (!rest.empty()) {
    std::vector<std::string>& row = block.emplace_back();
    row.push_back(TakeCell(rest));
    while (rest.starts_with('\t')) {
      rest.remove_prefix(1);
      row.push_back(TakeCell(rest));
    }
    rest.remove_prefix(rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(rest.size(), 1));
  }
  return block;
}

}  // namespace vcl
