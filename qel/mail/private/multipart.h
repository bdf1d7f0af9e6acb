// Mails of several parts (RFC 2046, 5.1): telling the parts apart, and what each one is.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "qel/core/api.h"
#include "qel/mail/private/headerfields.h"

namespace qel {

/// What stands between the parts according to a mail's header. Raises EQELMailError when the header
/// does not say.
QEL_API std::string ReadBoundary(const THeaderLines& lines);

/// The parts of a mail's text, their headers included; they lie in it. Raises EQELMailError when
/// the boundary is nowhere in it, and EStringListError when the last part has no end.
QEL_API std::vector<std::string_view> SplitParts(std::string_view body,
                                                 const std::string& boundary);

/// What a part's header says of it.
struct TPartKind {
  std::string Encoding;  ///< In capitals; empty when it does not say.
  std::string Type;      ///< In capitals, without parameters; empty when it does not say.
  std::string Name;      ///< The file's name; empty for none.

  bool IsHtml() const { return Type == "TEXT/HTML"; }
  /// True for letters that stand for bytes.
  bool IsEncoded() const { return Encoding == "BASE64" || Encoding == "X-UUENCODE"; }
  bool IsAttachment() const { return IsEncoded() || !Name.empty() || IsHtml(); }
};
QEL_API TPartKind ReadPartKind(std::string_view part);

/// The name that an attachment gets: the part's, else the subject, without what no file's name may
/// have.
QEL_API std::string AttachmentName(const TPartKind& kind, std::string_view subject);

/// A header, and what follows the empty line that ends it. Without such a line all lines are the
/// header's, and there is no rest.
struct THeader {
  THeaderLines Lines;
  std::optional<std::string_view> Rest;
};
QEL_API THeader ReadHeader(std::string_view text);

}  // namespace qel
