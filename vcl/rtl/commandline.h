// Command lines as the system's programs take them apart.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "vcl/rtl/api.h"

namespace vcl {

/// The argument as a part of a command line: in quotes where it is empty or has blanks or quotes,
/// with backslashes before the quotes, as the system's CommandLineToArgvW and C programs read it.
VCL_API std::string QuoteArgument(std::string_view argument);
/// A program's name and its arguments as a command line. The name stands in quotes always: what
/// reads it knows no backslashes in it, and a name cannot hold quotes.
VCL_API std::string CommandLine(std::string_view program, std::span<const std::string> arguments);

}  // namespace vcl
