// Sockets: a client's connection, what it says and hears, and the stream over it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "vcl/rtl/component.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/streams.h"

namespace vcl {

namespace os {
class TSocketHandle;
class TTlsChannel;
struct TSocketAddress;
struct TSocketError;
enum class TWaitFor;
}  // namespace os

class TClientSocket;
class TCustomWinSocket;
struct TTlsSettings;

/// What the system refused a socket. The message has the system's words and its number.
class VCL_API ESocketError : public Exception {
 public:
  explicit ESocketError(const std::string& message, int errorCode = 0)
      : Exception(message), FErrorCode(errorCode) {}
  ~ESocketError() override;
  /// The system's number; 0 when it was not the system that refused.
  int ErrorCode() const { return FErrorCode; }

 private:
  int FErrorCode;
};

/// During what a socket failed.
enum TErrorEvent { eeGeneral, eeSend, eeReceive, eeConnect, eeDisconnect, eeAccept };

using TSocketNotifyEvent = TEvent<TObject*, TCustomWinSocket*>;
template <>
inline constexpr TEventText EventText<TSocketNotifyEvent>{
    "TSocketNotifyEvent", "vcl::TObject* sender, vcl::TCustomWinSocket* socket"};
/// The last argument is the system's error number: a handler that sets it to 0 has dealt with the
/// error, which is then not raised.
using TSocketErrorEvent = TEvent<TObject*, TCustomWinSocket*, TErrorEvent, int&>;
template <>
inline constexpr TEventText EventText<TSocketErrorEvent>{
    "TSocketErrorEvent",
    "vcl::TObject* sender, vcl::TCustomWinSocket* socket, vcl::TErrorEvent event, int& code"};

/// How a client socket waits.
enum TClientType {
  ctNonBlocking,  ///< Reading and writing never wait; events tell when they can be done.
  ctBlocking      ///< Opening, reading and writing wait until they are done.
};
template <>
inline constexpr TEnumText EnumText<TClientType>{"TClientType", "ctNonBlocking ctBlocking"};

/// A connection. Its client socket opens it.
class VCL_API TCustomWinSocket : public TObject {
 public:
  ~TCustomWinSocket() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool Connected() const { return FHandle != nullptr; }
  /// Closes the connection, of which OnDisconnect tells. Nothing when it is closed.
  void Close();
  void Disconnect() { Close(); }

  /// This machine's name, connected or not.
  static std::string GetLocalHost();
  std::string LocalHost() const { return GetLocalHost(); }
  /// Secures the open connection, whose bytes are encrypted from then on (TLS, vcl/net/tls.h).
  /// Raises ETlsError when the peer refuses, takes too long or shows a certificate that is refused;
  /// the connection is of no use then.
  void StartTls(const TTlsSettings& settings);
  /// The protocol that secures the connection, such as "TLSv1.2"; empty while none does.
  std::string TlsVersion() const;

  /// The two ends of the connection, or of the last one: digits and ports, empty and 0 before the
  /// first; and the peer's name, which is looked up.
  std::string LocalAddress() const;
  int LocalPort() const;
  std::string RemoteAddress() const;
  int RemotePort() const;
  std::string RemoteHost() const;

  // These wait until they are done and raise ESocketError when the connection is closed or fails.
  /// Sends all bytes and returns their number.
  int SendBuf(const void* buffer, int count);
  int SendText(std::string_view bytes);
  /// Receives what has come, at most `count` bytes; 0 when the peer sends no more.
  int ReceiveBuf(void* buffer, int count);
  /// What has come, at most 4096 bytes; empty when the peer sends no more.
  std::string ReceiveText();

 private:
  friend class TClientSocket;
  friend class TWinSocketStream;
  explicit TCustomWinSocket(TClientSocket* client);
  os::TSocketHandle& Handle() const;
  /// Connects to the first of the addresses that answers.
  os::TSocketError Connect(const std::string& host, const std::string& service);
  /// One attempt, which does not wait: the number of bytes, or -1 when it would have to.
  int TrySend(const void* buffer, int count);
  int TryReceive(void* buffer, int count);
  /// Waits at most so many milliseconds, negative ones for ever, until there is something to read,
  /// the end counted, resp. until there is room to write; false when the time is over.
  bool WaitFor(os::TWaitFor what, int milliseconds);

  TClientSocket* FClient;
  std::shared_ptr<os::TSocketHandle> FHandle;
  /// Null while nothing secures the connection.
  std::unique_ptr<os::TTlsChannel> FTls;
  std::unique_ptr<os::TSocketAddress> FLocal, FRemote;
};

/// A client's socket: connects to a host's port. Freed, it closes the connection without a word.
///
/// A handler may free the socket or close it.
class VCL_API TClientSocket : public TComponent {
 public:
  explicit TClientSocket(TComponent* owner);
  ~TClientSocket() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The connection, open or not.
  TCustomWinSocket* Socket() const { return FSocket.get(); }
  /// Connects: OnLookup, OnConnecting and OnConnect tell of it. A failure is told to OnError
  /// (eeConnect) and then raised as ESocketError unless the handler has set the code to 0. Nothing
  /// when it is open.
  void Open() { SetActive(true); }
  /// Closes the connection; OnDisconnect tells of it.
  void Close() { SetActive(false); }
  bool Active() const;
  /// Opens resp. closes; a form file's value takes effect when the form has been read.
  void SetActive(bool active);

  // The target; none of it can be changed while the socket is open: that raises ESocketError.
  /// An address in digits, of IPv4 or IPv6; used when Host is empty.
  const std::string& Address() const { return FAddress; }
  void SetAddress(const std::string& address);
  const std::string& Host() const { return FHost; }
  /// The host's name.
  void SetHost(const std::string& host);
  /// The port to connect to, from 0 to 65535.
  int Port() const { return FPort; }
  /// Raises ESocketError outside 0 to 65535.
  void SetPort(int port);
  /// A service's name, such as "smtp"; used instead of the port when it is not empty.
  const std::string& Service() const { return FService; }
  void SetService(const std::string& service);
  /// ctBlocking: another kind raises ESocketError.
  TClientType ClientType() const { return ctBlocking; }
  /// Sockets here are blocking ones: ctNonBlocking raises ESocketError.
  void SetClientType(TClientType clientType);

  /// Before the host's address is looked up.
  TSocketNotifyEvent OnLookup;
  /// Before the connection is made.
  TSocketNotifyEvent OnConnecting;
  /// The connection has been made.
  TSocketNotifyEvent OnConnect;
  /// The connection is being closed.
  TSocketNotifyEvent OnDisconnect;
  /// The connection could not be made: the handler may take the error code as dealt with by setting
  /// it to 0.
  TSocketErrorEvent OnError;

 protected:
  void Loaded() override;

 private:
  void CheckClosed() const;
  void DoOpen();
  void Fail(const std::string& host, const std::string& service, const os::TSocketError& error);

  std::unique_ptr<TCustomWinSocket> FSocket;
  std::string FAddress, FHost, FService;
  int FPort = 0;
  bool FActiveWhenLoaded = false;
};

/// The bytes of a connection in order. Nothing can be sought, and the size is not known.
class VCL_API TWinSocketStream : public TStream {
 public:
  /// Reading and writing wait at most so many milliseconds. The connection outlives the stream.
  TWinSocketStream(TCustomWinSocket* socket, int timeOut) : FSocket(socket), FTimeOut(timeOut) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Waits until there is something to read, or the peer sends no more; false when the milliseconds
  /// are over. Raises ESocketError when the connection is closed.
  bool WaitForData(int milliseconds);
  /// What has come, at most `count` bytes; 0 when nothing comes in time or the peer sends no more
  /// (`AtEnd`). Raises ESocketError when the connection fails or is closed.
  std::int64_t Read(void* buffer, std::int64_t count) override;
  /// Returns how many bytes the system took in time, which may be fewer than `count`. Raises
  /// ESocketError when the connection fails or is closed.
  std::int64_t Write(const void* buffer, std::int64_t count) override;
  /// True once all that the peer sends has been read.
  bool AtEnd() const { return FAtEnd; }
  int TimeOut() const { return FTimeOut; }
  void SetTimeOut(int timeOut) { FTimeOut = timeOut; }
  /// These raise EStreamError.
  std::int64_t Seek(std::int64_t offset, TSeekOrigin origin) override;
  std::int64_t Size() const override;

 private:
  TCustomWinSocket* FSocket;
  int FTimeOut;
  bool FAtEnd = false;
};

}  // namespace vcl
