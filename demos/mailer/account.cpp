// Keeping the mail account, and what is missing in it for sending or fetching.
#include "demos/mailer/account.h"

#include "demos/common/storedvalues.h"
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
    {"User", &TAccount::User},
};

}  // namespace

void ReadAccount(qel::TQELStoreData& settings, TAccount& account) {
  const demos::TStoredValues read{*settings.DataStore()};
  for (const auto& [name, text] : StoredTexts) account.*text = read.Str(name, account.*text);
  account.DeleteOfServer = read.Bool("DeleteOfServer", account.DeleteOfServer);
  account.KeepPassword = read.Bool("KeepPassword", account.KeepPassword);
  if (account.KeepPassword) account.Password = read.Str("Password", account.Password);
}

void WriteAccount(qel::TQELStoreData& settings, const TAccount& account) {
  for (const auto& [name, text] : StoredTexts) settings.WriteStr(name, account.*text);
  settings.WriteBool("DeleteOfServer", account.DeleteOfServer);
  settings.WriteBool("KeepPassword", account.KeepPassword);
  if (account.KeepPassword) {
    settings.WriteStr("Password", account.Password);
  } else {
    settings.DeleteKey("Password");
  }
}

bool IsPort(const std::string& text) {
  const int port = vcl::StrToIntDef(text, 0);
  return port >= 1 && port <= 65535;
}

std::string SendingProblem(const TAccount& account) {
  if (account.Address.empty()) return "Your address is missing in the account.";
  if (account.SmtpHost.empty()) return "The server that sends is missing in the account.";
  if (!IsPort(account.SmtpPort)) return "The port for sending is a number from 1 to 65535.";
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
