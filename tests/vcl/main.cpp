// Runs the tests, or is a program that writes to an INI file: see writer::Run.
#include <gmock/gmock.h>

#include <cstring>

#include "tests/vcl/iniwriter.h"

int main(int argc, char** argv) {
  if (argc == 4 && std::strcmp(argv[1], "--ini-writer") == 0) {
    writer::Run(argv[2], argv[3]);
    return 0;
  }
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
