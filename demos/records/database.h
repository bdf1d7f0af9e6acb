// The database file of the program, reached over ODBC.
#pragma once

#include <string>

namespace records {

/// What connects to an SQLite file, which is made when it is not there.
std::string ConnectionString(const std::string& fileName);

/// Makes the table and some records, unless it is there. Raises vcl::EDatabaseError.
void MakeTable(const std::string& connectionString);

/// How many records the table has.
int CountRecords(const std::string& connectionString);

}  // namespace records
