// The list under a header: rows, selection, sorting, typing, editing, and a million virtual rows.
#include "tests/controls/headerform.h"
#include "tests/support/screenreader.h"
#include "vcl/transfer/clipboard.h"

namespace qel {
namespace {

using testinput::PumpUntil;

class HeaderList : public THeaderForm {
 protected:
  HeaderList() : It(Make<TQELHeaderList>(10, 10)) {
    It->SetBounds(10, 10, 300, 200);
    AddSections(It->Sections());
    for (const char* line : {"pear\t10\t2024-03-01", "apple\t9\t2023-12-31", "plum\t9\t2024-01-02",
                             "fig\t100\t1999-05-05"}) {
      It->Items()->Add(line);
    }
    It->OnSelect = [this](vcl::TObject*) { ++Selects; };
  }
  ~HeaderList() override { testinput::MoveMouse({0, 0}); }
  void ShowList() {
    ShowForm();
    It->SetFocus();
  }
  /// The first column, from the first row on.
  std::string Names() {
    std::string names;
    for (int row = 0; row < It->Count(); ++row) names += It->TextOf(row, 0) + " ";
    return names;
  }
  std::string SelectedRows() const {
    std::string rows;
    for (int row = 0; row < It->Count(); ++row) {
      if (It->Selected(row)) rows += std::to_string(row) + " ";
    }
    return rows;
  }
  /// A place in the row, in the first column.
  vcl::TPoint In(int row, int x = 40) const {
    int y = It->Header()->Height() + 2;
    while (y < It->Height() && It->RowAt(x, y) != row) ++y;
    return {x, y + 4};
  }
  void ClickRow(int row) { testinput::Click(It->ClientToScreen(In(row))); }
  /// With a key held down (MK_CONTROL, MK_SHIFT).
  void ClickRow(int row, WPARAM held) {
    const vcl::TPoint at = In(row);
    ::SendMessageW(It->Handle(), WM_LBUTTONDOWN, MK_LBUTTON | held, MAKELPARAM(at.X, at.Y));
    ::SendMessageW(It->Handle(), WM_LBUTTONUP, held, MAKELPARAM(at.X, at.Y));
  }

  vcl::TRecreatable<TQELHeaderList>* It;
  int Selects = 0;
};

TEST_F(HeaderList, SplitsItsLinesAtTheSeparator) {
  EXPECT_EQ(It->TextOf(0, 0), "pear");
  EXPECT_EQ(It->TextOf(0, 2), "2024-03-01");
  EXPECT_EQ(It->TextOf(0, 3), "");
  EXPECT_EQ(It->TextOf(4, 0), "");
  EXPECT_EQ(It->TextOf(-1, 0), "");
  It->SetSeparator(U'9');
  EXPECT_EQ(It->TextOf(1, 1), "\t2023-12-31");
  It->SetSeparator(0);
  EXPECT_EQ(It->Separator(), U'9');
}

TEST_F(HeaderList, SortsByWhatTheColumnHoldsAndKeepsEqualRowsInOrder) {
  ShowList();
  It->SetItemIndex(0);
  It->SetChecked(3, true);
  Click(*It, 100, 8);
  EXPECT_EQ(Names(), "apple plum pear fig ") << "numbers";
  EXPECT_EQ(It->ItemIndex(), 2);
  EXPECT_EQ(SelectedRows(), "2 ");
  EXPECT_TRUE(It->Checked(3));
  Click(*It, 100, 8);
  EXPECT_EQ(Names(), "fig pear apple plum ") << "falling, the equal ones as they were";
  EXPECT_TRUE(It->Header()->SortDescending());
  EXPECT_TRUE(It->Checked(0));
  It->SortBy(2, false);
  EXPECT_EQ(Names(), "fig apple plum pear ") << "dates";
  It->SortBy(0, false);
  EXPECT_EQ(Names(), "apple fig pear plum ");
  It->OnCompare = [this](vcl::TObject*, int a, int b, int column, int& order) {
    order = int(It->TextOf(a, column).size()) - int(It->TextOf(b, column).size());
  };
  It->SortBy(0, true);
  EXPECT_EQ(Names(), "apple pear plum fig ");
  It->SetAutoSort(false);
  Click(*It, 100, 8);
  EXPECT_EQ(Names(), "apple pear plum fig ");
  It->SortBy(7, false);
  EXPECT_EQ(It->Header()->SortColumn(), 0);
}

TEST_F(HeaderList, SelectsByMouseAndKeys) {
  ShowList();
  EXPECT_EQ(It->ItemIndex(), -1);
  Key(VK_DOWN);
  EXPECT_EQ(It->ItemIndex(), 0) << "the first key selects what has the focus";
  Key(VK_DOWN);
  EXPECT_EQ(It->ItemIndex(), 1);
  EXPECT_EQ(Selects, 2);
  ClickRow(3);
  EXPECT_EQ(SelectedRows(), "3 ");
  ClickRow(1, MK_CONTROL);
  EXPECT_EQ(SelectedRows(), "1 ") << "one only";
  Key(VK_END);
  EXPECT_EQ(It->ItemIndex(), 3);
  Key(VK_HOME);
  EXPECT_EQ(It->ItemIndex(), 0);
  It->SetItemIndex(9);
  EXPECT_EQ(It->ItemIndex(), 0);
  It->SetItemIndex(-1);
  EXPECT_EQ(SelectedRows(), "");
}

TEST_F(HeaderList, SelectsSeveralRows) {
  It->SetMultiSelect(true);
  ShowList();
  ClickRow(0);
  ClickRow(2, MK_CONTROL);
  EXPECT_EQ(SelectedRows(), "0 2 ");
  ClickRow(2, MK_CONTROL);
  EXPECT_EQ(SelectedRows(), "0 ");
  ClickRow(1);
  ClickRow(3, MK_SHIFT);
  EXPECT_EQ(SelectedRows(), "1 2 3 ");
  KeyWith(VK_SHIFT, VK_UP);
  EXPECT_EQ(SelectedRows(), "1 2 ");
  KeyWith(VK_CONTROL, VK_DOWN);
  EXPECT_EQ(SelectedRows(), "1 2 ");
  KeyWith(VK_CONTROL, VK_SPACE);
  EXPECT_EQ(SelectedRows(), "1 2 3 ");
  Drag(*It, In(0), In(2));
  EXPECT_EQ(SelectedRows(), "0 1 2 ");
  KeyWith(VK_CONTROL, 'A');
  EXPECT_EQ(It->SelCount(), 4);
  It->SetSelected(1, false);
  KeyWith(VK_CONTROL, 'C');
  EXPECT_EQ(vcl::Clipboard()->AsText(),
            "pear\t10\t2024-03-01\nplum\t9\t2024-01-02\nfig\t100\t1999-05-05\n");
}

TEST_F(HeaderList, RowsThatComeAndGoTakeTheirStatesAlong) {
  It->SetMultiSelect(true);
  It->SetItemIndex(1);
  It->SetSelected(3, true);
  It->SetChecked(1, true);
  It->Items()->Insert(0, "new");
  EXPECT_EQ(SelectedRows(), "2 4 ");
  EXPECT_EQ(It->ItemIndex(), 2);
  EXPECT_TRUE(It->Checked(2));
  It->Items()->Delete(1);
  EXPECT_EQ(SelectedRows(), "1 3 ");
  It->Items()->Delete(1);
  EXPECT_EQ(SelectedRows(), "2 ");
  EXPECT_EQ(It->ItemIndex(), -1);
  EXPECT_FALSE(It->Checked(1));
  It->Items()->Clear();
  EXPECT_EQ(SelectedRows(), "");
  EXPECT_EQ(It->Count(), 0);
}

TEST_F(HeaderList, TypingGoesToTheRowThatBeginsSo) {
  ShowList();
  Type("pl");
  EXPECT_EQ(It->ItemIndex(), 2);
  testinput::PumpFor(1200);
  Type("ppp");
  EXPECT_EQ(It->ItemIndex(), 0) << "pear, plum and pear again";
  testinput::PumpFor(1200);
  It->Header()->SetSortColumn(1);
  Type("10");
  EXPECT_EQ(It->ItemIndex(), 3) << "in the sorted column";
}

TEST_F(HeaderList, EditsTheCurrentCellByF2UnlessReadOnly) {
  ShowList();
  ClickRow(1);
  Key(VK_F2), Type("x"), Key(VK_RETURN);
  EXPECT_EQ(It->Items()->Strings(1), "apple\t9\t2023-12-31");
  It->SetReadOnly(false);
  It->SetFocus();
  Key(VK_RIGHT), Key(VK_F2), Type("77"), Key(VK_RETURN);
  EXPECT_TRUE(PumpUntil([&] { return It->Items()->Strings(1) == "apple\t77\t2023-12-31"; }))
      << It->Items()->Strings(1);
  Key(VK_F2), Type("5"), Key(VK_ESCAPE);
  EXPECT_EQ(It->TextOf(1, 1), "77");
  It->Items()->SetStrings(1, "kiwi");
  Key(VK_RIGHT), Key(VK_F2), Type("z"), Key(VK_RETURN);
  EXPECT_EQ(It->Items()->Strings(1), "kiwi\t\tz");
}

TEST_F(HeaderList, ChecksByMouseAndSpace) {
  It->SetCheckBoxes(true);
  int checks = 0;
  It->OnClickCheck = [&](vcl::TObject*) { ++checks; };
  ShowList();
  testinput::Click(It->ClientToScreen(In(2, 8)));
  EXPECT_TRUE(It->Checked(2));
  ClickRow(2);
  EXPECT_TRUE(It->Checked(2)) << "beside the box";
  Key(VK_SPACE);
  EXPECT_FALSE(It->Checked(2));
  EXPECT_EQ(checks, 2);
}

TEST_F(HeaderList, ShowsTheColumnThatAMovedSectionHad) {
  It->Header()->SetAllowMove(true);
  ShowList();
  Drag(*It->Header(), {20, 8}, {200, 8});
  It->SetMultiSelect(true);
  It->SetItemIndex(3);
  EXPECT_EQ(It->SelectionText(), "100\t1999-05-05\tfig\n");
}

TEST_F(HeaderList, TheHeaderScrollsWithTheColumns) {
  It->SetWidth(150);
  ShowList();
  It->SetItemIndex(0);
  Key(VK_RIGHT), Key(VK_RIGHT);
  EXPECT_EQ(It->Header()->Left() % 80, 0);
  EXPECT_LT(It->Header()->Left(), 0);
}

TEST_F(HeaderList, AMillionVirtualRowsCostWhatIsSeen) {
  int asked = 0;
  It->OnGetText = [&](vcl::TObject*, int column, int row, std::string& text) {
    ++asked;
    text = std::to_string(row) + "." + std::to_string(column);
  };
  int sorts = 0;
  It->OnSort = [&](vcl::TObject*, int column, bool descending) {
    sorts += column == 1 && descending ? 10 : 1;
  };
  It->SetRowCount(1'000'000);
  ShowList();
  EXPECT_LT(asked, 200);
  Key(VK_END);
  EXPECT_EQ(It->ItemIndex(), 999'999);
  EXPECT_LT(asked, 400);
  It->SetMultiSelect(true);
  KeyWith(VK_CONTROL, 'A');
  EXPECT_EQ(It->SelCount(), 1'000'000);
  EXPECT_LT(asked, 600);
  Click(*It, 100, 8), Click(*It, 100, 8);
  EXPECT_EQ(sorts, 11);
  EXPECT_LT(asked, 1000);
  It->SetRowCount(-1);
  EXPECT_EQ(It->RowCount(), 1'000'000);
  It->SetRowCount(10);
  EXPECT_EQ(It->SelCount(), 10);
  It->Items()->Clear();
  EXPECT_EQ(It->SelCount(), 10) << "of the virtual rows";
  It->Items()->Add("pear");
  It->SetRowCount(0);
  EXPECT_EQ(It->TextOf(0, 0), "pear");
}

TEST_F(HeaderList, TellsOfItsRowsAndCells) {
  It->SetCheckBoxes(true);
  ShowList();
  It->SetItemIndex(1);
  It->SetChecked(1, true);
  const std::vector<vcl::TAccessiblePart> rows = It->AccessibleParts();
  ASSERT_EQ(rows.size(), 5u);
  EXPECT_EQ(rows[2].Role, vcl::arRow);
  EXPECT_EQ(rows[2].Name, "apple; 9; 2023-12-31");
  EXPECT_TRUE(rows[2].State.Has(vcl::asSelected));
  EXPECT_TRUE(rows[2].State.Has(vcl::asChecked));
  EXPECT_FALSE(rows[1].State.Has(vcl::asSelected));
  ASSERT_EQ(rows[2].Parts.size(), 3u);
  EXPECT_EQ(rows[2].Parts[1].Name, "Size");
  EXPECT_EQ(rows[2].Parts[1].Value, "9");
  It->DoAccessiblePart({4});
  EXPECT_EQ(It->ItemIndex(), 3);
  EXPECT_TRUE(It->Checked(3));
}

}  // namespace
}  // namespace qel
