// Wiping, and hashes of codes by the system's cryptography.
#include "qel/core/Qelsecret.h"

#include <charconv>
#include <cstdint>
#include <optional>
#include <vector>

#include "vcl/rtl/convert.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

// After the system's other headers, which it needs.
#include <bcrypt.h>

namespace qel {

namespace {

constexpr std::string_view Method = "pbkdf2-sha256";
constexpr std::size_t SaltSize = 16;
constexpr std::size_t MostSalt = 64;
constexpr std::size_t KeySize = 32;
constexpr int LeastRounds = 1000;
constexpr int MostRounds = 2000000;

/// The functions of the system's cryptography give an NTSTATUS, negative for a failure.
void Check(NTSTATUS status, const char* what) {
  if (status < 0) vcl::RaiseOSError<EQELSecretError>(static_cast<int>(status), what);
}

/// They change nothing where they only read, but take pointers to what may be changed.
UCHAR* Bytes(std::string_view text) {
  return reinterpret_cast<UCHAR*>(const_cast<char*>(text.data()));
}

/// HMAC-SHA-256 as the system has it.
class TMethod {
 public:
  TMethod() {
    Check(::BCryptOpenAlgorithmProvider(&FHandle, BCRYPT_SHA256_ALGORITHM, nullptr,
                                        BCRYPT_ALG_HANDLE_HMAC_FLAG),
          "There is no SHA-256");
  }
  ~TMethod() { ::BCryptCloseAlgorithmProvider(FHandle, 0); }
  TMethod(const TMethod&) = delete;
  TMethod& operator=(const TMethod&) = delete;
  BCRYPT_ALG_HANDLE Handle() const { return FHandle; }

 private:
  BCRYPT_ALG_HANDLE FHandle = nullptr;
};

std::string InHex(std::string_view bytes) {
  std::string text;
  for (const char each : bytes) text += vcl::IntToHex(static_cast<std::uint8_t>(each), 2);
  return text;
}

std::optional<std::string> FromHex(std::string_view text) {
  std::string bytes(text.size() / 2, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    std::uint8_t value = 0;
    const char* const end = text.data() + 2 * i + 2;
    if (std::from_chars(end - 2, end, value, 16).ptr != end) return {};
    bytes[i] = static_cast<char>(value);
  }
  return text.size() % 2 == 0 ? std::optional(bytes) : std::nullopt;
}

std::vector<std::string_view> PartsOf(std::string_view text) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = text.find('$');
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

/// What a stored text says.
struct THash {
  int Rounds = 0;
  std::string Salt;
  std::string Key;
};

std::optional<THash> Parse(std::string_view text) {
  const std::vector<std::string_view> parts = PartsOf(text);
  if (parts.size() != 4 || parts[0] != Method) return {};
  THash hash;
  const char* const end = parts[1].data() + parts[1].size();
  const auto [stop, error] = std::from_chars(parts[1].data(), end, hash.Rounds);
  const bool whole = error == std::errc() && stop == end;
  const std::optional<std::string> salt = FromHex(parts[2]);
  const std::optional<std::string> key = FromHex(parts[3]);
  if (!whole || hash.Rounds < LeastRounds || hash.Rounds > MostRounds || !salt || !key) return {};
  if (salt->size() < SaltSize || salt->size() > MostSalt || key->size() != KeySize) return {};
  hash.Salt = *salt;
  hash.Key = *key;
  return hash;
}

}  // namespace

EQELSecretError::~EQELSecretError() = default;

void QELWipe(std::string& text) noexcept {
  text.resize(text.capacity());
  ::SecureZeroMemory(text.data(), text.size());
  text.clear();
}

char* TQELSecret::Resize(std::size_t size) {
  Wipe();
  FText.resize(size);
  return FText.data();
}

void TQELSecret::SetText(std::string_view text) {
  Wipe();
  FText.assign(text);
}

bool QELSameSecret(std::string_view a, std::string_view b) {
  unsigned difference = a.size() == b.size() ? 0 : 1;
  for (std::size_t i = 0; i < a.size() && !b.empty(); ++i) {
    difference |= static_cast<unsigned char>(a[i]) ^ static_cast<unsigned char>(b[i % b.size()]);
  }
  return difference == 0;
}

std::string QELDerivedKey(std::string_view code, std::string_view salt, int rounds,
                          std::size_t size) {
  const TMethod method;
  std::string key(size, '\0');
  Check(::BCryptDeriveKeyPBKDF2(method.Handle(), Bytes(code), static_cast<ULONG>(code.size()),
                                Bytes(salt), static_cast<ULONG>(salt.size()),
                                static_cast<ULONGLONG>(rounds), Bytes(key),
                                static_cast<ULONG>(size), 0),
        "The code can't be hashed");
  return key;
}

std::string QELHashedCode(std::string_view code, int rounds) {
  std::string salt(SaltSize, '\0');
  Check(::BCryptGenRandom(nullptr, Bytes(salt), static_cast<ULONG>(salt.size()),
                          BCRYPT_USE_SYSTEM_PREFERRED_RNG),
        "There is no random number");
  const std::string key = QELDerivedKey(code, salt, rounds, KeySize);
  return vcl::Concat(Method, "$", std::to_string(rounds), "$", InHex(salt), "$", InHex(key));
}

bool QELIsHashedCode(std::string_view text) { return Parse(text).has_value(); }

bool QELCodeMatches(std::string_view code, std::string_view hashed) {
  const std::optional<THash> hash = Parse(hashed);
  return hash && QELSameSecret(QELDerivedKey(code, hash->Salt, hash->Rounds, KeySize), hash->Key);
}

}  // namespace qel
