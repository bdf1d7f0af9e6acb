// Several forms open at once.
#include <gmock/gmock.h>

#include "tests/ide/designerfixture.h"
#include "vcl/rtl/text.h"

namespace ide {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Forms : public Designer {
 protected:
  std::string Shown() { return Window->Structure().Items()->Item(0)->Text(); }
};

TEST_F(Forms, EachHasItsOwnComponentsAndHistory) {
  Place("TButton", At(40, 40), At(40, 40));
  TypeKey('C', {VK_CONTROL});
  TypeKey('N', {VK_CONTROL});
  EXPECT_THAT(Tabs(), ElementsAre("Form1 *", "Form2"));
  EXPECT_EQ(Root().Name(), "Form2");
  // Pasted from the one into the other, where its name is free, and undone there only.
  TypeKey('V', {VK_CONTROL});
  ASSERT_TRUE(Find("Button1"));
  EXPECT_THAT(Shown(), HasSubstr("Form2"));
  EXPECT_EQ(Window->Structure().Items()->Item(0)->Count(), 1);
  ChoosePage(Window->Forms().Pages(), "Form1 *");
  EXPECT_THAT(Shown(), HasSubstr("Form1"));
  EXPECT_EQ(Window->Inspector().Designer(), &It());
  TypeKey(VK_F6, {VK_CONTROL});
  EXPECT_THAT(Shown(), HasSubstr("Form2"));
  TypeKey('Z', {VK_CONTROL});
  EXPECT_FALSE(Find("Button1"));
  EXPECT_THAT(Tabs(), ElementsAre("Form1 *", "Form2"));
  TypeKey(VK_F6, {VK_CONTROL, VK_SHIFT});
  EXPECT_TRUE(Find("Button1"));
  // The tool and the grid go along to the next form.
  It().Surface().SetShowGrid(false);
  TypeKey(VK_F6, {VK_CONTROL});
  EXPECT_FALSE(It().Surface().ShowGrid());
}

TEST_F(Forms, AFileIsOpenOnceAndDamagedOnesLeaveNoPage) {
  Write("one.dfm", "object One: TOne\nend\n");
  Write("two.dfm", "object Two: TTwo\nend\n");
  Write("damaged.dfm", "object");
  ASSERT_TRUE(Window->Open(File("one.dfm")));
  EXPECT_THAT(Tabs(), ElementsAre("one.dfm")) << "in place of the empty form of the start";
  ASSERT_TRUE(Window->Open(File("two.dfm")));
  EXPECT_FALSE(Window->Open(File("damaged.dfm")));
  EXPECT_THAT(Tabs(), ElementsAre("one.dfm", "two.dfm"));
  EXPECT_EQ(Root().Name(), "Two");
  ASSERT_TRUE(Window->Open(File("ONE.DFM")));
  EXPECT_THAT(Tabs(), ElementsAre("one.dfm", "two.dfm"));
  EXPECT_EQ(Root().Name(), "One");
}

TEST_F(Forms, ReferToEachOtherWhileBothAreOpenAndKeepTheNameElse) {
  const std::string menus = "object Menus: TMenus\n  object Main: TPopupMenu\n  end\nend\n";
  const std::string user =
      "object User: TUser\n  object Box: TPanel\n    PopupMenu = Menus.Main\n  end\nend\n";
  Write("menus.dfm", menus);
  Write("user.dfm", user);
  const auto open = [&](const char* name) { ASSERT_TRUE(Window->Open(File(name))); };
  const auto close = [] { TypeKey(VK_F4, {VK_CONTROL}); };
  const auto refers = [&] {
    return Find<TPanel>("Box")->PopupMenu() != nullptr &&
           Document().Text().find("PopupMenu = Menus.Main") != std::string::npos;
  };
  // The other form is missing, comes, is made anew by undo, and goes again.
  open("user.dfm");
  EXPECT_EQ(Find<TPanel>("Box")->PopupMenu(), nullptr);
  EXPECT_THAT(Messages(), ElementsAre(HasSubstr("there is no component Menus.Main")));
  const std::string text = Document().Text();
  open("menus.dfm");
  Place("TButton", At(40, 40), At(40, 40));
  It().Undo();
  open("user.dfm");
  EXPECT_TRUE(refers());
  EXPECT_FALSE(Document().Modified());
  // Opened beside it, it finds it; another name there is another one here.
  close();
  open("user.dfm");
  EXPECT_TRUE(refers());
  EXPECT_EQ(Messages().size(), 1u);
  open("menus.dfm");
  It().SetSelection({Find<TComponent>("Main")});
  SetProperty("Name", "Other");
  open("user.dfm");
  EXPECT_THAT(Document().Text(), HasSubstr("PopupMenu = Menus.Other"));
  EXPECT_TRUE(Document().Modified());
  open("menus.dfm");
  It().Undo();
  open("user.dfm");
  EXPECT_TRUE(refers());
  EXPECT_FALSE(Document().Modified());
  // The user takes the reference away, and gives it again by the name in the list.
  It().SetSelection({Find("Box")});
  Click(InLine(LineOf("PopupMenu"), Grid().Splitter() - 10));
  TypeKey(VK_DELETE);
  TypeKey(VK_RETURN);
  EXPECT_THAT(Document().Text(), testing::Not(HasSubstr("PopupMenu")));
  EXPECT_THAT(It().ComponentNames(TPopupMenu::Class()), ElementsAre("Menus.Main"));
  SetProperty("PopupMenu", "Menus.Main");
  EXPECT_TRUE(refers());
  EXPECT_EQ(Document().Text(), text);
  // The name that the other form is saved with is the one that stays.
  open("menus.dfm");
  It().SetSelection({Find<TComponent>("Main")});
  SetProperty("Name", "Saved");
  TypeKey('S', {VK_CONTROL});
  SetProperty("Name", "Unsaved");
  TBoxAnswer no(IDNO);
  close();
  EXPECT_EQ(Root().Name(), "User");
  EXPECT_EQ(Find<TPanel>("Box")->PopupMenu(), nullptr);
  EXPECT_THAT(Document().Text(), HasSubstr("PopupMenu = Menus.Saved"));
}

TEST_F(Forms, ClosingAsksForTheChangesOfEach) {
  Place("TButton", At(40, 40), At(40, 40));
  TypeKey('N', {VK_CONTROL});
  Place("TLabel", At(40, 40), At(40, 40));
  TypeKey('N', {VK_CONTROL});
  TypeKey(VK_F4, {VK_CONTROL});
  EXPECT_THAT(Tabs(), ElementsAre("Form1 *", "Form2 *")) << "nothing to ask";
  EXPECT_EQ(Root().Name(), "Form2");
  {
    TBoxAnswer cancel(IDCANCEL);
    EXPECT_FALSE(Window->CloseQuery());
    EXPECT_TRUE(cancel.Wait());
    EXPECT_THAT(cancel.Text(), HasSubstr("Form1"));
    EXPECT_EQ(Root().Name(), "Form1") << "the form that is asked for is shown";
  }
  {
    TBoxAnswer no(IDNO, 2);
    EXPECT_TRUE(Window->CloseQuery());
    EXPECT_TRUE(no.Wait());
    EXPECT_THAT(no.Texts(), ElementsAre(HasSubstr("Form1"), HasSubstr("Form2")));
  }
  // By the form's own frame; an empty form follows the last.
  for (int left = 2; left > 0; --left) {
    TBoxAnswer no(IDNO);
    ::PostMessageW(Root().Handle(), WM_CLOSE, 0, 0);
    PumpUntil([&] { return static_cast<int>(Tabs().size()) < left; }, 1000);
    EXPECT_TRUE(no.Wait());
  }
  EXPECT_THAT(Tabs(), ElementsAre("Form1"));
  EXPECT_EQ(Root().ComponentCount(), 0);
}

}  // namespace
}  // namespace ide
