// The lists with looks: colours, typefaces, languages, and marks before items.
#include <algorithm>

#include "qel/qel.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

using vcl::TColor;

class ListLooks : public vcl::TStandardForm {
 protected:
  ~ListLooks() override { testinput::MoveMouse({0, 0}); }
};

TEST_F(ListLooks, AColorComboListsWhatItsKindsSay) {
  auto* combo = Make<TQELColorCombo>(10, 10);
  EXPECT_EQ(combo->Selected(), vcl::clBlack);
  EXPECT_EQ(combo->Items()->Strings(0), "Custom...");
  EXPECT_GE(combo->Items()->IndexOf("clBtnFace"), 0);
  combo->SetColors({ccStandard});
  EXPECT_EQ(combo->Items()->Count(), 16);
  EXPECT_EQ(combo->Selected(), vcl::clBlack);
  combo->OnGetColors = [](vcl::TObject*, vcl::TStrings* lines) { lines->Add("Sea=$00804020"); };
  combo->PopulateList();
  combo->SetSelected(static_cast<TColor>(0x804020));
  EXPECT_EQ(combo->Text(), "Sea");
}

TEST_F(ListLooks, AColorThatIsNotListedIsAddedAndStays) {
  auto* combo = Make<TQELColorCombo>(10, 10);
  const auto own = static_cast<TColor>(0x123456);
  combo->SetSelected(own);
  EXPECT_EQ(combo->Text(), "$00123456");
  const int count = combo->Items()->Count();
  combo->SetSelected(vcl::clRed);
  combo->SetSelected(own);
  EXPECT_EQ(combo->Items()->Count(), count);
  combo->SetColors({ccCustom});
  EXPECT_EQ(combo->Selected(), own);
  EXPECT_EQ(combo->Items()->Count(), 2);
}

TEST_F(ListLooks, ColorsAreChosenByKeysAndTheCustomLineIsNone) {
  auto* combo = Make<TQELColorCombo>(10, 10);
  int changes = 0;
  combo->OnChange = [&](vcl::TObject*) { ++changes; };
  ShowForm();
  combo->SetFocus();
  Key(VK_DOWN);
  EXPECT_TRUE(testinput::PumpUntil([&] { return combo->Selected() == vcl::clMaroon; }));
  Key(VK_HOME);
  EXPECT_TRUE(testinput::PumpUntil([&] { return combo->ItemIndex() == 0; }));
  EXPECT_EQ(combo->Selected(), vcl::clMaroon);
  EXPECT_EQ(changes, 2);
}

TEST_F(ListLooks, SwatchesAreAsWideAsTold) {
  auto* combo = Make<TQELColorCombo>(10, 10);
  const auto own = static_cast<TColor>(0x24C8F0);
  combo->SetSelected(own);
  combo->SetSwatchWidth(40);
  combo->SetSwatchWidth(0);
  combo->SetSwatchWidth(401);
  EXPECT_EQ(combo->SwatchWidth(), 40);
  ShowForm();
  EXPECT_EQ(Find(own).Width(), 38);  // Inside its frame.
  combo->SetShowNames(false);
  testinput::Pump();
  EXPECT_GT(Find(own).Width(), 80);
}

TEST_F(ListLooks, TextsThatAreTooLongEndWithDots) {
  Make<vcl::TButton>(200, 10);  // Has the focus: what has it is in other colours.
  auto* combo = Make<TQELColorCombo>(0, 0);
  combo->SetWidth(120);
  combo->Font()->SetColor(vcl::clFuchsia);
  combo->OnGetColors = [](vcl::TObject*, vcl::TStrings* lines) {
    lines->Add("HHHH=$00FF0000");
    lines->Add("HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH=$0000FF00");
  };
  combo->SetColors({});
  combo->PopulateList();
  combo->SetSelected(vcl::clBlue);
  ShowForm();
  const vcl::TRect letters = Find(vcl::clFuchsia);
  combo->SetSelected(vcl::clLime);
  testinput::Pump();
  const auto shot = Form.GetFormImage();
  // Where the long text ends there is nothing at the letters' heads, only the dots at their feet.
  const int right = Find(vcl::clFuchsia).Right;
  ASSERT_GT(right, letters.Right + 10);
  EXPECT_EQ(shot->Canvas()->Pixels(right - 1, letters.Bottom - 1), vcl::clFuchsia);
  for (int x = right - 4; x < right; ++x)
    EXPECT_NE(shot->Canvas()->Pixels(x, letters.Top), vcl::clFuchsia);
}

bool Sorted(const vcl::TStrings& lines) {
  for (int i = 1; i < lines.Count(); ++i) {
    if (vcl::AnsiCompareText(lines.Strings(i - 1), lines.Strings(i)) > 0) return false;
  }
  return true;
}

TEST_F(ListLooks, FontsAreListedByKindAndWidth) {
  auto* box = Make<TQELFontBox>(10, 10);
  const int all = box->Items()->Count();
  ASSERT_GT(all, 3);
  EXPECT_TRUE(Sorted(*box->Items()));
  box->SetFixedOnly(true);
  const int fixed = box->Items()->Count();
  EXPECT_TRUE(fixed > 0 && fixed < all) << fixed;
  box->SetFixedOnly(false);
  int sum = 0;
  for (const TQELFontKind kind : {fkTrueType, fkRaster, fkVector}) {
    box->SetKinds({kind});
    sum += box->Items()->Count();
  }
  EXPECT_EQ(sum, all);
  for (const TQELFontFace& face : QELFontFaces(AnyCharset)) EXPECT_NE(face.Name[0], '@');
}

TEST_F(ListLooks, AFontThatIsNotThereIsKept) {
  auto* combo = Make<TQELFontCombo>(10, 10);
  combo->SetFontName("No Such Typeface");
  EXPECT_EQ(combo->ItemIndex(), -1);
  EXPECT_EQ(combo->FontName(), "No Such Typeface");
  const std::string there = combo->Items()->Strings(1);
  combo->SetFontName(vcl::UpperCase(there));
  EXPECT_EQ(combo->FontName(), there);
  combo->SetKinds({});
  EXPECT_EQ(combo->Items()->Count(), 0);
  EXPECT_EQ(combo->FontName(), there);
}

TEST_F(ListLooks, FontsThatWereUsedStandFirst) {
  auto* box = Make<TQELFontBox>(10, 10);
  box->SetRecentCount(2);
  box->SetRecentCount(-1);
  ShowForm();
  box->SetFocus();
  const int all = box->Items()->Count();
  std::vector<std::string> used;
  for (int i = 0; i < 3; ++i) {
    box->SetItemIndex(box->Items()->Count() - 1 - i);
    used.insert(used.begin(), box->FontName());
    Key(VK_RETURN);
    EXPECT_TRUE(testinput::PumpUntil([&] { return box->Items()->Strings(0) == used[0]; }));
    EXPECT_EQ(box->FontName(), used[0]);
  }
  EXPECT_EQ(box->Items()->Count(), all + 2);
  EXPECT_EQ(box->Items()->Strings(1), used[1]);
}

TEST_F(ListLooks, FontsComeWhenTheSystemTellsOfThem) {
  auto* combo = Make<TQELFontCombo>(10, 10);
  combo->Items()->Clear();
  ::PostMessageW(HWND_BROADCAST, WM_FONTCHANGE, 0, 0);
  EXPECT_TRUE(testinput::PumpUntil([&] { return combo->Items()->Count() > 3; }));
}

TEST_F(ListLooks, ALanguageComboNamesTheSystemsLanguages) {
  auto* combo = Make<TQELLanguageCombo>(10, 10);
  EXPECT_EQ(combo->Locale(), "");
  EXPECT_EQ(combo->LanguageID(), LANGIDFROMLCID(::GetUserDefaultLCID()));
  combo->SetWhich(lwSupported);
  combo->SetDisplay(ldEnglish);
  EXPECT_TRUE(Sorted(*combo->Items()));
  combo->SetLocale("DE-at");
  EXPECT_EQ(combo->Locale(), "de-AT");
  EXPECT_EQ(combo->Text(), "German (Austria)");
  EXPECT_EQ(combo->LanguageID(), 0x0C07);
  combo->SetDisplay(ldNative);
  EXPECT_EQ(combo->Text().substr(0, 7), "Deutsch");
  EXPECT_THROW(combo->SetLocale("xx-Klingon-99"), vcl::EConvertError);
  EXPECT_EQ(combo->Locale(), "de-AT");
}

TEST_F(ListLooks, ALanguageIsChosenByKeys) {
  auto* combo = Make<TQELLanguageCombo>(10, 10);
  combo->SetWhich(lwSupported);
  combo->SetLocale("de-AT");
  ShowForm();
  combo->SetFocus();
  const int index = combo->ItemIndex();
  Key(VK_DOWN);
  EXPECT_TRUE(testinput::PumpUntil([&] { return combo->ItemIndex() == index + 1; }));
  EXPECT_NE(combo->Locale(), "de-AT");
  EXPECT_NE(combo->Locale(), "");
}

class CheckList : public ListLooks {
 protected:
  CheckList() : List(Make<TQELCheckList>(10, 10)) {
    for (const char* item : {"d", "b", "c", "a"}) List->Items()->Add(item);
  }
  TQELCheckList* List;
};

TEST_F(CheckList, StatesAreATextOfOneCharacterAnItem) {
  EXPECT_EQ(List->States(), "0000");
  List->SetStates("0121");
  EXPECT_EQ(List->State(2), vcl::cbGrayed);
  EXPECT_EQ(List->CheckedCount(), 2);
  List->SetStates("0x21");
  EXPECT_EQ(List->States(), "0121");
  List->SetSorted(true);
  EXPECT_EQ(List->States(), "1120");
  List->SetStates("1");
  EXPECT_EQ(List->States(), "1000");
}

TEST_F(CheckList, AllAreCheckedAndTurnedButThoseThatAreDisabled) {
  List->SetItemEnabled(1, false);
  List->CheckAll();
  EXPECT_EQ(List->States(), "1011");
  List->SetState(3, vcl::cbGrayed);
  List->Invert();
  EXPECT_EQ(List->States(), "0002");
  List->UncheckAll();
  EXPECT_EQ(List->States(), "0000");
}

TEST_F(CheckList, ImagesTakeThePlaceOfTheMarks) {
  vcl::TBitmap strip(32, 8);
  const TColor colors[] = {vcl::clRed, vcl::clYellow, vcl::clLime, vcl::clBlue};
  for (int i = 0; i < 4; ++i) {
    strip.Canvas()->Brush()->SetColor(colors[i]);
    strip.Canvas()->FillRect({i * 8, 0, i * 8 + 8, 8});
  }
  List->Glyph()->SetTransparent(false);
  List->Glyph()->SetBitmap(&strip);
  List->Glyph()->SetNumGlyphs(TQELNumGlyphs(4));
  List->SetStates("0120");
  List->SetItemEnabled(3, false);
  int clicks = 0;
  List->OnClickCheck = [&](vcl::TObject*) { ++clicks; };
  ShowForm();
  for (const TColor color : colors) EXPECT_EQ(Find(color).Width(), 8) << color;
  EXPECT_LT(Find(vcl::clRed).Top, Find(vcl::clLime).Top);
  const vcl::TRect unchecked = Find(vcl::clRed);
  testinput::Click(Form.ClientToScreen({unchecked.Left + 3, unchecked.Top + 3}));
  EXPECT_EQ(List->States(), "1120");
  EXPECT_EQ(clicks, 1);
}

TEST_F(CheckList, ColumnsStandSideBySide) {
  List->SetHeight(50);
  List->SetColumns(2);
  List->SetColumns(-1);
  EXPECT_EQ(List->Columns(), 2);
  ShowForm();
  const vcl::TRect last = List->ItemRect(3);
  EXPECT_GT(last.Left, 0);
  EXPECT_EQ(last.Left % (List->ClientWidth() / 2), 0);
  List->SetStates("0001");
  List->SetColumns(0);
  EXPECT_EQ(List->ItemRect(3).Left, 0);
  EXPECT_EQ(List->States(), "0001");
}

}  // namespace
}  // namespace qel
