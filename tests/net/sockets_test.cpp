// Sockets against a server of the test's own.
#include "vcl/net/sockets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/server.h"
#include "vcl/rtl/properties.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

void Greet(TPeer& peer) {
  peer.Say("hello\r\n");
  while (const auto line = peer.Hear()) peer.Say(*line + "!");
}

/// Writes down the socket's events.
struct TDiary {
  explicit TDiary(vcl::TClientSocket& socket) {
    const auto note = [this](std::string what) {
      return [this, what](vcl::TObject*, vcl::TCustomWinSocket*) { Lines.push_back(what); };
    };
    socket.OnLookup = note("lookup");
    socket.OnConnecting = note("connecting");
    socket.OnConnect = note("connect");
    socket.OnDisconnect = note("disconnect");
    socket.OnError = [this](vcl::TObject*, vcl::TCustomWinSocket*, vcl::TErrorEvent kind, int&) {
      Lines.push_back("error " + std::to_string(kind));
    };
  }
  std::vector<std::string> Lines;
};

TEST(ClientSocket, ConnectsByNameAndAddressOfBothProtocols) {
  for (const auto& [address, host] :
       {std::pair{"127.0.0.1", "localhost"}, {"127.0.0.1", "127.0.0.1"}, {"::1", "::1"}}) {
    const TTestServer server(Greet, address);
    vcl::TClientSocket socket(nullptr);
    const TDiary diary(socket);
    socket.SetHost(host);
    socket.SetPort(server.Port());
    socket.Open();
    EXPECT_TRUE(socket.Active());
    EXPECT_EQ(socket.Socket()->RemotePort(), server.Port());
    EXPECT_EQ(socket.Socket()->RemoteAddress(), address);
    EXPECT_EQ(socket.Socket()->LocalAddress(), address);
    EXPECT_GT(socket.Socket()->LocalPort(), 0);
    EXPECT_NE(socket.Socket()->LocalPort(), server.Port());
    EXPECT_NE(socket.Socket()->RemoteHost(), "");
    EXPECT_EQ(socket.Socket()->LocalHost(), vcl::TCustomWinSocket::GetLocalHost());
    EXPECT_EQ(socket.Socket()->ReceiveText(), "hello\r\n");
    EXPECT_THROW(socket.SetHost("elsewhere"), vcl::ESocketError);
    socket.Close();
    EXPECT_FALSE(socket.Active());
    EXPECT_THROW(socket.Socket()->SendText("x"), vcl::ESocketError);
    EXPECT_THAT(diary.Lines, ElementsAre("lookup", "connecting", "connect", "disconnect"));
  }
}

TEST(ClientSocket, SaysWhatFailed) {
  int free = 0;
  { free = TTestServer(Greet).Port(); }
  struct {
    std::string Host, Service;
    int Port;
    const char* Message;
  } const table[] = {{"127.0.0.1", "", free, "127.0.0.1"},
                     {"no such host.invalid", "", 25, "no such host.invalid"},
                     {"127.0.0.1", "no-such-service", 25, "no-such-service"}};
  for (const auto& each : table) {
    vcl::TClientSocket socket(nullptr);
    TDiary diary(socket);
    socket.SetHost(each.Host);
    socket.SetService(each.Service);
    socket.SetPort(each.Port);
    try {
      socket.Open();
      ADD_FAILURE() << each.Message;
    } catch (const vcl::ESocketError& error) {
      EXPECT_THAT(error.Message(), HasSubstr(each.Message));
      EXPECT_NE(error.ErrorCode(), 0);
    }
    EXPECT_THAT(diary.Lines, ElementsAre("lookup", "connecting", "error 3"));
    socket.OnError = [](auto*, auto*, auto, int& code) { code = 0; };
    EXPECT_NO_THROW(socket.Open()) << "the handler has dealt with it";
    EXPECT_FALSE(socket.Active());
  }
  vcl::TClientSocket socket(nullptr);
  EXPECT_THROW(socket.Open(), vcl::ESocketError) << "neither host nor address";
  EXPECT_THROW(socket.SetPort(65536), vcl::ESocketError);
  EXPECT_THROW(socket.SetClientType(vcl::ctNonBlocking), vcl::ESocketError);
}

TEST(ClientSocket, MayBeFreedByItsHandlers) {
  const TTestServer server(Greet);
  for (auto event : {&vcl::TClientSocket::OnLookup, &vcl::TClientSocket::OnConnect,
                     &vcl::TClientSocket::OnDisconnect}) {
    auto* socket = new vcl::TClientSocket(nullptr);
    socket->SetAddress("127.0.0.1");
    socket->SetPort(server.Port());
    bool freed = false;
    socket->*event = [&](vcl::TObject* sender, vcl::TCustomWinSocket*) {
      delete sender;
      freed = true;
    };
    socket->Open();
    if (!freed) socket->Close();
    EXPECT_TRUE(freed);
  }
}

TEST(SocketStream, WaitsReadsAndWrites) {
  const std::string much(8'000'000, 'x');
  std::size_t heard = 0;
  {
    const TTestServer server([&](TPeer& peer) {
      peer.Hear();
      peer.Say("data");
      std::this_thread::sleep_for(std::chrono::milliseconds(300));
      heard = peer.Hear().value_or("").size();
    });
    vcl::TClientSocket socket(nullptr);
    socket.SetHost("127.0.0.1");
    socket.SetPort(server.Port());
    socket.Open();
    vcl::TWinSocketStream stream(socket.Socket(), 20);
    char buffer[64];
    EXPECT_FALSE(stream.WaitForData(50));
    stream.SetTimeOut(30);
    EXPECT_EQ(stream.TimeOut(), 30);
    EXPECT_EQ(stream.Read(buffer, sizeof buffer), 0) << "nothing came in time";
    EXPECT_FALSE(stream.AtEnd());
    stream.WriteText("go\r\n");
    ASSERT_TRUE(stream.WaitForData(5000));
    EXPECT_EQ(stream.Read(buffer, sizeof buffer), 4);
    EXPECT_LT(stream.Write(much.data(), std::ssize(much)), std::ssize(much))
        << "the peer does not read yet";
    socket.Socket()->SendText(much + "\r\n");
    EXPECT_TRUE(stream.WaitForData(5000)) << "the end counts";
    EXPECT_EQ(stream.Read(buffer, sizeof buffer), 0);
    EXPECT_TRUE(stream.AtEnd());
    EXPECT_THROW(for (int i = 0; i < 20; ++i) socket.Socket()->SendText(much), vcl::ESocketError)
        << "an error, no signal";
  }
  EXPECT_GT(heard, much.size()) << "partial sends are completed";
}

}  // namespace
