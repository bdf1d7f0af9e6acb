// The button: painting, and real mouse and keyboard input.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/plainfill.h"
#include "tests/vcl/testinput.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct TButton : qel::TQELButton {
  using TQELButton::TQELButton;
  void PaintOn(HDC dc) { PaintWindow(dc); }
};

class Button : public testing::Test {
 protected:
  Button() : Form(nullptr) {
    Form.SetBorderStyle(vcl::bsNone);
    Form.SetBounds(40, 40, 300, 200);
    It = Make(20);
    Other = Make(100);
    Form.Show();
    Form.SetFocus();
    testinput::Pump();
  }
  ~Button() override { testinput::MoveMouse({0, 0}); }
  TButton* Make(int top) {
    auto* button = new TButton(&Form);
    button->SetParent(&Form);
    button->SetBounds(20, top, 100, 30);
    button->OnClick = [this](vcl::TObject*) { ++Clicks; };
    return button;
  }
  void Press() {
    testinput::MoveMouse(testinput::MiddleOf(It));
    testinput::LeftDown();
  }
  bool Clicked(int times) {
    return testinput::PumpUntil([&] { return Clicks == times; }) &&
           (testinput::Pump(), Clicks == times);
  }

  vcl::TForm Form;
  TButton* It;
  TButton* Other;
  int Clicks = 0;
};

TEST_F(Button, IsClickedWhereverTheLeftButtonIsReleased) {
  for (const bool outside : {false, true}) {
    Clicks = 0;
    Press();
    EXPECT_TRUE(testinput::PumpUntil([&] { return It->Down(); }));
    if (outside) testinput::MoveMouse(Form.ClientToScreen({250, 180}));
    EXPECT_TRUE(It->Down());
    EXPECT_EQ(Clicks, 0);
    testinput::LeftUp();
    EXPECT_TRUE(Clicked(1));
    EXPECT_FALSE(It->Down());
  }
}

TEST_F(Button, TheRightButtonOnlyReleasesIt) {
  testinput::MoveMouse(testinput::MiddleOf(It));
  testinput::RightDown();
  EXPECT_FALSE(It->Down());
  testinput::RightUp();
  EXPECT_EQ(Clicks, 0);
  testinput::LeftDown();
  EXPECT_TRUE(testinput::PumpUntil([&] { return It->Down(); }));
  testinput::RightDown();
  testinput::RightUp();
  EXPECT_TRUE(Clicked(1));
  testinput::LeftUp();
  EXPECT_FALSE(It->Down());
  EXPECT_TRUE(Clicked(1)) << "one press, one click";
}

TEST_F(Button, WhatEndsThePressLeavesItUpAndClicksNothing) {
  const std::pair<const char*, std::function<void()>> ends[] = {
      {"WM_CANCELMODE", [&] { ::SendMessageW(It->Handle(), WM_CANCELMODE, 0, 0); }},
      {"another window's capture", [&] { ::SetCapture(Form.Handle()); }},
      {"a message box",
       [&] {
         const testinput::TBoxAnswer answer(IDOK);
         ::MessageBoxW(Form.Handle(), L"text", L"caption", MB_OK);
       }},
  };
  for (const auto& [name, end] : ends) {
    Press();
    EXPECT_TRUE(testinput::PumpUntil([&] { return It->Down(); })) << name;
    end();
    EXPECT_FALSE(It->Down()) << name;
    ::ReleaseCapture();
    testinput::LeftUp();
    EXPECT_TRUE(Clicked(0)) << name;
  }
  Press();
  EXPECT_TRUE(testinput::PumpUntil([&] { return It->Down(); })) << "the next press counts";
  testinput::LeftUp();
  EXPECT_TRUE(Clicked(1));
}

TEST_F(Button, LosingTheFocusReleasesTheSpaceBarOnly) {
  It->SetFocus();
  testinput::SendKey(VK_SPACE, true);
  EXPECT_TRUE(testinput::PumpUntil([&] { return It->Down(); }));
  Other->SetFocus();
  EXPECT_FALSE(It->Down());
  testinput::SendKey(VK_SPACE, false);
  EXPECT_TRUE(Clicked(0));
  It->SetFocus();
  Press();
  EXPECT_TRUE(testinput::PumpUntil([&] { return It->Down(); }));
  Other->SetFocus();
  EXPECT_TRUE(It->Down()) << "the mouse still holds it";
  testinput::LeftUp();
  EXPECT_TRUE(Clicked(1));
}

TEST_F(Button, StaysUpWhenItsOnMouseDownShowsABox) {
  It->OnMouseDown = [&](vcl::TObject*, vcl::TMouseButton, vcl::TShiftState, int, int) {
    const testinput::TBoxAnswer answer(IDOK);
    ::MessageBoxW(Form.Handle(), L"text", L"caption", MB_OK);
  };
  Press();
  EXPECT_FALSE(It->Down());
  testinput::LeftUp();
  EXPECT_TRUE(Clicked(0));
}

TEST_F(Button, ItsMnemonicClicksIt) {
  Other->SetFocus();
  It->Setcaption("&Hello");
  testinput::TypeKey('H', {VK_MENU});
  EXPECT_TRUE(Clicked(1));
  EXPECT_TRUE(Other->Focused());
  EXPECT_FALSE(It->Down());
  const std::pair<const char*, std::function<void()>> refusals[] = {
      {"another letter", [&] { It->Setcaption("H&ello"); }},
      {"two ampersands", [&] { It->Setcaption("&&Hello"); }},
      {"disabled",
       [&] {
         It->Setcaption("&Hello");
         It->SetEnabled(false);
       }},
      {"hidden",
       [&] {
         It->SetEnabled(true);
         It->SetVisible(false);
       }},
  };
  for (const auto& [name, refuse] : refusals) {
    refuse();
    testinput::TypeKey('H', {VK_MENU});
    EXPECT_TRUE(Clicked(1)) << name;
  }
}

TEST_F(Button, ALabelsMnemonicFocusesItsControl) {
  auto* label = new qel::TQELLabel(&Form);
  label->SetParent(&Form);
  label->SetCaption("&Name");
  testinput::TypeKey('N', {VK_MENU});
  EXPECT_FALSE(Other->Focused()) << "it has none yet";
  label->SetFocusControl(Other);
  testinput::TypeKey('N', {VK_MENU});
  EXPECT_TRUE(Other->Focused());
  EXPECT_EQ(Clicks, 0);
}

TEST_F(Button, ADisabledOneIgnoresTheMouseButNotTheSpaceBar) {
  It->SetEnabled(false);
  EXPECT_TRUE(::IsWindowEnabled(It->Handle()));
  Press();
  EXPECT_FALSE(It->Down());
  testinput::LeftUp();
  testinput::PumpFor(50);
  EXPECT_EQ(Clicks, 0);
  It->SetFocus();
  testinput::SendKey(VK_SPACE, true);
  EXPECT_TRUE(testinput::PumpUntil([&] { return It->Down(); }));
  testinput::SendKey(VK_SPACE, false);
  EXPECT_TRUE(Clicked(1));
}

TEST_F(Button, TheSpaceBarClicksOnRelease) {
  std::vector<std::string> log;
  It->OnKeyDown = [&](vcl::TObject*, std::uint16_t&, vcl::TShiftState) { log.push_back("down"); };
  It->OnClick = [&](vcl::TObject*) { log.push_back("click"); };
  It->OnKeyUp = [&](vcl::TObject*, std::uint16_t&, vcl::TShiftState) { log.push_back("up"); };
  It->SetFocus();
  testinput::SendKey(VK_SPACE, true);
  EXPECT_TRUE(testinput::PumpUntil([&] { return It->Down(); }));
  testinput::SendKey(VK_SPACE, false);
  EXPECT_TRUE(testinput::PumpUntil([&] { return log.size() == 3; }));
  EXPECT_THAT(log, ElementsAre("down", "click", "up"));
  It->OnKeyDown = [&](vcl::TObject*, std::uint16_t& key, vcl::TShiftState) { key = 0; };
  testinput::SendKey(VK_SPACE, true);
  testinput::PumpFor(50);
  EXPECT_FALSE(It->Down());
  testinput::SendKey(VK_SPACE, false);
  testinput::Pump();
}

TEST_F(Button, AHandlerMayFreeIt) {
  It->OnClick = [&](vcl::TObject*) {
    delete It;
    It = nullptr;
  };
  Press();
  testinput::LeftUp();
  EXPECT_TRUE(testinput::PumpUntil([&] { return It == nullptr; }));
  It = Other;
  It->OnMouseDown = [&](vcl::TObject*, vcl::TMouseButton, vcl::TShiftState, int, int) {
    delete It;
    It = nullptr;
  };
  Press();
  EXPECT_TRUE(testinput::PumpUntil([&] { return It == nullptr; }));
  testinput::LeftUp();
}

TEST_F(Button, ASunkOneHasAClientEdge) {
  const HWND before = It->Handle();
  const auto edge = [&] { return ::GetWindowLongA(It->Handle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE; };
  EXPECT_EQ(edge(), 0);
  It->SetButtonSunk(true);
  EXPECT_NE(edge(), 0);
  EXPECT_NE(It->Handle(), before);
  EXPECT_EQ(It->ClientWidth(), 96);
  const HWND sunk = It->Handle();
  It->SetButtonSunk(true);
  EXPECT_EQ(It->Handle(), sunk);
}

std::vector<UINT> Edges, Sides, Formats;
std::vector<RECT> TextRects;

class PaintedButton : public Button {
 protected:
  PaintedButton() {
    Edges.clear();
    Sides.clear();
    Formats.clear();
    TextRects.clear();
  }
  void Paint() {
    Dib.Fill(0);
    It->PaintOn(Dib.DC());
  }
  plain::TDib Dib{110, 40};
  TImportPatch EdgePatch{"qel.dll", "DrawEdge",
                         +[](HDC, RECT*, UINT edge, UINT sides) WINAPI -> BOOL {
                           Edges.push_back(edge);
                           Sides.push_back(sides);
                           return TRUE;
                         }};
  TImportPatch TextPatch{
      "qel.dll", "DrawTextExW",
      +[](HDC, wchar_t*, int, RECT* rect, UINT format, DRAWTEXTPARAMS*) WINAPI -> int {
        Formats.push_back(format);
        TextRects.push_back(*rect);
        return 1;
      }};
};

TEST_F(PaintedButton, DrawsASoftEdgeUpAndDown) {
  Paint();
  EXPECT_THAT(Edges, ElementsAre(5u, 5u));
  EXPECT_THAT(Sides, ElementsAre(0x1003u, 0x100Cu));
  It->SetFocus();
  testinput::SendKey(VK_SPACE, true);
  ASSERT_TRUE(testinput::PumpUntil([&] { return It->Down(); }));
  Edges.clear();
  Paint();
  EXPECT_THAT(Edges, ElementsAre(10u, 10u));
  testinput::SendKey(VK_SPACE, false);
  testinput::Pump();
}

TEST_F(PaintedButton, WritesItsCaptionAsItsFormatSays) {
  Paint();
  EXPECT_THAT(Formats, IsEmpty());
  It->Setcaption("Caption");
  It->Font3D()->SetThreeDimensional(false);
  Paint();
  It->Setword(true);
  Paint();
  EXPECT_THAT(Formats, ElementsAre(0x8125u, 0x115u));
  EXPECT_EQ(TextRects[0].left, 5);
  EXPECT_EQ(TextRects[0].top, 3);
  EXPECT_EQ(TextRects[0].right, 97);
  EXPECT_EQ(TextRects[0].bottom, 27);
  Formats.clear();
  It->SetEnabled(false);
  Paint();
  EXPECT_THAT(Formats, ElementsAre(0x115u, 0x115u));
}

/// The first and last column, and the first row, of pure red.
struct TFound {
  int Left = -1;
  int Right = -1;
  int Top = -1;
};
TFound FindRed(const plain::TDib& dib) {
  TFound found;
  for (int y = 0; y < dib.Height(); ++y) {
    for (int x = 0; x < dib.Width(); ++x) {
      if (dib.Pixel(x, y) != 0xFF0000) continue;
      if (found.Top < 0) found.Top = y;
      if (found.Left < 0) found.Left = x;
      found.Right = std::max(found.Right, x);
    }
  }
  return found;
}

TEST_F(PaintedButton, PutsTheGlyphInTheMiddleOrToTheLeft) {
  vcl::TBitmap red(10, 8);
  red.Canvas()->Brush()->SetColor(vcl::clRed);
  red.Canvas()->FillRect({0, 0, 10, 8});
  It->Glyph()->SetBitmap(&red);
  It->Glyph()->SetNumGlyphs(qel::TQELNumGlyphs(1));
  Paint();
  TFound found = FindRed(Dib);
  EXPECT_EQ(found.Left, 48);  // (100 - 10) / 2 and 3 more.
  EXPECT_EQ(found.Right, 57);
  EXPECT_EQ(found.Top, 11);
  It->Perform(WM_KEYDOWN, VK_SPACE);
  Paint();
  found = FindRed(Dib);
  EXPECT_EQ(found.Left, 48);  // Without a caption, pressed only moves it down.
  EXPECT_EQ(found.Top, 12);
  It->Setcaption("x");
  Paint();
  found = FindRed(Dib);
  EXPECT_EQ(found.Left, 7);
  EXPECT_EQ(found.Top, 12);
  EXPECT_EQ(TextRects.back().left, 16);
  It->Perform(WM_KEYUP, VK_SPACE);
  Paint();
  found = FindRed(Dib);
  EXPECT_EQ(found.Left, 6);
  EXPECT_EQ(found.Top, 11);
  EXPECT_EQ(TextRects.back().left, 15);  // Behind glyph and gap.
  EXPECT_EQ(TextRects.back().right, 97);
  It->SetEnabled(false);
  Paint();
  EXPECT_EQ(FindRed(Dib).Left, -1);  // Greyed.
}

TEST_F(PaintedButton, StandsOnItsBackground) {
  qel::TQELBackground background(nullptr);
  background.SetBackgroundStyle(qel::bSolidcolor);
  background.SetSolidColor(vcl::clLime);
  It->SetBack(&background);
  Paint();
  EXPECT_EQ(Dib.Pixel(50, 15), 0x00FF00u);
  EXPECT_EQ(Dib.Pixel(100, 15), 0u);
}

}  // namespace
