// How a connection is secured, and how a certificate's fingerprint is written.
#include "vcl/net/tls.h"

#include "vcl/net/private/tlschannel.h"

namespace vcl {

ETlsError::~ETlsError() = default;

void TCustomWinSocket::StartTls(const TTlsSettings& settings) {
  Handle();
  if (FTls) throw ETlsError("The connection is secured already");
  FTls = std::make_unique<os::TTlsChannel>(FHandle, settings);
}

std::string TCustomWinSocket::TlsVersion() const { return FTls ? FTls->Version() : std::string(); }

namespace os {

std::string FingerprintText(const unsigned char* bytes, std::size_t count) {
  constexpr const char* digits = "0123456789ABCDEF";
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) text += ':';
    text += digits[bytes[i] >> 4];
    text += digits[bytes[i] & 15];
  }
  return text;
}

}  // namespace os
}  // namespace vcl
