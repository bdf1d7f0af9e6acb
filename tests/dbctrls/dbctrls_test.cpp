// Data-aware controls with real input: an edit and a grid over records in memory.
#include <gmock/gmock.h>

#include "tests/support/screenreader.h"
#include "tests/vcl/standardform.h"
#include "vcl/db/memorydataset.h"
#include "vcl/dbctrls/dbactions.h"
#include "vcl/dbctrls/dbedit.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

class DataControls : public TStandardForm {
 protected:
  DataControls() {
    Data.FieldDefs()->Add("Name", ftString);
    Data.FieldDefs()->Add("Money", ftCurrency);
    Data.Open();
    for (const char* name : {"Ann", "Bob", "Cid"}) Data.AppendRecord({std::string(name), 2.505});
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
  auto* money = MakeEdit("Money", 40);
  TField& amount = *Data.FieldByName("Money");
  ShowForm();
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
  amount.SetAsFloat(3.505);
  Data.Post();
  EXPECT_EQ(Name(), "y");
  EXPECT_EQ(amount.AsFloat(), 3.505) << "what is only shown is not written";
  for (const auto& begin : {std::function<void()>([&] { Key(VK_DELETE); }),
                            std::function<void()>([&] { name->Perform(WM_CUT, 0, 0); })}) {
    name->SelectAll();
    begin();
    EXPECT_EQ(name->Text(), "");
    EXPECT_EQ(Data.State(), dsEdit);
    Data.Cancel();
  }
  EXPECT_EQ(money->Text(), amount.DisplayText());
  money->SetFocus();
  EXPECT_EQ(money->Text(), "3.505") << "all of it, to be edited";
  Type("z");
  name->SetFocus();
  testinput::Pump();
  EXPECT_THAT(Errors, testing::HasSubstr("z' is not a valid floating point"));
  EXPECT_TRUE(money->Focused());
  Errors.clear();
  Key(VK_ESCAPE);
  Type("7");
  name->SetFocus();
  EXPECT_EQ(money->Text(), "7.00");
  Data.Post();
  EXPECT_EQ(amount.AsFloat(), 7);
  Source.SetAutoEdit(false);
  Type("8");
  EXPECT_EQ(Data.State(), dsBrowse);
  EXPECT_EQ(name->Text(), "y");
  Data.Close();
  EXPECT_EQ(name->Text(), "");
}

TEST_F(DataControls, AFieldsMaskSaysWhatIsTypedAndHowTextsAreShown) {
  auto* name = MakeEdit("Name", 10);
  auto* money = MakeEdit("Money", 40);
  TField& phone = *Data.FieldByName("Name");
  phone.SetEditMask("000-0000;0;_");
  EXPECT_THROW(phone.SetEditMask("0\\"), EMaskError);
  ShowForm();
  money->SetFocus();
  EXPECT_EQ(name->Text(), "Ann") << "the mask would take it away";
  Data.Edit();
  phone.SetAsString("5551234");
  Data.Post();
  EXPECT_EQ(name->Text(), "555-1234");
  name->SetFocus();
  EXPECT_TRUE(name->IsMasked());
  Key(VK_HOME);
  Type("x9");
  EXPECT_EQ(name->EditText(), "955-1234");
  EXPECT_EQ(Data.State(), dsEdit);
  Key(VK_ESCAPE);
  EXPECT_EQ(name->EditText(), "555-1234");
  Data.Cancel();
  Key(VK_HOME);
  Key(VK_DELETE);
  EXPECT_EQ(Data.State(), dsEdit);
  EXPECT_EQ(name->EditText(), "_55-1234");
  money->SetFocus();
  testinput::Pump();
  EXPECT_THAT(std::exchange(Errors, {}), testing::HasSubstr("'_55-1234' is not complete"));
  EXPECT_TRUE(name->Focused());
  EXPECT_THROW(Data.Post(), EMaskError);
  EXPECT_EQ(Name(), "5551234");
  Type("8");
  money->SetFocus();
  EXPECT_EQ(name->Text(), "855-1234");
  Data.Post();
  EXPECT_EQ(Name(), "8551234");
  // Another record comes while the focus is there, then one that is begun.
  name->SetFocus();
  Data.Next();
  Data.Append();
  EXPECT_EQ(name->EditText(), "___-____");
  money->SetFocus();
  EXPECT_TRUE(money->Focused()) << "nothing was typed: " << Errors;
  name->SetFocus();
  EXPECT_EQ(name->EditText(), "___-____") << "also while the record is edited already";
  Data.Cancel();
  Source.SetAutoEdit(false);
  const std::string shown = name->EditText();
  Type("1");
  EXPECT_EQ(name->EditText(), shown);
  EXPECT_EQ(Data.State(), dsBrowse);
}

TEST_F(DataControls, AGridEditsByTheFieldsMask) {
  auto* grid = Make<TDBGrid>(10, 10);
  grid->SetDataSource(&Source);
  grid->SetWidth(300);
  grid->SetOptions({dgEditing, dgTitles, dgIndicator});
  Data.FieldByName("Name")->SetEditMask(">L-00;0;_");
  ShowForm();
  grid->SetFocus();
  Type("7a1");
  Key(VK_RETURN);
  EXPECT_THAT(std::exchange(Errors, {}), testing::HasSubstr("'A-1_' is not complete"));
  Type("2");
  Key(VK_RETURN);
  EXPECT_EQ(Name(), "A12");
  Data.Cancel();
  Type("b");
  Key(VK_ESCAPE);
  EXPECT_EQ(Errors, "") << "what is given up need not be complete";
  EXPECT_EQ(Name(), "Ann");
}

TEST_F(DataControls, AGridMovesByKeysMouseAndScrollBar) {
  auto* grid = Make<TDBGrid>(10, 10);
  grid->SetDataSource(&Source);
  for (int i = 4; i <= 20; ++i) Data.AppendRecord({std::to_string(i)});
  Data.First();
  ShowForm();
  grid->SetFocus();
  const int row = std::abs(grid->Font()->Height()) + 8;
  const int page = grid->ClientHeight() / row - 1;
  const auto scroll = [&](int command) { grid->Perform(WM_VSCROLL, command, 0); };
  const auto twoDown = static_cast<WORD>(-2 * WHEEL_DELTA);
  struct TCase {
    const char* What;
    std::function<void()> Move;
    int Number;
  };
  const TCase cases[] = {
      {"down", [&] { Key(VK_DOWN); }, 2},
      {"page down", [&] { Key(VK_NEXT); }, 2 + page},
      {"end", [&] { Key(VK_END); }, 20},
      {"page up", [&] { Key(VK_PRIOR); }, 20 - page},
      {"dragged to the beginning", [&] { scroll(MAKELONG(SB_THUMBPOSITION, 0)); }, 1},
      {"dragged to the end", [&] { scroll(MAKELONG(SB_THUMBPOSITION, 4)); }, 20},
      {"home", [&] { Key(VK_HOME); }, 1},
      {"wheel", [&] { grid->Perform(WM_MOUSEWHEEL, MAKELONG(0, twoDown), 0); }, 3},
      {"row under the titles", [&] { Click(*grid, 10, row + 5); }, 1},
      {"other button", [&] { grid->Perform(WM_RBUTTONDOWN, 0, MAKELONG(10, 2 * row + 5)); }, 1},
  };
  for (const TCase& each : cases) {
    each.Move();
    EXPECT_EQ(Data.RecNo(), each.Number) << each.What;
    const int place = each.Number == 1 ? 0 : each.Number == 20 ? 4 : 2;
    EXPECT_EQ(::GetScrollPos(grid->Handle(), SB_VERT), place) << each.What;
  }
}

TEST_F(DataControls, AGridMarksTheCurrentRowAndShowsNumbersAtTheRight) {
  auto* grid = Make<TDBGrid>(10, 10);
  grid->SetDataSource(&Source);
  ShowForm();
  Data.Next();
  Data.FieldByName("Name")->SetVisible(false);
  TBitmap picture;
  picture.SetWidth(100);
  picture.SetHeight(100);
  TCanvas& canvas = *picture.Canvas();
  grid->PaintTo(canvas.Handle(), 0, 0);
  const int row = std::abs(grid->Font()->Height()) + 8;
  const int width = 10 * canvas.TextWidth("0");
  const auto color = [&](int number, int left, int right) {
    for (int x = left; x < right; ++x) {
      if (canvas.Pixels(x, row * number + row / 2) == 0) return "text";
    }
    const bool marked = canvas.Pixels(left, row * number + 5) == TColor(ColorToRGB(clHighlight));
    return marked ? "marked" : "plain";
  };
  EXPECT_STREQ(color(2, 4, 10), "marked");
  EXPECT_STREQ(color(3, 4, width / 2), "plain");
  EXPECT_STREQ(color(3, width / 2, width), "text");
  EXPECT_EQ(Name(), "Bob") << "painting is no move";
  Data.EmptyTable();
  Data.Close();
  grid->Update();
}

TEST_F(DataControls, AGridTellsScreenReadersOfItsRowsAndCells) {
  using namespace screenreader;
  auto* grid = Make<TDBGrid>(10, 10);
  grid->SetBounds(10, 10, 300, 200);
  grid->SetDataSource(&Source);
  grid->SetAccessibleName("People");
  ShowForm();
  grid->SetFocus();
  const TSpoken table = OfWindow(grid->Handle());
  EXPECT_EQ(table.Role(), ROLE_SYSTEM_TABLE);
  EXPECT_EQ(table.Name(), "People");
  std::vector<TSpoken> rows = ChildrenOf(table);
  ASSERT_EQ(rows.size(), 4u);
  const std::vector<TSpoken> titles = ChildrenOf(rows[0]);
  ASSERT_EQ(titles.size(), 2u);
  EXPECT_EQ(titles[0].Role(), ROLE_SYSTEM_COLUMNHEADER);
  EXPECT_EQ(titles[1].Name(), "Money");
  EXPECT_EQ(rows[2].Name().rfind("Bob; ", 0), 0u) << rows[2].Name();
  const TSpoken cell = ChildrenOf(rows[2])[0];
  EXPECT_EQ(cell.Role(), ROLE_SYSTEM_CELL);
  EXPECT_EQ(cell.Name(), "Name");
  EXPECT_EQ(cell.Value(), "Bob");
  EXPECT_TRUE(rows[1].Has(STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED));

  // The places are those where the mouse finds the rows.
  TListener listener;
  const RECT place = cell.Place();
  testinput::Click({static_cast<int>(place.left + 3), static_cast<int>(place.bottom - 3)});
  EXPECT_EQ(Name(), "Bob");
  const auto heard = [&](const char* name) {
    return testinput::PumpUntil(
        [&] { return listener.Heard(EVENT_OBJECT_FOCUS, rows[name[0] - 'A' + 1u].Name()); });
  };
  EXPECT_TRUE(heard("Bob"));
  EXPECT_EQ(rows[3].Do(), S_OK);
  EXPECT_TRUE(heard("Cid"));
  EXPECT_EQ(Name(), "Cid");
  EXPECT_TRUE(rows[3].Has(STATE_SYSTEM_SELECTED));
  const TSpoken focus = Ask(table, &IAccessible::get_accFocus);
  EXPECT_EQ(focus.Name(), rows[3].Name());
  Data.Close();
  EXPECT_EQ(ChildrenOf(table).size(), 0u);
}

TEST_F(DataControls, ActionsMoveAndEditAndKnowWhenTheyCan) {
  TDataSetFirst first(nullptr);
  TDataSetPrior prior(nullptr);
  TDataSetNext next(nullptr);
  TDataSetLast last(nullptr);
  TDataSetInsert insert(nullptr);
  TDataSetDelete remove(nullptr);
  TDataSetEdit edit(nullptr);
  TDataSetPost post(nullptr);
  TDataSetCancel cancel(nullptr);
  TDataSetRefresh refresh(nullptr);
  TDataSetAction* all[] = {&first,  &prior, &next, &last,   &insert,
                           &remove, &edit,  &post, &cancel, &refresh};
  const auto enabled = [&] {
    std::string text;
    for (TDataSetAction* each : all) {
      each->Update();
      text += each->Enabled() ? '1' : '0';
    }
    return text;
  };
  EXPECT_EQ(enabled(), "0000000000") << "without a source";
  for (TDataSetAction* each : all) each->SetDataSource(&Source);
  EXPECT_EQ(enabled(), "0011111001");
  EXPECT_TRUE(next.Execute());
  EXPECT_EQ(Name(), "Bob");
  EXPECT_EQ(enabled(), "1111111001");
  last.Execute();
  EXPECT_EQ(Name(), "Cid");
  EXPECT_EQ(enabled(), "1100111001");
  EXPECT_FALSE(next.Execute());
  prior.Execute();
  edit.Execute();
  EXPECT_EQ(enabled(), "1111110111");
  Data.FieldByName("Name")->SetAsString("Bea");
  cancel.Execute();
  EXPECT_EQ(Name(), "Bob");
  insert.Execute();
  Data.FieldByName("Name")->SetAsString("New");
  post.Execute();
  EXPECT_EQ(Data.RecordCount(), 4);
  remove.Execute();
  EXPECT_EQ(Data.RecordCount(), 3);
  refresh.Execute();
  first.Execute();
  EXPECT_EQ(Name(), "Ann");
  Data.Close();
  EXPECT_EQ(enabled(), "0000000000");
  Data.Open();
  {
    TDataSource passing(nullptr);
    passing.SetDataSet(&Data);
    next.SetDataSource(&passing);
  }
  EXPECT_EQ(next.DataSource(), nullptr);
}

TEST_F(DataControls, EditActionsBeginToEditTheRecord) {
  auto* name = MakeEdit("Name", 10);
  TEditPaste paste(nullptr);
  TEditDelete clear(nullptr);
  Clipboard()->SetAsText("Pat");
  ShowForm();
  name->SetFocus();
  name->SelectAll();
  EXPECT_TRUE(paste.Execute());
  EXPECT_EQ(Data.State(), dsEdit);
  Data.Post();
  EXPECT_EQ(Name(), "Pat");
  name->SelectAll();
  EXPECT_TRUE(clear.Execute());
  EXPECT_EQ(Data.State(), dsEdit);
  Data.Cancel();
  Source.SetAutoEdit(false);
  EXPECT_FALSE(paste.Execute()) << "nothing may begin to edit";
  EXPECT_EQ(name->Text(), "Pat");
}

}  // namespace
}  // namespace vcl
