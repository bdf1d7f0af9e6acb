// The order of rows by the texts of a column: as numbers, dates or texts, whatever all of them are.
#pragma once

#include <string>
#include <vector>

namespace qel {

/// At each place the row that comes there. The texts are compared as numbers, or as dates, when all
/// that are not empty are such. Equal ones keep their order, also when descending; empty ones come
/// first, descending last.
std::vector<int> OrderOf(const std::vector<std::string>& texts, bool descending);

}  // namespace qel
