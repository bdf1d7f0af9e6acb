// Reading a program's command line, and where its settings are kept.
#include "demos/common/commandline.h"

#include <cstdlib>

#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace demos {

namespace {

TCommandLine& Mutable() {
  static TCommandLine line;
  return line;
}

std::string UsersFolder(const std::string& program) {
  const wchar_t* const data = ::_wgetenv(L"APPDATA");
  return vcl::Concat(data ? vcl::ToUtf8(data) : std::string("."), "\\", program);
}

}  // namespace

const TCommandLine& CommandLine() { return Mutable(); }

bool ReadCommandLine(int argc, char** argv, const std::string& program) {
  TCommandLine& line = Mutable();
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const bool hasNext = i + 1 < argc;
    if (argument == "--settings" && hasNext) {
      line.SettingsFolder = argv[++i];
    } else if (argument == "--screenshot" && hasNext) {
      line.ScreenshotFolder = argv[++i];
    } else if (argument.starts_with("--") || !line.FileName.empty()) {
      return false;
    } else {
      line.FileName = argument;
    }
  }
  if (line.SettingsFolder.empty())
    line.SettingsFolder =
        line.ScreenshotFolder.empty() ? UsersFolder(program) : line.ScreenshotFolder + "\\settings";
  return true;
}

}  // namespace demos
