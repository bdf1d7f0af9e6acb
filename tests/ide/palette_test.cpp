// The component palette, by the mouse, and the pictures of the classes.
#include "ide/palette.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ide/paletteicons.h"
#include "tests/vcl/standardform.h"
#include "vcl/designintf/package.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

namespace ide {
namespace {

using testing::ElementsAre;

class Palette : public vcl::TStandardForm {
 protected:
  Palette() {
    Shown = new TComponentPalette(&Form);
    Shown->SetBounds(0, 0, 480, 64);
    Shown->SetParent(&Form);
    Shown->SetPages({{"One", {&vcl::TButton::Class(), &vcl::TEdit::Class()}},
                     {"Two", {&vcl::TTimer::Class()}},
                     {"One", {&vcl::TEdit::Class(), &vcl::TLabel::Class()}}});
    ShowForm();
  }

  void ClickButton(const vcl::TClass* aClass) {
    const vcl::TRect rect = Shown->ActivePage()->ButtonRect(aClass);
    testinput::Click(Shown->ActivePage()->ClientToScreen(
        {(rect.Left + rect.Right) / 2, (rect.Top + rect.Bottom) / 2}));
  }

  TComponentPalette* Shown = nullptr;
};

TEST_F(Palette, ToolsAreTakenAndLeft) {
  const vcl::TClass* button = &vcl::TButton::Class();
  const vcl::TClass* added = nullptr;
  Shown->OnAdd = [&](const vcl::TClass& aClass) { added = &aClass; };
  ClickButton(button);
  EXPECT_EQ(Shown->Tool().Class, button);
  Shown->Placed();
  EXPECT_EQ(Shown->Tool().Class, nullptr);
  // A key that is held down is forgotten when the mouse of an unseen screen jumps.
  const vcl::TPoint edit = Shown->ActivePage()->ButtonRect(&vcl::TEdit::Class()).TopLeft();
  const LPARAM at = MAKELPARAM(edit.X + 5, edit.Y + 5);
  Shown->ActivePage()->Perform(WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, at);
  Shown->ActivePage()->Perform(WM_LBUTTONUP, MK_SHIFT, at);
  Shown->Placed();
  EXPECT_EQ(Shown->Tool().Class, &vcl::TEdit::Class()) << "stays for more";
  ClickButton(nullptr);
  EXPECT_EQ(Shown->Tool().Class, nullptr);
  EXPECT_EQ(added, nullptr);
  ClickButton(&vcl::TLabel::Class());
  testinput::LeftDown();
  testinput::LeftUp();
  EXPECT_EQ(added, &vcl::TLabel::Class());
  EXPECT_EQ(Shown->Tool().Class, nullptr);
}

TEST_F(Palette, PagesHoldEachClassOnceAndAreFiltered) {
  ASSERT_EQ(Shown->Pages().PageCount(), 2);
  EXPECT_THAT(Shown->PageOf("One")->Classes(),
              ElementsAre(&vcl::TButton::Class(), &vcl::TEdit::Class(), &vcl::TLabel::Class()));
  Shown->SetFilter("TIME");
  EXPECT_EQ(Shown->ActivePage(), Shown->PageOf("Two"));
  Shown->SetFilter("nothing");
  EXPECT_EQ(Shown->ActivePage(), nullptr);
  Shown->SetFilter("");
  EXPECT_EQ(Shown->PageOf("One")->Classes().size(), 3u);
  EXPECT_NE(Shown->ActivePage(), nullptr);
  Shown->Clear();
  EXPECT_EQ(Shown->Pages().PageCount(), 0);
}

TEST_F(Palette, WhatDoesNotFitIsScrolled) {
  Shown->SetWidth(230);
  TPalettePage* page = Shown->ActivePage();
  const vcl::TClass* last = &vcl::TLabel::Class();
  EXPECT_TRUE(page->ButtonRect(last).Empty());
  const vcl::TPoint arrow{page->ClientWidth() - 5, page->ClientHeight() / 2};
  for (int i = 0; i < 5; ++i) testinput::Click(page->ClientToScreen(arrow));
  EXPECT_FALSE(page->ButtonRect(last).Empty());
  EXPECT_FALSE(page->CanScroll(1));
  ClickButton(last);
  EXPECT_EQ(Shown->Tool().Class, last);
}

TEST_F(Palette, AHintSaysClassAndUnit) {
  TPalettePage* page = Shown->ActivePage();
  vcl::THintInfo info;
  info.CursorPos = page->ButtonRect(&vcl::TEdit::Class()).TopLeft();
  EXPECT_EQ(page->Perform(vcl::CM_HINTSHOW, 0, reinterpret_cast<LPARAM>(&info)), 0);
  EXPECT_THAT(info.HintStr, testing::StartsWith("TEdit\r\nstdctrls\r\nAn edit"));
  info.CursorPos = {page->ClientWidth() - 1, 0};
  EXPECT_NE(page->Perform(vcl::CM_HINTSHOW, 0, reinterpret_cast<LPARAM>(&info)), 0);
}

TEST(PaletteIcons, EveryClassOnThePaletteHasOneOfItsOwn) {
  RegisterStandardPages();
  const vcl::TPackage package("qel.dll");
  const vcl::TBitmap& any = ProgramIcon("COMPONENT");
  for (const auto& [page, classes] : vcl::RegisteredComponents()) {
    for (const vcl::TClass* each : classes) {
      const vcl::TBitmap& icon = ComponentIcon(*each);
      EXPECT_NE(&icon, &any) << each->Name();
      EXPECT_EQ(icon.Width(), IconSize) << each->Name();
    }
  }
  EXPECT_EQ(&ComponentIcon(vcl::TForm::Class()), &any);
}

TEST(PaletteIcons, AreDrawnOverWhatIsThere) {
  vcl::TBitmap picture(IconSize, IconSize);
  picture.Canvas()->Brush()->SetColor(vcl::clRed);
  picture.Canvas()->FillRect({0, 0, IconSize, IconSize});
  DrawIcon(*picture.Canvas(), {0, 0, IconSize, IconSize}, ComponentIcon(vcl::TTimer::Class()));
  EXPECT_EQ(picture.Canvas()->Pixels(0, 0), vcl::clRed) << "outside the clock";
  EXPECT_EQ(picture.Canvas()->Pixels(8, 12), vcl::clWhite) << "its face";
}

}  // namespace
}  // namespace ide
