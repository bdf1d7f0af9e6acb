// List views: items with and without a window, selection, checks, columns, sorting, editing, rows
// of owner data, drawing, form files.
#include <algorithm>
#include <set>

#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

class ListViews : public TStandardForm {
 protected:
  /// Columns of 100, 80 and 60 pixels.
  ListViews() : View(Make<TListView>(10, 10)) {
    View->SetBounds(10, 10, 300, 200);
    View->SetViewStyle(vsReport);
    for (const int width : {100, 80, 60}) View->Columns()->Add()->SetWidth(width);
  }
  ~ListViews() override {
    if (View) View->OnDeletion = nullptr;
  }

  TListItem* Add(const std::string& caption, std::initializer_list<const char*> texts = {}) {
    TListItem* item = View->Items()->AddItem(caption);
    for (const char* each : texts) item->SubItems()->Add(each);
    return item;
  }
  void Fill() {
    for (const char* each : {"pear", "apple", "fig"}) Add(each, {each + 1, each + 2});
  }
  void Log() {
    View->OnChanging = [this](TObject*, TListItem* item, TItemChange, bool& allow) {
      if (Refused == item->Caption()) allow = false;
    };
    View->OnSelectItem = [this](TObject*, TListItem* item, bool selected) {
      Heard += (selected ? "+" : "-") + (item ? item->Caption() : "all") + " ";
    };
    View->OnItemChecked = [this](TObject*, TListItem* item) {
      Heard += (item->Checked() ? "check:" : "uncheck:") + item->Caption() + " ";
    };
    View->OnInsert = [this](TObject*, TListItem* item) { Heard += "ins:" + item->Caption() + " "; };
    View->OnDeletion = [this](TObject*, TListItem* item) {
      Heard += "del:" + item->Caption() + " ";
    };
  }
  std::string Take() { return std::exchange(Heard, {}); }

  LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return ::SendMessageW(View->Handle(), message, wParam, lParam);
  }
  std::string Cell(int row, int column) const {
    wchar_t text[100] = L"";
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 100;
    Ask(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return ToUtf8(text);
  }
  /// The captions, a star before those that are selected: as the library has them, and the window.
  std::string Library() const {
    std::string text;
    for (int i = 0; i < View->Items()->Count(); ++i) {
      const TListItem* item = View->Items()->Items(i);
      EXPECT_EQ(item->Index(), i);
      text += (item->Selected() ? "*" : "") + item->Caption() + " ";
    }
    return text;
  }
  std::string Window() const {
    std::string text;
    for (int i = 0; i < Ask(LVM_GETITEMCOUNT); ++i) {
      const bool selected = Ask(LVM_GETITEMSTATE, static_cast<WPARAM>(i), LVIS_SELECTED) != 0;
      text += (selected ? "*" : "") + Cell(i, 0) + " ";
    }
    return text;
  }
  TPoint PlaceOf(TListItem* item, TDisplayCode code = drLabel) const {
    const TRect place = item->DisplayRect(code);
    return {place.Left + 5, (place.Top + place.Bottom) / 2};
  }
  void ClickItem(TListItem* item) {
    const TPoint place = PlaceOf(item);
    Click(*View, place.X, place.Y);
  }
  HWND Header() const { return reinterpret_cast<HWND>(Ask(LVM_GETHEADER)); }
  /// On the screen.
  TPoint InHeader(int x) const { return View->ClientToScreen({x, 8}); }
  int ColumnWidth(int column) const {
    return static_cast<int>(Ask(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
  }

  TRecreatable<TListView>* View;
  std::string Heard;
  std::string Refused;
};

TEST_F(ListViews, ItemsSelectionAndChecksOutliveTheWindow) {
  View->SetCheckboxes(true);
  View->SetMultiSelect(true);
  Fill();
  View->Items()->Items(0)->SetSelected(true);
  View->Items()->Items(2)->SetSelected(true);
  View->Items()->Items(1)->SetChecked(true);
  View->SetItemFocused(View->Items()->Items(2));
  EXPECT_EQ(View->SelCount(), 2);
  EXPECT_FALSE(View->HandleAllocated());
  ShowForm();
  for (int time = 0; time < 2; ++time) {
    EXPECT_EQ(Window(), "*pear apple *fig ");
    EXPECT_EQ(Library(), Window());
    EXPECT_EQ(View->SelCount(), 2);
    EXPECT_EQ(View->ItemFocused(), View->Items()->Items(2));
    EXPECT_EQ(Cell(1, 0) + Cell(1, 1) + Cell(1, 2) + Cell(1, 3),
              "apple"
              "pple"
              "ple"
              "");
    EXPECT_EQ(Ask(LVM_GETITEMSTATE, 1, LVIS_STATEIMAGEMASK), LRESULT(INDEXTOSTATEIMAGEMASK(2)));
    EXPECT_EQ(Ask(LVM_GETITEMSTATE, 0, LVIS_STATEIMAGEMASK), LRESULT(INDEXTOSTATEIMAGEMASK(1)));
    EXPECT_EQ(ColumnWidth(1), 80);
    View->RecreateWnd();
    View->HandleNeeded();
  }
  Form.DestroyComponents();
  View = nullptr;
}

TEST_F(ListViews, TheWindowFollowsEveryChange) {
  ShowForm();
  Fill();
  TListItems* items = View->Items();
  items->Insert(0)->SetCaption("first");
  items->Insert(2)->SetCaption("third");
  EXPECT_EQ(Window(), "first pear third apple fig ");
  items->Items(4)->SetSelected(true);
  items->Items(4)->SetIndex(1);
  EXPECT_EQ(Window(), "first *fig pear third apple ");
  EXPECT_EQ(Library(), Window());
  items->Delete(0);
  delete items->Items(1);
  EXPECT_EQ(Window(), "*fig third apple ");
  items->Items(0)->SubItems()->SetStrings(0, "changed");
  EXPECT_EQ(Cell(0, 1), "changed");
  {
    const TUpdating updating(*items);
    Add("late")->SetIndex(0);
    items->Items(1)->SetSelected(false);
    items->Items(3)->SetSelected(true);
    items->Items(1)->SetIndex(2);
    items->Delete(1);
  }
  EXPECT_EQ(Window(), "late fig *apple ");
  EXPECT_EQ(Library(), Window());
  items->Clear();
  EXPECT_EQ(Window(), "");
  Add("again");
  EXPECT_EQ(Window(), "again ");
}

TEST_F(ListViews, TheUserSelectsAndAHandlerMayRefuse) {
  View->SetMultiSelect(true);
  Fill();
  Log();
  ShowForm();
  TListItems* items = View->Items();
  ClickItem(items->Items(0));
  EXPECT_EQ(Take(), "+pear ");
  Refused = "apple";
  ClickItem(items->Items(1));
  EXPECT_EQ(Take().find("apple"), std::string::npos);
  Refused.clear();
  View->SetSelected(items->Items(0));
  Take();
  Key(VK_DOWN);
  EXPECT_EQ(Take(), "-pear +apple ");
  KeyWith(VK_SHIFT, VK_DOWN);
  EXPECT_EQ(Take(), "+fig ");
  EXPECT_EQ(Library(), "pear *apple *fig ");
  EXPECT_EQ(View->Selected(), items->Items(1));
  EXPECT_EQ(View->GetNextItem(View->Selected(), sdAll, {isSelected}), items->Items(2));
  EXPECT_EQ(View->GetNextItem(items->Items(1), sdAbove, {}), items->Items(0));
  View->SetSelected(nullptr);
  EXPECT_EQ(View->ItemIndex(), -1);
  View->SelectAll();
  EXPECT_EQ(View->SelCount(), 3);
  View->SetMultiSelect(false);
  EXPECT_EQ(View->SelCount(), 1);
  EXPECT_EQ(Library(), Window());
}

TEST_F(ListViews, WithoutAWindowOneIsSelectedAndAskedLikewise) {
  Fill();
  Log();
  View->SetItemIndex(0);
  View->SetItemIndex(2);
  EXPECT_EQ(Library(), "pear apple *fig ");
  EXPECT_EQ(Take(), "+pear -pear +fig ");
  Refused = "apple";
  View->SetItemIndex(1);
  EXPECT_FALSE(View->Items()->Items(1)->Selected());
  EXPECT_THROW(View->SetItemIndex(3), EListError);
  TListView other(nullptr);
  EXPECT_THROW(other.SetSelected(View->Items()->Items(0)), EListViewError);
}

TEST_F(ListViews, ChecksAreClickedAndTyped) {
  View->SetCheckboxes(true);
  Fill();
  Log();
  ShowForm();
  TListItem* item = View->Items()->Items(1);
  const TRect place = item->DisplayRect(drBounds);
  Click(*View, place.Left + 8, (place.Top + place.Bottom) / 2);
  EXPECT_TRUE(item->Checked());
  EXPECT_NE(Take().find("check:apple "), std::string::npos);
  ClickItem(item);
  Key(VK_SPACE);
  EXPECT_FALSE(item->Checked());
  EXPECT_NE(Take().find("uncheck:apple "), std::string::npos);
  item->SetChecked(true);
  EXPECT_EQ(Take(), "check:apple ");
  EXPECT_EQ(Ask(LVM_GETITEMSTATE, 1, LVIS_STATEIMAGEMASK), LRESULT(INDEXTOSTATEIMAGEMASK(2)));
}

TEST_F(ListViews, CaptionsAreEditedInPlace) {
  Fill();
  View->OnEdited = [](TObject*, TListItem*, std::string& text) { text += "!"; };
  auto* cancel = Make<TButton>(400, 10);
  cancel->SetCancel(true);
  cancel->OnClick = [this](TObject*) { Heard += "cancel"; };
  ShowForm();
  EXPECT_TRUE(View->Items()->Items(0)->EditCaption());
  EXPECT_TRUE(View->IsEditing());
  Type("plum");
  Key(VK_RETURN);
  EXPECT_FALSE(View->IsEditing());
  EXPECT_EQ(View->Items()->Items(0)->Caption(), "plum!");
  EXPECT_EQ(Cell(0, 0), "plum!");
  EXPECT_TRUE(View->Items()->Items(1)->EditCaption());
  Type("no");
  Key(VK_ESCAPE);
  EXPECT_EQ(View->Items()->Items(1)->Caption(), "apple");
  EXPECT_EQ(Heard, "");
  View->OnEditing = [](TObject*, TListItem*, bool& allow) { allow = false; };
  EXPECT_FALSE(View->Items()->Items(1)->EditCaption());
  View->SetReadOnly(true);
  View->OnEditing = nullptr;
  EXPECT_FALSE(View->Items()->Items(1)->EditCaption());
}

TEST_F(ListViews, SortingIsStableAndStaysInsideWhateverHandlersAnswer) {
  ShowForm();
  for (const char* each : {"b2", "a1", "b1", "a2"}) Add(each);
  View->Items()->Items(0)->SetSelected(true);
  const auto first = [](TListItem* a, TListItem* b) { return a->Caption()[0] - b->Caption()[0]; };
  EXPECT_TRUE(View->CustomSort(first));
  EXPECT_EQ(Window(), "a1 a2 *b2 b1 ");
  EXPECT_EQ(Library(), Window());
  unsigned seed = 1;
  const auto random = [&](TListItem*, TListItem*) {
    seed = seed * 1103515245 + 12345;
    return static_cast<int>(seed >> 16 & 2) - 1;
  };
  for (int i = 0; i < 200; ++i) Add(std::to_string(i));
  EXPECT_TRUE(View->CustomSort(random));
  View->OnCompare = [this](TObject*, TListItem* a, TListItem* b, int, int& order) {
    if (View->Items()->Count() > 203) View->Items()->Delete(203);
    order = CompareText(a->Caption(), b->Caption());
  };
  EXPECT_FALSE(View->AlphaSort());
  EXPECT_EQ(View->Items()->Count(), 203);
  EXPECT_TRUE(View->AlphaSort());
  EXPECT_EQ(Library(), Window());
  EXPECT_TRUE(Library().starts_with("0 1 10 100 "));
}

TEST_F(ListViews, SortTypeKeepsTheOrder) {
  View->SetSortType(stText);
  Fill();
  EXPECT_EQ(Library(), "apple fig pear ");
  ShowForm();
  Add("date");
  View->Items()->Items(0)->SetCaption("zebra");
  EXPECT_EQ(Window(), "date fig pear zebra ");
  {
    const TUpdating updating(*View->Items());
    Add("egg");
    Add("ash");
    View->Items()->Items(2)->SetCaption("yew");
  }
  EXPECT_EQ(Window(), "ash date egg fig yew zebra ");
  EXPECT_EQ(Library(), Window());
}

TEST_F(ListViews, ColumnsAreSizedWithinTheirLimitsAndClicked) {
  View->Columns()->Items(0)->SetMinWidth(90);
  View->Columns()->Items(2)->SetAutoSize(true);
  Fill();
  View->OnColumnClick = [this](TObject*, TListColumn* column) {
    Heard += "click" + std::to_string(column->Index()) + " ";
    column->SetSortMark(smUp);
  };
  View->OnColumnRightClick = [this](TObject*, TListColumn* column, TPoint) {
    Heard += "right" + std::to_string(column->Index()) + " ";
  };
  View->OnColumnResized = [this](TObject*, TListColumn* column) {
    Heard += "size" + std::to_string(column->Index()) + " ";
  };
  ShowForm();
  EXPECT_EQ(ColumnWidth(2), View->ClientWidth() - 180);
  testinput::Click(InHeader(130));
  EXPECT_TRUE(testinput::PumpUntil([&] { return Heard == "click1 "; }));
  HDITEMW mark{};
  mark.mask = HDI_FORMAT;
  ::SendMessageW(Header(), HDM_GETITEMW, 1, reinterpret_cast<LPARAM>(&mark));
  EXPECT_NE(mark.fmt & HDF_SORTUP, 0);
  Take();
  testinput::MoveMouse(InHeader(30));
  testinput::RightDown();
  testinput::RightUp();
  EXPECT_TRUE(testinput::PumpUntil([&] { return Heard == "right0 "; }));
  Take();
  const auto drag = [&](int from, int to) {
    testinput::MoveMouse(InHeader(from));
    testinput::LeftDown();
    testinput::MoveMouse(InHeader((from + to) / 2));
    testinput::MoveMouse(InHeader(to));
    testinput::LeftUp();
    testinput::Pump();
  };
  drag(100, 150);
  EXPECT_EQ(View->Columns()->Items(0)->Width(), 150);
  EXPECT_EQ(ColumnWidth(2), View->ClientWidth() - 230);
  EXPECT_NE(Take().find("size0 "), std::string::npos);
  drag(150, 40);
  EXPECT_EQ(View->Columns()->Items(0)->Width(), 90);
  EXPECT_EQ(ColumnWidth(0), 90);
  View->RecreateWnd();
  View->HandleNeeded();
  EXPECT_EQ(ColumnWidth(0), 90);
  View->SetWidth(400);
  EXPECT_EQ(ColumnWidth(2), View->ClientWidth() - 170);
}

TEST_F(ListViews, ColumnsAreAddedOrderedAndDragged) {
  Fill();
  ShowForm();
  View->Columns()->Add()->SetCaption("new");
  View->Items()->Items(0)->SubItems()->Add("third");
  EXPECT_EQ(Cell(0, 3), "third");
  View->Columns()->Delete(3);
  View->Columns()->Items(0)->SetIndex(1);
  EXPECT_EQ(ColumnWidth(0), 80);
  View->SetFullDrag(true);
  testinput::MoveMouse(InHeader(200));
  testinput::LeftDown();
  for (int x = 180; x >= 10; x -= 10) testinput::MoveMouse(InHeader(x));
  testinput::LeftUp();
  testinput::Pump();
  const std::vector<int> dragged{2, 0, 1};
  EXPECT_EQ(View->ColumnOrder(), dragged);
  View->RecreateWnd();
  View->HandleNeeded();
  EXPECT_EQ(View->ColumnOrder(), dragged);
  EXPECT_EQ(Ask(LVM_GETITEMCOUNT), 3);
  EXPECT_THROW(View->SetColumnOrder({0, 0, 1}), EListError);
}

class OwnerData : public ListViews {
 protected:
  OwnerData() {
    View->SetOwnerData(true);
    View->SetMultiSelect(true);
    View->OnData = [this](TObject*, TListItem* item) {
      Asked.insert(item->Index());
      item->SetCaption("row " + std::to_string(item->Index()));
      item->SubItems()->Add(std::to_string(item->Index() * 2));
      item->SetChecked(Checked.contains(item->Index()));
    };
    View->Items()->SetCount(Rows);
  }

  static constexpr int Rows = 1'000'000;
  std::set<int> Asked, Checked;
};

TEST_F(OwnerData, OnlyTheRowsInSightAreAskedFor) {
  ShowForm();
  View->Update();
  EXPECT_EQ(Ask(LVM_GETITEMCOUNT), Rows);
  EXPECT_EQ(Cell(7, 0) + "/" + Cell(7, 1), "row 7/14");
  EXPECT_EQ(View->Items()->Items(Rows - 1)->Caption(), "row 999999");
  EXPECT_LT(Asked.size(), 100U);
  std::pair<int, int> hinted;
  View->OnDataHint = [&](TObject*, int first, int last) { hinted = {first, last}; };
  ClickItem(View->Items()->Items(0));
  Key(VK_END);
  View->Update();
  EXPECT_EQ(View->ItemFocused()->Index(), Rows - 1);
  EXPECT_EQ(hinted.second, Rows - 1);
  EXPECT_TRUE(Asked.contains(Rows - 2));
  EXPECT_LT(Asked.size(), 200U);
}

TEST_F(OwnerData, SelectionOutlivesTheWindow) {
  Log();
  View->OnDeletion = nullptr;
  ShowForm();
  View->Items()->Items(5)->SetSelected(true);
  View->Items()->Items(6)->SetSelected(true);
  View->Items()->Items(999)->SetSelected(true);
  View->Items()->Items(999)->SetFocused(true);
  EXPECT_EQ(Take(), "+row 5 +row 6 +row 999 ");
  View->RecreateWnd();
  View->Items()->Items(6)->SetSelected(false);
  View->Items()->Items(8)->SetSelected(true);
  EXPECT_EQ(View->SelCount(), 3);
  View->HandleNeeded();
  EXPECT_EQ(View->SelCount(), 3);
  EXPECT_EQ(View->ItemIndex(), 5);
  EXPECT_FALSE(View->Items()->Items(6)->Selected());
  EXPECT_TRUE(View->Items()->Items(999)->Selected());
  EXPECT_EQ(View->ItemFocused()->Index(), 999);
  View->Items()->SetCount(7);
  EXPECT_EQ(Ask(LVM_GETITEMCOUNT), 7);
  EXPECT_EQ(Take().find("all"), std::string::npos);
}

TEST_F(OwnerData, RowsAreFoundAndCheckedByTheProgram) {
  View->OnDataFind = [](TObject*, TItemFind find, const std::string& text, TPoint, void*, int,
                        TSearchDirection, bool, int& row) {
    if (find == ifPartialString) row = text == "row 77" || text == "7" ? 77 : -1;
  };
  View->SetCheckboxes(true);
  View->OnItemChecked = [this](TObject*, TListItem* item) {
    item->Checked() ? void(Checked.insert(item->Index())) : void(Checked.erase(item->Index()));
  };
  ShowForm();
  EXPECT_EQ(View->FindCaption(0, "row 77", true, true, true)->Index(), 77);
  EXPECT_EQ(View->FindCaption(0, "other", true, true, true), nullptr);
  ClickItem(View->Items()->Items(0));
  Type("7");
  EXPECT_EQ(View->ItemFocused()->Index(), 77);
  testinput::PumpFor(1200);  // What is typed next does not go on with that.
  Key(VK_SPACE);
  EXPECT_EQ(Checked, std::set<int>{77});
  const TRect place = View->Items()->Items(76)->DisplayRect(drBounds);
  Click(*View, place.Left + 8, (place.Top + place.Bottom) / 2);
  EXPECT_TRUE(Checked.contains(76));
}

TEST_F(OwnerData, RefusesItemsOfItsOwn) {
  EXPECT_THROW(View->Items()->Add(), EListViewError);
  EXPECT_THROW(View->Items()->Items(3)->Delete(), EListViewError);
  EXPECT_THROW(View->Items()->Items(Rows), EListError);
  EXPECT_THROW(View->Items()->SetCount(-1), EListViewError);
  EXPECT_FALSE(View->AlphaSort());
  View->SetOwnerData(false);
  EXPECT_EQ(View->Items()->Count(), 0);
  try {
    View->Items()->SetCount(5);
    ADD_FAILURE();
  } catch (const EListViewError& error) {
    EXPECT_NE(std::string(error.what()).find("5 rows"), std::string::npos);
  }
}

TEST_F(ListViews, ItemsAreFoundByPlaceCaptionAndData) {
  Fill();
  int data = 0;
  View->Items()->Items(2)->SetData(&data);
  EXPECT_EQ(View->FindCaption(0, "FI", true, true, false), View->Items()->Items(2));
  EXPECT_EQ(View->FindCaption(0, "fi", false, true, false), nullptr);
  EXPECT_EQ(View->FindCaption(1, "pear", false, true, false), nullptr);
  EXPECT_EQ(View->FindCaption(1, "pear", false, true, true), View->Items()->Items(0));
  EXPECT_EQ(View->FindCaption(0, "pear", false, false, false), nullptr);
  EXPECT_EQ(View->FindData(0, &data, true, false), View->Items()->Items(2));
  for (int i = 0; i < 50; ++i) Add("more");
  ShowForm();
  const TRect row = View->Items()->Items(1)->DisplayRect(drBounds);
  EXPECT_EQ(View->GetItemAt(row.Left + 5, row.Top + 5), View->Items()->Items(1));
  EXPECT_EQ(View->GetItemAt(150, row.Top + 5), nullptr);
  View->SetRowSelect(true);
  EXPECT_EQ(View->GetItemAt(150, row.Top + 5), View->Items()->Items(1));
  EXPECT_EQ(View->TopItem(), View->Items()->Items(0));
  View->Scroll(0, row.Height() * 3);
  EXPECT_EQ(View->TopItem(), View->Items()->Items(3));
  View->RecreateWnd();
  View->HandleNeeded();
  EXPECT_EQ(View->TopItem(), View->Items()->Items(3));
  View->Items()->Items(52)->MakeVisible(false);
  EXPECT_GE(View->TopItem()->Index() + View->VisibleRowCount(), 52);
}

TEST_F(ListViews, PicturesAreAskedForAndHandlersDraw) {
  Fill();
  auto* images = new TImageList(&Form);
  TBitmap blue(16, 16);
  blue.Canvas()->Brush()->SetColor(clBlue);
  blue.Canvas()->FillRect({0, 0, 16, 16});
  images->Add(&blue, nullptr);
  View->SetSmallImages(images);
  ShowForm();
  EXPECT_TRUE(Find(clBlue).Empty());
  View->Items()->Items(1)->SetImageIndex(0);
  View->Update();
  const TRect row = View->Items()->Items(1)->DisplayRect(drBounds);
  EXPECT_EQ(Find(clBlue).Height(), 16);
  EXPECT_GE(Find(clBlue).Top, row.Top + View->Top());
  View->OnGetImageIndex = [](TObject*, TListItem* item) { item->SetImageIndex(-1); };
  View->OnGetSubItemImage = [](TObject*, TListItem* item, int column, int& image) {
    if (column == 1 && item->Index() == 2) image = 0;
  };
  View->Invalidate();
  EXPECT_GE(Find(clBlue).Left, View->Left() + 180);
  EXPECT_GE(Find(clBlue).Top, row.Bottom + View->Top());
  EXPECT_GE(Find(clBlack).Top, View->Top() + 15);
  View->Columns()->Items(0)->SetCaption("Name");
  EXPECT_LT(Find(clBlack).Top, View->Top() + 15);
  View->SetSmallImages(nullptr);
  View->OnCustomDrawItem = [this](TObject*, TListItem* item, TCustomDrawState, bool& byDefault) {
    if (item->Index() == 0) View->Canvas()->Brush()->SetColor(clLime);
    if (item->Index() != 1) return;
    byDefault = false;
    View->Canvas()->Brush()->SetColor(clRed);
    View->Canvas()->FillRect(item->DisplayRect(drBounds));
  };
  View->OnCustomDrawSubItem = [this](TObject*, TListItem* item, int column, TCustomDrawState,
                                     bool&) {
    if (item->Index() == 2 && column == 2) View->Canvas()->Brush()->SetColor(clFuchsia);
  };
  View->Invalidate();
  const auto rect = [&](int index) { return View->Items()->Items(index)->DisplayRect(drBounds); };
  const int border = Find(clRed).Top - rect(1).Top;
  EXPECT_EQ(Find(clRed).Height(), rect(1).Height());
  EXPECT_FALSE(Find(clLime).Empty());
  EXPECT_LE(Find(clLime).Bottom, rect(0).Bottom + border);
  EXPECT_GE(Find(clFuchsia).Left, View->Left() + 180);
  EXPECT_GE(Find(clFuchsia).Top, rect(2).Top + border);
}

TEST_F(ListViews, FormFilesKeepColumnsGroupsAndItems) {
  Fill();
  View->Columns()->Items(0)->SetCaption("Näme");
  View->Columns()->Items(0)->SetSortMark(smDown);
  View->Columns()->Items(1)->SetAlignment(taCenter);
  TListGroup* group = View->Groups()->Add();
  group->SetHeader("Fruit");
  group->SetGroupID(7);
  View->SetGroupView(true);
  TListItem* item = View->Items()->Items(1);
  item->SetGroupID(7);
  item->SetSubItemImage(1, 4);
  item->SetChecked(true);
  item->SetStateIndex(0);
  View->SetParent(nullptr);
  const std::string text = FormText(View);
  EXPECT_NE(text.find("SubItemImages = '-1,4'"), std::string::npos) << text;
  TListView copy(nullptr);
  ReadForm(text, &copy);
  EXPECT_EQ(FormText(&copy), text);
  EXPECT_EQ(copy.Items()->Items(1)->SubItems()->Strings(0), "pple");
  EXPECT_EQ(copy.Items()->Items(1)->SubItemImage(1), 4);
  EXPECT_TRUE(copy.Items()->Items(1)->Checked());
  EXPECT_EQ(copy.Groups()->Items(0)->Header(), "Fruit");
  copy.Items()->Clear();
  copy.SetItems(View->Items());
  EXPECT_EQ(FormText(&copy), text);
  EXPECT_THROW(item->SetSubItemImages("1,x"), EConvertError);
  EXPECT_EQ(item->SubItemImage(1), 4);
  EXPECT_THROW(View->Groups()->Add()->SetGroupID(7), EListError);
  EXPECT_THROW(group->SetGroupID(-2), EArgumentOutOfRangeException);
}

TEST_F(ListViews, ColumnsScaleWithTheForm) {
  View->Columns()->Items(1)->SetMinWidth(70);
  View->Columns()->Items(1)->SetMaxWidth(90);
  ShowForm();
  Form.ScaleForPPI(144);
  EXPECT_EQ(ColumnWidth(0), 150);
  EXPECT_EQ(ColumnWidth(1), 120);
  EXPECT_EQ(View->Columns()->Items(1)->MinWidth(), 105);
  EXPECT_EQ(View->Columns()->Items(1)->MaxWidth(), 135);
  Form.ScaleForPPI(96);
  EXPECT_EQ(View->Columns()->Items(1)->Width(), 80);
}

TEST_F(ListViews, HandlersMayDeleteItemsAndFreeTheListView) {
  Fill();
  Log();
  ShowForm();
  View->OnSelectItem = [this](TObject*, TListItem* item, bool) { item->Delete(); };
  View->Items()->Items(0)->SetSelected(true);
  EXPECT_EQ(Window(), "apple fig ");
  EXPECT_EQ(Take(), "del:pear ");
  View->OnInsert = [](TObject*, TListItem* item) { item->Delete(); };
  Add("gone");
  EXPECT_EQ(Window(), "apple fig ");
  View->OnInsert = nullptr;
  View->OnDeletion = [this](TObject*, TListItem*) { delete std::exchange(View, nullptr); };
  View->Items()->Delete(0);
  EXPECT_EQ(View, nullptr);
  View = Make<TListView>(0, 0);
  View->SetViewStyle(vsReport);
  View->Columns()->Add()->SetWidth(100);
  View->OnColumnClick = [this](TObject*, TListColumn*) { delete std::exchange(View, nullptr); };
  View->HandleNeeded();
  testinput::Click(InHeader(30));
  EXPECT_TRUE(testinput::PumpUntil([&] { return !View; }));
}

TEST_F(ListViews, ItemsAreDragged) {
  Fill();
  View->SetDragMode(dmAutomatic);
  auto* target = Make<TPanel>(350, 10);
  target->OnDragOver = [](TObject*, TObject*, int, int, TDragState, bool& accept) {
    accept = true;
  };
  target->OnDragDrop = [this](TObject*, TObject* source, int, int) {
    Heard += source == View ? "dropped " + View->Selected()->Caption() : "?";
  };
  ShowForm();
  testinput::MoveMouse(View->ClientToScreen(PlaceOf(View->Items()->Items(1))));
  testinput::LeftDown();
  for (int x = 120; x <= 380; x += 20) testinput::MoveMouse(Form.ClientToScreen({x, 30}));
  testinput::LeftUp();
  EXPECT_TRUE(testinput::PumpUntil([&] { return Heard == "dropped apple"; })) << Heard;
}

TEST_F(ListViews, StylesReachTheWindow) {
  Fill();
  auto* images = new TImageList(&Form);
  View->SetLargeImages(images);
  ShowForm();
  const HWND window = View->Handle();
  View->SetViewStyle(vsIcon);
  View->SetGridLines(true);
  View->SetHotTrack(true);
  View->SetHideSelection(false);
  View->SetShowColumnHeaders(false);
  EXPECT_EQ(View->Handle(), window);
  const auto style = ::GetWindowLongW(window, GWL_STYLE);
  EXPECT_EQ(style & LVS_TYPEMASK, LVS_ICON);
  EXPECT_EQ(style & (LVS_SHOWSELALWAYS | LVS_NOCOLUMNHEADER),
            LVS_SHOWSELALWAYS | LVS_NOCOLUMNHEADER);
  EXPECT_EQ(Ask(LVM_GETEXTENDEDLISTVIEWSTYLE) & (LVS_EX_GRIDLINES | LVS_EX_TRACKSELECT),
            LVS_EX_GRIDLINES | LVS_EX_TRACKSELECT);
  const auto pictures = [&] { return Ask(LVM_GETIMAGELIST, LVSIL_NORMAL); };
  images->SetSize(20, 20);
  EXPECT_EQ(pictures(), reinterpret_cast<LRESULT>(images->Handle()));
  delete images;
  EXPECT_EQ(pictures(), 0);
  EXPECT_EQ(View->LargeImages(), nullptr);
}

}  // namespace
}  // namespace vcl
