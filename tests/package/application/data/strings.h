// As core/api.h.
#pragma once

inline constexpr const char* OwnStrings = "the application's";
