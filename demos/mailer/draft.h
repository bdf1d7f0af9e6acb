// TDraft: a mail as it is being written.
#pragma once

#include <string>
#include <vector>

#include "demos/mailer/account.h"
#include "qel/mail/Qeltiemails_message.h"

namespace mailer {

struct TDraft {
  std::string To;  ///< Addresses with commas between them.
  std::string Subject;
  std::string Text;
  std::vector<std::string> Files;  ///< To be attached, with their folders.
  std::string Cc = {}, Bcc = {};   ///< As To; nobody sees Bcc.
};

/// Fills a message with the draft. Raises EFOpenError for a file that cannot be read.
void FillMessage(qel::TQELMessage& message, const TDraft& draft, const TAccount& account);

}  // namespace mailer
