// What the library asks of the system's TLS: bytes in, bytes out, no socket. One implementation per
// system.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "vcl/net/tls.h"

namespace vcl::os {

/// The client's end of one TLS connection. All raise ETlsError for what the protocol refuses.
class TTlsEngine {
 public:
  virtual ~TTlsEngine() = default;
  /// Goes on shaking hands with what has come, of which it erases what it has used, and appends
  /// what is to be sent. True once it is done.
  virtual bool ShakeHands(std::string& received, std::string& toSend) = 0;
  /// The server's certificate; its Problem is empty when the system trusts it and it is for the
  /// host. After the handshake.
  virtual TTlsCertificate CheckCertificate() = 0;
  /// Appends to `toSend` what the bytes become.
  virtual void Encrypt(std::string_view plain, std::string& toSend) = 0;
  /// Decrypts what has come as far as it is whole, erasing it, and appends the bytes; `toSend` gets
  /// what the protocol itself has to say. False when the peer has taken its leave.
  virtual bool Decrypt(std::string& received, std::string& plain, std::string& toSend) = 0;
  /// Appends the leave-taking.
  virtual void SayGoodbye(std::string& toSend) = 0;
  /// The protocol, such as "TLSv1.2".
  virtual std::string Version() const = 0;
};

/// An engine for a connection to the host, a name or an address in digits.
std::unique_ptr<TTlsEngine> NewTlsEngine(const std::string& hostName);

/// Bytes as pairs of capital hexadecimal digits with colons between them.
std::string FingerprintText(const unsigned char* bytes, std::size_t count);

}  // namespace vcl::os
