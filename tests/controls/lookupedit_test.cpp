// Edits that help with what is typed: lists under them, histories, menus of texts, frames and
// buttons.
#include <chrono>
#include <filesystem>

#include "qel/qel.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/files.h"
#include "vcl/stdctrls/popuplines.h"

namespace qel {
namespace {

using testinput::PumpUntil;

/// The list under the edit; null before it was opened for the first time.
vcl::TPopupLines* ListUnder(vcl::TComponent* edit) {
  for (int i = 0; i < edit->ComponentCount(); ++i) {
    if (auto* list = dynamic_cast<vcl::TPopupLines*>(edit->Components(i))) return list;
  }
  return nullptr;
}

int LinesUnder(TQELLookupEdit* edit) {
  if (!edit->DroppedDown()) return 0;
  return static_cast<int>(::SendMessageW(ListUnder(edit)->Handle(), LB_GETCOUNT, 0, 0));
}

class LookupEdit : public vcl::TStandardForm {
 protected:
  LookupEdit() : Edit(Make<TQELLookupEdit>(10, 10)), Other(Make<vcl::TEdit>(10, 300)) {
    for (const char* item : {"Apple", "apricot", "Banana", "Pineapple"}) Edit->Items()->Add(item);
    Edit->OnSelect = [this](vcl::TObject*) { ++Selected; };
    ShowForm();
    Edit->SetFocus();
  }
  ~LookupEdit() override { testinput::MoveMouse({0, 0}); }
  TQELLookupEdit* Edit;
  vcl::TEdit* Other;
  int Selected = 0;
};

TEST_F(LookupEdit, TheListOpensWithWhatMatchesAndKeysChoose) {
  Type("ap");
  EXPECT_TRUE(PumpUntil([&] { return LinesUnder(Edit) == 2; }));
  EXPECT_TRUE(Edit->Focused());
  Type("r");
  EXPECT_TRUE(PumpUntil([&] { return LinesUnder(Edit) == 1; }));
  Key(VK_DOWN);
  Key(VK_RETURN);
  EXPECT_TRUE(PumpUntil([&] { return Selected == 1; }));
  EXPECT_EQ(Edit->Text(), "apricot");
  EXPECT_EQ(Edit->ItemIndex(), 1);
  EXPECT_FALSE(Edit->DroppedDown());
  Edit->SelectAll();
  Type("x");
  EXPECT_EQ(LinesUnder(Edit), 0);
  EXPECT_EQ(Edit->ItemIndex(), -1);
}

TEST_F(LookupEdit, MatchesWhereItIsTold) {
  Edit->SetMatchContains(true);
  Type("app");
  EXPECT_TRUE(PumpUntil([&] { return LinesUnder(Edit) == 2; }));
  Edit->SetCaseSensitive(true);
  Key(VK_BACK);
  EXPECT_TRUE(PumpUntil([&] { return LinesUnder(Edit) == 2; }));
  Edit->SetMatchContains(false);
  Type("r");
  EXPECT_TRUE(PumpUntil([&] { return LinesUnder(Edit) == 1; }));
  Key(VK_ESCAPE);
  EXPECT_TRUE(PumpUntil([&] { return !Edit->DroppedDown(); }));
  EXPECT_EQ(Edit->Text(), "apr");
}

TEST_F(LookupEdit, TheButtonAndKeysOpenTheWholeListAndAClickChooses) {
  Type("ap");
  Key(VK_ESCAPE);
  testinput::Click(Edit->ClientToScreen({Edit->ClientWidth() - 5, 5}));
  EXPECT_TRUE(PumpUntil([&] { return LinesUnder(Edit) == 4; }));
  KeyWith(VK_MENU, VK_UP);
  EXPECT_TRUE(PumpUntil([&] { return !Edit->DroppedDown(); }));
  Key(VK_F4);
  ASSERT_TRUE(PumpUntil([&] { return LinesUnder(Edit) == 4; }));
  auto* list = ListUnder(Edit);
  testinput::Click(list->ClientToScreen({20, list->ItemHeight() * 2 + 4}));
  EXPECT_TRUE(PumpUntil([&] { return Edit->Text() == "Banana"; }));
  EXPECT_EQ(Selected, 1);
  EXPECT_TRUE(Edit->Focused());
  Edit->SetReadOnly(true);
  Key(VK_DOWN);
  EXPECT_FALSE(Edit->DroppedDown());
}

TEST_F(LookupEdit, TheListClosesWhenTheFocusLeavesAndTheTextKeepsToIt) {
  Edit->SetLimitToList(true);
  Type("ban");
  EXPECT_TRUE(PumpUntil([&] { return LinesUnder(Edit) == 1; }));
  Key(VK_RETURN);
  EXPECT_EQ(Edit->Text(), "Banana");
  Edit->SelectAll();
  Type("ap");
  EXPECT_TRUE(PumpUntil([&] { return Edit->DroppedDown(); }));
  Other->SetFocus();
  EXPECT_FALSE(Edit->DroppedDown());
  EXPECT_EQ(Edit->Text(), "Banana");
  Edit->SetFocus();
  Edit->SelectAll();
  Type("APPLE");
  Other->SetFocus();
  EXPECT_EQ(Edit->Text(), "Apple");
}

TEST_F(LookupEdit, AHandlerFillsTheListFromAnywhere) {
  std::string asked;
  Edit->OnLookup = [&](vcl::TObject*, const std::string& text, vcl::TStrings* items) {
    asked = text;
    items->Clear();
    for (const char* end : {"1", "2", "3"}) items->Add("of " + text + end);
  };
  Type("q");
  EXPECT_TRUE(PumpUntil([&] { return LinesUnder(Edit) == 3; }));
  EXPECT_EQ(asked, "q");
  Key(VK_DOWN);
  Key(VK_DOWN);
  Key(VK_RETURN);
  EXPECT_TRUE(PumpUntil([&] { return Edit->Text() == "of q2"; }));
}

TEST_F(LookupEdit, IndexesAreRefusedOrWaitForTheItems) {
  Edit->SetItemIndex(2);
  EXPECT_EQ(Edit->Text(), "Banana");
  Edit->SetItemIndex(4);
  Edit->SetItemIndex(-2);
  EXPECT_EQ(Edit->ItemIndex(), 2);
  Edit->SetItemIndex(-1);
  EXPECT_EQ(Edit->Text(), "");
}

TEST_F(LookupEdit, TheListIsAboveWhereThereIsNoRoomBelow) {
  Form.SetTop(vcl::Screen()->Height() - 60);
  Edit->SetDroppedDown(true);
  const int bottom = Edit->ClientToScreen({0, 0}).Y;
  RECT list{};
  ::GetWindowRect(ListUnder(Edit)->Handle(), &list);
  EXPECT_LE(list.bottom, bottom);
}

TEST_F(LookupEdit, AHundredThousandItemsAreFoundBetweenTwoKeys) {
  Edit->Items()->BeginUpdate();
  for (int i = 0; i < 100000; ++i) Edit->Items()->Add("Item number " + std::to_string(i));
  Edit->Items()->EndUpdate();
  Edit->SetMatchContains(true);
  Type("7");
  EXPECT_TRUE(PumpUntil([&] { return LinesUnder(Edit) == 40951; })) << LinesUnder(Edit);
  const auto begin = std::chrono::steady_clock::now();
  ::SendMessageW(Edit->Handle(), WM_CHAR, '7', 1);
  const auto took = std::chrono::steady_clock::now() - begin;
  EXPECT_GT(LinesUnder(Edit), 1000);
  EXPECT_LT(took, std::chrono::milliseconds(150));
}

class AutoCombo : public vcl::TStandardForm {
 protected:
  AutoCombo() : Combo(Make<TQELAutoCombo>(10, 10)), Other(Make<vcl::TEdit>(10, 100)) {
    Form.SetName("Form1");
    Combo->SetName("Combo1");
    Combo->SetText("");
    ShowForm();
    Combo->SetFocus();
  }
  ~AutoCombo() override { vcl::DeleteFile(FileName); }
  void UseFile(TQELAutoCombo& combo) const {
    combo.HistoryStore()->SetDatatype(sIniFile);
    combo.HistoryStore()->Inifile()->SetFilename(FileName);
    combo.HistoryStore()->SetEnabled(true);
  }
  std::string Items() const { return Combo->Items()->CommaText(); }
  const std::string FileName =
      (std::filesystem::temp_directory_path() / "autocombo_test.ini").string();
  TQELAutoCombo* Combo;
  vcl::TEdit* Other;
};

TEST_F(AutoCombo, CompletesBehindWhatIsTyped) {
  Combo->Items()->SetCommaText("Berlin,Bern,Bergen");
  Type("ber");
  EXPECT_TRUE(PumpUntil([&] { return Combo->Text() == "berlin"; })) << Combo->Text();
  EXPECT_EQ(Combo->SelStart(), 3);
  EXPECT_EQ(Combo->SelLength(), 3);
  Type("n");
  EXPECT_TRUE(PumpUntil([&] { return Combo->Text() == "bern"; }));
  Key(VK_BACK);
  EXPECT_TRUE(PumpUntil([&] { return Combo->Text() == "ber"; }));
  Combo->SetCaseSensitive(true);
  Type("n");
  EXPECT_EQ(Combo->Text(), "bern");
  EXPECT_EQ(Combo->SelLength(), 0);
}

TEST_F(AutoCombo, RemembersWhatWasTypedFirst) {
  Combo->SetAutoComplete(false);
  Combo->SetMaxItems(2);
  Combo->SetMaxItems(0);
  for (const char* text : {"one", "two", "three", "Two"}) {
    Combo->SelectAll();
    Type(text);
    Key(VK_RETURN);
  }
  EXPECT_TRUE(PumpUntil([&] { return Items() == "Two,three"; })) << Items();
  EXPECT_EQ(Combo->Text(), "Two");
  Combo->OnRemember = [](vcl::TObject*, const std::string& text, bool& remember) {
    remember = text != "secret";
  };
  Combo->SetText("secret");
  Other->SetFocus();
  EXPECT_EQ(Items(), "Two,three");
  Combo->SetFocus();
  Combo->SetText("open");
  Other->SetFocus();
  EXPECT_EQ(Items(), "open,Two");
}

TEST_F(AutoCombo, NothingIsWrittenUntilTheStoreIsEnabled) {
  Combo->HistoryStore()->SetDatatype(sIniFile);
  Combo->HistoryStore()->Inifile()->SetFilename(FileName);
  Combo->Remember("a");
  EXPECT_FALSE(vcl::FileExists(FileName));
  UseFile(*Combo);
  Combo->Remember("b");
  Combo->Remember("c=d");
  auto* again = new TQELAutoCombo(nullptr);
  vcl::TForm owner(nullptr);
  owner.SetName("Form1");
  owner.InsertComponent(again);
  again->SetName("Combo1");
  UseFile(*again);
  again->Items()->Add("b");
  EXPECT_TRUE(again->LoadHistory());
  EXPECT_EQ(again->Items()->CommaText(), "c=d,b,a");
  again->SetMaxItems(1);
  again->Remember("e");
  vcl::TStringList values;
  again->HistoryStore()->ReadStrs(values);
  EXPECT_EQ(values.CommaText(), "Form1.Combo1_Item0=e");
  again->ClearHistory();
  again->HistoryStore()->ReadStrs(values);
  EXPECT_EQ(values.Count(), 0);
}

class LookupMenu : public vcl::TStandardForm {
 protected:
  LookupMenu() : Edit(Make<vcl::TEdit>(10, 10)), Menu(new TQELLookupMenu(&Form)) {
    Menu->Items()->SetCommaText("\"Greetings\\Formal=Dear Sir\",Greetings\\Hi,-,Plain");
    Edit->SetText("[]");
    ShowForm();
    Edit->SetFocus();
    Edit->SetSelStart(1);
  }
  /// Brings the menu up by its key and presses others in it.
  void Choose(const std::vector<WORD>& keys) {
    const testinput::TKeysWhen chosen([] { return ::FindWindowA("#32768", nullptr) != nullptr; },
                                      keys);
    KeyWith(VK_CONTROL, VK_SPACE);
    testinput::Pump();
  }
  vcl::TEdit* Edit;
  TQELLookupMenu* Menu;
};

TEST_F(LookupMenu, AKeyBringsItUpAndTheTextIsInserted) {
  Choose({VK_DOWN, VK_RIGHT, VK_RETURN});
  EXPECT_TRUE(PumpUntil([&] { return Edit->Text() == "[Dear Sir]"; })) << Edit->Text();
  Menu->SetMode(lmReplace);
  Menu->OnSelect = [](vcl::TObject*, std::string& text) { text += "!"; };
  Choose({VK_UP, VK_RETURN});
  EXPECT_TRUE(PumpUntil([&] { return Edit->Text() == "Plain!"; })) << Edit->Text();
}

TEST_F(LookupMenu, NeedsAnEditThatTakesText) {
  Edit->SetReadOnly(true);
  EXPECT_FALSE(Menu->Popup());
  Edit->SetReadOnly(false);
  Menu->Items()->Clear();
  EXPECT_FALSE(Menu->Popup());
  Menu->SetEdit(Make<vcl::TEdit>(10, 50));
  Menu->Insert("x");
  EXPECT_EQ(Menu->Edit()->Text(), "x");
  delete Menu->Edit();
  EXPECT_EQ(Menu->Edit(), nullptr);
  delete Menu;
  KeyWith(VK_CONTROL, VK_SPACE);
  EXPECT_EQ(Form.ComponentCount(), 1);
}

class OfficeEdit : public vcl::TStandardForm {
 protected:
  OfficeEdit() : Edit(Make<TQELOfficeEdit>(10, 10)), Other(Make<vcl::TEdit>(10, 100)) {
    Edit->SetHotColor(vcl::clLime);
    Edit->SetFocusColor(vcl::clRed);
    Edit->SetWidth(200);
    testinput::MoveMouse({0, 0});
    ShowForm();
    Other->SetFocus();
    testinput::Pump();
  }
  ~OfficeEdit() override { testinput::MoveMouse({0, 0}); }
  /// The frame's colour on the screen.
  vcl::TColor Frame() const {
    RECT rect{};
    ::GetWindowRect(Edit->Handle(), &rect);
    const HDC dc = ::GetWindowDC(Edit->Handle());
    const COLORREF color = ::GetPixel(dc, 0, 5);
    ::ReleaseDC(Edit->Handle(), dc);
    return static_cast<vcl::TColor>(color);
  }
  TQELOfficeEdit* Edit;
  vcl::TEdit* Other;
};

TEST_F(OfficeEdit, ItsFrameShowsTheMouseAndTheFocus) {
  const auto quiet = static_cast<vcl::TColor>(vcl::ColorToRGB(vcl::clBtnShadow));
  EXPECT_TRUE(PumpUntil([&] { return Frame() == quiet; }));
  testinput::MoveMouse(testinput::MiddleOf(Edit));
  EXPECT_TRUE(PumpUntil([&] { return Frame() == vcl::clLime; }));
  Edit->SetFocus();
  EXPECT_TRUE(PumpUntil([&] { return Frame() == vcl::clRed; }));
  testinput::MoveMouse({0, 0});
  Other->SetFocus();
  EXPECT_TRUE(PumpUntil([&] { return Frame() == quiet; }));
}

TEST_F(OfficeEdit, TheButtonIsPressedByMouseAndKey) {
  vcl::TBitmap picture(10, 10);
  Edit->ButtonGlyph()->SetBitmap(&picture);
  Edit->ButtonGlyph()->SetNumGlyphs(TQELNumGlyphs(1));
  int clicks = 0;
  Edit->OnButtonClick = [&](vcl::TObject*) { ++clicks; };
  testinput::Click(Edit->ClientToScreen({Edit->ClientWidth() - 5, 5}));
  EXPECT_TRUE(PumpUntil([&] { return clicks == 1; }));
  EXPECT_TRUE(Edit->Focused());
  KeyWith(VK_MENU, VK_DOWN);
  EXPECT_TRUE(PumpUntil([&] { return clicks == 2; }));
  // Released beside it, it was not pressed.
  testinput::LeftDown();
  testinput::MoveMouse(testinput::MiddleOf(Edit));
  testinput::LeftUp();
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(Edit->SelLength(), 0);
}

TEST_F(OfficeEdit, TheCrossEmptiesWhatMayBeChanged) {
  Edit->SetShowClear(true);
  Edit->SetText("text");
  Edit->SetReadOnly(true);
  const vcl::TPoint cross = Edit->ClientToScreen({Edit->ClientWidth() - 8, 8});
  testinput::Click(cross);
  EXPECT_EQ(Edit->Text(), "text");
  Edit->SetReadOnly(false);
  testinput::Click(cross);
  EXPECT_TRUE(PumpUntil([&] { return Edit->Text().empty(); }));
  EXPECT_TRUE(Edit->CanUndo());
}

}  // namespace
}  // namespace qel
