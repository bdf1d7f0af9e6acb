// Tool bars and cool bars.
#include "tests/support/screenreader.h"
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

using testing::ElementsAre;
using testinput::PumpUntil;

class ToolBars : public TStandardForm {
 protected:
  ToolBars() { Bar = Make<TToolBar>(0, 0); }
  TToolButton* Add(const std::string& caption, TToolButtonStyle style = tbsButton,
                   TWinControl* parent = nullptr) {
    auto* button = new TToolButton(&Form);
    button->SetStyle(style);
    button->SetCaption(caption);
    button->SetParent(parent ? parent : Bar);
    button->OnClick = [this, caption](TObject*) { Heard += caption + " "; };
    return button;
  }
  TImageList* Pictures(TColor color) {
    auto* images = new TImageList(&Form);
    TBitmap picture(16, 16);
    picture.Canvas()->Brush()->SetColor(color);
    picture.Canvas()->FillRect({0, 0, 16, 16});
    images->Add(&picture, nullptr);
    return images;
  }
  std::vector<std::string> Order() {
    std::vector<std::string> captions;
    for (int i = 0; i < Bar->ButtonCount(); ++i) {
      auto* button = dynamic_cast<TToolButton*>(Bar->Buttons(i));
      captions.push_back(button ? button->Caption() : "(control)");
    }
    return captions;
  }

  TRecreatable<TToolBar>* Bar;
  std::string Heard;
};

TEST_F(ToolBars, PutTheirControlsOneBehindAnotherAndWrapFullRows) {
  TToolButton* one = Add("one");
  TToolButton* space = Add("", tbsSeparator);
  TToolButton* two = Add("two");
  auto* edit = Make<TEdit>(0, 0, Bar);
  edit->SetBounds(0, 0, 100, 18);
  ShowForm();
  EXPECT_EQ(one->BoundsRect(), TRect(0, 0, 23, 22));
  EXPECT_EQ(space->BoundsRect(), TRect(23, 0, 31, 22));
  EXPECT_EQ(two->BoundsRect(), TRect(31, 0, 54, 22));
  EXPECT_EQ(edit->BoundsRect(), TRect(54, 2, 154, 20));
  // The bar is as high as its rows, and as wide as the form.
  EXPECT_EQ(Bar->BoundsRect(), TRect(0, 0, 500, 22));
  space->SetVisible(false);
  EXPECT_EQ(two->Left(), 23);
  one->SetWrap(true);
  EXPECT_EQ(two->BoundsRect(), TRect(0, 22, 23, 44));
  EXPECT_EQ(Bar->Height(), 44);
  one->SetWrap(false);
  Form.SetWidth(120);
  EXPECT_EQ(edit->BoundsRect(), TRect(0, 22, 100, 40));
  EXPECT_EQ(Bar->BoundsRect(), TRect(0, 0, 120, 40));
  EXPECT_THROW(Bar->SetButtonWidth(-1), EArgumentOutOfRangeException);
  EXPECT_THROW(Bar->SetControlIndex(one, 4), EListError);
  EXPECT_THROW(Bar->SetControlIndex(Bar, 0), EListError);
}

TEST_F(ToolBars, MakeTheirButtonsAsLargeAsWhatTheyShow) {
  TToolButton* one = Add("W");
  TToolButton* two = Add("A much longer caption");
  ShowForm();
  Bar->SetShowCaptions(true);
  EXPECT_GT(two->Width(), 80);
  EXPECT_EQ(one->Width(), two->Width());
  one->SetAutoSize(true);
  EXPECT_LT(one->Width(), 40);
  Bar->SetShowCaptions(false);
  EXPECT_EQ(two->Width(), 23);
  two->SetStyle(tbsTextButton);
  EXPECT_GT(two->Width(), 80);
  const int height = two->Height();
  TImageList* images = Pictures(clRed);
  Bar->SetImages(images);
  EXPECT_GT(two->Height(), height);
  Bar->SetList(true);
  EXPECT_EQ(two->Height(), height);
  delete images;
  EXPECT_EQ(Bar->Images(), nullptr);
}

TEST_F(ToolBars, AControlThatIsMovedTakesThatPlaceInTheOrder) {
  TToolButton* one = Add("one");
  TToolButton* two = Add("two");
  TToolButton* three = Add("three");
  ShowForm();
  EXPECT_THAT(Order(), ElementsAre("one", "two", "three"));
  three->SetLeft(0);
  EXPECT_THAT(Order(), ElementsAre("three", "one", "two"));
  EXPECT_EQ(three->Left(), 0);
  EXPECT_EQ(one->Left(), 23);
  three->SetLeft(1000);
  EXPECT_THAT(Order(), ElementsAre("one", "two", "three"));
  EXPECT_EQ(three->Left(), 46);
  Bar->SetControlIndex(two, 2);
  EXPECT_THAT(Order(), ElementsAre("one", "three", "two"));
  // At other dots per inch they keep their order, and back they have their sizes again.
  Form.ScaleBy(144, 96);
  EXPECT_THAT(Order(), ElementsAre("one", "three", "two"));
  EXPECT_EQ(one->BoundsRect(), TRect(0, 0, 35, 33));
  Form.ScaleBy(96, 144);
  EXPECT_EQ(two->BoundsRect(), TRect(46, 0, 69, 22));
}

TEST_F(ToolBars, ButtonsAreClickedStayDownAndTakeEachOtherUp) {
  TToolButton* plain = Add("plain");
  TToolButton* check = Add("check", tbsCheck);
  TToolButton* left = Add("left", tbsCheck);
  TToolButton* right = Add("right", tbsCheck);
  left->SetGrouped(true);
  right->SetGrouped(true);
  ShowForm();
  Click(*plain);
  Click(*check);
  EXPECT_TRUE(check->Down());
  Click(*left);
  Click(*right);
  EXPECT_FALSE(left->Down());
  EXPECT_TRUE(right->Down());
  EXPECT_TRUE(check->Down());
  Click(*right);
  EXPECT_TRUE(right->Down());
  right->SetAllowAllUp(true);
  Click(*right);
  EXPECT_FALSE(right->Down());
  check->SetIndeterminate(true);
  EXPECT_FALSE(check->Down());
  Click(*check);
  EXPECT_TRUE(check->Down());
  EXPECT_FALSE(check->Indeterminate());
  EXPECT_EQ(Heard, "plain check left right right right check ");
  Heard.clear();
  plain->SetEnabled(false);
  Click(*plain);
  EXPECT_EQ(Heard, "");
}

TEST_F(ToolBars, ButtonsFollowTheirActions) {
  auto* list = new TActionList(&Form);
  auto* action = new TAction(&Form);
  action->SetActionList(list);
  action->SetCaption("Save");
  action->SetHint("Saves it");
  action->SetImageIndex(3);
  action->SetChecked(true);
  int executed = 0;
  action->OnExecute = [&](TObject*) { ++executed; };
  TToolButton* button = Add("", tbsCheck);
  button->OnClick = nullptr;
  button->SetAction(action);
  EXPECT_EQ(button->Caption(), "Save");
  EXPECT_EQ(button->Hint(), "Saves it");
  EXPECT_EQ(button->ImageIndex(), 3);
  EXPECT_TRUE(button->Down());
  ShowForm();
  Click(*button);
  EXPECT_EQ(executed, 1);
  action->SetEnabled(false);
  EXPECT_FALSE(button->Enabled());
  action->SetChecked(false);
  EXPECT_FALSE(button->Down());
  const std::string text = FormText(button);
  EXPECT_EQ(text.find("ImageIndex"), std::string::npos) << text;
  EXPECT_EQ(text.find("Down"), std::string::npos) << text;
}

TEST_F(ToolBars, TheArrowDropsTheMenuDownAndTheRestClicks) {
  auto* menu = new TPopupMenu(&Form);
  auto* item = new TMenuItem(menu);
  item->SetCaption("Item");
  item->OnClick = [&](TObject*) { Heard += "item "; };
  menu->Items()->Add(item);
  bool up = false;
  menu->OnPopup = [&](TObject*) { up = true; };
  TToolButton* button = Add("button", tbsDropDown);
  button->SetDropdownMenu(menu);
  ShowForm();
  EXPECT_EQ(button->Width(), 35);
  Click(*button, 5, 10);
  EXPECT_EQ(Heard, "button ");
  {
    const testinput::TKeysWhen keys([&] { return up; }, {VK_DOWN, VK_RETURN});
    Click(*button, 30, 10);
    EXPECT_TRUE(PumpUntil([&] { return Heard == "button item "; })) << Heard;
  }
  EXPECT_EQ(menu->PopupComponent(), button);
  // One without a click of its own drops down wherever it is pressed.
  button->OnClick = nullptr;
  up = false;
  {
    const testinput::TKeysWhen keys([&] { return up; }, {VK_DOWN, VK_RETURN});
    Click(*button, 5, 10);
    EXPECT_TRUE(PumpUntil([&] { return Heard == "button item item "; })) << Heard;
  }
  delete menu;
  EXPECT_EQ(button->DropdownMenu(), nullptr);
  EXPECT_FALSE(button->DropDown());
}

TEST_F(ToolBars, TheKeyboardGoesFromButtonToButton) {
  TToolButton* one = Add("one");
  Add("", tbsSeparator);
  TToolButton* off = Add("off");
  off->SetEnabled(false);
  TToolButton* two = Add("two");
  ShowForm();
  EXPECT_FALSE(Bar->TabStop());
  Bar->SetFocus();
  EXPECT_EQ(Bar->Current(), one);
  Key(VK_RIGHT);
  EXPECT_EQ(Bar->Current(), two);
  Key(VK_SPACE);
  Key(VK_RIGHT);
  Key(VK_RETURN);
  Key(VK_END);
  EXPECT_EQ(Bar->Current(), two);
  EXPECT_EQ(Heard, "two one ");
  delete two;
  EXPECT_EQ(Bar->Current(), nullptr);
  Bar->SetShowCaptions(true);
  one->SetCaption("&one");
  KeyWith(VK_MENU, 'O');
  EXPECT_EQ(Heard, "two one one ");
}

TEST_F(ToolBars, WhatDoesNotFitIsInAMenu) {
  for (const char* each : {"one", "two", "three", "four", "five"}) Add(each);
  Bar->SetWrapable(false);
  ShowForm();
  EXPECT_TRUE(Bar->HiddenControls().empty());
  Form.SetWidth(90);
  // 90 pixels less 14 for the menu's button.
  ASSERT_EQ(Bar->HiddenControls().size(), 2u);
  EXPECT_EQ(Bar->HiddenControls().front(), Bar->Buttons(3));
  EXPECT_LE(Bar->Buttons(3)->Left() + Bar->Buttons(3)->Width(), 0);
  {
    const auto menuIsUp = [] { return ::FindWindowW(L"#32768", nullptr) != nullptr; };
    const testinput::TKeysWhen keys(menuIsUp, {VK_DOWN, VK_DOWN, VK_RETURN});
    Click(*Bar, 84, 10);
    EXPECT_TRUE(PumpUntil([&] { return !Heard.empty(); }));
  }
  EXPECT_EQ(Heard, "five ");
  Form.SetWidth(500);
  EXPECT_TRUE(Bar->HiddenControls().empty());
  EXPECT_EQ(Bar->Buttons(4)->Left(), 92);
}

TEST_F(ToolBars, ButtonsShowPicturesByTheirState) {
  TToolButton* button = Add("one");
  button->SetImageIndex(0);
  Bar->SetImages(Pictures(clRed));
  Bar->SetHotImages(Pictures(clLime));
  Bar->SetDisabledImages(Pictures(clBlue));
  ShowForm();
  EXPECT_EQ(Find(clRed), TRect(4, 3, 20, 19));
  testinput::MoveMouse(testinput::MiddleOf(button));
  EXPECT_TRUE(PumpUntil([&] { return Find(clLime) == TRect(4, 3, 20, 19); }));
  button->SetEnabled(false);
  EXPECT_EQ(Find(clBlue), TRect(4, 3, 20, 19));
  button->SetImageIndex(1);
  EXPECT_TRUE(Find(clBlue).Empty());
}

TEST_F(ToolBars, ATransparentBarShowsWhatIsBehindIt) {
  auto* panel = Make<TPanel>(0, 100);
  panel->SetBounds(0, 100, 200, 60);
  panel->SetColor(clLime);
  panel->SetBevelOuter(bvNone);
  panel->SetCaption("");
  Bar->SetParent(panel);
  Bar->SetTransparent(true);
  Add("one");
  ShowForm();
  EXPECT_EQ(Find(clLime), TRect(0, 100, 200, 160));
  Bar->SetTransparent(false);
  Bar->SetColor(clWhite);
  EXPECT_EQ(Find(clLime), TRect(0, 122, 200, 160));
}

TEST_F(ToolBars, FormFilesHoldTheButtonsInOrder) {
  RegisterStandardClasses();
  Form.SetName("Form1");
  Bar->SetName("Bar");
  TToolButton* one = Add("one");
  TToolButton* two = Add("two");
  TToolButton* space = Add("", tbsSeparator);
  one->SetName("One");
  two->SetName("Two");
  space->SetName("Space");
  space->SetWidth(20);
  auto* edit = Make<TEdit>(0, 0, Bar);
  edit->SetName("Edit");
  Bar->SetControlIndex(edit, 1);
  Bar->SetControlIndex(two, 0);
  two->SetStyle(tbsCheck);
  two->SetDown(true);
  const std::string text = FormText(&Form);
  TForm again(nullptr);
  ReadForm(text, &again);
  auto* bar = dynamic_cast<TToolBar*>(again.FindComponent("Bar"));
  ASSERT_TRUE(bar);
  std::vector<std::string> names;
  for (int i = 0; i < bar->ButtonCount(); ++i) names.push_back(bar->Buttons(i)->Name());
  EXPECT_THAT(names, ElementsAre("Two", "One", "Edit", "Space"));
  EXPECT_EQ(bar->Buttons(3)->Width(), 20);
  EXPECT_EQ(FormText(&again), text);
}

TEST_F(ToolBars, ScreenReadersKnowTheButtons) {
  using namespace screenreader;
  TToolButton* check = Add("&Bold", tbsCheck);
  TToolButton* named = Add("");
  named->SetHint("Save|Saves the file");
  check->SetDown(true);
  for (int i = 0; i < 5; ++i) Add("more");
  Bar->SetWrapable(false);
  ShowForm();
  const TSpoken spoken = OfWindow(Bar->Handle());
  EXPECT_EQ(spoken.Role(), ROLE_SYSTEM_TOOLBAR);
  const TSpoken bold = Named(spoken, "Bold");
  ASSERT_TRUE(bold);
  EXPECT_EQ(bold.Role(), ROLE_SYSTEM_CHECKBUTTON);
  EXPECT_TRUE(bold.Has(STATE_SYSTEM_CHECKED));
  EXPECT_EQ(bold.Action(), "Press");
  bold.Do();
  EXPECT_TRUE(PumpUntil([&] { return !check->Down(); }));
  EXPECT_EQ(Heard, "&Bold ");
  EXPECT_TRUE(Named(spoken, "Save"));
  EXPECT_FALSE(Named(spoken, "More buttons"));
  Form.SetWidth(80);
  const TSpoken more = Named(spoken, "More buttons");
  ASSERT_TRUE(more);
  EXPECT_EQ(more.Role(), ROLE_SYSTEM_PUSHBUTTON);
}

// Cool bars.

class CoolBars : public ToolBars {
 protected:
  CoolBars() { Cool = Make<TCoolBar>(0, 0); }
  static int RowOf(TCoolBar& cool, int place) {
    RECT rect{};
    ::SendMessageW(cool.Handle(), RB_GETRECT, static_cast<WPARAM>(place),
                   reinterpret_cast<LPARAM>(&rect));
    return static_cast<int>(rect.top);
  }
  std::vector<std::string> Texts() {
    std::vector<std::string> texts;
    for (int i = 0; i < Cool->Bands()->Count(); ++i) {
      texts.push_back(Cool->Bands()->Items(i)->Text());
    }
    return texts;
  }
  TRecreatable<TCoolBar>* Cool;
};

TEST_F(CoolBars, EachControlHasABandThatGoesWithIt) {
  auto* edit = Make<TEdit>(0, 0, Cool);
  auto* button = Make<TButton>(0, 0, Cool);
  ASSERT_EQ(Cool->Bands()->Count(), 2);
  EXPECT_EQ(Cool->Bands()->Items(0)->Control(), edit);
  EXPECT_EQ(Cool->Bands()->FindBand(button), Cool->Bands()->Items(1));
  ShowForm();
  EXPECT_TRUE(::IsWindowVisible(edit->Handle()));
  EXPECT_GT(button->Top(), edit->Top());
  const int two = Cool->Height();
  Cool->Bands()->Items(1)->SetBreak(false);
  EXPECT_TRUE(PumpUntil([&] { return Cool->Height() < two; }));
  EXPECT_GT(button->Left(), edit->Left());
  Cool->Bands()->Items(0)->SetVisible(false);
  EXPECT_FALSE(::IsWindowVisible(edit->Handle()));
  Cool->Bands()->Items(0)->SetVisible(true);
  EXPECT_TRUE(::IsWindowVisible(edit->Handle()));
  delete button;
  EXPECT_EQ(Cool->Bands()->Count(), 1);
  EXPECT_EQ(::SendMessageW(Cool->Handle(), RB_GETBANDCOUNT, 0, 0), 1);
  EXPECT_THROW(Cool->Bands()->Items(0)->SetControl(&Form), EInvalidOperation);
  EXPECT_THROW(Cool->SetBandBorderStyle(bsDialog), EArgumentOutOfRangeException);
  auto* panel = Make<TPanel>(0, 0);
  Cool->Bands()->Items(0)->SetControl(panel);
  EXPECT_EQ(panel->Parent(), Cool);
  EXPECT_EQ(Cool->Bands()->Count(), 1);
}

TEST_F(CoolBars, TheUserDragsBandsAndTheyStayThere) {
  for (const char* each : {"one", "two"}) {
    auto* edit = Make<TEdit>(0, 0, Cool);
    Cool->Bands()->FindBand(edit)->SetText(each);
  }
  Cool->Bands()->Items(1)->SetBreak(false);
  Cool->Bands()->Items(0)->SetWidth(200);
  int changes = 0;
  Cool->OnChange = [&](TObject*) { ++changes; };
  ShowForm();
  RECT second{};
  ::SendMessageW(Cool->Handle(), RB_GETRECT, 1, reinterpret_cast<LPARAM>(&second));
  const TPoint grip = Cool->ClientToScreen({static_cast<int>(second.left) + 3, 10});
  testinput::MoveMouse(grip);
  testinput::LeftDown();
  testinput::MoveMouse({grip.X + 30, grip.Y});
  testinput::MoveMouse({grip.X + 60, grip.Y});
  testinput::LeftUp();
  EXPECT_TRUE(PumpUntil([&] { return changes > 0; }));
  RECT moved{};
  ::SendMessageW(Cool->Handle(), RB_GETRECT, 1, reinterpret_cast<LPARAM>(&moved));
  EXPECT_NEAR(moved.left, second.left + 60, 10);
  const int width = Cool->Bands()->Items(0)->Width();
  Cool->RecreateWnd();
  EXPECT_EQ(Cool->Bands()->Items(0)->Width(), width);
  ::SendMessageW(Cool->Handle(), RB_GETRECT, 1, reinterpret_cast<LPARAM>(&second));
  EXPECT_NEAR(second.left, moved.left, 3);
  // A band that the window has moved to another place is at that place of the collection, too.
  const TPoint first = Cool->ClientToScreen({3, 10});
  testinput::MoveMouse(first);
  testinput::LeftDown();
  for (int x = 0; x <= 400; x += 50) testinput::MoveMouse({first.X + x, first.Y});
  testinput::LeftUp();
  EXPECT_TRUE(PumpUntil([&] { return Texts() == std::vector<std::string>{"two", "one"}; }));
}

TEST_F(CoolBars, ABarOnThemHidesWhatItsBandHasNoRoomFor) {
  Bar->SetParent(Cool);
  for (const char* each : {"one", "two", "three", "four"}) Add(each);
  ShowForm();
  EXPECT_TRUE(Bar->HiddenControls().empty());
  EXPECT_EQ(Bar->Buttons(3)->Top(), 0);
  Form.SetWidth(80);
  EXPECT_TRUE(PumpUntil([&] { return !Bar->HiddenControls().empty(); }));
  EXPECT_EQ(Bar->Left() + Bar->Width(),
            Cool->Bands()->FindBand(Bar)->Control()->BoundsRect().Right);
  EXPECT_LE(Bar->Width(), 80);
}

TEST_F(CoolBars, FollowControlsWhoseWindowsAreMadeAnew) {
  auto* edit = Make<TEdit>(0, 0, Cool);
  ShowForm();
  const TRect place = edit->BoundsRect();
  edit->RecreateWnd();
  const auto child = [&] {
    REBARBANDINFOW asked{};
    asked.cbSize = REBARBANDINFOW_V6_SIZE;
    asked.fMask = RBBIM_CHILD;
    ::SendMessageW(Cool->Handle(), RB_GETBANDINFOW, 0, reinterpret_cast<LPARAM>(&asked));
    return asked.hwndChild;
  };
  EXPECT_TRUE(PumpUntil([&] { return child() == edit->Handle(); }));
  EXPECT_EQ(edit->BoundsRect(), place);
  EXPECT_TRUE(::IsWindowVisible(edit->Handle()));
}

TEST_F(CoolBars, FormFilesHoldTheBands) {
  RegisterStandardClasses();
  Form.SetName("Form1");
  Bar->SetName("Bar");
  Cool->SetName("Cool");
  auto* edit = Make<TEdit>(0, 0, Cool);
  edit->SetName("Edit");
  Bar->SetParent(Cool);
  Cool->Bands()->Items(0)->SetText("Address");
  Cool->Bands()->Items(1)->SetIndex(0);
  Cool->Bands()->Items(0)->SetFixedSize(true);
  const std::string text = FormText(&Form);
  TForm again(nullptr);
  ReadForm(text, &again);
  again.SetBounds(40, 40, 500, 400);
  auto* cool = dynamic_cast<TCoolBar*>(again.FindComponent("Cool"));
  ASSERT_TRUE(cool);
  ASSERT_EQ(cool->Bands()->Count(), 2);
  EXPECT_EQ(cool->Bands()->Items(0)->Control(), again.FindComponent("Bar"));
  EXPECT_TRUE(cool->Bands()->Items(0)->FixedSize());
  EXPECT_EQ(cool->Bands()->Items(1)->Text(), "Address");
  EXPECT_EQ(cool->Bands()->Items(1)->DisplayName(), "Address");
  // What the windows make of them is no change of them.
  const auto bands = [](const std::string& form) {
    const std::size_t begin = form.find("Bands");
    return form.substr(begin, form.find("end>") - begin);
  };
  again.Show();
  testinput::Pump();
  EXPECT_EQ(bands(FormText(&again)), bands(text));
}

}  // namespace
}  // namespace vcl
