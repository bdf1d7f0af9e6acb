// Tool bars, cool bars and pages of a form that is designed.
#include <gmock/gmock.h>

#include "tests/ide/designerfixture.h"

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

}  // namespace
}  // namespace ide
