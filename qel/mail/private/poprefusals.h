// The codes by which TQELPOPMail tells what was refused.
#pragma once

namespace qel {

enum TRefusal {
  GreetingRefused = 2000,
  LoginRefused,
  QuitRefused,
  DeleRefused,
  RetrRefused,
  TopRefused,
  StatRefused,
  StlsRefused,
  UidlRefused,
  ListRefused,
  MailUnreadable
};

}  // namespace qel
