// How the sender reads the server's replies (RFC 821, appendix E): lines of a code of three digits,
// a "-" when another line follows or else a blank, and a text.
#include <cctype>

#include "qel/mail/Qeltiemails_smtp.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::size_t TextSize = 64;

bool IsLast(std::string_view line) { return line.size() > 3 && line[3] == ' '; }

bool BeginsReply(std::string_view line) {
  for (std::size_t i = 0; i < 3; ++i) {
    if (i >= line.size() || !std::isdigit(static_cast<unsigned char>(line[i]))) return false;
  }
  return line.size() > 3 && (line[3] == ' ' || line[3] == '-');
}

/// What counts of a chunk: all of it, but when it has more than its first line, the beginning of
/// what follows that line.
std::string_view Counting(std::string_view chunk) {
  const std::size_t end = chunk.find(LineEnd);
  if (end == chunk.npos || end + LineEnd.size() == chunk.size()) return chunk;
  return chunk.substr(end + LineEnd.size(), TextSize);
}

/// Drops the first line when others follow it.
bool DropLine(std::string& chunk) {
  const std::size_t end = chunk.find(LineEnd);
  if (end == chunk.npos || end + LineEnd.size() == chunk.size()) return false;
  chunk.erase(0, end + LineEnd.size());
  return true;
}

/// The line that the chunk breaks off in, as far as it can matter.
std::string Unfinished(std::string_view chunk) {
  return std::string(chunk.substr(chunk.rfind('\n') + 1, 4 + TextSize));
}

}  // namespace

std::string TQELSMTPMail::NextChunk() {
  std::string chunk = ReadChunk();
  // The rest of a line whose beginning has been taken for the reply before.
  if (FInsideLine && !BeginsReply(chunk)) {
    const std::size_t end = chunk.find('\n');
    FInsideLine = end == chunk.npos;
    chunk.erase(0, FInsideLine ? chunk.npos : end + 1);
  } else if (!chunk.empty()) {
    FInsideLine = false;
  }
  return chunk;
}

void TQELSMTPMail::TakeReply(std::string_view text) {
  FReplyCode = vcl::Trim(text.substr(0, 3));
  FReplyText = text.size() > 3 ? vcl::Trim(text.substr(3, TextSize)) : std::string_view();
}

void TQELSMTPMail::GetSocketText(std::string& text) {
  if (FExtended) return ReadWholeReply(text);
  std::string unfinished;
  do {
    std::string chunk = unfinished + NextChunk();
    unfinished = Unfinished(chunk);
    do {
      text = Counting(chunk);
    } while (!IsLast(text) && DropLine(chunk));
    if (text.empty()) text = "----";
    TakeReply(text);
    LetWait();
  } while (!IsLast(text));
  FInsideLine = FInsideLine || !unfinished.empty();
}

}  // namespace qel
