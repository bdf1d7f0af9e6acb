// Mail by way of Simple MAPI, the interface of the mail program that the system has: messages with
// their recipients and files, and TQELMapiMail, which hands them over. Windows only.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/collection.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/strings.h"

namespace qel {

class TMapiLibrary;
class TQELMapiAttachments;
class TQELMapiMail;
class TQELMapiMessage;
class TQELMapiMessages;

/// The system's mail library lacks entry points.
class QEL_API TQELExceptdllerror : public vcl::Exception {
 public:
  using vcl::Exception::Exception;
  ~TQELExceptdllerror() override;
};

/// The system has no MAPI. Raised in the form designer only.
class QEL_API TQELExceptunavailable : public vcl::Exception {
 public:
  using vcl::Exception::Exception;
  ~TQELExceptunavailable() override;
};

/// For applications that refuse an attachment: the component itself raises none.
class QEL_API TQELExceptAttachmentError : public vcl::Exception {
 public:
  using vcl::Exception::Exception;
  ~TQELExceptAttachmentError() override;
};

/// The numbers are MAPI's.
using TQELMapiConnect = vcl::TEvent<vcl::TObject*, int>;
using TQELOnSendError = vcl::TEvent<vcl::TObject*, int, TQELMapiMessage*>;
using TQELMapiSend = vcl::TEvent<vcl::TObject*, TQELMapiMessage*>;

/// A file that travels with a message.
class QEL_API TQELMapiAttachment : public vcl::TCollectionItem {
 public:
  explicit TQELMapiAttachment(vcl::TCollection* collection);
  ~TQELMapiAttachment() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The file's full path. One that is not there is sent as an attachment without names.
  const std::string& Filename() const { return FFilename; }
  void SetFilename(const std::string& filename) { FFilename = filename; }
  /// The message that it belongs to; null for an attachment of none.
  TQELMapiMessage* Message() const;
  std::string DisplayName() const override { return "Attachment"; }
  void Assign(const vcl::TPersistent* source) override;

 private:
  std::string FFilename;
};

/// The attachments of a message.
class QEL_API TQELMapiAttachments : public vcl::TCollection {
 public:
  explicit TQELMapiAttachments(TQELMapiMessage* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELMapiMessage* GetOwner() const { return FOwner; }
  /// Appends an attachment with the path as it is given.
  TQELMapiAttachment* Add(const std::string& fileName);
  /// Raise EListError outside 0 to Count - 1. A value is copied into the item.
  TQELMapiAttachment* GeTQELMapiAttachment(int index) const;
  void SeTQELMapiAttachment(int index, const TQELMapiAttachment* value);

 private:
  TQELMapiMessage* FOwner;
};

/// A mail to be sent. The lists are never null, and their setters copy.
class QEL_API TQELMapiMessage : public vcl::TCollectionItem, public vcl::TWatched {
 public:
  explicit TQELMapiMessage(vcl::TCollection* collection);
  ~TQELMapiMessage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The component that it belongs to; null for a message of none.
  TQELMapiMail* Mail() const;
  /// True when MAPI has accepted the message in its last sending.
  bool Sent() const { return FSent; }
  void SetSent(bool sent) { FSent = sent; }
  /// The text.
  vcl::TStrings* Message() const { return FMessage.get(); }
  void SetMessage(const vcl::TStrings* message) { FMessage->Assign(message); }
  TQELMapiAttachments* Attachments() const { return FAttachments.get(); }
  /// The files that travel with the message.
  void SetAttachments(const TQELMapiAttachments* attachments) { FAttachments->Assign(attachments); }
  const std::string& Subject() const { return FSubject; }
  /// The subject line.
  void SetSubject(const std::string& subject) { FSubject = subject; }
  /// The recipients, one a line: names that the mail program looks up, or addresses in brackets.
  vcl::TStrings* RecipientsTo() const { return FRecipientsTo.get(); }
  void SetRecipientsTo(const vcl::TStrings* recipients) { FRecipientsTo->Assign(recipients); }
  vcl::TStrings* RecipientsCC() const { return FRecipientsCC.get(); }
  /// The recipients of copies, one a line, as in RecipientsTo.
  void SetRecipientsCC(const vcl::TStrings* recipients) { FRecipientsCC->Assign(recipients); }
  vcl::TStrings* RecipientsBC() const { return FRecipientsBC.get(); }
  /// The recipients of copies of whom the others do not hear, one a line, as in RecipientsTo.
  void SetRecipientsBC(const vcl::TStrings* recipients) { FRecipientsBC->Assign(recipients); }
  /// How many lines the three lists have, empty ones too.
  int RecipientCount() const;
  /// Asks for a receipt when the message is read.
  bool Receipt() const { return FReceipt; }
  void SetReceipt(bool receipt) { FReceipt = receipt; }
  /// Lets the mail program show its dialog for the message, as it does anyway for one without
  /// recipients.
  bool Dialog() const { return FDialog; }
  void SetDialog(bool dialog) { FDialog = dialog; }

  std::string DisplayName() const override { return "Outgoing Mail"; }
  void Assign(const vcl::TPersistent* source) override;

 private:
  bool FSent = false;
  std::string FSubject;
  std::unique_ptr<vcl::TStringList> FMessage, FRecipientsTo, FRecipientsCC, FRecipientsBC;
  bool FReceipt = false;
  bool FDialog = false;
  std::unique_ptr<TQELMapiAttachments> FAttachments;
};

/// The messages of a component.
class QEL_API TQELMapiMessages : public vcl::TCollection {
 public:
  /// `owner` is not null.
  explicit TQELMapiMessages(TQELMapiMail* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELMapiMail* GetOwner() const { return FOwner; }
  TQELMapiMessage* Add();
  /// Fires the component's OnDeleteMail, deletes the message and returns true. What is raised is
  /// shown by the application's handler, and the result is false.
  bool Delete(int index);
  /// Raise EListError outside 0 to Count - 1. A value is copied into the item.
  TQELMapiMessage* GetQELMapiMessage(int index) const;
  void SetQELMapiMessage(int index, const TQELMapiMessage* value);

 private:
  TQELMapiMail* FOwner;
};

/// A recipient as the mail program knows it.
struct TQELMapiRecipient {
  /// MAPI's class: 1 is a recipient, 2 of a copy, 3 of a blind copy. 0 for an entry that is empty
  /// because the line was, or because the mail program does not know the name.
  int RecipClass = 0;
  std::string Name;
  /// Empty where the name says all.
  std::string Address;
};

/// Sends its messages by way of the mail program that the system has. The methods return MAPI's
/// result codes, 0 for success, and never raise for one.
///
/// The system's library is loaded when the component first needs it. It may show dialogs, in which
/// the program goes on; then, and in each event, messages may be deleted and the component freed. A
/// method whose component is freed raises EAbort, but for Execute.
class QEL_API TQELMapiMail : public TQELExecComponent {
 public:
  explicit TQELMapiMail(vcl::TComponent* owner);
  /// Logs off when a session is open.
  ~TQELMapiMail() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Logs on, sends all messages and logs off. False when that ended at the logon.
  bool Execute() override;
  /// Fires OnMapiNotAvailable when the system has no MAPI; in the form designer raises
  /// TQELExceptunavailable instead. Raises TQELExceptdllerror for a library without all of MAPI.
  virtual void CheckMAPI();
  /// True when the system has MAPI and its library could be loaded.
  bool GetMAPIAvail();

  // Without MAPI these go on as far as they need it, and then raise EAccessViolation.

  /// Opens a session, unless one is open. Where that fails as it is set up, the user is asked.
  int Logon();
  /// Closes the session, if one is open.
  int Logoff();
  /// Sends the messages and, with DeleteAfterSend, deletes those that were sent, but never the last
  /// one. Returns the last result, or 10 or 9 as soon as a message has more than 1000 recipients or
  /// 100 attachments. What a message raises is shown by the application's handler, and the next one
  /// follows.
  int SendMapi();
  /// Has the mail program resolve the message's recipients: one entry for each line of the three
  /// lists.
  void TheRecipients(const TQELMapiMessage& message, std::vector<TQELMapiRecipient>& recipients);

  /// Opens a session of its own even when the mail program has one.
  bool NewSession() const { return FNewSession; }
  void SetNewSession(bool newSession) { FNewSession = newSession; }
  TQELMapiMessages* Messages() const { return FMessages.get(); }
  /// The messages to send.
  void SetMessages(const TQELMapiMessages* messages) { FMessages->Assign(messages); }
  const std::string& Password() const { return FPassword; }
  /// The password to log on with.
  void SetPassword(const std::string& password) { FPassword = password; }
  /// The name of the profile to log on with. With DefaultProfile, Logon sets it.
  const std::string& Profile() const { return FProfile; }
  void SetProfile(const std::string& profile) { FProfile = profile; }
  bool DefaultProfile() const { return FDefaultProfile; }
  /// Logs on with the user's default profile; false lets the user choose one.
  void SetDefaultProfile(bool defaultProfile) { FDefaultProfile = defaultProfile; }
  /// What follows the text of each message.
  vcl::TStrings* Signature() const { return FSignature.get(); }
  void SetSignature(const vcl::TStrings* signature) { FSignature->Assign(signature); }
  bool DeleteAfterSend() const { return FDeleteAfterSend; }
  /// Deletes the messages that were sent, but never the last one.
  void SetDeleteAfterSend(bool deleteAfterSend) { FDeleteAfterSend = deleteAfterSend; }
  /// MAPI's number of the open session; 0 when there is none.
  std::uintptr_t Session() const { return FSession; }

  /// Before the session is closed; also when none is open.
  vcl::TNotifyEvent BeforeLogoff;
  /// Execute has sent the messages and is about to log off.
  vcl::TNotifyEvent AfterSendAll;
  /// Execute has logged on and is about to send the messages.
  vcl::TNotifyEvent BeforeSendAll;
  /// Before a session is opened; also when one is open.
  vcl::TNotifyEvent BeforeLogon;
  /// Execute is done, whether it could log on or not.
  vcl::TNotifyEvent AfterExecute;
  /// A session has been opened.
  vcl::TNotifyEvent OnLogonSuccess;
  /// The session has been closed.
  vcl::TNotifyEvent OnLogoffSuccess;
  /// A message could not be sent: MAPI's result code, and the message.
  TQELOnSendError OnSendError;
  /// Before a message is deleted. The sender is the collection.
  TQELMapiSend OnDeleteMail;
  /// Before a message is sent.
  TQELMapiSend BeforeSendMail;
  /// A message has been sent.
  TQELMapiSend AfterSendMail;
  /// No session could be opened: MAPI's result code.
  TQELMapiConnect OnLogonFailure;
  /// The session could not be closed properly: MAPI's result code.
  TQELMapiConnect OnLogoffFailure;
  /// The system has no MAPI.
  vcl::TNotifyEvent OnMapiNotAvailable;

 private:
  /// The library, for a call of the entry point. Raises what CheckMAPI and the methods raise.
  std::shared_ptr<const TMapiLibrary> Library(const char* entry);
  void TakeDefaultProfile();
  unsigned long OpenSession(char* profile, char* password, unsigned long flags);
  bool Resolve(const std::string& line, std::string& displayName);
  /// False when the message is too large, which ends it all.
  bool SendOne(TQELMapiMessage& message, int& result);
  int HandOver(const TQELMapiMessage& message);
  void DeleteSent();

  std::unique_ptr<TQELMapiMessages> FMessages;
  unsigned long FLogonFlags = 0;
  bool FNewSession = false;
  std::string FProfile, FPassword;
  bool FDefaultProfile = true;
  std::unique_ptr<vcl::TStringList> FSignature;
  bool FDeleteAfterSend = true;
  std::uintptr_t FSession = 0;
  bool FLoggingOff = false;  // The system has been told; the handlers have not all.
  std::shared_ptr<const TMapiLibrary> FLibrary;
};

}  // namespace qel

template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELOnSendError>{
    "TQELOnSendError", "vcl::TObject* sender, int code, qel::TQELMapiMessage* message"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELMapiSend>{
    "TQELMapiSend", "vcl::TObject* sender, qel::TQELMapiMessage* message"};
