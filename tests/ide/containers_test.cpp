// Tool bars, cool bars and pages of a form that is designed.
#include <gmock/gmock.h>

#include "tests/ide/designerfixture.h"
#include "tests/vcl/dropfiles.h"

namespace ide {
namespace {

using testing::ElementsAre;

class DesignedContainers : public Designer {
 protected:
  std::vector<std::string> Buttons(const char* bar) {
    std::vector<std::string> names;
    auto& tools = *Find<TToolBar>(bar);
    for (int i = 0; i < tools.ButtonCount(); ++i) names.push_back(tools.Buttons(i)->Name());
    return names;
  }
  /// The middle of a control of the form.
  TPoint On(const char* name) { return MiddleOf(Find(name)); }
};

TEST_F(DesignedContainers, ToolBarsGetButtonsByTheirMenuAndByTheMouse) {
  OpenForm(" object Tools: TToolBar\n Left = 0\n Top = 0\n Width = 420\n Height = 29\n end\n");
  const std::string before = Document().Text();
  KeysInMenuAt(At(300, 10), "Down Enter");
  ASSERT_THAT(SelectedNames(), ElementsAre("ToolButton1"));
  KeysInMenuAt(On("ToolButton1"), "Down Down Enter");
  ASSERT_THAT(Buttons("Tools"), ElementsAre("ToolButton1", "ToolButton2"));
  EXPECT_EQ(Find<TToolButton>("ToolButton2")->Style(), tbsSeparator);
  // A new one stands behind the one that it was asked of.
  KeysInMenuAt(On("ToolButton1"), "Down Enter");
  EXPECT_THAT(Buttons("Tools"), ElementsAre("ToolButton1", "ToolButton3", "ToolButton2"));
  // Other controls come onto it by the palette, and what is dragged changes places.
  Place("TEdit", At(200, 5), At(280, 18));
  EXPECT_EQ(Find("Edit1")->Parent(), Find("Tools"));
  EXPECT_THAT(Buttons("Tools"), ElementsAre("ToolButton1", "ToolButton3", "ToolButton2", "Edit1"));
  const TPoint from = On("ToolButton1");
  Drag(from, {from.X + 30, from.Y});
  EXPECT_THAT(Buttons("Tools"), ElementsAre("ToolButton3", "ToolButton1", "ToolButton2", "Edit1"));
  while (Document().CanUndo()) It().Undo();
  EXPECT_EQ(Document().Text(), before);
}

TEST_F(DesignedContainers, PagesAreMadeShownAndDeletedByTheirMenu) {
  OpenForm(
      " object Pages: TPageControl\n Left = 10\n Top = 10\n Width = 300\n Height = 200\n end\n");
  KeysInMenuAt(At(150, 150), "Down Enter");
  KeysInMenuAt(At(150, 150), "Down Enter");
  auto pages = [&] { return Find<TPageControl>("Pages"); };
  EXPECT_EQ(pages()->PageCount(), 2);
  EXPECT_THAT(SelectedNames(), ElementsAre("TabSheet2"));
  KeysInMenuAt(At(150, 150), "Down Down Enter");
  EXPECT_EQ(pages()->ActivePage()->Name(), "TabSheet1");
  KeysInMenuAt(At(150, 150), "Down Down Down Enter");
  EXPECT_EQ(pages()->ActivePage()->Name(), "TabSheet2");
  KeysInMenuAt(At(150, 150), "Down Down Down Down Enter");
  EXPECT_EQ(pages()->PageCount(), 1);
  EXPECT_EQ(pages()->ActivePage()->Name(), "TabSheet1");
  It().Undo();
  EXPECT_EQ(pages()->PageCount(), 2);
}

TEST_F(DesignedContainers, CoolBarsGetABandForEachControl) {
  OpenForm(" object Cool: TCoolBar\n Left = 0\n Top = 0\n Width = 420\n Height = 60\n end\n");
  Place("TEdit", At(50, 10), At(200, 30));
  auto cool = [&] { return Find<TCoolBar>("Cool"); };
  ASSERT_EQ(cool()->Bands()->Count(), 1);
  EXPECT_EQ(cool()->Bands()->Items(0)->Control(), Find("Edit1"));
  It().Undo();
  EXPECT_EQ(cool()->Bands()->Count(), 0);
}

/// Opens the first dialog of a component's menu, and has the keys and whatever else happen in it.
class DesignedItems : public DesignedContainers {
 protected:
  void InDialogOf(TPoint screen, const std::string& caption, const std::function<void()>& act) {
    MoveMouse(screen);
    RightDown();
    QueueMouse(MOUSEEVENTF_RIGHTUP);
    KeysInDialogs("Down Enter", {{caption, act}});
  }
};

TEST_F(DesignedItems, TreesGetTheirNodesInADialog) {
  OpenForm(" object Tree: TTreeView\n Left = 10\n Top = 10\n Width = 200\n Height = 150\n end\n");
  const std::string before = Document().Text();
  const auto tree = [&] { return Find<TTreeView>("Tree"); };
  InDialogOf(On("Tree"), "Items of Tree", [] {
    SendKeys("Alt+N");
    Type("Fruit");
    SendKeys("Alt+S");
    Type("Apple");
    SendKeys("Alt+N");
    Type("Pear");
    SendKeys("Alt+I");
    Type("3");
    SendKeys("Alt+U");
    SendKeys("Enter");
  });
  const auto lines = [&] {
    std::string text;
    for (TTreeNode* each = tree()->Items()->GetFirstNode(); each; each = each->GetNext()) {
      text += Concat(std::to_string(each->Level()), each->Text(), " ");
    }
    return text;
  };
  ASSERT_EQ(lines(), "0Fruit 1Pear 1Apple ");
  EXPECT_EQ(tree()->Items()->GetFirstNode()->GetFirstChild()->ImageIndex(), 3);
  EXPECT_NE(Document().Text().find("Items.Data"), std::string::npos);
  InDialogOf(On("Tree"), "Items of Tree", [] { SendKeys("Alt+D Esc"); });
  EXPECT_EQ(lines(), "0Fruit 1Pear 1Apple ") << "cancelled";
  InDialogOf(On("Tree"), "Items of Tree", [] { SendKeys("Alt+D Enter"); });
  EXPECT_EQ(lines(), "");
  It().Undo();
  EXPECT_EQ(lines(), "0Fruit 1Pear 1Apple ");
  while (Document().CanUndo()) It().Undo();
  EXPECT_EQ(Document().Text(), before);
}

TEST_F(DesignedItems, ImageListsTakeFilesThatAreDropped) {
  OpenForm(" object Pictures: TImageList\n Left = 100\n Top = 100\n end\n");
  TBitmap bitmap;
  bitmap.SetSize(16, 16);
  bitmap.SaveToFile(File("dot.bmp"));
  Write("no picture.bmp", "no picture");
  const auto images = [&] { return Find<TImageList>("Pictures"); };
  const std::vector<std::string> files = {File("dot.bmp"), File("no picture.bmp"), File("dot.bmp")};
  MoveMouse(At(110, 110));
  RightDown();
  QueueMouse(MOUSEEVENTF_RIGHTUP);
  KeysInDialogs("Down Enter", {{"Images of Pictures",
                                [&] {
                                  const HDROP drop = MakeDrop(files, {50, 50});
                                  ::PostMessageW(::GetForegroundWindow(), WM_DROPFILES,
                                                 reinterpret_cast<WPARAM>(drop), 0);
                                }},
                               {"Error", [] { SendKeys("Enter"); }},  // One is no picture.
                               {"Images of Pictures", [] { SendKeys("Enter"); }}});
  EXPECT_EQ(images()->Count(), 2);
  It().Undo();
  EXPECT_EQ(images()->Count(), 0);
}

TEST_F(DesignedItems, MasksAreTriedOut) {
  OpenForm(" object Edit: TMaskEdit\n Left = 10\n Top = 10\n Width = 200\n Height = 21\n end\n");
  Click(On("Edit"));
  const int line = LineOf("EditMask");
  Click(InLine(line, Grid().Splitter() + 20));
  KeysInDialogs("Ctrl+Enter", {{"EditMask", [] {
                                  Type("\\");
                                  SendKeys("Enter");  // Malformed: the button is disabled.
                                  SendKeys("BkSp");
                                  Type("000");
                                  SendKeys("Enter");
                                }}});
  EXPECT_EQ(Find<TMaskEdit>("Edit")->EditMask(), "000");
}

}  // namespace
}  // namespace ide
