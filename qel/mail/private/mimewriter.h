// Writing a mail as the standards of today have it (RFC 5322, RFC 2045 to 2047, RFC 2231).
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "qel/core/api.h"
#include "qel/mail/private/mailaddresses.h"

namespace qel {

/// A file to be sent.
struct TWriteAttachment {
  std::string Name;       ///< Without its folder, UTF-8.
  std::string Type;       ///< "image/png".
  std::string ContentId;  ///< By which the HTML text shows it, without brackets; empty for none.
  /// Reads the next bytes, at most so many, and returns how many they were; 0 at the end.
  std::function<std::size_t(char* buffer, std::size_t count)> Read;
};

/// A mail to be written; all texts in UTF-8. Who gets it without being seen is no part of it.
struct TWriteMail {
  std::vector<TMailAddress> From, ReplyTo, To, Cc;
  std::string Subject, Date, MessageId, InReplyTo, References;
  /// Further fields, "Name: value", as they are to stand there.
  std::vector<std::string> Fields;
  std::string Text;
  std::string HtmlText;
  std::vector<TWriteAttachment> Attachments;
};

/// Writes the mail, a line a call, without its end: none has more than 998 bytes, and all are ASCII
/// but for addresses that are not. Raises EQELMailError when a value that goes into the header has
/// a line break or a NUL; what reading an attachment raises goes through.
QEL_API void WriteMime(const TWriteMail& mail, const std::function<void(std::string_view)>& sink);

/// The moment as mails have it (RFC 5322, 3.3): "Mon, 02 Nov 2026 09:30:00 +0100". The offset is
/// what the place's clocks are ahead of UTC, in minutes.
QEL_API std::string MailDate(std::chrono::system_clock::time_point moment, int offsetMinutes);
/// What the user's clocks are ahead of UTC now, in minutes.
QEL_API int UtcOffsetMinutes();

/// A number that no other mail has, in brackets (RFC 5322, 3.6.4).
QEL_API std::string NewMessageId(std::string_view domain);

}  // namespace qel
