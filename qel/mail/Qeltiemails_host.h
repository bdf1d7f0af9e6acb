// What the components that exchange mails with a server have in common: settings, the session and
// its events.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "qel/core/Qelcomponent.h"
#include "qel/mail/Qeltiemails_message.h"
#include "vcl/net/sockets.h"

namespace qel {

/// By how many percent an event of progress differs from the one before at least: 1 to 100.
enum TQELPStep : std::uint8_t {};

using TQELOnError = vcl::TEvent<vcl::TObject*, int, const std::string&>;
using TQELOnRead = vcl::TEvent<vcl::TObject*, int>;
using TQELOnCertificate = vcl::TEvent<vcl::TObject*, const std::string&, const std::string&, bool&>;
using TQELOnCodingStart = vcl::TEvent<vcl::TObject*, const std::string&, int>;
// What follows are types of their own in the reference but the same to the compiler.
using TQELOnCodingProgress = vcl::TEvent<vcl::TObject*, std::uint16_t>;
using TQELSendingProgress = TQELOnCodingProgress;
using TQELOnDelete = TQELOnCodingProgress;
using TQELBeforeRetrieve = TQELOnCodingProgress;

/// How the connection to the server is secured (TLS).
enum TQELMailSecurity {
  msNone,      ///< Not at all.
  msStartTls,  ///< It begins in clear and is secured before anything is said that matters (RFC
               ///< 3207, RFC 2595). A server that does not offer this is an error.
  msTls        ///< From its first byte on.
};

/// How to log in to the server.
enum TQELMailAuthMethod {
  amNone,      ///< As the component does by itself: POP3 with USER and PASS, SMTP not at all.
  amAuto,      ///< One that both sides know: first one that does not say the password.
  amPlain,     ///< PLAIN (RFC 4616).
  amLogin,     ///< LOGIN.
  amCramMd5,   ///< CRAM-MD5 (RFC 2195).
  amXOAuth2,   ///< XOAUTH2; Password is the access token.
  amUserPass,  ///< USER and PASS, of POP3.
  amApop       ///< APOP (RFC 1939), of POP3.
};

/// How messages are written and read.
enum TQELMailFormat {
  mfClassic,  ///< As these components always have: header and text travel as they are.
  mfStandard  ///< By the standards of today (RFC 5322, 2045 to 2047, 2231), texts in UTF-8.
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
  /// By how many percent an event of progress differs from the one before at least: 1 to 100.
  TQELPStep ProgressStep() const { return FProgressStep; }
  /// Raises EArgumentOutOfRangeException outside 1 to 100.
  void SetProgressStep(TQELPStep step);
  /// How the connection is secured, at first msNone. The certificate must lead to an authority that
  /// the system trusts and be for Host; else OnCertificate decides, and the session ends
  /// (ETlsError). Nothing is ever said in clear instead.
  TQELMailSecurity Security() const { return FSecurity; }
  void SetSecurity(TQELMailSecurity security) { FSecurity = security; }
  /// How to log in, at first amNone. All other ways say who the user is over a secured connection
  /// only, unless AllowClearLogin is set: EQELMailError.
  TQELMailAuthMethod AuthMethod() const { return FAuthMethod; }
  void SetAuthMethod(TQELMailAuthMethod method) { FAuthMethod = method; }
  /// Lets AuthMethod's ways be used over a connection that everybody on the way can read.
  bool AllowClearLogin() const { return FAllowClearLogin; }
  void SetAllowClearLogin(bool allowClearLogin) { FAllowClearLogin = allowClearLogin; }
  /// How messages are written and read, at first mfClassic.
  TQELMailFormat Format() const { return FFormat; }
  void SetFormat(TQELMailFormat format) { FFormat = format; }
  /// How many milliseconds the server may take for each of its answers, and for taking what it is
  /// sent, before ESocketError ends the session; 0, as at first, for any time.
  int Timeout() const { return FTimeout; }
  /// Raises EArgumentOutOfRangeException for less than 0.
  void SetTimeout(int milliseconds);
  TQELMessages* Messages() const { return FMessages.get(); }
  /// The messages that are exchanged with the server.
  void SetMessages(const TQELMessages* messages) { FMessages->Assign(messages); }

  bool Busy() const { return FBusy; }
  bool Connected() const { return FConnected; }
  /// True when the last reply that was looked at was not the wanted one.
  bool Error() const { return FError; }
  bool Aborted() const { return FAborted; }
  /// The protocol that secures the running session, such as "TLSv1.2"; empty while none does.
  std::string TlsVersion() const;
  /// What the server said last, without its code.
  const std::string& ReplyText() const { return FReplyText; }

  /// Opens and closes the session; for Execute. Here: opens and closes the connection.
  virtual void Connect();
  virtual void Disconnect();
  /// Sends the bytes as they are. Raises ESocketError when the connection fails.
  void SendSocketText(std::string_view text);

  /// Execute has been called.
  vcl::TNotifyEvent OnExecute;
  /// The connection has been made; the sender is the client socket.
  vcl::TNotifyEvent OnConnect;
  /// The connection is being closed; the sender is the client socket.
  vcl::TNotifyEvent OnDisconnect;
  /// The server has refused something, or the connection has failed: a code, and what the server
  /// said last.
  TQELOnError OnError;
  /// The server's certificate is refused: its fingerprint (SHA-256, pairs of digits with colons),
  /// and why. Setting the last argument takes it all the same.
  TQELOnCertificate OnCertificate;

 protected:
  /// Begins a session unless one is running, which is then closed instead, runs the dialogue and
  /// closes the session. What is raised is shown by the application's handler, and the connection
  /// dropped. False when something was raised or the session aborted.
  bool RunSession(const std::function<void()>& dialogue);
  /// Asked before a session begins: raises when what it is to send can't be sent. Nothing is
  /// connected then. Here: raises EQELMailError when Host breaks its line.
  virtual void CheckSession() const;
  void CloseConnection();

  /// True when the settings ask for more than the sessions of mfClassic, without security or
  /// AuthMethod, say.
  virtual bool WantsExtensions() const;
  /// Opens the connection; false when it could not be opened, which with mfStandard OnError is told
  /// and which else is raised.
  bool OpenConnection();
  /// Secures the connection, whose stream is open, and forgets what has been read of it.
  void Secure();
  /// Raises EQELMailError unless the connection is secured or AllowClearLogin is set.
  void CheckLoginIsSafe() const;
  /// The next line of what the server says, without its end, at most 64 KiB.
  std::string ReadLine();
  /// What has been received behind the lines that ReadLine has returned, else the next bytes.
  std::string ReadBlock();
  /// Keeps for the next call of these two what does not belong to this one.
  void Unread(std::string_view bytes) { FUnread.insert(0, bytes); }
  /// Says that a mail or a connection was refused without ending the session.
  void Tell(int code, const std::string& text);

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
  /// Waits for the next bytes of a reply, at most so many. Raises ESocketError when the server
  /// sends no more, and ends the session when it is aborted.
  std::string ReadChunk(std::size_t most = 1024);
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
  /// Something was refused and left out in this session, which therefore has not done all.
  bool FLeftOut = false;
  std::string FReplyText;

 private:
  void Guarded(const std::function<void()>& call);
  void BeginSession();
  void DropConnection();
  void CheckTime(std::chrono::steady_clock::time_point since) const;

  std::unique_ptr<vcl::TClientSocket> FClientSocket;
  std::unique_ptr<vcl::TWinSocketStream> FStream;
  std::string FHost, FPort;
  TQELPStep FProgressStep{1};
  std::unique_ptr<TQELMessages> FMessages;
  bool FBusy = false;
  TQELMailSecurity FSecurity = msNone;
  TQELMailAuthMethod FAuthMethod = amNone;
  TQELMailFormat FFormat = mfClassic;
  bool FAllowClearLogin = false;
  int FTimeout = 0;
  std::string FUnread;
  /// Room for what is received, kept from time to time.
  std::vector<char> FChunk;
};

}  // namespace qel

template <>
inline constexpr vcl::TIntegerText vcl::IntegerText<qel::TQELPStep>{"TQELPStep"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELOnError>{
    "TQELOnError", "vcl::TObject* sender, int code, const std::string& message"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELOnCertificate>{
    "TQELOnCertificate",
    "vcl::TObject* sender, const std::string& fingerprint, const std::string& problem, bool& "
    "accept"};
template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELMailSecurity>{"TQELMailSecurity",
                                                                     "msNone msStartTls msTls"};
template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELMailAuthMethod>{
    "TQELMailAuthMethod", "amNone amAuto amPlain amLogin amCramMd5 amXOAuth2 amUserPass amApop"};
template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELMailFormat>{"TQELMailFormat",
                                                                   "mfClassic mfStandard"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELOnCodingStart>{
    "TQELOnCodingStart", "vcl::TObject* sender, const std::string& fileName, int size"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELOnCodingProgress>{
    "TQELOnCodingProgress", "vcl::TObject* sender, std::uint16_t percent"};
