// Measures of an object inspector's grid, in pixels at 96 dots per inch, and its messages to
// itself.
#pragma once

#include "vcl/rtl/win32.h"

namespace ide::layout {

inline constexpr int TextMargin = 2;    ///< Above and below a line's text.
inline constexpr int TextIndent = 3;    ///< In front of a value.
inline constexpr int SignSize = 9;      ///< Of the sign that unfolds a property.
inline constexpr int NameIndent = 14;   ///< In front of a name: the sign's column.
inline constexpr int DepthIndent = 10;  ///< For each property around.
inline constexpr int SwatchWidth = 14;  ///< Of the sample of a colour, with what lies behind it.
inline constexpr int ButtonWidth = 16;
inline constexpr int LeastColumn = 40;
inline constexpr int SplitterReach = 3;  ///< How near the mouse must be to take the splitter.

/// The selected value is to be edited once the press of the mouse is over.
inline constexpr UINT MessageEditValue = WM_APP + 1;
/// A value was refused: the error is raised where the application shows it.
inline constexpr UINT MessageShowError = WM_APP + 2;

}  // namespace ide::layout
