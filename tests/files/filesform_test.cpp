// The file manager's form on real folders, with the keys that its users press.
#include "demos/files/filesform.h"

#include <gmock/gmock.h>

#include <fstream>

#include "demos/files/replaceform.h"
#include "demos/files/searchform.h"
#include "demos/files/viewerform.h"
#include "tests/support/formlayout.h"
#include "tests/support/program.h"
#include "tests/support/registered.h"
#include "tests/vcl/testinput.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/vcl.h"

namespace files {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testinput::PumpUntil;

class Files : public testing::Test {
 protected:
  Files() {
    vcl::RegisterClass(TPane::Class());
    fs::create_directories(Folder.Path / "left" / "inner");
    fs::create_directories(Folder.Path / "right");
    Write("left/a.txt", "alpha");
    Write("left/b.txt", "beta");
    Write("left/inner/c.txt", "alpha and beta");
    Form = std::make_unique<TFilesForm>(nullptr);
    Form->Open((Folder.Path / "left").string(), (Folder.Path / "right").string());
    Form->Show();
    ::SetForegroundWindow(Form->Handle());
    testinput::Pump();
  }
  void Write(const char* name, const char* text) const {
    std::ofstream(Folder.Path / name, std::ios::binary) << text;
  }
  bool There(const char* name) const { return fs::exists(Folder.Path / name); }
  TPane& Pane(const char* name) const { return dynamic_cast<TPane&>(*Form->FindComponent(name)); }
  /// Whether a question is up, whose first answer is Yes.
  bool Asked() const { return ::GetForegroundWindow() != Form->Handle(); }
  qel::TQELExplorerView& Left() const { return *Pane("LeftPane").View; }
  qel::TQELExplorerView& Right() const { return *Pane("RightPane").View; }

  testing_support::TFolder Folder;
  std::unique_ptr<TFilesForm> Form;
};

TEST_F(Files, KeysCopyAndMoveToTheOtherSide) {
  Left().SelectName("a.txt");
  {
    const testinput::TKeysWhen yes([this] { return Asked(); }, {VK_RETURN});
    testinput::TypeKey(VK_F5);
    EXPECT_TRUE(PumpUntil([this] { return There("right/a.txt"); }));
  }
  EXPECT_GE(Right().RowOf("a.txt"), 0);
  EXPECT_TRUE(There("left/a.txt"));
  Left().SelectName("inner");
  {
    const testinput::TKeysWhen yes([this] { return Asked(); }, {VK_RETURN});
    testinput::TypeKey(VK_F6);
    EXPECT_TRUE(PumpUntil([this] { return There("right/inner/c.txt"); }));
  }
  EXPECT_FALSE(There("left/inner"));
  EXPECT_LT(Left().RowOf("inner"), 0);
}

TEST_F(Files, BothSidesGoTheirWays) {
  Left().SelectName("inner");
  testinput::TypeKey(VK_RETURN);
  EXPECT_TRUE(PumpUntil([this] { return Left().Folder().ends_with("inner\\"); }));
  testinput::TypeKey('E', {VK_CONTROL});
  EXPECT_TRUE(PumpUntil([this] { return Right().Folder() == Left().Folder(); }));
  testinput::TypeKey(VK_BACK);
  EXPECT_TRUE(PumpUntil([this] { return Left().Folder().ends_with("left\\"); }));
  testinput::TypeKey('U', {VK_CONTROL});
  EXPECT_TRUE(PumpUntil([this] { return Right().Folder().ends_with("left\\"); }));
  EXPECT_TRUE(Left().Folder().ends_with("inner\\"));
}

TEST_F(Files, CommandsRunInTheFolder) {
  auto& edit = dynamic_cast<vcl::TEdit&>(*Form->FindComponent("CommandEdit"));
  auto& memo = dynamic_cast<vcl::TMemo&>(*Form->FindComponent("OutputMemo"));
  edit.SetFocus();
  edit.SetText("dir /b");
  testinput::TypeKey(VK_RETURN);
  EXPECT_TRUE(
      PumpUntil([&] { return memo.Text().find("[ended with 0]") != std::string::npos; }, 20000));
  EXPECT_THAT(memo.Text(), HasSubstr("a.txt"));
  testinput::TypeKey(VK_ESCAPE);
  EXPECT_TRUE(PumpUntil([&] { return !memo.Visible(); }));
}

TEST_F(Files, AFileIsViewed) {
  Left().SelectName("b.txt");
  testinput::TypeKey(VK_F3);
  EXPECT_TRUE(PumpUntil([this] { return Form->FindComponent("ViewerForm") != nullptr; }));
  auto* viewer = dynamic_cast<TViewerForm*>(Form->FindComponent("ViewerForm"));
  ASSERT_TRUE(viewer);
  auto& view = dynamic_cast<qel::TQELTextFileView&>(*viewer->FindComponent("View"));
  EXPECT_TRUE(view.FindText("beta"));
  EXPECT_EQ(view.SelText(), "beta");
  testinput::TypeKey(VK_ESCAPE);
  EXPECT_TRUE(PumpUntil([this] { return Form->FindComponent("ViewerForm") == nullptr; }));
}

TEST_F(Files, TextsAreCountedAndReplaced) {
  TReplaceForm replace(nullptr);
  const auto part = [&](const char* name) { return replace.FindComponent(name); };
  dynamic_cast<qel::TQELTextReplace&>(*part("Replacing"))
      .Files()
      ->Add((Folder.Path / "left" / "a.txt").string());
  dynamic_cast<vcl::TEdit&>(*part("FindEdit")).SetText("ALPHA");
  dynamic_cast<vcl::TEdit&>(*part("ByEdit")).SetText("omega");
  replace.Show();
  const auto& status = dynamic_cast<vcl::TLabel&>(*part("StatusLabel"));
  dynamic_cast<vcl::TButton&>(*part("CountButton")).Click();
  EXPECT_EQ(status.Caption(), "Found 1 times in 1 files");
  dynamic_cast<vcl::TButton&>(*part("ReplaceButton")).Click();
  EXPECT_EQ(status.Caption(), "Replaced 1 times in 1 files");
  EXPECT_TRUE(There("left/a.txt.bak"));
}

TEST(FilesForms, FitAtOtherDotsPerInch) {
  vcl::RegisterStandardClasses();
  RegisterAll();
  vcl::RegisterClasses({&TPane::Class()});
  for (const char* name : {"TFilesForm", "TSearchForm", "TReplaceForm", "TViewerForm"}) {
    formlayout::ExpectToFit<vcl::TForm>(formlayout::FormFile(name), name);
  }
}

TEST_F(Files, ASearchLooksIntoFiles) {
  TSearchForm search(nullptr);
  const auto part = [&](const char* name) { return search.FindComponent(name); };
  dynamic_cast<vcl::TCustomEdit&>(*part("FolderEdit")).SetText((Folder.Path / "left").string());
  dynamic_cast<vcl::TEdit&>(*part("MaskEdit")).SetText("*.txt");
  dynamic_cast<vcl::TEdit&>(*part("TextEdit")).SetText("beta");
  search.Show();
  dynamic_cast<vcl::TButton&>(*part("SearchButton")).Click();
  auto& found = dynamic_cast<vcl::TListBox&>(*part("Found"));
  ASSERT_EQ(found.Items()->Count(), 2);
  EXPECT_THAT(found.Items()->Strings(0), HasSubstr("b.txt"));
  EXPECT_THAT(found.Items()->Strings(1), HasSubstr("c.txt"));
}

}  // namespace
}  // namespace files
