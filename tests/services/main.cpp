// Runs the tests, or what a test starts this program anew for.
#include <gmock/gmock.h>

#include <cstring>

#include "tests/services/copy.h"

int main(int argc, char** argv) {
  if (argc == 6 && std::strcmp(argv[1], "--copy") == 0) return RunCopy(argv + 2);
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
