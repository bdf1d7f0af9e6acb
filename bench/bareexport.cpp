// A loop over ODBC's calls that writes what it fetches.
#include "bench/bareexport.h"

#include <sql.h>
#include <sqlext.h>

#include <charconv>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace bench {

namespace {

void Check(SQLRETURN result, const char* call) {
  if (!SQL_SUCCEEDED(result)) throw std::runtime_error(std::string(call) + " failed");
}

/// A handle of ODBC's, freed with the scope.
class THandle {
 public:
  THandle(SQLSMALLINT kind, SQLHANDLE parent) : FKind(kind) {
    Check(SQLAllocHandle(kind, parent, &FHandle), "SQLAllocHandle");
  }
  ~THandle() { SQLFreeHandle(FKind, FHandle); }
  THandle(const THandle&) = delete;
  THandle& operator=(const THandle&) = delete;
  operator SQLHANDLE() const { return FHandle; }

 private:
  SQLSMALLINT FKind;
  SQLHANDLE FHandle = nullptr;
};

SQLCHAR* Text(const std::string& text) {
  return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.c_str()));
}

struct TRow {
  SQLBIGINT Id = 0;
  char Name[128] = {};
  char City[128] = {};
  SQL_DATE_STRUCT Born{};
  double Balance = 0;
  SQLLEN Length[5] = {};
};

void Bind(SQLHANDLE statement, TRow& row) {
  const auto bind = [&](SQLUSMALLINT column, SQLSMALLINT type, void* data, SQLLEN size) {
    Check(SQLBindCol(statement, column, type, data, size, &row.Length[column - 1]), "SQLBindCol");
  };
  bind(1, SQL_C_SBIGINT, &row.Id, sizeof(row.Id));
  bind(2, SQL_C_CHAR, row.Name, sizeof(row.Name));
  bind(3, SQL_C_CHAR, row.City, sizeof(row.City));
  bind(4, SQL_C_TYPE_DATE, &row.Born, sizeof(row.Born));
  bind(5, SQL_C_DOUBLE, &row.Balance, sizeof(row.Balance));
}

/// The line of a record, as the export writes it.
std::string_view Line(const TRow& row, std::string& line) {
  char number[64];
  const auto add = [&](auto value) {
    line.append(number, std::to_chars(number, number + sizeof(number), value).ptr);
  };
  line.clear();
  add(row.Id);
  line.append(1, ',').append(row.Name).append(1, ',').append(row.City);
  std::snprintf(number, sizeof(number), ",%02d/%02d/%02d,", row.Born.month, row.Born.day,
                row.Born.year % 100);
  line += number;
  add(row.Balance);
  return line += "\r\n";
}

}  // namespace

void BareExport(const std::string& connection, const std::string& query, const std::string& file) {
  const THandle environment(SQL_HANDLE_ENV, nullptr);
  Check(SQLSetEnvAttr(environment, SQL_ATTR_ODBC_VERSION,
                      reinterpret_cast<SQLPOINTER>(std::uintptr_t{SQL_OV_ODBC3}), 0),
        "SQLSetEnvAttr");
  const THandle link(SQL_HANDLE_DBC, environment);
  Check(SQLDriverConnect(link, nullptr, Text(connection), SQL_NTS, nullptr, 0, nullptr,
                         SQL_DRIVER_NOPROMPT),
        "SQLDriverConnect");
  {
    const THandle statement(SQL_HANDLE_STMT, link);
    Check(SQLExecDirect(statement, Text(query), SQL_NTS), "SQLExecDirect");
    TRow row;
    Bind(statement, row);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(std::fopen(file.c_str(), "wb"),
                                                              &std::fclose);
    if (!out) throw std::runtime_error(file + " can't be written");
    std::string line;
    while (SQL_SUCCEEDED(SQLFetch(statement))) {
      const std::string_view text = Line(row, line);
      std::fwrite(text.data(), 1, text.size(), out.get());
    }
  }
  SQLDisconnect(link);
}

}  // namespace bench
