// Digests and random bytes by the system (CNG).
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// It needs what stands above.
#include <bcrypt.h>

#include "qel/mail/mailerror.h"
#include "qel/mail/private/digests.h"
#include "qel/mail/private/digestsystem.h"

namespace qel {
namespace {

unsigned char* Bytes(std::string& text) { return reinterpret_cast<unsigned char*>(text.data()); }

}  // namespace

std::string Md5(std::string_view bytes) {
  std::string input(bytes), digest(16, '\0');
  BCRYPT_ALG_HANDLE method = nullptr;
  BCRYPT_HASH_HANDLE hash = nullptr;
  const bool done =
      BCryptOpenAlgorithmProvider(&method, BCRYPT_MD5_ALGORITHM, nullptr, 0) == 0 &&
      BCryptCreateHash(method, &hash, nullptr, 0, nullptr, 0, 0) == 0 &&
      BCryptHashData(hash, Bytes(input), static_cast<ULONG>(input.size()), 0) == 0 &&
      BCryptFinishHash(hash, Bytes(digest), static_cast<ULONG>(digest.size()), 0) == 0;
  if (hash) BCryptDestroyHash(hash);
  if (method) BCryptCloseAlgorithmProvider(method, 0);
  if (!done) throw EQELMailError("The system refuses MD5, which this way of logging in needs");
  return digest;
}

std::string RandomBytes(std::size_t count) {
  std::string bytes(count, '\0');
  if (BCryptGenRandom(nullptr, Bytes(bytes), static_cast<ULONG>(count),
                      BCRYPT_USE_SYSTEM_PREFERRED_RNG) != 0) {
    throw EQELMailError("The system has no random bytes");
  }
  return bytes;
}

}  // namespace qel
