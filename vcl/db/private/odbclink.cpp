// TConnection: a connection of the system's ODBC, its transaction, and the primary key of a table.
#include "vcl/db/private/odbcstatement.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl::odbc {
namespace {

/// Version 3 must be asked for before anything else is.
void Prepare(SQLHANDLE environment) {
  Check(SQLSetEnvAttr(environment, SQL_ATTR_ODBC_VERSION,
                      reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0),
        SQL_HANDLE_ENV, environment);
}

}  // namespace

TConnection::TConnection(const std::string& connectionString)
    : FEnvironment(SQL_HANDLE_ENV, SQL_NULL_HANDLE),
      FConnection(SQL_HANDLE_ENV, (Prepare(FEnvironment), FEnvironment)) {
  const TWideText text = ToWide(connectionString);
  FConnection.Check(SQLDriverConnectW(FConnection, nullptr, Argument(text), SQL_NTS, nullptr, 0,
                                      nullptr, SQL_DRIVER_NOPROMPT));
  FQuote = AskQuote();
}

TConnection::~TConnection() {
  if (FInTransaction) SQLEndTran(SQL_HANDLE_DBC, FConnection, SQL_ROLLBACK);
  SQLDisconnect(FConnection);
}

std::string TConnection::AskQuote() const {
  TWideText quote(8, u'\0');
  SQLSMALLINT bytes = 0;
  if (!SQL_SUCCEEDED(SQLGetInfoW(FConnection, SQL_IDENTIFIER_QUOTE_CHAR, quote.data(),
                                 static_cast<SQLSMALLINT>(quote.size() * sizeof(char16_t)),
                                 &bytes))) {
    return "\"";
  }
  const std::string text = ToUtf8(TWideText(quote.c_str()));
  // A blank says that the database knows no quotes.
  return text == " " ? std::string() : text;
}

std::string TConnection::Quoted(const std::string& name) const {
  std::string text = FQuote;
  for (const char c : name)
    text += FQuote.size() == 1 && c == FQuote[0] ? FQuote + FQuote : std::string(1, c);
  return text + FQuote;
}

void TConnection::SetAutoCommit(bool on) {
  const std::uintptr_t value = on ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF;
  FConnection.Check(SQLSetConnectAttrW(FConnection, SQL_ATTR_AUTOCOMMIT,
                                       reinterpret_cast<SQLPOINTER>(value), SQL_IS_UINTEGER));
}

void TConnection::StartTransaction() {
  if (FInTransaction) throw EDatabaseError("There is a transaction already");
  SetAutoCommit(false);
  FInTransaction = true;
}

void TConnection::EndTransaction(bool commit) {
  if (!FInTransaction) throw EDatabaseError("There is no transaction");
  FConnection.Check(SQLEndTran(SQL_HANDLE_DBC, FConnection, commit ? SQL_COMMIT : SQL_ROLLBACK));
  FInTransaction = false;
  SetAutoCommit(true);
}

std::vector<std::string> PrimaryKey(const TConnection& connection, const std::string& table) {
  const THandle<SQL_HANDLE_STMT> statement(SQL_HANDLE_DBC, connection.Handle());
  const TWideText name = ToWide(table);
  statement.Check(SQLPrimaryKeysW(statement, nullptr, 0, nullptr, 0, Argument(name), SQL_NTS));
  std::vector<std::string> columns;
  constexpr SQLUSMALLINT columnName = 4;
  while (SQL_SUCCEEDED(SQLFetch(statement))) {
    TWideText column(256, u'\0');
    SQLLEN bytes = 0;
    statement.Check(SQLGetData(statement, columnName, SQL_C_WCHAR, column.data(),
                               static_cast<SQLLEN>(column.size()) * SQLLEN{sizeof(char16_t)},
                               &bytes));
    columns.push_back(ToUtf8(TWideText(column.c_str())));
  }
  return columns;
}

}  // namespace vcl::odbc
