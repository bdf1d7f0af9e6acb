// Internet mail: messages with attachments, what the components that exchange them with a server
// have in common, and the two that send
// them (SMTP, RFC 821) and fetch them (POP3, RFC 1939).
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "core/Qelcomponent.h"
#include "host/net/sockets.h"
#include "host/rtl/collection.h"
#include "host/rtl/strings.h"
#include "mail/textlines.h"

namespace qel {

class TQELAttachments;
class TQELMailHost;
class TQELMessage;
class TQELMessages;
struct TPartKind;

/// By how many percent an event of progress differs from the one before at least: 1 to 100.
enum TQELPStep : std::uint8_t {};

/// How far a session with a server that keeps mail has come.
enum TQELMailSessionState { Authorization, Transaction };

using TQELOnError = vcl::TEvent<vcl::TObject*, int, const std::string&>;
using TQELOnRead = vcl::TEvent<vcl::TObject*, int>;
using TQELOnCodingStart = vcl::TEvent<vcl::TObject*, const std::string&, int>;
// What follows are types of their own in the reference but the same to the compiler.
using TQELOnCodingProgress = vcl::TEvent<vcl::TObject*, std::uint16_t>;
using TQELSendingProgress = TQELOnCodingProgress;
using TQELOnDelete = TQELOnCodingProgress;
using TQELBeforeRetrieve = TQELOnCodingProgress;

/// A file that travels with a message.
class QEL_API TQELAttachment : public vcl::TCollectionItem {
 public:
  explicit TQELAttachment(vcl::TCollection* collection);
  ~TQELAttachment() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The file's name. To be sent, it is opened as it stands here: a name without a folder in the
  /// program's current folder.
  const std::string& FileName() const { return FFileName; }
  void SetFileName(const std::string& fileName) { FFileName = fileName; }
  /// The lines that the contents travel as. Never null.
  TTextLines* Lines() const { return FLines.get(); }
  void SetLines(std::unique_ptr<TTextLines> lines);
  /// The contents of an attachment that was received. Null only after SetData(nullptr).
  vcl::TMemoryStream* Data() const { return FData.get(); }
  void SetData(std::unique_ptr<vcl::TMemoryStream> data);
  const std::string& MimeType() const { return FMimeType; }
  void SetMimeType(const std::string& mimeType) { FMimeType = mimeType; }
  /// The message that it belongs to; null for an attachment of none.
  TQELMessage* Message() const;
  /// Expires with the attachment: for work that runs events, which may delete it.
  std::weak_ptr<TQELAttachment> Life() const { return FLife; }

  /// Writes Data to a file. A failure is shown by the application's handler and not raised; without
  /// data nothing is written.
  void SaveToFile(const std::string& fileName) const;
  std::string DisplayName() const override { return "Mail Attachment"; }
  void Assign(const vcl::TPersistent* source) override;

 private:
  std::string FFileName;
  std::unique_ptr<TTextLines> FLines;
  std::unique_ptr<vcl::TMemoryStream> FData;
  std::string FMimeType;
  std::shared_ptr<TQELAttachment> FLife;
};

/// The attachments of a message.
class QEL_API TQELAttachments : public vcl::TCollection {
 public:
  explicit TQELAttachments(TQELMessage* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELMessage* GetOwner() const { return FOwner; }
  /// Appends an attachment with the name part of the path and the type of such files. The folder is
  /// not kept: set FileName to a full name to send a file from elsewhere than the current folder.
  TQELAttachment* Add(const std::string& fileName);
  /// Deletes the attachment and returns true. What is raised is shown by the application's handler,
  /// and the result is false.
  bool Delete(int index);
  /// The MIME type that the system has registered for the file name's extension, else
  /// "application/octet-stream".
  static std::string GetMimeType(const std::string& fileName);
  /// Raise EListError outside 0 to Count - 1. A value is copied into the item.
  TQELAttachment* GeTQELAttachment(int index) const;
  void SeTQELAttachment(int index, const TQELAttachment* value);

 private:
  TQELMessage* FOwner;
};

/// A mail. Addresses and texts travel as they are: nothing is encoded in the header.
class QEL_API TQELMessage : public vcl::TCollectionItem {
 public:
  explicit TQELMessage(vcl::TCollection* collection);
  ~TQELMessage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// The sender's address, without the name.
  const std::string& FromMail() const { return FFromMail; }
  void SetFromMail(const std::string& fromMail) { FFromMail = fromMail; }
  const std::string& ReplyTo() const { return FReplyTo; }
  void SetReplyTo(const std::string& replyTo) { FReplyTo = replyTo; }
  /// The recipients' addresses, separated by commas.
  const std::string& SendTo() const { return FSendTo; }
  void SetSendTo(const std::string& sendTo) { FSendTo = sendTo; }
  const std::string& Subject() const { return FSubject; }
  void SetSubject(const std::string& subject) { FSubject = subject; }
  /// The sender's name.
  const std::string& FromName() const { return FFromName; }
  void SetFromName(const std::string& fromName) { FFromName = fromName; }
  /// The text, a line an item. The setter copies.
  vcl::TStrings* Message() const { return FMessage.get(); }
  void SetMessage(const vcl::TStrings* message) { FMessage->Assign(message); }
  TQELAttachments* Attachments() const { return FAttachments.get(); }
  void SetAttachments(const TQELAttachments* attachments) { FAttachments->Assign(attachments); }

  /// The number that a received mail came with; sending gives a new one and does not look here.
  const std::string& MessageId() const { return FMessageId; }
  void SetMessageId(const std::string& messageId) { FMessageId = messageId; }
  /// The number of the mail that this one answers; empty for none.
  const std::string& InReplyTo() const { return FInReplyTo; }
  void SetInReplyTo(const std::string& inReplyTo) { FInReplyTo = inReplyTo; }
  /// Set by sending, filled by receiving.
  const std::string& Date() const { return FDate; }
  void SetDate(const std::string& date) { FDate = date; }
  /// The header lines of a received mail, as they came. Sending does not look here.
  vcl::TStrings* Headers() const { return FHeaders.get(); }

  /// The component that it belongs to; null for a message of none.
  TQELMailHost* Host() const;
  /// Expires with the message: for work that runs events, which may delete it.
  std::weak_ptr<TQELMessage> Life() const { return FLife; }
  std::string DisplayName() const override;
  void Assign(const vcl::TPersistent* source) override;

 private:
  std::string FFromMail, FReplyTo, FSendTo, FSubject, FFromName;
  std::string FMessageId, FInReplyTo, FDate;
  std::unique_ptr<vcl::TStringList> FMessage, FHeaders;
  std::unique_ptr<TQELAttachments> FAttachments;
  std::shared_ptr<TQELMessage> FLife;
};

/// The messages of a component.
class QEL_API TQELMessages : public vcl::TCollection {
 public:
  explicit TQELMessages(TQELMailHost* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELMailHost* GetOwner() const { return FOwner; }
  TQELMessage* Add();
  /// Deletes the message and returns true. What is raised is shown by the application's handler,
  /// and the result is false.
  bool Delete(int index);
  /// Raise EListError outside 0 to Count - 1. A value is copied into the item.
  TQELMessage* GetQELMessage(int index) const;
  void SetQELMessage(int index, const TQELMessage* value);

 private:
  TQELMailHost* FOwner;
};

/// What exchanges messages with a server, in one session for each call of Execute.
///
/// A session runs in the caller's thread and lets the application handle its messages while it
/// waits. Its handlers, and whatever else runs then, may abort the session, delete messages or free
/// the component.
class QEL_API TQELMailHost : public TQELExecComponent {
 public:
  explicit TQELMailHost(vcl::TComponent* owner);
  ~TQELMailHost() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Fires OnExecute and returns true.
  bool Execute() override;
  /// Ends the running session as soon as it looks: the connection is closed without a word to the
  /// server and Execute returns false. For events and for messages that are handled meanwhile; the
  /// next session forgets it.
  void Abort();

  /// The server's name or address.
  const std::string& Host() const { return FHost; }
  void SetHost(const std::string& host) { FHost = host; }
  /// The server's port, a decimal number.
  const std::string& Port() const { return FPort; }
  void SetPort(const std::string& port) { FPort = port; }
  TQELPStep ProgressStep() const { return FProgressStep; }
  /// Raises EArgumentOutOfRangeException outside 1 to 100.
  void SetProgressStep(TQELPStep step);
  TQELMessages* Messages() const { return FMessages.get(); }
  void SetMessages(const TQELMessages* messages) { FMessages->Assign(messages); }

  bool Busy() const { return FBusy; }
  bool Connected() const { return FConnected; }
  /// True when the last reply that was looked at was not the wanted one.
  bool Error() const { return FError; }
  bool Aborted() const { return FAborted; }
  /// What the server said last, without its code.
  const std::string& ReplyText() const { return FReplyText; }

  /// Opens and closes the session; for Execute. Here: opens and closes the connection.
  virtual void Connect();
  virtual void Disconnect();
  /// Sends the bytes as they are. Raises ESocketError when the connection fails.
  void SendSocketText(std::string_view text);

  vcl::TNotifyEvent OnExecute;
  // The sender of the first two is the client socket.
  vcl::TNotifyEvent OnConnect;
  vcl::TNotifyEvent OnDisconnect;
  TQELOnError OnError;

 protected:
  /// Begins a session unless one is running, which is then closed instead, runs the dialogue and
  /// closes the session. What is raised is shown by the application's handler, and the connection
  /// dropped. False when something was raised or the session aborted.
  bool RunSession(const std::function<void()>& dialogue);
  void CloseConnection();

  /// The socket's handlers.
  virtual void DoConnect(vcl::TObject* sender, vcl::TCustomWinSocket* socket);
  virtual void DoDisconnect(vcl::TObject* sender, vcl::TCustomWinSocket* socket);
  virtual void DoError(vcl::TObject* sender, vcl::TCustomWinSocket* socket,
                       vcl::TErrorEvent errorEvent, int& errorCode);

  // Whatever calls a handler calls it through these two: they raise EAbort when it has freed the
  // component, which ends the session without another look at it.
  template <class TheEvent, class... A>
  void Fire(const TheEvent& event, A... arguments) {
    Guarded([&] { event(arguments...); });
  }
  /// Lets the application handle its messages.
  void Pump();
  /// The same for what waits for the server: ends the session when it is aborted meanwhile.
  void LetWait();

  /// Makes the stream over the connection, whose calls wait so many milliseconds.
  void OpenStream(int timeOut);
  /// Waits for the next bytes of a reply, at most 1024. Raises ESocketError when the server sends
  /// no more, and ends the session when it is aborted.
  std::string ReadChunk();
  /// The session's parts. Raise EInvalidOperation when there is none, or no longer.
  vcl::TClientSocket& ClientSocket() const;
  vcl::TWinSocketStream& Stream() const;
  /// The connection; null when there is no session.
  vcl::TCustomWinSocket* Connection() const;

  /// Progress in percent, halves to even; and events at every ProgressStep.
  static int Percent(double part, double whole);
  /// True when the progress has reached the threshold, which then grows.
  bool StepReached(int percent, int& threshold) const;

  bool FConnected = false;
  bool FError = false;
  bool FAborted = false;
  /// Abort has been called in this session.
  bool FAbortAsked = false;
  std::string FReplyText;

 private:
  void Guarded(const std::function<void()>& call);
  void BeginSession();
  void DropConnection();

  std::unique_ptr<vcl::TClientSocket> FClientSocket;
  std::unique_ptr<vcl::TWinSocketStream> FStream;
  std::string FHost, FPort;
  TQELPStep FProgressStep{1};
  std::unique_ptr<TQELMessages> FMessages;
  bool FBusy = false;
};

/// Sends its messages.
class QEL_API TQELSMTPMail : public TQELMailHost {
 public:
  explicit TQELSMTPMail(vcl::TComponent* owner);
  ~TQELSMTPMail() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Sends all messages in one session. False when something was raised, which the application's
  /// handler has shown, or the session was aborted; a refusal of the server is told to OnError
  /// alone. After an error that was raised, the next call only clears up. Called while it runs, it
  /// closes the running session.
  bool Execute() override;

  /// Lines that end every text. The setter copies.
  vcl::TStrings* Signature() const { return FSignature.get(); }
  void SetSignature(const vcl::TStrings* signature) { FSignature->Assign(signature); }
  /// How a mail's date is written, in FormatDateTime's specifiers: at first as the user writes
  /// dates and times in full, which other mail programs need not understand.
  const std::string& DateTimeFormat() const { return FDateTimeFormat; }
  void SetDateTimeFormat(const std::string& format) { FDateTimeFormat = format; }
  /// The first three characters of the last reply.
  const std::string& ReplyCode() const { return FReplyCode; }

  // For Execute.
  void Connect() override;
  void Disconnect() override;
  /// Sends one message; true when the server has taken it.
  bool SendMessage(TQELMessage& message);
  /// The whole mail, a line an item; null when the session was aborted meanwhile.
  std::unique_ptr<vcl::TStringList> InitializeMessage(TQELMessage& message);
  /// A new number for a mail.
  std::string CreateUIN() const;
  /// A new text to stand between the parts of a mail.
  static std::string CreateBounds();
  /// Fills the attachment's lines with its file in base64. Raises EFOpenError and EReadError.
  void Base64Encode(TQELAttachment& attachment);
  /// Reads a reply; `text` becomes what came of it last.
  void GetSocketText(std::string& text);

  vcl::TNotifyEvent OnBeforeSend;
  vcl::TNotifyEvent OnAfterSend;
  TQELOnCodingStart OnEncodeStart;
  TQELOnCodingProgress OnEncodeProgress;
  vcl::TNotifyEvent OnEncodeEnd;
  TQELSendingProgress OnSendProgress;

 protected:
  void DoErr(vcl::TErrorEvent kind);
  void DoError(vcl::TObject* sender, vcl::TCustomWinSocket* socket, vcl::TErrorEvent errorEvent,
               int& errorCode) override;
  virtual void DoOnBeforeSend() { Fire(OnBeforeSend, this); }
  virtual void DoOnAfterSend() { Fire(OnAfterSend, this); }
  virtual void DoEncodeStart(const std::string& fileName, int count);
  virtual void DoEncodeProgress(int percent);
  virtual void DoEncodeEnd() { Fire(OnEncodeEnd, this); }
  virtual void DoSendProgress(int percent);

 private:
  void AddHeaders(const TQELMessage& message, vcl::TStrings& lines) const;
  std::string Sender(const TQELMessage& message) const;
  void AddText(const TQELMessage& message, vcl::TStrings& lines) const;
  // These and the encoding are false when the session was aborted meanwhile.
  bool AddParts(TQELMessage& message, const std::string& boundary, vcl::TStrings& lines);
  bool AddAttachment(TQELAttachment& attachment, vcl::TStrings& lines);
  bool EncodeBlocks(vcl::TStream& file, std::int64_t size, TTextLines& lines);
  bool EncodeRest(vcl::TStream& file, std::int64_t count, TTextLines& lines);
  std::string NextChunk();
  void TakeReply(std::string_view text);
  bool ReadGreeting();
  /// True when the reply to the line has the wanted code; else the error has been told.
  bool Command(const std::string& command, const char* wanted,
               vcl::TErrorEvent kind = vcl::eeGeneral);
  bool SendRecipients(const std::string& sendTo);
  bool SendLines(const vcl::TStrings& lines);

  std::unique_ptr<vcl::TStringList> FSignature;
  std::string FDateTimeFormat;
  std::string FReplyCode;
  /// The last reply has been taken before its line ended.
  bool FInsideLine = false;
  int FLastSendPercent = 0;
  int FLastEncodePercent = 0;
};

/// Fetches the mails of a mailbox (POP3, RFC 1939).
///
/// Mails are kept in Messages, behind those that are there. A server's reply is taken as it comes:
/// only "-ERR" is looked for.
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
  void SetUsername(const std::string& username) { FUsername = username; }
  /// Sent as it is, unencrypted.
  const std::string& Password() const { return FPassword; }
  void SetPassword(const std::string& password) { FPassword = password; }
  /// Deletes each mail on the server once it has been fetched. A server forgets the deletions of a
  /// session that does not end with a farewell: an abort, a refusal or an error in its middle.
  bool DeleteOfServer() const { return FDeleteOfServer; }
  void SetDeleteOfServer(bool deleteOfServer) { FDeleteOfServer = deleteOfServer; }
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
  /// Fetches a mail's header. It begins with a line feed and ends with the line of the lone dot.
  void RetrieveHeaders(std::uint16_t index, std::string& headers);
  void DeleteMessage(std::uint16_t index);
  /// Reads what has come, at most 1024 bytes, and takes status and text of the reply from it.
  void GetSocketText(std::string& text);

  /// Adds the message that the text of a whole reply holds: a line of status, the mail, and the
  /// line with the lone dot. Raises EQELMailError and EStringListError for a mail of several parts
  /// that cannot be told apart; what could be read until then stays. Null when an event has deleted
  /// it.
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

  TQELOnCodingStart OnDecodeStart;
  TQELOnCodingProgress OnDecodeProgress;
  vcl::TNotifyEvent OnDecodeEnd;
  TQELBeforeRetrieve BeforeRetrieve;
  vcl::TNotifyEvent AfterRetrieve;
  TQELOnCodingProgress OnRetrieveProgress;
  TQELOnDelete OnDelete;

 protected:
  /// Closes the connection and fires OnError with the code and the server's words.
  void DoErr(int code);
  void DoError(vcl::TObject* sender, vcl::TCustomWinSocket* socket, vcl::TErrorEvent errorEvent,
               int& errorCode) override;

 private:
  void TakeReply(std::string_view text);
  std::string ReadReply();
  /// True unless the server refuses, which is told with the code; `reply` is all that has come.
  bool Command(const std::string& command, int refusal, std::string& reply);
  bool Command(const std::string& command, int refusal);
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
  int FRetrievePercent = 0;
  int FDecodePercent = 0;
};

}  // namespace qel

template <>
inline constexpr vcl::TIntegerText vcl::IntegerText<qel::TQELPStep>{"TQELPStep"};
template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELMailSessionState>{
    "TQELMailSessionState", "Authorization Transaction"};
template <>
inline constexpr const char* vcl::EventName<qel::TQELOnError> = "TQELOnError";
template <>
inline constexpr const char* vcl::EventName<qel::TQELOnCodingStart> = "TQELOnCodingStart";
template <>
inline constexpr const char* vcl::EventName<qel::TQELOnCodingProgress> = "TQELOnCodingProgress";
