// Data-aware controls in form files.
#include "tests/dbcontrols/dataform.h"
#include "tests/support/registered.h"
#include "tests/support/texts.h"

namespace qel {
namespace {

class DataFormFile : public TDataForm {};

/// What a record says is none of the form file's, and what is set comes back.
TEST_F(DataFormFile, HoldsTheBindingAndNoValue) {
  RegisterAll();
  vcl::RegisterClasses({&vcl::TDataSource::Class()});
  vcl::TForm form(nullptr);
  auto* source = new vcl::TDataSource(&form);
  source->SetName("Records");
  source->SetDataSet(&Data);
  const auto make = [&]<class T>(T* control, const char* name, const char* field) {
    control->SetName(name);
    control->SetParent(&form);
    control->SetDataSource(source);
    control->SetDataField(field);
    return control;
  };
  make(new TQELDBLabel(&form), "Plain", "Name");
  make(new TQELDBStickyLabel(&form), "Sticky", "Name")->SetAutoSize(false);
  make(new TQELDBOfficeEdit(&form), "Office", "Name");
  make(new TQELDBSpinEdit(&form), "Spin", "Count")->SetDecimals(3);
  auto* lookup = make(new TQELDBLookupedit(&form), "Lookup", "City");
  lookup->SetListSource(source);
  lookup->SetKeyField("City");
  lookup->SetListField("Name");
  lookup->Items()->Add("Ann");
  auto* navigator = new TQELDBNavigator(&form);
  navigator->SetName("Navigator");
  navigator->SetParent(&form);
  navigator->SetDataSource(source);
  navigator->SetVisibleButtons({nbNext, nbPost});
  navigator->NextButton()->SetHint("Onwards");
  navigator->PostButton()->SetVisible(false);
  const std::string text = FormText(&form);
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
  RegisterAll();
  vcl::RegisterClasses({&vcl::TDataSource::Class()});
  vcl::TForm form(nullptr);
  auto* source = new vcl::TDataSource(&form);
  source->SetName("Records");
  source->SetDataSet(&Data);
  const auto make = [&]<class T>(T* control, const char* name, const char* field) {
    control->SetName(name);
    control->SetParent(&form);
    control->SetDataSource(source);
    control->SetDataField(field);
    return control;
  };
  make(new TQELDBIndexLookup(&form), "Index", "Name")->SetBeep(true);
  auto* image = make(new TQELDBImageView(&form), "Image", "Photo");
  image->SetStretch(true);
  image->SetProportional(false);
  image->SetAutoDisplay(false);
  auto* memo = make(new TQELDBMemoView(&form), "Memo", "Notes");
  memo->SetEditInWindow(true);
  memo->SetScrollBars(vcl::ssVertical);
  auto* search = new TQELDBSearchForm(&form);
  search->SetName("Search");
  search->SetDataSource(source);
  search->Fields()->SetText("Name\r\nCount");
  search->SetDefaultField("Count");
  search->SetOptions({soCase, soFromCurrent});
  search->CloseButton()->SetCaption("Done");
  auto* navigator = new TQELDBNavigator(&form);
  navigator->SetName("Navigator");
  navigator->SetParent(&form);
  navigator->SetSearchForm(search);
  const std::string text = FormText(&form);
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
