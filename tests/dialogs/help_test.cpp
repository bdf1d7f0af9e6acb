// Help in the system's dialogs, with real keys.
#include <filesystem>
#include <memory>

#include "qel/qel.h"
#include "tests/dialogs/dialogtest.h"
#include "tests/support/program.h"

namespace qel {
namespace {

/// Presses a key in the next box of the system's; then closes it.
class TInBox {
 public:
  explicit TInBox(WORD key) : FKey(key) {
    FTimer.SetInterval(50);
    FTimer.OnTimer = [this](vcl::TObject*) {
      const HWND box = Box();
      if (!box) return;
      if (FTicks == 0) ::SetForegroundWindow(box);
      // Its controls need a moment to have the focus.
      if (++FTicks == 4) {
        testinput::SendKey(FKey, true);
        testinput::SendKey(FKey, false);
      }
      if (FTicks > 8) ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
    };
  }
  ~TInBox() { EXPECT_GT(FTicks, 8); }

 private:
  static BOOL CALLBACK Find(HWND window, LPARAM found) {
    wchar_t name[20] = L"";
    ::GetClassNameW(window, name, 20);
    if (std::wstring(name) != L"#32770" || !::IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
  }
  static HWND Box() {
    HWND box = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &Find, reinterpret_cast<LPARAM>(&box));
    return box;
  }

  WORD FKey;
  int FTicks = 0;
  vcl::TTimer FTimer{nullptr};
};

class SystemHelp : public vcl::TStandardForm {
 protected:
  SystemHelp() { ShowForm(); }
  /// What the dialog's OnHelp is told when the key is pressed in it.
  static std::vector<int> AskedBy(TQELHelpDialog& dialog, WORD key = VK_F1, int context = 17) {
    std::vector<int> asked;
    dialog.SetHelpContext(context);
    dialog.OnHelp = [&](vcl::TObject* sender, int number) {
      EXPECT_EQ(sender, &dialog);
      asked.push_back(number);
    };
    const TInBox box(key);
    dialog.Execute();
    return asked;
  }
};

TEST_F(SystemHelp, F1AsksForItInEachBox) {
  using testing::ElementsAre;
  TQELMsgBox box(nullptr);
  box.SetButtons(mbOkCancel);
  EXPECT_THAT(AskedBy(box), ElementsAre(17));
  EXPECT_THAT(AskedBy(box, VK_F2), ElementsAre());
  EXPECT_THAT(AskedBy(box, VK_F1, 0), ElementsAre()) << "there is none";
  TQELShellAbout about(nullptr);
  EXPECT_THAT(AskedBy(about), ElementsAre(17));
  const testing_support::TFolder folder;
  TQELFolderBrowser browser(nullptr);
  browser.SetRoot(folder.Path.string());
  EXPECT_THAT(AskedBy(browser), ElementsAre(17));
}

TEST_F(SystemHelp, TheComponentMayBeFreedByIt) {
  auto* box = new TQELMsgBox(nullptr);
  box->SetButtons(mbOkCancel);
  box->SetHelpContext(1);
  box->OnHelp = [&](vcl::TObject*, int) { delete std::exchange(box, nullptr); };
  {
    const TInBox keys(VK_F1);
    EXPECT_FALSE(box->Execute());
  }
  EXPECT_EQ(box, nullptr);
  TQELMsgBox second(nullptr);
  second.SetHelpContext(1);
  second.OnHelp = [](vcl::TObject*, int) { throw vcl::Exception("No help"); };
  const TInBox more(VK_F1);
  second.Execute();
  EXPECT_EQ(std::exchange(Errors, ""), "No help") << "is not thrown through the system";
}

}  // namespace
}  // namespace qel
