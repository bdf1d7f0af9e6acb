// Base64 (RFC 2045, 6.8): bytes to letters and back.
#pragma once

#include <cstddef>

#include "qel/core/api.h"

namespace qel {

/// The letters that so many bytes become.
constexpr std::size_t Base64Size(std::size_t count) { return (count + 2) / 3 * 4; }

/// Writes Base64Size(count) letters: four for each group of three bytes; one or two bytes that are
/// left are filled up with "=".
QEL_API void EncodeBase64(const unsigned char* bytes, std::size_t count, char* text);

/// Decodes the whole groups of four letters that the text begins with, up to the first group that
/// has anything but the 64 letters in it, padding included. Returns the number of these groups;
/// each has become three bytes.
QEL_API std::size_t DecodeBase64Groups(const char* text, std::size_t count, unsigned char* bytes);

}  // namespace qel
