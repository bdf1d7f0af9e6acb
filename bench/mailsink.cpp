// Answering a sender's lines.
#include "bench/mailsink.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace bench {

TMailSink::TMailSink() : FListener(::socket(AF_INET, SOCK_STREAM, 0)) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto* const plain = reinterpret_cast<sockaddr*>(&address);
  if (::bind(FListener, plain, size) != 0 || ::listen(FListener, 5) != 0 ||
      ::getsockname(FListener, plain, &size) != 0) {
    throw std::runtime_error("The mail sink has no port");
  }
  FPort = ntohs(address.sin_port);
  FThread = std::thread([this] {
    for (int peer; (peer = ::accept(FListener, nullptr, nullptr)) >= 0; ::close(peer)) Serve(peer);
  });
}

TMailSink::~TMailSink() {
  ::shutdown(FListener, SHUT_RDWR);
  FThread.join();
  ::close(FListener);
}

void TMailSink::Serve(int peer) {
  std::string heard, said = "220 sink\r\n";
  bool data = false;
  char chunk[65536];
  for (;;) {
    if (!said.empty() && ::send(peer, said.data(), said.size(), MSG_NOSIGNAL) < 0) return;
    said.clear();
    const auto count = ::recv(peer, chunk, sizeof chunk, 0);
    if (count <= 0) return;
    heard.append(chunk, static_cast<std::size_t>(count));
    for (std::size_t end; (end = heard.find("\r\n")) != heard.npos; heard.erase(0, end + 2)) {
      const std::string_view line = std::string_view(heard).substr(0, end);
      if (data) {
        if (line != ".") continue;
        data = false;
        ++FMails;
        said += "250 taken\r\n";
      } else if (line.starts_with("EHLO")) {
        said += "250-sink\r\n250-8BITMIME\r\n250 PIPELINING\r\n";
      } else {
        data = line == "DATA";
        said += data ? "354 go on\r\n" : line == "QUIT" ? "221 bye\r\n" : "250 ok\r\n";
      }
    }
  }
}

}  // namespace bench
