// Ways of logging in (SASL, RFC 4422): what they are called, and what they say.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "qel/mail/Qeltiemails_host.h"

namespace qel {

/// One attempt to log in by one way.
class TSaslAttempt {
 public:
  /// amPlain (RFC 4616), amLogin, amCramMd5 (RFC 2195) or amXOAuth2, whose secret is the access
  /// token.
  TSaslAttempt(TQELMailAuthMethod method, std::string user, std::string secret)
      : FMethod(method), FUser(std::move(user)), FSecret(std::move(secret)) {}

  /// What servers call it.
  const char* Name() const;
  /// What it says before it is asked, as it travels (base64); nothing when it waits for a question.
  std::optional<std::string> FirstAnswer() const;
  /// What it says to the server's question; both as they travel (base64).
  std::string Answer(std::string_view question);

 private:
  TQELMailAuthMethod FMethod;
  std::string FUser, FSecret;
  int FAnswers = 0;
};

/// What servers call the way; empty for amNone, amAuto and what is no way of SASL.
const char* SaslName(TQELMailAuthMethod method);
/// The ways to be tried, in order, with a server that has those of the names: the wanted one, or
/// for amAuto the one that keeps the password to itself and then one that says it, as servers which
/// keep no passwords refuse the first. Not more: each attempt with a wrong password makes servers
/// slower, and some lock the user out. An access token is no password, so XOAUTH2 is not among
/// them.
std::vector<TQELMailAuthMethod> WaysToLogIn(TQELMailAuthMethod wanted,
                                            const std::vector<std::string>& offered);
/// Bytes in base64, and back; back, what is damaged ends the text.
std::string ToBase64(std::string_view bytes);
std::string FromBase64(std::string_view letters);

}  // namespace qel
