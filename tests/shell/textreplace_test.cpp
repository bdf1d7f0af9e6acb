// TQELTextReplace in real files, and the patterns that it takes.
#include "qel/shell/Qelttextreplace.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/support/importpatch.h"
#include "tests/support/program.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using namespace std::string_literals;

class TextReplace : public testing::Test {
 protected:
  TextReplace() { vcl::Application(); }
  std::string Name(const std::string& file) const { return (Folder.Path / file).string(); }
  void Write(const std::string& file, const std::string& bytes) const {
    std::ofstream(Folder.Path / file, std::ios::binary) << bytes;
  }
  std::string Read(const std::string& file) const {
    std::ifstream in(Folder.Path / file, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
  }
  bool Do(const std::string& find, const std::string& by,
          const std::vector<std::string>& files = {"a"}) {
    Replace.SetFind(find);
    Replace.SetReplaceBy(by);
    Replace.Files()->Clear();
    for (const std::string& each : files) Replace.Files()->Add(Name(each));
    return Replace.Execute();
  }
  /// What becomes of a text in a file.
  std::string In(const std::string& bytes, const std::string& find, const std::string& by) {
    Write("a", bytes);
    EXPECT_TRUE(Do(find, by)) << Replace.LastError();
    return Read("a");
  }

  testing_support::TFolder Folder;
  TQELTextReplace Replace{nullptr};
};

UINT WINAPI WesternCodePage() { return 1252; }

TEST_F(TextReplace, KeepsEncodingsAndLineEnds) {
  const TImportPatch western("qel.dll", "GetACP", &WesternCodePage);
  EXPECT_EQ(In("one\r\ntwo\none", "ONE", "grün"), "grün\r\ntwo\ngrün");
  EXPECT_EQ(Read("a.bak"), "one\r\ntwo\none");
  EXPECT_EQ(In("\xEF\xBB\xBFÄpfel \xFF", "äPFEL", "x"), "\xEF\xBB\xBFx \xFF") << "stray bytes, too";
  EXPECT_EQ(In("\xFF\xFE"s
               "a\0b\0\x3D\xD8\x00\xDE!"s,
               "b", "ü"),
            "\xFF\xFE"s
            "a\0\xFC\0\x3D\xD8\x00\xDE!"s);
  EXPECT_EQ(In("\xFE\xFF"s
               "\0a\0b"s,
               "a", "😀"),
            "\xFE\xFF"s
            "\xD8\x3D\xDE\x00\0b"s);
  EXPECT_EQ(In("caf\xE9 one", "one", "ü"), "caf\xE9 \xFC") << "the system's code page";
  EXPECT_EQ(In("zeros\0one"s, "one", "two"), "zeros\0one"s) << "no text";
  EXPECT_EQ(In("", "one", "two"), "");
  Write("a", "caf\xE9 one");
  EXPECT_FALSE(Do("one", "☃"));
  EXPECT_THAT(Replace.LastError(), HasSubstr("☃"));
  EXPECT_EQ(Read("a"), "caf\xE9 one") << "not by halves";
}

TEST_F(TextReplace, WordsCasesAndPatterns) {
  Replace.SetOptions({roMatchCase});
  EXPECT_EQ(In("One one", "one", "1"), "One 1");
  Replace.SetOptions({roWholeWords});
  EXPECT_EQ(In("cat concat cat_ Über catÜ cat", "cat", "dog"), "dog concat cat_ Über catÜ dog");
  Replace.SetOptions({roRegularExpression});
  const struct {
    const char *Text, *Pattern, *By, *Result;
  } cases[] = {
      {"2026-11-23", "(\\d+)-(\\d+)-(\\d+)", "$3.$2.$1", "23.11.2026"},
      {"aaa", "a{2}", "b", "ba"},
      {"a1b22c", "[0-9]+", "<$0>", "a<1>b<22>c"},
      {"x=1, y=2", "(x|y|z)=(\\d)", "$2=$1", "1=x, 2=y"},
      {"<b>one</b><b>two</b>", "<b>(.*?)</b>", "[$1]", "[one][two]"},
      {"<b>one</b><b>two</b>", "<b>(.*)</b>", "[$1]", "[one</b><b>two]"},
      {"one\r\ntwo\r\n", "$", ";", "one;\r\ntwo;\r\n;"},
      {"one\ntwo", "^", "> ", "> one\n> two"},
      {"ÄÖ äö", "[äö]+", "x", "x x"},
      {"a.b", "\\.", "$$", "a$b"},
      {"foo foobar", "\\bfoo\\b", "x", "x foobar"},
      {"abcabc", "(?:ab|a)(c|bc)", "$1!", "c!c!"},
      {"xay", "x(b*)*a|y", "-", "--"},
      {"ac abc abbc", "ab??c", "-", "- - abbc"},
      {"{x}", "{x}", "y", "y"},
      {"tab\there", "\\t", " ", "tab here"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(In(each.Text, each.Pattern, each.By), each.Result) << each.Pattern;
  }
  for (const char* wrong :
       {"(", ")", "*a", "[a", "a{3,1}", "\\", "[z-a]", "a{2000}", "((a{900}){900}){900}"}) {
    EXPECT_FALSE(Do(wrong, "")) << wrong;
    EXPECT_THAT(Replace.LastError(), HasSubstr("no pattern")) << wrong;
  }
}

TEST_F(TextReplace, ATextThatTakesTooLongIsLeft) {
  Replace.SetOptions({roRegularExpression});
  Replace.SetMaxSteps(100000);
  Write("a", std::string(50, 'a'));
  Write("b", "xy");
  EXPECT_FALSE(Do("(a*)*b|x", "-", {"a", "b"}));
  EXPECT_THAT(Replace.LastError(), HasSubstr("too many steps"));
  EXPECT_EQ(Read("b"), "-y") << "the others go on";
  // A long line needs no room on the stack.
  Replace.SetMaxSteps(50'000'000);
  EXPECT_EQ(In(std::string(200000, 'a') + "b", "(a|b)*", "-"), "--");
}

TEST_F(TextReplace, AsksForEachHit) {
  Write("a", "x1 x2\nx3 x4");
  Write("b", "x5");
  std::string asked;
  Replace.OnReplace = [&](vcl::TObject*, const std::string& file, int line,
                          const std::string& found, std::string& by, TQELReplaceAction& action) {
    asked += vcl::ExtractFileName(file) + std::to_string(line) + found + " ";
    if (asked.size() < 6) action = raSkip;
    if (asked.size() > 8) action = raAll;
    by += "!";
  };
  EXPECT_TRUE(Do("x", "y", {"a", "b"}));
  EXPECT_EQ(asked, "a1x a1x a2x ");
  EXPECT_EQ(Read("a"), "x1 y!2\ny!3 y4");
  EXPECT_EQ(Read("b"), "y5") << "without asking";
  EXPECT_EQ(Replace.Hits(), 4);
  Replace.OnReplace = [](vcl::TObject*, const std::string&, int line, const std::string&,
                         std::string&, TQELReplaceAction& action) {
    if (line == 2) action = raStop;
  };
  EXPECT_FALSE(Do("y", "z", {"a", "b"}));
  EXPECT_TRUE(Replace.Aborted());
  EXPECT_EQ(Replace.LastError(), "");
  EXPECT_EQ(Read("a"), "x1 y!2\ny!3 y4") << "whole or not at all";
  auto* other = new TQELTextReplace(nullptr);
  other->SetFind("x");
  other->Files()->Add(Name("a"));
  other->OnReplace = [&](vcl::TObject*, const std::string&, int, const std::string&, std::string&,
                         TQELReplaceAction&) { delete std::exchange(other, nullptr); };
  EXPECT_FALSE(other->Execute());
  EXPECT_EQ(Read("a"), "x1 y!2\ny!3 y4");
}

TEST_F(TextReplace, PreviewsAndRefusals) {
  Write("a", "one");
  Write("b", "one one");
  Replace.SetPreview(true);
  EXPECT_TRUE(Do("one", "two", {"a", "b"}));
  EXPECT_EQ(Replace.Hits(), 3);
  EXPECT_EQ(Replace.ChangedFiles(), 2);
  EXPECT_EQ(Read("b"), "one one");
  EXPECT_FALSE(fs::exists(Folder.Path / "a.bak"));
  Replace.SetPreview(false);
  Replace.SetBackupExtension("");
  ::SetFileAttributesW((Folder.Path / "a").c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_FALSE(Do("one", "two", {"a", "none", "b"}));
  EXPECT_EQ(Read("a"), "one");
  EXPECT_EQ(Read("b"), "two two") << "the others go on";
  EXPECT_FALSE(fs::exists(Folder.Path / "b.bak"));
  EXPECT_FALSE(Do("one", "two", {"a"}));
  EXPECT_THAT(Replace.LastError(), HasSubstr(Name("a")));
  ::SetFileAttributesW((Folder.Path / "a").c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_FALSE(Do("", "two"));
  EXPECT_EQ(Replace.LastError(), "There is no text to look for");
}

}  // namespace
}  // namespace qel
