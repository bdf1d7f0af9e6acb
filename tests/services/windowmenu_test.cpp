// TQELSystemMenu and TQELTopMost on real windows.
#include <gmock/gmock.h>

#include <thread>

#include "qel/qel.h"
#include "tests/vcl/testinput.h"

namespace qel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using TLog = std::vector<std::string>;

class TWindowForm : public vcl::TForm {
 public:
  TWindowForm() : TForm(nullptr) {
    SetBounds(100, 100, 400, 300);
    Show();
  }
  void Remake() { RecreateWnd(); }
  HMENU SystemMenu() { return ::GetSystemMenu(Handle(), FALSE); }
};

class SystemMenu : public testing::Test {
 protected:
  SystemMenu() {
    Own = Count();
    Add(Menu.Items(), "&First")->SetChecked(true);
    Add(Menu.Items(), "-");
    Inner = Add(Add(Menu.Items(), "More"), "Inner");
  }
  vcl::TMenuItem* Add(vcl::TMenuItem* around, const std::string& caption) {
    auto* item = new vcl::TMenuItem(&Menu);
    item->SetCaption(caption);
    item->OnClick = [this, caption](vcl::TObject*) { Log.push_back(caption); };
    around->Add(item);
    return item;
  }
  int Count() { return ::GetMenuItemCount(Form.SystemMenu()); }
  /// The lines behind the system's own; "-" for a separator, "*" behind one that is checked.
  TLog Lines() {
    TLog lines;
    for (int i = Own; i < Count(); ++i) {
      char text[64] = "";
      const auto at = static_cast<UINT>(i);
      ::GetMenuStringA(Form.SystemMenu(), at, text, sizeof text, MF_BYPOSITION);
      const UINT state = ::GetMenuState(Form.SystemMenu(), at, MF_BYPOSITION);
      const bool submenu = ::GetSubMenu(Form.SystemMenu(), i) != nullptr;
      lines.push_back(!submenu && (state & MF_SEPARATOR) ? "-" : text);
      if (!submenu && (state & MF_CHECKED)) lines.back() += "*";
    }
    return lines;
  }
  bool Has(UINT command) {
    return ::GetMenuState(Form.SystemMenu(), command, MF_BYCOMMAND) != static_cast<UINT>(-1);
  }
  void Choose(UINT command) { ::SendMessageW(Form.Handle(), WM_SYSCOMMAND, command, 0); }
  void Open() {
    ::SendMessageW(Form.Handle(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(Form.SystemMenu()),
                   MAKELPARAM(0, TRUE));
  }

  TLog Log;
  TWindowForm Form;
  vcl::TPopupMenu Menu{nullptr};
  vcl::TMenuItem* Inner = nullptr;
  int Own = 0;
};

/// The window of the menu that is open; null for none.
HWND OpenMenu() { return ::FindWindowW(L"#32768", nullptr); }

TEST_F(SystemMenu, TheMouseOpensItAndChooses) {
  TQELSystemMenu it(&Form);
  it.SetMenu(&Menu);
  ::SetForegroundWindow(Form.Handle());
  testinput::Pump();
  // The menu has its own loop: a second hand clicks while it is open.
  std::thread hand([this] {
    const ULONGLONG end = ::GetTickCount64() + testinput::Patience;
    while (!OpenMenu() && ::GetTickCount64() < end) ::Sleep(10);
    ::Sleep(100);
    RECT line{};
    ::GetMenuItemRect(nullptr, Form.SystemMenu(), static_cast<UINT>(Own + 1), &line);
    testinput::Click({(line.left + line.right) / 2, (line.top + line.bottom) / 2});
    ::Sleep(300);
    if (!OpenMenu()) return;
    testinput::SendKey(VK_ESCAPE, true);
    testinput::SendKey(VK_ESCAPE, false);
  });
  // The icon at the beginning of the title bar.
  const int middle = ::GetSystemMetrics(SM_CYSIZEFRAME) + ::GetSystemMetrics(SM_CYCAPTION) / 2;
  testinput::Click({Form.Left() + middle, Form.Top() + middle});
  EXPECT_TRUE(testinput::PumpUntil([this] { return !Log.empty(); }));
  hand.join();
  EXPECT_THAT(Log, ElementsAre("&First"));
}

TEST_F(SystemMenu, AppendsTheMenusLinesAlsoToANewWindow) {
  const TLog lines{"-", "&First*", "-", "More"};
  {
    TQELSystemMenu it(&Form);
    it.SetMenu(&Menu);
    EXPECT_EQ(Lines(), lines);
    Form.Remake();
    EXPECT_EQ(Lines(), lines);
    const HMENU more = ::GetSubMenu(Form.SystemMenu(), Own + 3);
    EXPECT_EQ(::GetMenuItemID(more, 0), Inner->Command());
    it.SetActive(false);
    EXPECT_THAT(Lines(), IsEmpty());
    it.SetActive(true);
    EXPECT_EQ(Lines(), lines);
  }
  EXPECT_THAT(Lines(), IsEmpty());
  EXPECT_TRUE(::IsMenu(Inner->Parent()->Handle()));
}

TEST_F(SystemMenu, ClicksWhatIsChosenAndTellsEveryCommand) {
  TQELSystemMenu it(&Form);
  it.SetMenu(&Menu);
  bool take = false;
  it.OnCommand = [&](vcl::TObject*, int command, bool& handled) {
    Log.push_back(command == Inner->Command() ? "inner" : std::to_string(command));
    handled = take;
  };
  Choose(Inner->Command());
  EXPECT_THAT(std::exchange(Log, {}), ElementsAre("inner", "Inner"));
  take = true;
  Choose(Inner->Command());
  Choose(SC_MAXIMIZE | 2);
  EXPECT_THAT(Log, ElementsAre("inner", std::to_string(SC_MAXIMIZE)));
  EXPECT_EQ(Form.WindowState(), vcl::wsNormal);
}

TEST_F(SystemMenu, LooksAtTheMenuWheneverItOpens) {
  TQELSystemMenu it(&Form);
  it.SetMenu(&Menu);
  Menu.OnPopup = [this](vcl::TObject*) {
    delete Menu.Items()->Items(2);
    Menu.Items()->Items(0)->SetCaption("Other");
  };
  Open();
  EXPECT_THAT(Lines(), ElementsAre("-", "Other*", "-"));
}

TEST_F(SystemMenu, TwoMenusFollowEachOtherAndAFreedOneLeaves) {
  TQELSystemMenu first(&Form), second(&Form);
  auto menu = std::make_unique<vcl::TPopupMenu>(nullptr);
  auto* item = new vcl::TMenuItem(menu.get());
  item->SetCaption("Second");
  menu->Items()->Add(item);
  second.SetMenu(menu.get());
  first.SetMenu(&Menu);
  const TLog both{"-", "&First*", "-", "More", "-", "Second"};
  EXPECT_EQ(Lines(), both);
  Open();
  EXPECT_EQ(Lines(), both);
  menu.reset();
  EXPECT_EQ(second.Menu(), nullptr);
  EXPECT_THAT(Lines(), ElementsAre("-", "&First*", "-", "More"));
}

TEST_F(SystemMenu, HidesTheSystemsCommandsUntilNobodyDoes) {
  TQELSystemMenu other(&Form);
  other.SetHidden({smSize});
  {
    TQELSystemMenu it(&Form);
    it.SetMenu(&Menu);
    it.SetHidden({smRestore, smMove, smMinimize, smMaximize});
    EXPECT_FALSE(Has(SC_MOVE) || Has(SC_SIZE) || Has(SC_RESTORE));
    Form.Remake();
    EXPECT_FALSE(Has(SC_MOVE) || Has(SC_SIZE) || Has(SC_RESTORE));
    Own = 0;
    EXPECT_EQ(Lines().at(0).substr(0, 2), "&C") << "The separator above has gone, too.";
    EXPECT_EQ(Lines().back(), "More");
  }
  EXPECT_TRUE(Has(SC_MOVE) && Has(SC_RESTORE));
  EXPECT_FALSE(Has(SC_SIZE));
}

TEST_F(SystemMenu, EndsInItsOwnEvents) {
  auto* it = new TQELSystemMenu(&Form);
  it->SetMenu(&Menu);
  it->OnCommand = [&](vcl::TObject*, int, bool&) { delete it; };
  Choose(Inner->Command());
  EXPECT_THAT(Lines(), IsEmpty());
  it = new TQELSystemMenu(&Form);
  it->SetMenu(&Menu);
  Menu.OnPopup = [&](vcl::TObject*) { delete it; };
  Open();
  EXPECT_THAT(Lines(), IsEmpty());
}

class TopMost : public testing::Test {
 protected:
  bool IsTopMost() { return ::GetWindowLongW(Form.Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST; }
  void Activate(bool program) { ::SendMessageW(Form.Handle(), WM_ACTIVATEAPP, program, 0); }
  TWindowForm Form;
};

TEST_F(TopMost, HoldsUntilTheLastOneEnds) {
  auto first = std::make_unique<TQELTopMost>(&Form);
  EXPECT_TRUE(IsTopMost());
  auto second = std::make_unique<TQELTopMost>(&Form);
  first.reset();
  EXPECT_TRUE(IsTopMost());
  Form.Remake();
  EXPECT_TRUE(IsTopMost());
  second->SetActive(false);
  EXPECT_FALSE(IsTopMost());
  second->SetActive(true);
  EXPECT_TRUE(IsTopMost());
  second.reset();
  EXPECT_FALSE(IsTopMost());
}

TEST_F(TopMost, WhileActiveFollowsTheProgram) {
  TQELTopMost it(&Form);
  it.SetWhileActive(true);
  Activate(false);
  EXPECT_FALSE(IsTopMost());
  Activate(true);
  EXPECT_TRUE(IsTopMost());
  Activate(false);
  it.SetWhileActive(false);
  EXPECT_TRUE(IsTopMost());
}

TEST_F(TopMost, LeavesAFormThatStaysOnTopByItself) {
  Form.SetFormStyle(vcl::fsStayOnTop);
  std::make_unique<TQELTopMost>(&Form);
  EXPECT_TRUE(IsTopMost());
}

}  // namespace
}  // namespace qel
