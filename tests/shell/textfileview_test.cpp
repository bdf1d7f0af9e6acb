// The text file view on real files.
#include "qel/shell/Qelttextfileview.h"

#include <filesystem>
#include <fstream>

#include "tests/support/program.h"
#include "tests/vcl/standardform.h"
#include "vcl/graphics/png.h"
#include "vcl/transfer/clipboard.h"
// It needs what stands above.
#include <psapi.h>

namespace qel {
namespace {

namespace fs = std::filesystem;
using testinput::PumpUntil;
using namespace std::string_literals;

class TextFileView : public vcl::TStandardForm {
 protected:
  TextFileView() : View(new TQELTextFileView(&Form)) {
    View->SetParent(&Form);
    View->SetBounds(0, 0, 480, 300);
    ShowForm();
    View->SetFocus();
  }
  std::string Name(const std::string& file = "a.txt") const {
    return (Folder.Path / file).string();
  }
  void Write(const std::string& bytes, std::ios::openmode mode = std::ios::trunc) const {
    std::ofstream(Folder.Path / "a.txt", std::ios::binary | mode) << bytes;
  }
  /// Shows the bytes, and waits until their lines are counted.
  void Show(const std::string& bytes) {
    Write(bytes);
    View->SetFilename({});
    View->SetFilename(Name());
    EXPECT_EQ(View->LastError(), "");
    EXPECT_TRUE(Counted());
  }
  bool Counted() const {
    return PumpUntil([this] { return View->AllCounted(); });
  }
  static std::string Lines(int count) {
    std::string text;
    for (int i = 1; i <= count; ++i) text += "line " + std::to_string(i) + "\r\n";
    return text;
  }

  testing_support::TFolder Folder;
  TQELTextFileView* View;
};

TEST_F(TextFileView, CountsLinesAndGoesToThem) {
  const std::pair<std::string, int> cases[] = {
      {"", 1},       {"one", 1},        {"one\n", 2},         {"a\r\nb\nc", 3},
      {"\n\n\n", 4}, {"a\0b\nc\0"s, 2}, {"\xEF\xBB\xBF\n", 2}};
  for (const auto& [bytes, lines] : cases) {
    Show(bytes);
    EXPECT_EQ(View->LinesCounted(), lines) << bytes;
    View->Repaint();
  }
  Show(Lines(20000));
  EXPECT_EQ(View->LinesCounted(), 20001);
  EXPECT_EQ(View->TopLine(), 1);
  EXPECT_TRUE(View->GoToLine(12345));
  EXPECT_EQ(View->TopLine(), 12345);
  EXPECT_FALSE(View->GoToLine(0));
  EXPECT_TRUE(View->GoToLine(99999)) << "the last one";
  EXPECT_EQ(View->TopLine(), 20001);
  View->GoToLine(10);
  Key(VK_DOWN);
  Key(VK_DOWN);
  EXPECT_EQ(View->TopLine(), 12);
  Key(VK_NEXT);
  const auto page = View->TopLine();
  EXPECT_GT(page, 20);
  Key(VK_PRIOR);
  EXPECT_EQ(View->TopLine(), 12);
  KeyWith(VK_CONTROL, VK_END);
  const auto last = View->TopLine();
  EXPECT_GT(last, 19900);
  Key(VK_DOWN);
  EXPECT_EQ(View->TopLine(), last) << "there is nothing behind the end";
  KeyWith(VK_CONTROL, VK_HOME);
  EXPECT_EQ(View->TopLine(), 1);
  // A long line comes in pieces, which have no numbers of their own.
  Show("a\n" + std::string(300000, 'x') + "\nlast");
  EXPECT_EQ(View->LinesCounted(), 3);
  EXPECT_TRUE(View->GoToLine(3));
  EXPECT_TRUE(View->FindText("last"));
  for (int i = 0; i < 40; ++i) Key(VK_UP);
  EXPECT_EQ(View->TopLine(), 1) << "the pieces are the same from both ends";
}

TEST_F(TextFileView, FindsInEveryCoding) {
  const std::string little = "\xFF\xFE"s + "f\0r\0\xFC\0h\0\n\0F\0R\0\xFC\0H\0"s;
  const std::string big = "\xFE\xFF"s + "\0f\0r\0\xFC\0h\0\n\0F\0R\0\xFC\0H"s;
  for (const std::string& bytes : {"früh\nFRüH"s,
                                   "\xEF\xBB\xBF"
                                   "früh\nFRüH"s,
                                   little, big}) {
    Show(bytes);
    EXPECT_EQ(View->LinesCounted(), 2);
    EXPECT_TRUE(View->FindText("Früh")) << bytes;
    EXPECT_EQ(View->SelText(), "früh");
    Key(VK_F3);
    EXPECT_EQ(View->SelText(), "FRüH");
    EXPECT_FALSE(View->FindNext());
    testinput::TypeKey(VK_F3, {VK_SHIFT});
    EXPECT_EQ(View->SelText(), "früh");
    EXPECT_FALSE(View->FindText("früh", true, true));
    EXPECT_TRUE(View->FindText("FRüH", true));
  }
  // Where two portions of the search meet.
  Show(std::string((1 << 20) - 2, '-') + "needle" + std::string(2 << 20, '-'));
  EXPECT_TRUE(View->FindText("needle"));
  EXPECT_EQ(View->SelStart(), (1 << 20) - 2);
  View->Select(View->FileSize(), View->FileSize());
  EXPECT_TRUE(View->FindText("NEEDLE", false, true));
  EXPECT_EQ(View->SelStart(), (1 << 20) - 2);
}

TEST_F(TextFileView, FourGigabytesAreThereAtOnce) {
  constexpr std::int64_t size = std::int64_t{4} << 30;
  {
    std::ofstream file(Folder.Path / "a.txt", std::ios::binary);
    file << "first\n";
  }
  fs::resize_file(Folder.Path / "a.txt", size);
  Write("\nthe end", std::ios::app);
  const auto memory = [] {
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<std::int64_t>(counters.PagefileUsage);
  };
  const std::int64_t before = memory();
  const ULONGLONG begin = ::GetTickCount64();
  View->SetFilename(Name());
  View->Repaint();
  EXPECT_LT(::GetTickCount64() - begin, 1000u);
  EXPECT_EQ(View->FileSize(), size + 8);
  KeyWith(VK_CONTROL, VK_END);
  View->Repaint();
  View->Select(size, size + 8);
  EXPECT_EQ(View->SelText(), "\nthe end");
  View->SelectAll();
  EXPECT_THROW(View->SelText(), vcl::EOutOfResources);
  EXPECT_LT(memory() - before, 64 << 20);
  View->Close();
}

TEST_F(TextFileView, FollowsWhatIsAppended) {
  View->SetFollow(true);
  Show(Lines(100));
  EXPECT_GT(View->TopLine(), 50) << "it begins with the end";
  const auto former = View->TopLine();
  Write(Lines(10), std::ios::app);
  EXPECT_TRUE(PumpUntil([&] { return View->TopLine() == former + 10; }));
  KeyWith(VK_CONTROL, VK_HOME);
  Write(Lines(10), std::ios::app);
  EXPECT_TRUE(PumpUntil([&] { return View->LinesCounted() == 121; }));
  EXPECT_EQ(View->TopLine(), 1) << "where the user looks";
  Write("new\n");
  EXPECT_TRUE(PumpUntil([&] { return View->FileSize() == 4; })) << "a shorter one is shown anew";
  EXPECT_TRUE(Counted());
  View->SetFilename(Name("none"));
  EXPECT_NE(View->LastError(), "");
  EXPECT_EQ(View->FileSize(), 0);
  View->Repaint();
}

TEST_F(TextFileView, TheMouseSelectsAndTheKeysCopy) {
  View->SetLineNumbers(false);
  Show("some words\nand\tmore");
  testinput::MoveMouse(View->ClientToScreen({1, 4}));
  testinput::LeftDown();
  testinput::MoveMouse(View->ClientToScreen({2000, 4}));
  testinput::MoveMouse(View->ClientToScreen({2001, 4}));
  testinput::LeftUp();
  EXPECT_TRUE(PumpUntil([this] { return View->SelText() == "some words"; })) << View->SelText();
  KeyWith(VK_CONTROL, 'C');
  EXPECT_EQ(vcl::Clipboard()->AsText(), "some words");
  KeyWith(VK_CONTROL, 'A');
  EXPECT_EQ(View->SelText(), "some words\nand\tmore");
  View->SetHighlightColor(vcl::clLime);
  View->Repaint();
  EXPECT_NE(Find(vcl::clLime).Width(), 0) << "seen in its colour";
  // A word goes into the next row where there is no room for it.
  View->SetLineNumbers(true);
  View->SetWordWrap(true);
  std::string words;
  for (int i = 0; i < 400; ++i) words += "word" + std::to_string(i) + " ";
  Show(words);
  EXPECT_TRUE(View->FindText("word399"));
  EXPECT_EQ(View->TopLine(), 1);
  Key(VK_DOWN);
  View->Repaint();
}

}  // namespace
}  // namespace qel
