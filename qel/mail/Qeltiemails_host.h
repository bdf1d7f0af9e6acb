// What the components that exchange mails with a server have in common: settings, the session and
// its events.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "qel/core/Qelcomponent.h"
#include "qel/mail/Qeltiemails_message.h"
#include "vcl/net/sockets.h"

namespace qel {

/// By how many percent an event of progress differs from the one before at least: 1 to 100.
enum TQELPStep : std::uint8_t {};

using TQELOnError = vcl::TEvent<vcl::TObject*, int, const std::string&>;
using TQELOnRead = vcl::TEvent<vcl::TObject*, int>;
using TQELOnCodingStart = vcl::TEvent<vcl::TObject*, const std::string&, int>;
// What follows are types of their own in the reference but the same to the compiler.
using TQELOnCodingProgress = vcl::TEvent<vcl::TObject*, std::uint16_t>;
using TQELSendingProgress = TQELOnCodingProgress;
using TQELOnDelete = TQELOnCodingProgress;
using TQELBeforeRetrieve = TQELOnCodingProgress;

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
  TQELMessages* Messages() const { return FMessages.get(); }
  /// The messages that are exchanged with the server.
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

  /// Execute has been called.
  vcl::TNotifyEvent OnExecute;
  /// The connection has been made; the sender is the client socket.
  vcl::TNotifyEvent OnConnect;
  /// The connection is being closed; the sender is the client socket.
  vcl::TNotifyEvent OnDisconnect;
  /// The server has refused something, or the connection has failed: a code, and what the server
  /// said last.
  TQELOnError OnError;

 protected:
  /// Begins a session unless one is running, which is then closed instead, runs the dialogue and
  /// closes the session. What is raised is shown by the application's handler, and the connection
  /// dropped. False when something was raised or the session aborted.
  bool RunSession(const std::function<void()>& dialogue);
  /// Asked before a session begins: raises when what it is to send can't be sent. Nothing is
  /// connected then. Here: raises EQELMailError when Host breaks its line.
  virtual void CheckSession() const;
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

}  // namespace qel

template <>
inline constexpr vcl::TIntegerText vcl::IntegerText<qel::TQELPStep>{"TQELPStep"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELOnError>{
    "TQELOnError", "vcl::TObject* sender, int code, const std::string& message"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELOnCodingStart>{
    "TQELOnCodingStart", "vcl::TObject* sender, const std::string& fileName, int size"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELOnCodingProgress>{
    "TQELOnCodingProgress", "vcl::TObject* sender, std::uint16_t percent"};
