// TQELPOPMail, which fetches mails (POP3, RFC 1939).
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "qel/mail/Qeltiemails_host.h"

namespace qel {

struct TPartKind;

/// How far a session with a server that keeps mail has come.
enum TQELMailSessionState { Authorization, Transaction };

/// Fetches the mails of a mailbox (POP3, RFC 1939).
///
/// Mails are kept in Messages, behind those that are there. A server's reply is taken as it comes:
/// only "-ERR" is looked for.
///
/// With Security, an AuthMethod, KeepOnServer or the standard Format the session asks for what the
/// server can do (CAPA, RFC 2449) and for the sizes of the mails, and reads replies line by line.
class QEL_API TQELPOPMail : public TQELMailHost {
 public:
  explicit TQELPOPMail(vcl::TComponent* owner);
  ~TQELPOPMail() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Logs in, fetches all mails, deletes them on the server if wanted, and logs out. False when
  /// something was raised, which the application's handler has shown, or the session was aborted; a
  /// refusal of the server is told to OnError alone, which ends the connection. After an error that
  /// was raised, the next call only clears up. Called while it runs, it closes the running session.
  bool Execute() override;

  const std::string& Username() const { return FUsername; }
  /// The mailbox's name, which the session logs in with.
  void SetUsername(const std::string& username) { FUsername = username; }
  /// Sent as it is, unencrypted.
  const std::string& Password() const { return FPassword; }
  void SetPassword(const std::string& password) { FPassword = password; }
  /// Deletes each mail on the server once it has been fetched. A server forgets the deletions of a
  /// session that does not end with a farewell: an abort, a refusal or an error in its middle.
  bool DeleteOfServer() const { return FDeleteOfServer; }
  void SetDeleteOfServer(bool deleteOfServer) { FDeleteOfServer = deleteOfServer; }
  /// Leaves all mails on the server, whatever DeleteOfServer says, and fetches only those whose
  /// identifiers (UIDL) are not among KnownIds. At first False.
  bool KeepOnServer() const { return FKeepOnServer; }
  void SetKeepOnServer(bool keepOnServer) { FKeepOnServer = keepOnServer; }
  /// The identifiers of the mails that have been fetched, one a line, which the program keeps from
  /// session to session. A session with KeepOnServer adds those of the mails that it fetches and
  /// drops those that the server no longer has. The setter copies.
  vcl::TStrings* KnownIds() const { return FKnownIds.get(); }
  void SetKnownIds(const vcl::TStrings* ids) { FKnownIds->Assign(ids); }
  /// A mail that cannot be read, or is too large, is told to OnError and left on the server, and
  /// the next one comes; Execute then returns false. Else, as at first, it ends the session.
  bool SkipBadMessages() const { return FSkipBadMessages; }
  void SetSkipBadMessages(bool skipBadMessages) { FSkipBadMessages = skipBadMessages; }
  /// A server that sends a larger mail, or attachment, is an error (EQELMailError), which ends the
  /// session: so no server can fill the memory. In bytes, at first 256 MiB; 0 for no limit. A mail
  /// takes up to three times its size while it is read, and more when its lines are very short.
  std::size_t MaxMessageSize() const { return FMaxMessageSize; }
  void SetMaxMessageSize(std::size_t bytes) { FMaxMessageSize = bytes; }

  TQELMailSessionState State() const { return FState; }
  /// The first four characters of the last reply.
  const std::string& Status() const { return FStatus; }
  /// How many mails the mailbox has, without those that this session has deleted.
  std::uint16_t MessageCount() const { return FMessageCount; }
  /// True when this session has deleted the mail.
  bool IsDeleted(std::uint16_t index) const { return FDeleted.contains(index); }

  // For Execute. Mails are counted from 1. What the server refuses is told to OnError and closes
  // the connection; what is sent on a closed one raises EInvalidOperation.
  void Connect() override;
  void Disconnect() override;
  bool Login();
  /// Asks for the number of mails and returns it; 0 when that is refused. Raises EConvertError when
  /// the answer is no number from 0 to 65535.
  int Init();
  /// Fetches all mails that the session has not deleted and returns their number. They are added to
  /// the component's own messages, whatever is passed.
  int RetrieveAllMessages(TQELMessages* messages);
  /// Fetches a mail; null when it is refused or the session aborted, or an event has deleted it.
  TQELMessage* RetrieveMessage(std::uint16_t index);
  /// Fetches a mail's header and so many lines of its text. What comes begins with a line feed and
  /// ends with the line of the lone dot.
  void RetrieveHeaders(std::uint16_t index, std::string& headers, int lines = 0);
  /// The identifier of a mail on the server (UIDL), which it has in each session; empty when it has
  /// none. Asked for once a session.
  std::string MailId(std::uint16_t index);
  void DeleteMessage(std::uint16_t index);
  /// Reads what has come, at most 1024 bytes, and takes status and text of the reply from it.
  void GetSocketText(std::string& text);

  /// Adds the message that the text of a whole reply holds: a line of status, the mail, and the
  /// line with the lone dot. Raises EQELMailError and EStringListError for a mail of several parts
  /// that cannot be told apart; what could be read until then stays. Null when an event has deleted
  /// it. In the standard format nothing is refused; Notes says what was wrong.
  TQELMessage* ReadMessage(std::string reply);
  /// These decode the attachment's lines. Raise EInvalidOperation when an event deletes it.
  void Base64Decode(TQELAttachment& attachment);
  /// Raises EQELMailError for a character that does not belong there.
  void UUDecode(TQELAttachment& attachment);

  /// The first line that begins an uuencoded file ("begin 644 name") and the file's name.
  static bool GetUUAttachments(const vcl::TStrings& lines, int& index, std::string& name);
  /// The first line that, in capitals, starts with the key; contains it, at a position from 1; and
  /// the first line that contains the text as it is. False when there is none.
  static bool FindInHeaders(std::string_view key, const vcl::TStrings& list, int& index);
  static bool FindInStringList(std::string_view key, const vcl::TStrings& list, int& index,
                               int& position);
  static bool FindInStringListCS(std::string_view key, const vcl::TStrings& list, int& index);

  /// An attachment begins to be decoded: its file name and its number of lines.
  TQELOnCodingStart OnDecodeStart;
  /// How much of an attachment is decoded, in percent.
  TQELOnCodingProgress OnDecodeProgress;
  /// An attachment has been decoded.
  vcl::TNotifyEvent OnDecodeEnd;
  /// Before a mail is fetched: its number, from 1.
  TQELBeforeRetrieve BeforeRetrieve;
  /// A mail has been fetched and stands in Messages.
  vcl::TNotifyEvent AfterRetrieve;
  /// How much of a mail is fetched, in percent of the size that the server announced.
  TQELOnCodingProgress OnRetrieveProgress;
  /// The server has deleted a mail: its number, from 1.
  TQELOnDelete OnDelete;

 protected:
  /// Closes the connection and fires OnError with the code and the server's words.
  void DoErr(int code);
  /// Raises EQELMailError also for a user's name or password that breaks its line.
  void CheckSession() const override;
  bool WantsExtensions() const override;
  void DoError(vcl::TObject* sender, vcl::TCustomWinSocket* socket, vcl::TErrorEvent errorEvent,
               int& errorCode) override;

 private:
  // Sessions with extensions.
  void OpenExtended();
  void AskCapabilities();
  bool HasCapability(std::string_view name) const;
  bool SecureByCommand();
  bool LogIn();
  bool TryLogIn(TQELMailAuthMethod way);
  std::string ReadReplyLine();
  /// The lines that follow a reply, up to the lone dot, without it.
  std::string ReadLines();
  std::map<int, std::string> AskList(const char* command, int refusal);
  std::set<std::string> Known() const;
  void ForgetGoneIds();
  void CheckAnnouncedSize(std::uint16_t index);
  /// Reads to the end of a mail that is not kept, of which this has come last.
  void SkipRest(std::string end);
  bool FetchOne(std::uint16_t index);
  TQELMessage* ReadStandard(std::string mail);

  void ShowRefusal();
  void TakeReply(std::string_view text);
  std::string ReadReply();
  /// True unless the server refuses, which is told with the code; `reply` is all that has come.
  bool Command(const std::string& command, int refusal, std::string& reply);
  bool Command(const std::string& command, int refusal);
  bool IsTooLarge(std::size_t size) const;
  void CheckSize(std::size_t size) const;
  std::string FetchRest(std::string reply);
  void ReadSinglePart(TQELMessage& message, char* body, std::size_t size);
  void ReadParts(TQELMessage& message, std::string_view body, const std::string& boundary);
  void ReadAttachment(TQELMessage& message, std::string_view part, const TPartKind& kind);
  void DoDecodeStart(const TQELAttachment& attachment);
  bool DoDecodeProgress(int percent, int& threshold);
  void DoDecodeEnd();

  TQELMailSessionState FState = Authorization;
  std::string FUsername, FPassword, FStatus;
  bool FDeleteOfServer = false;
  std::size_t FMaxMessageSize = 256u << 20;
  std::uint16_t FMessageCount = 0;
  std::set<std::uint16_t> FDeleted;
  bool FKeepOnServer = false;
  bool FSkipBadMessages = false;
  std::unique_ptr<vcl::TStringList> FKnownIds;
  /// The running session is one with extensions.
  bool FExtended = false;
  std::string FGreeting;
  std::vector<std::string> FCapabilities;
  std::optional<std::map<int, std::string>> FIds, FSizes;
  int FRetrievePercent = 0;
  int FDecodePercent = 0;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELMailSessionState>{
    "TQELMailSessionState", "Authorization Transaction"};
