// Copies of a guarded program: this test's own executable, started anew, is one.
#pragma once

#include "tests/support/program.h"
#include "tests/vcl/testinput.h"

/// A running copy with the title and the guard's settings, which ends when its form is shown
/// (unless its title is "Stranger") or with this object.
class TCopy {
 public:
  TCopy(const std::string& title, int instances, const std::string& onExceed)
      : FProgram(L"test_services",
                 L"--copy " + vcl::ToUtf16("\"" + title + "\" " + std::to_string(instances) + " " +
                                           onExceed)) {}
  /// 0 when the guard ended it; else 100, and the number of copies when there were too many. This
  /// program's messages are handled meanwhile, as the copy may wait for its windows.
  DWORD ExitCode() const {
    DWORD code = STILL_ACTIVE;
    testinput::PumpUntil([&] { return (code = FProgram.ExitCode(0)) != STILL_ACTIVE; }, 30000);
    return code;
  }

 private:
  testing_support::TProgram FProgram;
};
