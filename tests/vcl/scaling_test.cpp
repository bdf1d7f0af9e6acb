// Dots per inch: forms that are loaded for another monitor, that come to one, and measures that are
// the same again when they are back.
#include <gmock/gmock.h>

#include "tests/support/texts.h"
#include "tests/vcl/testinput.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/stdctrls/comctrls.h"

namespace vcl {
namespace {

/// What the system sends when a window comes to a monitor of so many dots per inch: with a place of
/// the size that the window would have there.
void MoveToMonitor(TCustomForm& form, int pixels) {
  const int former = form.PixelsPerInch();
  RECT place{form.Left(), form.Top(), form.Left() + ::MulDiv(form.Width(), pixels, former),
             form.Top() + ::MulDiv(form.Height(), pixels, former)};
  form.Perform(WM_DPICHANGED, MAKEWPARAM(pixels, pixels), reinterpret_cast<LPARAM>(&place));
  testinput::Pump();
}

/// The bounds of all controls on the form, and the heights of their fonts.
std::string Measures(const TWinControl& around) {
  std::string text;
  for (int i = 0; i < around.ControlCount(); ++i) {
    const TControl& control = *around.Controls(i);
    const TRect bounds = control.BoundsRect();
    for (const int each : {bounds.Left, bounds.Top, bounds.Right, bounds.Bottom,
                           control.Font()->Height(), control.Font()->PixelsPerInch()}) {
      text += std::to_string(each) + " ";
    }
    text += control.Name() + "\n";
    if (const auto* window = dynamic_cast<const TWinControl*>(&control)) text += Measures(*window);
  }
  return text;
}

const char* const Page =
    "object Page: TForm\n"
    "  Left = 40\n"
    "  Top = 30\n"
    "  BorderStyle = bsNone\n"
    "  ClientHeight = 203\n"
    "  ClientWidth = 301\n"
    "  object Bar: TPanel\n"
    "    Left = 0\n"
    "    Top = 0\n"
    "    Width = 301\n"
    "    Height = 41\n"
    "    Align = alTop\n"
    "    object Inner: TPanel\n"
    "      Left = 7\n"
    "      Top = 3\n"
    "      Width = 33\n"
    "      Height = 35\n"
    "      AlignWithMargins = True\n"
    "      Margins.Left = 5\n"
    "      Align = alLeft\n"
    "    end\n"
    "    object Press: TButton\n"
    "      Left = 213\n"
    "      Top = 7\n"
    "      Width = 75\n"
    "      Height = 25\n"
    "      Anchors = [akTop, akRight]\n"
    "    end\n"
    "  end\n"
    "  object Foot: TStatusBar\n"
    "    Left = 0\n"
    "    Top = 183\n"
    "    Width = 301\n"
    "    Height = 20\n"
    "    Panels = <\n"
    "      item\n"
    "        Width = 51\n"
    "      end\n"
    "      item\n"
    "        Width = 50\n"
    "      end>\n"
    "  end\n"
    "  object Note: TLabel\n"
    "    Left = 11\n"
    "    Top = 49\n"
    "    Width = 63\n"
    "    Height = 13\n"
    "    Caption = 'What is it?'\n"
    "  end\n"
    "  object Loud: TLabel\n"
    "    Left = 11\n"
    "    Top = 71\n"
    "    Width = 91\n"
    "    Height = 19\n"
    "    Caption = 'Loud'\n"
    "    Font.Height = -15\n"
    "    ParentFont = False\n"
    "  end\n"
    "  object Line: TEdit\n"
    "    Left = 101\n"
    "    Top = 49\n"
    "    Width = 121\n"
    "    Height = 21\n"
    "  end\n"
    "  object Left1: TBevel\n"
    "    Left = 11\n"
    "    Top = 101\n"
    "    Width = 33\n"
    "    Height = 31\n"
    "  end\n"
    "  object Right1: TBevel\n"
    "    Left = 44\n"
    "    Top = 101\n"
    "    Width = 33\n"
    "    Height = 31\n"
    "    Constraints.MinWidth = 33\n"
    "  end\n"
    "  object Lines: TMemo\n"
    "    Left = 101\n"
    "    Top = 81\n"
    "    Width = 190\n"
    "    Height = 91\n"
    "    Anchors = [akLeft, akTop, akRight, akBottom]\n"
    "  end\n"
    "end\n";

class Scaling : public ::testing::Test {
 protected:
  Scaling() { RegisterStandardClasses(); }
  /// The page, in a file that says that its measures are in so many dots per inch.
  std::unique_ptr<TForm> Read(int pixels) {
    std::string text = Page;
    text.insert(text.find("  object Bar"), "  PixelsPerInch = " + std::to_string(pixels) + "\n");
    auto form = std::make_unique<TForm>(nullptr);
    ReadForm(text, form.get());
    return form;
  }
  std::unique_ptr<TForm> Shown(int pixels = DefaultPixelsPerInch) {
    auto form = Read(pixels);
    form->Show();
    testinput::Pump();
    return form;
  }
  template <class T>
  static T& Find(TForm& form, const char* name) {
    return dynamic_cast<T&>(*form.FindComponent(name));
  }
};

TEST_F(Scaling, AFormFileOf96IsWhatItWas) {
  const auto form = Shown();
  EXPECT_EQ(form->PixelsPerInch(), 96);
  EXPECT_TRUE(form->Scaled());
  EXPECT_EQ(form->ClientWidth(), 301);
  EXPECT_EQ(Find<TButton>(*form, "Press").BoundsRect(), Rect(213, 7, 288, 32));
  const std::string text = FormText(form.get());
  EXPECT_THAT(text, ::testing::Not(::testing::HasSubstr("PixelsPerInch")));
  EXPECT_THAT(text, ::testing::Not(::testing::HasSubstr("Scaled")));
}

TEST_F(Scaling, BothPropertiesAreKeptInAFormFile) {
  TForm form(nullptr);
  form.SetDesigning(true);
  ReadForm("object Form: TForm\n  PixelsPerInch = 120\n  Scaled = False\nend\n", &form);
  EXPECT_EQ(form.PixelsPerInch(), 120);
  const std::string text = FormText(&form);
  EXPECT_THAT(text, ::testing::HasSubstr("  PixelsPerInch = 120\n"));
  EXPECT_THAT(text, ::testing::HasSubstr("  Scaled = False\n"));
  EXPECT_THROW(form.SetPixelsPerInch(0), EArgumentOutOfRangeException);
  EXPECT_THROW(form.ScaleForPPI(0), EArgumentOutOfRangeException);
  EXPECT_THROW(form.ScaleBy(3, 0), EArgumentOutOfRangeException);
}

TEST_F(Scaling, AFormIsLoadedForItsMonitor) {
  // Of half as many dots per inch as the monitor has: all is twice as large.
  const auto form = Shown(48);
  EXPECT_EQ(form->PixelsPerInch(), 96);
  EXPECT_EQ(form->BoundsRect(), Rect(40, 30, 642, 436));
  EXPECT_EQ(Find<TPanel>(*form, "Bar").BoundsRect(), Rect(0, 0, 602, 82));
  EXPECT_EQ(Find<TPanel>(*form, "Inner").BoundsRect(), Rect(11, 7, 77, 75));
  EXPECT_EQ(Find<TButton>(*form, "Press").BoundsRect(), Rect(426, 14, 576, 64));
  EXPECT_EQ(Find<TMemo>(*form, "Lines").BoundsRect(), Rect(202, 162, 582, 344));
  EXPECT_EQ(Find<TBevel>(*form, "Right1").Constraints()->MinWidth(), 66);
  EXPECT_EQ(Find<TStatusBar>(*form, "Foot").Panels()->Items(0)->Width(), 102);
  EXPECT_EQ(Find<TLabel>(*form, "Loud").Font()->Height(), -30);
}

TEST_F(Scaling, AFontThatTheFileDoesNotNameHasItsUsualSize) {
  for (const int pixels : {64, 96, 120, 144, 192}) {
    const auto form = Shown(pixels);
    EXPECT_EQ(form->Font()->Height(), -11) << pixels;
    EXPECT_EQ(Find<TEdit>(*form, "Line").Font()->Height(), -11) << pixels;
    EXPECT_EQ(Find<TLabel>(*form, "Loud").Font()->Height(), -::MulDiv(15, 96, pixels));
  }
}

TEST_F(Scaling, NeitherADesignedFormNorAnUnscaledOneFollowsTheMonitor) {
  TForm designed(nullptr);
  designed.SetDesigning(true);
  ReadForm("object Form: TForm\n  ClientWidth = 200\n  PixelsPerInch = 48\nend\n", &designed);
  designed.HandleNeeded();
  EXPECT_EQ(designed.ClientWidth(), 200);
  TForm fixed(nullptr);
  ReadForm("object Form: TForm\n  ClientWidth = 200\n  PixelsPerInch = 48\n  Scaled = False\nend\n",
           &fixed);
  fixed.Show();
  const TRect bounds = fixed.BoundsRect();
  MoveToMonitor(fixed, 144);
  EXPECT_EQ(fixed.ClientWidth(), 200);
  EXPECT_EQ(fixed.BoundsRect(), bounds);
  EXPECT_EQ(fixed.PixelsPerInch(), 48);
}

TEST_F(Scaling, AFormTakesTheDotsPerInchOfTheMonitorItComesTo) {
  for (const int pixels : {144, 192}) {
    const auto form = Shown();
    MoveToMonitor(*form, pixels);
    const auto scaled = [pixels](int value) { return ::MulDiv(value, pixels, 96); };
    EXPECT_EQ(form->PixelsPerInch(), pixels);
    EXPECT_EQ(form->BoundsRect(), Bounds(40, 30, scaled(301), scaled(203))) << "as suggested";
    const auto& left = Find<TBevel>(*form, "Left1");
    EXPECT_EQ(left.BoundsRect(), Rect(scaled(11), scaled(101), scaled(44), scaled(132)));
    EXPECT_EQ(Find<TBevel>(*form, "Right1").Left(), left.Left() + left.Width()) << "neighbours";
    EXPECT_EQ(Find<TPanel>(*form, "Bar").BoundsRect(), Rect(0, 0, scaled(301), scaled(41)));
    EXPECT_EQ(Find<TPanel>(*form, "Inner").Left(), 1 + scaled(5));
    const auto& lines = Find<TMemo>(*form, "Lines");
    EXPECT_EQ(form->ClientWidth() - lines.Left() - lines.Width(), scaled(301) - scaled(291));
    EXPECT_EQ(Find<TLabel>(*form, "Loud").Font()->Height(), -scaled(15));
    EXPECT_EQ(Find<TEdit>(*form, "Line").Font()->Height(), -scaled(11)) << "the parent's, once";
    EXPECT_TRUE(Find<TEdit>(*form, "Line").ParentFont());
    EXPECT_EQ(Find<TButton>(*form, "Press").CurrentPPI(), pixels);
    EXPECT_EQ(Find<TButton>(*form, "Press").ScaledPixels(6), scaled(6));
  }
}

TEST_F(Scaling, BackOnTheFormerMonitorEachPixelIsWhatItWas) {
  for (const int first : {96, 144, 168}) {
    const auto form = Shown();
    MoveToMonitor(*form, first);
    const TRect bounds = form->BoundsRect();
    // Places that have no whole number of pixels anywhere else.
    Find<TBevel>(*form, "Left1").SetBounds(13, 103, 37, 29);
    Find<TButton>(*form, "Press").SetLeft(191);
    const std::string measures = Measures(*form);
    for (const int pixels : {96, 120, 192, 72, 144, 97, first}) {
      MoveToMonitor(*form, pixels);
      if (pixels == first)
        form->SetBounds(bounds.Left, bounds.Top, bounds.Width(), bounds.Height());
    }
    EXPECT_EQ(Measures(*form), measures) << first;
    EXPECT_EQ(Find<TStatusBar>(*form, "Foot").Panels()->Items(0)->Width(), ::MulDiv(51, first, 96));
    EXPECT_EQ(Find<TBevel>(*form, "Right1").Constraints()->MinWidth(), ::MulDiv(33, first, 96));
  }
}

TEST_F(Scaling, WhatChangesBetweenIsScaledFromThere) {
  const auto form = Shown();
  auto& bevel = Find<TBevel>(*form, "Left1");
  MoveToMonitor(*form, 144);
  bevel.SetLeft(30);
  bevel.Margins()->SetLeft(9);
  MoveToMonitor(*form, 96);
  EXPECT_EQ(bevel.Left(), 20);
  EXPECT_EQ(bevel.Margins()->Left(), 6);
  Find<TLabel>(*form, "Loud").Font()->SetSize(20);
  MoveToMonitor(*form, 192);
  EXPECT_EQ(Find<TLabel>(*form, "Loud").Font()->Size(), 20);
}

TEST_F(Scaling, AControlTakesTheResolutionOfTheFormItIsPutOn) {
  TForm form(nullptr);
  form.Show();
  MoveToMonitor(form, 192);
  auto* label = new TLabel(&form);
  label->Font()->SetSize(12);
  EXPECT_EQ(label->Font()->Height(), -16);
  label->SetParent(&form);
  EXPECT_EQ(label->Font()->Height(), -32);
  auto* edit = new TEdit(&form);
  edit->SetParent(&form);
  EXPECT_EQ(edit->Font()->Height(), form.Font()->Height());
  TFont font;
  font.SetSize(10);
  edit->SetFont(&font);
  EXPECT_EQ(edit->Font()->Height(), -26) << "points stay";
}

/// Notes how often it is erased.
class TErased : public TPanel {
 public:
  explicit TErased(TComponent* owner) : TPanel(owner) {}
  int Count = 0;

 protected:
  void WMEraseBkgnd(TMessage& message) override {
    ++Count;
    TPanel::WMEraseBkgnd(message);
  }
};

TEST_F(Scaling, AFormIsPaintedOnceItIsScaled) {
  TForm form(nullptr);
  form.SetBounds(10, 10, 300, 200);
  auto* panel = new TErased(&form);
  panel->SetBounds(10, 10, 100, 50);
  panel->SetParent(&form);
  form.Show();
  testinput::Pump();
  panel->Count = 0;
  int erased = -1;
  panel->OnResize = [&](TObject*) { erased = panel->Count; };
  form.ScaleForPPI(144);
  EXPECT_EQ(erased, 0);
  EXPECT_EQ(panel->Count, 0) << "it is erased when it is painted";
  RECT invalid;
  EXPECT_TRUE(::GetUpdateRect(panel->Handle(), &invalid, FALSE));
  EXPECT_EQ(TRect(invalid), panel->ClientRect());
  testinput::Pump();
  EXPECT_EQ(panel->Count, 1);
  EXPECT_TRUE(::IsWindowVisible(form.Handle()));
}

TEST_F(Scaling, SizesAreToldOnceBehindIt) {
  TForm form(nullptr);
  form.SetBounds(10, 10, 300, 200);
  auto* panel = new TPanel(&form);
  panel->SetParent(&form);
  auto* inner = new TPanel(&form);
  inner->SetParent(panel);
  // Layout by hand, as before there were anchors: it must not be scaled on top.
  std::vector<TObject*> told;
  form.OnResize = [&](TObject* sender) {
    told.push_back(sender);
    panel->SetBounds(10, 10, form.ClientWidth() - 20, form.ClientHeight() - 20);
  };
  panel->OnResize = [&](TObject* sender) {
    told.push_back(sender);
    inner->SetBounds(panel->Width() / 2, 0, panel->Width() / 2, panel->Height());
  };
  form.Show();
  form.SetClientWidth(320);
  form.SetClientHeight(240);
  told.clear();
  form.ScaleForPPI(192);
  EXPECT_EQ(form.ClientWidth(), 640);
  EXPECT_EQ(panel->BoundsRect(), TRect(10, 10, 630, 470));
  EXPECT_EQ(inner->BoundsRect(), TRect(310, 0, 620, 460));
  EXPECT_EQ(told, (std::vector<TObject*>{&form, panel}));
  form.OnResize = [&](TObject*) { delete std::exchange(panel, nullptr); };
  form.ScaleForPPI(96);
  EXPECT_EQ(form.ControlCount(), 0);
  form.OnResize = [&](TObject*) { throw EInvalidOperation("no size"); };
  EXPECT_THROW(form.ScaleForPPI(144), EInvalidOperation);
  EXPECT_EQ(form.PixelsPerInch(), 144);
}

TEST_F(Scaling, AHandlerMayHideTheFormThatIsScaled) {
  TForm form(nullptr);
  form.SetBounds(10, 10, 300, 200);
  form.Show();
  form.OnResize = [&](TObject*) { form.Hide(); };
  form.ScaleForPPI(144);
  EXPECT_FALSE(::IsWindowVisible(form.Handle()));
  form.OnResize.Clear();
  form.Show();
  EXPECT_TRUE(::IsWindowVisible(form.Handle()));
}

TEST_F(Scaling, AControlAloneIsScaledWithWhatIsInside) {
  const auto form = Shown();
  auto& bar = Find<TPanel>(*form, "Bar");
  bar.ScaleBy(2, 1);
  EXPECT_EQ(bar.Height(), 82);
  EXPECT_EQ(Find<TPanel>(*form, "Inner").Width(), 66);
  EXPECT_EQ(form->PixelsPerInch(), 96);
  EXPECT_EQ(bar.Font()->Height(), -11) << "still the form's";
  bar.ScaleBy(1, 2);
  EXPECT_EQ(bar.Height(), 41);
}

TEST_F(Scaling, ListsAndTreesScaleTheirOwnMeasures) {
  TForm form(nullptr);
  auto* list = new TListBox(&form);
  list->SetParent(&form);
  list->SetItemHeight(17);
  auto* tree = new TTreeView(&form);
  tree->SetParent(&form);
  auto* button = new TBitBtn(&form);
  button->SetParent(&form);
  TImageList images(nullptr);
  TBitmap picture(16, 16);
  images.Add(&picture, nullptr);
  tree->SetImages(&images);
  tree->SetStateImages(&images);
  form.Show();
  const auto treeShows = [&](TImageList* shown) {
    for (const WPARAM which : {TVSIL_NORMAL, TVSIL_STATE}) {
      const LRESULT handle = ::SendMessageW(tree->Handle(), TVM_GETIMAGELIST, which, 0);
      EXPECT_EQ(handle, reinterpret_cast<LRESULT>(shown->Handle()));
    }
  };
  MoveToMonitor(form, 144);
  EXPECT_EQ(images.ForPPI(144)->Width(), 24);
  treeShows(images.ForPPI(144));
  images.Add(&picture, nullptr);
  treeShows(images.ForPPI(144));
  EXPECT_EQ(list->ItemHeight(), 26);
  EXPECT_EQ(tree->Indent(), 29);
  EXPECT_EQ(button->Spacing(), 6);
  EXPECT_EQ(button->Margin(), -1);
  MoveToMonitor(form, 96);
  treeShows(&images);
  EXPECT_EQ(list->ItemHeight(), 17);
  EXPECT_EQ(tree->Indent(), 19);
  EXPECT_EQ(button->Spacing(), 4);
}

}  // namespace
}  // namespace vcl
