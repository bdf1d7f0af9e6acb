// TOdbcConnection: a connection to a database over ODBC, which any number of queries share.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vcl/db/dbtypes.h"
#include "vcl/rtl/component.h"

namespace vcl {

class TOdbcQuery;
namespace odbc {
class TConnection;
}

/// What ODBC refuses: the driver's messages, with the state and the number of the first one.
class VCL_API EOdbcError : public EDatabaseError {
 public:
  EOdbcError(const std::string& message, std::string sqlState, int nativeError)
      : EDatabaseError(message), FSqlState(std::move(sqlState)), FNativeError(nativeError) {}
  ~EOdbcError() override;

  /// Five characters by the standard (ISO/IEC 9075), such as "23000" for a constraint that is
  /// violated; empty when the driver gives none.
  const std::string& SqlState() const { return FSqlState; }
  /// The database's own number of the error.
  int NativeError() const { return FNativeError; }
  /// True when the database is not to be reached any more.
  bool ConnectionLost() const { return FSqlState.starts_with("08"); }

 private:
  std::string FSqlState;
  int FNativeError;
};

/// Sender, the user's name, the password.
using TOdbcLoginEvent = TEvent<TObject*, std::string&, std::string&>;
template <>
inline constexpr TEventText EventText<TOdbcLoginEvent>{
    "TOdbcLoginEvent", "vcl::TObject* sender, std::string& userName, std::string& password"};

/// A connection, made when it is needed first, which stays until Connected or ConnectionString says
/// otherwise. Its queries see each other's changes and share its transaction. What ODBC refuses
/// raises EOdbcError.
///
/// Where an error shows that the database is not to be reached any more, the connection and its
/// queries are closed when it is next to be used, which connects anew; a transaction is lost then.
class VCL_API TOdbcConnection : public TComponent {
 public:
  explicit TOdbcConnection(TComponent* owner);
  /// Rolls a transaction back; its queries are closed and without a connection from then on.
  ~TOdbcConnection() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& ConnectionString() const { return FConnectionString; }
  /// As the driver manager takes it: "Driver=...;Database=..." or "DSN=...". A change disconnects.
  void SetConnectionString(const std::string& text);
  bool Connected() const { return FConnection != nullptr; }
  /// Connects or disconnects, which closes the queries and rolls a transaction back; while a form
  /// file is being read, once that is complete.
  void SetConnected(bool connected);
  bool LoginPrompt() const { return FLoginPrompt; }
  /// True: OnLogin is asked for the name and the password of the user. Raises EDatabaseError, when
  /// it connects, without a handler.
  void SetLoginPrompt(bool prompt) { FLoginPrompt = prompt; }

  /// Executes an SQL text that is no query and has no parameters, and returns how many records it
  /// has changed.
  int Execute(const std::string& sql);
  /// Until the transaction ends, what the queries write can be rolled back. A second one inside is
  /// refused. These read all records of the queries that are open; they raise EDatabaseError for a
  /// unidirectional one that has not been read to its end.
  void StartTransaction();
  void Commit();
  void Rollback();
  bool InTransaction() const;
  int QueryCount() const { return static_cast<int>(FQueries.size()); }
  /// The query at the index from 0, in the order in which they have come. Raises EListError
  /// outside.
  TOdbcQuery* Queries(int index) const;

  /// Before it connects.
  TNotifyEvent BeforeConnect;
  /// It has connected.
  TNotifyEvent AfterConnect;
  /// Before it disconnects.
  TNotifyEvent BeforeDisconnect;
  /// It has disconnected.
  TNotifyEvent AfterDisconnect;
  /// It has turned out that the database is not to be reached any more; the queries are closed.
  TNotifyEvent OnConnectionLost;
  /// LoginPrompt: the handler gives the name and the password.
  TOdbcLoginEvent OnLogin;

 protected:
  void Loaded() override;

 private:
  friend class TOdbcQuery;
  void Connect();
  void Disconnect();
  void CloseQueries();
  void ReadQueriesToEnd();
  void EndTransaction(bool commit);
  std::string LoginString();
  /// The connection, which is made if there is none.
  odbc::TConnection& Needed();

  std::string FConnectionString;
  bool FLoginPrompt = false;
  bool FConnectWhenLoaded = false;
  std::vector<TOdbcQuery*> FQueries;
  std::unique_ptr<odbc::TConnection> FConnection;
};

}  // namespace vcl
