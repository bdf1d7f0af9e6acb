// What the designer's menu, its context menu and its keys do with the form.
#include <gmock/gmock.h>

#include "tests/ide/designerfixture.h"

namespace ide {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// Three components, each at another place and of another size.
constexpr const char* Three =
    " object A: TButton\n Left = 16\n Top = 16\n Width = 60\n Height = 24\n end\n"
    " object B: TPanel\n Left = 100\n Top = 50\n Width = 80\n Height = 30\n end\n"
    " object C: TEdit\n Left = 200\n Top = 120\n Width = 40\n Height = 20\n AutoSize = False\n "
    "end\n"
    " object D: TTimer\n Left = 300\n Top = 200\n end\n";

TEST_F(Designer, TheMenuAlignsAndSizes) {
  OpenForm(Three);
  struct {
    const char* Keys;
    TRect B, C;
  } const cases[] = {
      {"Alt+E L L", Bounds(16, 50, 80, 30), Bounds(16, 120, 40, 20)},
      {"Alt+E L C", Bounds(6, 50, 80, 30), Bounds(26, 120, 40, 20)},
      {"Alt+E L R", Bounds(-4, 50, 80, 30), Bounds(36, 120, 40, 20)},
      {"Alt+E L E", Bounds(108, 50, 80, 30), Bounds(200, 120, 40, 20)},
      {"Alt+E L W", Bounds(182, 50, 80, 30), Bounds(282, 120, 40, 20)},
      {"Alt+E L T", Bounds(100, 16, 80, 30), Bounds(200, 16, 40, 20)},
      {"Alt+E L M", Bounds(100, 13, 80, 30), Bounds(200, 18, 40, 20)},
      {"Alt+E L B", Bounds(100, 10, 80, 30), Bounds(200, 20, 40, 20)},
      {"Alt+E L P", Bounds(100, 68, 80, 30), Bounds(200, 120, 40, 20)},
      {"Alt+E L I", Bounds(100, 122, 80, 30), Bounds(200, 192, 40, 20)},
      {"Alt+E Z N", Bounds(100, 50, 40, 30), Bounds(200, 120, 40, 20)},
      {"Alt+E Z W", Bounds(100, 50, 80, 30), Bounds(200, 120, 80, 20)},
      {"Alt+E Z F", Bounds(100, 50, 60, 30), Bounds(200, 120, 60, 20)},
      {"Alt+E Z L", Bounds(100, 50, 80, 20), Bounds(200, 120, 40, 20)},
      {"Alt+E Z H", Bounds(100, 50, 80, 30), Bounds(200, 120, 40, 30)},
      {"Alt+E Z I", Bounds(100, 50, 80, 24), Bounds(200, 120, 40, 24)},
  };
  for (const auto& each : cases) {
    It().SetSelection({Find("A"), Find("B"), Find("C"), Find<TComponent>("D")});
    Keys(each.Keys);
    EXPECT_EQ(Find("B")->BoundsRect(), each.B) << each.Keys;
    EXPECT_EQ(Find("C")->BoundsRect(), each.C) << each.Keys;
    It().Undo();
    EXPECT_FALSE(Document().Modified()) << each.Keys;
  }
}

TEST_F(Designer, TheArrowsMoveAndSizeUnlessTheFormIsLocked) {
  OpenForm(Three);
  const auto bounds = [&](const char* name) { return Find(name)->BoundsRect(); };
  Click(MiddleOf(Find("B")));
  Keys("Ctrl+Left Ctrl+Left Ctrl+Down");
  EXPECT_EQ(bounds("B"), Bounds(98, 51, 80, 30));
  Keys("Shift+Right Shift+Up Shift+Up");
  EXPECT_EQ(bounds("B"), Bounds(98, 51, 81, 28));
  Keys("Ctrl+Shift+Up");
  EXPECT_EQ(bounds("B"), Bounds(98, 43, 81, 28)) << "by the grid";
  Keys("Left");
  EXPECT_THAT(SelectedNames(), ElementsAre("A"));
  Keys("Ctrl+Up");
  It().Undo();
  EXPECT_EQ(bounds("A"), Bounds(16, 16, 60, 24)) << "another component is another step";
  EXPECT_EQ(bounds("B"), Bounds(98, 43, 81, 28));
  Keys("Alt+E K");
  Click(MiddleOf(Find("C")));
  Keys("Ctrl+Left Shift+Left Ctrl+Shift+Left");
  Drag(MiddleOf(Find("C")), MiddleOf(Find("C")) + Point(40, 40));
  Drag(At(239, 139), At(280, 180));  // A grabber.
  EXPECT_EQ(bounds("C"), Bounds(200, 120, 40, 20));
  Keys("Alt+E K");
  Drag(MiddleOf(Find("C")), MiddleOf(Find("C")) + Point(8, 0));
  EXPECT_EQ(bounds("C"), Bounds(208, 120, 40, 20));
}

TEST_F(Designer, OrderDialogsOrderWhatTheySay) {
  OpenForm(Concat(Three, " object E: TTimer\n end\n object F2: TTimer\n end\n"));
  const std::string before = Document().Text();
  KeysInDialogs("Alt+E O", {{"Tab order", [] { SendKeys("Down Alt+D Esc"); }}});
  EXPECT_EQ(Document().Text(), before) << "given up";
  KeysInDialogs("Alt+E O", {{"Tab order", [] { SendKeys("Down Alt+D Enter"); }}});
  EXPECT_EQ(Find<TButton>("A")->TabOrder(), 0);
  EXPECT_EQ(Find<TEdit>("C")->TabOrder(), 1);
  EXPECT_EQ(Find<TPanel>("B")->TabOrder(), 2);
  KeysInDialogs("Alt+E E", {{"Creation order", [] { SendKeys("Alt+D Alt+D Enter"); }}});
  EXPECT_LT(Find<TComponent>("F2")->ComponentIndex(), Find<TComponent>("D")->ComponentIndex());
  It().Undo();
  It().Undo();
  EXPECT_EQ(Document().Text(), before);
}

TEST_F(Designer, TheContextMenuIsAboutWhatIsUnderTheMouse) {
  OpenForm(Three);
  Click(MiddleOf(Find("A")));
  ClickValue("Hint");
  Keys("X");  // Typed when the menu comes up: Delete is about the component nevertheless.
  KeysInMenuAt(MiddleOf(Find("C")), "D");
  EXPECT_FALSE(Find("C"));
  EXPECT_TRUE(Find("A"));
  Drag(At(8, 8), At(190, 90));
  KeysInMenuAt(MiddleOf(Find("A")), "T");
  EXPECT_FALSE(Find("A") || Find("B")) << "cut, for both are selected";
  KeysInMenuAt(At(310, 210), "Esc");
  EXPECT_THAT(SelectedNames(), ElementsAre("D"));
  KeysInMenuAt(At(20, 250), "P");
  EXPECT_TRUE(Find("A") && Find("B"));
}

TEST_F(Designer, ADesignedHintIsNotTheDesigners) {
  OpenForm(" object A: TButton\n Hint = 'Of the application'\n ShowHint = True\n end\n");
  Window->Inspector().Components().SetHint("Of the designer");
  MoveMouse(MiddleOf(&Window->Inspector().Components()));
  EXPECT_TRUE(PumpUntil([] { return Application()->Hint() == "Of the designer"; }));
  MoveMouse(MiddleOf(Find("A")));
  EXPECT_TRUE(PumpUntil([] { return Application()->Hint().empty(); }));
}

}  // namespace
}  // namespace ide
