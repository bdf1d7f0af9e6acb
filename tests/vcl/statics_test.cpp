// Groups of radio buttons, lists of check boxes, static texts, hot keys, shapes and paint boxes.
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"

namespace vcl {
namespace {

class Statics : public TStandardForm {
 protected:
  TRecreatable<TRadioGroup>* MakeGroup() {
    auto* group = Make<TRadioGroup>(10, 10);
    for (const char* each : {"&Red", "&Green", "&Blue"}) group->Items()->Add(each);
    group->OnClick = [this, group](TObject*) { Heard += std::to_string(group->ItemIndex()); };
    return group;
  }
  std::string Heard;
};

TEST_F(Statics, ARadioGroupIsChosenByMouseKeysAndCode) {
  Make<TEdit>(300, 10);
  auto* group = MakeGroup();
  ShowForm();
  Click(*group->Buttons(1));
  Key(VK_DOWN);
  KeyWith(VK_MENU, 'R');
  group->SetItemIndex(1);
  EXPECT_EQ(Heard, "1201");
  EXPECT_TRUE(group->Buttons(1)->Checked());
  group->Items()->Delete(1);
  EXPECT_EQ(group->ItemIndex(), 1) << "what follows takes the place";
  EXPECT_TRUE(group->Buttons(1)->Checked());
  group->Items()->Delete(1);
  EXPECT_EQ(group->ItemIndex(), 0);
  group->SetEnabled(false);
  EXPECT_FALSE(group->Buttons(0)->Enabled());
  EXPECT_THROW(group->SetItemIndex(1), EListError);
  EXPECT_THROW(group->SetColumns(0), EArgumentOutOfRangeException);
}

TEST_F(Statics, ARadioGroupsButtonsStandInColumns) {
  auto* group = MakeGroup();
  group->Items()->Add("Grey");
  group->SetColumns(2);
  ShowForm();
  const auto at = [&](int index) { return group->Buttons(index)->BoundsRect(); };
  EXPECT_EQ(at(0).Left, at(1).Left);
  EXPECT_EQ(at(0).Top, at(2).Top);
  EXPECT_GE(at(2).Left, at(0).Right);
  EXPECT_GE(at(1).Top, at(0).Bottom);
  group->SetColumns(4);
  EXPECT_EQ(at(0).Top, at(3).Top);
}

TEST_F(Statics, ARadioGroupComesBackFromAFormFile) {
  RegisterStandardClasses();
  TForm written(nullptr);
  written.SetName("Written");
  auto* group = new TRadioGroup(&written);
  group->SetName("Group");
  group->SetParent(&written);
  group->Items()->Add("one");
  group->Items()->Add("two");
  group->SetItemIndex(1);
  const std::string text = FormText(&written);
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("TRadioButton")));
  TForm read(nullptr);
  ReadForm(text, &read);
  auto* again = dynamic_cast<TRadioGroup*>(read.FindComponent("Group"));
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(again->ItemIndex(), 1);
  EXPECT_TRUE(again->Buttons(1)->Checked());
  EXPECT_EQ(FormText(&read), text);
}

TEST_F(Statics, ItemsAreCheckedByMouseKeyAndScreenReader) {
  auto* list = Make<TCheckListBox>(10, 10);
  for (const char* each : {"pear", "apple", "fig"}) list->Items()->Add(each);
  list->SetItemEnabled(2, false);
  int clicks = 0;
  list->OnClickCheck = [&](TObject*) { ++clicks; };
  ShowForm();
  const auto click = [&](int index, int x) {
    const TRect item = list->ItemRect(index);
    Click(*list, x, item.Top + item.Height() / 2);
  };
  click(0, 8);
  click(2, 8);
  click(1, 60);
  EXPECT_TRUE(list->Checked(0));
  EXPECT_FALSE(list->Checked(1)) << "a click on the text only selects";
  EXPECT_FALSE(list->Checked(2)) << "this one is not enabled";
  Key(VK_SPACE);
  EXPECT_TRUE(list->Checked(1));
  list->SetAllowGrayed(true);
  list->DoAccessiblePart({1});
  list->DoAccessiblePart({1});
  EXPECT_EQ(list->State(1), cbGrayed);
  EXPECT_TRUE(list->AccessibleParts()[1].State.Has(asMixed));
  EXPECT_EQ(clicks, 4);
  list->SetSorted(true);
  EXPECT_EQ(list->State(0), cbGrayed) << "states go with their items";
  EXPECT_EQ(list->State(2), cbChecked);
  list->RecreateWnd();
  list->CheckAll(cbChecked, false, false);
  EXPECT_EQ(list->State(0), cbGrayed);
  EXPECT_FALSE(list->Checked(1));
  EXPECT_THROW(list->State(3), EStringListError);
}

TEST_F(Statics, AStaticTextIsAsLargeAsItsTextAndFocusesItsControl) {
  auto* text = Make<TStaticText>(10, 10);
  auto* edit = Make<TEdit>(10, 60);
  Make<TEdit>(10, 90);
  text->SetCaption("&Street and house");
  text->SetFocusControl(edit);
  const int width = text->Width();
  text->SetBorderStyle(sbsSunken);
  EXPECT_EQ(text->Width(), width + 4);
  text->SetShowAccelChar(false);
  EXPECT_GT(text->Width(), width + 4);
  text->SetShowAccelChar(true);
  ShowForm();
  KeyWith(VK_MENU, 'S');
  EXPECT_TRUE(edit->Focused());
  EXPECT_EQ(edit->Accessible().Name, "Street and house");
  delete edit;
  EXPECT_EQ(text->FocusControl(), nullptr);
}

TEST_F(Statics, AHotKeyTakesWhatIsPressed) {
  auto* field = Make<THotKey>(10, 10);
  int changes = 0;
  field->OnChange = [&](TObject*) { ++changes; };
  ShowForm();
  field->SetFocus();
  testinput::TypeKey('K', {VK_CONTROL, VK_SHIFT});
  EXPECT_EQ(ShortCutToText(field->HotKey()), "Ctrl+Shift+K");
  EXPECT_GE(changes, 1);
  Type("x");
  EXPECT_EQ(ShortCutToText(field->HotKey()), "Alt+X") << "no letter without a modifier";
  field->SetHotKey(TextToShortCut("Ctrl+F5"));
  field->RecreateWnd();
  EXPECT_EQ(field->Accessible().Value, "Ctrl+F5");
  EXPECT_EQ(::SendMessageW(field->Handle(), HKM_GETHOTKEY, 0, 0), MAKEWORD(VK_F5, HOTKEYF_CONTROL));
}

TEST_F(Statics, ShapesAreDrawnInTheMiddle) {
  auto* shape = Make<TShape>(100, 50);
  shape->SetBounds(100, 50, 61, 41);
  shape->Brush()->SetColor(clRed);
  ShowForm();
  EXPECT_EQ(Find(clRed), TRect(101, 51, 160, 90)) << "inside the outline";
  shape->SetShape(stSquare);
  EXPECT_EQ(Find(clRed), TRect(111, 51, 150, 90));
  shape->Pen()->SetWidth(5);
  shape->SetShape(stRectangle);
  EXPECT_EQ(Find(clRed), TRect(105, 55, 156, 86));
  shape->SetShape(stCircle);
  EXPECT_EQ(Find(clRed).Width(), Find(clRed).Height());
  shape->SetBounds(100, 50, 2, 1);
  EXPECT_EQ(Find(clRed), TRect()) << "no room for the inside";
}

TEST_F(Statics, APaintBoxShowsWhatItsHandlerDraws) {
  auto* box = Make<TPaintBox>(20, 30);
  box->OnPaint = [box](TObject*) {
    box->Canvas()->Brush()->SetColor(clLime);
    box->Canvas()->FillRect(TRect(1, 2, 5, 6));
  };
  ShowForm();
  EXPECT_EQ(Find(clLime), TRect(21, 32, 25, 36));
}

}  // namespace
}  // namespace vcl
