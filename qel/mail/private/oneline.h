// Values that go into one line of the dialogue with a server, or of a mail's header.
#pragma once

#include <string>
#include <string_view>

namespace qel {

/// True when the value has a CR, LF or NUL: what stands behind it would be a line of its own, a
/// command or a field that nobody has written.
bool BreaksLine(std::string_view value);

/// Raises EQELMailError when the value, which the name stands for, breaks its line.
void CheckOneLine(const char* name, const std::string& value);

}  // namespace qel
