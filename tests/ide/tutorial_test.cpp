// docs/tutorial.md, step by step, as its reader does it: what the tables there say is done with the
// mouse and the keyboard, and has to make the files of docs/examples/tutorial, of which the
// tutorial's program is built.
#include <gmock/gmock.h>

#include <regex>

#include "tests/ide/designerfixture.h"
#include "vcl/rtl/text.h"

namespace ide {
namespace {

using TFields = std::vector<std::string>;

std::string Contents(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// What stands in the text's places that the expression finds.
std::vector<TFields> All(const std::string& text, const char* expression) {
  const std::regex regex(expression);
  std::vector<TFields> found;
  for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at) {
    found.emplace_back(at->begin() + 1, at->end());
  }
  return found;
}

/// Types a file's name into the file dialog that comes, and presses Enter.
std::thread TypeIntoDialog(const std::string& text) {
  return std::thread([text] {
    wchar_t name[16] = L"";
    for (int i = 0; i < 500 && std::wstring(name) != L"#32770"; ++i) {
      ::Sleep(10);
      ::GetClassNameW(::GetForegroundWindow(), name, 16);
    }
    ::Sleep(300);
    Type(text);
    SendKey(VK_RETURN, true);
    SendKey(VK_RETURN, false);
  });
}

class Tutorial : public Designer {
 protected:
  Tutorial() { Window->SetBounds(0, 0, 1500, 1000); }
  // The file dialog has gone into the test's folder, which is to be removed.
  ~Tutorial() override { std::filesystem::current_path(Former); }

  static std::string Doc(const char* name) {
    return Contents(std::filesystem::path(DOCS_FOLDER) / name);
  }
  void TakeTool(const TFields& row) {
    ChoosePage(Window->Palette().Pages(), row[0]);
    TPalettePage& page = *Window->Palette().ActivePage();
    Click(page.ClientToScreen(page.ButtonRect(&FindClass(row[1])).TopLeft() + Point(8, 8)));
  }
  const std::filesystem::path Former = std::filesystem::current_path();
};

TEST_F(Tutorial, EachOfItsStepsMakesThePartsOfItsProgram) {
  const std::string text = Doc("tutorial.md");
  TypeKey('N', {VK_CONTROL});
  const auto properties = All(text, R"(\n\| `(\w+)` \| `([^`]+)` \|)");
  ASSERT_EQ(properties.size(), 4u);
  for (const TFields& row : properties) SetProperty(row[0], row[1]);

  const auto components =
      All(text, R"(\n\| (QEL [^|]*) \| `(\w+)` \| (\d+), (\d+)(?: to (\d+), (\d+))? \| (.*) \|)");
  ASSERT_EQ(components.size(), 5u);
  for (const TFields& row : components) {
    TakeTool(row);
    const TPoint from = At(std::stoi(row[2]), std::stoi(row[3]));
    row[4].empty() ? Click(from) : Drag(from, At(std::stoi(row[4]), std::stoi(row[5])));
    for (const TFields& each : All(row[6], "`([^`]+)` = `([^`]+)`")) SetProperty(each[0], each[1]);
  }

  Click(MiddleOf(Find("More")));
  TPageControl* pages =
      dynamic_cast<TPageControl*>(Window->Inspector().Properties().Parent()->Parent());
  ChoosePage(*pages, "Events");
  const TPoint beside = InLine(LineOf("OnClick"), Grid().Splitter() + 20);
  Click(beside);
  Click(beside);
  ChoosePage(*pages, "Properties");

  std::thread dialog = TypeIntoDialog(File("mainform.dfm"));
  TypeKey('S', {VK_CONTROL});
  dialog.join();
  EXPECT_EQ(Read("mainform.dfm"), Doc("examples/tutorial/mainform.dfm"));

  // The unit, to which its programmer gives what the tutorial shows.
  TypeKey('U', {VK_CONTROL});
  EXPECT_EQ(Read("mainform.h"), Doc("examples/tutorial/mainform.h"));
  const auto bodies = All(text, R"((void TMainForm::[^`]*)```)");
  ASSERT_EQ(bodies.size(), 1u);
  std::string unit = Read("mainform.cpp");
  const std::size_t stub = unit.find("void TMainForm::MoreClick");
  ASSERT_NE(stub, std::string::npos) << unit;
  Write("mainform.cpp", unit.substr(0, stub) + bodies[0][0]);
  TypeKey('U', {VK_CONTROL});
  EXPECT_EQ(Read("mainform.cpp"), Doc("examples/tutorial/mainform.cpp"));
  EXPECT_THAT(text, testing::HasSubstr(Doc("examples/tutorial/main.cpp")));
  EXPECT_THAT(text, testing::HasSubstr(Doc("examples/tutorial/CMakeLists.txt")));
}

}  // namespace
}  // namespace ide
