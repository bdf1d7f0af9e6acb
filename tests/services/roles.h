// What this test's own executable does as another program.
#pragma once

#include <string>
#include <vector>

#include "tests/support/program.h"

/// Plays a role and returns the process's exit code.
int PlayRole(const std::string& role, const std::vector<std::string>& arguments);

/// Another program that plays a role until it ends or this object does.
class TRole : public testing_support::TProgram {
 public:
  explicit TRole(const std::string& role, const std::string& arguments = {})
      : TProgram(L"test_services", L"--role " + vcl::ToUtf16(role + " " + arguments)) {}
};
