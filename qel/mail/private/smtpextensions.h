// What a server answers to EHLO (RFC 5321, 4.1.1.1): the extensions that it has.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qel {

struct TSmtpExtensions {
  bool StartTls = false;    ///< RFC 3207.
  bool Pipelining = false;  ///< RFC 2920.
  bool EightBit = false;    ///< 8BITMIME, RFC 6152.
  bool Utf8 = false;        ///< SMTPUTF8, RFC 6531.
  bool Size = false;        ///< RFC 1870.
  /// The largest mail that is taken, in bytes; 0 for any.
  std::uint64_t MaxSize = 0;
  std::vector<std::string> Auth;  ///< In capitals; RFC 4954.
};

/// Reads the lines of the reply, without their codes; the first one greets.
TSmtpExtensions ReadExtensions(const std::vector<std::string>& lines);

}  // namespace qel
