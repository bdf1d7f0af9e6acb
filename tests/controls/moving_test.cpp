// What moves: the clock that all share, the animator, the scroller, the marquee and the
// presentation.
#include <gmock/gmock.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/faketime.h"
#include "tests/support/registered.h"
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"

namespace qel {
namespace {

using testing::ElementsAre;
using testinput::PumpFor;
using testinput::PumpUntil;

class Moving : public vcl::TStandardForm {
 protected:
  Moving() { Form.SetColor(vcl::clWhite); }
  /// A picture of bars of these colours, each so many pixels wide.
  static void Bars(vcl::TBitmap& bitmap, std::initializer_list<vcl::TColor> colors, int width,
                   int height) {
    bitmap.SetSize(width * static_cast<int>(colors.size()), height);
    int left = 0;
    for (const vcl::TColor color : colors) {
      bitmap.Canvas()->Brush()->SetColor(color);
      bitmap.Canvas()->FillRect(vcl::Bounds(left, 0, width, height));
      left += width;
    }
  }
};

// The clock.

TEST_F(Moving, AMotionRunsOnlyWhileItIsActiveAndSeen) {
  auto* panel = Make<vcl::TPanel>(10, 10);
  int ticks = 0;
  double passed = 0;
  TQELMotion motion(*panel, [&](double milliseconds) { ++ticks, passed += milliseconds; });
  PumpFor(50);
  EXPECT_EQ(ticks, 0);
  ShowForm();
  const ULONGLONG begin = ::GetTickCount64();
  motion.SetActive(true);
  EXPECT_TRUE(PumpUntil([&] { return ticks >= 5; }));
  EXPECT_NEAR(passed, static_cast<double>(::GetTickCount64() - begin), 60);
  panel->Hide();
  EXPECT_TRUE(PumpUntil([&] { return !motion.Running(); }));
  PumpFor(100);
  panel->Show();
  motion.Wake();
  passed = 0;
  EXPECT_TRUE(PumpUntil([&] { return passed > 0; }));
  EXPECT_LT(passed, 90) << "time stood still while nothing was seen";
  motion.SetActive(false);
  ticks = 0;
  PumpFor(60);
  EXPECT_EQ(ticks, 0);
}

TEST_F(Moving, AHandlerMayFreeWhatMoves) {
  ShowForm();
  std::vector<std::unique_ptr<TQELMotion>> motions(3);
  int ticks = 0;
  for (auto& each : motions) {
    each = std::make_unique<TQELMotion>(Form, [&](double) {
      ++ticks;
      for (auto& other : motions) other.reset();
    });
    each->SetActive(true);
  }
  EXPECT_TRUE(PumpUntil([&] { return ticks > 0; }));
  PumpFor(60);
  EXPECT_EQ(ticks, 1);
}

TEST_F(Moving, WhatAHandlerRaisesGoesToTheApplicationAndTheClockGoesOn) {
  ShowForm();
  int ticks = 0;
  TQELMotion bad(Form, [](double) { throw vcl::Exception("bad"); });
  TQELMotion good(Form, [&](double) { ++ticks; });
  bad.SetActive(true);
  good.SetActive(true);
  EXPECT_TRUE(PumpUntil([&] { return ticks >= 3; }));
  EXPECT_THAT(Errors, testing::StartsWith("bad"));
  Errors.clear();
}

TEST_F(Moving, NothingMovesForAUserWhoWantsNoAnimationButContents) {
  const TNoAnimation wish;
  ShowForm();
  int moved = 0, told = 0;
  TQELMotion motion(Form, [&](double) { ++moved; });
  TQELMotion content(
      Form, [&](double) { ++told; }, TQELMotionKind::Content);
  motion.SetActive(true);
  content.SetActive(true);
  EXPECT_TRUE(PumpUntil([&] { return told >= 3; }));
  EXPECT_EQ(moved, 0);
}

// The animator.

class Animator : public Moving {
 protected:
  Animator() {
    vcl::TBitmap strip;
    Bars(strip, {vcl::clRed, vcl::clLime, vcl::clBlue, vcl::clAqua}, 20, 20);
    It = Make<TQELAnimator>(30, 30);
    It->SetTransparent(false);
    It->SetFrameCount(4);
    It->SetStrip(&strip);
    It->SetBounds(30, 30, 40, 40);
    It->OnFrame = [this](vcl::TObject*) { Frames.push_back(It->Frame()); };
  }
  TQELAnimator* It;
  std::vector<int> Frames;
};

TEST_F(Animator, GoesByTheClock) {
  const TFakeTime time;
  It->SetInterval(20);
  It->SetActive(true);
  ShowForm();
  TFakeTime::Pass(20);
  TFakeTime::Pass(40);
  TFakeTime::Pass(20);
  EXPECT_THAT(Frames, ElementsAre(1, 3, 0));
  EXPECT_EQ(Find(vcl::clRed), vcl::Bounds(40, 40, 20, 20)) << "in the middle";
  It->SetStretch(true);
  EXPECT_EQ(Find(vcl::clRed), vcl::Bounds(30, 30, 40, 40));
}

TEST_F(Animator, EndsWithItsLastFrameWithoutLoop) {
  const TFakeTime time;
  int finished = 0;
  It->OnFinished = [&](vcl::TObject*) { ++finished; };
  It->SetInterval(20);
  It->SetLoop(false);
  It->SetFirstFrame(1);
  It->SetLastFrame(2);
  ShowForm();
  It->SetActive(true);
  TFakeTime::Pass(20);
  EXPECT_EQ(It->Frame(), 2);
  EXPECT_EQ(finished, 1);
  EXPECT_FALSE(It->Active());
  It->SetActive(true);
  EXPECT_EQ(It->Frame(), 1);
}

TEST_F(Animator, KeepsWhatItHasWhenAValueIsRefused) {
  It->SetInterval(0);
  It->SetFrameCount(0);
  It->SetFirstFrame(-1);
  It->SetLastFrame(-2);
  It->SetFrame(9);
  EXPECT_EQ(It->Interval(), 100);
  EXPECT_EQ(It->FrameCount(), 4);
  EXPECT_EQ(It->FirstFrame(), 0);
  EXPECT_EQ(It->LastFrame(), -1);
  EXPECT_EQ(It->Frame(), 0);
}

TEST_F(Animator, ShowsAnImageListsPictures) {
  vcl::TBitmap red;
  Bars(red, {vcl::clRed}, 16, 16);
  auto* images = new vcl::TImageList(&Form);
  images->Add(&red, nullptr);
  It->SetImages(images);
  EXPECT_EQ(It->Frames(), 1);
  ShowForm();
  EXPECT_EQ(Find(vcl::clRed), vcl::Bounds(42, 42, 16, 16));
  delete images;
  EXPECT_EQ(It->Images(), nullptr);
  EXPECT_EQ(It->Frames(), 4);
}

/// An AVI file of plain pictures, one for each colour.
void WriteAvi(const std::string& name, const std::vector<vcl::TColor>& colors) {
  constexpr std::uint32_t side = 16, bytes = side * side * 3;
  const auto count = static_cast<std::uint32_t>(colors.size());
  std::string file;
  const auto number = [&](std::uint32_t value) {
    file.append(reinterpret_cast<const char*>(&value), 4);
  };
  const auto half = [&](std::uint16_t value) {
    file.append(reinterpret_cast<const char*>(&value), 2);
  };
  const std::uint32_t frames = count * (8 + bytes);
  file = "RIFF";
  number(4 + 8 + 192 + 8 + 4 + frames + 8 + count * 16);
  file += "AVI LIST";
  number(192);
  file += "hdrlavih";
  number(56);
  for (const std::uint32_t each :
       {100000u, bytes * 10, 0u, 0x10u, count, 0u, 1u, bytes, side, side, 0u, 0u, 0u, 0u})
    number(each);
  file += "LIST";
  number(116);
  file += "strlstrh";
  number(56);
  file += "vidsDIB ";
  for (const std::uint32_t each : {0u, 0u, 0u, 1u, 10u, 0u, count, bytes, 0xFFFFFFFFu, 0u})
    number(each);
  half(0), half(0), half(side), half(side);
  file += "strf";
  number(40);
  for (const std::uint32_t each : {40u, side, side}) number(each);
  half(1), half(24);
  for (const std::uint32_t each : {0u, bytes, 0u, 0u, 0u, 0u}) number(each);
  file += "LIST";
  number(4 + frames);
  file += "movi";
  for (const vcl::TColor color : colors) {
    file += "00db";
    number(bytes);
    for (std::uint32_t i = 0; i < side * side; ++i) {
      for (const int shift : {16, 8, 0}) file += static_cast<char>(color >> shift & 0xFF);
    }
  }
  file += "idx1";
  number(count * 16);
  for (std::uint32_t i = 0; i < count; ++i) {
    file += "00db";
    for (const std::uint32_t each : {0x10u, 4 + i * (8 + bytes), bytes}) number(each);
  }
  std::ofstream(name, std::ios::binary) << file;
}

TEST_F(Animator, PlaysAnAviFileAndRefusesWhatIsNone) {
  const std::string folder = std::filesystem::temp_directory_path().string();
  const std::string name = folder + "\\qelanimator.avi", other = folder + "\\qelnoanimation.avi";
  WriteAvi(name, {vcl::clFuchsia, vcl::clYellow});
  std::ofstream(other) << "no video";
  It->SetFilename(name);
  EXPECT_EQ(It->Frames(), 2);
  ShowForm();
  EXPECT_EQ(Find(vcl::clFuchsia), vcl::Bounds(42, 42, 16, 16));
  It->SetFrame(1);
  EXPECT_EQ(Find(vcl::clYellow), vcl::Bounds(42, 42, 16, 16));
  for (const std::string& bad : {other, folder + "\\qelmissing.avi"}) {
    try {
      It->SetFilename(bad);
      ADD_FAILURE() << bad;
    } catch (const EQELAnimatorError& error) {
      EXPECT_THAT(error.Message(), testing::StartsWith("Cannot play '" + bad + "': "));
    }
  }
  EXPECT_EQ(It->Filename(), name);
  EXPECT_EQ(It->Frames(), 2);
  RegisterAll();
  vcl::TForm form(nullptr);
  ReadForm(
      "object F: TForm object A: TQELAnimator Filename = 'C:\\nowhere.avi' Active = True end end",
      &form);
  EXPECT_EQ(dynamic_cast<TQELAnimator*>(form.FindComponent("A"))->Frames(), 0);
}

// The scroller.

class Scroller : public Moving {
 protected:
  Scroller() {
    vcl::TBitmap bars;
    Bars(bars, {vcl::clRed, vcl::clLime, vcl::clBlue}, 50, 40);
    It = Make<TQELImageScroller>(0, 0);
    It->SetBounds(20, 20, 100, 40);
    It->Picture()->Assign(&bars);
  }
  TQELImageScroller* It;
};

TEST_F(Scroller, MovesByTheClockAndOnlyWhatIsNewIsPainted) {
  const TFakeTime time;
  int wraps = 0;
  It->OnWrap = [&](vcl::TObject*) { ++wraps; };
  ShowForm();
  testinput::MoveMouse(Form.ClientToScreen({490, 390}));
  EXPECT_EQ(Find(vcl::clRed), vcl::Bounds(20, 20, 50, 40));
  It->SetActive(true);
  TFakeTime::Pass(200);
  EXPECT_EQ(It->Position(), 10);
  RECT dirty;
  It->Update();
  It->SetPosition(15);
  ASSERT_TRUE(::GetUpdateRect(It->Handle(), &dirty, FALSE));
  EXPECT_EQ(vcl::TRect(dirty), vcl::Rect(95, 0, 100, 40));
  EXPECT_EQ(Find(vcl::clRed), vcl::Bounds(20, 20, 35, 40));
  It->SetStep(-2);
  TFakeTime::Pass(200);
  EXPECT_EQ(It->Position(), 145);
  EXPECT_EQ(wraps, 1);
}

TEST_F(Scroller, EndsAtThePicturesEndWithoutWrap) {
  const TFakeTime time;
  It->SetWrap(false);
  It->SetActive(true);
  ShowForm();
  TFakeTime::Pass(2000);
  EXPECT_EQ(It->Position(), 50);
  TFakeTime::Pass(50);
  EXPECT_FALSE(It->Active());
}

TEST_F(Scroller, IsMovedByMouseWheelAndKeys) {
  It->SetTabStop(true);
  ShowForm();
  It->SetFocus();
  Key(VK_RIGHT);
  EXPECT_TRUE(PumpUntil([&] { return It->Position() == 16; }));
  Key(VK_SPACE);
  EXPECT_TRUE(PumpUntil([&] { return It->Active(); }));
  It->SetActive(false);
  It->SetPosition(60);
  const vcl::TPoint middle = testinput::MiddleOf(It);
  testinput::MoveMouse(middle);
  testinput::LeftDown();
  testinput::MoveMouse(middle + vcl::TPoint(20, 0));
  EXPECT_TRUE(PumpUntil([&] { return It->Position() == 40; }));
  testinput::LeftUp();
  testinput::MoveMouse(middle);
  EXPECT_EQ(It->Position(), 40);
  ::SendMessageW(It->Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, WORD(-120)), 0);
  EXPECT_EQ(It->Position(), 88);
}

TEST_F(Scroller, StopsUnderTheMouse) {
  const TFakeTime time;
  It->SetStopOnHover(true);
  It->SetActive(true);
  ShowForm();
  testinput::MoveMouse(testinput::MiddleOf(It));
  const int position = It->Position();
  TFakeTime::Pass(200);
  EXPECT_EQ(It->Position(), position);
  testinput::MoveMouse(Form.ClientToScreen({490, 390}));
  TFakeTime::Pass(200);
  EXPECT_NE(It->Position(), position);
}

// The marquee.

class Marquee : public Moving {
 protected:
  Marquee() {
    It = Make<TQELICQMarquee>(0, 0);
    It->SetBounds(20, 20, 200, 40);
    It->Lines()->Add("First");
    It->Lines()->Add("Second");
    It->OnRound = [this](vcl::TObject*) { ++Rounds; };
    It->OnLineClick = [this](vcl::TObject*, int line) { Clicked.push_back(line); };
  }
  /// The first line that is found on the middle row from the left.
  int LineOnTheWay() {
    for (int x = 0; x < It->Width(); ++x) {
      const int line = It->LineAt({x, It->Height() / 2});
      if (line >= 0) return x;
    }
    return -1;
  }
  TQELICQMarquee* It;
  int Rounds = 0;
  std::vector<int> Clicked;
};

TEST_F(Marquee, ComesInFromTheSideAndGoesOutAtTheOther) {
  const TFakeTime time;
  ShowForm();
  testinput::MoveMouse(Form.ClientToScreen({490, 390}));
  EXPECT_EQ(LineOnTheWay(), 0) << "at rest";
  It->SetActive(true);
  TFakeTime::Pass(50);
  EXPECT_GT(LineOnTheWay(), 190);
  TFakeTime::Pass(1000);
  EXPECT_NEAR(LineOnTheWay(), 137, 2) << "60 pixels a second";
  It->SetLoop(false);
  TFakeTime::Pass(20000);
  EXPECT_EQ(Rounds, 1);
  EXPECT_FALSE(It->Active());
}

TEST_F(Marquee, WaitsBetweenItsRounds) {
  const TFakeTime time;
  It->SetDelay(1000);
  It->SetActive(true);
  ShowForm();
  testinput::MoveMouse(Form.ClientToScreen({490, 390}));
  TFakeTime::Pass(50);
  TFakeTime::Pass(20000);
  EXPECT_EQ(Rounds, 1);
  TFakeTime::Pass(900);
  EXPECT_EQ(LineOnTheWay(), -1);
  TFakeTime::Pass(200);
  TFakeTime::Pass(200);
  EXPECT_GT(LineOnTheWay(), 150);
}

TEST_F(Marquee, TellsWhichLineIsClicked) {
  It->SetTabStop(true);
  It->SetDirection(mdUp);
  ShowForm();
  Click(*It, 100, 5);
  EXPECT_THAT(Clicked, ElementsAre(0));
  Click(*It, 100, 22);
  EXPECT_THAT(Clicked, ElementsAre(0, 1));
  Click(*It, 1, 5);
  Key(VK_RETURN);
  EXPECT_THAT(Clicked, ElementsAre(0, 1, 0));
  EXPECT_EQ(It->AccessibleParts().size(), 2u);
  It->DoAccessiblePart({1});
  EXPECT_EQ(Clicked.back(), 1);
}

// The presentation.

class Presentation : public Moving {
 protected:
  Presentation() {
    It = Make<TQELPresentation>(0, 0);
    It->SetBounds(20, 20, 100, 80);
    It->SetStretch(true);
    It->SetProportional(false);
    for (const vcl::TColor color : {vcl::clRed, vcl::clLime, vcl::clBlue}) {
      vcl::TBitmap bitmap;
      Bars(bitmap, {color}, 10, 10);
      It->Slides()->Add()->Picture()->Assign(&bitmap);
    }
    It->OnSlide = [this](vcl::TObject*) { Shown.push_back(It->SlideIndex()); };
  }
  TQELPresentation* It;
  std::vector<int> Shown;
};

TEST_F(Presentation, ShowsEachSlideForItsTime) {
  int ends = 0;
  It->OnEnd = [&](vcl::TObject*) { ++ends; };
  for (int i = 0; i < 3; ++i) It->Slides()->Slides(i)->SetDuration(40);
  It->SetLoop(false);
  It->SetActive(true);
  ShowForm();
  EXPECT_TRUE(PumpUntil([&] { return ends == 1; }));
  EXPECT_THAT(Shown, ElementsAre(1, 2));
  EXPECT_FALSE(It->Active());
  EXPECT_EQ(Find(vcl::clBlue), vcl::Bounds(20, 20, 100, 80));
  It->SetLoop(true);
  It->SetActive(true);
  EXPECT_TRUE(PumpUntil([&] { return Shown.size() >= 4; }));
  EXPECT_EQ(Shown[2], 0);
}

TEST_F(Presentation, IsSteppedByKeysWheelAndClick) {
  ShowForm();
  It->SetFocus();
  Key(VK_RIGHT);
  Key(VK_END);
  Key(VK_RIGHT);
  EXPECT_TRUE(PumpUntil([&] { return Shown.size() == 3; }));
  It->SetLoop(false);
  Key(VK_LEFT);
  Click(*It);
  ::SendMessageW(It->Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, WORD(-120)), 0);
  ::SendMessageW(It->Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
  EXPECT_THAT(Shown, ElementsAre(1, 2, 0, 1, 2, 1));
  It->SetSlideIndex(9);
  EXPECT_EQ(It->SlideIndex(), 1);
}

/// What part of the window each effect has given to the new slide in the middle of its time, in
/// percent, and whether the window is all new at its end.
TEST_F(Presentation, EffectsGoFromOneSlideToTheOther) {
  const TFakeTime time;
  ShowForm();
  It->SetEffectTime(1000);
  for (int effect = seFade; effect <= seBox; ++effect) {
    It->Slides()->Slides(1)->SetEffect(static_cast<TQELSlideEffect>(effect));
    It->SetSlideIndex(0);
    PumpFor(20);
    ASSERT_EQ(Find(vcl::clRed), vcl::Bounds(20, 20, 100, 80)) << effect;
    It->SetSlideIndex(1);
    TFakeTime::Pass(500);
    const vcl::TRect half = Find(vcl::clLime);
    switch (effect) {
      case seFade: EXPECT_TRUE(half.Empty() && Find(vcl::clRed).Empty()); break;
      case seWipeLeft:
      case sePushLeft: EXPECT_EQ(half, vcl::Rect(70, 20, 120, 100)) << effect; break;
      case seWipeRight:
      case sePushRight: EXPECT_EQ(half, vcl::Rect(20, 20, 70, 100)) << effect; break;
      case seWipeUp: EXPECT_EQ(half, vcl::Rect(20, 60, 120, 100)); break;
      case seWipeDown: EXPECT_EQ(half, vcl::Rect(20, 20, 120, 60)); break;
      case seBox: EXPECT_EQ(half, vcl::Rect(45, 40, 95, 80)); break;
      default: EXPECT_FALSE(half.Empty() || Find(vcl::clRed).Empty()) << effect;
    }
    TFakeTime::Pass(600);
    EXPECT_EQ(Find(vcl::clLime), vcl::Bounds(20, 20, 100, 80)) << effect;
  }
}

TEST_F(Presentation, LeavesEffectsOutForAUserWhoWantsNone) {
  const TNoAnimation wish;
  ShowForm();
  It->Slides()->Slides(1)->SetEffect(seFade);
  It->SetSlideIndex(1);
  EXPECT_EQ(Find(vcl::clLime), vcl::Bounds(20, 20, 100, 80));
}

TEST_F(Presentation, ComesBackFromItsFormFile) {
  RegisterAll();
  It->SetName("Shown");
  It->Slides()->Slides(2)->SetTitle("Last");
  It->Slides()->Slides(2)->SetEffect(seBlinds);
  It->SetSlideIndex(2);
  vcl::TForm form(nullptr);
  const std::string text = FormText(&Form, "TForm");
  ReadForm(text, &form);
  auto* read = dynamic_cast<TQELPresentation*>(form.FindComponent("Shown"));
  ASSERT_EQ(read->Slides()->Count(), 3) << text;
  EXPECT_EQ(read->SlideIndex(), 2);
  EXPECT_EQ(read->Slide()->Title(), "Last");
  EXPECT_EQ(read->Slide()->Effect(), seBlinds);
  EXPECT_EQ(read->Slide()->Picture()->Width(), 10);
}

TEST_F(Presentation, PlacesPicturesAsItIsTold) {
  It->SetStretch(false);
  It->SetProportional(true);
  ShowForm();
  EXPECT_EQ(Find(vcl::clRed), vcl::Bounds(65, 55, 10, 10));
  It->SetStretch(true);
  EXPECT_EQ(Find(vcl::clRed), vcl::Bounds(30, 20, 80, 80));
  It->SetCenter(false);
  EXPECT_EQ(Find(vcl::clRed), vcl::Bounds(20, 20, 80, 80));
}

}  // namespace
}  // namespace qel
