// The navigator with real input: what its buttons do, when, and who is asked.
#include "tests/dbcontrols/dataform.h"

namespace qel {
namespace {

using testinput::PumpUntil;

class Navigator : public TDataForm {
 protected:
  Navigator() : Nav(Make<TQELDBNavigator>(10, 10)) {
    Nav->SetDataSource(&Source);
    Nav->OnClick = [this](vcl::TObject*, TQELNavigatorButton button) { Done.push_back(button); };
  }
  void Press(TQELNavigatorButton button) { testinput::Click(MiddleOf(button)); }
  vcl::TPoint MiddleOf(TQELNavigatorButton button) const {
    const vcl::TRect rect = Nav->ButtonRect(button);
    return Nav->ClientToScreen({(rect.Left + rect.Right) / 2, (rect.Top + rect.Bottom) / 2});
  }
  TQELDBNavigator* Nav;
  std::vector<TQELNavigatorButton> Done;
};

TEST_F(Navigator, TheButtonsDoWhatTheyAreForAndOnlyWhereThatCanBe) {
  ShowForm();
  EXPECT_FALSE(Nav->ButtonEnabled(nbPrior));
  EXPECT_FALSE(Nav->ButtonEnabled(nbPost));
  Press(nbPrior);
  Press(nbNext);
  EXPECT_EQ(Data.RecNo(), 2);
  EXPECT_TRUE(Nav->ButtonEnabled(nbPrior));
  Press(nbLast);
  EXPECT_EQ(Data.RecNo(), 3);
  Press(nbEdit);
  EXPECT_EQ(Data.State(), vcl::dsEdit);
  EXPECT_FALSE(Nav->ButtonEnabled(nbEdit));
  Press(nbCancel);
  Press(nbInsert);
  EXPECT_EQ(Data.State(), vcl::dsInsert);
  Press(nbPost);
  EXPECT_EQ(Data.RecordCount(), 4);
  EXPECT_THAT(Done, testing::ElementsAre(nbNext, nbLast, nbEdit, nbCancel, nbInsert, nbPost));
  Data.Close();
  for (int i = nbFirst; i <= nbFind; ++i) {
    EXPECT_FALSE(Nav->ButtonEnabled(static_cast<TQELNavigatorButton>(i))) << i;
  }
}

TEST_F(Navigator, DetailsHideDisableAndNameAButton) {
  ShowForm();
  const vcl::TRect whole = Nav->ButtonRect(nbNext);
  Nav->FirstButton()->SetVisible(false);
  EXPECT_TRUE(Nav->ButtonRect(nbFirst).Empty());
  EXPECT_GT(Nav->ButtonRect(nbNext).Width(), whole.Width()) << "the others share the room";
  Nav->NextButton()->SetEnabled(false);
  Press(nbNext);
  EXPECT_EQ(Data.RecNo(), 1);
  Nav->NextButton()->SetEnabled(true);
  Press(nbNext);
  EXPECT_EQ(Data.RecNo(), 2);
  Nav->PostButton()->SetEnabled(false);
  Nav->PostButton()->SetEnabled(true);
  EXPECT_FALSE(Nav->ButtonEnabled(nbPost)) << "the set has nothing to post";
  Nav->NextButton()->SetHint("Onwards");
  EXPECT_EQ(Nav->ButtonName(nbNext), "Onwards");
  Nav->SetVisibleButtons({nbNext, nbFind});
  EXPECT_EQ(Nav->ButtonRect(nbNext).Width(), Nav->ClientWidth());
  EXPECT_TRUE(Nav->ButtonRect(nbFind).Empty()) << "there is nothing to search with";
  Nav->SetVisibleButtons({nbPrior, nbNext});
  Nav->SetBounds(10, 10, 30, 100);
  Nav->SetDirection(kVertical);
  EXPECT_EQ(Nav->ButtonRect(nbNext), vcl::TRect(0, 50, 30, 100));
}

TEST_F(Navigator, TheUserIsAskedAndAHandlerMayRefuse) {
  ShowForm();
  const auto pressAnswering = [&](TQELNavigatorButton button, WORD key) {
    const testinput::TKeysWhen keys([&] { return vcl::Screen()->ActiveForm() != &Form; }, {key});
    Nav->PressButton(button);
  };
  pressAnswering(nbDelete, VK_ESCAPE);
  EXPECT_EQ(Data.RecordCount(), 3);
  pressAnswering(nbDelete, VK_RETURN);
  EXPECT_EQ(Data.RecordCount(), 2);
  Nav->SetConfirmDelete(false);
  Nav->PressButton(nbDelete);
  EXPECT_EQ(Data.RecordCount(), 1);
  Nav->InsertButton()->SetConfirmOnPress(true);
  pressAnswering(nbInsert, VK_ESCAPE);
  EXPECT_EQ(Data.State(), vcl::dsBrowse);
  Nav->BeforeAction = [](vcl::TObject*, TQELNavigatorButton, bool& allow) { allow = false; };
  Nav->PressButton(nbInsert);
  Nav->PressButton(nbEdit);
  EXPECT_EQ(Data.State(), vcl::dsBrowse);
  EXPECT_THAT(Done, testing::ElementsAre(nbDelete, nbDelete));
}

TEST_F(Navigator, RepeatsWhileItIsHeldDownUntilTheEnd) {
  for (int i = 0; i < 30; ++i) Data.AppendRecord({std::string("more")});
  Data.First();
  Nav->SetRepeating(true);
  ShowForm();
  testinput::MoveMouse(MiddleOf(nbNext));
  testinput::LeftDown();
  EXPECT_EQ(Data.RecNo(), 2) << "at once";
  EXPECT_TRUE(PumpUntil([&] { return Data.RecNo() >= 4; }));
  testinput::LeftUp();
  const int there = Data.RecNo();
  testinput::PumpFor(300);
  EXPECT_EQ(Data.RecNo(), there) << "the release is no click more";
  Press(nbPrior);
  EXPECT_EQ(Data.RecNo(), there - 1);
  testinput::MoveMouse(MiddleOf(nbNext));
  testinput::LeftDown();
  EXPECT_TRUE(PumpUntil([&] { return !Nav->ButtonEnabled(nbNext); }));
  EXPECT_EQ(Data.RecNo(), Data.RecordCount());
  testinput::LeftUp();
}

TEST_F(Navigator, WorksByKeyboardAndTellsOfIt) {
  ShowForm();
  Nav->SetFocus();
  Key(VK_RIGHT);
  Key(VK_DOWN);
  EXPECT_EQ(Nav->FocusedButton(), nbNext);
  EXPECT_EQ(Nav->Accessible().Value, Nav->ButtonName(nbNext));
  Key(VK_SPACE);
  EXPECT_EQ(Data.RecNo(), 2);
  Key(VK_END);
  EXPECT_EQ(Nav->FocusedButton(), nbRefresh);
  Nav->RefreshButton()->SetVisible(false);
  EXPECT_EQ(Nav->FocusedButton(), nbFirst);
}

TEST_F(Navigator, FindsWithASearchForm) {
  ShowForm();
  EXPECT_TRUE(Nav->ButtonRect(nbFind).Empty());
  auto* search = new TQELDBSearchForm(&Form);
  search->SetStayOpen(true);
  search->SetSearchText("b&b");
  Nav->SetSearchForm(search);
  EXPECT_FALSE(Nav->ButtonRect(nbFind).Empty());
  Press(nbFind);
  EXPECT_EQ(search->DataSource(), &Source) << "the navigator's, where it had none";
  EXPECT_TRUE(search->Shown());
  Key(VK_RETURN);
  EXPECT_EQ(Data.RecNo(), 2);
  Key(VK_ESCAPE);
  EXPECT_THAT(Done, testing::ElementsAre(nbFind));
  Nav->FindButton()->SetEnabled(false);
  EXPECT_FALSE(Nav->ButtonEnabled(nbFind));
  Nav->FindButton()->SetEnabled(true);
  Data.Close();
  EXPECT_FALSE(Nav->ButtonEnabled(nbFind));
  delete search;
  EXPECT_EQ(Nav->SearchForm(), nullptr);
  EXPECT_TRUE(Nav->ButtonRect(nbFind).Empty());
}

TEST_F(Navigator, MayBeFreedInItsOwnEvents) {
  ShowForm();
  Nav->BeforeAction = [this](vcl::TObject*, TQELNavigatorButton, bool&) { delete Nav; };
  Press(nbNext);
  EXPECT_EQ(Data.RecNo(), 1);
  auto* second = Make<TQELDBNavigator>(10, 10);
  Nav = second;
  second->SetDataSource(&Source);
  second->SetRepeating(true);
  second->OnClick = [&](vcl::TObject*, TQELNavigatorButton) { delete second; };
  Press(nbNext);
  EXPECT_EQ(Data.RecNo(), 2);
  EXPECT_EQ(Form.ControlCount(), 0);
}

}  // namespace
}  // namespace qel
