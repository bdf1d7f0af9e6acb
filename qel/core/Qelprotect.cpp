// Encrypting for the user by the system's data protection.
#include "qel/core/Qelprotect.h"

#include <charconv>
#include <vector>

#include "qel/core/Qelsecret.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <wincrypt.h>

namespace qel {
namespace {

/// Bytes of the system's, overwritten and freed at their end.
struct TBlob : DATA_BLOB {
  TBlob() : DATA_BLOB{} {}
  ~TBlob() {
    if (!pbData) return;
    ::SecureZeroMemory(pbData, cbData);
    ::LocalFree(pbData);
  }
  TBlob(const TBlob&) = delete;
  TBlob& operator=(const TBlob&) = delete;
};

DATA_BLOB BlobOf(const void* bytes, std::size_t count) {
  return {static_cast<DWORD>(count), const_cast<BYTE*>(static_cast<const BYTE*>(bytes))};
}

/// Empty for what is no even number of digits.
std::vector<BYTE> BytesOf(const std::string& digits) {
  std::vector<BYTE> bytes(digits.size() / 2);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const char* const pair = digits.data() + 2 * i;
    if (std::from_chars(pair, pair + 2, bytes[i], 16).ptr != pair + 2) return {};
  }
  return digits.size() % 2 == 0 ? bytes : std::vector<BYTE>();
}

}  // namespace

std::string QELProtect(const std::string& text) {
  if (text.empty()) return {};
  DATA_BLOB plain = BlobOf(text.data(), text.size());
  TBlob secret;
  if (!::CryptProtectData(&plain, L"QEL", nullptr, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN,
                          &secret)) {
    vcl::RaiseLastOSError<EQELSecretError>("The text cannot be encrypted");
  }
  std::string digits;
  for (DWORD i = 0; i < secret.cbData; ++i) {
    constexpr const char* all = "0123456789ABCDEF";
    digits += all[secret.pbData[i] >> 4];
    digits += all[secret.pbData[i] & 15];
  }
  return digits;
}

std::string QELUnprotect(const std::string& encrypted) {
  const std::vector<BYTE> bytes = BytesOf(encrypted);
  if (bytes.empty()) return {};
  DATA_BLOB secret = BlobOf(bytes.data(), bytes.size());
  TBlob plain;
  if (!::CryptUnprotectData(&secret, nullptr, nullptr, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN,
                            &plain)) {
    return {};
  }
  return {reinterpret_cast<const char*>(plain.pbData), plain.cbData};
}

}  // namespace qel
