// TClientSocket: whom it connects to, opening and closing, and what it does about failures.
#include "vcl/net/private/socketsystem.h"
#include "vcl/net/sockets.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TClientSocket::Class() {
  using T = TClientSocket;
  static const TClass info = Describe<T, TComponent>(
      "vcl::TClientSocket", "vcl/net/sockets.h",
      {
          Property<&T::Active, &T::SetActive>("Active").Default(false),
          Property<&T::Address, &T::SetAddress>("Address").Default(""),
          Property<&T::ClientType, &T::SetClientType>("ClientType").Default(ctBlocking),
          Property<&T::Host, &T::SetHost>("Host").Default(""),
          Property<&T::Port, &T::SetPort>("Port").Default(0),
          Property<&T::Service, &T::SetService>("Service").Default(""),
          Event<&T::OnLookup>("OnLookup"),
          Event<&T::OnConnecting>("OnConnecting"),
          Event<&T::OnConnect>("OnConnect"),
          Event<&T::OnDisconnect>("OnDisconnect"),
          Event<&T::OnError>("OnError"),
      });
  return info;
}

TClientSocket::TClientSocket(TComponent* owner)
    : TComponent(owner), FSocket(new TCustomWinSocket(this)) {}

TClientSocket::~TClientSocket() { AnnounceEnd(); }

void TClientSocket::Loaded() {
  TComponent::Loaded();
  if (FActiveWhenLoaded) SetActive(true);
}

bool TClientSocket::Active() const { return FSocket->Connected() || FActiveWhenLoaded; }

void TClientSocket::SetActive(bool active) {
  // A form in the designer keeps the value and connects to nothing.
  FActiveWhenLoaded = active && (Loading() || Designing());
  if (FActiveWhenLoaded || active == FSocket->Connected()) return;
  if (active) {
    DoOpen();
  } else {
    FSocket->Close();
  }
}

void TClientSocket::DoOpen() {
  TWatch watch(this);
  for (const TSocketNotifyEvent* event : {&OnLookup, &OnConnecting}) {
    (*event)(this, FSocket.get());
    // The handler has freed the socket, or opened it itself.
    if (watch.Gone() || FSocket->Connected()) return;
  }
  const std::string host = FHost.empty() ? FAddress : FHost;
  const std::string service = FService.empty() ? std::to_string(FPort) : FService;
  if (host.empty())
    throw ESocketError("The socket has neither a host nor an address to connect to");
  if (const os::TSocketError error = FSocket->Connect(host, service)) {
    Fail(host, service, error);
  } else {
    OnConnect(this, FSocket.get());
  }
}

void TClientSocket::Fail(const std::string& host, const std::string& service,
                         const os::TSocketError& error) {
  const std::string code = std::to_string(error.Code);
  const ESocketError failure(Concat("Cannot connect to \"", host, "\", port \"", service,
                                    "\": ", error.Text, " (", code, ")"),
                             error.Code);
  int left = error.Code;
  OnError(this, FSocket.get(), eeConnect, left);
  if (left != 0) throw failure;
}

void TClientSocket::CheckClosed() const {
  if (!FSocket->Connected()) return;
  throw ESocketError(
      Concat("Where the socket connects to cannot be changed while it is open, to \"",
             FHost.empty() ? FAddress : FHost, "\""));
}

void TClientSocket::SetAddress(const std::string& address) {
  CheckClosed();
  FAddress = address;
}

void TClientSocket::SetHost(const std::string& host) {
  CheckClosed();
  FHost = host;
}

void TClientSocket::SetPort(int port) {
  CheckClosed();
  if (port < 0 || port > 65535) {
    throw ESocketError(Concat(std::to_string(port), " is no port: they run from 0 to 65535"));
  }
  FPort = port;
}

void TClientSocket::SetService(const std::string& service) {
  CheckClosed();
  FService = service;
}

void TClientSocket::SetClientType(TClientType clientType) {
  if (clientType == ctBlocking) return;
  throw ESocketError("Client sockets are blocking ones: ClientType cannot be ctNonBlocking");
}

}  // namespace vcl
