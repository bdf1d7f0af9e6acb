// The menu that the package's add-in brings, and its tools.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cwchar>
#include <fstream>

#include "tests/design/dialogs.h"
#include "tests/support/importpatch.h"
#include "tests/support/plaindesigner.h"
#include "tests/support/program.h"
#include "vcl/db/memorydataset.h"
#include "vcl/designintf/environment.h"
#include "vcl/designintf/package.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/registry.h"
#include "vcl/transfer/clipboard.h"

namespace vcl {
namespace {

using namespace dialogs;
using testing::ElementsAre;

constexpr const char* SettingsKey = "Software\\QEL\\Designer\\Tools";

class TPlainEnvironment : public TEnvironment {
 public:
  TMainMenu& MainMenu() override { return Menu; }
  TDesigner* ActiveDesigner() override { return Designer; }
  void SaveFiles() override { ++Saved; }
  std::vector<std::string> RememberedFiles() const override { return Remembered; }
  void ForgetFile(const std::string& name) override { std::erase(Remembered, name); }
  TMainMenu Menu{nullptr};
  TDesigner* Designer = nullptr;
  std::vector<std::string> Remembered;
  int Saved = 0;
};

std::vector<std::string> Captions(const TMenuItem& menu) {
  std::vector<std::string> captions;
  for (int i = 0; i < menu.Count(); ++i) captions.push_back(menu.Items(i)->Caption());
  return captions;
}

class Tools : public testing::Test {
 protected:
  Tools() {
    TRegistry().DeleteKey(SettingsKey);
    Environment.Designer = &Designer;
    Start();
  }
  ~Tools() override { TRegistry().DeleteKey(SettingsKey); }
  /// As the next start of the designer application.
  void Start() {
    Expert.reset();
    Expert = RegisteredExperts().at(0).Make(Environment);
  }
  TMenuItem& Menu() { return *Environment.Menu.Items()->Items(0); }
  TMenuItem& Item(const std::string& caption) { return *ItemOf(Menu(), caption); }
  /// Clicks the item, whose form has that caption.
  void Run(const char* item, const wchar_t* form, const std::function<void(HWND)>& act) {
    const TOnForm onForm(form, act);
    Item(item).Click();
  }
  template <class T>
  T* Add(const char* name) {
    T* made = new T(&Designer.Form);
    if (*name) made->SetName(name);
    return made;
  }

  TPackage Package{"qel.dll"};
  TPlainDesigner Designer;
  TPlainEnvironment Environment;
  std::unique_ptr<TExpert> Expert;
};

TEST_F(Tools, MenuComesAndGoesWithTheAddIn) {
  ASSERT_EQ(Captions(*Environment.Menu.Items()), std::vector<std::string>{"QEL &Tools"});
  EXPECT_THAT(Captions(Menu()),
              ElementsAre("Activate Screensaver", "Non-Visual Components", "Paste Comments...",
                          "Auto Save Files", "Clean Project Paths", "Search && Replace Text",
                          "Repair Component Names", "Ini File Explorer", "View Clipboard Contents",
                          "View Ascii Table", "Generate Table Source", "My Personal Files",
                          "My Personal Links", "Properties...", "Contact QEL", "About QEL"));
  for (int i = 0; i < Menu().Count(); ++i) {
    const TMenuItem& item = *Menu().Items(i);
    EXPECT_TRUE(item.Enabled() && (item.OnClick || item.Count() > 0)) << item.Caption();
  }
  Environment.Designer = nullptr;
  EXPECT_THROW(Item("Non-Visual Components").Click(), EInvalidOperation) << "no form is open";
  Expert.reset();
  EXPECT_EQ(Environment.Menu.Items()->Count(), 0);
}

TEST_F(Tools, PersonalEntriesAreKept) {
  EXPECT_THAT(Captions(Item("My Personal Files")), ElementsAre("[ EMPTY ]"));
  EXPECT_THAT(Captions(Item("My Personal Links")), ElementsAre("[ EMPTY ]"));
  EXPECT_THAT(Captions(Item("Contact QEL")), ElementsAre("Home page", "Send e-mail", "Pager"));
  EXPECT_FALSE(Item("Contact QEL").Items(1)->Enabled()) << "no address is known";
  Run("Properties...", L"Properties of the QEL tools", [](HWND form) {
    Child<TMemo>(form, 0).Lines()->SetText("Notes=C:\\notes.txt\nC:\\plain.txt\n\n");
    Child<TMemo>(form, 1).Lines()->SetText("Home=http://localhost/?a=b");
    Child<TEdit>(form, 1).SetText("me@example.org");
    Press(form, "OK");
  });
  Start();
  EXPECT_THAT(Captions(Item("My Personal Files")), ElementsAre("Notes", "C:\\plain.txt"));
  EXPECT_THAT(Captions(Item("My Personal Links")), ElementsAre("Home"));
  EXPECT_TRUE(Item("Contact QEL").Items(1)->Enabled());
  TRegistry registry;
  ASSERT_TRUE(registry.OpenKey(SettingsKey, false));
  EXPECT_EQ(registry.ReadString("MenuICount"), "2");
  EXPECT_EQ(registry.ReadString("HttpICount"), "1");
}

TEST_F(Tools, NonVisualComponentsAreSelectedAndHidden) {
  Add<TButton>("Button1");
  Add<TTimer>("Timer1");
  Add<TMainMenu>("Menu1")->Items()->Add(Add<TMenuItem>("Item1"));
  Run("Non-Visual Components", L"Non-Visual Components", [](HWND form) {
    EXPECT_EQ(Child<TListBox>(form).Items()->CommaText(), "Timer1,Menu1");
    Press(form, "S&how their icons on the form");
    Press(form, "&Select");
  });
  EXPECT_FALSE(Designer.ShowNonVisual());
  EXPECT_THAT(Designer.Selected, ElementsAre(Designer.Form.FindComponent("Timer1")));
}

TEST_F(Tools, WriteSources) {
  Clipboard()->SetAsText("one*/\n\nC:\\");
  const char* const comments[] = {"// one* /\n//\n// C:\\ .\n", "/// one* /\n///\n/// C:\\ .\n",
                                  "/*\n * one* /\n *\n * C:\\ .\n */\n"};
  for (int style = 0; style < 3; ++style) {
    Clipboard()->SetAsText("one*/\n\nC:\\");
    Run("Paste Comments...", L"Paste Comments", [&](HWND form) {
      Choose(form, style);
      Press(form, "&Copy");
    });
    EXPECT_EQ(Clipboard()->AsText(), comments[style]);
  }
  auto* table = Add<TMemoryDataSet>("Towns");
  table->FieldDefs()->Add("Town \"T\"", ftString, 20);
  table->FieldDefs()->Add("Area", ftFloat);
  table->FieldDefs()->Add("Since", ftDate, 0, true);
  Run("Generate Table Source", L"Generate Table Source", [](HWND form) { Press(form, "&Copy"); });
  EXPECT_EQ(Clipboard()->AsText(),
            "void DefineTowns(vcl::TDataSet& table) {\n"
            "  vcl::TFieldDefs& fields = *table.FieldDefs();\n  fields.Clear();\n"
            "  fields.Add(\"Town \\\"T\\\"\", vcl::ftString, 20);\n"
            "  fields.Add(\"Area\", vcl::ftFloat);\n"
            "  fields.Add(\"Since\", vcl::ftDate, 0, true);\n}\n");
}

std::wstring chosenFile;
BOOL WINAPI ChooseFile(OPENFILENAMEW* data) {
  std::wcscpy(data->lpstrFile, chosenFile.c_str());
  return TRUE;
}

TEST_F(Tools, ShowTheDetailsOfALine) {
  const testing_support::TFolder folder;
  const auto file = folder.Path / "view.ini";
  std::ofstream(file) << "[First]\nx=1\n[Second]\ny=2\nz=\n";
  chosenFile = file.wstring();
  const TImportPatch patch("qelhost.dll", "GetOpenFileNameW", &ChooseFile);
  Clipboard()->SetAsText("copied");
  const struct {
    const char* Item;
    std::wstring Form;
    int Line;
    const char* Details;
  } cases[] = {
      {"Ini File Explorer", L"Ini File Explorer - " + chosenFile, 1, "y=2,z="},
      {"View Ascii Table", L"Ascii Table", 10,
       "\"Character: LF\",\"Decimal: 10\",\"Hexadecimal: $0A\",\"In a form file: #10\""},
      {"View Clipboard Contents", L"Clipboard Contents", 0, "copied"},
  };
  for (const auto& [item, caption, line, details] : cases) {
    Run(item, caption.c_str(), [&](HWND form) {
      Choose(form, line);
      EXPECT_EQ(Child<TMemo>(form).Lines()->CommaText(), details) << item;
    });
  }
}

/// The interval and the procedure of the timer that was started last.
UINT interval = 0;
TIMERPROC procedure = nullptr;
UINT_PTR timerId = 0;
UINT_PTR WINAPI StartTimer(HWND window, UINT_PTR id, UINT elapse, TIMERPROC proc) {
  const UINT_PTR started = ::SetTimer(window, id, elapse, proc);
  if (elapse < 1000) return started;
  interval = elapse;
  procedure = proc;
  timerId = started;
  return started;
}

TEST_F(Tools, FilesAreSavedByThemselves) {
  const TImportPatch patch("qelhost.dll", "SetTimer", &StartTimer);
  Run("Auto Save Files", L"Auto Save Files", [](HWND form) {
    EXPECT_EQ(Child<TListBox>(form).ItemIndex(), 0) << "never";
    Choose(form, 2);
    Press(form, "&Choose");
  });
  EXPECT_EQ(interval, 120'000u);
  interval = 0;
  Start();
  ASSERT_EQ(interval, 120'000u) << "the next start of the program";
  procedure(nullptr, WM_TIMER, timerId, 0);
  EXPECT_EQ(Environment.Saved, 1);
}

TEST_F(Tools, FilesThatAreGoneAreForgotten) {
  const std::string here = Application()->ExeName();
  Environment.Remembered = {here, here + ".gone", "somewhere.dll"};
  Run("Clean Project Paths", L"Clean Project Paths", [&](HWND form) {
    EXPECT_EQ(Child<TListBox>(form).Items()->Count(), 1);
    Press(form, "&Forget them all");
  });
  EXPECT_THAT(Environment.Remembered, ElementsAre(here, "somewhere.dll"));
}

TEST_F(Tools, ComponentsGetNames) {
  TButton* nameless = Add<TButton>("");
  Add<TTimer>("Timer1");
  Run("Repair Component Names", L"Repair Component Names",
      [](HWND form) { Press(form, "&Rename them all"); });
  EXPECT_EQ(nameless->Name(), "Button1");
  EXPECT_EQ(Designer.Modifications, 1);
}

/// A component that refuses a text.
class TTouchy : public TComponent {
 public:
  using TComponent::TComponent;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  const std::string& Word() const { return FWord; }
  void SetWord(const std::string& word) {
    if (word == "bad") throw EPropertyError(word);
    FWord = word;
  }

 private:
  std::string FWord = "hello";
};
const TClass& TTouchy::Class() {
  static const TClass info = Describe<TTouchy, TComponent>(
      "TTouchy", "tools_test", {Property<&TTouchy::Word, &TTouchy::SetWord>("Word")});
  return info;
}

TEST_F(Tools, TextsAreReplacedInAllComponentsOrNone) {
  auto* hello = Add<TButton>("hello");
  hello->SetCaption("Hello, hello");
  auto* memo = Add<TMemo>("Memo1");
  memo->SetParent(&Designer.Form);
  memo->Lines()->SetText("one\nHELLO");
  auto* bar = Add<TStatusBar>("Bar");
  bar->Panels()->Add()->SetText("ohello");
  auto* touchy = Add<TTouchy>("Touchy");
  const auto replace = [&](const char* text, bool matchCase) {
    Run("Search && Replace Text", L"Search and Replace Text", [=](HWND form) {
      Child<TEdit>(form, 0).SetText("hello");
      Child<TEdit>(form, 1).SetText(text);
      Child<TCheckBox>(form).SetChecked(matchCase);
      EXPECT_EQ(Child<TListBox>(form).Items()->Count(), matchCase ? 3 : 4);
      try {
        Child<TButton>(form).OnClick(nullptr);
      } catch (const EPropertyError&) {
      }
    });
  };
  replace("bad", false);
  EXPECT_EQ(hello->Caption(), "Hello, hello");
  EXPECT_EQ(Designer.Modifications, 0);
  replace("hellohello", true);
  EXPECT_EQ(hello->Caption(), "Hello, hellohello");
  EXPECT_EQ(memo->Lines()->CommaText(), "one,HELLO");
  EXPECT_EQ(bar->Panels()->Items(0)->Text(), "ohellohello");
  EXPECT_EQ(Designer.Modifications, 1);
  replace("x", false);
  EXPECT_EQ(hello->Caption(), "x, xx");
  EXPECT_EQ(memo->Lines()->CommaText(), "one,x");
  EXPECT_EQ(touchy->Word(), "xx");
  EXPECT_EQ(hello->Name(), "hello");
}

}  // namespace
}  // namespace vcl
