// Hints: their texts, when they come and go, where they stand.
#include "tests/vcl/standardform.h"

#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

using namespace testinput;

TEST(HintText, HasAShortAndALongHalf) {
  EXPECT_EQ(GetShortHint("Save|Saves the file"), "Save");
  EXPECT_EQ(GetLongHint("Save|Saves the file"), "Saves the file");
  EXPECT_EQ(GetShortHint("Save"), "Save");
  EXPECT_EQ(GetLongHint("Save"), "Save");
  EXPECT_EQ(GetShortHint("|only long"), "");
  EXPECT_EQ(GetLongHint("only short|"), "");
}

class TPlate : public TGraphicControl {
 public:
  TPlate(TForm* form, int left, const std::string& hint) : TGraphicControl(form) {
    SetParent(form);
    SetBounds(left, 10, 60, 60);
    SetHint(hint);
  }
};

class Hints : public TStandardForm {
 protected:
  Hints()
      : First(new TPlate(&Form, 10, "First|About the first")),
        Second(new TPlate(&Form, 100, "Second")) {
    Form.SetShowHint(true);
    Application()->SetHintPause(30);
    Application()->SetHintHidePause(60000);
    MoveMouse({5, 5});
    Form.Show();
    EXPECT_TRUE(PumpUntil([&] { return Form.Active() && Application()->Active(); }));
  }
  ~Hints() override {
    Application()->OnShowHint = nullptr;
    Form.Hide();
    MoveMouse({5, 5});
    Application()->SetHintPause(500);
    Application()->SetHintHidePause(2500);
  }
  static THintControl& Control() { return Application()->Hints(); }
  bool Shows(const TControl* control) {
    return PumpUntil([&] { return Control().Shown() == control; });
  }
  /// The window that a hint is in; null when there is none on the screen.
  static HWND Window() {
    HWND found = nullptr;
    for (HWND each = nullptr; (each = ::FindWindowExA(nullptr, each, "THintWindow", nullptr));) {
      if (::IsWindowVisible(each)) found = each;
    }
    return found;
  }
  TPlate* First;
  TPlate* Second;
};

TEST_F(Hints, ComesWhenTheMouseRestsAndFollowsIt) {
  MoveMouse(MiddleOf(First));
  ASSERT_TRUE(Shows(First));
  ASSERT_NE(Window(), nullptr);
  char text[40] = "";
  ::GetWindowTextA(Window(), text, sizeof text);
  EXPECT_STREQ(text, "First");
  EXPECT_EQ(Application()->Hint(), "About the first");
  EXPECT_TRUE(Form.Active());  // The hint takes no focus.
  const int shortPause = Application()->HintShortPause();
  Application()->SetHintPause(60000);  // Counts no more while a hint is shown.
  Application()->SetHintShortPause(20);
  EXPECT_EQ(Application()->HintHidePause(), 60000);
  MoveMouse(MiddleOf(Second));
  EXPECT_TRUE(Shows(Second));
  Application()->SetHintShortPause(shortPause);
  MoveMouse({5, 5});
  EXPECT_TRUE(Shows(nullptr));
  EXPECT_EQ(Window(), nullptr);
  EXPECT_EQ(Application()->Hint(), "");
}

TEST_F(Hints, GoesWithAKeyAClickAndTimeAndStaysAway) {
  MoveMouse(MiddleOf(First));
  ASSERT_TRUE(Shows(First));
  TypeKey(VK_F9);
  EXPECT_TRUE(Shows(nullptr));
  PumpFor(100);
  EXPECT_EQ(Control().Shown(), nullptr);
  MoveMouse(MiddleOf(Second));
  ASSERT_TRUE(Shows(Second));
  LeftDown();
  EXPECT_TRUE(Shows(nullptr));
  LeftUp();
  Application()->SetHintHidePause(50);
  MoveMouse(MiddleOf(First));
  ASSERT_TRUE(Shows(First));
  EXPECT_TRUE(Shows(nullptr));
}

TEST_F(Hints, ComesOnlyWhereItIsAskedForAndAllowed) {
  First->SetShowHint(false);
  Form.SetShowHint(false);
  MoveMouse(MiddleOf(First));
  PumpFor(100);
  EXPECT_EQ(Control().Shown(), nullptr);
  Form.SetShowHint(true);
  int asked = 0;
  Application()->OnShowHint = [&](std::string& text, bool& show, THintInfo& info) {
    ++asked;
    EXPECT_EQ(info.HintControl, Second);
    show = asked > 1;
    text = "Another text";
    info.HintPos = {20000, 20000};  // Off the screen.
  };
  MoveMouse(MiddleOf(Second));
  EXPECT_TRUE(PumpUntil([&] { return asked == 1; }));
  EXPECT_EQ(Control().Shown(), nullptr);
  MoveMouse({5, 5});
  EXPECT_TRUE(PumpUntil([] { return Application()->Hint().empty(); }));
  MoveMouse(MiddleOf(Second));
  ASSERT_TRUE(Shows(Second));
  char text[40] = "";
  ::GetWindowTextA(Window(), text, sizeof text);
  EXPECT_STREQ(text, "Another text");
  RECT rect;
  ::GetWindowRect(Window(), &rect);
  const TRect area = Screen()->WorkAreaRect();
  EXPECT_LE(rect.right, area.Right);
  EXPECT_LE(rect.bottom, area.Bottom);
}

TEST_F(Hints, AFreedControlTakesItsHintAlong) {
  MoveMouse(MiddleOf(First));
  ASSERT_TRUE(Shows(First));
  delete First;
  EXPECT_EQ(Control().Shown(), nullptr);
  EXPECT_EQ(Window(), nullptr);
  Application()->OnShowHint = [&](std::string&, bool&, THintInfo&) {
    delete Second;
    Second = nullptr;
  };
  MoveMouse(MiddleOf(Second));
  EXPECT_TRUE(PumpUntil([&] { return !Second; }));
  EXPECT_EQ(Control().Shown(), nullptr);
}

/// A window of another class, whose showing a test interferes with.
class TOtherHintWindow : public THintWindow {
 public:
  using THintWindow::THintWindow;
  static const TClass& Class() {
    static const TClass info =
        Describe<TOtherHintWindow, THintWindow>("TOtherHintWindow", "hints", {});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  void ActivateHint(TRect rect, const std::string& text) override {
    const TWatch watch(this);
    if (OnActivate) OnActivate();
    if (!watch.Gone()) THintWindow::ActivateHint(rect, text);
  }
  static inline std::function<void()> OnActivate;
};

class OtherHints : public Hints {
 protected:
  OtherHints() {
    SetHintWindowClass(TOtherHintWindow::Class());
    Renew();
  }
  ~OtherHints() override {
    TOtherHintWindow::OnActivate = nullptr;
    SetHintWindowClass(THintWindow::Class());
    Renew();
  }
  static void Renew() {
    Application()->SetShowHint(false);
    Application()->SetShowHint(true);
  }
  static THintWindow* Component() {
    THintWindow* found = nullptr;
    int count = 0;
    for (int i = 0; i < Application()->ComponentCount(); ++i) {
      auto* window = dynamic_cast<THintWindow*>(Application()->Components(i));
      if (window) found = window, ++count;
    }
    EXPECT_LE(count, 1);
    return found;
  }
};

TEST_F(OtherHints, TheApplicationOwnsAWindowOfTheClassWhileItShowsHints) {
  ASSERT_TRUE(dynamic_cast<TOtherHintWindow*>(Component()));
  Application()->SetHintColor(clLime);
  EXPECT_EQ(Component()->Color(), clLime);
  Renew();
  EXPECT_EQ(Component()->Color(), clLime);
  Application()->SetHintColor(clInfoBk);
  int shown = 0;
  TOtherHintWindow::OnActivate = [&] { ++shown; };
  Application()->ActivateHint(MiddleOf(First));
  EXPECT_EQ(Control().Shown(), First);
  EXPECT_EQ(shown, 1);
  Application()->SetShowHint(false);
  EXPECT_EQ(Component(), nullptr);
  EXPECT_EQ(Control().Shown(), nullptr);
  Application()->ActivateHint(MiddleOf(First));
  EXPECT_EQ(Control().Shown(), nullptr);
  EXPECT_THROW(SetHintWindowClass(TForm::Class()), EInvalidOperation);
  EXPECT_EQ(&HintWindowClass(), &TOtherHintWindow::Class());
}

TEST_F(OtherHints, AHintEndedWhileItsWindowShowsItIsNotSeen) {
  TOtherHintWindow::OnActivate = [] { Application()->CancelHint(); };
  Application()->ActivateHint(MiddleOf(First));
  EXPECT_EQ(Control().Shown(), nullptr);
  EXPECT_FALSE(Component()->HandleAllocated());
  TOtherHintWindow::OnActivate = [] { Renew(); };
  Application()->ActivateHint(MiddleOf(First));
  EXPECT_EQ(Control().Shown(), nullptr);
  EXPECT_FALSE(Component()->HandleAllocated());
  TOtherHintWindow::OnActivate = [] { delete Component(); };
  Application()->ActivateHint(MiddleOf(First));
  EXPECT_EQ(Component(), nullptr);
  Renew();
  EXPECT_TRUE(Component());
}

}  // namespace
}  // namespace vcl
