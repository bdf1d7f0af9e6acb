// Runs the tests, or is a program that a test has started, which says what it was given, or writes
// to a log.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <io.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string_view>

#include "tests/shell/logprogram.h"
#include "tests/shell/transferprogram.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <shellapi.h>

namespace {

/// Each argument from the third on, in UTF-8, with a line's end behind it.
std::string Arguments() {
  int count = 0;
  std::string text;
  wchar_t** arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  for (int i = 3; i < count; ++i) text += vcl::ToUtf8(arguments[i]) + "\r\n";
  ::LocalFree(arguments);
  return text;
}

void Print(std::string_view bytes) {
  std::fwrite(bytes.data(), 1, bytes.size(), stdout);
  std::fflush(stdout);
}

int Play(const std::string_view role) {
  _setmode(_fileno(stdout), _O_BINARY);
  if (role == "arguments") return Print(Arguments()), 7;
  // Its file's name comes from the environment, as its arguments are what it is about.
  if (role == "write") {
    std::ofstream(_wgetenv(L"SHELL_TEST"), std::ios::binary) << Arguments();
    return 8;
  }
  if (role == "utf16") {
    Print(
        std::string_view("\xFF\xFE"
                         "\x0A\x0A\r\0\n\0b\0",
                         10));
    return 0;
  }
  if (role == "mixed") {
    Print(
        "\xEF\xBB\xBF"
        "gr\xC3\xBC");
    ::Sleep(50);
    Print("n\r\n\r\n\x81\nend");
    return 0;
  }
  if (role == "sleep") ::Sleep(60000);
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 8 && std::strcmp(argv[1], "--log") == 0) {
    return RunLogProgram(
        {argv[2], std::stoi(argv[3]), std::stoi(argv[4]), std::stoi(argv[5]), argv[6][0], argv[7]});
  }
  if (argc == 4 && std::strcmp(argv[1], "--move") == 0) MoveForEver(argv[2], argv[3]);
  if (argc == 4 && std::strcmp(argv[1], "--copy") == 0) CopyForEver(argv[2], argv[3]);
  if (argc >= 3 && std::strcmp(argv[1], "--child") == 0) return Play(argv[2]);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
