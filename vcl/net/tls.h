// Transport security (TLS 1.2, RFC 5246, and newer): what a connection is to be secured with, and
// what is said of a server's certificate.
#pragma once

#include <functional>
#include <string>

#include "vcl/net/sockets.h"

namespace vcl {

/// The connection could not be secured, or what came over it is not what the peer has sent.
class VCL_API ETlsError : public ESocketError {
 public:
  using ESocketError::ESocketError;
  ~ETlsError() override;
};

/// A server's certificate that the check has refused.
struct TTlsCertificate {
  /// SHA-256 of the whole certificate: 32 pairs of capital hexadecimal digits with colons between
  /// them, as certificate tools print it.
  std::string Fingerprint;
  /// Whom it is for, as the system writes a distinguished name.
  std::string Subject;
  /// Why it was refused, in words.
  std::string Problem;
};

/// How a connection is to be secured.
struct TTlsSettings {
  /// The name, or the address in digits, that the certificate must be for.
  std::string HostName;
  /// Asked when the certificate is refused: true takes it all the same. May be empty.
  std::function<bool(const TTlsCertificate&)> Accept;
  /// Called while the peer is waited for, several times a second. What it raises ends the attempt.
  /// May be empty.
  std::function<void()> Waiting;
  /// How many milliseconds the peer may take for each of its answers; negative for ever.
  int TimeOut = 30000;
};

}  // namespace vcl
