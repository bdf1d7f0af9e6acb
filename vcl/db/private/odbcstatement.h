// A connection to a database over ODBC, and statements on it.
#pragma once

#include <atomic>
#include <optional>
#include <string>
#include <vector>

#include "vcl/db/fielddefs.h"
#include "vcl/db/odbcconnection.h"
#include "vcl/db/private/odbcapi.h"

namespace vcl::odbc {

/// A value for a parameter and the kind of data that it is.
struct TArgument {
  TFieldValue Value;
  TFieldType DataType;
};

class TConnection {
 public:
  /// Raises EDatabaseError.
  explicit TConnection(const std::string& connectionString);
  ~TConnection();

  SQLHANDLE Handle() const { return FConnection; }
  /// The name as SQL takes it whatever is in it.
  std::string Quoted(const std::string& name) const;
  /// True once an error has shown that the database is not to be reached any more. A thread that
  /// reads may find that out.
  bool Lost() const { return FLost; }
  void Note(const EOdbcError& error) const {
    if (error.ConnectionLost()) FLost = true;
  }
  bool InTransaction() const { return FInTransaction; }
  void StartTransaction();
  void EndTransaction(bool commit);

 private:
  std::string AskQuote() const;
  void SetAutoCommit(bool on);

  THandle<SQL_HANDLE_ENV> FEnvironment;
  THandle<SQL_HANDLE_DBC> FConnection;
  std::string FQuote;
  bool FInTransaction = false;
  mutable std::atomic<bool> FLost = false;
};

/// A column of a result; Table and Base say where it comes from, if from a table, and what it is
/// called there.
struct TColumn {
  std::string Name, Table, Base;
  TFieldType DataType = ftUnknown;
  int Size = 0;
};

class TStatement {
 public:
  TStatement(const TConnection& connection, const std::string& sql);

  const std::string& Sql() const { return FSql; }
  /// Raises EDatabaseError.
  void Execute(const std::vector<TArgument>& arguments);
  /// Executes it for each row of arguments, all of the same kinds, in few round trips where the
  /// driver can; returns how many records that has changed. Raises EOdbcError with the number of
  /// the row, from 1, that was refused, or of those of a round trip.
  int ExecuteMany(const std::vector<std::vector<TArgument>>& rows);
  /// What the executed statement results in; nothing when it is no query.
  const std::vector<TColumn>& Columns() const { return FColumns; }
  /// Reads the next record; false behind the last one, and then `record` stays.
  bool Fetch(TRecord& record);
  /// How many records the executed statement has changed.
  int RowsAffected() const;
  /// Forgets the result.
  void Close();

 private:
  struct TBuffer {
    SQLSMALLINT Type;
    std::vector<char> Bytes;
    SQLLEN Length;
  };
  struct TBound;
  struct TColumnArray;
  void Prepare();
  int ExecuteBlock(const std::vector<std::vector<TArgument>>& rows, std::size_t first,
                   std::size_t count);
  void BindArray(SQLUSMALLINT number, const TColumnArray& column);
  bool AcceptsBlocks(std::size_t count);
  int ExecuteOneByOne(const std::vector<std::vector<TArgument>>& rows);
  void Bind(SQLUSMALLINT number, const TArgument& argument, TBound& bound);
  /// The connection learns of what fails.
  template <class Call>
  void Noting(const Call& call) const {
    try {
      call();
    } catch (const EOdbcError& error) {
      FConnection.Note(error);
      throw;
    }
  }
  void Describe();
  TColumn DescribeColumn(SQLUSMALLINT number);
  std::string Attribute(SQLUSMALLINT number, SQLUSMALLINT attribute) const;
  void BindColumns();
  void Read(std::size_t column, TFieldValue& value);
  std::string ReadLong(std::size_t column);

  const TConnection& FConnection;
  std::string FSql;
  std::optional<THandle<SQL_HANDLE_STMT>> FStatement;
  std::vector<TColumn> FColumns;
  std::vector<TBuffer> FBuffers;
};

/// The names of the columns that tell a table's records apart.
std::vector<std::string> PrimaryKey(const TConnection& connection, const std::string& table);

}  // namespace vcl::odbc
