// Blocks of cells as text, the way spreadsheets put them on the clipboard.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vcl/rtl/api.h"

namespace vcl {

/// Rows of cells.
using TTextBlock = std::vector<std::vector<std::string>>;

/// Tabs between the cells of a row, an end of line behind each row. A cell with a tab, a quote or
/// an end of line stands in double quotes, quotes in it doubled.
VCL_API std::string BlockToText(const TTextBlock& block);
/// The same back; rows may have different numbers of cells. Quotes that do not begin a cell are
/// characters like others, and one that does not end takes all that is left.
VCL_API TTextBlock TextToBlock(std::string_view text);

}  // namespace vcl
