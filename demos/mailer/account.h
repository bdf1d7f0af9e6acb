// The user's mail account, as it is remembered.
#pragma once

#include <string>

#include "qel/core/Qeltstoredata.h"
#include "qel/mail/Qeltiemails_host.h"

namespace mailer {

struct TAccount {
  std::string Name, Address;
  std::string SmtpHost, SmtpPort = "25";
  std::string PopHost, PopPort = "110";
  qel::TQELMailSecurity SmtpSecurity = qel::msNone, PopSecurity = qel::msNone;
  std::string User, Password;
  /// The fingerprints of certificates that the user takes though the system does not, with commas.
  std::string Certificates;
  bool LogInToSend = false;     ///< With the same user and password.
  bool KeepPassword = false;    ///< The user wants the password stored.
  bool DeleteOfServer = false;  ///< Mails that have been fetched.
};

/// What providers of today ask for, to begin with.
TAccount NewAccount();
/// The port that is usual with the security, for sending resp. fetching.
std::string UsualSmtpPort(qel::TQELMailSecurity security);
std::string UsualPopPort(qel::TQELMailSecurity security);

/// Reads what is there; the rest stays as it is.
void ReadAccount(qel::TQELStoreData& settings, TAccount& account);
/// The password is written only when it is to be kept, encrypted for the user, and else removed
/// from the store.
void WriteAccount(qel::TQELStoreData& settings, const TAccount& account);

/// What is wrong with the account; empty when mail can be sent, or fetched, with it.
std::string SendingProblem(const TAccount& account);
std::string FetchingProblem(const TAccount& account);
/// Whether a text is a port's number, 1 to 65535.
bool IsPort(const std::string& text);

}  // namespace mailer
