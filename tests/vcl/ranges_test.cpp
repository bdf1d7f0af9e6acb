// Controls with a position between bounds: progress bars, scroll bars, arrows that count.
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"

namespace vcl {
namespace {

using testinput::PumpUntil;

class Ranges : public TStandardForm {
 protected:
  /// The form's own thing is not tested here: what is read is one control.
  template <class T>
  static std::unique_ptr<T> Read(const std::string& lines) {
    RegisterStandardClasses();
    auto read = std::make_unique<T>(nullptr);
    ReadForm("object Read: " + read->ClassName() + "\n" + lines + "end\n", read.get());
    return read;
  }
};

TEST_F(Ranges, AreReadInAnyOrderAndRefusedAsAWhole) {
  const auto bar = Read<TTrackBar>("  Max = -5\n  Min = -10\n  Position = -7\n");
  EXPECT_EQ(bar->Min(), -10);
  EXPECT_EQ(bar->Max(), -5);
  EXPECT_EQ(bar->Position(), -7);
  const auto far = Read<TProgressBar>("  Min = 500\n  Max = 600\n  Position = 7\n");
  EXPECT_EQ(far->Position(), 500);
  EXPECT_THROW(Read<TProgressBar>("  Min = 101\n"), EArgumentOutOfRangeException);
  TScrollBar refusing(nullptr);
  EXPECT_THROW(refusing.SetRange(5, 4), EArgumentOutOfRangeException);
  EXPECT_THROW(refusing.SetRange(-2000000000, 2000000000), EArgumentOutOfRangeException);
  EXPECT_THROW(refusing.SetPageSize(-1), EArgumentOutOfRangeException);
  EXPECT_EQ(refusing.Max(), 100);
}

TEST_F(Ranges, AProgressBarStepsAndKnowsHowFarItIs) {
  auto* bar = Make<TProgressBar>(10, 10);
  ShowForm();
  bar->SetRange(50, 150);
  bar->SetStep(60);
  bar->StepIt();
  EXPECT_EQ(bar->Position(), 110);
  EXPECT_EQ(bar->Accessible().Value, "60%");
  EXPECT_EQ(::SendMessageW(bar->Handle(), PBM_GETPOS, 0, 0), 110);
  bar->StepIt();
  EXPECT_EQ(bar->Position(), 50) << "behind the end it begins again";
  bar->StepBy(std::numeric_limits<int>::max());
  EXPECT_EQ(bar->Position(), 150);
  bar->RecreateWnd();
  EXPECT_EQ(::SendMessageW(bar->Handle(), PBM_GETPOS, 0, 0), 150);
  bar->SetStyle(pbstMarquee);
  EXPECT_EQ(bar->Accessible().Value, "");
  EXPECT_THROW(bar->SetMarqueeInterval(0), EArgumentOutOfRangeException);
}

TEST_F(Ranges, AScrollBarIsMovedByKeysMouseAndWheel) {
  auto* bar = Make<TScrollBar>(10, 10);
  bar->SetWidth(200);
  bar->SetLargeChange(20);
  bar->SetSmallChange(3);
  bar->SetPageSize(11);
  std::string codes;
  bar->OnScroll = [&](TObject*, TScrollCode code, int&) { codes += std::to_string(code) + " "; };
  ShowForm();
  bar->SetFocus();
  Key(VK_RIGHT);
  Key(VK_NEXT);
  EXPECT_EQ(bar->Position(), 23);
  Key(VK_END);
  EXPECT_EQ(bar->Position(), 90) << "the thumb ends at the end";
  EXPECT_THAT(codes, testing::HasSubstr(std::to_string(scBottom)));
  bar->SetPosition(100);
  EXPECT_EQ(bar->Position(), 100) << "code gets to Max";
  {
    // The system's bar waits for the button's release while it handles the press.
    std::thread release([] {
      ::Sleep(100);
      INPUT input{};
      input.type = INPUT_MOUSE;
      input.mi.dwFlags = MOUSEEVENTF_LEFTUP;
      ::SendInput(1, &input, sizeof input);
    });
    testinput::MoveMouse(bar->ClientToScreen({5, 5}));
    testinput::LeftDown();
    release.join();
  }
  EXPECT_EQ(bar->Position(), 90) << "3 less, and within the user's reach";
  ::SendMessageW(bar->Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
  EXPECT_EQ(bar->Position(), 81);
  // A handler may have the bar stand elsewhere.
  bar->OnScroll = [](TObject*, TScrollCode, int& position) { position = 40; };
  Key(VK_LEFT);
  EXPECT_EQ(bar->Position(), 40);
  EXPECT_EQ(::GetScrollPos(bar->Handle(), SB_CTL), 40);
}

class Counting : public Ranges {
 protected:
  Counting() {
    Edit = Make<TEdit>(10, 10);
    UpDown = Make<TUpDown>(200, 10);
    UpDown->SetThousands(false);
    UpDown->SetAssociate(Edit);
  }
  TRecreatable<TEdit>* Edit;
  TRecreatable<TUpDown>* UpDown;
};

TEST_F(Counting, HappensBesideTheEditByMouseAndKeys) {
  EXPECT_EQ(UpDown->Left(), Edit->Left() + Edit->Width());
  EXPECT_EQ(UpDown->Height(), Edit->Height());
  EXPECT_EQ(Edit->Text(), "0");
  std::string heard;
  UpDown->OnClick = [&](TObject*, TUDBtnType button) { heard += button == btNext ? "+" : "-"; };
  ShowForm();
  Click(*UpDown, UpDown->Width() / 2, 4);
  EXPECT_TRUE(PumpUntil([&] { return Edit->Text() == "1"; }));
  Edit->SetFocus();
  Key(VK_UP);
  Key(VK_UP);
  Key(VK_DOWN);
  EXPECT_EQ(Edit->Text(), "2");
  EXPECT_EQ(heard, "+++-");
  Edit->RecreateWnd();
  Click(*UpDown, UpDown->Width() / 2, 4);
  EXPECT_TRUE(PumpUntil([&] { return Edit->Text() == "3"; }));
  Edit->SetFocus();
  Key(VK_DOWN);
  EXPECT_EQ(Edit->Text(), "2") << "the edit's window is another one";
}

TEST_F(Counting, GoesOnFromWhatIsTypedWithinTheBounds) {
  UpDown->SetIncrement(7);
  ShowForm();
  Edit->SetText("95");
  EXPECT_EQ(UpDown->Position(), 95);
  Edit->SetFocus();
  Key(VK_UP);
  EXPECT_EQ(Edit->Text(), "100");
  UpDown->SetWrap(true);
  Key(VK_UP);
  EXPECT_EQ(Edit->Text(), "0");
  for (const char* unusable : {"", "many", "101", "-1"}) {
    UpDown->SetPosition(50);
    Edit->SetText(unusable);
    EXPECT_EQ(UpDown->Position(), 50) << unusable;
  }
  UpDown->OnChanging = [](TObject*, bool& allow) { allow = false; };
  Edit->SetText("10");
  Key(VK_UP);
  EXPECT_EQ(Edit->Text(), "10");
}

TEST_F(Counting, WritesThousandsAndReadsThem) {
  UpDown->SetRange(-2000000, 2000000);
  UpDown->SetThousands(true);
  UpDown->SetPosition(-1234567);
  const std::string text = Edit->Text();
  EXPECT_EQ(text.size(), std::string("-1,234,567").size());
  EXPECT_EQ(UpDown->Position(), -1234567);
  UpDown->SetPosition(123);
  EXPECT_EQ(Edit->Text(), "123");
}

TEST_F(Counting, EndsWithTheEditAndKeepsToItsParent) {
  ShowForm();
  delete Edit;
  EXPECT_EQ(UpDown->Associate(), nullptr);
  Click(*UpDown, UpDown->Width() / 2, 4);
  EXPECT_TRUE(PumpUntil([&] { return UpDown->Position() == 1; }));
  auto* panel = Make<TPanel>(10, 100);
  auto* inner = Make<TEdit>(0, 0, panel);
  EXPECT_THROW(UpDown->SetAssociate(inner), EInvalidOperation);
  EXPECT_THROW(UpDown->SetIncrement(0), EArgumentOutOfRangeException);
}

}  // namespace
}  // namespace vcl
