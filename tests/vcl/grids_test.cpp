// Grids with real input: which cells are seen, the current one, selecting, sizing, moving.
#include "tests/support/screenreader.h"
#include "tests/support/texts.h"
#include "tests/vcl/gridform.h"

namespace vcl {
namespace {

using Grids = TGridForm;

TEST_F(Grids, KeysMoveTheCurrentCell) {
  ShowGrid();
  ASSERT_EQ(Grid->VisibleRowCount(), 6);
  ASSERT_EQ(Grid->VisibleColCount(), 3);
  EXPECT_EQ(Current(), "1,1");
  const auto with = [this](WORD held, WORD key) { return [=, this] { KeyWith(held, key); }; };
  const auto plain = [this](WORD key) { return [=, this] { Key(key); }; };
  struct TCase {
    const char* What;
    std::function<void()> Press;
    const char* Current;
    int Left, Top;
  };
  const TCase cases[] = {
      {"right", plain(VK_RIGHT), "2,1", 1, 1},
      {"down", plain(VK_DOWN), "2,2", 1, 1},
      {"page down", plain(VK_NEXT), "2,8", 1, 7},
      {"page up", plain(VK_PRIOR), "2,2", 1, 1},
      {"last row seen", with(VK_CONTROL, VK_NEXT), "2,6", 1, 1},
      {"first row seen", with(VK_CONTROL, VK_PRIOR), "2,1", 1, 1},
      {"what is seen moves", with(VK_CONTROL, VK_DOWN), "2,1", 1, 2},
      {"and back", with(VK_CONTROL, VK_UP), "2,1", 1, 1},
      {"a page sideways", with(VK_CONTROL, VK_RIGHT), "5,1", 3, 1},
      {"end of the row", plain(VK_END), "7,1", 5, 1},
      {"end", with(VK_CONTROL, VK_END), "7,19", 5, 14},
      {"no further", plain(VK_DOWN), "7,19", 5, 14},
      {"up", plain(VK_UP), "7,18", 5, 14},
      {"beginning of the row", plain(VK_HOME), "1,18", 1, 14},
      {"beginning", with(VK_CONTROL, VK_HOME), "1,1", 1, 1},
      {"no cell is left of it", plain(VK_LEFT), "1,1", 1, 1},
      {"a block", with(VK_SHIFT, VK_DOWN), "1,2 1,1", 1, 1},
      {"its other side", with(VK_SHIFT, VK_RIGHT), "2,2 1,1", 1, 1},
      {"all", with(VK_CONTROL, 'A'), "7,19 1,1", 1, 1},
      {"no block", plain(VK_LEFT), "6,19", 4, 14},
  };
  for (const TCase& each : cases) {
    each.Press();
    EXPECT_EQ(Current(), each.Current) << each.What;
    EXPECT_EQ(Grid->LeftCol(), each.Left) << each.What;
    EXPECT_EQ(Grid->TopRow(), each.Top) << each.What;
  }
  Grid->SetColWidths(5, 0);
  Key(VK_LEFT);
  EXPECT_EQ(Current(), "4,19") << "a hidden column is passed by";
}

TEST_F(Grids, TabGoesThroughTheCellsAndLeavesAtTheEnds) {
  auto* after = Make<TEdit>(10, 300);
  Grid->SetColCount(3);
  Grid->SetRowCount(3);
  ShowGrid();
  Key(VK_TAB);
  EXPECT_TRUE(after->Focused()) << "Tab is the form's without the option";
  Grid->SetFocus();
  Allow({goTabs});
  for (const char* expected : {"2,1", "1,2", "2,2"}) {
    Key(VK_TAB);
    EXPECT_EQ(Current(), expected);
  }
  KeyWith(VK_SHIFT, VK_TAB);
  EXPECT_EQ(Current(), "1,2");
  Key(VK_TAB);
  Key(VK_TAB);
  EXPECT_TRUE(after->Focused());
}

TEST_F(Grids, AMillionRowsScrollToAnyOfThem) {
  Grid->SetRowCount(1'000'001);
  Grid->SetRowHeights(999'999, 60);
  Grid->SetCells(1, 1'000'000, "last");
  ShowGrid();
  const auto bar = [this] {
    SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
    ::GetScrollInfo(Grid->Handle(), SB_VERT, &info);
    return info;
  };
  KeyWith(VK_CONTROL, VK_END);
  EXPECT_EQ(Grid->TopRow(), 999'997) << "four of them, one higher, fill the window";
  EXPECT_EQ(bar().nPos, 999'996);
  EXPECT_EQ(bar().nMax - static_cast<int>(bar().nPage) + 1, bar().nPos);
  // The place in the message has 16 bits only.
  SCROLLINFO dragged{sizeof dragged, SIF_POS, 0, 0, 0, 700'000, 0};
  ::SetScrollInfo(Grid->Handle(), SB_VERT, &dragged, FALSE);
  Grid->Perform(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 700'000 & 0xFFFF));
  EXPECT_EQ(Grid->TopRow(), 999'997) << "only with goThumbTracking";
  ::SetScrollInfo(Grid->Handle(), SB_VERT, &dragged, FALSE);
  Grid->Perform(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 700'000 & 0xFFFF));
  EXPECT_EQ(Grid->TopRow(), 700'001);
  EXPECT_EQ(Current(), "7,1000000") << "scrolling is no move";
  Grid->Perform(WM_VSCROLL, SB_TOP);
  Grid->Perform(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
  EXPECT_EQ(Grid->TopRow(), 4);
  Grid->SetRowCount(3);
  EXPECT_EQ(Current(), "7,2");
  EXPECT_EQ(::GetWindowLongW(Grid->Handle(), GWL_STYLE) & WS_VSCROLL, 0) << "all is seen";
}

TEST_F(Grids, TheMouseSelectsBlocksAndScrollsOutside) {
  ShowGrid();
  ClickCell(2, 3);
  EXPECT_EQ(Current(), "2,3");
  Drag(Middle(1, 1), Middle(3, 4));
  EXPECT_EQ(Current(), "3,4 1,1");
  testinput::MoveMouse(Middle(2, 2));
  testinput::SendKey(VK_SHIFT, true);
  testinput::LeftDown();
  testinput::LeftUp();
  testinput::SendKey(VK_SHIFT, false);
  EXPECT_EQ(Current(), "2,2 1,1");
  testinput::MoveMouse(Middle(1, 5));
  testinput::LeftDown();
  testinput::MoveMouse(Grid->ClientToScreen({90, Grid->ClientHeight() + 30}));
  EXPECT_TRUE(testinput::PumpUntil([this] { return Grid->Row() > 10; }));
  testinput::LeftUp();
  EXPECT_EQ(Grid->Selection().Top, 5);
  Grid->SetOptions(Grid->Options() - TGridOptions{goRangeSelect});
  Drag(Middle(1, Grid->TopRow()), Middle(3, Grid->TopRow() + 2));
  EXPECT_EQ(Grid->Selection().Top, Grid->Selection().Bottom);
  Allow({goRowSelect});
  EXPECT_EQ(Grid->Selection().Left, 1);
  EXPECT_EQ(Grid->Selection().Right, 7);
}

TEST_F(Grids, EdgesOfFixedCellsAreDraggedToSize) {
  ShowGrid();
  const TRect title = Grid->CellRect(1, 0);
  const TPoint edge = Grid->ClientToScreen({title.Right, 5});
  const TPoint further{edge.X + 30, edge.Y};
  Drag(edge, further);
  EXPECT_EQ(Grid->ColWidths(1), 64) << "only with goColSizing";
  Allow({goColSizing, goRowSizing});
  Drag(edge, further);
  EXPECT_EQ(Grid->ColWidths(1), 94);
  testinput::MoveMouse(further);
  testinput::LeftDown();
  testinput::MoveMouse(edge);
  EXPECT_EQ(Grid->ColWidths(1), 64);
  Key(VK_ESCAPE);
  EXPECT_EQ(Grid->ColWidths(1), 94) << "Escape takes it back";
  testinput::LeftUp();
  const TPoint below = Grid->ClientToScreen({5, Grid->CellRect(0, 2).Bottom});
  Drag(below, {below.X, below.Y + 10});
  EXPECT_EQ(Grid->RowHeights(2), 34);
  Drag(further, {further.X - 200, further.Y});
  EXPECT_EQ(Grid->ColWidths(1), 0);
  EXPECT_EQ(Grid->Col(), 2) << "the current cell leaves what is hidden";
  const TPoint behind = Grid->ClientToScreen({Grid->CellRect(0, 0).Right + 2, 5});
  Drag(behind, {behind.X + 50, behind.Y});
  EXPECT_EQ(Grid->ColWidths(1), 50) << "from just behind the edge it comes back";
  EXPECT_EQ(Grid->ColWidths(0), 64);
}

TEST_F(Grids, ColumnsAndRowsAreMovedWithWhatIsInThem) {
  std::string moved;
  const auto log = [&moved](const char* what) {
    return [&moved, what](TObject*, int from, int to) {
      moved += what + std::to_string(from) + std::to_string(to) + " ";
    };
  };
  Grid->OnColumnMoved = log("col");
  Grid->OnRowMoved = log("row");
  Grid->OnFixedCellClick = log("click");
  Allow({goColMoving, goRowMoving, goFixedRowClick});
  Grid->SetColWidths(1, 40);
  Grid->SetObjects(1, 1, Grid);
  ShowGrid();
  Drag(Middle(1, 0), Middle(3, 0));
  EXPECT_EQ(Grid->Cells(3, 5), "c1r5");
  EXPECT_EQ(Grid->Cells(1, 5), "c2r5");
  EXPECT_EQ(Grid->ColWidths(3), 40);
  EXPECT_EQ(Grid->Objects(3, 1), Grid);
  EXPECT_EQ(Current(), "3,1") << "the current cell goes along";
  Drag(Middle(0, 4), Middle(0, 2));
  EXPECT_EQ(Grid->Cells(1, 2), "c2r4");
  EXPECT_EQ(Grid->Cells(1, 3), "c2r2");
  ClickCell(2, 0);
  ClickCell(0, 3);
  EXPECT_EQ(moved, "col13 row42 click20 ") << "rows' titles only with goFixedColClick";
  Drag(Middle(1, 0), Middle(2, 2));
  EXPECT_EQ(moved, "col13 row42 click20 col12 ");
}

TEST_F(Grids, OnSelectCellRefusesAndPointsFindCells) {
  Grid->OnSelectCell = [](TObject*, int col, int row, bool& can) { can = col != 2 || row == 4; };
  int scrolled = 0;
  Grid->OnTopLeftChanged = [&](TObject*) { ++scrolled; };
  ShowGrid();
  Key(VK_RIGHT);
  ClickCell(2, 3);
  EXPECT_EQ(Current(), "1,1");
  ClickCell(2, 4);
  EXPECT_EQ(Current(), "2,4");
  EXPECT_EQ(scrolled, 0);
  Grid->SetTopRow(5);
  EXPECT_EQ(scrolled, 1);
  const TRect cell = Grid->CellRect(1, 6);
  EXPECT_EQ(Grid->MouseCoord(cell.Left, cell.Top), (TGridCoord{1, 6}));
  EXPECT_EQ(Grid->MouseCoord(cell.Right, cell.Bottom), (TGridCoord{1, 6})) << "lines belong to it";
  EXPECT_TRUE(Grid->CellRect(1, 4).Empty()) << "scrolled away";
  EXPECT_EQ(Grid->MouseCoord(-1, 5), TGridCoord());
}

TEST_F(Grids, OnlyCellsThatAreAskedForAreDrawn) {
  std::string drawn;
  Grid->OnDrawCell = [&](TObject*, int col, int row, const TRect& rect, TGridDrawState state) {
    EXPECT_EQ(rect, Grid->CellRect(col, row));
    drawn += Name(col, row) + (state.Has(gdSelected) ? "s" : "") +
             (state.Has(gdFocused) ? "f" : "") + (state.Has(gdFixed) ? "x" : "") + " ";
  };
  Grid->SetRowCount(100'000);
  ShowGrid();
  Grid->Update();
  EXPECT_LT(drawn.size(), 400u);
  drawn.clear();
  Key(VK_DOWN);
  Grid->Update();
  EXPECT_EQ(drawn, "c1r1 c1r2sf ");
  drawn.clear();
  Grid->SetCells(2, 2, "x");
  Grid->SetCells(2, 90'000, "y");
  Grid->SetCells(2, 0, "z");
  Grid->Update();
  EXPECT_EQ(drawn, "c2r0x c2r1 c2r2 ") << "the rectangle around the two that are seen";
}

TEST_F(Grids, TheSelectionHasItsColourAndTheCurrentCellItsFrame) {
  Grid->SetFixedColor(TColor(0x00112233));
  ShowGrid();
  testinput::PumpUntil([this] { return !Find(TColor(0x00112233)).Empty(); });
  EXPECT_FALSE(Find(TColor(0x00112233)).Empty());
  EXPECT_TRUE(Find(clHighlight).Empty()) << "the focused cell has a frame alone";
  KeyWith(VK_SHIFT, VK_RIGHT);
  const TRect first = Grid->CellRect(1, 1);
  TRect found = Find(clHighlight);
  EXPECT_EQ(found.Width(), first.Width());
  EXPECT_EQ(found.Height(), first.Height());
  Key(VK_LEFT);
  Allow({goDrawFocusSelected});
  EXPECT_FALSE(Find(clHighlight).Empty());
  Allow({goRowSelect});
  found = Find(clHighlight);
  EXPECT_GT(found.Width(), 3 * first.Width());
}

TEST_F(Grids, WhatIsNotThereIsRefused) {
  const auto refuses = [](const std::function<void()>& call) {
    try {
      call();
    } catch (const EArgumentOutOfRangeException& error) {
      return std::string(error.what());
    }
    return std::string();
  };
  EXPECT_THAT(refuses([&] { Grid->SetColCount(0); }), testing::HasSubstr("columns of a grid"));
  EXPECT_THAT(refuses([&] { Grid->SetFixedRows(21); }), testing::HasSubstr("21"));
  EXPECT_THAT(refuses([&] { Grid->SetFixedRows(-1); }), testing::HasSubstr("-1"));
  EXPECT_THAT(refuses([&] { Grid->SetDefaultColWidth(0); }), testing::HasSubstr("0"));
  EXPECT_THAT(refuses([&] { Grid->SetRowHeights(1, 40'000); }), testing::HasSubstr("40000"));
  EXPECT_THAT(refuses([&] { Grid->SetColWidths(8, 10); }), testing::HasSubstr("no column 8"));
  EXPECT_THAT(refuses([&] { Grid->SetCells(1, 20, "x"); }), testing::HasSubstr("row 20"));
  EXPECT_THAT(refuses([&] { Grid->SetRow(20); }), testing::HasSubstr("no row 20"));
  EXPECT_THAT(refuses([&] { Grid->MoveColumn(1, 8); }), testing::HasSubstr("no column 8"));
  EXPECT_THAT(refuses([&] { Grid->SetGridLineWidth(101); }), testing::HasSubstr("101"));
  EXPECT_EQ(Grid->ColCount(), 8);
  // Titles alone are a grid, too.
  Grid->SetRowCount(1);
  ShowGrid();
  Key(VK_DOWN);
  ClickCell(1, 0);
  EXPECT_TRUE(Grid->Selection().Empty());
}

TEST_F(Grids, FormFilesHoldOwnSizes) {
  Grid->SetName("Sheet");
  const std::string plain = FormText(&Form, "TForm");
  EXPECT_EQ(plain.find("ColWidths"), std::string::npos);
  EXPECT_NE(plain.find("ColCount = 8"), std::string::npos) << plain;
  EXPECT_EQ(plain.find("c1r1"), std::string::npos) << "no cells";
  Grid->SetColWidths(2, 80);
  Grid->SetRowHeights(1, 0);
  Grid->Columns()->Add()->SetTitle("Amount");
  Grid->Columns()->Items(0)->PickList()->Add("10");
  const std::string text = FormText(&Form, "TForm");
  RegisterClasses({&TStringGrid::Class()});
  TForm read(nullptr);
  ReadForm(text, &read);
  auto* grid = dynamic_cast<TStringGrid*>(read.FindComponent("Sheet"));
  ASSERT_TRUE(grid);
  EXPECT_EQ(grid->ColWidths(2), 80);
  EXPECT_EQ(grid->ColWidths(3), 64);
  EXPECT_EQ(grid->RowHeights(1), 0);
  ASSERT_EQ(grid->Columns()->Count(), 1);
  EXPECT_EQ(grid->Columns()->Items(0)->PickList()->Strings(0), "10");
  EXPECT_EQ(FormText(&read, "TForm"), text);
}

TEST_F(Grids, SizesFollowDotsPerInchAndComeBack) {
  Grid->SetColWidths(2, 33);
  Grid->SetRowHeights(3, 0);
  Form.ScaleBy(3, 2);
  EXPECT_EQ(Grid->DefaultColWidth(), 96);
  EXPECT_EQ(Grid->ColWidths(2), 50);
  EXPECT_EQ(Grid->RowHeights(3), 0);
  Form.ScaleBy(2, 3);
  EXPECT_EQ(Grid->ColWidths(2), 33);
  EXPECT_EQ(Grid->DefaultRowHeight(), 24);
}

TEST_F(Grids, ScreenReadersHearRowsAndCells) {
  using namespace screenreader;
  ShowGrid();
  const TSpoken table = OfWindow(Grid->Handle());
  EXPECT_EQ(table.Role(), ROLE_SYSTEM_TABLE);
  const std::vector<TSpoken> rows = ChildrenOf(table);
  ASSERT_EQ(rows.size(), 8u) << "those that are seen";
  EXPECT_EQ(ChildrenOf(rows[0])[1].Role(), ROLE_SYSTEM_COLUMNHEADER);
  const TSpoken cell = ChildrenOf(rows[2])[1];
  EXPECT_EQ(cell.Role(), ROLE_SYSTEM_CELL);
  EXPECT_EQ(cell.Name(), "c1r0");
  EXPECT_EQ(cell.Value(), "c1r2");
  EXPECT_TRUE(cell.Has(STATE_SYSTEM_READONLY | STATE_SYSTEM_SELECTABLE));
  EXPECT_EQ(rows[2].Name().rfind("c0r2; c1r2", 0), 0u) << rows[2].Name();
  TListener listener;
  EXPECT_EQ(cell.Do(), S_OK);
  EXPECT_TRUE(testinput::PumpUntil([this] { return Current() == "1,2"; }));
  EXPECT_TRUE(cell.Has(STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED));
  EXPECT_EQ(Ask(table, &IAccessible::get_accFocus).Value(), "c1r2");
  EXPECT_TRUE(
      testinput::PumpUntil([&] { return listener.Heard(EVENT_OBJECT_FOCUS, rows[2].Name()); }));
  Allow({goEditing});
  EXPECT_FALSE(cell.Has(STATE_SYSTEM_READONLY));
  Grid->SetFixedRows(0);
  EXPECT_EQ(ChildrenOf(ChildrenOf(table)[2])[1].Name(), "Column 2") << "there is no title";
}

}  // namespace
}  // namespace vcl
