// Digests and random bytes by OpenSSL.
#include <openssl/evp.h>
#include <openssl/rand.h>

#include "qel/mail/mailerror.h"
#include "qel/mail/private/digests.h"
#include "qel/mail/private/digestsystem.h"

namespace qel {

std::string Md5(std::string_view bytes) {
  std::string digest(16, '\0');
  auto* const to = reinterpret_cast<unsigned char*>(digest.data());
  if (EVP_Digest(bytes.data(), bytes.size(), to, nullptr, EVP_md5(), nullptr) != 1) {
    throw EQELMailError("The system refuses MD5, which this way of logging in needs");
  }
  return digest;
}

std::string RandomBytes(std::size_t count) {
  std::string bytes(count, '\0');
  if (RAND_bytes(reinterpret_cast<unsigned char*>(bytes.data()), static_cast<int>(count)) != 1) {
    throw EQELMailError("The system has no random bytes");
  }
  return bytes;
}

}  // namespace qel
