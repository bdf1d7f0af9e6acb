// The controls of one field with real input: what they show of a record and write into it.
#include <gmock/gmock.h>

#include <functional>

#include "tests/vcl/standardform.h"
#include "vcl/db/memorydataset.h"
#include "vcl/dbctrls/dbctrls.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

class FieldControls : public TStandardForm {
 protected:
  FieldControls() {
    Data.FieldDefs()->Add("Name", ftString);
    Data.FieldDefs()->Add("Paid", ftBoolean);
    Data.FieldDefs()->Add("Size", ftString);
    Data.FieldDefs()->Add("Notes", ftMemo);
    Data.FieldDefs()->Add("Photo", ftBlob);
    Data.Open();
    Data.AppendRecord({std::string("Ann"), std::int64_t{1}, std::string("M"), std::string("one")});
    Data.AppendRecord({std::string("B&b"), std::int64_t{0}, std::string("L"), std::string("two")});
    Data.AppendRecord({std::string("Cid")});
    Data.First();
    Source.SetDataSet(&Data);
  }
  template <class T>
  auto* MakeBound(const char* field, int left, int top) {
    auto* control = Make<T>(left, top);
    control->SetDataSource(&Source);
    control->SetDataField(field);
    return control;
  }
  std::string Value(const char* field) const { return Data.FieldByName(field)->AsString(); }
  /// What every control of a field does the same way: change it by `change`, see it by `shown`.
  template <class T>
  void CheckEditing(T& control, const char* field, const std::string& changed,
                    const std::function<void()>& change,
                    const std::function<std::string()>& shown) {
    const std::string before = Value(field);
    const std::string shownBefore = shown();
    auto* other = Make<TEdit>(400, 370);
    other->SetWidth(40);
    control.SetFocus();
    change();
    EXPECT_EQ(Data.State(), dsEdit);
    EXPECT_EQ(Value(field), before) << "not before it is finished";
    Key(VK_ESCAPE);
    EXPECT_EQ(shown(), shownBefore) << "taken back";
    change();
    Key(VK_RETURN);
    EXPECT_EQ(Value(field), changed) << "by Enter";
    Data.Cancel();
    EXPECT_EQ(shown(), shownBefore);
    control.SetFocus();
    change();
    other->SetFocus();
    EXPECT_EQ(Value(field), changed) << "by leaving";
    Data.Cancel();
    control.SetFocus();
    change();
    Data.Post();
    EXPECT_EQ(Value(field), changed) << "by posting";
    Data.Edit();
    Data.FieldByName(field)->SetAsString(before);
    Data.Post();
    for (const bool byControl : {true, false}) {
      control.SetReadOnly(byControl);
      Source.SetAutoEdit(byControl);
      change();
      EXPECT_EQ(Data.State(), dsBrowse);
      EXPECT_EQ(shown(), shownBefore) << "nothing may begin to edit";
    }
    control.SetReadOnly(false);
    Source.SetAutoEdit(true);
    const std::string name = control.DataField();
    control.SetDataField("None");
    EXPECT_EQ(control.Field(), nullptr);
    EXPECT_NE(shown(), shownBefore) << "a field that is not there";
    change();
    control.SetDataField(name);
    EXPECT_EQ(shown(), shownBefore);
    Data.Close();
    EXPECT_NE(shown(), shownBefore) << "closed";
    change();
    Data.Open();
    EXPECT_EQ(shown(), shownBefore);
    delete other;
  }

  TMemoryDataSet Data{nullptr};
  TDataSource Source{nullptr};
};

TEST_F(FieldControls, AllWriteTakeBackAndRefuseInTheSameWay) {
  auto* edit = MakeBound<TDBEdit>("Name", 10, 10);
  auto* check = MakeBound<TDBCheckBox>("Paid", 10, 40);
  check->SetCaption("Paid");
  auto* combo = MakeBound<TDBComboBox>("Size", 10, 70);
  auto* list = MakeBound<TDBListBox>("Size", 160, 10);
  auto* group = MakeBound<TDBRadioGroup>("Size", 300, 10);
  for (const char* each : {"S", "M", "L"}) {
    combo->Items()->Add(each);
    list->Items()->Add(each);
    group->Items()->Add(each);
  }
  combo->SetStyle(csDropDownList);
  group->SetBounds(300, 10, 120, 100);
  list->SetBounds(160, 10, 120, 100);
  ShowForm();
  CheckEditing(
      *edit, "Name", "x", [&] { edit->SelectAll(), Type("x"); }, [&] { return edit->Text(); });
  CheckEditing(
      *check, "Paid", "False", [&] { Key(VK_SPACE); },
      [&] { return std::to_string(check->State()) + (check->Field() ? "" : "-"); });
  CheckEditing(
      *combo, "Size", "L", [&] { Key(VK_DOWN); }, [&] { return combo->Text(); });
  CheckEditing(
      *list, "Size", "L", [&] { Key(VK_DOWN); }, [&] { return std::to_string(list->ItemIndex()); });
}

TEST_F(FieldControls, ATextShowsTheFieldAsItIs) {
  auto* text = MakeBound<TDBText>("Name", 10, 10);
  ShowForm();
  EXPECT_EQ(text->Caption(), "Ann");
  Data.Next();
  EXPECT_EQ(text->Caption(), "B&b");
  EXPECT_FALSE(text->ShowAccelChar());
  text->SetDataField("None");
  EXPECT_EQ(text->Caption(), "");
  text->SetDataField("Size");
  EXPECT_EQ(text->Caption(), "L");
  Data.Close();
  EXPECT_EQ(text->Caption(), "");
}

TEST_F(FieldControls, ACheckBoxKnowsItsValues) {
  auto* check = MakeBound<TDBCheckBox>("Paid", 10, 10);
  auto* size = MakeBound<TDBCheckBox>("Size", 10, 40);
  size->SetValueChecked("large;L");
  size->SetValueUnchecked("S; M");
  int clicks = 0;
  check->OnClick = [&](TObject*) { ++clicks; };
  ShowForm();
  EXPECT_EQ(check->State(), cbChecked);
  EXPECT_EQ(size->State(), cbUnchecked);
  Data.Next();
  EXPECT_EQ(check->State(), cbUnchecked);
  EXPECT_EQ(size->State(), cbChecked);
  Data.Next();
  EXPECT_EQ(check->State(), cbGrayed) << "Null";
  EXPECT_EQ(clicks, 0) << "another record is no click";
  Click(*size, 8, 8);
  Click(*check, 8, 8);
  EXPECT_EQ(clicks, 1);
  Data.Post();
  EXPECT_EQ(Value("Size"), "large");
  EXPECT_EQ(Value("Paid"), "True");
  check->SetAllowGrayed(true);
  Data.First();
  Data.Next();
  Click(*check, 8, 8);
  Data.Post();
  EXPECT_TRUE(Data.FieldByName("Paid")->IsNull());
}

TEST_F(FieldControls, ARadioGroupHasAValueForEachItem) {
  auto* group = MakeBound<TDBRadioGroup>("Size", 10, 10);
  group->SetBounds(10, 10, 150, 120);
  for (const char* each : {"small", "medium", "L"}) group->Items()->Add(each);
  group->Values()->Add("S");
  group->Values()->Add("M");
  ShowForm();
  EXPECT_EQ(group->ItemIndex(), 1);
  Data.Next();
  EXPECT_EQ(group->ItemIndex(), 2) << "an item without a value has its text";
  Data.Next();
  EXPECT_EQ(group->ItemIndex(), -1);
  Click(*group->Buttons(0), 8, group->Buttons(0)->Height() / 2);
  EXPECT_EQ(Data.State(), dsEdit);
  EXPECT_EQ(group->ItemIndex(), 0);
  Key(VK_ESCAPE);
  EXPECT_EQ(group->ItemIndex(), -1);
  Key(VK_SPACE);
  Data.Post();
  EXPECT_EQ(Value("Size"), "S");
  group->SetReadOnly(true);
  Click(*group->Buttons(1), 8, group->Buttons(1)->Height() / 2);
  EXPECT_EQ(group->ItemIndex(), 0);
  EXPECT_EQ(Data.State(), dsBrowse);
}

TEST_F(FieldControls, AComboBoxTakesWhatIsTypedAndChosen) {
  auto* combo = MakeBound<TDBComboBox>("Size", 10, 10);
  auto* other = Make<TEdit>(200, 10);
  for (const char* each : {"S", "M", "L"}) combo->Items()->Add(each);
  ShowForm();
  combo->SetFocus();
  EXPECT_EQ(combo->Text(), "M");
  combo->SelectAll();
  Type("XL");
  EXPECT_EQ(combo->Text(), "XL");
  EXPECT_EQ(Data.State(), dsEdit);
  other->SetFocus();
  EXPECT_EQ(Value("Size"), "XL");
  Data.Post();
  combo->SetReadOnly(true);
  combo->SetFocus();
  Type("y");
  EXPECT_EQ(combo->Text(), "XL");
  EXPECT_FALSE(combo->CanModify());
}

TEST_F(FieldControls, AMemoShowsLongTextsWhenItIsAsked) {
  auto* memo = MakeBound<TDBMemo>("Notes", 10, 10);
  auto* other = Make<TEdit>(250, 10);
  ShowForm();
  EXPECT_EQ(memo->Text(), "one");
  memo->SetFocus();
  KeyWith(VK_CONTROL, VK_END);
  Key(VK_RETURN);
  Type("more");
  other->SetFocus();
  Data.Post();
  EXPECT_EQ(memo->Lines()->Count(), 2);
  EXPECT_THAT(Value("Notes"),
              testing::AllOf(testing::StartsWith("one"), testing::EndsWith("more")));
  memo->SetAutoDisplay(false);
  EXPECT_EQ(memo->Text(), "(Notes)");
  memo->SetFocus();
  Type("x");
  EXPECT_EQ(memo->Text(), "(Notes)");
  EXPECT_EQ(Data.State(), dsBrowse);
  Key(VK_RETURN);
  EXPECT_EQ(memo->Lines()->Count(), 2);
  Data.Next();
  EXPECT_EQ(memo->Text(), "(Notes)") << "of the next record it is to be asked for again";
  memo->LoadMemo();
  EXPECT_EQ(memo->Text(), "two");
  Type("x");
  EXPECT_EQ(Data.State(), dsEdit);
  EXPECT_THAT(memo->Text(), testing::HasSubstr("x"));
  Data.Cancel();
}

/// A file with a picture of one colour.
template <class T>
std::string PictureFile(TColor color, int width, int height) {
  TBitmap bitmap(width, height);
  bitmap.Canvas()->Brush()->SetColor(color);
  bitmap.Canvas()->FillRect({0, 0, width, height});
  T picture;
  picture.Assign(&bitmap);
  TStringStream stream;
  picture.SaveToStream(stream);
  return std::string(stream.DataString());
}

TEST_F(FieldControls, AnImageShowsWhatTheFieldHolds) {
  auto* image = MakeBound<TDBImage>("Photo", 10, 10);
  image->SetBounds(10, 10, 104, 54);
  image->SetBorderStyle(bsNone);
  const auto put = [&](const std::string& bytes) {
    Data.Edit();
    Data.FieldByName("Photo")->SetAsString(bytes);
    Data.Post();
  };
  ShowForm();
  EXPECT_TRUE(Find(clFuchsia).Empty());
  put(PictureFile<TPngImage>(clFuchsia, 20, 30));
  EXPECT_EQ(image->Picture()->Graphic()->ClassName(), "TPngImage");
  EXPECT_EQ(Find(clFuchsia), TRect(52, 22, 72, 52)) << "in the middle";
  image->SetStretch(true);
  EXPECT_EQ(Find(clFuchsia), TRect(10, 10, 114, 64));
  image->SetProportional(true);
  EXPECT_EQ(image->PictureRect(), TRect(34, 0, 70, 54));
  image->SetStretch(false);
  EXPECT_EQ(image->PictureRect(), TRect(42, 12, 62, 42)) << "no larger";
  put(PictureFile<TBitmap>(clFuchsia, 208, 54));
  EXPECT_EQ(image->PictureRect(), TRect(0, 13, 104, 40)) << "smaller";
  put(PictureFile<TJpegImage>(clFuchsia, 10, 10));
  EXPECT_EQ(image->Picture()->Graphic()->ClassName(), "TJpegImage");
  put("no picture");
  EXPECT_EQ(image->Picture()->Graphic(), nullptr);
  EXPECT_THAT(image->Accessible().Value, testing::HasSubstr("no picture"));
  put(PictureFile<TPngImage>(clFuchsia, 20, 30).substr(0, 60));
  EXPECT_EQ(image->Picture()->Graphic(), nullptr) << "a damaged one";
  Data.Next();
  EXPECT_EQ(image->Accessible().Value, "");
}

TEST_F(FieldControls, AnImageIsCutAndPasted) {
  auto* image = MakeBound<TDBImage>("Photo", 10, 10);
  Data.Edit();
  Data.FieldByName("Photo")->SetAsString(PictureFile<TBitmap>(clFuchsia, 20, 30));
  Data.Post();
  ShowForm();
  image->SetFocus();
  KeyWith(VK_CONTROL, 'X');
  EXPECT_EQ(Data.State(), dsEdit);
  EXPECT_EQ(image->Picture()->Graphic(), nullptr);
  Data.Post();
  EXPECT_TRUE(Data.FieldByName("Photo")->IsNull());
  Data.Next();
  KeyWith(VK_CONTROL, 'V');
  EXPECT_EQ(image->Picture()->Width(), 20);
  Key(VK_ESCAPE);
  EXPECT_EQ(image->Picture()->Graphic(), nullptr);
  KeyWith(VK_CONTROL, 'V');
  Data.Post();
  EXPECT_EQ(Value("Photo").substr(1, 3), "PNG");
  EXPECT_EQ(Find(clFuchsia).Height(), 30);
  image->SetReadOnly(true);
  Key(VK_DELETE);
  KeyWith(VK_CONTROL, 'X');
  EXPECT_EQ(image->Picture()->Width(), 20);
  image->SetReadOnly(false);
  Key(VK_DELETE);
  EXPECT_EQ(image->Picture()->Width(), 0);
  Data.Cancel();
  EXPECT_EQ(image->Picture()->Width(), 20);
  image->SetAutoDisplay(false);
  EXPECT_EQ(image->Picture()->Width(), 0);
  Key(VK_RETURN);
  EXPECT_EQ(image->Picture()->Width(), 20);
}

TEST_F(FieldControls, TheirSettingsAreKeptInFormFiles) {
  TDBImage image(nullptr);
  EXPECT_THROW(image.SetPicture(nullptr), EDatabaseError);
  const TClass* const classes[] = {
      &TDBText::Class(),       &TDBMemo::Class(),          &TDBImage::Class(),
      &TDBCheckBox::Class(),   &TDBComboBox::Class(),      &TDBListBox::Class(),
      &TDBRadioGroup::Class(), &TDBLookupListBox::Class(), &TDBLookupComboBox::Class()};
  for (const TClass* each : classes) {
    for (const char* name : {"DataField", "DataSource"}) {
      EXPECT_NE(each->FindPublished(name), nullptr) << each->Name() << "." << name;
    }
  }
}

}  // namespace
}  // namespace vcl
