// Texts reach the system in UTF-16: what of its narrow entry points the libraries call.
#include <gmock/gmock.h>

#include <cctype>
#include <set>
#include <string>

#include "tests/support/importpatch.h"

namespace {

/// An entry point's name that ends as those do which take texts in the code page. Two of them are
/// what the C++ runtime itself begins with.
bool IsNarrow(const std::string& name) {
  if (name == "GetModuleHandleA" || name == "LoadLibraryA") return false;
  const std::size_t last = name.size() - 1;
  return name.size() > 2 && name[last] == 'A' &&
         std::islower(static_cast<unsigned char>(name[last - 1]));
}

TEST(Imports, OnlyWhatComparesOrShowsBytesIsNarrow) {
  const auto narrow = [](const char* module) {
    std::set<std::string> names;
    FindImport(::GetModuleHandleA(module), [&](const char* name, std::uintptr_t*) {
      if (IsNarrow(name)) names.insert(name);
      return false;
    });
    return names;
  };
  EXPECT_THAT(narrow("qelhost.dll"), testing::IsEmpty());
  // A caption and a class of 256 bytes, a tip of 64, and the procedure that is written back.
  EXPECT_THAT(
      narrow("qel.dll"),
      testing::AllOf(testing::Contains("Shell_NotifyIconA"),
                     testing::IsSubsetOf({"GetClassNameA", "GetWindowTextA", "Shell_NotifyIconA",
                                          "GetVersionExA", "GetDriveTypeA", "SetWindowLongA",
                                          "SetWindowLongPtrA"})));
}

}  // namespace
