// Masks of file names.
#include "vcl/rtl/filemasks.h"

#include <gtest/gtest.h>

namespace vcl {
namespace {

TEST(FileMasks, MeanNames) {
  const struct {
    const char *Masks, *Name;
    bool Meant;
  } cases[] = {
      {"", "a", true},
      {" ; ", "a.txt", true},
      {"*.*", "Makefile", true},
      {"*", "", true},
      {"*.txt", "READ.TXT", true},
      {"*.txt", "a.txt.bak", false},
      {"*.txt; *.md", "b.md", true},
      {"a?c", "abc", true},
      {"a?c", "ac", false},
      {"a?c", "a😀c", true},
      {"grö*", "GRÖSSE.doc", true},
      {"*a*b*c", "xaxbxbxc", true},
      {"*a*b*c", "xaxcxb", false},
      {"[x]^@", "[X]^@", true},
      {"[x]^@", "{x}~`", false},
      {"a*", "b", false},
      {"**", "anything", true},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(TFileMasks(each.Masks).Matches(each.Name), each.Meant)
        << each.Masks << " " << each.Name;
  }
  const std::string many(100000, 'a');
  EXPECT_FALSE(TFileMasks("*a*a*a*a*a*a*a*b").Matches(many)) << "and soon";
}

}  // namespace
}  // namespace vcl
