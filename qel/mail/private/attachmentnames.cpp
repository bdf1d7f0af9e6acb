// Making names safe.
#include "qel/mail/private/attachmentnames.h"

#include <algorithm>
#include <array>

#include "qel/mail/private/asciitext.h"
#include "qel/mail/private/charsets.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr std::size_t MaxSize = 200, MaxExtension = 20;

/// Characters that turn the direction of what follows or are not seen at all: "gpj.exe" must not
/// look like "exe.jpg". U+200B to U+200F, U+202A to U+202E, U+2060 to U+206F and U+FEFF.
bool IsUnseen(std::string_view three) {
  if (three == "\xEF\xBB\xBF") return true;
  const auto last = three.size() == 3 ? static_cast<unsigned char>(three[2]) : 0u;
  if (three.starts_with("\xE2\x80"))
    return (last >= 0x8B && last <= 0x8F) || (last >= 0xAA && last <= 0xAE);
  return three.starts_with("\xE2\x81") && last >= 0xA0 && last <= 0xAF;
}

std::string Allowed(std::string_view name) {
  std::string text;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const auto byte = static_cast<unsigned char>(name[i]);
    if (IsUnseen(name.substr(i, 3))) {
      i += 2;
    } else if (byte == 0xC2 && i + 1 < name.size() &&
               static_cast<unsigned char>(name[i + 1]) < 0xA0) {
      ++i;  // The control characters from U+0080 on.
    } else if (byte >= ' ' && byte != 127 &&
               std::string_view(":*?\"<>|").find(name[i]) == std::string_view::npos) {
      text += name[i];
    }
  }
  while (text.ends_with('.') || text.ends_with(' ')) text.pop_back();
  return std::string(vcl::Trim(text));
}

/// The names that the system takes for devices, whatever extension they have.
bool IsDevice(std::string_view name) {
  const std::string stem = vcl::UpperCase(vcl::Trim(name.substr(0, name.find('.'))));
  for (const std::string_view device : {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"}) {
    if (stem == device) return true;
  }
  if (!stem.starts_with("COM") && !stem.starts_with("LPT")) return false;
  // The digits, and the small ones above the line, which count the same.
  constexpr std::array<std::string_view, 13> digits{
      "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "\xC2\xB9", "\xC2\xB2", "\xC2\xB3"};
  return std::ranges::find(digits, std::string_view(stem).substr(3)) != digits.end();
}

struct TSplitName {
  std::string Stem, Extension;
};

TSplitName Split(const std::string& name) {
  const std::size_t dot = name.rfind('.');
  if (dot == name.npos || dot == 0 || name.size() - dot > MaxExtension) return {name, {}};
  return {name.substr(0, dot), name.substr(dot)};
}

std::string ExtensionOf(std::string_view type) {
  constexpr std::array<std::pair<std::string_view, const char*>, 16> known{{
      {"text/plain", ".txt"},
      {"text/html", ".html"},
      {"text/csv", ".csv"},
      {"text/calendar", ".ics"},
      {"image/jpeg", ".jpg"},
      {"image/png", ".png"},
      {"image/gif", ".gif"},
      {"image/bmp", ".bmp"},
      {"image/svg+xml", ".svg"},
      {"application/pdf", ".pdf"},
      {"application/zip", ".zip"},
      {"application/json", ".json"},
      {"application/xml", ".xml"},
      {"message/rfc822", ".eml"},
      {"audio/mpeg", ".mp3"},
      {"video/mp4", ".mp4"},
  }};
  const auto found =
      std::ranges::find(known, type, &std::pair<std::string_view, const char*>::first);
  return found == known.end() ? ".bin" : found->second;
}

}  // namespace

std::string TAttachmentNames::Give(std::string_view name, std::string_view type) {
  name.remove_prefix(name.find_last_of("\\/") + 1);
  const std::string valid = RepairedUtf8(name);
  std::string safe = Allowed(valid);
  if (safe.empty()) safe = "attachment" + ExtensionOf(type);
  if (IsDevice(safe)) safe.insert(0, "_");
  const TSplitName parts = Split(safe);
  const auto numbered = [&](const std::string& number) {
    const std::size_t room = MaxSize - parts.Extension.size() - number.size();
    return vcl::Concat(vcl::CutUtf8(parts.Stem, room), number, parts.Extension);
  };
  const std::string plain = numbered("");
  std::string given = plain;
  while (!FGiven.emplace(given, 2).second) {
    given = numbered(vcl::Concat(" (", std::to_string(FGiven[plain]++), ")"));
  }
  return given;
}

bool TAttachmentNames::TBefore::operator()(const std::string& a, const std::string& b) const {
  return vcl::AnsiCompareText(a, b) < 0;
}

}  // namespace qel
