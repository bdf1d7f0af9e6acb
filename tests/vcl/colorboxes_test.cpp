// Colours that are chosen from a combo box or a list box.
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"

namespace vcl {
namespace {

class ColorBoxes : public TStandardForm {
 protected:
  /// What both faces do alike.
  template <class Box>
  void ExpectLines() {
    auto* box = Make<Box>(10, 10);
    EXPECT_EQ(box->Selected(), clBlack);
    EXPECT_EQ(box->Items()->Strings(0), "clBlack");
    box->SetSelected(clBtnFace);
    EXPECT_EQ(box->Items()->Strings(box->ItemIndex()), "clBtnFace");
    box->SetStyle({cbStandardColors, cbExtendedColors, cbPrettyNames});
    EXPECT_EQ(box->Items()->Count(), 20);
    EXPECT_EQ(box->Items()->Strings(19), "Med gray");
    EXPECT_EQ(box->Colors(16), static_cast<TColor>(0xC0DCC0));
    EXPECT_EQ(box->ItemIndex(), -1) << "no line of it";
    EXPECT_EQ(box->Selected(), clBtnFace) << "kept until there is one";
    box->SetStyle({cbSystemColors, cbIncludeNone, cbIncludeDefault, cbPrettyNames});
    EXPECT_EQ(box->Selected(), clBtnFace);
    EXPECT_EQ(box->Items()->Strings(box->ItemIndex()), "Btn face");
    EXPECT_EQ(box->Items()->Strings(0), "Default");
    EXPECT_EQ(box->Colors(1), clNone);
    const auto own = static_cast<TColor>(0x123456);
    box->SetStyle({cbStandardColors, cbCustomColor});
    box->SetSelected(own);
    EXPECT_EQ(box->ItemIndex(), 0);
    EXPECT_EQ(box->Items()->Strings(0), "Custom...");
    EXPECT_EQ(box->Selected(), own);
    box->OnGetColors = [](TObject*, TStrings* colors) {
      colors->Clear();
      colors->Add("Sky=$00F0CAA6");
      colors->Add("Night=clNavy");
    };
    box->SetStyle({cbStandardColors, cbCustomColors});
    EXPECT_EQ(box->Items()->CommaText(), "Sky,Night");
    EXPECT_EQ(box->Colors(1), clNavy);
    box->OnGetColors = [](TObject*, TStrings* colors) { colors->Add("no colour"); };
    EXPECT_THROW(box->PopulateList(), EConvertError);
    EXPECT_EQ(box->Items()->CommaText(), "Sky,Night");
    EXPECT_THROW(box->Colors(2), EStringListError);
    delete box;
  }
};

TEST_F(ColorBoxes, BothFacesListTheColoursOfTheirStyle) {
  ExpectLines<TColorBox>();
  ExpectLines<TColorListBox>();
}

TEST_F(ColorBoxes, FormFilesKeepWhatIsChosen) {
  RegisterStandardClasses();
  auto* box = Make<TColorBox>(10, 10);
  box->SetName("Box");
  box->SetStyle({cbStandardColors, cbCustomColor});
  box->SetSelected(static_cast<TColor>(0x123456));
  auto* list = Make<TColorListBox>(10, 50);
  list->SetName("List");
  list->SetSelected(clRed);
  TForm read(nullptr);
  const std::string text = FormText(&Form);
  EXPECT_THAT(text, ::testing::Not(::testing::HasSubstr("Items")));
  ReadForm(text, &read);
  EXPECT_EQ(dynamic_cast<TColorBox&>(*read.FindComponent("Box")).Selected(), 0x123456);
  EXPECT_EQ(dynamic_cast<TColorListBox&>(*read.FindComponent("List")).Selected(), clRed);
}

TEST_F(ColorBoxes, ALineShowsItsColour) {
  auto* list = Make<TColorListBox>(10, 10);
  list->SetStyle({cbStandardColors, cbIncludeNone});
  list->SetNoneColorColor(static_cast<TColor>(0x00ABCD));
  ShowForm();
  EXPECT_EQ(Find(static_cast<TColor>(0x00ABCD)).Height(), 10) << "inside its frame";
  EXPECT_EQ(Find(clMaroon).Width(), 16);
}

TEST_F(ColorBoxes, CustomOpensTheDialog) {
  auto* box = Make<TColorBox>(10, 10);
  auto* list = Make<TColorListBox>(10, 60);
  box->SetStyle({cbStandardColors, cbCustomColor});
  list->SetStyle(box->Style());
  box->SetSelected(clRed);
  int changes = 0;
  box->OnChange = [&](TObject*) { ++changes; };
  ShowForm();
  box->SetFocus();
  const auto choose = [&](int button) {
    box->SetDroppedDown(true);
    Key(VK_HOME);
    testinput::TBoxAnswer answer(button);
    Key(VK_RETURN);
    EXPECT_TRUE(answer.Wait());
  };
  choose(IDCANCEL);
  EXPECT_EQ(box->Selected(), clRed) << "as before";
  changes = 0;
  choose(IDOK);
  EXPECT_EQ(box->ItemIndex(), 0);
  EXPECT_GT(changes, 0);
  list->SetItemIndex(0);
  list->SetFocus();
  testinput::TBoxAnswer answer(IDOK);
  Key(VK_RETURN);
  EXPECT_TRUE(answer.Wait());
  EXPECT_EQ(list->ItemIndex(), 0);
}

}  // namespace
}  // namespace vcl
