// TQELSystemTray: every record that the shell gets, its messages, minimising for real.
#include <gmock/gmock.h>

#include "qel/services/Qeltsystemtray.h"
#include "tests/support/importpatch.h"
#include "tests/vcl/testinput.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <shellapi.h>

namespace qel {
namespace {

using testing::ElementsAre;
using testinput::PumpUntil;
using vcl::Application;
using TLog = std::vector<std::string>;

struct TSent {
  DWORD Command;
  NOTIFYICONDATAA Record;
  bool Taken;
};
std::vector<TSent> Sent;
enum { Accept, Refuse, Pass } Shell = Accept;

BOOL WINAPI RecordIcon(DWORD command, NOTIFYICONDATAA* record) {
  const bool taken = Shell == Pass ? ::Shell_NotifyIconA(command, record) : Shell == Accept;
  Sent.push_back({command, *record, taken});
  return taken;
}
BOOL WINAPI Version3(OSVERSIONINFOA* version) {
  version->dwMajorVersion = 3;
  return TRUE;
}

class TMenuAtMouse : public vcl::TPopupMenu {
 public:
  using TPopupMenu::TPopupMenu;
  void Popup(int x, int y) override { Log.push_back(std::to_string(x) + "," + std::to_string(y)); }
  TLog Log;
};

class SystemTray : public testing::Test {
 protected:
  SystemTray() : Form(nullptr) {
    Shell = Accept;
    Application()->SetTitle("Über");
    Form.Show();
    PumpUntil([this] { return Form.Active(); });
    Tray = std::make_unique<TQELSystemTray>(nullptr);
    Sent.clear();
  }
  ~SystemTray() override {
    Application()->Restore();
    Application()->SetTitle("");
  }
  static TLog Commands() {
    TLog log;
    for (const TSent& each : std::exchange(Sent, {})) {
      log.push_back(each.Command == NIM_ADD      ? "add"
                    : each.Command == NIM_MODIFY ? "modify"
                                                 : "delete");
    }
    return log;
  }
  /// The record that is sent when the icon is asked to be shown.
  NOTIFYICONDATAA Shown() {
    Tray->SetEnabled(true);
    Tray->UpdateTrayIcon();
    return Sent.back().Record;
  }
  void Mouse(LPARAM message) { ::SendMessageW(Shown().hWnd, WM_USER + 1, 0, message); }
  static bool ButtonShown() { return ::IsWindowVisible(Application()->Handle()) != FALSE; }
  static void RestartShell() {
    ::SendMessageTimeoutW(HWND_BROADCAST, ::RegisterWindowMessageA("TaskbarCreated"), 0, 0,
                          SMTO_ABORTIFHUNG, 1000, nullptr);
  }

  TImportPatch Patch{"qel.dll", "Shell_NotifyIconA", &RecordIcon};
  vcl::TForm Form;
  std::unique_ptr<TQELSystemTray> Tray;
};

TEST_F(SystemTray, TheIconComesAndGoesWithTheApplication) {
  TLog events;
  Tray->OnMinimize = [&](vcl::TObject*) { events.push_back("minimize"); };
  Tray->OnRestore = [&](vcl::TObject*) { events.push_back("restore"); };
  const std::pair<const char*, std::function<void()>> steps[] = {
      {"delete", [&] { Tray->SetEnabled(true); }},
      {"add", [] { Application()->Minimize(); }},
      {"delete", [] { Application()->Restore(); }},
      {"add", [&] { Tray->SetNormalIcon(true); }},
      {"modify", [] { Application()->Minimize(); }},
      {"delete", [&] { Tray->SetEnabled(true); }},  // On purpose.
      {"add", [&] { Tray->SetNormalIcon(true); }},
      {"", [] { Application()->Restore(); }},
      {"delete", [&] { Tray->SetNormalIcon(false); }},
      {"delete", [&] { Tray->SetEnabled(false); }},
      {"", [] { Application()->Minimize(); }},
      {"add", [&] { Tray->SetEnabled(true); }},
      {"delete", [&] { Tray.reset(); }},
      {"", [] { Application()->Restore(), Application()->Minimize(); }},
  };
  for (std::size_t i = 0; i < std::size(steps); ++i) {
    steps[i].second();
    const TLog sent = Commands();
    EXPECT_EQ(sent, *steps[i].first ? TLog{steps[i].first} : TLog{}) << "step " << i;
    EXPECT_EQ(ButtonShown(), i != 1 && (i < 4 || i > 6)) << "step " << i;
  }
  EXPECT_THAT(events, ElementsAre("minimize", "restore", "minimize", "restore", "minimize"));
}

TEST_F(SystemTray, TheRecordSaysWhatIsShown) {
  const NOTIFYICONDATAA record = Shown();
  EXPECT_EQ(record.cbSize, sizeof(void*) == 4 ? 88u : 104u);
  EXPECT_EQ(record.uID, 0u);
  EXPECT_EQ(record.uFlags, 7u);
  EXPECT_EQ(record.uCallbackMessage, 0x401u);
  EXPECT_EQ(record.hIcon, Tray->Icon()->Handle());
  EXPECT_STREQ(record.szTip, "Über") << "the title, until there is a hint";
  std::string umlauts;
  for (int i = 0; i < 40; ++i) umlauts += "ü";
  const std::pair<std::string, std::string> hints[] = {
      {std::string(100, 'x'), std::string(63, 'x')},
      {"x" + umlauts, "x" + umlauts.substr(0, 62)},
      {umlauts, umlauts.substr(0, 62)},
      {"", ""}};
  for (const auto& [hint, tip] : hints) {
    Commands();
    Tray->SetHint(hint);
    Tray->SetHint(hint);
    ASSERT_EQ(Sent.size(), 1u);
    EXPECT_EQ(Sent[0].Record.szTip, tip);
    EXPECT_EQ(Sent[0].Record.uFlags, tip.empty() ? 3u : 7u);
  }
  vcl::TIcon given;
  given.SetHandle(::CopyIcon(::LoadIconA(nullptr, IDI_WARNING)));
  Tray->SetIcon(&given);
  EXPECT_EQ(Sent.back().Record.hIcon, given.Handle());
  const HICON former = Application()->Icon()->Handle();
  Application()->Minimize();
  EXPECT_EQ(Sent.back().Record.hIcon, Tray->Icon()->Handle());
  EXPECT_NE(Application()->Icon()->Handle(), former);
}

TEST_F(SystemTray, TheMouseOnTheIconBecomesEventsAndTheMenu) {
  TLog log;
  ::SetCursorPos(30, 40);
  auto menu = std::make_unique<TMenuAtMouse>(nullptr);
  Tray->SetPopupMenu(menu.get());
  Tray->OnClick = [&](vcl::TObject*) { log.push_back("click"); };
  Tray->OnDblClick = [&](vcl::TObject*) { log.push_back("double"); };
  Tray->OnRightClick = [&](vcl::TObject* sender, vcl::TMouseButton button, vcl::TShiftState shift,
                           int x, int y) {
    EXPECT_TRUE(sender == Tray.get() && button == vcl::mbRight && shift == vcl::TShiftState());
    EXPECT_TRUE(x == 30 && y == 40);
    log.push_back("right");
  };
  for (LPARAM each :
       {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP, WM_RBUTTONUP, WM_MOUSEMOVE}) {
    Mouse(each);
  }
  EXPECT_THAT(log, ElementsAre("click", "double", "click", "right"));
  EXPECT_THAT(menu->Log, ElementsAre()) << "the window is visible";
  Tray->SetNormalIcon(true);
  Mouse(WM_RBUTTONUP);
  Tray->SetNormalIcon(false);
  Application()->Minimize();
  Mouse(WM_RBUTTONUP);
  EXPECT_THAT(menu->Log, ElementsAre("30,40", "30,40"));
  menu.reset();
  Mouse(WM_RBUTTONUP);
  EXPECT_EQ(Tray->PopupMenu(), nullptr);
  EXPECT_EQ(log.size(), 7u);
}

TEST_F(SystemTray, ARefusedIconIsTriedAgainWhenTheShellComes) {
  Tray->SetEnabled(true);
  Shell = Refuse;
  EXPECT_THROW(Application()->Minimize(), vcl::EOutOfResources);
  EXPECT_TRUE(ButtonShown()) << "or the user could not come back";
  Application()->Restore();
  EXPECT_THAT([&] { Tray->SetNormalIcon(true); }, testing::ThrowsMessage<vcl::EOutOfResources>(
                                                      "Cannot create shell notification icon"));
  int errors = 0;
  Application()->OnException = [&](vcl::TObject*, const std::exception&) { ++errors; };
  Commands();
  RestartShell();
  Shell = Accept;
  RestartShell();
  Application()->Minimize();
  EXPECT_THAT(Commands(), ElementsAre("add", "add", "modify"));
  Shell = Refuse;
  EXPECT_FALSE(ButtonShown());
  RestartShell();
  EXPECT_TRUE(ButtonShown());
  Application()->OnException = nullptr;
  EXPECT_EQ(errors, 0);
}

TEST_F(SystemTray, HandlersMayFreeIt) {
  const auto end = [this](auto&&...) { Tray.reset(); };
  Tray->OnClick = end;
  const HWND window = Shown().hWnd;
  Mouse(WM_LBUTTONUP);
  EXPECT_FALSE(::IsWindow(window));
  Tray = std::make_unique<TQELSystemTray>(nullptr);
  Tray->OnRestore = end;
  Application()->Minimize();
  Application()->Restore();
  EXPECT_EQ(Tray, nullptr);
  Application()->Minimize();
}

TEST_F(SystemTray, TheShellIsLeftAloneOnOldSystemsAndInTheDesigner) {
  const TImportPatch old("qel.dll", "GetVersionExA", &Version3);
  vcl::TComponent designed(nullptr);
  designed.SetDesigning(true);
  for (vcl::TComponent* owner : {static_cast<vcl::TComponent*>(nullptr), &designed}) {
    TQELSystemTray tray(owner);
    tray.SetEnabled(true);
    tray.SetNormalIcon(true);
    tray.SetHint("Hint");
    tray.RemoveIconFromTray();
  }
  EXPECT_THAT(Commands(), ElementsAre());
}

TEST_F(SystemTray, TheSystemsOwnShellTakesIt) {
  Shell = Pass;
  Tray->SetEnabled(true);
  Tray->SetNormalIcon(true);
  Tray->SetHint("Hint");
  Tray->SetEnabled(false);
  std::vector<bool> taken;
  for (const TSent& each : Sent) taken.push_back(each.Taken);
  EXPECT_THAT(taken, ElementsAre(false, true, true, true));
}

}  // namespace
}  // namespace qel
