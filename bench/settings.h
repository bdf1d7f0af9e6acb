// Settings in the registry and in INI files.
#pragma once

namespace bench {

/// Prints their tables.
void Settings();

}  // namespace bench
