// Taking apart a mail as the standards of today have it (RFC 5322, RFC 2045 to 2047).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "qel/core/api.h"
#include "qel/mail/private/mailaddresses.h"

namespace qel {

/// A file in a mail.
struct TReadAttachment {
  std::string Name;       ///< Safe to save under, and no other of the mail has it.
  std::string Type;       ///< "image/png", in small letters.
  std::string ContentId;  ///< By which the HTML text shows it; without brackets.
  std::string Data;
};

/// A mail's contents; all texts in UTF-8, on one line each but for the two bodies.
struct TReadMail {
  std::vector<TMailAddress> From, ReplyTo, To, Cc;
  std::string Subject, Date, MessageId, InReplyTo, References;
  std::string Text;                          ///< The plain text.
  std::string HtmlText;                      ///< The same, or more, as HTML.
  std::vector<TReadAttachment> Attachments;  ///< In the mail's order.
  std::vector<std::string> Notes;            ///< What was wrong, a sentence each.
};

/// Reads a mail: header, empty line, body. Nothing is refused: what is damaged is read as far as it
/// goes, with a note.
QEL_API TReadMail ReadMime(std::string_view mail);

}  // namespace qel
