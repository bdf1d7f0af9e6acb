// What a program was started with.
#pragma once

#include <string>

namespace demos {

struct TCommandLine {
  std::string FileName;          ///< To open; empty for none.
  std::string SettingsFolder;    ///< Where the program keeps what it remembers.
  std::string ScreenshotFolder;  ///< Where pictures go instead of a run; empty for a run.
};

/// Reads the arguments of `main`; false when they make no sense. The settings are the user's own
/// (%APPDATA%\program) unless another folder is given.
bool ReadCommandLine(int argc, char** argv, const std::string& program);
const TCommandLine& CommandLine();

}  // namespace demos
