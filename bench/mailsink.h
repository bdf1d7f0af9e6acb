// A mail server that takes every mail and counts it.
#pragma once

#include <atomic>
#include <thread>

namespace bench {

class TMailSink {
 public:
  TMailSink();
  ~TMailSink();
  TMailSink(const TMailSink&) = delete;
  TMailSink& operator=(const TMailSink&) = delete;

  int Port() const { return FPort; }
  int Mails() const { return FMails; }

 private:
  void Serve(int peer);

  int FListener;
  int FPort = 0;
  std::atomic<int> FMails = 0;
  std::thread FThread;
};

}  // namespace bench
