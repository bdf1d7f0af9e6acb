// What the tests' program is when a test has started it as another program.
#pragma once

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

#include <shellapi.h>

namespace child {

/// Writes its arguments in UTF-8, each behind its length.
inline int PrintArguments() {
  int count = 0;
  wchar_t** arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  for (int i = 3; i < count; ++i) {
    const std::string text = vcl::ToUtf8(arguments[i]);
    std::printf("%u:", static_cast<unsigned>(text.size()));
    std::fwrite(text.data(), 1, text.size(), stdout);
  }
  ::LocalFree(arguments);
  return 0;
}

/// Copies its input to its output.
inline int Echo() {
  char buffer[4096];
  while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, stdin)) {
    std::fwrite(buffer, 1, count, stdout);
  }
  return 0;
}

inline int Run(int argc, char** argv) {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  const std::string_view what = argv[0];
  if (what == "arguments") return PrintArguments();
  if (what == "echo") return Echo();
  if (what == "flood") {
    const std::string line(1000, 'x');
    for (int i = 0; i < std::atoi(argv[1]); ++i) std::fwrite(line.data(), 1, line.size(), stdout);
    return 0;
  }
  if (what == "sleep") {
    std::fputs("ready", stdout);
    std::fflush(stdout);
    ::Sleep(60000);
    return 0;
  }
  if (what == "environment" && argc == 2) {
    const char* value = std::getenv(argv[1]);
    std::fputs(value ? value : "(none)", stdout);
    return 0;
  }
  std::fputs("one ", stdout);
  std::fflush(stdout);
  std::fputs("two ", stderr);
  return 7;
}

}  // namespace child
