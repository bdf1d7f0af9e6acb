// Writing the changes of a query's records into their table.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vcl/db/private/odbcstatement.h"

namespace vcl::odbc {

/// The table that the columns of a query come from.
class TLiveTable {
 public:
  TLiveTable(const TConnection& connection, const std::vector<TColumn>& columns);
  /// False when the columns come from several tables, or from none that the driver could name.
  bool Known() const { return !FTable.empty(); }

  /// Inserts what is not Null; the database gives the rest its defaults. `identityQuery`, unless it
  /// is empty, asks for the key that the database has given the record, which is put into it.
  void Insert(TRecord& record, const std::string& identityQuery);
  /// These find the record by its primary key. Raise EDatabaseError when the query does not have
  /// it, and when the record is not there any more.
  void Update(const TRecord& before, const TRecord& record);
  void Delete(const TRecord& record);

 private:
  bool OneTable() const;
  void FindKey();
  std::string NameOf(std::size_t column) const;
  std::string Where(const TRecord& record, std::vector<TArgument>& arguments) const;
  TStatement& Execute(const std::string& sql, const std::vector<TArgument>& arguments);
  void ChangeOne(const std::string& sql, const std::vector<TArgument>& arguments);

  const TConnection& FConnection;
  const std::vector<TColumn>& FColumns;
  std::string FTable;
  std::vector<std::size_t> FKey;
  /// The last one, as the next is often the same.
  std::unique_ptr<TStatement> FStatement;
};

}  // namespace vcl::odbc
