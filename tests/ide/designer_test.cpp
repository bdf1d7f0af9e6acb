// The designer's window, by mouse and keyboard.
#include <gmock/gmock.h>

#include <chrono>

#include "tests/design/dialogs.h"
#include "tests/ide/designerfixture.h"

namespace ide {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::ThrowsMessage;

TEST_F(Designer, FormsAreMadeByMouseAndComeBackFromTheirFile) {
  Place("TQELButton", At(17, 22), At(17, 22));
  Place("TQELBackground", At(200, 100), At(200, 100));
  Place("TPanel", At(42, 82), At(181, 169));
  ASSERT_TRUE(Find("QELButton1") && Find("Panel1") && Find<TComponent>("QELBackground1"));
  EXPECT_EQ(Find("QELButton1")->BoundsRect().TopLeft(), Point(16, 24));
  EXPECT_EQ(Find("Panel1")->BoundsRect(), Rect(40, 80, 184, 168));
  EXPECT_EQ(TDesignSurface::BoundsOf(*Root().FindComponent("QELBackground1")).TopLeft(),
            Point(200, 104));
  // Into the container under the mouse.
  Place("TEdit", At(60, 100), At(60, 100));
  EXPECT_EQ(Find("Edit1")->Parent(), Find("Panel1"));
  const std::string made = Document().Text();

  // Moved with the grid, sized by a grabber, and taken back by Escape.
  Drag(MiddleOf(Find("QELButton1")), MiddleOf(Find("QELButton1")) + Point(30, -9));
  EXPECT_EQ(Find("QELButton1")->BoundsRect().TopLeft(), Point(48, 16));
  Click(At(150, 160));
  EXPECT_THAT(SelectedNames(), ElementsAre("Panel1"));
  Drag(At(183, 167), At(230, 191));
  EXPECT_EQ(Find("Panel1")->BoundsRect(), Rect(40, 80, 232, 192));
  MoveMouse(At(200, 180));
  LeftDown();
  MoveMouse(At(250, 250));
  EXPECT_NE(Find("Panel1")->Left(), 40);
  TypeKey(VK_ESCAPE);
  LeftUp();
  EXPECT_EQ(Find("Panel1")->BoundsRect(), Rect(40, 80, 232, 192));
  TypeKey(VK_RIGHT, {VK_CONTROL});
  TypeKey(VK_RIGHT, {VK_CONTROL});
  EXPECT_EQ(Find("Panel1")->Left(), 42);

  // The two steps of the keyboard are one; after all of them the text is what it was.
  const std::string last = Document().Text();
  for (int i = 0; i < 3; ++i) TypeKey('Z', {VK_CONTROL});
  EXPECT_EQ(Document().Text(), made);
  for (int i = 0; i < 3; ++i) TypeKey('Y', {VK_CONTROL});
  EXPECT_EQ(Document().Text(), last);
  EXPECT_THAT(SelectedNames(), ElementsAre("Panel1"));

  Document().Save(File("made.dfm"));
  EXPECT_EQ(Read("made.dfm"), last);
  EXPECT_FALSE(Document().Modified());
  TypeKey(VK_F4, {VK_CONTROL});
  ASSERT_TRUE(Window->Open(File("made.dfm")));
  EXPECT_EQ(Document().Text(), last);
  EXPECT_THAT(Messages(), ElementsAre());

  // As an add-in saves and forgets it.
  Place("TButton", At(300, 200), At(300, 200));
  Window->SaveFiles();
  EXPECT_EQ(Read("made.dfm"), Document().Text());
  EXPECT_THAT(Window->RememberedFiles(), Contains(File("made.dfm")));
  Window->ForgetFile(File("made.dfm"));
  EXPECT_THAT(Window->RememberedFiles(), Not(Contains(File("made.dfm"))));
}

TEST_F(Designer, NamesThatFormFilesOrUnitsCannotHoldAreRefused) {
  OpenForm(" object Button1: TButton\n end\n");
  const std::string before = Document().Text();
  const auto name = [&](TComponent& component, const std::string& text) {
    MakePropertyEditor(It(), {{&component, component.ClassType().FindPublished("Name")}})
        ->SetValue(text);
  };
  TComponent& button = *Find<TComponent>("Button1");
  const TPropInfo& click = *button.ClassType().FindPublished("OnClick");
  for (const std::string& each :
       {std::string("Item"), std::string("true"), std::string("False"), std::string("NIL"),
        std::string("end"), std::string("class"), std::string("Caption"), std::string("OnClick"),
        std::string("Class"), std::string("LoadForm"), std::string("TForm"), std::string("TF"),
        std::string(300, 'a')}) {
    EXPECT_THAT([&] { name(button, each); }, ThrowsMessage<EComponentError>(HasSubstr(each)));
    EXPECT_THAT([&] { It().CreateMethod(each, click); },
                ThrowsMessage<EComponentError>(HasSubstr(each)));
  }
  It().CreateMethod("Go", click);
  for (const char* each : {"Form", "Item"}) {
    EXPECT_THAT([&] { name(Root(), each); }, ThrowsMessage<EComponentError>(HasSubstr(each)));
  }
  EXPECT_THROW(name(button, "go"), EComponentError) << "a handler's";
  EXPECT_EQ(Document().Text(), before);
  name(button, "TEmpty");
  EXPECT_THROW(name(Root(), "Empty"), EComponentError) << "its class would be called as the button";
  name(button, "Class_");  // What only looks alike is a name like others.
  name(Root(), "Delete");
  EXPECT_THAT(Document().Text(),
              AllOf(HasSubstr("object Class_: TButton"), HasSubstr("object Delete: TDelete")));
}

TEST_F(Designer, WhatIsDraggedOutOfTheFormStaysWithinReach) {
  OpenForm(
      " object A: TPanel\n Left = 16\n Top = 16\n Width = 80\n Height = 40\n end\n"
      " object B: TPanel\n Left = 200\n Top = 16\n Width = 80\n Height = 40\n end\n");
  const auto seen = [&](const char* name) {
    return Intersection(Find(name)->BoundsRect(), Root().ClientRect());
  };
  for (const TPoint by : {Point(-300, 0), Point(600, 0), Point(0, -200), Point(0, 500)}) {
    const TPoint from = Find("A")->ClientToScreen({40, 20});
    Drag(from, from + by);
    EXPECT_FALSE(seen("A").Empty()) << by.X << ", " << by.Y;
    It().Undo();
  }
  // Those that go together keep their distance, and the arrow keys lead out no more than the mouse.
  It().SetSelection({Find("A"), Find("B")});
  const TPoint from = Find("B")->ClientToScreen({40, 20});
  Drag(from, from + Point(-500, 0));
  EXPECT_FALSE(seen("A").Empty());
  EXPECT_EQ(Find("B")->Left() - Find("A")->Left(), 184);
  It().SetSelection({Find("A")});
  for (int i = 0; i < 100; ++i) TypeKey(VK_UP, {VK_CONTROL});
  EXPECT_FALSE(seen("A").Empty());
}

TEST_F(Designer, SelectsWithTheMouseAndTheKeyboard) {
  Write("four.dfm",
        "object F: TF\n Left = 40\n Top = 30\n ClientHeight = 300\n ClientWidth = 420\n"
        " object A: TButton\n Left = 16\n Top = 16\n Width = 60\n Height = 24\n Enabled = False\n"
        " Visible = False\n end\n"
        " object B: TLabel\n Left = 100\n Top = 16\n Width = 60\n Height = 24\n AutoSize = False\n"
        " end\n"
        " object C: TComboBox\n Left = 16\n Top = 80\n Width = 90\n Height = 21\n end\n"
        " object D: TTimer\n Left = 200\n Top = 200\n end\nend\n");
  ASSERT_TRUE(Window->Open(File("four.dfm")));
  for (const char* name : {"A", "B", "C"}) {
    Click(MiddleOf(Find(name)));
    EXPECT_THAT(SelectedNames(), ElementsAre(name));
  }
  Click(At(210, 210));
  EXPECT_THAT(SelectedNames(), ElementsAre("D"));
  // The key goes down last: moving the mouse lets go of keys that are not down on the real
  // keyboard.
  MoveMouse(MiddleOf(Find("A")));
  SendKey(VK_SHIFT, true);
  LeftDown();
  LeftUp();
  SendKey(VK_SHIFT, false);
  EXPECT_THAT(SelectedNames(), ElementsAre("D", "A"));
  Drag(At(8, 8), At(120, 30));
  EXPECT_THAT(SelectedNames(), testing::UnorderedElementsAre("A", "B"));
  Click(MiddleOf(Find("C")));
  TypeKey(VK_TAB);
  EXPECT_THAT(SelectedNames(), ElementsAre("D"));
  // Hidden icons cannot be selected by either.
  It().SetShowNonVisual(false);
  Click(At(210, 210));
  EXPECT_THAT(SelectedNames(), ElementsAre("F"));
  Drag(At(190, 190), At(240, 240));
  EXPECT_THAT(SelectedNames(), ElementsAre("F"));
  Click(MiddleOf(Find("C")) + Point(-20, 0));
  TypeKey(VK_TAB);
  EXPECT_THAT(SelectedNames(), ElementsAre("A"));
  // A new one shows itself, and the others with it.
  Place("TTimer", At(240, 200), At(240, 200));
  EXPECT_TRUE(It().ShowNonVisual());
  It().Undo();
  Click(At(210, 212));
  EXPECT_THAT(SelectedNames(), ElementsAre("D"));
  TypeKey(VK_ESCAPE);
  EXPECT_THAT(SelectedNames(), ElementsAre("F"));
  // Copied, removed and pasted, as text.
  // Elsewhere than before, or two clicks would be a double click.
  Click(MiddleOf(Find("C")) + Point(20, 0));
  EXPECT_THAT(SelectedNames(), ElementsAre("C"));
  TypeKey('C', {VK_CONTROL});
  TypeKey(VK_DELETE);
  EXPECT_FALSE(Find("C"));
  TypeKey('V', {VK_CONTROL});
  ASSERT_TRUE(Find("C"));
  EXPECT_EQ(Find("C")->BoundsRect().TopLeft(), Point(16, 80));
  TypeKey('V', {VK_CONTROL});
  ASSERT_TRUE(Find("ComboBox1")) << Document().Text();
  EXPECT_EQ(Find("ComboBox1")->BoundsRect().TopLeft(), Point(24, 88));
}

TEST_F(Designer, KeepsWhatItDoesNotKnowThroughUndo) {
  const std::string text =
      "object F: TF\n  Left = 40\n  Top = 30\n  Caption = 'F'\n  ClientHeight = 300\n"
      "  ClientWidth = 420\n  Foreign = 12\n  OnCreate = FormCreate\n"
      "  object Panel: TNoSuchPanel\n    Left = 16\n    Top = 16\n    Width = 160\n"
      "    Height = 80\n    Bevel = [a, b]\n    object Inner: TNoSuchEdit\n      Left = 4\n"
      "    end\n  end\n  object Guard: TQELOnlyOne\n    Instances = 1\n    Left = 200\n    Top = "
      "16\n  end\n"
      "  object Guard2: TQELOnlyOne\n    Left = 240\n    Top = 16\n  end\nend\n";
  Write("foreign.dfm", text);
  ASSERT_TRUE(Window->Open(File("foreign.dfm")));
  EXPECT_EQ(Document().Text(), text);
  EXPECT_THAT(Messages(), ElementsAre(HasSubstr("Line 7: F.Foreign"),
                                      HasSubstr("Line 9: Panel: Class TNoSuchPanel not found"),
                                      HasSubstr("Line 24: Guard2: no TQELOnlyOne can be made")));
  Drag(MiddleOf(Find("Panel")), MiddleOf(Find("Panel")) + Point(16, 0));
  EXPECT_THAT(Document().Text(), HasSubstr("Left = 32\n    Top = 16\n    Width = 160"));
  It().Undo();
  EXPECT_EQ(Document().Text(), text);
  EXPECT_FALSE(Document().Modified());
  EXPECT_EQ(Messages().size(), 3u);
  // Dropping a second one is refused, and the form is as before.
  It().Add(FindClass("TQELOnlyOne"));
  EXPECT_EQ(Document().Text(), text);
  EXPECT_EQ(Messages().size(), 4u);
}

TEST_F(Designer, SurvivesDamagedFiles) {
  const std::string before = Document().Text();
  for (const char* damaged :
       {"", "object", "object F: TF\n  Left = \nend\n", "object F: TF\n  Left = 1\n", "TPF0\x03",
        "object F: TF\n  object A: TButton\n"}) {
    Write("damaged.dfm", damaged);
    Window->MessageList().Items()->Clear();
    EXPECT_FALSE(Window->Open(File("damaged.dfm"))) << damaged;
    EXPECT_THAT(Messages(), ElementsAre(HasSubstr("damaged.dfm"))) << damaged;
    EXPECT_EQ(Document().Text(), before);
  }
  EXPECT_FALSE(Window->Open(File("missing.dfm")));
}

TEST_F(Designer, HugeNumbersAreShownOrRefused) {
  OpenForm(
      " object A: TPanel\n BevelWidth = 2147483647\n BorderWidth = 2147483647\n end\n"
      " object B: TTrackBar\n Max = 2000000000\n Min = -2000000000\n end\n");
  Window->Update();
  EXPECT_EQ(Find<TPanel>("A")->BevelWidth(), 2147483647);
  EXPECT_EQ(Find<TTrackBar>("B")->Max(), 2000000000);
  EXPECT_THAT(Messages(), ElementsAre(HasSubstr("from -2000000000 to 2000000000")));
}

TEST_F(Designer, OpensAFormOfManyComponents) {
  std::string text = "object F: TF\n  ClientHeight = 600\n  ClientWidth = 800\n";
  for (int i = 0; i < 500; ++i) {
    text += Concat("  object Button", std::to_string(i),
                   ": TQELButton\n    Left = ", std::to_string(i % 25 * 30),
                   "\n    Top = ", std::to_string(i / 25 * 28),
                   "\n    Width = 28\n    Height = 25\n  end\n");
  }
  Write("many.dfm", text + "end\n");
  const auto start = std::chrono::steady_clock::now();
  ASSERT_TRUE(Window->Open(File("many.dfm")));
  Window->Update();
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
  std::printf("500 components opened in %.0f ms\n", took.count());
  EXPECT_EQ(Root().ComponentCount(), 500);
}

TEST_F(Designer, PartsFollowTheForm) {
  Write("bar.dfm",
        "object F: TF\n ClientHeight = 300\n ClientWidth = 420\n object Bar: TStatusBar\n"
        "  Panels = <\n   item\n   end>\n end\nend\n");
  ASSERT_TRUE(Window->Open(File("bar.dfm")));
  TPersistent* bar = Find("Bar");
  It().SetSelection({bar});
  EXPECT_EQ(Window->Structure().Selected(), Window->Structure().NodeOf("Bar"));
  TStatusPanels* panels = Find<TStatusBar>("Bar")->Panels();
  It().ShowCollection(*bar, *panels, "Panels");
  EXPECT_TRUE(Window->Items().Visible());
  Window->Items().AddItem();
  EXPECT_NE(Window->Structure().NodeOf("Bar.Panels[1]"), nullptr);
  // Undo makes the form anew: the parts take the new one.
  It().Undo();
  EXPECT_EQ(Window->Structure().NodeOf("Bar.Panels[1]"), nullptr);
  EXPECT_EQ(Window->Items().Collection(), Find<TStatusBar>("Bar")->Panels());
  EXPECT_EQ(Window->Items().List().Items()->Count(), 1);
  It().SetSelection({Find("Bar")});
  It().DeleteSelected();
  EXPECT_FALSE(Window->Items().Visible());
}

TEST_F(Designer, AnEditKeepsItsKeys) {
  Place("TButton", At(16, 16), At(16, 16));
  ClickValue("Hint");
  TypeKey('A');
  TypeKey('Z', {VK_CONTROL});
  EXPECT_NE(Find("Button1"), nullptr) << "not the form's last change is taken back";
  TypeKey(VK_RETURN);
  EXPECT_EQ(Find("Button1")->Hint(), "");
}

TEST_F(Designer, TypingIsOneStepAndEscapeTakesItBack) {
  OpenForm(" object A: TButton\n Caption = 'Before'\n end\n");
  It().SetSelection({Find("A")});
  ClickValue("Caption");
  Keys("A B C");
  EXPECT_EQ(Find<TButton>("A")->Caption(), "abc") << "shown while it is typed";
  EXPECT_TRUE(Document().Modified());
  Keys("Esc");
  EXPECT_EQ(Find<TButton>("A")->Caption(), "Before");
  EXPECT_FALSE(Document().Modified() || Document().CanUndo());
  Keys("A B Enter C D");
  EXPECT_EQ(Find<TButton>("A")->Caption(), "cd");
  It().Undo();
  EXPECT_EQ(Find<TButton>("A")->Caption(), "ab") << "Enter ends what belongs together";
  It().Undo();
  EXPECT_FALSE(Document().Modified() || Document().CanUndo());
}

TEST_F(Designer, ToolsOfThePackageWorkOnTheForm) {
  OpenForm(
      " object class: TButton\n  Left = 16\n  Top = 16\n  Caption = 'Hello'\n end\n"
      " object TTimer\n  Left = 200\n  Top = 200\n end\n"
      " object Memo1: TMemo\n  Left = 16\n  Top = 60\n  Lines.Strings = (\n   'hello' 'you')\n "
      "end\n");
  const std::string before = Document().Text();
  const auto run = [&](const char* caption, const wchar_t* form,
                       const std::function<void(HWND)>& act) {
    const dialogs::TOnForm onForm(form, act);
    dialogs::ItemOf(*Window->MainMenu().Items(), caption)->Click();
  };
  run("Repair Component Names", L"Repair Component Names", [](HWND form) {
    EXPECT_EQ(dialogs::Child<TListBox>(form).Items()->Count(), 2);
    dialogs::Press(form, "&Rename them all");
  });
  ASSERT_TRUE(Find("Button1") && Find<TComponent>("Timer1"));
  run("Search && Replace Text", L"Search and Replace Text", [](HWND form) {
    dialogs::Child<TEdit>(form, 0).SetText("hello");
    dialogs::Child<TEdit>(form, 1).SetText("bye");
    dialogs::Press(form, "&Replace all");
  });
  EXPECT_EQ(Find<TButton>("Button1")->Caption(), "bye");
  EXPECT_EQ(Find<TMemo>("Memo1")->Lines()->CommaText(), "bye,you");
  for (int i = 0; i < 2; ++i) It().Undo();
  EXPECT_EQ(Document().Text(), before) << "a step each";
}

}  // namespace
}  // namespace ide
