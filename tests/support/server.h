// A server for tests, on a free port of this machine: a thread that takes one connection after the
// other and says and hears what its script does.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <thread>

/// The server's end of a connection. Once the client has gone, nothing is heard and saying does
/// nothing.
class TPeer {
 public:
  explicit TPeer(std::intptr_t socket) : FSocket(socket) {}
  void Say(const std::string& bytes);
  /// The same, one byte at a time, so that the client receives each for itself.
  void SayBytewise(const std::string& bytes);
  /// The next line without its end; nothing when the client has gone or is silent for 20 seconds.
  std::optional<std::string> Hear();
  /// Hears until the client has gone.
  void HearEnd();

 private:
  std::intptr_t FSocket;
  std::string FHeard;
};

class TTestServer {
 public:
  /// Each connection is handed to the script and closed behind it.
  explicit TTestServer(std::function<void(TPeer&)> script, const char* address = "127.0.0.1");
  /// Waits for the script that is running.
  ~TTestServer();
  TTestServer(const TTestServer&) = delete;
  TTestServer& operator=(const TTestServer&) = delete;
  int Port() const { return FPort; }

 private:
  std::intptr_t FListener;
  int FPort = 0;
  std::thread FThread;
};
