// Lookup lists and the navigator with real input.
#include <gmock/gmock.h>

#include "tests/vcl/standardform.h"
#include "vcl/db/memorydataset.h"
#include "vcl/dbctrls/dbctrls.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

class Lookups : public TStandardForm {
 protected:
  Lookups() {
    Cities.FieldDefs()->Add("Id", ftInteger);
    Cities.FieldDefs()->Add("Name", ftString);
    Cities.FieldDefs()->Add("Country", ftString, 10);
    Cities.Open();
    AddCities({"Aachen", "Berlin", "Bonn", "Celle"});
    Data.FieldDefs()->Add("Name", ftString);
    Data.FieldDefs()->Add("City", ftInteger);
    Data.Open();
    Data.AppendRecord({std::string("Ann"), std::int64_t{3}});
    Data.AppendRecord({std::string("Bob"), std::int64_t{1}});
    Data.AppendRecord({std::string("Cid"), std::int64_t{99}});
    Data.First();
    Source.SetDataSet(&Data);
    CitySource.SetDataSet(&Cities);
  }
  void AddCities(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
      Cities.AppendRecord({std::int64_t{Cities.RecordCount() + 1}, name, std::string("DE")});
    }
    Cities.First();
  }
  template <class T>
  auto* MakeLookup(int left, int top) {
    auto* control = Make<T>(left, top);
    control->SetDataSource(&Source);
    control->SetDataField("City");
    control->SetListSource(&CitySource);
    control->SetKeyField("Id");
    control->SetListField("Name;Country");
    return control;
  }
  int City() const { return Data.FieldByName("City")->AsInteger(); }

  TMemoryDataSet Cities{nullptr};
  TMemoryDataSet Data{nullptr};
  TDataSource Source{nullptr};
  TDataSource CitySource{nullptr};
};

TEST_F(Lookups, AListShowsAndChoosesTheRecordWithTheKey) {
  auto* list = MakeLookup<TDBLookupListBox>(10, 10);
  list->SetBounds(10, 10, 200, 100);
  ShowForm();
  EXPECT_EQ(list->ChosenRow(), 2);
  Data.Next();
  EXPECT_EQ(list->ChosenRow(), 0);
  Data.Next();
  EXPECT_EQ(list->ChosenRow(), -1) << "no record has the key";
  Click(*list, 20, 5);
  EXPECT_EQ(list->ChosenRow(), 0) << "the first one, too";
  EXPECT_EQ(City(), 99);
  Key(VK_DOWN);
  EXPECT_EQ(list->Accessible().Value, "Berlin");
  Key(VK_ESCAPE);
  EXPECT_EQ(list->ChosenRow(), -1);
  Key(VK_END);
  Data.Post();
  EXPECT_EQ(City(), 4);
  Type("bo");
  EXPECT_EQ(list->ChosenRow(), 2);
  Data.Post();
  EXPECT_EQ(City(), 3);
  EXPECT_EQ(Cities.RecNo(), 1) << "the list's own record stays";
  list->SetReadOnly(true);
  Key(VK_HOME);
  EXPECT_EQ(list->ChosenRow(), 2);
  list->SetReadOnly(false);
  Cities.Delete();
  EXPECT_EQ(list->ChosenRow(), 1) << "it has moved up";
  Cities.Close();
  EXPECT_EQ(list->ChosenRow(), -1);
  Cities.Open();
  EXPECT_EQ(list->ChosenRow(), 1);
  list->SetRowCount(3);
  EXPECT_EQ(list->RowCount(), 3);
  EXPECT_THROW(list->SetRowCount(0), EArgumentOutOfRangeException);
}

TEST_F(Lookups, AComboBoxDropsItsListDown) {
  auto* combo = MakeLookup<TDBLookupComboBox>(10, 10);
  auto* other = Make<TEdit>(250, 10);
  std::string told;
  combo->OnDropDown = [&](TObject*) { told += "down "; };
  combo->OnCloseUp = [&](TObject*) { told += "up "; };
  combo->OnClick = [&](TObject*) { told += "click "; };
  ShowForm();
  EXPECT_EQ(combo->Text(), "Bonn");
  Click(*combo);
  EXPECT_TRUE(combo->ListDropped());
  EXPECT_TRUE(combo->Focused());
  EXPECT_EQ(combo->MarkedRow(), 2);
  Key(VK_DOWN);
  EXPECT_EQ(combo->MarkedRow(), 3);
  EXPECT_EQ(combo->Text(), "Bonn") << "nothing is chosen yet";
  Key(VK_ESCAPE);
  EXPECT_FALSE(combo->ListDropped());
  EXPECT_EQ(Data.State(), dsBrowse);
  Key(VK_F4);
  Key(VK_UP);
  Key(VK_RETURN);
  EXPECT_EQ(combo->Text(), "Berlin");
  EXPECT_EQ(told, "down up down up click ");
  EXPECT_EQ(City(), 2) << "Enter writes it, too";
  Data.Cancel();
  Type("c");
  EXPECT_EQ(combo->Text(), "Celle");
  Key(VK_HOME);
  EXPECT_EQ(combo->Text(), "Aachen");
  Key(VK_DELETE);
  EXPECT_EQ(combo->Text(), "");
  Data.Post();
  EXPECT_TRUE(Data.FieldByName("City")->IsNull());
  KeyWith(VK_MENU, VK_DOWN);
  EXPECT_TRUE(combo->ListDropped());
  const TPoint corner = combo->ClientToScreen({20, combo->Height() + 4});
  testinput::Click(corner);
  EXPECT_FALSE(combo->ListDropped());
  EXPECT_EQ(combo->Text(), "Aachen");
  EXPECT_TRUE(combo->Focused());
  Data.Cancel();
  combo->SetReadOnly(true);
  Data.Next();
  Key(VK_DOWN);
  EXPECT_EQ(combo->Text(), "Aachen");
  EXPECT_EQ(Data.State(), dsBrowse);
  Click(*combo);
  EXPECT_TRUE(combo->ListDropped()) << "to be looked at";
  other->SetFocus();
  EXPECT_FALSE(combo->ListDropped());
}

TEST_F(Lookups, AListOfAHundredThousandRowsOpensAtOnce) {
  Cities.DisableControls();
  for (int i = 5; i <= 100'000; ++i) {
    Cities.AppendRecord({std::int64_t{i}, "City " + std::to_string(i)});
  }
  Cities.First();
  Cities.EnableControls();
  int shown = 0;
  Cities.FieldByName("Name")->OnGetText = [&](TField* field, std::string& text, bool) {
    ++shown;
    text = field->AsString();
  };
  auto* combo = MakeLookup<TDBLookupComboBox>(10, 10);
  ShowForm();
  combo->SetFocus();
  Type("City 99999");
  EXPECT_EQ(combo->Text(), "City 99999");
  shown = 0;
  const ULONGLONG begin = ::GetTickCount64();
  combo->DropList();
  const ULONGLONG passed = ::GetTickCount64() - begin;
  testinput::Pump();
  EXPECT_EQ(combo->MarkedRow(), 99'998);
  EXPECT_LT(shown, 100) << "only the rows that are seen are read";
  EXPECT_LT(passed, 500u);
  Key(VK_NEXT);
  EXPECT_EQ(combo->MarkedRow(), 99'999);
  Key(VK_RETURN);
  Data.Post();
  EXPECT_EQ(City(), 100'000);
}

TEST_F(Lookups, AGridOffersTheTextsOfALookupField) {
  Data.Close();
  TStringField name(nullptr);
  name.SetFieldName("Name");
  name.SetDataSet(&Data);
  TIntegerField city(nullptr);
  city.SetFieldName("City");
  city.SetVisible(false);
  city.SetDataSet(&Data);
  TStringField cityName(nullptr);
  cityName.SetFieldName("CityName");
  cityName.SetFieldKind(fkLookup);
  cityName.SetKeyFields("City");
  cityName.SetLookupDataSet(&Cities);
  cityName.SetLookupKeyFields("Id");
  cityName.SetLookupResultField("Name");
  cityName.SetDataSet(&Data);
  Data.Open();
  auto* grid = Make<TDBGrid>(10, 10);
  grid->SetBounds(10, 10, 300, 200);
  grid->SetDataSource(&Source);
  grid->SetOptions(grid->Options() + TDBGridOptions{dgEditing, dgColumnResize} -
                   TDBGridOptions{dgRowSelect});
  ShowForm();
  grid->SetFocus();
  grid->SetSelectedIndex(1);
  EXPECT_EQ(cityName.AsString(), "Bonn");
  KeyWith(VK_MENU, VK_DOWN);
  Key(VK_DOWN);
  Key(VK_RETURN);
  Key(VK_RETURN);
  EXPECT_EQ(city.AsInteger(), 4);
  EXPECT_EQ(cityName.AsString(), "Celle");
  Type("Nowhere");
  Key(VK_RETURN);
  EXPECT_THAT(std::exchange(Errors, {}), testing::HasSubstr("There is no 'Nowhere'"));
  Key(VK_ESCAPE);
  Data.Cancel();

  // Dragging the second title to the first one's place moves the field.
  const TRect first = grid->CellRect(0, 0);
  const TRect second = grid->CellRect(1, 0);
  testinput::MoveMouse(grid->ClientToScreen({second.Left + 10, second.Top + 8}));
  testinput::LeftDown();
  testinput::MoveMouse(grid->ClientToScreen({second.Left - 20, second.Top + 8}));
  testinput::MoveMouse(grid->ClientToScreen({first.Left + 5, first.Top + 8}));
  testinput::LeftUp();
  EXPECT_EQ(grid->Shown(0)->FieldName(), "CityName");
  EXPECT_EQ(Data.Fields()[0], &cityName);
  grid->SetDataSource(nullptr);
  Data.Close();
}

class Navigators : public Lookups {
 protected:
  Navigators() : Navigator(Make<TDBNavigator>(10, 10)) { Navigator->SetDataSource(&Source); }
  std::string Enabled() const {
    std::string text;
    for (int i = 0; i < TDBNavigator::ButtonCount; ++i) {
      text += Navigator->ButtonEnabled(static_cast<TNavigateBtn>(i)) ? '1' : '0';
    }
    return text;
  }
  void Press(TNavigateBtn button) {
    const TRect rect = Navigator->ButtonRect(button);
    Click(*Navigator, (rect.Left + rect.Right) / 2, rect.Bottom / 2);
  }
  TDBNavigator* Navigator;
};

TEST_F(Navigators, ButtonsFollowTheStateAndWork) {
  ShowForm();
  EXPECT_EQ(Enabled(), "0011111001");
  Press(nbNext);
  EXPECT_EQ(Data.RecNo(), 2);
  EXPECT_EQ(Enabled(), "1111111001");
  Press(nbLast);
  EXPECT_EQ(Data.RecNo(), 3);
  Press(nbEdit);
  EXPECT_EQ(Data.State(), dsEdit);
  EXPECT_EQ(Enabled(), "1111110111");
  Press(nbCancel);
  EXPECT_EQ(Data.State(), dsBrowse);
  std::string told;
  Navigator->BeforeAction = [&](TObject*, TNavigateBtn) {
    told += "before " + std::to_string(Data.RecordCount());
  };
  Navigator->OnClick = [&](TObject*, TNavigateBtn button) {
    told += " after " + std::to_string(Data.RecordCount()) + " " + std::to_string(button);
  };
  {
    const testinput::TKeysWhen no([] { return ::FindWindowW(nullptr, L"Confirm") != nullptr; },
                                  {VK_ESCAPE});
    Press(nbDelete);
  }
  EXPECT_EQ(Data.RecordCount(), 3);
  told.clear();
  Navigator->SetConfirmDelete(false);
  Press(nbDelete);
  EXPECT_EQ(told, "before 3 after 2 5");
  Navigator->BeforeAction = [](TObject*, TNavigateBtn) { throw EAbort("no"); };
  Press(nbDelete);
  EXPECT_EQ(Data.RecordCount(), 2);
  Data.Close();
  EXPECT_EQ(Enabled(), "0000000000");
  Data.Open();
  EXPECT_EQ(Enabled(), "0011111001");
  Navigator->SetDataSource(nullptr);
  EXPECT_EQ(Enabled(), "0000000000");
  auto passing = std::make_unique<TDataSource>(nullptr);
  passing->SetDataSet(&Data);
  Navigator->SetDataSource(passing.get());
  EXPECT_EQ(Enabled(), "0011111001");
  passing.reset();
  EXPECT_EQ(Enabled(), "0000000000");
  EXPECT_EQ(Navigator->DataSource(), nullptr);
}

TEST_F(Navigators, KeysGoFromButtonToButton) {
  Navigator->SetVisibleButtons({nbNext, nbPost, nbPrior});
  Navigator->SetTabStop(true);
  ShowForm();
  EXPECT_TRUE(Navigator->ButtonRect(nbFirst).Empty());
  EXPECT_EQ(Navigator->ButtonRect(nbPost).Right, Navigator->ClientWidth());
  Navigator->SetFocus();
  EXPECT_EQ(Navigator->FocusedButton(), nbPrior);
  Key(VK_RIGHT);
  EXPECT_EQ(Navigator->FocusedButton(), nbNext);
  Key(VK_SPACE);
  EXPECT_EQ(Data.RecNo(), 2);
  Key(VK_END);
  Key(VK_RIGHT);
  EXPECT_EQ(Navigator->FocusedButton(), nbPost);
  Key(VK_LEFT);
  Key(VK_LEFT);
  Key(VK_SPACE);
  EXPECT_EQ(Data.RecNo(), 1);
  Navigator->Hints()->Add("");
  Navigator->Hints()->Add("Zurück");
  auto* prior = dynamic_cast<TControl*>(Navigator->ControlAtPos({3, 3}, true));
  ASSERT_NE(prior, nullptr);
  EXPECT_EQ(prior->Hint(), "Zurück");
}

}  // namespace
}  // namespace vcl
