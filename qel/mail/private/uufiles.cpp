// Taking uuencoded files out of texts.
#include "qel/mail/private/uufiles.h"

#include <optional>

#include "qel/mail/mailerror.h"
#include "qel/mail/private/uucode.h"
#include "qel/mail/textlines.h"

namespace qel {
namespace {

/// Appends a line's bytes; false for one that is none of the code.
bool AppendLine(std::string_view line, std::string& data) {
  std::array<unsigned char, UULineBytes> bytes;
  try {
    const std::size_t count = DecodeUULine(line, bytes);
    data.append(reinterpret_cast<const char*>(bytes.data()), count);
    return true;
  } catch (const EQELMailError&) {
    return false;
  }
}

/// Reads the lines up to "end"; nothing when one is none of the code, or the end is missing.
std::optional<std::string> ReadFile(TLineReader& lines) {
  std::string data;
  for (std::string_view line; lines.Next(line);) {
    if (IsUUEnd(line)) return data;
    if (!AppendLine(line, data)) return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace

std::vector<TUUFile> TakeUUFiles(std::string& text) {
  std::vector<TUUFile> files;
  // Most texts have none, and are not gone through.
  if (text.find("begin ") == text.npos) return files;
  std::string kept, name;
  std::size_t keptTo = 0;
  std::string_view line;
  TLineReader lines(text);
  for (;;) {
    const std::size_t begin = lines.Position();
    if (!lines.Next(line)) break;
    if (!IsUUBegin(line, name)) continue;
    TLineReader ahead = lines;
    auto data = ReadFile(ahead);
    if (!data) continue;
    kept += std::string_view(text).substr(keptTo, begin - keptTo);
    files.push_back({name, std::move(*data)});
    lines = ahead;
    keptTo = lines.Position();
  }
  if (!files.empty()) text = kept + text.substr(keptTo);
  return files;
}

std::string DecodeUUText(std::string_view text) {
  std::string data, name;
  std::string_view line;
  for (TLineReader lines(text); lines.Next(line);) {
    if (IsUUEnd(line)) break;
    if (!IsUUBegin(line, name)) AppendLine(line, data);
  }
  return data;
}

}  // namespace qel
