// Quoting of arguments, by the rules of CommandLineToArgvW.
#include "vcl/rtl/commandline.h"

#include "vcl/rtl/text.h"

namespace vcl {

std::string QuoteArgument(std::string_view argument) {
  const bool plain =
      !argument.empty() && argument.find_first_of(" \t\n\v\"") == std::string_view::npos;
  if (plain) return std::string(argument);
  std::string quoted = "\"";
  std::size_t backslashes = 0;  // In a row, up to here.
  for (const char c : argument) {
    // Only before a quote does a backslash stand for another character than itself.
    if (c == '"') quoted.append(backslashes + 1, '\\');
    backslashes = c == '\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  quoted.append(backslashes, '\\');
  return quoted + '"';
}

std::string CommandLine(std::string_view program, std::span<const std::string> arguments) {
  std::string line = Concat("\"", program, "\"");
  for (const std::string& each : arguments) line += Concat(" ", QuoteArgument(each));
  return line;
}

}  // namespace vcl
