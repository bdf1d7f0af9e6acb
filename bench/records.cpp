// Measuring the export of records against the database's own shell.
#include "bench/records.h"

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "bench/bareexport.h"
#include "bench/timing.h"
#include "qel/data/Qeltdbascii.h"
#include "vcl/db/odbcquery.h"

namespace bench {

namespace {

constexpr int Count = 250'000;
constexpr int ManyCount = 1'000'000;
constexpr const char* Folder = "/dev/shm/qel-bench-records";

void Run(const std::string& command) {
  if (std::system(command.c_str()) != 0) throw std::runtime_error(command + " failed");
}

/// Largest memory that the process has had, in KiB.
long PeakMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

std::string Table(const char* name, int count) {
  return std::string("CREATE TABLE ") + name +
         " (id INTEGER PRIMARY KEY, name VARCHAR(40) NOT NULL, city VARCHAR(40), born DATE,"
         " balance DOUBLE); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT " +
         std::to_string(count) + ") INSERT INTO " + name +
         " SELECT i, 'Name ' || i, 'City number ' || (i % 1000),"
         " date('1950-01-01', '+' || (i % 20000) || ' days'), i * 1.25 FROM n;";
}

std::string Connection() {
  return std::string("Driver=SQLite3;StepAPI=1;Database=") + Folder + "/data";
}

std::string FileNamed(const char* name) { return std::string(Folder) + "/" + name; }

std::string Contents(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// The records of a table and the component that exports them.
struct TRecords {
  explicit TRecords(const std::string& table) {
    Query.SetConnectionString(Connection());
    Query.SetUniDirectional(true);
    Query.SQL()->SetText("SELECT * FROM " + table);
    Source.SetDataSet(&Query);
    Ascii.SetDataSource(&Source);
    Ascii.SetDelimiter(U',');
    Ascii.SetFilename(FileNamed("ours"));
    for (const char* field : {"id", "name", "city", "born", "balance"}) {
      Ascii.Fields()->Add()->SetDataField(field);
    }
  }
  vcl::TOdbcQuery Query{nullptr};
  vcl::TDataSource Source{nullptr};
  qel::TQELDBAscii Ascii{nullptr};
};

void Read(vcl::TDataSet& data) {
  data.Open();
  while (!data.Eof()) data.Next();
  data.Close();
}

std::string Shell(const std::string& commands) {
  return std::string("cd ") + Folder + " && sqlite3 data " + commands;
}

}  // namespace

void Records() {
  std::filesystem::remove_all(Folder);
  std::filesystem::create_directories(Folder);
  Run(Shell("\"" + Table("records", Count) + Table("many", ManyCount) + "\""));
  {
    TTable table("250,000 records of five columns in a text file, against sqlite3's own shell",
                 "Its start is measured too. Aim: at most 1, which the driver's own work does not "
                 "allow, though a thread of its own does it while records are written.",
                 {"250,000"});
    TRecords records("records");
    const auto shell = [] { Run(Shell("-csv 'SELECT * FROM records' >theirs")); };
    table.Add("TQELDBAscii", {Compare([&] { records.Ascii.DoExport(); }, shell)});
    table.Add("TOdbcQuery, read only", {Compare([&] { Read(records.Query); }, shell)});
  }
  {
    TTable table(
        "250,000 records of five columns in a text file, against a bare loop over the driver",
        "ODBC's calls alone, each column bound, a line written for each fetch: the same "
        "bytes. Aim: at most 1.15.",
        {"250,000"});
    TRecords records("records");
    const auto bare = [] { BareExport(Connection(), "SELECT * FROM records", FileNamed("bare")); };
    table.Add("TQELDBAscii", {Compare([&] { records.Ascii.DoExport(); }, bare)});
    if (Contents(FileNamed("ours")) != Contents(FileNamed("bare"))) {
      throw std::runtime_error("The two files differ");
    }
  }
  const long before = PeakMemory();
  TRecords("many").Ascii.DoExport();
  std::printf("\nExporting a million records has taken %ld KiB of memory more.\n",
              PeakMemory() - before);
  std::filesystem::remove_all(Folder);
}

}  // namespace bench
