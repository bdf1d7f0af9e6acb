// Grids with real input: editing in place, lists, check boxes, the clipboard; the cells of string
// grids as lists, and sorting them.
#include "tests/support/texts.h"
#include "tests/vcl/gridform.h"

namespace vcl {
namespace {

using GridEdits = TGridForm;

TEST_F(GridEdits, TypingEditsACellAndEnterMakesItHold) {
  std::string heard;
  Grid->OnSetEditText = [&](TObject*, int col, int row, const std::string& text) {
    heard += Name(col, row) + "=" + text + " ";
    if (text == "no") throw EConvertError("no is no value");
  };
  ShowGrid();
  Type("x");
  EXPECT_FALSE(Grid->EditorMode()) << "only with goEditing";
  Allow({goEditing});
  Type("ab");
  EXPECT_TRUE(Grid->EditorMode());
  EXPECT_EQ(Grid->Cells(1, 1), "c1r1") << "not yet";
  Key(VK_RETURN);
  EXPECT_EQ(Grid->Cells(1, 1), "ab");
  EXPECT_TRUE(Grid->Focused());
  Key(VK_F2);
  Type("c");
  Key(VK_DOWN);
  EXPECT_EQ(Grid->Cells(1, 1), "abc");
  EXPECT_EQ(Current(), "1,2");
  EXPECT_FALSE(Grid->EditorMode());
  Key(VK_RETURN);
  Type("d");
  EXPECT_TRUE(Grid->EditorMode());
  Key(VK_ESCAPE);
  EXPECT_EQ(Grid->Cells(1, 2), "c1r2");
  Key(VK_F2);
  Key(VK_RETURN);
  EXPECT_EQ(heard, "c1r1=ab c1r1=abc ") << "what is not changed is not written";
  Type("no");
  Key(VK_DOWN);
  EXPECT_EQ(std::exchange(Errors, {}), "no is no value");
  EXPECT_TRUE(Grid->EditorMode()) << "what is refused stays to be corrected";
  EXPECT_EQ(Current(), "1,2");
  ClickCell(2, 3);
  EXPECT_EQ(std::exchange(Errors, {}), "no is no value");
  EXPECT_EQ(Current(), "1,2");
  Key(VK_ESCAPE);
  EXPECT_EQ(Grid->Cells(1, 2), "c1r2");
}

TEST_F(GridEdits, AHandlerGivesTheMaskOfACell) {
  Allow({goEditing});
  Grid->OnGetEditMask = [](TObject*, int col, int, std::string& mask) {
    mask = col == 1 ? "00:00;1;_" : col == 3 ? "0\\" : "";
  };
  Grid->SetCells(1, 1, "12:34");
  ShowGrid();
  Key(VK_F2);
  Key(VK_HOME);
  Type("9x8");
  Key(VK_RETURN);
  EXPECT_EQ(Errors, "");
  EXPECT_EQ(Grid->Cells(1, 1), "98:34");
  Key(VK_F2);
  Key(VK_HOME);
  Key(VK_DELETE);
  Key(VK_DOWN);
  EXPECT_NE(std::exchange(Errors, {}).find("is not complete"), std::string::npos);
  EXPECT_EQ(Current(), "1,1");
  Key(VK_ESCAPE);
  EXPECT_EQ(Errors, "");
  EXPECT_EQ(Grid->Cells(1, 1), "98:34");
  Key(VK_RIGHT);
  Type("9x8");
  Key(VK_RETURN);
  EXPECT_EQ(Grid->Cells(2, 1), "9x8") << "no mask";
  Key(VK_RIGHT);
  Type("1");
  EXPECT_NE(std::exchange(Errors, {}).find("0\\"), std::string::npos) << "malformed";
  EXPECT_FALSE(Grid->EditorMode());
}

TEST_F(GridEdits, AClickOnTheCurrentCellEditsAndLeavingMakesItHold) {
  auto* other = Make<TEdit>(10, 300);
  Allow({goEditing});
  ShowGrid();
  ClickCell(2, 2);
  EXPECT_FALSE(Grid->EditorMode());
  ClickCell(2, 2);
  ASSERT_TRUE(Grid->EditorMode());
  Type("new");
  other->SetFocus();
  EXPECT_EQ(Grid->Cells(2, 2), "new");
  EXPECT_FALSE(Grid->EditorMode());
  EXPECT_TRUE(other->Focused());
  Grid->OnSetEditText = [](TObject*, int, int, const std::string&) { throw EConvertError("bad"); };
  Grid->SetFocus();
  Type("y");
  Key(VK_TAB);
  EXPECT_EQ(std::exchange(Errors, {}), "bad");
  EXPECT_TRUE(Grid->EditorMode());
  EXPECT_FALSE(other->Focused());
  other->SetFocus();
  testinput::Pump();
  EXPECT_EQ(std::exchange(Errors, {}), "bad");
  EXPECT_FALSE(other->Focused()) << "nothing that was typed is lost";
  Key(VK_ESCAPE);
  Key(VK_TAB);
  EXPECT_TRUE(other->Focused());
}

TEST_F(GridEdits, TheEditorCanAlwaysBeThere) {
  Make<TEdit>(10, 300);
  Allow({goEditing, goAlwaysShowEditor, goTabs});
  ShowGrid();
  ASSERT_TRUE(Grid->EditorMode());
  Type("a");
  Key(VK_TAB);
  EXPECT_EQ(Grid->Cells(1, 1), "a");
  EXPECT_EQ(Current(), "2,1");
  EXPECT_TRUE(Grid->EditorMode());
  Type("b");
  Key(VK_DOWN);
  EXPECT_EQ(Grid->Cells(2, 1), "b");
  Key(VK_RIGHT);
  EXPECT_EQ(Current(), "3,2") << "all of the text is selected";
  ClickCell(1, 3);
  EXPECT_TRUE(Grid->EditorMode());
  Type("c");
  Grid->SetCells(1, 4, "other");
  Key(VK_RETURN);
  EXPECT_EQ(Grid->Cells(1, 3), "c");
  EXPECT_TRUE(Grid->EditorMode());
}

TEST_F(GridEdits, ColumnsOfferListsBoxesAndButtons) {
  Allow({goEditing});
  TGridColumns* columns = Grid->Columns();
  columns->Add()->PickList()->SetText("red\ngreen\nblue");
  columns->Add()->SetButtonStyle(cbsCheckBox);
  columns->Add()->SetReadOnly(true);
  ShowGrid();
  KeyWith(VK_MENU, VK_DOWN);
  ASSERT_TRUE(Grid->EditorMode());
  Key(VK_DOWN);
  Key(VK_DOWN);
  Key(VK_RETURN);
  EXPECT_EQ(Grid->Cells(1, 1), "green");
  const TRect cell = Grid->CellRect(1, 1);
  testinput::Click(Grid->ClientToScreen({cell.Right - 5, cell.Top + 5}));
  Key(VK_UP);
  Key(VK_RETURN);
  EXPECT_EQ(Grid->Cells(1, 1), "red") << "dropped down by its button";
  Key(VK_RETURN);
  Key(VK_RIGHT);
  EXPECT_EQ(Current(), "2,1");
  Key(VK_SPACE);
  EXPECT_EQ(Grid->Cells(2, 1), "True");
  EXPECT_FALSE(Grid->EditorMode());
  ClickCell(2, 1);
  EXPECT_EQ(Grid->Cells(2, 1), "False");
  Key(VK_RIGHT);
  Type("x");
  EXPECT_FALSE(Grid->EditorMode()) << "read-only";
  Key(VK_RIGHT);
  std::string pressed;
  Grid->OnGetEditStyle = [](TObject*, int, int row, TEditStyle& style) {
    style = row == 1 ? esEllipsis : esPickList;
  };
  Grid->OnGetPickList = [](TObject*, int col, int row, TStrings* items) {
    items->Add("first");
    items->Add(Name(col, row));
  };
  Grid->OnEditButtonClick = [&](TObject*, int col, int row) { pressed += Name(col, row); };
  Key(VK_F2);
  const TRect wide = Grid->CellRect(4, 1);
  testinput::Click(Grid->ClientToScreen({wide.Right - 5, wide.Top + 5}));
  EXPECT_EQ(pressed, "c4r1");
  Key(VK_DOWN);
  Key(VK_F4);
  Key(VK_UP);
  Key(VK_RETURN);
  EXPECT_EQ(Grid->Cells(4, 2), "first");
}

TEST_F(GridEdits, BlocksGoThroughTheClipboardAsTextWithTabs) {
  Allow({goEditing});
  Grid->SetCells(1, 1, "a\tb");
  Grid->SetCells(2, 1, "say \"x\"");
  Grid->SetCells(1, 2, "two\nlines");
  ShowGrid();
  Grid->SetSelection({1, 1, 2, 2});
  KeyWith(VK_CONTROL, 'C');
  EXPECT_EQ(Clipboard()->AsText(), "\"a\tb\"\t\"say \"\"x\"\"\"\n\"two\nlines\"\tc2r2\n");
  Grid->SetCol(4);
  KeyWith(VK_CONTROL, 'V');
  EXPECT_EQ(Grid->Cells(4, 2), "a\tb");
  EXPECT_EQ(Grid->Cells(5, 2), "say \"x\"");
  EXPECT_EQ(Grid->Cells(4, 3), "two\nlines");
  EXPECT_EQ(Grid->Cells(6, 2), "c6r2");
  Grid->SetSelection({1, 5, 2, 6});
  KeyWith(VK_CONTROL, 'X');
  EXPECT_EQ(Clipboard()->AsText(), "c1r5\tc2r5\nc1r6\tc2r6\n");
  EXPECT_EQ(Grid->Cells(2, 6), "");
  Grid->PasteText("7");
  for (const int col : {1, 2}) EXPECT_EQ(Grid->Cells(col, 6), "7") << "one value into all cells";
  Key(VK_DELETE);
  EXPECT_EQ(Grid->Cells(1, 5), "");
  Grid->SetCol(7);
  Grid->SetRow(19);
  Grid->PasteText("end\tbeyond\r\nbeyond");
  EXPECT_EQ(Grid->Cells(7, 19), "end");
  Grid->SetCol(1);
  Grid->SetRow(10);
  Grid->PasteText("p\"q\t\t\"open\ntext");
  EXPECT_EQ(Grid->Cells(1, 10), "p\"q");
  EXPECT_EQ(Grid->Cells(2, 10), "");
  EXPECT_EQ(Grid->Cells(3, 10), "open\ntext") << "a quote that does not end";
}

TEST_F(GridEdits, ABlockThatIsRefusedLeavesAllAsItWas) {
  Allow({goEditing});
  Grid->OnSetEditText = [](TObject*, int, int, const std::string& text) {
    if (text == "bad") throw EConvertError("bad is no value");
  };
  ShowGrid();
  EXPECT_THROW(Grid->PasteText("one\ttwo\nbad"), EConvertError);
  EXPECT_EQ(Grid->Cells(1, 1), "c1r1");
  EXPECT_EQ(Grid->Cells(2, 1), "c2r1");
  Grid->Columns()->Add();
  Grid->Columns()->Add()->SetReadOnly(true);
  try {
    Grid->PasteText("one\ttwo");
    ADD_FAILURE();
  } catch (const EInvalidOperation& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("column 2 and row 1 is read-only"));
  }
  EXPECT_EQ(Grid->Cells(1, 1), "c1r1");
  Grid->SetOptions(Grid->Options() - TGridOptions{goEditing});
  KeyWith(VK_CONTROL, 'V');
  Key(VK_DELETE);
  EXPECT_EQ(Grid->Cells(1, 1), "c1r1") << "keys change nothing without goEditing";
}

TEST_F(GridEdits, RowsAndColumnsAreListsOfTheirCells) {
  TStrings* row = Grid->Rows(3);
  EXPECT_EQ(row->Count(), 8);
  EXPECT_EQ(row->Strings(2), "c2r3");
  row->Clear();
  EXPECT_EQ(row->Add(""), 0);
  EXPECT_EQ(row->Add("one"), 1);
  row->SetObjects(1, Grid);
  EXPECT_EQ(Grid->Cells(1, 3), "one");
  row->Insert(0, "first");
  EXPECT_EQ(Grid->Cells(2, 3), "one");
  EXPECT_EQ(Grid->Objects(2, 3), Grid);
  row->Delete(0);
  EXPECT_EQ(row->IndexOfObject(Grid), 1);
  TStringList many;
  for (int i = 0; i < 30; ++i) many.Add(std::to_string(i));
  Grid->Cols(2)->Assign(&many);
  EXPECT_EQ(Grid->Cells(2, 19), "19");
  EXPECT_THROW(Grid->Cols(2)->Add("x"), EStringListError);
  EXPECT_THROW(Grid->Cols(2)->Insert(0, "x"), EStringListError) << "19 would be lost";
  EXPECT_THROW(row->SetStrings(8, "x"), EStringListError);
  EXPECT_EQ(Grid->Cells(2, 0), "0");
  Grid->SetRowCount(2);
  Grid->SetRowCount(20);
  EXPECT_EQ(Grid->Cells(2, 5), "") << "what was beyond has gone";
  EXPECT_EQ(Grid->Cols(2)->Count(), 20);
}

TEST_F(GridEdits, RowsAreSortedByAColumn) {
  Grid->SetRowCount(6);
  Grid->Clear();
  const char* texts[] = {"", "pear", "10", "Apple", "9", "apple"};
  for (int row = 1; row < 6; ++row) {
    Grid->SetCells(1, row, texts[row]);
    Grid->SetCells(2, row, std::to_string(row));
  }
  Grid->SetRowHeights(2, 40);
  ShowGrid();
  const auto order = [this] {
    std::string text;
    for (int row = 1; row < 6; ++row) text += Grid->Cells(2, row);
    return text;
  };
  Grid->SortRows(1);
  EXPECT_EQ(order(), "42351") << "numbers by value, before texts; equal ones as they were";
  EXPECT_EQ(Grid->RowHeights(2), 40);
  Grid->SortRows(1, true);
  EXPECT_EQ(order(), "13524");
  EXPECT_EQ(Grid->RowHeights(4), 40) << "heights go with their rows";
  EXPECT_EQ(Grid->SortColumn(), 1);
  EXPECT_TRUE(Grid->SortDescending());
}

TEST_F(GridEdits, HandlersMayFreeTheGrid) {
  const auto freed = [this](WORD key, const std::function<void(TStringGrid&)>& bind) {
    auto* grid = Make<TStringGrid>(10, 210);
    grid->SetOptions(grid->Options() + TGridOptions{goEditing});
    bind(*grid);
    const TWatch watch(grid);
    grid->SetFocus();
    testinput::Pump();
    if (!watch.Gone()) Key(key);
    if (!watch.Gone()) Key(VK_RETURN);
    const bool gone = watch.Gone();
    if (!gone) delete grid;
    return gone;
  };
  ShowForm();
  EXPECT_TRUE(freed(VK_DOWN, [](TStringGrid& grid) {
    grid.OnSelectCell = [&grid](TObject*, int, int, bool&) { delete &grid; };
  }));
  EXPECT_TRUE(freed('X', [](TStringGrid& grid) {
    grid.OnGetEditText = [&grid](TObject*, int, int, std::string&) { delete &grid; };
  }));
  EXPECT_TRUE(freed('X', [](TStringGrid& grid) {
    grid.OnGetEditStyle = [&grid](TObject*, int, int, TEditStyle&) { delete &grid; };
  }));
  EXPECT_TRUE(freed('X', [](TStringGrid& grid) {
    grid.OnSetEditText = [&grid](TObject*, int, int, const std::string&) { delete &grid; };
  }));
  EXPECT_TRUE(freed('X', [](TStringGrid& grid) {
    grid.OnDrawCell = [&grid](TObject*, int, int, const TRect&, TGridDrawState) { delete &grid; };
  }));
  EXPECT_TRUE(freed(VK_NEXT, [](TStringGrid& grid) {
    grid.SetRowCount(100);
    grid.OnTopLeftChanged = [&grid](TObject*) { delete &grid; };
  }));
}

}  // namespace
}  // namespace vcl
