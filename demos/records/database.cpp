// Connecting to the database file, and making its table with samples when there is none.
#include "demos/records/database.h"

#include "vcl/db/odbcquery.h"
#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/streams.h"
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

/// Head and shoulders, as a literal of SQL.
std::string Portrait(vcl::TColor shirt) {
  constexpr int size = 96;
  vcl::TBitmap picture(size, size);
  vcl::TCanvas& canvas = *picture.Canvas();
  const auto fill = [&canvas](vcl::TColor color) {
    canvas.Brush()->SetColor(color);
    canvas.Pen()->SetColor(color);
  };
  fill(vcl::clSilver);
  canvas.FillRect({0, 0, size, size});
  fill(shirt);
  canvas.Ellipse(8, 62, size - 8, 2 * size);
  fill(vcl::clOlive);
  canvas.Ellipse(28, 14, size - 28, 66);
  vcl::TStringStream stream;
  picture.SaveToStream(stream);
  std::string literal = "X'";
  for (const char byte : stream.DataString())
    literal += vcl::IntToHex(static_cast<unsigned char>(byte), 2);
  return literal + "'";
}

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

void MakePeople(vcl::TOdbcQuery& query) {
  Execute(query,
          "CREATE TABLE people (id INTEGER PRIMARY KEY, name VARCHAR(28) NOT NULL UNIQUE,"
          " city VARCHAR(20), born DATE, balance DOUBLE, kind INTEGER, notes TEXT, photo BLOB)");
  for (const char* values : Sample) {
    Execute(query, vcl::Concat("INSERT INTO people (id, name, city, born, balance, kind) VALUES (",
                               values, ")"));
  }
  Execute(query, vcl::Concat("UPDATE people SET notes = 'Met at the fair in Malmö.\nAsks for a "
                             "quote each autumn.', photo = ",
                             Portrait(vcl::clTeal), " WHERE id = 1"));
  Execute(query,
          vcl::Concat("UPDATE people SET photo = ", Portrait(vcl::clMaroon), " WHERE id = 2"));
  MakeOtherTables(query);
}

}  // namespace

std::string ConnectionString(const std::string& fileName) {
  return "Driver=SQLite3;StepAPI=1;Database=" + NameForDriver(fileName);
}

void MakeTable(const std::string& connectionString) {
  vcl::TOdbcQuery query(nullptr);
  query.SetConnectionString(connectionString);
  const auto there = [&](const std::string& sql) {
    query.SQL()->SetText(sql);
    query.Open();
    const bool found = !query.IsEmpty();
    query.Close();
    return found;
  };
  const auto hasColumn = [&](const std::string& name) {
    return there("SELECT name FROM pragma_table_info('people') WHERE name = '" + name + "'");
  };
  const bool made = !there("SELECT name FROM sqlite_master WHERE name = 'people'");
  query.StartTransaction();
  if (made) MakePeople(query);
  if (!hasColumn("kind")) {
    Execute(query, "ALTER TABLE people ADD COLUMN kind INTEGER");
    MakeOtherTables(query);
  }
  if (!hasColumn("photo")) {
    Execute(query, "ALTER TABLE people ADD COLUMN notes TEXT");
    Execute(query, "ALTER TABLE people ADD COLUMN photo BLOB");
  }
  // What the password is stored as; the file is open to all while there is none.
  Execute(query,
          "CREATE TABLE IF NOT EXISTS access (id INTEGER PRIMARY KEY, code VARCHAR(160) NOT NULL)");
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
