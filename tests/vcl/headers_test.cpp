// Header controls and tab controls.
#include "tests/support/screenreader.h"
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

using testing::ElementsAre;
using testinput::PumpUntil;

class Headers : public TStandardForm {
 protected:
  Headers() {
    Header = Make<THeaderControl>(0, 0);
    for (const char* each : {"one", "two", "three"}) {
      THeaderSection* section = Header->Sections()->Add();
      section->SetText(each);
      section->SetWidth(100);
    }
    Header->OnSectionClick = [this](TObject*, THeaderSection* section) {
      Heard += section->Text() + " ";
    };
  }
  std::vector<std::string> Texts() {
    std::vector<std::string> texts;
    for (int i = 0; i < Header->Sections()->Count(); ++i) {
      texts.push_back((*Header->Sections())[i]->Text());
    }
    return texts;
  }
  int WidthInWindow(int section) {
    RECT rect{};
    ::SendMessageW(Header->Handle(), HDM_GETITEMRECT, static_cast<WPARAM>(section),
                   reinterpret_cast<LPARAM>(&rect));
    return static_cast<int>(rect.right - rect.left);
  }
  void DragOn(int from, int to) {
    testinput::MoveMouse(Header->ClientToScreen({from, 8}));
    testinput::LeftDown();
    const int step = to > from ? 8 : -8;
    for (int x = from; (to - x) * step > 0; x += step) {
      testinput::MoveMouse(Header->ClientToScreen({x, 8}));
    }
    testinput::MoveMouse(Header->ClientToScreen({to, 8}));
    testinput::LeftUp();
  }

  TRecreatable<THeaderControl>* Header;
  std::string Heard;
};

TEST_F(Headers, ShowTheirSectionsAndAreClicked) {
  ShowForm();
  EXPECT_EQ(Header->Width(), 500);
  THeaderSections& sections = *Header->Sections();
  EXPECT_EQ(WidthInWindow(1), 100);
  EXPECT_EQ(sections[2]->Left(), 200);
  Click(*Header, 150, 8);
  sections[1]->SetAllowClick(false);
  Click(*Header, 130, 8);
  Click(*Header, 250, 8);
  EXPECT_EQ(Heard, "two three ");
  sections[0]->SetMaxWidth(60);
  EXPECT_EQ(WidthInWindow(0), 60);
  sections[2]->SetAutoSize(true);
  EXPECT_EQ(WidthInWindow(2), 340);
  Form.SetWidth(400);
  EXPECT_EQ(sections[2]->Width(), 240);
  EXPECT_EQ(Header->SectionAt({80, 8}), sections[1]);
  EXPECT_EQ(Header->SectionAt({80, 80}), nullptr);
  Header->RecreateWnd();
  EXPECT_EQ(WidthInWindow(0), 60);
  Form.ScaleBy(192, 96);
  EXPECT_EQ(WidthInWindow(0), 120);
  EXPECT_EQ(sections[0]->MaxWidth(), 120);
}

TEST_F(Headers, EdgesAreDraggedWithinTheLimits) {
  std::string tracked;
  Header->OnSectionTrack = [&](TObject*, THeaderSection* section, int, TSectionTrackState state) {
    if (state != tsTrackMove) tracked += section->Text() + std::to_string(state) + " ";
  };
  Header->OnSectionResize = [&](TObject*, THeaderSection* section) {
    Heard += section->Text() + "=" + std::to_string(section->Width()) + " ";
  };
  (*Header->Sections())[0]->SetMinWidth(50);
  for (const bool full : {true, false}) {
    SCOPED_TRACE(full);
    Header->SetFullDrag(full);
    (*Header->Sections())[0]->SetWidth(100);
    Heard.clear();
    tracked.clear();
    ShowForm();
    DragOn(100, 140);
    EXPECT_TRUE(PumpUntil([&] { return Heard == "one=140 "; })) << Heard;
    EXPECT_EQ(tracked, "one0 one2 ");
    DragOn(140, 10);
    EXPECT_TRUE(PumpUntil([&] { return Heard == "one=140 one=50 "; })) << Heard;
    EXPECT_EQ(WidthInWindow(0), 50);
  }
}

TEST_F(Headers, SectionsAreDraggedToOtherPlaces) {
  ShowForm();
  DragOn(50, 170);
  EXPECT_THAT(Texts(), ElementsAre("one", "two", "three"));
  Header->SetDragReorder(true);
  bool may = true;
  int ends = 0;
  Header->OnSectionDrag = [&](TObject*, THeaderSection* from, THeaderSection* to, bool& allow) {
    Heard = from->Text() + ">" + to->Text();
    allow = may;
  };
  Header->OnSectionEndDrag = [&](TObject*) { ++ends; };
  DragOn(50, 170);
  EXPECT_TRUE(PumpUntil([&] { return ends == 1; }));
  EXPECT_EQ(Heard, "one>two");
  EXPECT_THAT(Texts(), ElementsAre("two", "one", "three"));
  may = false;
  DragOn(250, 30);
  EXPECT_TRUE(PumpUntil([&] { return ends == 2; }));
  EXPECT_EQ(Heard, "three>two");
  EXPECT_THAT(Texts(), ElementsAre("two", "one", "three"));
}

TEST_F(Headers, HandlersMayFreeTheControlOrItsSections) {
  ShowForm();
  Header->OnSectionClick = [&](TObject*, THeaderSection* section) { delete section; };
  Click(*Header, 150, 8);
  EXPECT_THAT(Texts(), ElementsAre("one", "three"));
  Header->OnSectionClick = [&](TObject*, THeaderSection*) { delete Header; };
  Click(*Header, 50, 8);
  EXPECT_EQ(Form.ControlCount(), 0);
}

TEST_F(Headers, ScreenReadersAndFormFilesKnowTheSections) {
  RegisterStandardClasses();
  using namespace screenreader;
  ShowForm();
  const TSpoken two = Named(OfWindow(Header->Handle()), "two");
  ASSERT_TRUE(two);
  EXPECT_EQ(two.Role(), ROLE_SYSTEM_COLUMNHEADER);
  two.Do();
  EXPECT_TRUE(PumpUntil([&] { return Heard == "two "; }));
  (*Header->Sections())[1]->SetSortMark(smDown);
  (*Header->Sections())[2]->SetAllowClick(false);
  const std::string text = FormText(Header);
  THeaderControl again(nullptr);
  ReadForm(text, &again);
  EXPECT_EQ(FormText(&again), text);
  EXPECT_EQ(again.Sections()->Items(1)->SortMark(), smDown);
  HDITEMW item{};
  item.mask = HDI_FORMAT;
  ::SendMessageW(Header->Handle(), HDM_GETITEMW, 1, reinterpret_cast<LPARAM>(&item));
  EXPECT_TRUE(item.fmt & HDF_SORTDOWN);
}

// Tab controls.

class TabControls : public TStandardForm {
 protected:
  TabControls() {
    Tabs = Make<TTabControl>(10, 10);
    for (const char* each : {"&One", "&Two", "T&hree"}) Tabs->Tabs()->Add(each);
    Tabs->OnChange = [this](TObject*) { Heard += std::to_string(Tabs->TabIndex()); };
    Tabs->OnChanging = [this](TObject*, bool& allow) { Heard += "?", allow = May; };
  }
  TPoint InTab(int index) {
    RECT tab{};
    ::SendMessageW(Tabs->Handle(), TCM_GETITEMRECT, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(&tab));
    return {static_cast<int>(tab.left + tab.right) / 2, static_cast<int>(tab.top + tab.bottom) / 2};
  }
  TRecreatable<TTabControl>* Tabs;
  std::string Heard;
  bool May = true;
};

TEST_F(TabControls, TheUserChoosesTabsWhenTheProgramLetsHim) {
  auto* edit = Make<TEdit>(20, 60, Tabs);
  ShowForm();
  EXPECT_EQ(Tabs->TabIndex(), 0);
  Click(*Tabs, InTab(1).X, InTab(1).Y);
  EXPECT_EQ(Tabs->TabIndex(), 1);
  edit->SetFocus();
  KeyWith(VK_CONTROL, VK_TAB);
  EXPECT_EQ(Tabs->TabIndex(), 2);
  EXPECT_TRUE(edit->Focused());
  KeyWith(VK_CONTROL, VK_TAB);
  KeyWith(VK_MENU, 'H');
  EXPECT_EQ(Heard, "?1?2?0?2");
  May = false;
  Click(*Tabs, InTab(0).X, InTab(0).Y);
  EXPECT_EQ(Tabs->TabIndex(), 2);
  EXPECT_EQ(::SendMessageW(Tabs->Handle(), TCM_GETCURSEL, 0, 0), 2);
  Heard.clear();
  Tabs->SetTabIndex(1);
  EXPECT_EQ(Heard, "");
  EXPECT_EQ(Tabs->IndexOfTabAt(InTab(2)), 2);
  EXPECT_THROW(Tabs->SetTabIndex(3), EListError);
  EXPECT_THROW(Tabs->SetTabWidth(-1), EArgumentOutOfRangeException);
  Tabs->Tabs()->Delete(2);
  Tabs->Tabs()->Delete(1);
  EXPECT_EQ(Tabs->TabIndex(), 0);
  Tabs->Tabs()->Clear();
  EXPECT_EQ(Tabs->TabIndex(), -1);
}

TEST_F(TabControls, TabsStandAtTheEdgeThatIsAsked) {
  auto* inside = Make<TPanel>(0, 0, Tabs);
  inside->SetAlign(alClient);
  ShowForm();
  const TRect top = inside->BoundsRect();
  EXPECT_EQ(top, Tabs->DisplayRect());
  EXPECT_GT(top.Top, 15);
  Tabs->SetTabPosition(tpBottom);
  EXPECT_LT(inside->Top(), 10);
  EXPECT_GT(InTab(0).Y, inside->Top() + inside->Height());
  Tabs->SetTabPosition(tpLeft);
  EXPECT_LT(InTab(0).X, inside->Left());
  Tabs->SetTabPosition(tpRight);
  EXPECT_GT(InTab(0).X, inside->Left() + inside->Width());
  Tabs->SetTabPosition(tpTop);
  EXPECT_EQ(inside->BoundsRect(), top);
  Tabs->SetTabHeight(40);
  EXPECT_GT(inside->Top(), 40);
  Tabs->SetStyle(tsButtons);
  EXPECT_TRUE(::GetWindowLongW(Tabs->Handle(), GWL_STYLE) & TCS_BUTTONS);
}

TEST_F(TabControls, FormFilesKeepTheTabsAndTheActiveOne) {
  for (const int index : {0, 2, -1}) {
    Tabs->SetTabIndex(index);
    const std::string text = FormText(Tabs);
    TTabControl again(nullptr);
    ReadForm(text, &again);
    EXPECT_EQ(again.TabIndex(), index);
    EXPECT_EQ(Lines(*again.Tabs()), Lines(*Tabs->Tabs()));
  }
  // One that names a tab which is not there has the last.
  TTabControl wrong(nullptr);
  ReadForm("object T: TTabControl Tabs.Strings = ('a' 'b') TabIndex = 7 end", &wrong);
  EXPECT_EQ(wrong.TabIndex(), 1);
}

TEST_F(TabControls, PagesHaveTheSamePicturesAndPositions) {
  auto* pages = Make<TPageControl>(10, 220);
  auto* page = new TTabSheet(&Form);
  page->SetCaption("page");
  page->SetPageControl(pages);
  TImageList images(nullptr);
  TBitmap picture(16, 16);
  picture.Canvas()->Brush()->SetColor(clFuchsia);
  picture.Canvas()->FillRect({0, 0, 16, 16});
  images.Add(&picture, nullptr);
  pages->SetImages(&images);
  ShowForm();
  EXPECT_TRUE(Find(clFuchsia).Empty());
  page->SetImageIndex(0);
  EXPECT_EQ(Find(clFuchsia).Size(), (TSize{16, 16}));
  pages->SetTabPosition(tpBottom);
  EXPECT_GT(Find(clFuchsia).Top, 220 + page->Height());
}

}  // namespace
}  // namespace vcl
