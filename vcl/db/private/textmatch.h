// Texts that begin with another one, or follow a pattern.
#pragma once

#include <string_view>

namespace vcl {

/// True when the text begins with that one; where case is ignored, by the user's language.
bool BeginsWith(std::string_view text, std::string_view beginning, bool ignoreCase);
/// True when the text follows a pattern, in which "%" stands for any characters and "_" for one.
bool MatchesPattern(std::string_view text, std::string_view pattern, bool ignoreCase);

}  // namespace vcl
