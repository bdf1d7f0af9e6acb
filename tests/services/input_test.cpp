// Components over keys, the mouse, and drives that come and go.
#include <gmock/gmock.h>

#include <fstream>

#include "qel/qel.h"
#include "tests/services/roles.h"
#include "tests/support/importpatch.h"
#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"
// It needs what stands above.
#include <winioctl.h>

namespace qel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testinput::PumpUntil;

class Input : public testing::Test {
 protected:
  Input() {
    Form.SetBounds(100, 100, 300, 200);
    Form.Show();
    ::SetForegroundWindow(Form.Handle());
    testinput::Pump();
  }
  /// Waits until the other program has reported something.
  bool Reported() const {
    return PumpUntil([this] { return std::filesystem::exists(Folder.Path / "report"); }, 30000);
  }
  std::string ReportName() const { return "\"" + (Folder.Path / "report").string() + "\""; }

  testing_support::TFolder Folder;
  vcl::TForm Form{nullptr};
};

using SystemKeys = Input;

TEST_F(SystemKeys, AreHeardAsLongAsTheyAreThere) {
  auto keys = std::make_unique<TQELSystemKeys>(nullptr);
  std::vector<std::string> log;
  keys->OnPress = [&](vcl::TObject*, TQELSystemKey* key) { log.push_back(key->DisplayName()); };
  keys->Keys()->Add()->SetShortCut(vcl::TextToShortCut("Ctrl+Alt+F8"));
  keys->Keys()->Add()->SetShortCut(vcl::TextToShortCut("Ctrl+Shift+F7"));
  EXPECT_TRUE(keys->Keys()->Keys(0)->Held()) << keys->LastError();
  testinput::TypeKey(VK_F8, {VK_CONTROL, VK_MENU});
  testinput::TypeKey(VK_F7, {VK_CONTROL, VK_SHIFT});
  EXPECT_TRUE(PumpUntil([&] { return log.size() == 2; }));
  EXPECT_THAT(log, ElementsAre("Ctrl+Alt+F8", "Ctrl+Shift+F7"));
  keys->Keys()->Keys(0)->SetActive(false);
  testinput::TypeKey(VK_F8, {VK_CONTROL, VK_MENU});
  keys->OnPress = [&](vcl::TObject*, TQELSystemKey*) { keys.reset(); };
  testinput::TypeKey(VK_F7, {VK_CONTROL, VK_SHIFT});
  EXPECT_TRUE(PumpUntil([&] { return !keys; })) << "freed by its own event";
  EXPECT_EQ(log.size(), 2u);
  EXPECT_TRUE(::RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_SHIFT, VK_F7)) << "given back";
  ::UnregisterHotKey(nullptr, 1);
}

TEST_F(SystemKeys, OneThatIsTakenIsTold) {
  const TRole other("hold-key", ReportName());
  ASSERT_TRUE(Reported());
  TQELSystemKeys keys(nullptr);
  std::string taken;
  keys.OnTaken = [&](vcl::TObject*, TQELSystemKey* key) { taken += key->DisplayName(); };
  keys.Keys()->Add()->SetShortCut(vcl::TextToShortCut("Ctrl+Alt+F9"));
  EXPECT_EQ(taken, "Ctrl+Alt+F9");
  EXPECT_FALSE(keys.Keys()->Keys(0)->Held());
  EXPECT_THAT(keys.LastError(), HasSubstr("The keys Ctrl+Alt+F9 cannot be heard: "));
  keys.Keys()->Keys(0)->SetShortCut(vcl::TextToShortCut("Ctrl+Alt+F8"));
  EXPECT_TRUE(keys.Keys()->Keys(0)->Held());
  EXPECT_EQ(keys.LastError(), "");
}

TEST_F(SystemKeys, BlockedOnesDoNothingWhileTheProgramIsActive) {
  bool asked = false;
  Form.OnCloseQuery = [&](vcl::TObject*, bool& canClose) {
    asked = true;
    canClose = false;
  };
  testinput::TypeKey(VK_F4, {VK_MENU});
  ASSERT_TRUE(PumpUntil([&] { return asked; }));
  auto keys = std::make_unique<TQELSystemKeys>(nullptr);
  keys->SetBlocked({skAltF4});
  auto others = std::make_unique<TQELSystemKeys>(nullptr);
  others->SetBlocked({skAltF4, skAltTab});
  others.reset();
  asked = false;
  testinput::TypeKey(VK_F4, {VK_MENU});
  testinput::PumpFor(200);
  EXPECT_FALSE(asked) << "the one that is left still blocks";
  keys.reset();
  testinput::TypeKey(VK_F4, {VK_MENU});
  EXPECT_TRUE(PumpUntil([&] { return asked; }));
}

using MouseController = Input;

vcl::TPoint Mouse() {
  POINT at{};
  ::GetCursorPos(&at);
  return {at.x, at.y};
}

TEST_F(MouseController, MovesAndClicks) {
  vcl::TButton button(&Form);
  button.SetParent(&Form);
  button.SetBounds(50, 40, 80, 30);
  int clicks = 0;
  button.OnClick = [&](vcl::TObject*) { ++clicks; };
  testinput::Pump();
  TQELMouseController mouse(nullptr);
  EXPECT_TRUE(mouse.SnapTo(&button));
  EXPECT_EQ(Mouse(), button.ClientToScreen({40, 15}));
  mouse.Click();
  EXPECT_TRUE(PumpUntil([&] { return clicks == 1; }));
  button.SetVisible(false);
  EXPECT_FALSE(mouse.SnapTo(&button));
  EXPECT_FALSE(mouse.SnapTo(nullptr));
}

/// The area in which the system keeps the pointer, as not every display can.
RECT clip;
BOOL WINAPI Clip(const RECT* area) {
  ::SetRect(&clip, 0, 0, 5000, 5000);
  if (area) clip = *area;
  return TRUE;
}
BOOL WINAPI Clipped(LPRECT area) { return *area = clip, TRUE; }

TEST_F(MouseController, KeepsThePointerWhileTheProgramIsActive) {
  const TImportPatch sets("qel.dll", "ClipCursor", &Clip);
  const TImportPatch gets("qel.dll", "GetClipCursor", &Clipped);
  Clip(nullptr);
  vcl::TPanel inner(&Form);
  inner.SetParent(&Form);
  inner.SetBounds(20, 20, 100, 60);
  testinput::Pump();
  const auto area = [] { return vcl::TRect(clip); };
  const vcl::TRect all = area();
  auto mouse = std::make_unique<TQELMouseController>(nullptr);
  mouse->SetConfineTo(&inner);
  const vcl::TPoint at = inner.ClientToScreen({0, 0});
  EXPECT_EQ(area(), vcl::TRect(at.X, at.Y, at.X + 100, at.Y + 60));
  Form.SetLeft(Form.Left() + 30);
  EXPECT_TRUE(PumpUntil([&] { return area().Left == at.X + 30; })) << "it follows the control";
  auto other = std::make_unique<TQELMouseController>(nullptr);
  other->SetConfineTo(&Form);
  EXPECT_NE(area().Left, at.X + 30);
  other.reset();
  EXPECT_EQ(area().Left, at.X + 30) << "two do not undo each other";
  ::SendMessageW(vcl::Application()->Handle(), WM_ACTIVATEAPP, FALSE, 0);
  EXPECT_EQ(area(), all) << "let go with the program";
  ::SendMessageW(vcl::Application()->Handle(), WM_ACTIVATEAPP, TRUE, 0);
  EXPECT_EQ(area().Left, at.X + 30);
  mouse.reset();
  EXPECT_EQ(area(), all);
}

TEST_F(MouseController, HidesThePointerAndTellsThatItRests) {
  const auto count = [] {
    ::ShowCursor(TRUE);
    return ::ShowCursor(FALSE);
  };
  const int former = count();
  auto mouse = std::make_unique<TQELMouseController>(nullptr);
  mouse->SetHide(true);
  mouse->SetHide(true);
  EXPECT_EQ(count(), former - 1);
  int idle = 0;
  mouse->OnIdle = [&](vcl::TObject*) { ++idle; };
  mouse->SetIdleTime(150);
  EXPECT_TRUE(PumpUntil([&] { return idle == 1; }));
  testinput::PumpFor(400);
  EXPECT_EQ(idle, 1) << "once";
  mouse->MoveTo(Mouse().X + 5, Mouse().Y);
  EXPECT_TRUE(PumpUntil([&] { return idle == 2; }));
  mouse.reset();
  EXPECT_EQ(count(), former);
}

std::string device;
DWORD control;
HANDLE WINAPI OpenDevice(LPCWSTR name, DWORD, DWORD, LPSECURITY_ATTRIBUTES, DWORD, DWORD, HANDLE) {
  device = vcl::ToUtf8(name);
  return device == "\\\\.\\E:" ? reinterpret_cast<HANDLE>(INT_PTR{5}) : INVALID_HANDLE_VALUE;
}
BOOL WINAPI Control(HANDLE, DWORD code, LPVOID, DWORD, LPVOID, DWORD, LPDWORD, LPOVERLAPPED) {
  control = code;
  return TRUE;
}

TEST(CDTriggers, TellOfDrivesAndMoveTrays) {
  TQELCDTriggers triggers(nullptr);
  std::string log;
  triggers.OnInsert = [&](vcl::TObject*, char drive) { log += std::string("+") + drive; };
  triggers.OnRemove = [&](vcl::TObject*, char drive) { log += std::string("-") + drive; };
  struct TVolume {
    DWORD Size = 18, Type = 2, Reserved = 0, Drives = 1 << 3 | 1 << 5;
    WORD Flags = 1;
  } volume;
  const auto broadcast = [&](WPARAM what) {
    const auto tell = [](HWND window, LPARAM told) WINAPI -> BOOL {
      const auto& [message, about] = *reinterpret_cast<std::pair<WPARAM, TVolume*>*>(told);
      ::SendMessageW(window, WM_DEVICECHANGE, message, reinterpret_cast<LPARAM>(about));
      return TRUE;
    };
    std::pair<WPARAM, TVolume*> told{what, &volume};
    ::EnumThreadWindows(::GetCurrentThreadId(), tell, reinterpret_cast<LPARAM>(&told));
  };
  broadcast(0x8000);
  broadcast(0x8004);
  volume.Type = 3;  // A port.
  broadcast(0x8000);
  EXPECT_EQ(log, "+D+F-D-F");
  const TImportPatch open("qel.dll", "CreateFileW", &OpenDevice);
  const TImportPatch move("qel.dll", "DeviceIoControl", &Control);
  EXPECT_TRUE(triggers.Open('e')) << triggers.LastError();
  EXPECT_EQ(control, DWORD{IOCTL_STORAGE_EJECT_MEDIA});
  EXPECT_TRUE(triggers.Close('E'));
  EXPECT_EQ(control, DWORD{IOCTL_STORAGE_LOAD_MEDIA});
  EXPECT_FALSE(triggers.Open('F'));
  EXPECT_THAT(triggers.LastError(), HasSubstr("drive F:"));
  EXPECT_FALSE(triggers.Open('?'));
}

}  // namespace
}  // namespace qel
