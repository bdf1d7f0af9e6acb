// What a mail's header says (RFC 822): finding its lines, and reading the fields that a message
// has.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "qel/core/api.h"

namespace qel {

/// The lines of a header, which lie in a text that outlives them.
using THeaderLines = std::vector<std::string_view>;

/// So many characters from a place on, which counts from 1; fewer where the text ends.
std::string_view Characters(std::string_view text, std::size_t from,
                            std::size_t count = std::string_view::npos);

/// True when the line, in capitals, starts with the key, which is written in capitals.
QEL_API bool StartsWithKey(std::string_view line, std::string_view key);
/// Where the line, in capitals, contains the key, counted from 1; 0 where it does not.
QEL_API std::size_t FindKey(std::string_view line, std::string_view key);

/// The first line that starts with the key.
QEL_API std::optional<std::string_view> FindInHeaders(std::string_view key,
                                                      const THeaderLines& lines);
/// What follows the key in the first line that contains it anywhere.
QEL_API std::optional<std::string_view> FindBehindKey(std::string_view key,
                                                      const THeaderLines& lines);

/// The fields that a message keeps. Each is cut where lines were once expected to end.
struct TMailFields {
  std::string FromMail, FromName, MessageId, InReplyTo, ReplyTo, SendTo, Date, Subject;
};
QEL_API TMailFields ReadFields(const THeaderLines& lines);

/// The type of a mail's or a part's contents, in capitals, without parameters; nothing when the
/// header has no such line.
QEL_API std::optional<std::string> ContentType(const THeaderLines& lines);

}  // namespace qel
