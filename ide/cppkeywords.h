// The words that C++ keeps for itself.
#pragma once

#include <string_view>

namespace ide {

/// True for a word that no name in C++ can be.
bool IsCppKeyword(std::string_view name);

}  // namespace ide
