// What the ways of logging in say, and which of them a server is tried with.
#include "qel/mail/private/sasl.h"

#include <algorithm>

#include "qel/mail/private/base64.h"
#include "qel/mail/private/base64decoder.h"
#include "qel/mail/private/digests.h"
#include "vcl/rtl/text.h"

namespace qel {

const char* SaslName(TQELMailAuthMethod method) {
  switch (method) {
    case amPlain: return "PLAIN";
    case amLogin: return "LOGIN";
    case amCramMd5: return "CRAM-MD5";
    case amXOAuth2: return "XOAUTH2";
    case amNone:
    case amAuto:
    case amUserPass:
    case amApop: break;
  }
  return "";
}

const char* TSaslAttempt::Name() const { return SaslName(FMethod); }

std::optional<std::string> TSaslAttempt::FirstAnswer() const {
  using namespace std::string_literals;
  if (FMethod == amPlain) return ToBase64("\0"s + FUser + "\0"s + FSecret);
  if (FMethod == amXOAuth2) {
    return ToBase64(vcl::Concat("user=", FUser, "\x01", "auth=Bearer ", FSecret, "\x01\x01"));
  }
  return std::nullopt;
}

std::string TSaslAttempt::Answer(std::string_view question) {
  const int before = FAnswers++;
  // LOGIN's questions are the user's name and the password, in words that differ.
  if (FMethod == amLogin) return ToBase64(before == 0 ? FUser : FSecret);
  if (FMethod == amCramMd5) {
    return ToBase64(vcl::Concat(FUser, " ", HmacMd5Text(FSecret, FromBase64(question))));
  }
  if (const auto first = FirstAnswer(); first && before == 0 && question.empty()) return *first;
  // XOAUTH2 asks again with what was wrong, and wants an empty answer before it refuses.
  return {};
}

std::vector<TQELMailAuthMethod> WaysToLogIn(TQELMailAuthMethod wanted,
                                            const std::vector<std::string>& offered) {
  const auto has = [&](TQELMailAuthMethod way) {
    return std::ranges::find(offered, SaslName(way)) != offered.end();
  };
  std::vector<TQELMailAuthMethod> ways;
  if (wanted != amAuto) {
    if (has(wanted)) ways.push_back(wanted);
    return ways;
  }
  if (has(amCramMd5)) ways.push_back(amCramMd5);
  for (const TQELMailAuthMethod plain : {amPlain, amLogin}) {
    if (!has(plain)) continue;
    ways.push_back(plain);
    break;
  }
  return ways;
}

std::string ToBase64(std::string_view bytes) {
  std::string letters(Base64Size(bytes.size()), '\0');
  EncodeBase64(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), letters.data());
  return letters;
}

std::string FromBase64(std::string_view letters) {
  std::string bytes;
  TBase64Decoder().Decode(letters.substr(0, letters.size() / 4 * 4), bytes);
  return bytes;
}

}  // namespace qel
