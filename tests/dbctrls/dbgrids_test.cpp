// The grid of records with real input: columns of its own, editing, titles.
#include <gmock/gmock.h>

#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/db/memorydataset.h"
#include "vcl/dbctrls/dbctrls.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

class RecordGrids : public TStandardForm {
 protected:
  RecordGrids() : Grid(Make<TDBGrid>(10, 10)) {
    Data.FieldDefs()->Add("Name", ftString);
    Data.FieldDefs()->Add("Count", ftInteger);
    Data.Open();
    for (const char* name : {"Ann", "Bob", "Cid"}) Data.AppendRecord({std::string(name), 5});
    Data.First();
    Source.SetDataSet(&Data);
    Grid->SetBounds(10, 10, 300, 150);
    Grid->SetDataSource(&Source);
  }
  void ShowEditing() {
    Grid->SetOptions({dgEditing, dgTitles, dgIndicator, dgColumnResize, dgColLines, dgRowLines,
                      dgTabs, dgConfirmDelete, dgCancelOnExit});
    ShowForm();
    Grid->SetFocus();
  }
  /// All names, an asterisk at the current record.
  std::string Names() {
    std::string text;
    const int current = Data.RecNo();
    Data.DisableControls();
    const TBookmark back = Data.Bookmark();
    for (Data.First(); !Data.Eof(); Data.Next()) {
      text += Data.FieldByName("Name")->AsString() + (Data.RecNo() == current ? "* " : " ");
    }
    Data.GotoBookmark(back);
    Data.EnableControls();
    return text;
  }
  std::string Name() const { return Data.FieldByName("Name")->AsString(); }

  TMemoryDataSet Data{nullptr};
  TDataSource Source{nullptr};
  TRecreatable<TDBGrid>* Grid;
};

TEST_F(RecordGrids, TypingEditsTheRecordAndAnotherPostsIt) {
  ShowForm();
  Grid->SetFocus();
  Type("x");
  EXPECT_EQ(Data.State(), dsBrowse) << "only with dgEditing";
  ShowEditing();
  Type("New");
  EXPECT_EQ(Data.State(), dsEdit);
  EXPECT_EQ(Name(), "Ann");
  Key(VK_DOWN);
  EXPECT_EQ(Data.State(), dsBrowse);
  EXPECT_EQ(Names(), "New Bob* Cid ");
  Type("Bea");
  Key(VK_TAB);
  EXPECT_EQ(Grid->SelectedField(), Data.FieldByName("Count"));
  EXPECT_EQ(Name(), "Bea");
  Type("many");
  Key(VK_RETURN);
  EXPECT_THAT(std::exchange(Errors, {}), testing::HasSubstr("many"));
  EXPECT_TRUE(Grid->EditorMode());
  Key(VK_ESCAPE);
  EXPECT_EQ(Data.State(), dsEdit);
  Key(VK_ESCAPE);
  EXPECT_EQ(Data.State(), dsBrowse);
  EXPECT_EQ(Name(), "Bob");
  Grid->SetSelectedIndex(0);
  Type("Ben");
  Data.Post();
  EXPECT_EQ(Name(), "Ben") << "posting takes what is being typed";
  Type("z");
  Data.Cancel();
  EXPECT_EQ(Name(), "Ben");
  EXPECT_FALSE(Grid->EditorMode());
  Grid->SetReadOnly(true);
  Type("q");
  EXPECT_EQ(Data.State(), dsBrowse);
}

TEST_F(RecordGrids, KeysBeginAndDeleteRecords) {
  auto* other = Make<TEdit>(10, 300);
  ShowEditing();
  KeyWith(VK_CONTROL, VK_END);
  Key(VK_DOWN);
  EXPECT_EQ(Data.State(), dsInsert);
  Type("Dan");
  Key(VK_UP);
  EXPECT_EQ(Names(), "Ann Bob Cid* Dan ");
  Key(VK_INSERT);
  EXPECT_EQ(Data.State(), dsInsert);
  other->SetFocus();
  EXPECT_EQ(Data.State(), dsBrowse) << "nothing was typed";
  Grid->SetFocus();
  KeyWith(VK_CONTROL, VK_HOME);
  {
    const testinput::TKeysWhen no([] { return ::FindWindowW(nullptr, L"Confirm") != nullptr; },
                                  {VK_ESCAPE});
    KeyWith(VK_CONTROL, VK_DELETE);
  }
  EXPECT_EQ(Names(), "Ann* Bob Cid Dan ");
  Grid->SetOptions(Grid->Options() - TDBGridOptions{dgConfirmDelete});
  KeyWith(VK_CONTROL, VK_DELETE);
  EXPECT_EQ(Names(), "Bob* Cid Dan ");
}

TEST_F(RecordGrids, ColumnsSayWhichFieldsAreShownAndHow) {
  TColumn* count = Grid->Columns()->Add();
  count->SetFieldName("Count");
  count->SetWidth(90);
  TColumn* name = Grid->Columns()->Add();
  name->SetFieldName("Name");
  name->SetTitle("Person");
  name->PickList()->SetText("Eve\nFay");
  ShowEditing();
  ASSERT_EQ(Grid->ShownCount(), 2);
  EXPECT_EQ(Grid->CellRect(1, 0).Width(), 90);
  EXPECT_EQ(count->Title(), "Count");
  EXPECT_EQ(count->Alignment(), taRightJustify);
  EXPECT_EQ(name->Title(), "Person");
  Grid->SetSelectedIndex(1);
  KeyWith(VK_MENU, VK_DOWN);
  Key(VK_DOWN);
  Key(VK_RETURN);
  EXPECT_EQ(Data.State(), dsEdit);
  EXPECT_EQ(Name(), "Eve");
  Data.Post();
  name->SetReadOnly(true);
  Type("x");
  EXPECT_EQ(Data.State(), dsBrowse);
  TColumn* clicked = nullptr;
  Grid->OnTitleClick = [&](TObject*, TColumn* column) { clicked = column; };
  const TRect title = Grid->CellRect(2, 0);
  testinput::Click(Grid->ClientToScreen({title.Left + 10, title.Top + 5}));
  EXPECT_EQ(clicked, name);
  const TPoint edge = Grid->ClientToScreen({Grid->CellRect(1, 0).Right, 5});
  testinput::MoveMouse(edge);
  testinput::LeftDown();
  testinput::MoveMouse({edge.X + 20, edge.Y});
  testinput::LeftUp();
  EXPECT_EQ(count->Width(), 110);
  count->SetVisible(false);
  EXPECT_EQ(Grid->ShownCount(), 1);
  EXPECT_THROW(Grid->Shown(1), EListError);
  EXPECT_THROW(count->SetWidth(0), EArgumentOutOfRangeException);
  // The columns come back from a form file; what is the field's is not in it.
  Grid->SetName("Records");
  const std::string text = FormText(&Form, "TForm");
  EXPECT_EQ(text.find("Alignment"), std::string::npos) << text;
  RegisterClasses({&TDBGrid::Class()});
  TForm read(nullptr);
  ReadForm(text, &read);
  EXPECT_EQ(FormText(&read, "TForm"), text);
  Form.ScaleBy(2, 1);
  EXPECT_EQ(count->Width(), 220);
}

TEST_F(RecordGrids, CellsAreDrawnWithTheirRecords) {
  std::string drawn;
  Grid->OnDrawColumnCell = [&](TObject*, const TRect& rect, int col, TColumn* column,
                               TGridDrawState state) {
    EXPECT_EQ(column, Grid->Shown(col));
    EXPECT_FALSE(rect.Empty());
    if (col == 0) drawn += column->Field()->AsString() + (state.Has(gdSelected) ? "* " : " ");
  };
  ShowForm();
  Data.Next();
  drawn.clear();
  Grid->Repaint();
  EXPECT_EQ(drawn, "Ann Bob* Cid ");
  EXPECT_EQ(Name(), "Bob");
  Grid->OnDrawColumnCell = [this](TObject*, const TRect&, int, TColumn*, TGridDrawState) {
    delete Grid;
  };
  Grid->Repaint();
}

}  // namespace
}  // namespace vcl
