// Labels and edits of a field with real input: what they show of a record and write into it.
#include "tests/dbcontrols/dataform.h"
#include "vcl/stdctrls/popuplines.h"

namespace qel {
namespace {

using testinput::PumpUntil;

class FieldControls : public TDataForm {
 protected:
  /// What every edit does the same way, when `change` types what becomes `changed` in the field.
  template <class T>
  void CheckEditing(T& edit, const std::string& changed, const std::function<void()>& change) {
    auto* other = Make<vcl::TEdit>(400, 370);
    other->SetWidth(40);
    const std::string field = edit.DataField();
    const std::string before = Value(field.c_str());
    const std::string shown = edit.Text();
    const auto type = [&] {
      edit.SetFocus();
      edit.SelectAll();
      change();
    };
    type();
    EXPECT_EQ(Data.State(), vcl::dsEdit);
    EXPECT_EQ(Value(field.c_str()), before) << "not before it is finished";
    Key(VK_ESCAPE);
    EXPECT_EQ(edit.Text(), shown) << "taken back";
    Data.Cancel();
    for (const bool byEnter : {true, false}) {
      type();
      byEnter ? Key(VK_RETURN) : other->SetFocus();
      EXPECT_EQ(Value(field.c_str()), changed) << byEnter;
      Data.Cancel();
    }
    type();
    Data.Post();
    EXPECT_EQ(Value(field.c_str()), changed) << "by posting";
    Data.Edit();
    Data.FieldByName(field)->SetAsString(before);
    Data.Post();
    for (const bool byControl : {true, false}) {
      edit.SetReadOnly(byControl);
      Source.SetAutoEdit(byControl);
      type();
      EXPECT_EQ(Data.State(), vcl::dsBrowse) << byControl;
      EXPECT_EQ(Value(field.c_str()), before);
      other->SetFocus();
      EXPECT_EQ(edit.Text(), shown);
    }
    edit.SetReadOnly(false);
    Source.SetAutoEdit(true);
    Data.Close();
    EXPECT_EQ(edit.Text(), "");
    type();
    Data.Open();
    other->SetFocus();
    EXPECT_EQ(edit.Text(), shown);
    // A field of bytes is shown as such, and kept.
    edit.SetDataField("Photo");
    type();
    EXPECT_EQ(Data.State(), vcl::dsBrowse);
    other->SetFocus();
    EXPECT_EQ(edit.Text(), "(Photo)");
    delete other;
  }
};

TEST_F(FieldControls, LabelsShowTheDisplayTextAndNothingElse) {
  auto* label = MakeBound<TQELDBLabel>("Name", 10, 10);
  auto* neighbour = Make<vcl::TEdit>(200, 100);
  auto* sticky = MakeBound<TQELDBStickyLabel>("Count", 10, 60);
  sticky->SetControl(neighbour);
  ShowForm();
  EXPECT_EQ(label->Caption(), "Ann");
  label->SetCaption("other");
  EXPECT_EQ(label->Caption(), "Ann");
  Data.Next();
  EXPECT_EQ(label->Caption(), "B&b");
  EXPECT_FALSE(label->ShowAccelChar());
  EXPECT_EQ(sticky->Caption(), "500");
  EXPECT_EQ(sticky->Left() + sticky->Width() + sticky->Distance(), neighbour->Left())
      << "it goes with the text";
  Data.Last();
  EXPECT_EQ(label->Caption() + sticky->Caption(), "") << "Null";
  Data.First();
  label->SetDataField("Photo");
  EXPECT_EQ(label->Caption(), "(Photo)");
  label->SetDataField("None");
  sticky->SetDataSource(nullptr);
  EXPECT_EQ(label->Caption() + sticky->Caption(), "");
}

/// The letters of an ampersand in a field are drawn: it marks no accelerator.
TEST_F(FieldControls, ALabelDrawsAnAmpersandAsOne) {
  auto* label = MakeBound<TQELDBLabel>("Name", 10, 10);
  label->SetBounds(10, 10, 200, 40);
  label->Font()->SetColor(vcl::clRed);
  ShowForm();
  Data.Next();
  const int with = Find(vcl::clRed).Width();
  Data.Edit();
  Data.FieldByName("Name")->SetAsString("Bb");
  EXPECT_GT(with, Find(vcl::clRed).Width() + 5);
  Data.Cancel();
}

TEST_F(FieldControls, EditsWriteTakeBackAndRefuseInTheSameWay) {
  auto* office = MakeBound<TQELDBOfficeEdit>("Name", 10, 10);
  auto* spin = MakeBound<TQELDBSpinEdit>("Count", 10, 50);
  ShowForm();
  CheckEditing(*office, "x", [&] { Type("x"); });
  CheckEditing(*spin, "12", [&] { Type("12"); });
}

TEST_F(FieldControls, TheCrossOfAnOfficeEditEmptiesTheField) {
  auto* edit = MakeBound<TQELDBOfficeEdit>("Name", 10, 10);
  edit->SetShowClear(true);
  ShowForm();
  edit->SetFocus();
  testinput::Click(edit->ClientToScreen({edit->ClientWidth() - 5, edit->ClientHeight() / 2}));
  EXPECT_EQ(edit->Text(), "");
  EXPECT_EQ(Data.State(), vcl::dsEdit);
  Data.Post();
  EXPECT_EQ(Value("Name"), "");
}

// The spin edit.

TEST_F(FieldControls, ASpinEditHasTheDecimalsOfItsField) {
  auto* edit = MakeBound<TQELDBSpinEdit>("Weight", 10, 10);
  edit->SetDecimals(3);
  ShowForm();
  EXPECT_EQ(edit->Text(), "1.500");
  edit->SetDataField("Count");
  EXPECT_EQ(edit->Text(), "7");
  EXPECT_EQ(edit->Decimals(), 3) << "kept for the next field";
  edit->SetFocus();
  Key(VK_UP);
  Key(VK_PRIOR);
  EXPECT_EQ(edit->Text(), "18");
  Data.Post();
  EXPECT_EQ(Value("Count"), "18");
  edit->SetReadOnly(true);
  Key(VK_UP);
  EXPECT_EQ(Data.State(), vcl::dsBrowse);
  EXPECT_EQ(edit->Text(), "18");
}

TEST_F(FieldControls, ASpinEditKeepsNullAndWhatItHasNotChanged) {
  auto* edit = MakeBound<TQELDBSpinEdit>("Count", 10, 10);
  edit->SetMinValue(1);
  edit->SetMaxValue(100);
  auto* other = Make<vcl::TEdit>(10, 100);
  ShowForm();
  Data.Last();
  Data.Edit();
  edit->SetFocus();
  edit->SetFormat(rfGeneral);
  other->SetFocus();
  EXPECT_EQ(edit->Text(), "");
  Data.Post();
  EXPECT_TRUE(Data.FieldByName("Count")->IsNull());
  Data.Prior();
  EXPECT_EQ(edit->Text(), "500") << "beyond the bounds, and shown";
  Data.Edit();
  edit->SetFocus();
  other->SetFocus();
  Data.Post();
  EXPECT_EQ(Value("Count"), "500");
  edit->SetFocus();
  edit->SelectAll();
  Type("200");
  other->SetFocus();
  EXPECT_EQ(Value("Count"), "100") << "what is typed is brought into the bounds";
  edit->SetFocus();
  edit->SelectAll();
  Key(VK_DELETE);
  Data.Post();
  EXPECT_TRUE(Data.FieldByName("Count")->IsNull());
}

TEST_F(FieldControls, ASpinEditRefusesWhatIsNoNumberAndKeepsTheFocus) {
  auto* edit = MakeBound<TQELDBSpinEdit>("Count", 10, 10);
  auto* other = Make<vcl::TEdit>(10, 100);
  ShowForm();
  edit->SetFocus();
  edit->SelectAll();
  Type("-");
  Key(VK_TAB);
  EXPECT_TRUE(PumpUntil([&] { return !Errors.empty(); }));
  EXPECT_THAT(TakeErrors(), testing::HasSubstr("'-'"));
  EXPECT_FALSE(other->Focused());
  EXPECT_EQ(edit->Text(), "-");
  Key(VK_ESCAPE);
  EXPECT_EQ(edit->Text(), "7");
  Data.Cancel();
}

// The lookup edit.

class DBLookupEdit : public TDataForm {
 protected:
  DBLookupEdit() : Edit(MakeBound<TQELDBLookupedit>("City", 10, 10)) {
    Cities.FieldDefs()->Add("Id", vcl::ftInteger);
    Cities.FieldDefs()->Add("Town", vcl::ftString);
    Cities.Open();
    for (const char* town : {"Aachen", "Berlin", "Bonn", "Celle"}) {
      Cities.AppendRecord({std::int64_t{Cities.RecordCount() + 1}, std::string(town)});
    }
    CitySource.SetDataSet(&Cities);
    Edit->SetListSource(&CitySource);
    Edit->SetKeyField("Id");
    Edit->SetListField("Town");
    Other = Make<vcl::TEdit>(10, 200);
    ShowForm();
  }
  ~DBLookupEdit() override { Form.DestroyComponents(); }
  vcl::TMemoryDataSet Cities{nullptr};
  vcl::TDataSource CitySource{nullptr};
  TQELDBLookupedit* Edit;
  vcl::TEdit* Other;
};

TEST_F(DBLookupEdit, ShowsTheTextAndStoresTheKey) {
  EXPECT_EQ(Edit->Text(), "Bonn");
  Edit->SetFocus();
  Edit->SelectAll();
  Type("be");
  EXPECT_TRUE(PumpUntil([&] { return Edit->DroppedDown(); }));
  EXPECT_EQ(Value("City"), "3");
  Key(VK_RETURN);
  EXPECT_TRUE(PumpUntil([&] { return Edit->Text() == "Berlin"; }));
  Key(VK_RETURN);
  EXPECT_EQ(Value("City"), "2");
  Key(VK_F4);
  EXPECT_TRUE(PumpUntil([&] { return Edit->DroppedDown(); }));
  Key(VK_DOWN);
  Key(VK_DOWN);
  Key(VK_RETURN);
  EXPECT_TRUE(PumpUntil([&] { return Edit->Text() == "Celle"; }));
  Data.Cancel();
  EXPECT_EQ(Edit->Text(), "Bonn");
  Edit->SelectAll();
  Type("aachen");
  Other->SetFocus();
  EXPECT_EQ(Value("City"), "1");
  EXPECT_EQ(Edit->Text(), "Aachen");
  Edit->SetFocus();
  Edit->SelectAll();
  Key(VK_DELETE);
  Data.Post();
  EXPECT_TRUE(Data.FieldByName("City")->IsNull());
}

TEST_F(DBLookupEdit, KeepsToTheListUnlessItIsTold) {
  Edit->SetFocus();
  Edit->SelectAll();
  Type("77");
  Key(VK_TAB);
  EXPECT_TRUE(PumpUntil([&] { return !Errors.empty(); }));
  EXPECT_THAT(TakeErrors(), testing::HasSubstr("'77'"));
  EXPECT_TRUE(Edit->Focused());
  EXPECT_EQ(Edit->Text(), "77") << "to be corrected";
  EXPECT_EQ(Value("City"), "3");
  Edit->SetLimitToList(false);
  Key(VK_TAB);
  EXPECT_EQ(Value("City"), "77");
  Data.Cancel();
  Data.Next();
  EXPECT_EQ(Edit->Text(), "99") << "the key of no record";
  Data.Edit();
  Edit->SetLimitToList(true);
  Edit->SetFocus();
  Other->SetFocus();
  EXPECT_EQ(Edit->Text(), "99");
  EXPECT_EQ(Value("City"), "99") << "nobody has changed it";
  Data.Cancel();
}

TEST_F(DBLookupEdit, FollowsItsListAndDoesNotOpenWhereNothingMayChange) {
  Edit->SetFocus();
  Key(VK_F4);
  EXPECT_TRUE(PumpUntil([&] { return Edit->DroppedDown(); }));
  Key(VK_ESCAPE);
  Cities.Last();
  Cities.Append();
  Cities.FieldByName("Id")->SetAsInteger(99);
  Cities.FieldByName("Town")->SetAsString("Zell");
  Cities.Post();
  Data.Next();
  EXPECT_EQ(Edit->Text(), "Zell");
  Edit->SetReadOnly(true);
  Key(VK_F4);
  EXPECT_FALSE(Edit->DroppedDown());
  Cities.Close();
  EXPECT_EQ(Edit->Text(), "99");
  Edit->SetListSource(nullptr);
  EXPECT_EQ(Edit->Text(), "99");
}

}  // namespace
}  // namespace qel
