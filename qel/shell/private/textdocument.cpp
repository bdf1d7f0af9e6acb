// TTextDocument: bytes from the disk, lines among them, and what they show.
#include "qel/shell/private/textdocument.h"

#include <algorithm>
#include <functional>

#include "qel/shell/private/regularexpression.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

constexpr std::uint64_t Longest = 64 << 10;  // Of a line in one piece.
constexpr std::size_t Portion = 1 << 20;     // Of a search.

}  // namespace

// ---- The bytes ----

void TFileBytes::Open(const std::string& fileName) {
  constexpr DWORD everybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE file = ::CreateFileW(vcl::SystemFileName(fileName).c_str(), GENERIC_READ, everybody,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    vcl::RaiseLastOSError<vcl::EInOutError>("Cannot read '", fileName, "'");
  }
  Close();
  FFile = file;
}

void TFileBytes::Close() {
  if (FFile) ::CloseHandle(FFile);
  FFile = nullptr;
  Forget();
}

std::uint64_t TFileBytes::CurrentSize() const {
  LARGE_INTEGER size{};
  return FFile && ::GetFileSizeEx(FFile, &size) ? static_cast<std::uint64_t>(size.QuadPart) : 0;
}

const std::string& TFileBytes::Block(std::uint64_t number) {
  TBlock& block = FBlocks[number % BlockCount];
  if (block.Number == number) return block.Bytes;
  block.Bytes.resize(BlockSize);
  OVERLAPPED at{};
  at.Offset = static_cast<DWORD>(number * BlockSize);
  at.OffsetHigh = static_cast<DWORD>(number * BlockSize >> 32);
  DWORD count = 0;
  if (!::ReadFile(FFile, block.Bytes.data(), BlockSize, &count, &at)) count = 0;
  block.Bytes.resize(count);
  block.Number = number;
  return block.Bytes;
}

std::string TFileBytes::Read(std::uint64_t from, std::size_t count) {
  std::string bytes;
  while (FFile && bytes.size() < count) {
    const std::uint64_t at = from + bytes.size();
    const std::string& block = Block(at / BlockSize);
    const auto inside = static_cast<std::size_t>(at % BlockSize);
    if (inside >= block.size()) break;
    bytes.append(block, inside, count - bytes.size());
  }
  return bytes;
}

// ---- The file ----

namespace {

/// What the beginning of a text without a mark looks like.
TTextCoding CodingOf(std::string_view bytes) {
  std::size_t even = 0, odd = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\0') ++(i % 2 == 0 ? even : odd);
  }
  // Of letters of the western alphabets every other byte is zero.
  if (odd > bytes.size() / 4 && even < bytes.size() / 16) return TTextCoding::Utf16Little;
  if (even > bytes.size() / 4 && odd < bytes.size() / 16) return TTextCoding::Utf16Big;
  // A character may be cut at the end.
  for (std::size_t cut = 0; cut < 4 && cut <= bytes.size(); ++cut) {
    if (LooksLikeUtf8(bytes.substr(0, bytes.size() - cut))) return TTextCoding::Utf8;
  }
  return ::GetACP() == CP_UTF8 ? TTextCoding::Utf8 : TTextCoding::CodePage;
}

}  // namespace

void TTextDocument::Open(const std::string& fileName, std::optional<TTextCoding> coding) {
  FBytes.Open(fileName);
  FSize = FBytes.CurrentSize();
  const std::string start = FBytes.Read(0, Longest);
  const TMark mark = MarkOf(start);
  FCoding = coding ? *coding : mark.Size > 0 ? mark.Coding : CodingOf(start);
  FBegin = mark.Size > 0 && (mark.Coding == FCoding ||
                             (mark.Coding == TTextCoding::Utf8Mark && FCoding == TTextCoding::Utf8))
               ? mark.Size
               : 0;
}

void TTextDocument::Close() {
  FBytes.Close();
  FSize = FBegin = 0;
}

std::uint64_t TTextDocument::Refresh() {
  const std::uint64_t former = FSize;
  FSize = FBytes.CurrentSize();
  if (FSize != former) FBytes.Forget();
  return former;
}

// ---- The lines ----

std::size_t TTextDocument::Unit() const {
  return FCoding == TTextCoding::Utf16Little || FCoding == TTextCoding::Utf16Big ? 2 : 1;
}

/// Behind the next line break; `limit` when there is none before it.
std::uint64_t TTextDocument::EndOfLine(std::uint64_t from, std::uint64_t limit) {
  while (from < limit) {
    const std::string bytes =
        FBytes.Read(from, static_cast<std::size_t>(std::min<std::uint64_t>(limit - from, 4096)));
    if (bytes.empty()) break;
    for (std::size_t i = bytes.find('\n'); i != std::string::npos; i = bytes.find('\n', i + 1)) {
      if (Unit() == 1) return from + i + 1;
      const std::size_t even = i & ~std::size_t{1};
      const std::string unit = FBytes.Read(from + even, 2);
      const bool ends = FCoding == TTextCoding::Utf16Little ? unit == std::string("\n\0", 2)
                                                            : unit == std::string("\0\n", 2);
      if (ends) return from + even + 2;
    }
    from += bytes.size();
  }
  return limit;
}

bool TTextDocument::IsLineEnd(std::uint64_t place) {
  if (place < FBegin + Unit()) return false;
  return EndOfLine(place - Unit(), place + 1) == place;
}

TLineBytes TTextDocument::LineAt(std::uint64_t begin) {
  begin = std::clamp(begin, FBegin, FSize);
  const std::uint64_t most = std::min(FSize, begin + Longest);
  std::uint64_t next = EndOfLine(begin, most);
  if (next == most && !IsLineEnd(most) && most < FSize) next = (begin / Longest + 1) * Longest;
  TLineBytes line{begin, next, next};
  if (next > begin && IsLineEnd(next)) {
    line.End = next - Unit();
    const std::string before =
        FBytes.Read(std::max(begin, line.End - std::min<std::uint64_t>(line.End, Unit())), Unit());
    if (line.End > begin && before.find('\r') != std::string::npos) line.End -= Unit();
  }
  return line;
}

std::uint64_t TTextDocument::BeginOf(std::uint64_t place) {
  place = std::clamp(place, FBegin, FSize);
  if (Unit() == 2) place -= (place - FBegin) % 2;
  const std::uint64_t back = place > FBegin + Longest ? place - Longest : FBegin;
  // The last line break before it, from portions that grow towards the beginning.
  std::uint64_t found = back;
  bool any = back == FBegin;
  for (std::uint64_t reach = 512;; reach *= 4) {
    const std::uint64_t from =
        place - FBegin > reach && place - reach > back ? place - reach : back;
    for (std::uint64_t at = from; at < place;) {
      const std::uint64_t end = EndOfLine(at, place);
      if (!IsLineEnd(end)) break;
      found = end;
      any = true;
      at = end;
    }
    if ((any && found > back) || from == back) break;
  }
  if (any) return std::min(found, place);
  return std::max(FBegin, place / Longest * Longest);
}

std::uint64_t TTextDocument::LineBefore(std::uint64_t begin) {
  return begin <= FBegin ? FBegin : BeginOf(begin - Unit());
}

TShownLine TTextDocument::Shown(const TLineBytes& line) {
  TShownLine shown;
  std::uint64_t place = line.Begin;
  constexpr std::size_t tab = 8;
  const std::string bytes =
      FBytes.Read(line.Begin, static_cast<std::size_t>(line.End - line.Begin));
  EachCharacter(bytes, FCoding, [&](char32_t character, std::size_t size) {
    const auto add = [&](wchar_t unit) {
      shown.Text += unit;
      shown.Places.push_back(place);
    };
    if (character == '\t') {
      do add(L' ');
      while (shown.Text.size() % tab != 0);
    } else if (character < 0x20) {
      add(static_cast<wchar_t>(0x2400 + character));  // The picture of a control character.
    } else {
      for (const wchar_t each :
           vcl::ToUtf16(character > 0x10FFFF ? vcl::Utf8(0xFFFD) : vcl::Utf8(character))) {
        add(each);
      }
    }
    place += size;
  });
  shown.Places.push_back(place);
  return shown;
}

std::string TTextDocument::Text(std::uint64_t from, std::uint64_t to) {
  std::string text;
  EachCharacter(FBytes.Read(from, static_cast<std::size_t>(to - from)), FCoding,
                [&](char32_t character, std::size_t) {
                  text += character > 0x10FFFF ? vcl::Utf8(0xFFFD) : vcl::Utf8(character);
                });
  return text;
}

// ---- The search ----

std::string TTextDocument::Encoded(const std::string& text) const {
  const TTextCoding plain = FCoding == TTextCoding::Utf8Mark ? TTextCoding::Utf8 : FCoding;
  const std::string bytes = EncodeText({plain, CharactersOf(text)});
  return bytes.substr(MarkOf(bytes).Size);
}

std::uint64_t TTextDocument::LengthOf(const std::string& text) const {
  return Encoded(text).size();
}

std::optional<std::uint64_t> TTextDocument::Find(const std::string& text, bool matchCase,
                                                 std::uint64_t from, bool backwards) {
  const auto small = [](std::string& bytes) {
    for (char& each : bytes) {
      if (each >= 'A' && each <= 'Z') each = static_cast<char>(each + 32);
    }
  };
  std::string wanted = Encoded(text);
  if (!matchCase) small(wanted);
  if (wanted.empty()) return {};
  // Skips what cannot be it: several times faster than a look at each byte.
  const std::boyer_moore_horspool_searcher searcher(wanted.begin(), wanted.end());
  const auto behind = [&](const std::string& bytes, std::size_t at) {
    const auto found =
        std::search(bytes.begin() + static_cast<std::ptrdiff_t>(at), bytes.end(), searcher);
    return found == bytes.end() ? std::string::npos
                                : static_cast<std::size_t>(found - bytes.begin());
  };
  const auto inPortion = [&](std::uint64_t begin,
                             std::uint64_t end) -> std::optional<std::uint64_t> {
    std::string bytes = FBytes.Read(begin, static_cast<std::size_t>(end - begin));
    if (!matchCase) small(bytes);
    std::size_t at = backwards ? bytes.rfind(wanted) : behind(bytes, 0);
    // A character does not begin in the middle of another one.
    while (at != std::string::npos && Unit() == 2 && (begin + at - FBegin) % 2 == 1) {
      if (backwards && at == 0) return {};
      at = backwards ? bytes.rfind(wanted, at - 1) : behind(bytes, at + 1);
    }
    if (at == std::string::npos) return {};
    return begin + at;
  };
  const std::uint64_t over = wanted.size() - 1;
  if (!backwards) {
    for (std::uint64_t at = from; at < FSize; at += Portion) {
      if (const auto found = inPortion(at, std::min(FSize, at + Portion + over))) return found;
    }
    return {};
  }
  for (std::uint64_t end = from; end > FBegin;) {
    const std::uint64_t begin = end > FBegin + Portion ? end - Portion : FBegin;
    if (const auto found = inPortion(begin, std::min({FSize, end + over, from}))) return found;
    end = begin;
  }
  return {};
}

}  // namespace qel
