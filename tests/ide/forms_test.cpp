// Several forms open at once.
#include <gmock/gmock.h>

#include "host/rtl/text.h"
#include "tests/ide/designerfixture.h"

namespace ide {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Forms : public Designer {
 protected:
  std::vector<std::string> Tabs() {
    std::vector<std::string> captions;
    const TPageControl& pages = Window->Forms().Pages();
    for (int i = 0; i < pages.PageCount(); ++i) captions.push_back(pages.Pages(i)->Caption());
    return captions;
  }
  /// Clicks the tab of the form.
  void ClickTab(int index) {
    TPageControl& pages = Window->Forms().Pages();
    RECT tab{};
    ::SendMessageW(pages.Handle(), TCM_GETITEMRECT, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(&tab));
    Click(pages.ClientToScreen({static_cast<int>(tab.left) + 8, static_cast<int>(tab.top) + 8}));
  }
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
  ClickTab(0);
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
