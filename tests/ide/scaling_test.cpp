// The designer's own window at other dots per inch than it was made for.
#include <gmock/gmock.h>

#include <set>

#include "ide/palettepage.h"
#include "tests/ide/designerfixture.h"
#include "tests/support/formlayout.h"
#include "vcl/forms/module.h"
#include "vcl/graphics/fontmetrics.h"

namespace ide {
namespace {

class ScaledDesigner : public Designer {
 protected:
  /// The pairs of the window's own controls that lie over each other.
  static void ListOverlaps(const TWinControl& around, std::set<std::string>& pairs) {
    for (int i = 0; i < around.ControlCount(); ++i) {
      const TControl& control = *around.Controls(i);
      if (!control.Visible()) continue;
      for (int k = 0; k < i; ++k) {
        if (!around.Controls(k)->Visible()) continue;
        if (Intersection(control.BoundsRect(), around.Controls(k)->BoundsRect()).Empty()) continue;
        pairs.insert(Concat(control.ClassName(), " ", control.Name(), "/",
                            around.Controls(k)->ClassName(), " ", around.Controls(k)->Name()));
      }
      if (const auto* window = dynamic_cast<const TWinControl*>(&control)) {
        ListOverlaps(*window, pairs);
      }
    }
  }
  std::set<std::string> Overlaps() const {
    std::set<std::string> pairs;
    ListOverlaps(*Window, pairs);
    return pairs;
  }
};

TEST_F(ScaledDesigner, ItsPartsGrowAndLieBesideEachOther) {
  OpenForm(" object B: TButton\n Left = 40\n Top = 40\n Width = 80\n Height = 24\n end\n");
  const std::string text = Document().Text();
  It().Selected().Only(Find("B"));
  const auto overlaps = Overlaps();
  TInspectorGrid& grid = Window->Inspector().Properties();
  const TPalettePage& palette = *Window->Palette().ActivePage();
  const int row = grid.RowRect(0).Height();
  const int splitter = grid.Splitter();
  const TRect button = palette.ButtonRect(&TButton::Class());
  for (const int pixels : {144, 192, 96}) {
    Window->ScaleForPPI(pixels);
    Pump();
    const auto scaled = [pixels](int measure) { return ::MulDiv(measure, pixels, 96); };
    EXPECT_EQ(Overlaps(), overlaps) << pixels;
    EXPECT_NEAR(grid.RowRect(0).Height(), scaled(row), 2) << pixels;
    EXPECT_GE(grid.RowRect(0).Height(), FontHeight(*grid.Font())) << pixels;
    EXPECT_EQ(grid.Splitter(), scaled(splitter)) << pixels;
    const TRect now = palette.ButtonRect(&TButton::Class());
    EXPECT_EQ(now.Width(), scaled(button.Width())) << pixels;
    EXPECT_GE(now.Top, 0) << pixels;
    EXPECT_LE(now.Bottom, palette.ClientHeight()) << pixels;
    // The form is as large as its file says, whatever the monitor's dots per inch.
    EXPECT_EQ(Find("B")->Width(), 80) << pixels;
    EXPECT_EQ(Document().Text(), text) << pixels;
  }
}

TEST_F(ScaledDesigner, ItsOtherWindowsHaveRoomForTheirButtons) {
  for (TListWindow* each : {static_cast<TListWindow*>(&Window->Items()),
                            static_cast<TListWindow*>(&Window->MenuWindow()),
                            static_cast<TListWindow*>(&Window->ActionWindow())}) {
    for (const int pixels : {144, 192}) {
      each->ScaleForPPI(pixels);
      std::set<std::string> overlaps;
      ListOverlaps(*each, overlaps);
      EXPECT_THAT(overlaps, testing::IsEmpty()) << each->ClassName() << " at " << pixels;
      for (int i = 0; i < each->ControlCount(); ++i) {
        const auto* button = dynamic_cast<const TButton*>(each->Controls(i));
        if (!button) continue;
        EXPECT_EQ(button->Width(), ::MulDiv(80, pixels, 96)) << button->Caption();
        EXPECT_LE(button->BoundsRect().Bottom, each->ClientHeight()) << button->Caption();
      }
    }
  }
}

TEST_F(ScaledDesigner, ItsDialogsFit) {
  for (const char* name : {"TImageListForm", "TLinesForm", "TMaskForm", "TTreeItemsForm"}) {
    formlayout::ExpectToFit<vcl::TForm>(formlayout::FormFile(name, ModuleOf(&TForm::Class())),
                                        name);
  }
}

TEST_F(ScaledDesigner, TheGripsGrowAndTakeThePressesThatAreOnThem) {
  OpenForm(" object B: TButton\n Left = 40\n Top = 40\n Width = 80\n Height = 24\n end\n");
  It().Selected().Only(Find("B"));
  Window->ScaleForPPI(192);
  It().Surface().Refresh();
  Pump();
  // Beside the corner, where a grip of 96 dots per inch would not reach.
  Drag(At(40 + 80 + 5, 40 + 24 + 5), At(40 + 80 + 5 + 32, 40 + 24 + 5));
  EXPECT_GT(Find("B")->Width(), 100);
}

TEST_F(ScaledDesigner, FormsKeepTheDotsPerInchThatTheyWereDesignedFor) {
  Write("form.dfm",
        "object F: TF\n  Left = 40\n  Top = 30\n  Caption = ''\n  ClientHeight = 300\n"
        "  ClientWidth = 420\n  PixelsPerInch = 120\nend\n");
  ASSERT_TRUE(Window->Open(File("form.dfm")));
  const std::string text = Document().Text();
  EXPECT_THAT(text, testing::HasSubstr("  PixelsPerInch = 120\n"));
  Window->ScaleForPPI(144);
  EXPECT_EQ(Document().Text(), text);
  Window->Forms().Active()->Undo();
  EXPECT_EQ(Root().ClientWidth(), 420);
}

TEST_F(ScaledDesigner, ItsPanesAreMovedByTheSplittersBetweenThem) {
  auto& inspector = Window->Inspector();
  const int width = inspector.Width();
  const TPoint edge = inspector.ClientToScreen({width + 2, 40});
  Drag(edge, {edge.X + 60, edge.Y});
  EXPECT_NEAR(inspector.Width(), width + 60, 2);
  const int structure = Window->Structure().Height();
  const TPoint below = Window->Structure().ClientToScreen({40, structure});
  Drag(below, {below.X, below.Y + 50});
  EXPECT_NEAR(Window->Structure().Height(), structure + 50, 4);
}

}  // namespace
}  // namespace ide
