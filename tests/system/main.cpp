// Runs the tests, or is a program that a test has started: see child::Run.
#include <gmock/gmock.h>

#include <cstring>

#include "tests/system/childprogram.h"

int main(int argc, char** argv) {
  if (argc >= 3 && std::strcmp(argv[1], "--child") == 0) return child::Run(argc - 2, argv + 2);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
