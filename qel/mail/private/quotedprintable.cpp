// Quoted-printable, both ways.
#include "qel/mail/private/quotedprintable.h"

namespace qel {
namespace {

constexpr std::size_t MaxLine = 76;

/// Appends a line without the blanks at its end, decoded; false when its end is not the text's.
bool AppendDecoded(std::string_view line, std::string& text) {
  line = line.substr(0, line.find_last_not_of(" \t") + 1);
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] != '=') {
      text += line[i];
      continue;
    }
    if (i + 1 == line.size()) return false;
    const int high = HexValue(line[i + 1]);
    const int low = i + 2 < line.size() ? HexValue(line[i + 2]) : -1;
    if (high < 0 || low < 0) {
      text += '=';
      continue;
    }
    text += static_cast<char>(high * 16 + low);
    i += 2;
  }
  return true;
}

bool IsPlain(char c) { return c == '\t' || (c >= ' ' && c <= '~' && c != '='); }

}  // namespace

int HexValue(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  return -1;
}

void AppendHex(char mark, char byte, std::string& text) {
  constexpr const char* digits = "0123456789ABCDEF";
  const auto value = static_cast<unsigned char>(byte);
  text.append({mark, digits[value >> 4], digits[value & 15]});
}

std::string DecodeQuotedPrintable(std::string_view text) {
  std::string decoded;
  decoded.reserve(text.size());
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
    const bool both = line.ends_with('\r');
    if (both) line.remove_suffix(1);
    if (AppendDecoded(line, decoded) && end != std::string_view::npos) {
      decoded += both ? "\r\n" : "\n";
    }
  }
  return decoded;
}

void EncodeQuotedPrintableLine(std::string_view line,
                               const std::function<void(std::string_view)>& sink) {
  std::string encoded;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    const bool last = i + 1 == line.size();
    const bool begins = i == 0 && (line == "." || line.starts_with("From "));
    const bool blankAtEnd = last && (c == ' ' || c == '\t');
    std::string letters;
    if (!IsPlain(c) || begins || blankAtEnd) {
      AppendHex('=', c, letters);
    } else {
      letters = c;
    }
    // Room for the mark that the line goes on.
    if (encoded.size() + letters.size() + (last ? 0 : 1) > MaxLine) {
      sink(encoded += '=');
      encoded.clear();
    }
    encoded += letters;
  }
  sink(encoded);
}

}  // namespace qel
