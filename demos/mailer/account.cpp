// Keeping the mail account, and what is missing in it for sending or fetching.
#include "demos/mailer/account.h"

#include "demos/common/storedvalues.h"
#include "qel/core/Qelprotect.h"
#include "vcl/rtl/convert.h"

namespace mailer {

namespace {

struct TStoredText {
  const char* Name;
  std::string TAccount::*Text;
};

constexpr TStoredText StoredTexts[] = {
    {"Name", &TAccount::Name},         {"Address", &TAccount::Address},
    {"SmtpHost", &TAccount::SmtpHost}, {"SmtpPort", &TAccount::SmtpPort},
    {"PopHost", &TAccount::PopHost},   {"PopPort", &TAccount::PopPort},
    {"User", &TAccount::User},         {"Certificates", &TAccount::Certificates},
};

qel::TQELMailSecurity SecurityOf(int stored) {
  return stored >= qel::msNone && stored <= qel::msTls ? static_cast<qel::TQELMailSecurity>(stored)
                                                       : qel::msTls;
}

}  // namespace

TAccount NewAccount() {
  TAccount account;
  account.SmtpSecurity = qel::msStartTls;
  account.PopSecurity = qel::msTls;
  account.SmtpPort = UsualSmtpPort(account.SmtpSecurity);
  account.PopPort = UsualPopPort(account.PopSecurity);
  account.LogInToSend = true;
  return account;
}

// RFC 6409 and RFC 8314.
std::string UsualSmtpPort(qel::TQELMailSecurity security) {
  return security == qel::msNone ? "25" : security == qel::msStartTls ? "587" : "465";
}

std::string UsualPopPort(qel::TQELMailSecurity security) {
  return security == qel::msTls ? "995" : "110";
}

void ReadAccount(qel::TQELStoreData& settings, TAccount& account) {
  const demos::TStoredValues read{*settings.DataStore()};
  for (const auto& [name, text] : StoredTexts) account.*text = read.Str(name, account.*text);
  account.DeleteOfServer = read.Bool("DeleteOfServer", account.DeleteOfServer);
  account.LogInToSend = read.Bool("LogInToSend", account.LogInToSend);
  account.SmtpSecurity = SecurityOf(read.Int("SmtpSecurity", account.SmtpSecurity));
  account.PopSecurity = SecurityOf(read.Int("PopSecurity", account.PopSecurity));
  account.KeepPassword = read.Bool("KeepPassword", account.KeepPassword);
  if (account.KeepPassword) account.Password = qel::QELUnprotect(read.Str("Secret", ""));
}

void WriteAccount(qel::TQELStoreData& settings, const TAccount& account) {
  for (const auto& [name, text] : StoredTexts) settings.WriteStr(name, account.*text);
  settings.WriteBool("DeleteOfServer", account.DeleteOfServer);
  settings.WriteBool("LogInToSend", account.LogInToSend);
  settings.WriteInt("SmtpSecurity", account.SmtpSecurity);
  settings.WriteInt("PopSecurity", account.PopSecurity);
  settings.WriteBool("KeepPassword", account.KeepPassword);
  if (account.KeepPassword) {
    settings.WriteStr("Secret", qel::QELProtect(account.Password));
  } else {
    settings.DeleteKey("Secret");
  }
  // Which earlier versions have written in clear.
  settings.DeleteKey("Password");
}

bool IsPort(const std::string& text) {
  const int port = vcl::StrToIntDef(text, 0);
  return port >= 1 && port <= 65535;
}

std::string SendingProblem(const TAccount& account) {
  if (account.Address.empty()) return "Your address is missing in the account.";
  if (account.SmtpHost.empty()) return "The server that sends is missing in the account.";
  if (!IsPort(account.SmtpPort)) return "The port for sending is a number from 1 to 65535.";
  if (account.LogInToSend && account.User.empty()) return "The user is missing in the account.";
  if (account.LogInToSend && account.Password.empty()) return "The password is not known yet.";
  return {};
}

std::string FetchingProblem(const TAccount& account) {
  if (account.PopHost.empty()) return "The server with the mailbox is missing in the account.";
  if (!IsPort(account.PopPort)) return "The port of the mailbox is a number from 1 to 65535.";
  if (account.User.empty()) return "The user of the mailbox is missing in the account.";
  if (account.Password.empty()) return "The password of the mailbox is not known yet.";
  return {};
}

}  // namespace mailer
