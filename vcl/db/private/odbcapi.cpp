// Texts for ODBC in UTF-16, and its failures as exceptions.
#include "vcl/db/private/odbcapi.h"

#include <algorithm>

#include "vcl/db/odbcconnection.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace vcl::odbc {

TWideText ToWide(std::string_view text) { return ToUtf16Units(text, TStrayByte::Latin1); }

void Check(SQLRETURN result, SQLSMALLINT handleType, SQLHANDLE handle) {
  if (SQL_SUCCEEDED(result) || result == SQL_NO_DATA) return;
  std::string message, firstState;
  int firstError = 0;
  TWideText state(5, u' '), text(1024, u' ');
  SQLINTEGER native = 0;
  SQLSMALLINT length = 0;
  for (SQLSMALLINT record = 1; SQL_SUCCEEDED(
           SQLGetDiagRecW(handleType, handle, record, Argument(state), &native, Argument(text),
                          static_cast<SQLSMALLINT>(text.size()), &length));
       ++record) {
    const auto kept = std::min(static_cast<std::size_t>(std::max<int>(length, 0)), text.size() - 1);
    if (message.empty()) {
      firstState = ToUtf8(state);
      firstError = native;
    } else {
      message += "\r\n";
    }
    message += Concat(ToUtf8(text.substr(0, kept)), " (SQLSTATE ", ToUtf8(state), ")");
  }
  if (message.empty()) message = Concat("ODBC has failed with ", std::to_string(result));
  throw EOdbcError(message, firstState, firstError);
}

}  // namespace vcl::odbc
