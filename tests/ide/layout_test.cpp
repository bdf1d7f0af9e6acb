// Designing inside what scrolls and what places its controls itself.
#include "tests/ide/designerfixture.h"
#include "vcl/stdctrls/flowpanel.h"
#include "vcl/stdctrls/gridpanel.h"

namespace ide {
namespace {

using DesigningInside = Designer;

TEST_F(DesigningInside, AScrolledBoxIsWhereItShowsThings) {
  OpenForm(
      " object Box: TScrollBox\n Left = 16\n Top = 16\n Width = 200\n Height = 160\n"
      " object Near: TButton\n Left = 8\n Top = 8\n Width = 80\n Height = 24\n end\n"
      " object Far: TButton\n Left = 8\n Top = 400\n Width = 80\n Height = 24\n end\n end\n");
  auto& box = *Find<TScrollBox>("Box");
  auto& far = *Find<TButton>("Far");
  // The user drags the box's own bar.
  ::SendMessageW(box.Handle(), WM_VSCROLL, SB_BOTTOM, 0);
  const int scrolled = box.VertScrollBar()->Position();
  ASSERT_GT(scrolled, 200);
  Drag(far.ClientToScreen({20, 10}), far.ClientToScreen({20 + 32, 10 - 48}));
  EXPECT_EQ(SelectedNames(), std::vector<std::string>{"Far"});
  EXPECT_EQ(far.Left(), 40);
  // The grid is what the user sees; the file holds the place in the whole.
  EXPECT_NEAR(far.Top() + box.VertScrollBar()->Position(), 352, GridStep / 2);
  // The grip at the lower right corner.
  const int former = far.Width();
  const TPoint corner =
      far.Parent()->ClientToScreen({far.BoundsRect().Right - 1, far.BoundsRect().Bottom - 1});
  Drag(corner, {corner.X + 24, corner.Y});
  EXPECT_NEAR(far.Width(), former + 24, GridStep / 2);
  Place("TButton", box.ClientToScreen({16, 40}), box.ClientToScreen({80, 64}));
  auto* placed = Find("Button1");
  ASSERT_NE(placed, nullptr);
  EXPECT_EQ(placed->Parent(), &box);
  EXPECT_NEAR(box.ClientToScreen({placed->Left(), placed->Top()}).Y, box.ClientToScreen({0, 40}).Y,
              GridStep / 2);
  const std::string text = Document().Text();
  It().Undo();
  It().Redo();
  EXPECT_EQ(Document().Text(), text);
}

TEST_F(DesigningInside, AGridPanelTakesWhatIsDroppedIntoTheCell) {
  OpenForm(
      " object Grid: TGridPanel\n Left = 16\n Top = 16\n Width = 200\n Height = 160\n"
      " ColumnCollection = <\n item\n Value = 50.0\n end\n item\n Value = 50.0\n end>\n"
      " RowCollection = <\n item\n Value = 50.0\n end\n item\n Value = 50.0\n end>\n end\n");
  auto& grid = *Find<TGridPanel>("Grid");
  Place("TButton", grid.ClientToScreen({120, 100}), grid.ClientToScreen({120, 100}));
  auto* button = Find("Button1");
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->Parent(), &grid);
  const TRect cell(100, 80, 200, 160);
  EXPECT_TRUE(cell.Contains(button->BoundsRect().TopLeft()))
      << button->Left() << ", " << button->Top();
  const std::string text = Document().Text();
  It().Undo();
  EXPECT_EQ(Find("Button1"), nullptr);
  It().Redo();
  EXPECT_EQ(Document().Text(), text);
  EXPECT_TRUE(cell.Contains(Find("Button1")->BoundsRect().TopLeft()));
}

TEST_F(DesigningInside, AFlowPanelPutsWhatIsDroppedBehindTheOthers) {
  OpenForm(
      " object Flow: TFlowPanel\n Left = 16\n Top = 16\n Width = 240\n Height = 160\n"
      " object A: TButton\n Width = 80\n Height = 24\n end\n end\n");
  auto& flow = *Find<TFlowPanel>("Flow");
  Place("TButton", flow.ClientToScreen({120, 100}), flow.ClientToScreen({120, 100}));
  auto* button = Find("Button1");
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->Parent(), &flow);
  EXPECT_EQ(button->Left(), Find("A")->BoundsRect().Right);
  EXPECT_EQ(button->Top(), Find("A")->Top());
  const std::string text = Document().Text();
  It().Undo();
  It().Redo();
  EXPECT_EQ(Document().Text(), text);
}

}  // namespace
}  // namespace ide
