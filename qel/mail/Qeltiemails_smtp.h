// TQELSMTPMail, which sends mails (SMTP, RFC 821).
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "qel/mail/Qeltiemails_host.h"
#include "vcl/rtl/systemmacros.h"

namespace qel {

struct TSmtpExtensions;
struct TWriteAttachment;

/// Sends its messages.
///
/// As it is at first, it speaks the SMTP of RFC 821. With Security, an AuthMethod, SkipRefused or
/// the standard Format it says EHLO and uses what the server has (RFC 5321): mails are sent without
/// a pause, those that are too large not at all.
///
/// What goes into one line of the dialogue or of a mail's header (addresses, names, subjects) may
/// have no CR, LF or NUL, behind which anything could stand: that is EQELMailError, with the value.
class QEL_API TQELSMTPMail : public TQELMailHost {
 public:
  explicit TQELSMTPMail(vcl::TComponent* owner);
  ~TQELSMTPMail() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Sends all messages in one session. False when something was raised, which the application's
  /// handler has shown, or the session was aborted; a refusal of the server is told to OnError
  /// alone, but that a session with extensions is false then, too. After an error that was raised,
  /// the next call only clears up; a message that can't be
  /// sent as it is written is one before the session, for which nothing is connected and nothing
  /// left to clear up. Called while it runs, it closes the running session.
  bool Execute() override;

  /// Lines that end every text. The setter copies.
  vcl::TStrings* Signature() const { return FSignature.get(); }
  void SetSignature(const vcl::TStrings* signature) { FSignature->Assign(signature); }
  /// How a mail's date is written, in FormatDateTime's specifiers: at first as the user writes
  /// dates and times in full, which other mail programs need not understand.
  const std::string& DateTimeFormat() const { return FDateTimeFormat; }
  void SetDateTimeFormat(const std::string& format) { FDateTimeFormat = format; }
  /// Who logs in, with an AuthMethod. It has no amUserPass and no amApop.
  const std::string& Username() const { return FUsername; }
  void SetUsername(const std::string& username) { FUsername = username; }
  /// The user's password; for amXOAuth2 the access token.
  const std::string& Password() const { return FPassword; }
  void SetPassword(const std::string& password) { FPassword = password; }
  /// A refused recipient or mail is told to OnError, and the others are sent; Execute then returns
  /// false. Else, as at first, the first refusal ends the session.
  bool SkipRefused() const { return FSkipRefused; }
  void SetSkipRefused(bool skipRefused) { FSkipRefused = skipRefused; }
  /// The first three characters of the last reply.
  const std::string& ReplyCode() const { return FReplyCode; }

  // For Execute.
  void Connect() override;
  /// Takes leave of the server, unless the session was aborted or a mail is on its way, in which
  /// the farewell would be a line like any other: then the connection is only closed.
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

  /// Before a message is sent, when its text and attachments are ready.
  vcl::TNotifyEvent OnBeforeSend;
  /// The server has taken a message.
  vcl::TNotifyEvent OnAfterSend;
  /// An attachment begins to be encoded: its file name and its size in bytes.
  TQELOnCodingStart OnEncodeStart;
  /// How much of an attachment is encoded, in percent.
  TQELOnCodingProgress OnEncodeProgress;
  /// An attachment has been encoded.
  vcl::TNotifyEvent OnEncodeEnd;
  /// How much of a message is sent, in percent.
  TQELSendingProgress OnSendProgress;

 protected:
  void CheckSession() const override;
  bool WantsExtensions() const override;
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
  static void CheckMessage(const TQELMessage& message);
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
  static std::vector<std::string> SplitRecipients(const std::string& sendTo);
  bool SendRecipients(const std::string& sendTo);
  bool SendMail(const vcl::TStrings& lines);
  bool SendLines(const vcl::TStrings& lines);
  // Sessions with extensions.
  void ReadWholeReply(std::string& text);
  /// True when the reply to the line has a code that begins so.
  bool Request(const std::string& command, const char* wanted);
  bool ReadAnswer(const char* wanted);
  void OpenExtended();
  bool SayHello();
  bool SecureByCommand();
  bool LogIn();
  bool TryLogIn(TQELMailAuthMethod way);
  bool SendExtended(TQELMessage& message);
  /// The mail as it travels, dots doubled; empty when it can't be sent, which has been told.
  std::string Compose(TQELMessage& message);
  std::string ComposeStandard(TQELMessage& message);
  void CheckAddresses(const TQELMessage& message) const;
  /// The attachment as it is written, with its events; its size is added to the room.
  TWriteAttachment Encoding(const TQELAttachment& attachment, std::size_t& room);
  std::vector<std::string> RecipientsOf(const TQELMessage& message) const;
  std::vector<std::string> EnvelopeOf(const TQELMessage& message, std::string_view mail) const;
  bool SendEnvelope(const TQELMessage& message, std::string_view mail);
  /// Has the server forget sender and recipients; false.
  bool ForgetEnvelope();
  bool SendContents(std::string_view mail);
  /// Tells the refusal that was read last, and ends the session unless it is to go on behind it.
  void Refuse();
  /// The same for what the server would refuse.
  void RefuseUnsent(const char* code, const std::string& why);
  void EndRefused();

  std::unique_ptr<vcl::TStringList> FSignature;
  std::string FDateTimeFormat;
  std::string FReplyCode;
  std::string FUsername, FPassword;
  bool FSkipRefused = false;
  /// The running session is one with extensions, the server's being these.
  bool FExtended = false;
  std::unique_ptr<TSmtpExtensions> FServer;
  /// The last reply has been taken before its line ended.
  bool FInsideLine = false;
  /// The server takes what it gets for a mail's lines.
  bool FMailUnderWay = false;
  int FLastSendPercent = 0;
  int FLastEncodePercent = 0;
};

}  // namespace qel
