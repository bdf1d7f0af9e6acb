// What the program was started with.
#pragma once

#include <string>

namespace notes {

struct TCommandLine {
  std::string FileName;          ///< To open; empty for none.
  std::string SettingsFolder;    ///< Where settings and unsaved text are kept.
  std::string ScreenshotFolder;  ///< Where pictures go instead of a run; empty for a run.
};

/// Reads the arguments of `main`; false when they make no sense. The settings are the user's own
/// (%APPDATA%\Notes) unless another folder is given.
bool ReadCommandLine(int argc, char** argv);
const TCommandLine& CommandLine();

}  // namespace notes
