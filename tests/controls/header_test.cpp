// The header: its sections under real mouse and keyboard input, its widths in a store.
#include <cstdio>

#include "tests/controls/headerform.h"
#include "tests/support/screenreader.h"

namespace qel {
namespace {

using testinput::PumpUntil;

class Header : public THeaderForm {
 protected:
  Header() : It(Make<TQELHeader>(10, 10)) {
    It->SetBounds(10, 10, 400, 22);
    AddSections(It->Sections());
    It->OnSectionClick = [this](vcl::TObject*, TQELHeaderSection* section) {
      Log += "click " + section->Text() + ";";
    };
    It->OnSectionResize = [this](vcl::TObject*, TQELHeaderSection* section) {
      Log += "size " + std::to_string(section->Width()) + ";";
    };
    ShowForm();
  }
  ~Header() override { testinput::MoveMouse({0, 0}); }
  int WidthOf(int index) const { return It->Sections()->Items(index)->Width(); }
  bool Logged(const std::string& text) {
    return PumpUntil([&] { return Log == text; }, 1000) || (ADD_FAILURE() << Log, false);
  }

  vcl::TRecreatable<TQELHeader>* It;
  std::string Log;
};

TEST_F(Header, LimitsGoBeforeWidths) {
  TQELHeaderSection* section = It->Sections()->Items(0);
  section->SetMaxWidth(60);
  EXPECT_EQ(section->Width(), 60);
  section->SetMinWidth(70);
  EXPECT_EQ(section->Width(), 70);
  section->SetMinWidth(-1), section->SetMaxWidth(-1), section->SetWidth(-5);
  EXPECT_EQ(section->MinWidth(), 70);
  EXPECT_EQ(section->MaxWidth(), 60);
  EXPECT_EQ(section->Width(), 70);
}

TEST_F(Header, SectionsThatSizeThemselvesShareTheRest) {
  It->Sections()->Items(0)->SetAutoSize(true);
  EXPECT_EQ(WidthOf(0), 400 - 160);
  It->Sections()->Items(2)->SetAutoSize(true);
  EXPECT_EQ(WidthOf(0), 160);
  EXPECT_EQ(WidthOf(2), 160);
  It->SetWidth(281);
  EXPECT_EQ(WidthOf(0), 100);
  EXPECT_EQ(WidthOf(2), 101);
}

TEST_F(Header, EdgesBelongToTheSectionBeforeAndBehindThemToTheHiddenOne) {
  It->Sections()->Items(1)->SetWidth(0);
  EXPECT_EQ(It->Sections()->EdgeAt(78, 4), 0);
  EXPECT_EQ(It->Sections()->EdgeAt(82, 4), 1);
  EXPECT_EQ(It->Sections()->EdgeAt(100, 4), -1);
  EXPECT_EQ(It->Sections()->SectionAt(80), 2);
  EXPECT_EQ(It->Sections()->SectionAt(160), -1);
}

TEST_F(Header, IsClickedByMouseMnemonicAndKey) {
  Click(*It, 100, 10);
  EXPECT_TRUE(Logged("click Size;"));
  Log.clear();
  Drag(*It, {100, 10}, {20, 60});
  EXPECT_TRUE(Logged("")) << "let go outside";
  It->Sections()->Items(1)->SetAllowClick(false);
  Click(*It, 100, 10);
  EXPECT_TRUE(Logged(""));
  KeyWith(VK_MENU, 'N');
  EXPECT_TRUE(Logged("click &Name;"));
  Log.clear();
  It->SetFocus();
  Key(VK_HOME), Key(VK_SPACE), Key(VK_END), Key(VK_SPACE);
  EXPECT_TRUE(Logged("click &Name;click Date;"));
}

TEST_F(Header, IsSizedByItsEdgesWithinLimitsAndFitted) {
  It->Sections()->Items(0)->SetMaxWidth(120);
  It->OnSectionTrack = [](vcl::TObject*, TQELHeaderSection*, int& width) { width -= width % 10; };
  Drag(*It, {79, 10}, {94, 10});
  EXPECT_TRUE(Logged("size 90;"));
  Drag(*It, {89, 10}, {200, 10});
  EXPECT_EQ(WidthOf(0), 120);
  Log.clear();
  testinput::MoveMouse(It->ClientToScreen({119, 10}));
  testinput::LeftDown();
  testinput::MoveMouse(It->ClientToScreen({50, 10}));
  Key(VK_ESCAPE);
  EXPECT_EQ(WidthOf(0), 120) << "taken back";
  testinput::LeftUp();
  EXPECT_TRUE(Logged(""));
  It->SetAllowResize(false);
  Drag(*It, {119, 10}, {90, 10});
  EXPECT_EQ(WidthOf(0), 120);
  It->SetAllowResize(true);
  It->OnSectionTrack = nullptr;
  testinput::Click(It->ClientToScreen({119, 10}));
  testinput::Click(It->ClientToScreen({119, 10}));
  EXPECT_TRUE(PumpUntil([&] { return WidthOf(0) < 80; })) << WidthOf(0);
}

TEST_F(Header, MovesItsSectionsWithTheMarkAndTheColumns) {
  It->SetSortColumn(0);
  Drag(*It, {20, 10}, {200, 10});
  EXPECT_EQ(TitlesOf(It->Sections()), "&Name Size Date ") << "not allowed";
  It->SetAllowMove(true);
  Drag(*It, {20, 10}, {200, 10});
  EXPECT_EQ(TitlesOf(It->Sections()), "Size Date &Name ");
  EXPECT_EQ(It->SortColumn(), 2);
  EXPECT_EQ(It->Sections()->Items(2)->Column(), 0);
  It->OnSectionMove = [](vcl::TObject*, int, int, bool& allow) { allow = false; };
  It->SetFocus();
  Key(VK_END), KeyWith(VK_CONTROL, VK_LEFT);
  EXPECT_EQ(TitlesOf(It->Sections()), "Size Date &Name ");
  It->OnSectionMove = nullptr;
  KeyWith(VK_CONTROL, VK_LEFT);
  EXPECT_EQ(TitlesOf(It->Sections()), "Size &Name Date ");
  KeyWith(VK_SHIFT, VK_RIGHT);
  EXPECT_EQ(WidthOf(1), 88);
}

TEST_F(Header, KeepsTheUsersWidthsBetweenRuns) {
  const std::string file = std::string(std::getenv("TEMP")) + "\\header widths.ini";
  std::remove(file.c_str());
  const auto prepare = [&](TQELHeader& header) {
    header.SetName("Header1");
    header.WidthStore()->SetDatatype(sIniFile);
    header.WidthStore()->Inifile()->SetFilename(file);
  };
  EXPECT_FALSE(It->WidthStore()->Enabled());
  prepare(*It);
  It->SetFocus();
  KeyWith(VK_SHIFT, VK_RIGHT);
  TQELDataStore store;
  store.SetDatatype(sIniFile);
  store.Inifile()->SetFilename(file);
  store.Inifile()->SetSection("Header Widths");
  EXPECT_EQ(store.ReadStr("Header1_Width0"), "Error") << "written without being enabled";
  It->WidthStore()->SetEnabled(true);
  KeyWith(VK_SHIFT, VK_RIGHT);
  EXPECT_EQ(store.ReadInt("Header1_Width0"), 96);
  vcl::TForm other(nullptr);
  TQELHeader again(&other);
  prepare(again);
  again.WidthStore()->SetEnabled(true);
  AddSections(again.Sections());
  again.LoadWidths();
  EXPECT_EQ(again.Sections()->Items(0)->Width(), 96);
  EXPECT_EQ(again.Sections()->Items(1)->Width(), 80);
  int errors = 0;
  again.WidthStore()->OnError = [&](vcl::TObject*) { ++errors; };
  again.WidthStore()->Inifile()->SetFilename("C:\\no such folder\\x.ini");
  again.SaveWidths();
  EXPECT_EQ(errors, 1);
  std::remove(file.c_str());
}

TEST_F(Header, TellsOfItsSections) {
  It->SetSortColumn(1);
  It->SetSortDescending(true);
  const std::vector<vcl::TAccessiblePart> parts = It->AccessibleParts();
  ASSERT_EQ(parts.size(), 3u);
  EXPECT_EQ(parts[0].Role, vcl::arColumnHeader);
  EXPECT_EQ(parts[0].Name, "Name");
  EXPECT_EQ(parts[0].KeyboardShortcut, "Alt+N");
  EXPECT_EQ(parts[0].DefaultAction, "Click");
  EXPECT_EQ(parts[1].Description, "Sorted down");
  EXPECT_EQ(parts[2].Bounds.Left, 160);
  It->DoAccessiblePart({2});
  EXPECT_TRUE(Logged("click Date;"));
}

TEST_F(Header, ScalesItsSections) {
  Form.ScaleBy(2, 1);
  EXPECT_EQ(WidthOf(0), 160);
  EXPECT_EQ(It->Sections()->Items(0)->MaxWidth(), 20000);
}

}  // namespace
}  // namespace qel
