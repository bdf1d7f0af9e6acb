// Menus of a form that is designed.
#include <gmock/gmock.h>

#include "tests/ide/designerfixture.h"

namespace ide {
namespace {

using testing::ElementsAre;

class DesignedMenus : public Designer {
 protected:
  DesignedMenus() {
    OpenForm(
        " Menu = Bar\n object Bar: TMainMenu\n Left = 16\n Top = 200\n"
        " object FileMenu: TMenuItem\n Caption = '&File'\n"
        " object OpenItem: TMenuItem\n Caption = '&Open'\n ShortCut = 16463\n end\n end\n end\n");
  }
  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    const TStrings& items = *Window->MenuWindow().List().Items();
    for (int i = 0; i < items.Count(); ++i) lines.push_back(items.Strings(i));
    return lines;
  }
};

TEST_F(DesignedMenus, ItemsAreMadeMovedAndDeleted) {
  Click(At(30, 214));
  const std::string before = Document().Text();
  TypeKey(VK_F11);
  TForm& window = Window->MenuWindow();
  ASSERT_TRUE(PumpUntil([&] { return ::GetForegroundWindow() == window.Handle(); }));
  EXPECT_THAT(Lines(), ElementsAre("&File", "    &Open   Ctrl+O"));
  Keys("Down Down Ins");
  EXPECT_THAT(SelectedNames(), ElementsAre("MenuItem1"));
  EXPECT_THAT(Lines(), ElementsAre("&File", "    MenuItem1", "    &Open   Ctrl+O"));
  Keys("Alt+A Alt+S");
  EXPECT_THAT(Lines(), ElementsAre("&File", "    MenuItem1", "    MenuItem2", "        MenuItem3",
                                   "    &Open   Ctrl+O"));
  Click(&Window->MenuWindow().List());
  Keys("Home Down Down Ctrl+Down Ctrl+Left");
  EXPECT_THAT(Lines(), ElementsAre("&File", "    MenuItem1", "    &Open   Ctrl+O", "MenuItem2",
                                   "    MenuItem3"));
  Keys("Ctrl+Right Ctrl+Up Del");
  EXPECT_THAT(Lines(), ElementsAre("&File", "    MenuItem1", "    &Open   Ctrl+O"));
  EXPECT_THAT(SelectedNames(), ElementsAre("OpenItem"));
  // Its properties are the inspector's, its handler a double click away.
  TypeKey(VK_HOME);
  It().SetSelection({Find<TComponent>("MenuItem1")});
  ClickValue("Caption");
  Keys("S U B");
  EXPECT_EQ(Lines().at(1), "    sub");
  window.BringToFront();  // Which is the work of a window manager, where there is one.
  const TRect line = Window->MenuWindow().List().ItemRect(1);
  for (int i = 0; i < 2; ++i) {
    Click(Window->MenuWindow().List().ClientToScreen({line.Left + 30, line.Top + 5}));
  }
  EXPECT_EQ(Find<TMenuItem>("MenuItem1")->OnClick.HandlerName(), "MenuItem1Click");
  // All of it is undone, step by step, and the window follows.
  while (Document().CanUndo()) It().Undo();
  EXPECT_EQ(Document().Text(), before);
  EXPECT_THAT(Lines(), ElementsAre("&File", "    &Open   Ctrl+O"));
  EXPECT_TRUE(window.Visible());
  It().SetSelection({Find<TComponent>("Bar")});
  It().DeleteSelected();
  EXPECT_FALSE(window.Visible());
}

/// The buttons of the window stand below each other, beside the list and inside the window.
void ExpectColumn(TListWindow& window) {
  TRect former = Rect(0, 0, window.ClientWidth(), 0);
  for (int i = 0; i < window.ControlCount(); ++i) {
    if (!dynamic_cast<TButton*>(window.Controls(i))) continue;
    const TRect bounds = window.Controls(i)->BoundsRect();
    EXPECT_GE(bounds.Top, former.Bottom) << i;
    EXPECT_GE(bounds.Left, window.List().BoundsRect().Right) << i;
    EXPECT_LE(bounds.Bottom, window.ClientHeight()) << i;
    former = bounds;
  }
  EXPECT_GT(former.Top, 0);
}

TEST_F(Designer, TheWindowsOfMenusAndCollectionsOpenInOrder) {
  OpenForm(
      " object Bar: TMainMenu\n end\n object Status: TStatusBar\n Panels = <\n item\n end>\n"
      " end\n");
  Window->MenuWindow().ShowMenu(It(), *Find<TMainMenu>("Bar"));
  ExpectColumn(Window->MenuWindow());
  Window->Items().ShowItems(It(), *Find<TStatusBar>("Status")->Panels());
  ExpectColumn(Window->Items());
}

TEST_F(DesignedMenus, TheFormShowsItsBarAndThePressedItemIsSelected) {
  const int height = ::GetSystemMetrics(SM_CYMENU);
  const std::string before = Document().Text();
  EXPECT_EQ(Root().ClientHeight(), 300);
  MoveMouse(At(15, -height / 2));
  QueueMouse(MOUSEEVENTF_LEFTDOWN);
  QueueMouse(MOUSEEVENTF_LEFTUP);
  Keys("Esc");  // The menu that came down.
  EXPECT_THAT(SelectedNames(), ElementsAre("FileMenu"));
  MoveMouse(At(20, -height / 2));
  QueueMouse(MOUSEEVENTF_LEFTDOWN);
  QueueMouse(MOUSEEVENTF_LEFTUP);
  Keys("O");
  EXPECT_THAT(SelectedNames(), ElementsAre("OpenItem"));
  Click(At(300, -height / 2));
  EXPECT_THAT(SelectedNames(), ElementsAre("Bar"));
  const HDC screen = ::GetDC(nullptr);
  const auto dark = [&] {
    int count = 0;
    for (int x = 0; x < 40; ++x) {
      for (int y = 1 - height; y < 0; ++y) {
        const TPoint at = At(x, y);
        if (GetRValue(::GetPixel(screen, at.X, at.Y)) < 100) ++count;
      }
    }
    return count;
  };
  EXPECT_GT(dark(), 20) << "the item's text";
  Find<TMenuItem>("FileMenu")->SetCaption("");
  It().Modified();
  EXPECT_EQ(dark(), 0);
  ::ReleaseDC(nullptr, screen);
  It().Undo();
  // Without the menu the form's inside is as large as before.
  Root().SetMenu(nullptr);
  It().Modified();
  EXPECT_EQ(Root().ClientHeight(), 300);
  It().Undo();
  EXPECT_EQ(Document().Text(), before);
}

}  // namespace
}  // namespace ide
