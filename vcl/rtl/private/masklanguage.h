// What the letters of a mask take, and the case of characters in it.
#pragma once

namespace vcl::mask {

/// True when the mask's letter stands for a cell that the user fills.
bool IsKind(char32_t letter);
/// True for the letters of cells that must be filled.
bool Required(char32_t kind);
/// True when the character may stand in a cell of that kind.
bool Fits(char32_t kind, char32_t character);
/// The other case of Latin, Greek and Cyrillic letters, whatever the user's language is; other
/// characters stay.
char32_t Upper(char32_t character);
char32_t Lower(char32_t character);

}  // namespace vcl::mask
