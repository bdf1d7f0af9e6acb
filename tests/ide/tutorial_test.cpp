// docs/tutorial.md, step by step, as its reader does it: what the tables there say is done with the
// mouse and the keyboard, and has to make the files of docs/examples/tutorial, of which the
// tutorial's program is built.
#include <gmock/gmock.h>

#include <regex>

#include "host/rtl/text.h"
#include "ide/inspectorgrid.h"
#include "tests/ide/designerfixture.h"

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

void Type(const std::string& text) {
  for (const wchar_t character : ToUtf16(text)) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    ::SendInput(1, &input, sizeof input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    ::SendInput(1, &input, sizeof input);
  }
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
  /// Clicks the tab with the caption.
  static void ChoosePage(TPageControl& pages, const std::string& caption) {
    for (int i = 0; i < pages.PageCount(); ++i) {
      if (pages.Pages(i)->Caption() != caption) continue;
      RECT tab{};
      ::SendMessageW(pages.Handle(), TCM_GETITEMRECT, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&tab));
      Click(pages.ClientToScreen({static_cast<int>(tab.left) + 10, static_cast<int>(tab.top) + 8}));
    }
    EXPECT_EQ(pages.ActivePage()->Caption(), caption);
  }
  void TakeTool(const TFields& row) {
    ChoosePage(Window->Palette().Pages(), row[0]);
    TPalettePage& page = *Window->Palette().ActivePage();
    Click(page.ClientToScreen(page.ButtonRect(&FindClass(row[1])).TopLeft() + Point(8, 8)));
  }
  TInspectorGrid& Grid() {
    return Window->Inspector().EventsShown() ? Window->Inspector().Events()
                                             : Window->Inspector().Properties();
  }
  TPoint InLine(int row, int x) {
    const TRect line = Grid().RowRect(row);
    return Grid().ClientToScreen({x, (line.Top + line.Bottom) / 2});
  }
  /// Turns the mouse's wheel until the line is seen.
  void BringIntoView(int row) {
    MoveMouse(MiddleOf(&Grid()));
    const auto hidden = [&] {
      const TRect line = Grid().RowRect(row);
      return line.Top < 0 ? 1 : line.Bottom > Grid().ClientHeight() ? -1 : 0;
    };
    for (int turns = 0; hidden() != 0 && turns < 100; ++turns) {
      INPUT wheel{};
      wheel.type = INPUT_MOUSE;
      wheel.mi.dwFlags = MOUSEEVENTF_WHEEL;
      wheel.mi.mouseData = static_cast<DWORD>(hidden() * WHEEL_DELTA);
      ::SendInput(1, &wheel, sizeof wheel);
      Pump();
    }
  }
  int LineOf(const std::string& path) {
    const int row = Grid().IndexOf(path);
    EXPECT_GE(row, 0) << path;
    BringIntoView(row);
    return row;
  }
  void SetProperty(const std::string& path, const std::string& value) {
    for (std::size_t dot = 0; (dot = path.find('.', dot)) != std::string::npos; ++dot) {
      const int around = LineOf(path.substr(0, dot));
      if (!Grid().Row(around).Expanded) Click(InLine(around, 6 + 10 * Grid().Row(around).Depth));
    }
    const int row = LineOf(path);
    Click(InLine(row, Grid().Splitter() - 10));
    Type(value);
    TypeKey(VK_RETURN);
    EXPECT_EQ(Grid().Row(row).Value, value) << path;
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
