// The object inspector, by mouse and keyboard.
#include "ide/inspector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ide/inspectorgrid.h"
#include "tests/support/plaindesigner.h"
#include "tests/vcl/standardform.h"
#include "vcl/designintf/package.h"
#include "vcl/designintf/registration.h"
#include "vcl/designintf/sentences.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

namespace ide {
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using vcl::TObject;

/// Tells the inspector what the designer application would.
class TTellingDesigner : public TPlainDesigner {
 public:
  void Modified() override {
    TPlainDesigner::Modified();
    Inspector->Refresh();
  }
  void SetSelection(const std::vector<vcl::TPersistent*>& selection) override {
    TPlainDesigner::SetSelection(selection);
    Inspector->SelectionChanged();
  }

  TObjectInspector* Inspector = nullptr;
};

class Inspector : public vcl::TStandardForm {
 protected:
  Inspector() {
    Inspected = new TObjectInspector(&Form);
    Form.SetBounds(40, 40, 500, 800);
    Inspected->SetBounds(0, 0, 260, 780);
    Inspected->SetParent(&Form);
    Elsewhere = Make<vcl::TEdit>(300, 10);
    Designer.Inspector = Inspected;
    Designer.Form.SetName("Form1");
    Inspected->SetDesigner(&Designer);
    Button = Add<vcl::TButton>("Button1");
    ShowForm();
  }
  ~Inspector() override { Inspected->SetDesigner(nullptr); }

  template <class T>
  T* Add(const char* name) {
    T* made = new T(&Designer.Form);
    made->SetParent(&Designer.Form);
    made->SetName(name);
    return made;
  }
  void Select(const std::vector<vcl::TPersistent*>& objects) { Designer.SetSelection(objects); }
  TInspectorGrid& Grid() {
    return Inspected->EventsShown() ? Inspected->Events() : Inspected->Properties();
  }
  std::string Value(const char* path) { return Grid().Row(Grid().IndexOf(path)).Value; }
  /// The middle of the line's value, its button or its name.
  enum TPlace { Name, ValueText, ValueButton, Sign };
  vcl::TPoint At(const char* path, TPlace place) {
    const int row = Grid().IndexOf(path);
    EXPECT_GE(row, 0) << path;
    const vcl::TRect rect = Grid().RowRect(row);
    const int sign = 6 + 10 * Grid().Row(row).Depth;
    const int x[] = {sign + 34, Grid().Splitter() + 20, rect.Right - 6, sign};
    return Grid().ClientToScreen({x[place], (rect.Top + rect.Bottom) / 2});
  }
  void ClickLine(const char* path, TPlace place = ValueText) { testinput::Click(At(path, place)); }
  void TypeValue(const char* path, const std::string& text) {
    Grid().SelectRow(Grid().IndexOf(path));
    ClickLine(path, Name);
    Type(text);
  }
  std::string Told() {
    testinput::Pump();
    return std::exchange(Errors, {});
  }
  /// The heights of what waits to be painted in the grid.
  int HeightToPaint() {
    RECT rect{};
    ::GetUpdateRect(Grid().Handle(), &rect, FALSE);
    return static_cast<int>(rect.bottom - rect.top);
  }

  TTellingDesigner Designer;
  TObjectInspector* Inspected = nullptr;
  vcl::TEdit* Elsewhere = nullptr;
  vcl::TButton* Button = nullptr;
};

TEST_F(Inspector, WhatIsTypedHoldsAtTheRightTime) {
  Select({Button});
  TypeValue("Width", "120");
  EXPECT_EQ(Button->Width(), 75);
  Key(VK_RETURN);
  EXPECT_EQ(Button->Width(), 120);
  TypeValue("Width", "130");
  Key(VK_ESCAPE);
  Key(VK_RETURN);
  EXPECT_EQ(Button->Width(), 120);
  TypeValue("Width", "140");
  Key(VK_UP);
  EXPECT_EQ(Button->Width(), 140);
  TypeValue("Width", "150");
  Click(*Elsewhere);
  EXPECT_EQ(Button->Width(), 150);
  TypeValue("Caption", "Ab");
  EXPECT_EQ(Button->Caption(), "Ab") << "shown while it is typed";
  EXPECT_EQ(Designer.Modifications, 5);
}

TEST_F(Inspector, TheSelectedPropertyIsExplained) {
  const vcl::TSentences& known = vcl::Sentences();
  Select({Button});
  Grid().SelectRow(Grid().IndexOf("Cancel"));
  EXPECT_THAT(Inspected->HelpText(), StartsWith("Escape clicks the button"));
  // A property inside another one is that object's.
  Grid().SetExpanded(Grid().IndexOf("Font"), true);
  Grid().SelectRow(Grid().IndexOf("Font.Size"));
  EXPECT_EQ(Inspected->HelpText(), known.Of(vcl::TFont::Class(), "Size"));
  vcl::TTimer timer(&Designer.Form);
  timer.SetName("Timer1");
  Select({&timer});
  Grid().SelectRow(Grid().IndexOf("Interval"));
  EXPECT_EQ(Inspected->HelpText(), known.Of(vcl::TTimer::Class(), "Interval"));
  Inspected->ShowEvents(true);
  EXPECT_EQ(Inspected->HelpText(), known.Of(vcl::TTimer::Class(), "OnTimer"));
  EXPECT_NE(Inspected->HelpText(), "");
  Select({});
  EXPECT_EQ(Inspected->HelpText(), "");
}

TEST_F(Inspector, ARefusedValueIsToldAndTheOldOneIsBack) {
  Select({Button});
  TypeValue("Width", "12x");
  Key(VK_RETURN);
  EXPECT_THAT(Told(), HasSubstr("12x"));
  EXPECT_EQ(Button->Width(), 75);
  EXPECT_EQ(Value("Width"), "75");
  EXPECT_TRUE(Inspected->Apply()) << "nothing typed is left";
  TypeValue("Name", "1a");
  Key(VK_DOWN);
  EXPECT_THAT(Told(), HasSubstr("1a"));
  EXPECT_EQ(Grid().Row(Grid().SelectedRow()).Path, "Name") << "stays where the fault was";
  TypeValue("Height", "high");
  Click(*Elsewhere);
  EXPECT_THAT(Told(), HasSubstr("high"));
  EXPECT_EQ(Designer.Modifications, 0);
}

TEST_F(Inspector, ListsAreChosenFromByMouseAndKeyboard) {
  Select({Button});
  ClickLine("Cursor");
  Key(VK_F4);
  Key(VK_HOME);
  Key(VK_ESCAPE);
  EXPECT_EQ(Button->Cursor(), vcl::crDefault);
  ClickLine("Visible");
  KeyWith(VK_MENU, VK_DOWN);
  Key(VK_UP);
  Key(VK_RETURN);
  EXPECT_FALSE(Button->Visible());
  ClickLine("Enabled", ValueButton);
  const vcl::TRect row = Grid().RowRect(Grid().SelectedRow());
  testinput::Click(Grid().ClientToScreen({Grid().Splitter() + 20, row.Bottom + 6}));
  EXPECT_FALSE(Button->Enabled()) << "the list's first line is False";
  // The second press of a double click goes on to the next value.
  ClickLine("Default");
  testinput::LeftDown();
  testinput::LeftUp();
  EXPECT_TRUE(Button->Default());
}

TEST_F(Inspector, WhatIsTypedOfAListedValueIsCompleted) {
  auto* edit = Add<vcl::TEdit>("Edit1");
  Select({edit});
  TypeValue("Color", "CLR");
  Key(VK_RETURN);
  EXPECT_EQ(edit->Color(), vcl::clRed);
  TypeValue("Color", "cly");
  Key(VK_BACK);  // Removes what was added, and it stays removed.
  Key(VK_BACK);
  Type("n");
  Key(VK_DOWN);
  EXPECT_EQ(edit->Color(), vcl::clNavy);
  TypeValue("Cursor", "12");  // Not in the list.
  Key(VK_RETURN);
  EXPECT_EQ(edit->Cursor(), 12);
  // The list that is down follows.
  ClickLine("Visible");
  Key(VK_F4);
  Type("f");
  Key(VK_RETURN);
  EXPECT_FALSE(edit->Visible());
  // Several objects get back what each of them had.
  auto* other = Add<vcl::TButton>("Button2");
  Select({Button, other});
  TypeValue("Caption", "xy");
  EXPECT_EQ(other->Caption(), "xy");
  Key(VK_ESCAPE);
  EXPECT_EQ(Button->Caption() + other->Caption(), "Button1Button2");
}

TEST_F(Inspector, PropertiesUnfoldAndTheirLinesAreKeptByName) {
  auto* edit = Add<vcl::TEdit>("Edit1");
  Select({Button});
  ClickLine("Font", Sign);
  ClickLine("Font.Style", Sign);
  ClickLine("Font.Style.fsBold");
  Key(VK_F4);
  Key(VK_DOWN);
  Key(VK_RETURN);
  EXPECT_TRUE(Button->Font()->Style().Has(vcl::fsBold));
  EXPECT_EQ(Value("Font.Style"), "[fsBold]");
  EXPECT_FALSE(Grid().Row(Grid().IndexOf("Font.Style")).Default);
  Select({edit});
  EXPECT_EQ(Grid().Row(Grid().SelectedRow()).Path, "Font.Style.fsBold");
  EXPECT_EQ(Value("Font.Style.fsBold"), "False");
  ClickLine("Font", Sign);
  EXPECT_EQ(Grid().IndexOf("Font.Style"), -1);
}

TEST_F(Inspector, SeveralObjectsShowWhatTheyShare) {
  auto* other = Add<vcl::TEdit>("Edit1");
  other->SetWidth(Button->Width());
  Select({Button, other});
  EXPECT_EQ(Grid().IndexOf("Name"), -1);
  EXPECT_EQ(Value("Width"), "75");
  EXPECT_NE(Button->Height(), other->Height());
  EXPECT_EQ(Value("Height"), "");
  TypeValue("Height", "40");
  Key(VK_RETURN);
  EXPECT_EQ(Button->Height(), 40);
  EXPECT_EQ(other->Height(), 40);
  EXPECT_EQ(Inspected->Components().Text(), "2 selected");
  delete other;
  EXPECT_GE(Grid().IndexOf("Name"), 0) << "shows what is left";
}

TEST_F(Inspector, OneChangePaintsOneLine) {
  Select({Button});
  testinput::Pump();
  const int line = Grid().RowRect(0).Height();
  Button->SetHeight(99);
  Inspected->Refresh();
  EXPECT_EQ(HeightToPaint(), line);
  EXPECT_EQ(Value("Height"), "99");
  testinput::Pump();
  Inspected->Refresh();
  EXPECT_EQ(HeightToPaint(), 0) << "nothing has changed";
}

TEST_F(Inspector, RevertGoesBackToTheDefault) {
  Select({Button});
  Button->SetEnabled(false);
  Inspected->Refresh();
  EXPECT_FALSE(Grid().Row(Grid().IndexOf("Enabled")).Default);
  testinput::MoveMouse(At("Enabled", Name));
  testinput::RightDown();
  // The menu has a loop of its own, which handles the keys that are sent meanwhile.
  std::thread keys([] {
    ::Sleep(300);
    testinput::SendKey('R', true);
    testinput::SendKey('R', false);
  });
  testinput::RightUp();
  keys.join();
  EXPECT_TRUE(testinput::PumpUntil([&] { return Button->Enabled(); }));
  EXPECT_TRUE(Grid().Row(Grid().IndexOf("Enabled")).Default);
}

TEST_F(Inspector, EventsGetHandlers) {
  Select({Button});
  Inspected->ShowEvents(true);
  ClickLine("OnClick");
  testinput::LeftDown();
  testinput::LeftUp();
  EXPECT_EQ(Designer.Shown, "Button1Click");
  EXPECT_EQ(Value("OnClick"), "Button1Click");
  ClickLine("OnEnter", ValueButton);
  Key(VK_DOWN);
  Key(VK_RETURN);
  EXPECT_EQ(Value("OnEnter"), "Button1Click");
}

TEST_F(Inspector, NamesAreSearchedByTyping) {
  Select({Button});
  ClickLine("Caption");
  Key(VK_TAB);
  Type("wi");
  EXPECT_EQ(Grid().Row(Grid().SelectedRow()).Path, "Width");
  Type("q");  // No name goes on like this.
  EXPECT_EQ(Grid().Row(Grid().SelectedRow()).Path, "Width");
  Key(VK_TAB);
  Type("33");
  Key(VK_RETURN);
  EXPECT_EQ(Button->Width(), 33);
}

TEST_F(Inspector, TheComponentListSelects) {
  auto* other = Add<vcl::TEdit>("Edit1");
  Select({Button});
  auto& list = Inspected->Components();
  EXPECT_EQ(list.Text(), "Button1: TButton");
  list.SetFocus();
  Key(VK_DOWN);
  ASSERT_EQ(Designer.Selected.size(), 1u);
  EXPECT_EQ(Designer.Selected.front(), other);
  other->SetName("Exercise");
  Inspected->Refresh();
  EXPECT_EQ(list.Text(), "Exercise: TEdit");
}

TEST_F(Inspector, LinesAreScrolledIntoView) {
  Form.SetHeight(200);
  Inspected->SetHeight(160);
  Select({Button});
  ClickLine("Caption");
  Key(VK_NEXT);
  Key(VK_NEXT);
  const vcl::TRect rect = Grid().RowRect(Grid().SelectedRow());
  EXPECT_NE(Grid().Row(Grid().SelectedRow()).Path, "Caption");
  EXPECT_GE(rect.Top, 0);
  EXPECT_LE(rect.Bottom, Grid().ClientHeight());
  EXPECT_EQ(Grid().RowAt(-1), -1);
}

TEST_F(Inspector, TheSplitterIsDragged) {
  Select({Button});
  const int before = Grid().Splitter();
  testinput::MoveMouse(Grid().ClientToScreen({before, 50}));
  testinput::LeftDown();
  testinput::MoveMouse(Grid().ClientToScreen({before + 25, 50}));
  testinput::LeftUp();
  EXPECT_EQ(Grid().Splitter(), before + 25);
  Inspected->ShowEvents(true);
  EXPECT_EQ(Grid().Splitter(), before + 25);
}

TEST_F(Inspector, EveryComponentOfThePackageIsShownUnfolded) {
  const vcl::TPackage package("qel.dll");
  Designer.Form.SetDesigning(true);
  for (const auto& [page, classes] : vcl::RegisteredComponents()) {
    for (const vcl::TClass* each : classes) {
      SCOPED_TRACE(each->Name());
      const std::unique_ptr<vcl::TComponent> made(each->Maker().Component(&Designer.Form));
      made->SetName("Shown1");
      Select({made.get()});
      for (int row = 0; row < Grid().RowCount(); ++row) {
        Grid().SetExpanded(row, true);
      }
      EXPECT_TRUE(Grid().SelectRow(Grid().RowCount() - 1));
      Inspected->ShowEvents(true);
      Inspected->Update();
      Inspected->ShowEvents(false);
      Select({});
    }
  }
}

}  // namespace
}  // namespace ide
