// Writing a query's changes into its one table: which table and key that is, and the SQL texts.
#include "vcl/db/private/odbclive.h"

#include <algorithm>

#include "vcl/rtl/text.h"

namespace vcl::odbc {

TLiveTable::TLiveTable(const TConnection& connection, const std::vector<TColumn>& columns)
    : FConnection(connection), FColumns(columns) {
  if (!OneTable()) return;
  FTable = std::ranges::find_if(columns, [](const TColumn& c) { return !c.Table.empty(); })->Table;
  FindKey();
}

bool TLiveTable::OneTable() const {
  std::string table;
  for (const TColumn& column : FColumns) {
    if (column.Table.empty()) continue;  // Computed.
    if (!table.empty() && table != column.Table) return false;
    table = column.Table;
  }
  return !table.empty();
}

void TLiveTable::FindKey() {
  for (const std::string& name : PrimaryKey(FConnection, FTable)) {
    const auto found = std::ranges::find_if(
        FColumns, [&](const TColumn& column) { return SameText(column.Base, name); });
    if (found == FColumns.end()) {
      FKey.clear();
      return;
    }
    FKey.push_back(static_cast<std::size_t>(found - FColumns.begin()));
  }
}

std::string TLiveTable::NameOf(std::size_t column) const {
  return FConnection.Quoted(FColumns[column].Base);
}

TStatement& TLiveTable::Execute(const std::string& sql, const std::vector<TArgument>& arguments) {
  if (!FStatement || FStatement->Sql() != sql) {
    FStatement = std::make_unique<TStatement>(FConnection, sql);
  }
  FStatement->Execute(arguments);
  return *FStatement;
}

void TLiveTable::ChangeOne(const std::string& sql, const std::vector<TArgument>& arguments) {
  TStatement& statement = Execute(sql, arguments);
  const int count = statement.RowsAffected();
  statement.Close();
  if (count == 0) {
    throw EDatabaseError(
        Concat("The record is not in table '", FTable, "' any more, or has another key"));
  }
}

void TLiveTable::Insert(TRecord& record, const std::string& identityQuery) {
  std::string names, marks;
  std::vector<TArgument> arguments;
  for (std::size_t i = 0; i < FColumns.size(); ++i) {
    if (FColumns[i].Table.empty() || IsNull(record[i])) continue;
    names += (names.empty() ? "" : ", ") + NameOf(i);
    marks += marks.empty() ? "?" : ", ?";
    arguments.push_back({record[i], FColumns[i].DataType});
  }
  const std::string values =
      names.empty() ? " DEFAULT VALUES" : Concat(" (", names, ") VALUES (", marks, ")");
  Execute(Concat("INSERT INTO ", FConnection.Quoted(FTable), values), arguments).Close();
  if (identityQuery.empty() || FKey.size() != 1 || !IsNull(record[FKey[0]])) return;
  TStatement query(FConnection, identityQuery);
  query.Execute({});
  TRecord identity;
  if (query.Fetch(identity) && !identity.empty()) record[FKey[0]] = identity[0];
}

std::string TLiveTable::Where(const TRecord& record, std::vector<TArgument>& arguments) const {
  if (FKey.empty()) {
    throw EDatabaseError(Concat("Records of table '", FTable,
                                "' cannot be changed: the query has no primary key of it"));
  }
  std::string text;
  for (const std::size_t column : FKey) {
    if (IsNull(record[column])) {
      throw EDatabaseError(Concat("The record cannot be changed: its key '", FColumns[column].Name,
                                  "' is not known before the data is read again"));
    }
    text += Concat(text.empty() ? " WHERE " : " AND ", NameOf(column), " = ?");
    arguments.push_back({record[column], FColumns[column].DataType});
  }
  return text;
}

void TLiveTable::Update(const TRecord& before, const TRecord& record) {
  std::string changes;
  std::vector<TArgument> arguments;
  for (std::size_t i = 0; i < FColumns.size(); ++i) {
    if (FColumns[i].Table.empty() || record[i] == before[i]) continue;
    changes += Concat(changes.empty() ? "" : ", ", NameOf(i), " = ?");
    arguments.push_back({record[i], FColumns[i].DataType});
  }
  if (changes.empty()) return;
  const std::string where = Where(before, arguments);
  ChangeOne(Concat("UPDATE ", FConnection.Quoted(FTable), " SET ", changes, where), arguments);
}

void TLiveTable::Delete(const TRecord& record) {
  std::vector<TArgument> arguments;
  const std::string where = Where(record, arguments);
  ChangeOne(Concat("DELETE FROM ", FConnection.Quoted(FTable), where), arguments);
}

}  // namespace vcl::odbc
