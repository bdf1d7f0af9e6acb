// Data-aware controls with real input: an edit and a grid over records in memory.
#include <gmock/gmock.h>

#include "host/db/memorydataset.h"
#include "host/dbctrls/dbedit.h"
#include "host/dbctrls/dbgrid.h"
#include "host/vcl/canvas.h"
#include "tests/vcl/standardform.h"

namespace vcl {
namespace {

class DataControls : public TStandardForm {
 protected:
  DataControls() {
    Data.FieldDefs()->Add("Name", ftString);
    Data.FieldDefs()->Add("Age", ftInteger);
    Data.Open();
    for (const char* name : {"Ann", "Bob", "Cid"}) Data.AppendRecord({std::string(name)});
    Data.First();
    Source.SetDataSet(&Data);
  }
  auto* MakeEdit(const char* field, int top) {
    auto* edit = Make<TDBEdit>(10, top);
    edit->SetDataSource(&Source);
    edit->SetDataField(field);
    return edit;
  }
  std::string Name() const { return Data.FieldByName("Name")->AsString(); }

  TMemoryDataSet Data{nullptr};
  TDataSource Source{nullptr};
};

TEST_F(DataControls, AnEditShowsTheFieldAndWritesWhatIsTyped) {
  auto* name = MakeEdit("Name", 10);
  auto* age = MakeEdit("Age", 40);
  ShowForm();
  EXPECT_EQ(name->Text(), "Ann");
  Data.Next();
  EXPECT_EQ(name->Text(), "Bob");
  name->SetFocus();
  name->SelectAll();
  Type("x");
  EXPECT_EQ(name->Text(), "x");
  EXPECT_EQ(Data.State(), dsEdit);
  EXPECT_EQ(Name(), "Bob");
  Key(VK_ESCAPE);
  EXPECT_EQ(name->Text(), "Bob");
  Type("y");
  age->SetFocus();
  EXPECT_EQ(Name(), "y");
  Type("z");
  name->SetFocus();
  testinput::Pump();
  EXPECT_THAT(Errors, testing::HasSubstr("'z' is not a valid integer"));
  EXPECT_TRUE(age->Focused());
  Errors.clear();
  Key(VK_ESCAPE);
  Type("7");
  Data.Post();
  EXPECT_EQ(Data.FieldByName("Age")->AsInteger(), 7);
  Source.SetAutoEdit(false);
  Type("8");
  EXPECT_EQ(Data.State(), dsBrowse);
  EXPECT_EQ(age->Text(), "7");
  Data.Close();
  EXPECT_EQ(age->Text(), "");
}

TEST_F(DataControls, AGridFollowsTheDataAndMovesIt) {
  auto* grid = Make<TDBGrid>(10, 10);
  grid->SetDataSource(&Source);
  ShowForm();
  grid->SetFocus();
  Key(VK_DOWN);
  EXPECT_EQ(Name(), "Bob");
  Key(VK_END);
  EXPECT_EQ(Name(), "Cid");
  Click(*grid, 10, 30);
  EXPECT_EQ(Name(), "Ann") << "the row under the titles";
  Key(VK_NEXT);
  EXPECT_EQ(Name(), "Cid");
  // The current row, the third, is marked; the one before it is not.
  TBitmap picture;
  picture.SetWidth(100);
  picture.SetHeight(100);
  grid->PaintTo(picture.Canvas()->Handle(), 0, 0);
  const int row = std::abs(grid->Font()->Height()) + 8;
  EXPECT_EQ(picture.Canvas()->Pixels(90, row * 3 + 5), ColorToRGB(clHighlight));
  EXPECT_EQ(picture.Canvas()->Pixels(90, row * 2 + 5), ColorToRGB(clWindow));
  Data.EmptyTable();
  Data.Close();
  grid->Update();
}

}  // namespace
}  // namespace vcl
