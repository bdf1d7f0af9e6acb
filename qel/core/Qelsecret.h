// Secrets: texts that are wiped, and salted hashes that a code is checked against.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "qel/core/api.h"
#include "vcl/rtl/exceptions.h"

namespace qel {

/// The system's cryptography has refused. The message holds nothing secret.
class QEL_API EQELSecretError : public vcl::Exception {
 public:
  using vcl::Exception::Exception;
  ~EQELSecretError() override;
};

/// Empties the text and overwrites all the memory that it has.
QEL_API void QELWipe(std::string& text) noexcept;

/// A text that leaves nothing of itself in memory: it is overwritten when it changes and at its
/// end, and can't be copied.
class QEL_API TQELSecret {
 public:
  TQELSecret() = default;
  TQELSecret(const TQELSecret&) = delete;
  TQELSecret& operator=(const TQELSecret&) = delete;
  ~TQELSecret() { Wipe(); }

  const std::string& Text() const { return FText; }
  /// A text of so many bytes, to be written into in place.
  char* Resize(std::size_t size);
  void SetText(std::string_view text);
  void Wipe() noexcept { QELWipe(FText); }

 private:
  std::string FText;
};

/// True when the texts are the same. How long that takes says nothing about where they differ.
QEL_API bool QELSameSecret(std::string_view a, std::string_view b);

/// How often a code is hashed that is hashed now; what is stored says its own number.
inline constexpr int QELHashRounds = 210000;

/// A key of so many bytes, derived from a code by PBKDF2 with HMAC-SHA-256 (RFC 8018, section 5.2).
/// Raises EQELSecretError when the system refuses.
QEL_API std::string QELDerivedKey(std::string_view code, std::string_view salt, int rounds,
                                  std::size_t size);
/// What is stored of a code: "pbkdf2-sha256$", the rounds, "$", the salt, "$" and the key, both in
/// hexadecimal digits; 118 characters. The salt is another one each time. Raises EQELSecretError
/// when the system refuses.
QEL_API std::string QELHashedCode(std::string_view code, int rounds = QELHashRounds);
/// True for what QELHashedCode gives. Less than a thousand rounds are too few, and more than two
/// million would last too long.
QEL_API bool QELIsHashedCode(std::string_view text);
/// True when that was made of this code; false for a text that is no hashed code at all. It takes
/// as long for a wrong code as for the right one.
QEL_API bool QELCodeMatches(std::string_view code, std::string_view hashed);

}  // namespace qel
