// Runs the tests, or is a program that writes to an INI file (see writer::Run) or that a test has
// started (see child::Run).
#include <gmock/gmock.h>

#include <cstring>

#include "tests/vcl/childprogram.h"
#include "tests/vcl/iniwriter.h"

int main(int argc, char** argv) {
  if (argc == 4 && std::strcmp(argv[1], "--ini-writer") == 0) {
    writer::Run(argv[2], argv[3]);
    return 0;
  }
  if (argc >= 3 && std::strcmp(argv[1], "--child") == 0) return child::Run(argc - 2, argv + 2);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
