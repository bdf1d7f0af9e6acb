// TOdbcQuery: the records that an SQL query of any database with an ODBC driver results in.
#pragma once

#include <memory>
#include <string>

#include "vcl/db/dataset.h"
#include "vcl/db/params.h"
#include "vcl/rtl/strings.h"

namespace vcl {

class TOdbcConnection;

namespace odbc {
class TConnection;
class TForwardRows;
class TLiveTable;
class TStatement;
struct TArgument;
}  // namespace odbc

/// Executes an SQL text over ODBC and, where it is a query, moves through its records.
///
/// Records are read as they are asked for. All that were read stay in memory, so that one can move
/// back; a unidirectional query keeps only the current one and, once it has turned out to be long,
/// some hundreds that a thread reads ahead, so that millions of records need no more memory than a
/// thousand. (A driver may collect them on its own; SQLite's does not with "StepAPI=1" in the
/// connection string.)
///
/// A query that has not been read to its end may keep others from writing, as it does with SQLite;
/// RecordCount reads all of one that is not unidirectional.
///
/// Parameters that are named as fields of MasterSource's data set have the values of its current
/// record, and the query is executed again when these change.
///
/// The query has a connection of its own, by its ConnectionString, unless Connection is one that
/// several share. It is made when it is needed first (see TOdbcConnection). What ODBC refuses
/// raises EOdbcError.
class VCL_API TOdbcQuery : public TDataSet {
 public:
  explicit TOdbcQuery(TComponent* owner);
  ~TOdbcQuery() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TOdbcConnection* Connection() const { return FLinked; }
  /// The connection that the query shares with others; null for its own. A change closes the query.
  void SetConnection(TOdbcConnection* connection);
  const std::string& ConnectionString() const;
  /// That of its own connection, as the driver manager takes it: "Driver=...;Database=..." or
  /// "DSN=...". A change disconnects.
  void SetConnectionString(const std::string& text);
  bool Connected() const;
  /// Raises EDatabaseError while the query is open.
  void SetConnected(bool connected);
  /// The text that is executed; a change closes the query.
  TStrings* SQL() const { return FSQL.get(); }
  void SetSQL(const TStrings* sql) { FSQL->Assign(sql); }
  /// One for each ":name" in the SQL.
  TParams* Params() const { return FParams.get(); }
  void SetParams(const TParams* params) { FParams->Assign(params); }
  TParam* ParamByName(std::string_view name) const { return FParams->ParamByName(name); }
  /// Records can be changed where the query's columns are of one table: posted records are written
  /// into it at once. To change or delete one, its table's primary key must be among the columns.
  /// What the database fills in on its own is seen after Refresh. A query that is not
  /// unidirectional is read to its end before anything is changed.
  bool RequestLive() const { return FRequestLive; }
  void SetRequestLive(bool requestLive);
  /// Moves forward only. RecordCount is -1, and inserted records are not seen again once they have
  /// been left, unless the database itself shows them to a query that is running.
  bool UniDirectional() const { return FUniDirectional; }
  void SetUniDirectional(bool uniDirectional);
  bool IsUniDirectional() const override { return FUniDirectional; }
  bool CanModify() const override;
  /// A query for the key that the database has given the record inserted last, such as
  /// "SELECT last_insert_rowid()". Without one, such a record cannot be changed before Refresh.
  const std::string& IdentityQuery() const { return FIdentityQuery; }
  void SetIdentityQuery(const std::string& sql) { FIdentityQuery = sql; }

  /// Executes what is no query, and returns how many records it has changed.
  int ExecSQL();
  /// Executes what is no query once for each row, which has a value for each of Params in their
  /// order, in few round trips where the driver can; returns how many records that has changed.
  /// Where one row is refused, none of them has changed anything. Raises EDatabaseError with the
  /// number of the row, from 1, or with those of a round trip where the driver does not say which.
  int ExecuteBatch(const std::vector<TRecord>& rows);
  /// Until the transaction ends, what is posted here can be rolled back. These read all records of
  /// a query that is open; they raise EDatabaseError for a unidirectional one that has not been
  /// read to its end.
  void StartTransaction();
  void Commit();
  void Rollback();
  bool InTransaction() const;

 protected:
  void Notification(TComponent* component, TOperation operation) override;
  TRecordStore& InternalOpen() override;
  TRecord MasterValues() override;
  void InternalFollow() override { InternalRefresh(); }
  void InternalClose() override;
  void InternalFirst() override;
  void InternalRefresh() override;
  void InternalInsert(TRecord& record) override;
  void InternalUpdate(const TRecord& before, TRecord& record) override;
  void InternalDelete(const TRecord& record) override;

 private:
  friend class TOdbcConnection;
  TOdbcConnection& Used() const { return FLinked ? *FLinked : *FOwn; }
  odbc::TConnection& Needed();
  void ForgetStatements();
  void LeaveConnection();
  void UseConnection(TOdbcConnection* connection);
  std::vector<odbc::TArgument> BatchRow(const TRecord& row, std::size_t number) const;
  void SQLChanged();
  void Prepare();
  void Pause();
  void ReadToEnd();
  void PrepareChange();
  void Execute();
  std::vector<TField*> MasterFieldsOfParams() const;
  void DefineFields();
  std::string FreeName(const std::string& name) const;

  std::string FIdentityQuery, FPrepared;
  std::unique_ptr<TStringList> FSQL;
  std::unique_ptr<TParams> FParams;
  bool FRequestLive = false;
  bool FUniDirectional = false;
  std::unique_ptr<TOdbcConnection> FOwn;
  TOdbcConnection* FLinked = nullptr;
  std::unique_ptr<odbc::TStatement> FStatement;
  std::unique_ptr<odbc::TLiveTable> FLive;
  std::unique_ptr<TRecordStore> FRows;
};

}  // namespace vcl
