// A database file of SQLite's, reached over ODBC.
#pragma once

#include <string>

#include "tests/data/datatest.h"
#include "vcl/db/odbcquery.h"
#ifdef _WIN32
#include <windows.h>
#endif

/// The file's name as the driver takes it. Wine passes it to a driver of the system below, which
/// knows no drives.
inline std::string NameForDriver(const std::string& name) {
#ifdef _WIN32
  using TUnixName = char*(__cdecl*)(const wchar_t*);
  const auto unixName = reinterpret_cast<TUnixName>(reinterpret_cast<void*>(
      ::GetProcAddress(::GetModuleHandleA("kernel32"), "wine_get_unix_file_name")));
  if (!unixName) return name;
  char* found = unixName(std::filesystem::path(name).c_str());
  const std::string text = found ? found : name;
  ::HeapFree(::GetProcessHeap(), 0, found);
  return text;
#else
  return name;
#endif
}

class TSqliteFile {
 public:
  explicit TSqliteFile(const char* folder) : FFolder(folder) {}
  std::string ConnectionString() const {
    return "Driver=SQLite3;StepAPI=1;Database=" + NameForDriver(FFolder.File("data.db"));
  }
  std::string File(const char* name) const { return FFolder.File(name); }
  void Execute(const std::string& sql) const {
    vcl::TOdbcQuery query(nullptr);
    query.SetConnectionString(ConnectionString());
    query.SQL()->SetText(sql);
    query.ExecSQL();
  }
  /// What a query of its own says, as Dump does.
  std::string Ask(const std::string& sql) const {
    vcl::TOdbcQuery query(nullptr);
    query.SetConnectionString(ConnectionString());
    query.SQL()->SetText(sql);
    query.Open();
    return Dump(query);
  }

 private:
  TDataFolder FFolder;
};
