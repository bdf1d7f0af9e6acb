// The system's ODBC, of which only the wide entry points are called: the narrow ones depend on code
// pages, and some driver managers lack them.
#pragma once

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
#endif

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <string>
#include <string_view>

namespace vcl::odbc {

/// A text as the entry points take it: UTF-16.
using TWideText = std::u16string;
/// Bytes that are not UTF-8 are taken as ISO 8859-1, so that none is lost.
TWideText ToWide(std::string_view text);
inline SQLWCHAR* Argument(TWideText& text) { return reinterpret_cast<SQLWCHAR*>(text.data()); }
inline SQLWCHAR* Argument(const TWideText& text) { return Argument(const_cast<TWideText&>(text)); }

/// Raises EOdbcError with the driver's messages unless the call has succeeded.
void Check(SQLRETURN result, SQLSMALLINT handleType, SQLHANDLE handle);

/// A handle of ODBC's, freed at the end.
template <SQLSMALLINT Type>
class THandle {
 public:
  THandle(SQLSMALLINT parentType, SQLHANDLE parent) {
    Check(SQLAllocHandle(Type, parent, &FHandle), parentType, parent);
  }
  ~THandle() { SQLFreeHandle(Type, FHandle); }
  THandle(const THandle&) = delete;
  THandle& operator=(const THandle&) = delete;
  operator SQLHANDLE() const { return FHandle; }  // NOLINT(google-explicit-constructor)
  void Check(SQLRETURN result) const { odbc::Check(result, Type, FHandle); }

 private:
  static void Check(SQLRETURN result, SQLSMALLINT type, SQLHANDLE handle) {
    odbc::Check(result, type, handle);
  }
  SQLHANDLE FHandle = SQL_NULL_HANDLE;
};

}  // namespace vcl::odbc
