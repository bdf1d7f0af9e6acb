// Uuencoded files in texts, found and decoded.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "qel/core/api.h"

namespace qel {

struct TUUFile {
  std::string Name, Data;
};

/// Takes the files out of a text, from the lines "begin 644 name" to "end". One that has no end, or
/// a line that is none of its code, stays in the text.
QEL_API std::vector<TUUFile> TakeUUFiles(std::string& text);

/// Decodes a body that is one file; with or without the lines that begin and end it.
QEL_API std::string DecodeUUText(std::string_view text);

}  // namespace qel
