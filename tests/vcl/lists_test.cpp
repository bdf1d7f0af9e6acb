// List boxes and combo boxes: items, selection, keys, drawing.
#include "tests/vcl/standardform.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/linelook.h"

namespace vcl {
namespace {

class Lists : public TStandardForm {
 protected:
  /// The items as the window has them.
  static std::string WindowItems(TWinControl& list, bool combo) {
    std::string items;
    const auto count = ::SendMessageW(list.Handle(), combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
      wchar_t text[200];
      ::SendMessageW(list.Handle(), combo ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(text));
      items += ToUtf8(text) + ",";
    }
    return items;
  }
};

TEST_F(Lists, ItemsAreTheSameWithAndWithoutAWindow) {
  auto* box = Make<TListBox>(10, 10);
  auto* combo = Make<TComboBox>(200, 10);
  for (TCustomListControl* list : std::initializer_list<TCustomListControl*>{box, combo}) {
    const auto shown = [&] { return WindowItems(*list, list == combo); };
    TStrings& items = *list->Items();
    items.AddObject("b", box);
    items.Insert(0, "ü");
    EXPECT_EQ(shown(), "ü,b,");
    items.Add("c");
    items.Delete(0);
    items.SetStrings(1, "C");
    EXPECT_EQ(shown(), "b,C,");
    EXPECT_EQ(items.CommaText(), "b,C");
    EXPECT_EQ(items.Objects(0), box);
    EXPECT_THROW(items.Strings(2), EStringListError);
    EXPECT_THROW(items.Delete(-1), EStringListError);
    EXPECT_THROW(items.Insert(3, ""), EStringListError);
    EXPECT_THROW(list->SetItemIndex(2), EListError);
    EXPECT_THROW(list->SetItemIndex(-2), EListError);
    list->Clear();
    EXPECT_EQ(shown(), "");
  }
}

TEST_F(Lists, SelectionAndObjectsOutliveTheWindow) {
  auto* single = Make<TListBox>(10, 10);
  single->Items()->SetCommaText("a,b,c,d,e,f,g,h,i,j,k,l");
  single->Items()->SetObjects(5, single);
  single->SetItemIndex(5);
  auto* multi = Make<TListBox>(200, 10);
  multi->SetMultiSelect(true);
  multi->Items()->Assign(single->Items());
  multi->SetSelected(1, true);
  multi->SetSelected(3, true);
  EXPECT_EQ(multi->SelCount(), 2);
  ShowForm();
  single->SetTopIndex(4);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(single->ItemIndex(), 5);
    EXPECT_EQ(single->TopIndex(), 4);
    EXPECT_EQ(single->Items()->Objects(5), single);
    EXPECT_TRUE(multi->Selected(1) && multi->Selected(3) && !multi->Selected(2));
    single->RecreateWnd();
    multi->SetExtendedSelect(false);
  }
  EXPECT_THROW(multi->Selected(12), EStringListError);
  for (TRecreatable<TListBox>* list : {single, multi}) {
    list->SetSelected(3, true);
    list->Items()->SetStrings(3, "another text");
    EXPECT_TRUE(list->Selected(3));
    EXPECT_EQ(list->Selected(1), list == multi);
  }
}

TEST_F(Lists, ASortedListKeepsItsOrderAndTheSelectionOnItsItem) {
  for (bool window : {false, true}) {
    auto* box = Make<TListBox>(10, 10);
    box->Items()->SetCommaText("pear,Apple,fig");
    box->SetItemIndex(2);
    if (window) box->HandleNeeded();
    box->SetSorted(true);
    EXPECT_EQ(box->Items()->CommaText(), "Apple,fig,pear");
    EXPECT_EQ(box->ItemIndex(), 1);
    EXPECT_EQ(box->Items()->Add("banana"), 1);
    EXPECT_THROW(box->Items()->Insert(0, "x"), EStringListError);
    EXPECT_EQ(WindowItems(*box, false), "Apple,banana,fig,pear,");
    delete box;
  }
}

TEST_F(Lists, MouseAndKeysSelect) {
  auto* box = Make<TListBox>(10, 10);
  box->Items()->SetCommaText("a,b,c");
  std::string heard;
  box->OnClick = [&](TObject*) { heard += std::to_string(box->ItemIndex()); };
  box->OnDblClick = [&](TObject*) { heard += "d"; };
  ShowForm();
  const TRect second = box->ItemRect(1);
  Click(*box, second.Left + 5, second.Top + 3);
  Key(VK_DOWN);
  EXPECT_EQ(heard, "12");
  EXPECT_EQ(box->ItemAtPos({5, second.Top + 3}, true), 1);
  EXPECT_EQ(box->ItemAtPos({5, box->ClientHeight() - 2}, true), -1);
  EXPECT_EQ(box->ItemAtPos({5, box->ClientHeight() - 2}, false), 3);
  ::Sleep(600);  // Not the second half of a double click.
  Click(*box, 5, 3);
  Click(*box, 5, 3);
  EXPECT_EQ(heard, "120d");
}

TEST_F(Lists, OnDrawItemDrawsOnTheCanvasOfTheItem) {
  auto* box = Make<TListBox>(10, 10);
  box->SetStyle(lbOwnerDrawFixed);
  box->SetItemHeight(20);
  box->Items()->SetCommaText("a,b");
  box->SetItemIndex(1);
  bool selected[2] = {};
  box->OnDrawItem = [&](TObject*, int index, const TRect& rect, TOwnerDrawState state) {
    selected[index] = state.Has(odSelected);
    box->Canvas()->Brush()->SetColor(index ? clRed : clLime);
    box->Canvas()->FillRect(rect);
  };
  ShowForm();
  box->Update();
  EXPECT_FALSE(selected[0]);
  EXPECT_TRUE(selected[1]);
  const HDC dc = ::GetDC(box->Handle());
  EXPECT_EQ(::GetPixel(dc, 50, 10), RGB(0, 255, 0));
  EXPECT_EQ(::GetPixel(dc, 50, 30), RGB(255, 0, 0));
  ::ReleaseDC(box->Handle(), dc);
  EXPECT_THROW(box->SetItemHeight(0), EArgumentOutOfRangeException);
}

TEST_F(Lists, ItemsHaveTheHeightsThatAreMeasured) {
  auto* box = Make<TListBox>(10, 10);
  auto* combo = Make<TComboBox>(200, 10);
  box->SetStyle(lbOwnerDrawVariable);
  combo->SetStyle(csOwnerDrawVariable);
  int tall = 30;
  const auto heightOf = [](TWinControl& list, UINT message, int index) {
    return static_cast<int>(::SendMessageW(list.Handle(), message, static_cast<WPARAM>(index), 0));
  };
  // The window counts its edges in.
  const int field = heightOf(*combo, CB_GETITEMHEIGHT, -1);
  for (TCustomListControl* list : std::initializer_list<TCustomListControl*>{box, combo}) {
    const UINT ask = list == box ? LB_GETITEMHEIGHT : CB_GETITEMHEIGHT;
    list->OnMeasureItem = [&](TObject*, int index, int& height) {
      if (index == 1) height = tall;
    };
    list->Items()->SetCommaText("a,b");
    list->HandleNeeded();
    list->Items()->Add("c");
    EXPECT_EQ(heightOf(*list, ask, 0), 16);
    EXPECT_EQ(heightOf(*list, ask, 1), 30);
    EXPECT_EQ(heightOf(*list, ask, 2), 16);
    list->Items()->SetStrings(1, "B");
    EXPECT_EQ(heightOf(*list, ask, 1), 30);
    tall = 1000;
    list->Font()->SetSize(20);
    EXPECT_EQ(heightOf(*list, ask, 1), 255) << "what is measured follows the font";
    tall = 30;
    list->ScaleBy(2, 1);
    EXPECT_EQ(heightOf(*list, ask, 0), 32) << "ItemHeight is scaled";
  }
  EXPECT_EQ(heightOf(*combo, CB_GETITEMHEIGHT, -1) - field, 16) << "so is the field";
}

TEST_F(Lists, AHandlerThatMeasuresMayFreeItsList) {
  for (const bool window : {false, true}) {
    auto* box = Make<TListBox>(10, 10);
    box->SetStyle(lbOwnerDrawVariable);
    const TWatch watch(box);
    box->OnMeasureItem = [box](TObject*, int, int&) { delete box; };
    if (window) box->HandleNeeded();
    box->Items()->Add("a");
    if (!window) box->HandleNeeded();
    EXPECT_TRUE(watch.Gone());
  }
}

/// Lines as high as their number says, with a bar of their colour.
class TBars : public TLineLook {
 public:
  void Draw(TCustomListControl& list, int index, const TRect& rect, TOwnerDrawState) override {
    list.Canvas()->Brush()->SetColor(index ? clRed : clLime);
    list.Canvas()->FillRect(rect);
  }
  int Height(TCustomListControl& list, int index) override {
    return list.ScaledPixels(20 + 10 * index);
  }
};

template <class Face>
class TBarsIn : public Face {
 public:
  explicit TBarsIn(TComponent* owner) : Face(owner) { this->SetLook(std::make_unique<TBars>()); }
};

TEST_F(Lists, ALookIsTakenByBothFaces) {
  auto* box = Make<TBarsIn<TListBox>>(10, 10);
  auto* combo = Make<TBarsIn<TComboBox>>(200, 10);
  box->SetStyle(lbOwnerDrawVariable);
  combo->SetStyle(csOwnerDrawVariable);
  for (TCustomListControl* list : std::initializer_list<TCustomListControl*>{box, combo}) {
    list->Items()->SetCommaText("a,b");
  }
  combo->SetItemIndex(1);
  ShowForm();
  EXPECT_EQ(box->ItemRect(0).Height(), 20);
  EXPECT_EQ(box->ItemRect(1).Height(), 30);
  EXPECT_EQ(::SendMessageW(combo->Handle(), CB_GETITEMHEIGHT, 1, 0), 30);
  EXPECT_EQ(Find(clLime).Height(), 20);
  EXPECT_EQ(Find(clRed).Height(), 30);
  combo->Update();
  const HDC dc = ::GetDC(combo->Handle());
  EXPECT_EQ(::GetPixel(dc, 20, combo->Height() / 2), RGB(255, 0, 0)) << "the combo box's field";
  ::ReleaseDC(combo->Handle(), dc);
  box->OnDrawItem = [&](TObject*, int, const TRect& rect, TOwnerDrawState) {
    box->Canvas()->Brush()->SetColor(clAqua);
    box->Canvas()->FillRect(rect);
  };
  EXPECT_EQ(Find(clAqua).Height(), 50) << "an event comes before the look";
}

TEST_F(Lists, KeysToAComboGoThroughTheControl) {
  auto* combo = Make<TComboBox>(10, 10);
  auto* next = Make<TEdit>(10, 60);
  std::string heard;
  combo->OnEnter = [&](TObject*) { heard += "enter "; };
  combo->OnExit = [&](TObject*) { heard += "exit "; };
  combo->OnChange = [&](TObject*) { heard += combo->Text() + " "; };
  combo->OnKeyDown = [&](TObject*, std::uint16_t& key, TShiftState) {
    if (key == 'X') heard += "down ";
  };
  combo->OnKeyPress = [](TObject*, char32_t& key) { key = key == U'x' ? U'y' : key; };
  ShowForm();
  combo->SetFocus();
  EXPECT_TRUE(combo->Focused());
  Type("ax");
  EXPECT_EQ(combo->Text(), "ay");
  Key(VK_TAB);
  EXPECT_TRUE(next->Focused());
  EXPECT_EQ(heard, "enter a down ay exit ");
}

TEST_F(Lists, ChoosingAnItemIsAClickAndAChange) {
  auto* combo = Make<TComboBox>(10, 10);
  combo->SetStyle(csDropDownList);
  combo->Items()->SetCommaText("a,b,c");
  std::string heard;
  combo->OnClick = [&](TObject*) { heard += "click "; };
  combo->OnChange = [&](TObject*) { heard += combo->Text() + " "; };
  combo->OnDropDown = [&](TObject*) { heard += "drop "; };
  combo->OnCloseUp = [&](TObject*) { heard += "close "; };
  ShowForm();
  combo->SetFocus();
  Key(VK_DOWN);
  EXPECT_EQ(heard, "click a ");
  heard.clear();
  Click(*combo);
  EXPECT_TRUE(combo->DroppedDown());
  Key(VK_ESCAPE);
  EXPECT_FALSE(combo->DroppedDown());
  EXPECT_EQ(heard, "drop close ");
  combo->SetItemIndex(2);
  EXPECT_EQ(heard, "drop close ");
}

TEST_F(Lists, AComboBoxShowsAsManyItemsAsItMay) {
  auto* combo = Make<TComboBox>(10, 10);
  for (int i = 0; i < 20; ++i) combo->Items()->Add(std::to_string(i));
  combo->SetDropDownCount(5);
  ShowForm();
  const int height = combo->Height();
  combo->SetDroppedDown(true);
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  ASSERT_TRUE(::GetComboBoxInfo(combo->Handle(), &info));
  RECT list{};
  ::GetClientRect(info.hwndList, &list);
  const auto row = ::SendMessageW(combo->Handle(), CB_GETITEMHEIGHT, 0, 0);
  EXPECT_EQ(list.bottom / row, 5);
  combo->SetDroppedDown(false);
  EXPECT_EQ(combo->Height(), height);
}

TEST_F(Lists, TheTextOfAComboOutlivesTheWindow) {
  const std::tuple<TComboBoxStyle, const char*, const char*, int> cases[] = {
      {csDropDown, "own", "own", -1},
      {csDropDown, "b", "b", 1},
      {csSimple, "own", "own", -1},
      {csDropDownList, "B", "b", 1},
      {csDropDownList, "own", "", -1}};
  for (const auto& [style, text, kept, index] : cases) {
    auto* combo = Make<TComboBox>(10, 10);
    combo->Items()->SetCommaText("a,b");
    combo->SetStyle(style);
    combo->SetItemIndex(index);
    combo->SetText(text);
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(combo->Text(), kept) << text << " in style " << style;
      EXPECT_EQ(combo->ItemIndex(), index) << text << " in style " << style;
      if (i == 1) combo->RecreateWnd();
    }
    delete combo;
  }
}

TEST_F(Lists, HandlersMayFreeTheirSender) {
  auto* box = Make<TListBox>(10, 10);
  box->Items()->SetCommaText("a,b");
  box->OnClick = [&](TObject*) { delete box; };
  auto* typed = Make<TComboBox>(200, 10);
  typed->OnChange = [&](TObject*) { delete typed; };
  auto* pressed = Make<TComboBox>(200, 40);
  pressed->OnKeyDown = [&](TObject*, std::uint16_t&, TShiftState) { delete pressed; };
  auto* chosen = Make<TComboBox>(200, 70);
  chosen->SetStyle(csDropDownList);
  chosen->Items()->SetCommaText("a,b");
  chosen->OnClick = [&](TObject*) { delete chosen; };
  ShowForm();
  Click(*box, 5, 3);
  for (TRecreatable<TComboBox>* combo : {typed, pressed, chosen}) {
    combo->SetFocus();
    Key(VK_DOWN);
    Type("x");
  }
  EXPECT_EQ(Form.ControlCount(), 0);
}

}  // namespace
}  // namespace vcl
