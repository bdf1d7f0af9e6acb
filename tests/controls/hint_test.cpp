// The hint component: what it changes of the application's hints, when, and what it leaves alone.
#include "tests/controls/hintform.h"
#include "tests/support/handles.h"
#include "tests/support/texts.h"

namespace {

using namespace hintform;
using namespace qel;
using vcl::Application;

class Hint : public HintTest {};

TEST_F(Hint, PutsItsWindowInThePlaceOfTheApplications) {
  EXPECT_EQ(&vcl::HintWindowClass(), &TQELNewHint::Class());
  ASSERT_TRUE(Window());
  EXPECT_EQ(Window()->FindHintQEL(), HintTest::Hint);
  EXPECT_EQ(Application()->HintPause(), 600);
  EXPECT_EQ(Application()->HintColor(), vcl::clBackground);
  EXPECT_TRUE(Application()->ShowHint());
  HintTest::Hint->SetHintPauseTime(30);
  EXPECT_EQ(Application()->HintPause(), 30);
  ShowAt({600, 500});
  const auto style = static_cast<DWORD>(::GetWindowLongA(Window()->Handle(), GWL_STYLE));
  EXPECT_FALSE(style & WS_BORDER);
  EXPECT_TRUE(::GetClassLongA(Window()->Handle(), GCL_STYLE) & CS_SAVEBITS);
  EXPECT_TRUE(::GetWindowLongA(Window()->Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST);
}

TEST_F(Hint, ThereIsOneOnly) {
  const int components = Form->ComponentCount();
  EXPECT_THAT([&] { TQELHint second(Form); },
              testing::ThrowsMessage<Qelthint::TQELDuplicateError>(
                  "You can have one and ONLY ONE\r\n\nTQELHint Component\r\n, in a project and it "
                  "must be on the Mainform"));
  EXPECT_EQ(Form->ComponentCount(), components);
  EXPECT_EQ(Window()->FindHintQEL(), HintTest::Hint);
  EXPECT_THROW(TQELHint(nullptr), Qelthint::TQELDuplicateError);
  delete HintTest::Hint;
  TQELHint another(Form);
  EXPECT_EQ(Window()->FindHintQEL(), &another);
}

TEST_F(Hint, TheMainFormOwnsIt) {
  delete HintTest::Hint;
  vcl::TForm other(nullptr);
  auto* hint = new TQELHint(&other);
  EXPECT_EQ(hint->Owner(), Form);
  delete hint;
  hint = new TQELHint(nullptr);
  EXPECT_EQ(hint->Owner(), Form);
  delete hint;
  other.SetDesigning(true);
  hint = new TQELHint(&other);
  EXPECT_EQ(hint->Owner(), &other);
}

TEST_F(Hint, InTheDesignerItChangesNothing) {
  delete HintTest::Hint;
  vcl::SetHintWindowClass(vcl::THintWindow::Class());
  RenewHintWindow();
  Application()->SetHintPause(123);
  vcl::TForm designed(nullptr);
  designed.SetDesigning(true);
  auto* hint = new TQELHint(&designed);
  hint->SetHintPauseTime(50);
  hint->HintFont()->SetSize(20);
  EXPECT_EQ(hint->HintPauseTime(), 600);
  EXPECT_EQ(Application()->HintPause(), 123);
  EXPECT_EQ(&vcl::HintWindowClass(), &vcl::THintWindow::Class());
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(Hint, WithoutAMainFormOrAHintItsWindowIsAPlainOne) {
  delete HintTest::Hint;
  ShowAt({600, 500});
  EXPECT_EQ(Window()->FindHintQEL(), nullptr);
  EXPECT_TRUE(::IsWindowVisible(Window()->Handle()));
  const COLORREF back = ::GetSysColor(COLOR_BACKGROUND);
  EXPECT_EQ(PictureOf(Window())->Pixel(0, 0),
            unsigned(GetRValue(back) << 16 | GetGValue(back) << 8 | GetBValue(back)));
  delete Form;
  Form = nullptr;
  Window()->ReleaseHandle();
  TQELHint lonely(nullptr);
  EXPECT_EQ(lonely.Owner(), nullptr);
  ShowAt({600, 500});
  EXPECT_TRUE(::IsWindowVisible(Window()->Handle()));
}

TEST_F(Hint, FreedWhileItIsShownItLeavesThePicture) {
  ShowForm();
  ShowHint();
  EXPECT_TRUE(Form->Active()) << "the hint takes no focus";
  delete HintTest::Hint;  // Before it has been painted, ...
  Window()->Update();
  HintTest::Hint = new TQELHint(Form);
  ShowHint();
  const auto before = PictureOf(Window());
  delete HintTest::Hint;  // ... and afterwards.
  Window()->Repaint();
  EXPECT_EQ(ScreenDiffers(Window()->BoundsRect().TopLeft(), *before), "");
}

TEST_F(Hint, TextIsMeasuredInItsFont) {
  const std::string text = "A hint of several words";
  const auto width = [&] { return Window()->CalcHintRect(1000, text).Width(); };
  const int plain = width();
  HintTest::Hint->HintFont()->SetSize(20);
  const int large = width();
  EXPECT_GT(large, plain * 3 / 2);
  vcl::TFont font;
  font.SetSize(30);
  HintTest::Hint->SetHintFont(&font);
  EXPECT_GT(width(), large);
  EXPECT_NE(HintTest::Hint->HintFont(), &font);
  RenewHintWindow();
  EXPECT_GT(width(), large);
  Application()->SetShowHint(false);
  HintTest::Hint->HintFont()->SetSize(8);
  EXPECT_FALSE(Application()->ShowHint());
  EXPECT_EQ(Window(), nullptr);
  Application()->SetShowHint(true);
  EXPECT_LT(width(), large);
}

TEST_F(Hint, AFormFileMayHoldOne) {
  delete HintTest::Hint;
  vcl::RegisterClasses({&TQELHint::Class(), &TQELBackground::Class()});
  const std::string text =
      "object Second: TForm"
      " object Hint1: TQELHint Speechbubble = True Font3D.Style3D = fontRaised"
      "  HintFont.Height = -30 HintPauseTime = 40 Background = Back1 end"
      " object Back1: TQELBackground end end";
  vcl::TForm second(nullptr);
  ReadForm(text, &second);
  HintTest::Hint = Window()->FindHintQEL();  // The main form owns it.
  ASSERT_TRUE(HintTest::Hint);
  EXPECT_TRUE(HintTest::Hint->Speechbubble());
  EXPECT_EQ(HintTest::Hint->Font3D()->Style3D(), fontRaised);
  EXPECT_EQ(HintTest::Hint->Background(), second.FindComponent("Back1"));
  EXPECT_EQ(Application()->HintPause(), 40);
  EXPECT_GT(Window()->CalcHintRect(1000, "x").Height(), 30);
  // A form with another one is not made at all.
  vcl::TForm third(nullptr);
  EXPECT_THROW(ReadForm(text, &third), vcl::Exception);
  EXPECT_EQ(third.ComponentCount(), 0);
  EXPECT_EQ(Window()->FindHintQEL(), HintTest::Hint);
}

TEST_F(Hint, AThousandShowingsLeaveNoHandle) {
  ShowForm();
  TQELBackground back(Form);
  HintTest::Hint->SetBackground(&back);
  HintTest::Hint->SetSpeechbubble(true);
  const auto show = [&](int i) {
    HintTest::Hint->SetHintDirection(TQELDirectionB(i % 4));
    Window()->ActivateHint({0, 0, 50, 16}, "A hint");
    Window()->Update();
    Window()->ReleaseHandle();
    if (i % 100 == 0) Application()->ProcessMessages();
  };
  ::SetCursorPos(800, 600);
  for (int i = 0; i < 8; ++i) show(i);
  vcl::FreeDeviceContexts();
  const int gdi = handles::GdiObjects();
  const int user = handles::UserObjects();
  for (int i = 0; i < 1000; ++i) show(i);
  vcl::FreeDeviceContexts();
  EXPECT_LE(handles::GdiObjects(), gdi + 2);
  EXPECT_LE(handles::UserObjects(), user + 2);
}

}  // namespace
