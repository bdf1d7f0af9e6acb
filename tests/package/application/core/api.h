// A header of the application's own, in a folder of its own; no header of a library hides it.
#pragma once

inline constexpr const char* OwnApi = "the application's";
