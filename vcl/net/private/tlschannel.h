// TTlsChannel: a secured connection, a socket with an engine before it.
#pragma once

#include "vcl/net/private/socketsystem.h"
#include "vcl/net/private/tlsengine.h"

namespace vcl::os {

/// Has the calls of a socket, and moves what the peer is to see and has said.
class TTlsChannel {
 public:
  /// Shakes hands with the peer and checks its certificate. Raises ETlsError when either fails.
  TTlsChannel(TSharedSocket socket, const TTlsSettings& settings);
  ~TTlsChannel();

  /// As the calls of the same names for a socket; an unsent rest is sent by the next call of any.
  bool WaitFor(TWaitFor what, int milliseconds);
  int Receive(void* buffer, int count, TSocketError& error);
  int Send(const void* buffer, int count, TSocketError& error);
  std::string Version() const { return FEngine->Version(); }

 private:
  void ShakeHands(const TTlsSettings& settings);
  void Await(TWaitFor what, const TTlsSettings& settings) const;
  void CheckCertificate(const TTlsSettings& settings);
  /// Sends what the system takes; true when nothing is left.
  bool Flush(TSocketError& error);
  /// Receives what has come and decrypts it.
  void Take(TSocketError& error);

  TSharedSocket FSocket;
  std::unique_ptr<TTlsEngine> FEngine;
  std::string FReceived, FPlain, FToSend;
  std::size_t FTaken = 0;  ///< Of FPlain.
  bool FEnded = false;
};

}  // namespace vcl::os
