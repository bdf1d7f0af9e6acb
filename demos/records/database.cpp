// Connecting to the database file, and making its table with samples when there is none.
#include "demos/records/database.h"

#include "vcl/db/odbcquery.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace records {
namespace {

/// Wine passes names on to drivers of the system below, which know no drives; it says what a file
/// is called there. Windows has no such function and needs none.
std::string NameForDriver(const std::string& fileName) {
  using TUnixName = char*(__cdecl*)(const wchar_t*);
  const auto unixName = reinterpret_cast<TUnixName>(reinterpret_cast<void*>(
      ::GetProcAddress(::GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
  if (!unixName) return fileName;
  char* found = unixName(vcl::ToUtf16(vcl::ExpandFileName(fileName)).c_str());
  std::string name = found ? found : fileName;
  ::HeapFree(::GetProcessHeap(), 0, found);
  return name;
}

constexpr const char* Sample[] = {
    "1, 'Ada Bergström', 'Göteborg', '1962-03-14', 1250.5, 1",
    "2, 'Bruno Kowalski', 'Łódź', '1975-11-02', -40, 2",
    "3, 'Chiara Rossi', 'Forlì', '1988-06-30', 310.25, 1",
    "4, 'Dimitra Papadaki', 'Ηράκλειο', '1991-01-09', 0, 3",
    "5, 'Emil Nováček', 'Plzeň', '1957-08-21', 77.8, NULL",
    "6, 'Fatma Yıldız', 'İzmir', '2001-12-24', 9100, 2",
};

void Execute(vcl::TOdbcQuery& query, const std::string& sql) {
  query.SQL()->SetText(sql);
  query.ExecSQL();
}

/// What people are, and what they have paid.
void MakeOtherTables(vcl::TOdbcQuery& query) {
  Execute(query, "CREATE TABLE kinds (id INTEGER PRIMARY KEY, name VARCHAR(12))");
  Execute(query, "INSERT INTO kinds VALUES (1, 'Customer'), (2, 'Supplier'), (3, 'Partner')");
  Execute(
      query,
      "CREATE TABLE payments (id INTEGER PRIMARY KEY, person INTEGER, day DATE, amount DOUBLE)");
  Execute(query, "CREATE INDEX payments_person ON payments (person)");
  Execute(query,
          "INSERT INTO payments (person, day, amount) SELECT id, '2024-02-0' || (1 + id % 9), "
          "100.0 * id FROM people WHERE id < 7 UNION ALL SELECT id, '2024-03-1' || (id % 9), "
          "12.5 * id FROM people WHERE id < 5");
}

}  // namespace

std::string ConnectionString(const std::string& fileName) {
  return "Driver=SQLite3;StepAPI=1;Database=" + NameForDriver(fileName);
}

void MakeTable(const std::string& connectionString) {
  vcl::TOdbcQuery query(nullptr);
  query.SetConnectionString(connectionString);
  const auto there = [&](const char* sql) {
    query.SQL()->SetText(sql);
    query.Open();
    const bool found = !query.IsEmpty();
    query.Close();
    return found;
  };
  if (there("SELECT name FROM sqlite_master WHERE name = 'people'")) {
    if (!there("SELECT name FROM pragma_table_info('people') WHERE name = 'kind'")) {
      query.StartTransaction();
      Execute(query, "ALTER TABLE people ADD COLUMN kind INTEGER");
      MakeOtherTables(query);
      query.Commit();
    }
    return;
  }
  query.StartTransaction();
  Execute(query,
          "CREATE TABLE people (id INTEGER PRIMARY KEY, name VARCHAR(28) NOT NULL UNIQUE,"
          " city VARCHAR(20), born DATE, balance DOUBLE, kind INTEGER)");
  for (const char* values : Sample) {
    Execute(query, vcl::Concat("INSERT INTO people VALUES (", values, ")"));
  }
  MakeOtherTables(query);
  query.Commit();
}

int CountRecords(const std::string& connectionString) {
  vcl::TOdbcQuery query(nullptr);
  query.SetConnectionString(connectionString);
  query.SQL()->SetText("SELECT count(*) FROM people");
  query.Open();
  return query.Fields()[0]->AsInteger();
}

}  // namespace records
