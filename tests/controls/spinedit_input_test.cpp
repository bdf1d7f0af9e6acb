// The spin edit under real keys, clipboard, focus and mouse.
#include <cstring>
#include <limits>

#include "tests/controls/spinedit_form.h"

namespace qel {
namespace {

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

class SpinEdit : public TSpinForm {
 protected:
  /// Sets bounds in the order in which neither is refused.
  void SetBounds(int minValue, int maxValue) {
    Spin->SetMaxValue(std::max(maxValue, Spin->MaxValue()));
    Spin->SetMinValue(minValue);
    Spin->SetMaxValue(maxValue);
  }
  /// Presses and releases on the upper or the lower half of the button.
  void ClickHalf(bool upper) {
    const int at = upper ? 5 : Spin->Button()->Width() - 5;
    testinput::Click(Spin->Button()->ClientToScreen({at, at}));
  }
  /// Opens the menu that the system's edit has and presses an item's key.
  void ChooseFromMenu(WORD key) {
    testinput::MoveMouse(Spin->ClientToScreen({30, 8}));
    testinput::RightDown();
    const testinput::TKeysWhen keys([] { return ::FindWindowA("#32768", nullptr) != nullptr; },
                                    {key});
    testinput::RightUp();
    testinput::Pump();
  }
  void CopyToClipboard(const std::string& text) {
    Other->SetText(text);
    Other->SelectAll();
    Other->CopyToClipboard();
  }
};

TEST_F(SpinEdit, TakesDigitsAndSignsAndBeepsAtTheRest) {
  Type("a-4 2x+.");
  EXPECT_EQ(Spin->Text(), "-42+");
  EXPECT_EQ(beeps, 4);
  EXPECT_EQ(otherSounds, 0);
  Key(VK_BACK);
  EXPECT_EQ(Spin->Text(), "-42");
  EXPECT_EQ(beeps, 4);
}

TEST_F(SpinEdit, WithoutCutandPasteNothingIsTyped) {
  Spin->SetCutandPaste(false);
  Type("7a");
  Key(VK_BACK);
  EXPECT_EQ(Spin->Text(), "0");
  EXPECT_EQ(beeps, 3);
  for (const auto& [key, valid] :
       {std::pair{U'\x03', true}, {U'\b', false}, {U'.', false}, {U'5', false}}) {
    EXPECT_EQ(Spin->IsValidChar(key), valid) << static_cast<int>(key);
  }
  Key(VK_UP);
  EXPECT_EQ(Spin->GetValue(), 1);
}

/// The system's edit does these without a message of its own: none that could be refused.
TEST_F(SpinEdit, WithoutCutandPasteKeysAndMenuChangeNothing) {
  CopyToClipboard("55");
  Spin->SetFocus();
  const std::function<void()> changes[] = {[&] { KeyWith(VK_SHIFT, VK_INSERT); },
                                           [&] { KeyWith(VK_SHIFT, VK_DELETE); },
                                           [&] { Key(VK_DELETE); },
                                           [&] { KeyWith(VK_CONTROL, VK_DELETE); },
                                           [&] { ChooseFromMenu('P'); },
                                           [&] { ChooseFromMenu('T'); },
                                           [&] { ChooseFromMenu('D'); }};
  for (const bool allowed : {false, true}) {
    Spin->SetCutandPaste(allowed);
    for (std::size_t i = 0; i < std::size(changes); ++i) {
      Spin->SetText("12");
      Spin->SelectAll();
      Spin->SetSelLength(1);
      if (i == 3) Spin->SetSelLength(0);
      changes[i]();
      EXPECT_EQ(Spin->Text() == "12", !allowed) << i;
      CopyToClipboard("55");
      Spin->SetFocus();
    }
  }
  EXPECT_EQ(beeps, 2) << "at the key Delete";
}

TEST_F(SpinEdit, TakesNoCharactersThatMakeLinesOrColumns) {
  std::string pressed;
  Spin->OnKeyPress = [&](vcl::TObject*, char32_t& key) { pressed += std::to_string(key) + " "; };
  KeyWith(VK_CONTROL, VK_RETURN);
  KeyWith(VK_CONTROL, 'I');
  KeyWith(VK_CONTROL, 'J');
  EXPECT_EQ(Spin->Text(), "0");
  EXPECT_EQ(pressed, "10 9 10 ");
  EXPECT_EQ(beeps, 0);
}

TEST_F(SpinEdit, ATwoLinePasteIsGoneWhenTheFocusLeaves) {
  Spin->SetMinValue(3);
  ASSERT_TRUE(::OpenClipboard(Form.Handle()));
  ::EmptyClipboard();
  const HGLOBAL lines = ::GlobalAlloc(GMEM_MOVEABLE, 5);
  std::memcpy(::GlobalLock(lines), "1\r\n2", 5);
  ::GlobalUnlock(lines);
  ::SetClipboardData(CF_TEXT, lines);
  ::CloseClipboard();
  Spin->SelectAll();
  KeyWith(VK_CONTROL, 'V');
  EXPECT_NE(Spin->Text(), "3");
  Key(VK_TAB);
  EXPECT_EQ(Spin->Text(), "3");
}

TEST_F(SpinEdit, KeysStep) {
  const std::tuple<WORD, int, int> cases[] = {
      {VK_UP, 5, 8},    {VK_DOWN, 5, 2}, {VK_PRIOR, 5, 25},   {VK_NEXT, 45, 25},
      {VK_UP, 99, 100}, {VK_DOWN, 1, 0}, {VK_PRIOR, 90, 100}, {VK_NEXT, 10, 0},
  };
  Spin->SetLineSize(3);
  Spin->SetMultipleLineSize(20);
  for (const auto& [key, from, value] : cases) {
    Spin->SetValue(from);
    Key(key);
    EXPECT_EQ(Spin->Text(), std::to_string(value)) << key << " from " << from;
  }
  Spin->SetLineSize(-7);
  Spin->SetValue(50);
  Key(VK_UP);
  EXPECT_EQ(Spin->GetValue(), 43);
  EXPECT_EQ(beeps, 0);
}

TEST_F(SpinEdit, StepsEndAtTheIntegersLimits) {
  const std::tuple<int, int, WORD, int> cases[] = {
      {Most, 1, VK_UP, Most},    {Most - 2, 10, VK_UP, Most}, {Least, 1, VK_DOWN, Least},
      {0, Least, VK_DOWN, Most}, {-1, Least, VK_UP, Least},   {Least, Most, VK_DOWN, Least},
  };
  SetBounds(Least, Most);
  for (const auto& [from, lineSize, key, value] : cases) {
    Spin->SetLineSize(lineSize);
    Spin->SetValue(from);
    Key(key);
    EXPECT_EQ(Spin->GetValue(), value) << from << " by " << lineSize;
  }
}

TEST_F(SpinEdit, AReadOnlyOneBeepsAtArrowsAndButtonAndIgnoresPageKeys) {
  Spin->SetValue(50);
  Spin->SetReadonly(true);
  Key(VK_PRIOR);
  Key(VK_NEXT);
  EXPECT_EQ(beeps, 0);
  Key(VK_UP);
  Key(VK_DOWN);
  ClickHalf(true);
  ClickHalf(false);
  EXPECT_EQ(beeps, 4);
  Type("7");
  EXPECT_EQ(Spin->Text(), "50");
}

TEST_F(SpinEdit, WhatIsTypedIsKeptWithinTheBoundsWhenTheFocusLeaves) {
  const std::tuple<const char*, const char*, int> cases[] = {
      {"500", "100", 100},     {"-5", "0", 0}, {"42", "42", 42},   {"", "0", 0},
      {"+7", "+7", 7},         {"+-", "0", 0}, {"12a", "0", 0},    {"$1F", "0", 0},
      {"99999999999", "0", 0}, {"5-", "0", 0}, {"1\r\n2", "0", 0}, {"7\t", "0", 0},
  };
  for (const auto& [text, left, value] : cases) {
    Spin->SetFocus();
    Spin->SetText(text);
    int atExit = -1;
    Spin->OnExit = [&](vcl::TObject*) { atExit = Spin->GetValue(); };
    Key(VK_TAB);
    EXPECT_TRUE(Other->Focused());
    EXPECT_EQ(Spin->Text(), left);
    EXPECT_EQ(Spin->GetValue(), value) << text;
    EXPECT_EQ(atExit, value) << text;
  }
}

TEST_F(SpinEdit, EnteringSelectsAllUnlessByClick) {
  Spin->SetValue(77);
  for (const bool select : {true, false}) {
    Spin->SetAutoSelect(select);
    Other->SetFocus();
    Spin->SetSelLength(0);
    Key(VK_TAB);
    EXPECT_TRUE(Spin->Focused());
    EXPECT_EQ(Spin->SelText(), select ? "77" : "");
  }
  Spin->SetAutoSelect(true);
  Other->SetFocus();
  Spin->SetSelLength(0);
  Click(*Spin, 60, 8);
  EXPECT_TRUE(Spin->Focused());
  EXPECT_EQ(Spin->SelText(), "");
}

TEST_F(SpinEdit, CutsAndPastesWhileItMay) {
  const std::tuple<bool, bool, const char*, const char*> cases[] = {
      {true, false, "55x", ""}, {false, false, "12", "12"}, {true, true, "12", "12"}};
  for (const auto& [cutandPaste, readonly, pasted, cut] : cases) {
    CopyToClipboard("55x");
    Spin->SetReadonly(readonly);
    Spin->SetCutandPaste(cutandPaste);
    Spin->SetText("12");
    Spin->SetFocus();
    Spin->SelectAll();
    KeyWith(VK_CONTROL, 'V');
    EXPECT_EQ(Spin->Text(), pasted);
    Spin->SelectAll();
    KeyWith(VK_CONTROL, 'X');
    EXPECT_EQ(Spin->Text(), cut);
    Spin->SetText("12");
    Spin->SelectAll();
    Spin->PasteFromClipboard();
    EXPECT_EQ(Spin->Text(), pasted);
  }
  EXPECT_EQ(beeps, 0);
}

TEST_F(SpinEdit, EnterAndEscapeReachTheFormsButtons) {
  std::string pressed;
  auto* ok = Make<vcl::TButton>(10, 140);
  auto* cancel = Make<vcl::TButton>(100, 140);
  ok->SetDefault(true);
  cancel->SetCancel(true);
  ok->OnClick = [&](vcl::TObject*) { pressed += "ok "; };
  cancel->OnClick = [&](vcl::TObject*) { pressed += "cancel "; };
  Key(VK_RETURN);
  Key(VK_ESCAPE);
  EXPECT_EQ(pressed, "ok cancel ");
  EXPECT_EQ(Spin->Text(), "0");
  EXPECT_EQ(beeps, 0);
}

TEST_F(SpinEdit, TheButtonStepsOnReleaseAndLeavesTheFocusAlone) {
  Other->SetFocus();
  Spin->SetValue(10);
  ClickHalf(true);
  EXPECT_EQ(Spin->GetValue(), 11);
  ClickHalf(false);
  ClickHalf(false);
  EXPECT_EQ(Spin->GetValue(), 9);
  EXPECT_TRUE(Other->Focused());
  testinput::MoveMouse(testinput::MiddleOf(Spin->Button()));
  testinput::LeftDown();
  testinput::PumpFor(700);
  EXPECT_EQ(Spin->GetValue(), 9);
  testinput::LeftUp();
  EXPECT_NE(Spin->GetValue(), 9);
}

TEST_F(SpinEdit, TheMenuComesUpForTheTextAndNotForTheButton) {
  vcl::TPopupMenu menu(nullptr);
  auto* item = new vcl::TMenuItem(&menu);
  item->SetCaption("Item");
  menu.Items()->Add(item);
  int popups = 0;
  menu.OnPopup = [&](vcl::TObject*) {
    ++popups;
    testinput::SendKey(VK_ESCAPE, true);
    testinput::SendKey(VK_ESCAPE, false);
  };
  Spin->SetPopupMenu(&menu);
  Form.SetPopupMenu(&menu);
  const auto rightClick = [](vcl::TPoint at) {
    testinput::MoveMouse(at);
    testinput::RightDown();
    testinput::RightUp();
    testinput::Pump();
  };
  rightClick(testinput::MiddleOf(Spin->Button()));
  EXPECT_EQ(popups, 0);
  EXPECT_EQ(Spin->GetValue(), 1) << "the release counts as a click of the upper half";
  rightClick(Spin->ClientToScreen({30, 8}));
  EXPECT_EQ(popups, 1);
  Form.SetPopupMenu(nullptr);
}

TEST_F(SpinEdit, IsDisabledWithItsButton) {
  Spin->SetEnabled(false);
  EXPECT_EQ(Spin->Button()->Down(), bsDisabled);
  ClickHalf(true);
  EXPECT_EQ(Spin->GetValue(), 0);
  Spin->SetEnabled(true);
  EXPECT_EQ(Spin->Button()->Down(), bsUp);
  ClickHalf(true);
  EXPECT_EQ(Spin->GetValue(), 1);
}

TEST_F(SpinEdit, AHandlerMayFreeIt) {
  for (const auto& act : {std::function<void()>([&] { Key(VK_UP); }),
                          {[&] { Key(VK_NEXT); }},
                          {[&] { Type("5"); }},
                          {[&] { ClickHalf(true); }},
                          {[&] {
                            Spin->SetText("500");
                            Key(VK_TAB);
                          }}}) {
    Spin->SetValue(50);
    Spin->SetFocus();
    bool freed = false;
    Spin->OnChange = [&](vcl::TObject*) {
      if (Spin->Text() == "500") return;
      freed = true;
      delete Spin;
    };
    act();
    EXPECT_TRUE(freed);
    Spin = new TOpenSpinEdit(&Form);
    Spin->SetParent(&Form);
    Spin->SetBounds(10, 10, 120, 24);
  }
}

}  // namespace
}  // namespace qel
