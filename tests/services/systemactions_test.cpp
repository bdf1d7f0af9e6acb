// Components that do something to the system: ending it, its screen saver, the desktop's picture.
#include <gmock/gmock.h>

#include <fstream>

#include "qel/qel.h"
#include "tests/services/roles.h"
#include "tests/support/importpatch.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

using testing::HasSubstr;

/// What the system was asked for.
std::string asked;
bool refuses = false;
BOOL WINAPI Exit(UINT flags, DWORD) {
  asked += "exit" + std::to_string(flags);
  ::SetLastError(ERROR_ACCESS_DENIED);
  return !refuses;
}
BOOL WINAPI Lock() {
  asked += "lock";
  return TRUE;
}
BOOLEAN WINAPI Sleep(BOOLEAN hibernate, BOOLEAN force, BOOLEAN) {
  asked += "sleep" + std::to_string(hibernate) + std::to_string(force);
  return TRUE;
}

class ExitingWindows : public testing::Test {
 protected:
  ExitingWindows() {
    vcl::Application();  // Which shows the boxes.
    asked.clear();
    refuses = false;
    Exits.SetConfirm(false);
  }
  TImportPatch NoExit{"qel.dll", "ExitWindowsEx", &Exit};
  TImportPatch NoLock{"qel.dll", "LockWorkStation", &Lock};
  TImportPatch NoSleep{"qel.dll", "SetSuspendState", &Sleep};
  TQELExitWindows Exits{nullptr};
};

TEST_F(ExitingWindows, AsksTheSystemForEachAction) {
  const std::pair<TQELExitWindowsAction, const char*> actions[] = {
      {ewLogOff, "exit0"},   {ewRestart, "exit2"}, {ewShutdown, "exit1"},
      {ewPowerOff, "exit8"}, {ewLock, "lock"},     {ewSleep, "sleep00"}};
  for (const auto& [action, call] : actions) {
    Exits.SetAction(action);
    EXPECT_TRUE(Exits.Execute()) << Exits.LastError();
    EXPECT_EQ(std::exchange(asked, ""), call);
  }
  Exits.SetForce(true);
  Exits.SetAction(ewRestart);
  Exits.Execute();
  EXPECT_EQ(asked, "exit6");
  refuses = true;
  EXPECT_FALSE(Exits.Execute());
  EXPECT_EQ(Exits.LastErrorCode(), ERROR_ACCESS_DENIED);
  EXPECT_THAT(Exits.LastError(), HasSubstr("The session cannot be ended: "));
}

TEST_F(ExitingWindows, AsksTheUserFirst) {
  Exits.SetConfirm(true);
  Exits.SetConfirmText("Sure?");
  for (const int answer : {IDNO, IDYES}) {
    testinput::TBoxAnswer box(answer);
    EXPECT_EQ(Exits.Execute(), answer == IDYES);
    EXPECT_TRUE(box.Wait());
    EXPECT_EQ(box.Text(), "Sure?");
    EXPECT_EQ(Exits.LastError(), "") << "a mere no is no error";
    EXPECT_EQ(std::exchange(asked, ""), answer == IDYES ? "exit0" : "");
  }
}

TEST_F(ExitingWindows, TheDesignerOnlyTells) {
  vcl::TForm form(nullptr);
  form.SetDesigning(true);
  auto* designed = new TQELExitWindows(&form);
  testinput::TBoxAnswer box(IDOK);
  designed->DoExec("(Busy...)");
  EXPECT_TRUE(box.Wait());
  EXPECT_THAT(box.Text(), HasSubstr("Do you want to log off?"));
  EXPECT_EQ(asked, "");
}

BOOL running = FALSE;
BOOL WINAPI Saver(UINT action, UINT value, PVOID out, UINT flags) {
  if (action == SPI_GETSCREENSAVERRUNNING) return *static_cast<BOOL*>(out) = running, TRUE;
  if (action == SPI_GETSCREENSAVETIMEOUT) return *static_cast<int*>(out) = 300, TRUE;
  if (action == SPI_SETSCREENSAVETIMEOUT) {
    asked = "timeout" + std::to_string(value) + "," + std::to_string(flags);
  }
  return TRUE;
}
EXECUTION_STATE state;
EXECUTION_STATE WINAPI KeepOn(EXECUTION_STATE wanted) { return state = wanted; }

TEST(ScreenSaver, ComesGoesAndIsKeptAway) {
  const TImportPatch settings("qel.dll", "SystemParametersInfoW", &Saver);
  const TImportPatch power("qel.dll", "SetThreadExecutionState", &KeepOn);
  TQELScreenSaver saver(nullptr);
  EXPECT_EQ(saver.Timeout(), 300);
  saver.SetTimeout(60);
  saver.SetTimeout(0);
  EXPECT_EQ(asked, "timeout60,3");
  std::string log;
  saver.OnStart = [&](vcl::TObject*) { log += "start "; };
  saver.OnStop = [&](vcl::TObject*) { log += "stop "; };
  running = TRUE;
  EXPECT_TRUE(testinput::PumpUntil([&] { return log == "start "; }));
  running = FALSE;
  EXPECT_TRUE(testinput::PumpUntil([&] { return log == "start stop "; }));
  {
    TQELScreenSaver other(nullptr);
    other.SetPrevent(true);
    saver.SetPrevent(true);
    EXPECT_EQ(state, ES_CONTINUOUS | ES_DISPLAY_REQUIRED);
  }
  EXPECT_EQ(state, ES_CONTINUOUS | ES_DISPLAY_REQUIRED) << "two do not undo each other";
  // The command that would start it is kept from the active window.
  vcl::TForm form(nullptr);
  form.Show();
  int commands = 0;
  vcl::TWindowHook hook(
      [&](vcl::TMessage& message, bool&) {
        commands += message.Msg == WM_SYSCOMMAND && (message.WParam & 0xFFF0) == SC_SCREENSAVE;
      },
      nullptr);
  hook.SetControl(&form);
  ::PostMessageW(form.Handle(), WM_SYSCOMMAND, SC_SCREENSAVE, 0);
  testinput::Pump();
  EXPECT_EQ(commands, 0);
  saver.SetPrevent(false);
  EXPECT_EQ(state, EXECUTION_STATE{ES_CONTINUOUS});
  hook.SetControl(nullptr);
}

class WallPaper : public testing::Test {
 protected:
  static BOOL WINAPI Desktop(UINT action, UINT, PVOID value, UINT flags) {
    auto* name = static_cast<wchar_t*>(value);
    if (action == SPI_GETDESKWALLPAPER) std::wcscpy(name, Shown.c_str());
    if (action != SPI_SETDESKWALLPAPER) return TRUE;
    if (refuses) return ::SetLastError(ERROR_ACCESS_DENIED), FALSE;
    Shown = name;
    Flags = flags;
    return TRUE;
  }
  static std::string Look() {
    vcl::TRegistry registry(KEY_QUERY_VALUE);
    registry.OpenKey("\\Control Panel\\Desktop", false);
    return registry.ReadString("WallpaperStyle") + "/" + registry.ReadString("TileWallpaper");
  }
  WallPaper() {
    Shown = L"former.bmp";
    refuses = false;
    vcl::TBitmap bitmap;
    bitmap.SetSize(4, 4);
    bitmap.SaveToFile(Picture());
    Paper->SetFilename(Picture());
  }
  std::string Picture() const { return (Folder.Path / "picture.bmp").string(); }
  std::vector<std::string> Report() const {
    std::vector<std::string> lines;
    std::ifstream file(Folder.Path / "report");
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
  }
  static inline std::wstring Shown;
  static inline UINT Flags;
  TImportPatch Patch{"qel.dll", "SystemParametersInfoW", &Desktop};
  testing_support::TFolder Folder;
  std::unique_ptr<TQELWallPaper> Paper = std::make_unique<TQELWallPaper>(nullptr);
};

TEST_F(WallPaper, IsShownAndPutBack) {
  EXPECT_FALSE(Paper->Restore()) << "nothing was changed";
  Paper->SetStyle(wpTile);
  EXPECT_TRUE(Paper->Execute()) << Paper->LastError();
  const std::string tiled = Look();
  EXPECT_EQ(vcl::ToUtf8(Shown), Picture());
  EXPECT_EQ(Flags, UINT{SPIF_UPDATEINIFILE | SPIF_SENDCHANGE});
  EXPECT_EQ(tiled, "0/1");
  Paper->SetStyle(wpFill);
  EXPECT_TRUE(Paper->Execute());
  EXPECT_EQ(Look(), "10/0");
  EXPECT_TRUE(Paper->Restore());
  EXPECT_EQ(Paper->Current(), "former.bmp") << "what was before the first one";
  Paper->SetFilename((Folder.Path / "none.bmp").string());
  EXPECT_FALSE(Paper->Execute());
  EXPECT_THAT(Paper->LastError(), HasSubstr("none.bmp"));
  std::ofstream(Folder.Path / "text.bmp") << "no picture";
  Paper->SetFilename((Folder.Path / "text.bmp").string());
  EXPECT_FALSE(Paper->Execute());
  EXPECT_EQ(Shown, L"former.bmp");
  Paper->SetFilename(Picture());
  refuses = true;
  EXPECT_FALSE(Paper->Execute());
  EXPECT_EQ(Paper->LastErrorCode(), ERROR_ACCESS_DENIED);
  refuses = false;
  EXPECT_TRUE(Paper->Execute());
  Paper.reset();
  EXPECT_EQ(vcl::ToUtf8(Shown), Picture()) << "for good";
}

TEST_F(WallPaper, APreviewEndsWithTheComponentOrTheProgram) {
  Paper->SetPreview(true);
  EXPECT_TRUE(Paper->Execute());
  EXPECT_EQ(Flags, UINT{SPIF_SENDCHANGE});
  Paper.reset();
  EXPECT_EQ(Shown, L"former.bmp");
  for (const char* end : {"return", "halt", "exit", "fault"}) {
    std::filesystem::remove(Folder.Path / "report");
    const TRole program(
        "preview", "\"" + (Folder.Path / "report").string() + "\" \"" + Picture() + "\" " + end);
    EXPECT_NE(program.ExitCode(), DWORD{STILL_ACTIVE}) << end;
    EXPECT_THAT(Report(), testing::ElementsAre("picture.bmp", "former.bmp")) << end;
  }
}

}  // namespace
}  // namespace qel
