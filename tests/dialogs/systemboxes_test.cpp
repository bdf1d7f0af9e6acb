// TQELMsgBox and TQELShellAbout: what they ask of the system, and its boxes for real.
#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <string>
#include <tuple>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

/// What was last asked of the system's message box, and what it answers.
struct TAsked {
  std::wstring Text, Caption;
  UINT Flags = 0;
  int Answer = IDOK;
  std::function<void()> Meanwhile;
};
TAsked Asked;

int WINAPI AnswerBox(HWND, const wchar_t* text, const wchar_t* caption, UINT flags) {
  Asked.Text = text;
  Asked.Caption = caption;
  Asked.Flags = flags;
  if (Asked.Meanwhile) Asked.Meanwhile();
  return Asked.Answer;
}

class MsgBox : public testing::Test {
 protected:
  MsgBox() : Box(new TQELMsgBox(nullptr)) { Asked = {}; }
  ~MsgBox() override { Asked = {}; }
  const TImportPatch Patch{"qelhost.dll", "MessageBoxW", &AnswerBox};
  std::unique_ptr<TQELMsgBox> Box;
};

TEST_F(MsgBox, AsksTheSystemForWhatIsSet) {
  const std::tuple<TQELMsgBoxIcon, TQELMsgBoxButtons, int, UINT> cases[] = {
      {miInformation, mbOk, 1, 0x40},
      {miWarning, mbOkCancel, 2, 0x131},
      {miError, mbAbortRetryIgnore, 3, 0x212},
      {miQuestion, mbYesNoCancel, 4, 0x323},
      {miNone, mbYesNo, 5, 0x304},
      {miNone, mbRetryCancel, 1, 0x005},
      {miNone, mbRetryCancel, 0, 0x005},
  };
  Box->SetText("Größe?");
  Box->SetCaption("Über");
  for (const auto& [icon, buttons, button, flags] : cases) {
    Box->SetIcon(icon);
    Box->SetButtons(buttons);
    Box->SetDefaultButton(button);
    Box->Execute();
    EXPECT_EQ(Asked.Flags, flags);
  }
  EXPECT_EQ(Asked.Text, L"Gr\u00f6\u00dfe?");
  EXPECT_EQ(Asked.Caption, L"\u00dcber");
  Box->SetCaption("");
  vcl::Application()->SetTitle("Title");
  Box->Execute();
  EXPECT_EQ(Asked.Caption, L"Title");
}

TEST_F(MsgBox, AgreementIsOkYesAndRetry) {
  EXPECT_EQ(Box->Result(), vcl::mrNone);
  for (int answer = IDOK; answer <= IDNO; ++answer) {
    Asked.Answer = answer;
    EXPECT_EQ(Box->Execute(), answer == IDOK || answer == IDYES || answer == IDRETRY) << answer;
    EXPECT_EQ(Box->Result(), answer);
  }
  Box->SetText("Sure?");
  Asked.Answer = 0;
  EXPECT_THAT([&] { Box->Execute(); },
              testing::ThrowsMessage<vcl::EOutOfResources>("The system cannot show \"Sure?\""));
  EXPECT_EQ(Box->Result(), vcl::mrNo);
}

TEST_F(MsgBox, MayBeFreedWhileItsBoxIsUp) {
  Asked.Meanwhile = [this] { Box.reset(); };
  EXPECT_FALSE(Box.get()->Execute());
}

/// Presses a button of the system's box with the caption as soon as it is up.
class TPresser {
 public:
  TPresser(std::wstring caption, WPARAM command) : FCaption(std::move(caption)), FCommand(command) {
    FTimer.SetInterval(20);
    FTimer.OnTimer = [this](vcl::TObject*) {
      const HWND box = ::FindWindowW(L"#32770", FCaption.c_str());
      if (!box || Seen) return;
      Seen = true;
      ::PostMessageW(box, WM_COMMAND, FCommand, 0);
    };
  }
  bool Seen = false;

 private:
  std::wstring FCaption;
  WPARAM FCommand;
  vcl::TTimer FTimer{nullptr};
};

TEST(SystemBoxes, TheMessageBoxIsTheSystems) {
  TQELMsgBox box(nullptr);
  box.SetCaption("A question of ours");
  box.SetButtons(mbYesNo);
  const TPresser presser(L"A question of ours", IDNO);
  EXPECT_FALSE(box.Execute());
  EXPECT_TRUE(presser.Seen);
  EXPECT_EQ(box.Result(), vcl::mrNo);
}

TEST(SystemBoxes, TheAboutBoxIsTheSystems) {
  static std::wstring title, text;
  static HICON icon;
  TQELShellAbout about(nullptr);
  about.SetTitle("Prögram");
  about.SetText("Made here");
  {
    const TImportPatch patch(
        "qel.dll", "ShellAboutW",
        +[](HWND, const wchar_t* name, const wchar_t* lines, HICON picture) WINAPI -> int {
          title = name;
          text = lines;
          icon = picture;
          return TRUE;
        });
    EXPECT_TRUE(about.Execute());
  }
  EXPECT_EQ(title, L"Pr\u00f6gram");
  EXPECT_EQ(text, L"Made here");
  EXPECT_EQ(icon, vcl::Application()->Icon()->Handle());
  const TPresser presser(L"About Pr\u00f6gram", IDOK);
  EXPECT_TRUE(about.Execute());
  EXPECT_TRUE(presser.Seen);
}

}  // namespace
}  // namespace qel
