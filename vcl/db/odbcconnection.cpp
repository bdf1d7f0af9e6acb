// TOdbcConnection: connecting, the transaction, and the queries that share them.
#include "vcl/db/odbcconnection.h"

#include <algorithm>
#include <utility>

#include "vcl/db/odbcquery.h"
#include "vcl/db/private/odbcstatement.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"

namespace vcl {
namespace {

/// A value in a connection string may hold anything in braces.
std::string Braced(const std::string& value) {
  std::string text = "{";
  for (const char c : value) text += c == '}' ? std::string("}}") : std::string(1, c);
  return text + "}";
}

}  // namespace

EOdbcError::~EOdbcError() = default;

const TClass& TOdbcConnection::Class() {
  using T = TOdbcConnection;
  static const TClass info = Describe<T, TComponent>(
      "vcl::TOdbcConnection", "vcl/db/db.h",
      {
          Property<&T::Connected, &T::SetConnected>("Connected").Default(false),
          Property<&T::ConnectionString, &T::SetConnectionString>("ConnectionString").Default(""),
          Property<&T::LoginPrompt, &T::SetLoginPrompt>("LoginPrompt").Default(false),
          Event<&T::AfterConnect>("AfterConnect"),
          Event<&T::AfterDisconnect>("AfterDisconnect"),
          Event<&T::BeforeConnect>("BeforeConnect"),
          Event<&T::BeforeDisconnect>("BeforeDisconnect"),
          Event<&T::OnConnectionLost>("OnConnectionLost"),
          Event<&T::OnLogin>("OnLogin"),
      });
  return info;
}

TOdbcConnection::TOdbcConnection(TComponent* owner) : TComponent(owner) {}

TOdbcConnection::~TOdbcConnection() {
  AnnounceEnd();
  while (!FQueries.empty()) FQueries.back()->LeaveConnection();
}

TOdbcQuery* TOdbcConnection::Queries(int index) const {
  if (index >= 0 && index < QueryCount()) return FQueries[static_cast<std::size_t>(index)];
  throw EListError(Concat("The connection has no query ", std::to_string(index)));
}

// Connecting.

void TOdbcConnection::SetConnectionString(const std::string& text) {
  if (text == FConnectionString) return;
  SetConnected(false);
  FConnectionString = text;
}

void TOdbcConnection::SetConnected(bool connected) {
  if (Loading()) {
    FConnectWhenLoaded = connected;
  } else if (connected) {
    Needed();
  } else {
    FConnectWhenLoaded = false;
    if (Connected()) Disconnect();
  }
}

void TOdbcConnection::Loaded() {
  TComponent::Loaded();
  if (!std::exchange(FConnectWhenLoaded, false)) return;
  try {
    SetConnected(true);
  } catch (...) {
    // A database that cannot be reached must not keep a designer from showing the form.
    if (!Designing()) throw;
    BaseApplication().HandleCurrentException(this);
  }
}

odbc::TConnection& TOdbcConnection::Needed() {
  if (FConnection && FConnection->Lost()) {
    const TWatch watch(this);
    CloseQueries();
    if (watch.Gone()) throw EAbort("The connection was freed by a handler");
    FConnection.reset();
    OnConnectionLost(this);
    if (watch.Gone()) throw EAbort("The connection was freed by a handler");
  }
  if (!FConnection) Connect();
  return *FConnection;
}

void TOdbcConnection::Connect() {
  const TWatch watch(this);
  const auto tell = [&](const TNotifyEvent& event) {
    event(this);
    if (watch.Gone()) throw EAbort("The connection was freed by a handler");
  };
  tell(BeforeConnect);
  const std::string text = FConnectionString + LoginString();
  if (watch.Gone()) throw EAbort("The connection was freed by a handler");
  FConnection = std::make_unique<odbc::TConnection>(text);
  tell(AfterConnect);
}

/// What the user's name and password add to the connection string.
std::string TOdbcConnection::LoginString() {
  if (!FLoginPrompt) return {};
  if (!OnLogin) {
    throw EDatabaseError(Concat("The connection ", Name(),
                                " asks for a name and a password: it "
                                "has no handler of OnLogin"));
  }
  std::string name, password;
  OnLogin(this, name, password);
  return Concat(";UID=", Braced(name), ";PWD=", Braced(password));
}

void TOdbcConnection::CloseQueries() {
  const TWatch watch(this);
  const std::vector<TOdbcQuery*> queries = FQueries;
  for (TOdbcQuery* each : queries) {
    if (watch.Gone()) return;
    if (std::ranges::find(FQueries, each) != FQueries.end()) each->ForgetStatements();
  }
}

void TOdbcConnection::Disconnect() {
  const TWatch watch(this);
  BeforeDisconnect(this);
  if (!watch.Gone()) CloseQueries();
  if (watch.Gone()) return;
  FConnection.reset();
  AfterDisconnect(this);
}

int TOdbcConnection::Execute(const std::string& sql) {
  odbc::TStatement statement(Needed(), sql);
  statement.Execute({});
  return statement.RowsAffected();
}

// The transaction.

/// Databases may end queries that are being read when a transaction begins or ends; so that no
/// record is missing then, all are read before.
void TOdbcConnection::ReadQueriesToEnd() {
  for (TOdbcQuery* each : FQueries) each->ReadToEnd();
}

void TOdbcConnection::StartTransaction() {
  odbc::TConnection& connection = Needed();
  ReadQueriesToEnd();
  connection.StartTransaction();
}

void TOdbcConnection::EndTransaction(bool commit) {
  odbc::TConnection& connection = Needed();
  ReadQueriesToEnd();
  connection.EndTransaction(commit);
}

void TOdbcConnection::Commit() { EndTransaction(true); }
void TOdbcConnection::Rollback() { EndTransaction(false); }
bool TOdbcConnection::InTransaction() const { return FConnection && FConnection->InTransaction(); }

}  // namespace vcl
