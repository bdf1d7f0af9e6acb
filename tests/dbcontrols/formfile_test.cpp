// Data-aware controls in form files.
#include "tests/dbcontrols/dataform.h"
#include "tests/support/registered.h"
#include "tests/support/texts.h"

namespace qel {
namespace {

class DataFormFile : public TDataForm {
 protected:
  DataFormFile() {
    RegisterAll();
    vcl::RegisterClasses({&vcl::TDataSource::Class()});
    Records->SetName("Records");
    Records->SetDataSet(&Data);
  }
  template <class T>
  T* Bound(const char* name, const char* field) {
    auto* control = new T(&Written);
    control->SetName(name);
    control->SetParent(&Written);
    control->SetDataSource(Records);
    control->SetDataField(field);
    return control;
  }
  TQELDBNavigator* Navigator() {
    auto* navigator = new TQELDBNavigator(&Written);
    navigator->SetName("Navigator");
    navigator->SetParent(&Written);
    return navigator;
  }

  vcl::TForm Written{nullptr};
  vcl::TDataSource* Records = new vcl::TDataSource(&Written);
};

/// What a record says is none of the form file's, and what is set comes back.
TEST_F(DataFormFile, HoldsTheBindingAndNoValue) {
  Bound<TQELDBLabel>("Plain", "Name");
  Bound<TQELDBStickyLabel>("Sticky", "Name")->SetAutoSize(false);
  Bound<TQELDBOfficeEdit>("Office", "Name");
  Bound<TQELDBSpinEdit>("Spin", "Count")->SetDecimals(3);
  auto* lookup = Bound<TQELDBLookupedit>("Lookup", "City");
  lookup->SetListSource(Records);
  lookup->SetKeyField("City");
  lookup->SetListField("Name");
  lookup->Items()->Add("Ann");
  TQELDBNavigator* const navigator = Navigator();
  navigator->SetDataSource(Records);
  navigator->SetVisibleButtons({nbNext, nbPost});
  navigator->NextButton()->SetHint("Onwards");
  navigator->PostButton()->SetVisible(false);
  const std::string text = FormText(&Written);
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("Ann")));
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("TSpeedButton")));
  vcl::TForm read(nullptr);
  ReadForm(text, &read);
  EXPECT_EQ(FormText(&read), text);
  auto* spin = dynamic_cast<TQELDBSpinEdit*>(read.FindComponent("Spin"));
  EXPECT_EQ(spin->Decimals(), 3);
  EXPECT_EQ(spin->Text(), "") << "there are no records yet";
  auto* again = dynamic_cast<TQELDBNavigator*>(read.FindComponent("Navigator"));
  EXPECT_EQ(again->ButtonName(nbNext), "Onwards");
  EXPECT_NE(again->Controls(nbPrior)->Hint(), "") << "a form file takes no hint away";
  EXPECT_TRUE(again->ButtonRect(nbPost).Empty());
  EXPECT_EQ(again->ButtonRect(nbNext).Width(), again->ClientWidth());
}

/// The views hold how they show a field, and nothing of what is in it.
TEST_F(DataFormFile, HoldsTheSettingsOfViewsAndOfTheSearch) {
  Bound<TQELDBIndexLookup>("Index", "Name")->SetBeep(true);
  auto* image = Bound<TQELDBImageView>("Image", "Photo");
  image->SetStretch(true);
  image->SetProportional(false);
  image->SetAutoDisplay(false);
  auto* memo = Bound<TQELDBMemoView>("Memo", "Notes");
  memo->SetEditInWindow(true);
  memo->SetScrollBars(vcl::ssVertical);
  auto* search = new TQELDBSearchForm(&Written);
  search->SetName("Search");
  search->SetDataSource(Records);
  search->Fields()->SetText("Name\r\nCount");
  search->SetDefaultField("Count");
  search->SetOptions({soCase, soFromCurrent});
  search->CloseButton()->SetCaption("Done");
  TQELDBNavigator* const navigator = Navigator();
  navigator->SetSearchForm(search);
  const std::string text = FormText(&Written);
  EXPECT_EQ(memo->Lines()->Count(), 1) << "the record is shown";
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("Lines")));
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("Picture")));
  vcl::TForm read(nullptr);
  ReadForm(text, &read);
  EXPECT_EQ(FormText(&read), text);
  const auto find = [&]<class T>(T*, const char* name) {
    return dynamic_cast<T*>(read.FindComponent(name));
  };
  EXPECT_TRUE(find(static_cast<TQELDBIndexLookup*>(nullptr), "Index")->Beep());
  EXPECT_FALSE(find(image, "Image")->Proportional());
  EXPECT_FALSE(find(image, "Image")->AutoDisplay());
  EXPECT_TRUE(find(memo, "Memo")->EditInWindow());
  EXPECT_EQ(find(search, "Search")->SearchField(), "Count");
  EXPECT_EQ(find(navigator, "Navigator")->SearchForm(), find(search, "Search"));
}

}  // namespace
}  // namespace qel
