// Action lists of a form that is designed.
#include <gmock/gmock.h>

#include "tests/ide/designerfixture.h"
#include "vcl/dbctrls/dbactions.h"
#include "vcl/designintf/registration.h"

namespace ide {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class DesignedActions : public Designer {
 protected:
  DesignedActions() {
    OpenForm(
        " object Button1: TButton\n Left = 150\n Top = 20\n Width = 100\n Height = 25\n"
        " Caption = 'Plain'\n end\n"
        " object List: TActionList\n Left = 16\n Top = 200\n"
        " object SaveAction: TAction\n Category = 'File'\n Caption = '&Save'\n ShortCut = 16467\n"
        " end\n"
        " object BoldAction: TAction\n Caption = '&Bold'\n end\n"
        " object NewAction: TAction\n Category = 'File'\n Caption = '&New'\n end\n"
        " end\n");
  }
  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    const TStrings& items = *Window->ActionWindow().List().Items();
    for (int i = 0; i < items.Count(); ++i) lines.push_back(items.Strings(i));
    return lines;
  }
};

TEST_F(DesignedActions, StandInCategoriesAndAreMadeMovedAndDeleted) {
  Click(At(30, 214));
  const std::string before = Document().Text();
  TypeKey(VK_F11);
  TForm& window = Window->ActionWindow();
  ASSERT_TRUE(PumpUntil([&] { return ::GetForegroundWindow() == window.Handle(); }));
  const auto original = Lines();
  EXPECT_THAT(original,
              ElementsAre("File", "    &Save   Ctrl+S", "    &New", "(No category)", "    &Bold"));
  Keys("Down Down Ins");
  EXPECT_THAT(SelectedNames(), ElementsAre("Action1"));
  EXPECT_THAT(Lines(), ElementsAre("File", "    &Save   Ctrl+S", "    Action1", "    &New",
                                   "(No category)", "    &Bold"));
  EXPECT_EQ(Find<TAction>("Action1")->Category(), "File");
  Keys("Ctrl+Down Ctrl+Down");
  EXPECT_THAT(Lines(), ElementsAre("File", "    &Save   Ctrl+S", "    &New", "    Action1",
                                   "(No category)", "    &Bold"));
  Keys("Ctrl+Up Del");
  EXPECT_EQ(Lines(), original);
  EXPECT_THAT(SelectedNames(), ElementsAre("NewAction"));
  // The ready-made ones are chosen by category.
  TKeysWhen choose([] { return ::FindWindowW(nullptr, L"Standard actions") != nullptr; },
                   {VK_HOME, VK_DOWN, VK_DOWN, VK_RETURN});
  Keys("Alt+S");
  EXPECT_TRUE(PumpUntil([&] { return Find<TEditCopy>("EditCopy1") != nullptr; }));
  EXPECT_THAT(Lines(), testing::Contains("    &Copy   Ctrl+C"));
  EXPECT_EQ(Find<TEditCopy>("EditCopy1")->Category(), "Edit");
  // Their properties are the inspector's, their handlers a double click away.
  window.BringToFront();
  It().SetSelection({Find<TComponent>("BoldAction")});
  ClickValue("Category");
  Type("Edit");
  TypeKey(VK_RETURN);
  EXPECT_THAT(Lines(), testing::Not(testing::Contains("(No category)")));
  while (Document().CanUndo()) It().Undo();
  EXPECT_EQ(Document().Text(), before);
  EXPECT_EQ(Lines(), original);
  It().SetSelection({Find<TComponent>("List")});
  It().DeleteSelected();
  EXPECT_FALSE(window.Visible());
}

TEST_F(DesignedActions, AreChosenInTheInspectorAndFillTheControl) {
  It().SetSelection({Find<TButton>("Button1")});
  SetProperty("Action", "SaveAction");
  EXPECT_EQ(Find<TButton>("Button1")->Caption(), "&Save");
  EXPECT_THAT(Document().Text(), HasSubstr("Action = SaveAction"));
  EXPECT_THAT(Document().Text(), Not(HasSubstr("Plain")));
  SetProperty("Caption", "Own");
  EXPECT_THAT(Document().Text(), HasSubstr("Caption = 'Own'"));
  const std::string text = Document().Text();
  It().SetSelection({Find<TComponent>("SaveAction")});
  It().DeleteSelected();
  EXPECT_EQ(Find<TButton>("Button1")->Action(), nullptr);
  It().Undo();
  EXPECT_EQ(Document().Text(), text);
  EXPECT_EQ(Find<TButton>("Button1")->Action(), Find<TAction>("SaveAction"));
}

TEST_F(DesignedActions, EveryReadyMadeOneIsOfferedOnceAndCanBeMade) {
  std::vector<std::string> names;
  for (const TActionEntry& entry : RegisteredActions()) {
    for (const TClass* each : entry.Classes) {
      names.emplace_back(each->Name());
      const std::unique_ptr<TComponent> made(each->Maker().Component(nullptr));
      EXPECT_FALSE(dynamic_cast<TCustomAction&>(*made).Caption().empty()) << each->Name();
    }
  }
  EXPECT_EQ(names.size(), 26U);
  std::ranges::sort(names);
  EXPECT_TRUE(std::ranges::adjacent_find(names) == names.end());
  EXPECT_THROW(RegisterActions("Edit", {&TButton::Class()}), EComponentError);
  EXPECT_THROW(RegisterActions("", {&TAction::Class()}), EComponentError);
}

}  // namespace
}  // namespace ide
