// TQELQuickMail: one short message to one recipient, sent with the mail program that the system
// has. Windows only.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// Sends a text to one recipient, with a receipt asked for. The user is asked to log on when that
/// is needed; nothing is raised when it fails.
class QEL_API TQELQuickMail : public TQELExecComponent {
 public:
  explicit TQELQuickMail(vcl::TComponent* owner);
  ~TQELQuickMail() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Sends the message and returns true. How it went stands in ErrorNo.
  bool Execute() override;

  /// The recipient's mail address or fax number. With the type of address that is put before it
  /// ("smtp:", "Fax:") at most 256 bytes: a mail with a longer one is not sent, which is error 25,
  /// MAPI's invalid recipient.
  const std::string& ToEmailorFaxAddress() const { return FToEmailorFaxAddress; }
  void SetToEmailorFaxAddress(const std::string& address) { FToEmailorFaxAddress = address; }
  /// The recipient's name. Of this and of the subject the first 256 bytes are sent.
  const std::string& ToName() const { return FToName; }
  void SetToName(const std::string& name) { FToName = name; }
  /// The text, a line an item. Never null; the setter copies.
  vcl::TStrings* TextToSend() const { return FTextToSend.get(); }
  void SetTextToSend(const vcl::TStrings* text) { FTextToSend->Assign(text); }
  const std::string& Subject() const { return FSubject; }
  /// The subject line, of which the first 256 bytes are sent.
  void SetSubject(const std::string& subject) { FSubject = subject; }
  TQELFaxorMail MailorFax() const { return FMailorFax; }
  /// Whether the recipient is a mail address or a fax number.
  void SetMailorFax(TQELFaxorMail mailorFax) { FMailorFax = mailorFax; }
  /// MAPI's decimal number for how the last sending went: "0" for well, "2" also when the system
  /// has no MAPI. Empty before the first.
  const std::string& ErrorNo() const { return FErrorNo; }
  void SetErrorNo(const std::string& errorNo) { FErrorNo = errorNo; }

  /// Before the text is sent.
  vcl::TNotifyEvent BeforeSend;
  /// The text could not be sent; ErrorNo says why.
  vcl::TNotifyEvent OnError;

 private:
  unsigned long Send();

  std::string FToName, FToEmailorFaxAddress, FSubject, FErrorNo;
  TQELFaxorMail FMailorFax = ccMail;
  std::unique_ptr<vcl::TStringList> FTextToSend;
};

}  // namespace qel
