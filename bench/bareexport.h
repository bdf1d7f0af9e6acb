// The export of records that the driver's own calls alone make.
#pragma once

#include <string>

namespace bench {

/// Writes the query's five columns (number, text, text, date, real) to the file, a line a record,
/// through calls of ODBC in one loop. Raises std::runtime_error for what fails.
void BareExport(const std::string& connection, const std::string& query, const std::string& file);

}  // namespace bench
