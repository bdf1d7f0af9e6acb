// What GMime needs for the same.
#pragma once

#include <string>

namespace bench {

/// Whether it is installed.
bool HasGMime();
/// Reads the mail and decodes all its parts into memory. Raises std::runtime_error for none, as the
/// others do.
void ReadWithGMime(const std::string& mail);
std::string EncodedByGMime(const std::string& bytes);
std::string DecodedByGMime(const std::string& letters);

}  // namespace bench
