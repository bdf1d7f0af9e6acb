// Menus: items and their handles, shortcuts, choosing by mouse, key and command.
#include <gmock/gmock.h>

#include "tests/support/importpatch.h"
#include "tests/vcl/testinput.h"
#include "vcl/rtl/utf16.h"

namespace vcl {
namespace {

using namespace testinput;
using TLog = std::vector<std::string>;

class Menus : public ::testing::Test {
 protected:
  Menus() : Menu(nullptr) {}
  TMenuItem* Add(TMenuItem* parent, const std::string& caption) {
    auto* item = new TMenuItem(nullptr);
    item->SetCaption(caption);
    item->OnClick = [this](TObject* sender) {
      Clicked.push_back(static_cast<TMenuItem*>(sender)->Caption());
    };
    parent->Add(item);
    return item;
  }
  TMenuItem* Add(const std::string& caption) { return Add(Menu.Items(), caption); }
  static std::string TextAt(HMENU menu, int index) {
    wchar_t text[80] = L"";
    ::GetMenuStringW(menu, static_cast<UINT>(index), text, 80, MF_BYPOSITION);
    return ToUtf8(text);
  }
  static UINT StateAt(HMENU menu, int index) {
    return ::GetMenuState(menu, static_cast<UINT>(index), MF_BYPOSITION);
  }
  TLog Clicked;
  TPopupMenu Menu;
};

TEST(ShortCuts, TextsGoBothWays) {
  const std::tuple<std::uint16_t, TShiftState, const char*> cases[] = {
      {'S', {ssCtrl}, "Ctrl+S"},
      {'Z', {ssCtrl, ssShift}, "Ctrl+Shift+Z"},
      {VK_F4, {ssAlt}, "Alt+F4"},
      {VK_F24, {}, "F24"},
      {VK_DELETE, {ssShift}, "Shift+Del"},
      {VK_BACK, {ssAlt}, "Alt+BkSp"},
      {VK_NUMPAD7, {ssCtrl}, "Ctrl+Num 7"},
      {VK_ADD, {ssCtrl}, "Ctrl+Num +"},
      {'0', {ssCtrl, ssShift, ssAlt}, "Ctrl+Shift+Alt+0"},
      {VK_RETURN, {}, "Enter"},
  };
  for (const auto& [key, shift, text] : cases) {
    EXPECT_EQ(ShortCutToText(ShortCut(key, shift)), text);
    EXPECT_EQ(TextToShortCut(text), ShortCut(key, shift)) << text;
  }
  EXPECT_EQ(TextToShortCut(" shift+ctrl+s "), ShortCut('S', {ssCtrl, ssShift}));
  for (const char* wrong : {"", "Ctrl+", "Ctrl+Nothing", "Hyper+S"}) {
    EXPECT_EQ(TextToShortCut(wrong), scNone) << wrong;
  }
  EXPECT_EQ(ShortCutToText(scNone), "");
}

TEST_F(Menus, TheHandleFollowsTheItems) {
  TMenuItem* first = Add("&First");
  const HMENU handle = Menu.Handle();
  first->SetShortCut(ShortCut('F', {ssCtrl}));
  TMenuItem* line = Add("-");
  TMenuItem* third = Add("Third");
  third->SetChecked(true);
  third->SetEnabled(false);
  EXPECT_EQ(Menu.Handle(), handle);
  ASSERT_EQ(::GetMenuItemCount(handle), 3);
  EXPECT_EQ(TextAt(handle, 0), "&First\tCtrl+F");
  EXPECT_TRUE(StateAt(handle, 1) & MF_SEPARATOR);
  EXPECT_TRUE(StateAt(handle, 2) & MF_CHECKED);
  EXPECT_TRUE(StateAt(handle, 2) & (MF_GRAYED | MF_DISABLED));
  line->SetVisible(false);
  EXPECT_EQ(::GetMenuItemCount(handle), 2);
  Add(first, "Inside");
  EXPECT_EQ(::GetSubMenu(handle, 0), first->Handle());
  first->Clear();
  EXPECT_EQ(::GetSubMenu(handle, 0), nullptr);
  delete third;
  EXPECT_EQ(::GetMenuItemCount(handle), 1);
}

TEST_F(Menus, CaptionsAreShownInAnyScript) {
  const char* captions[] = {"Ändern", "Ω日本", "𝄞 clef"};
  for (const char* caption : captions) Add(caption)->SetShortCut(ShortCut('S', {ssCtrl}));
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(TextAt(Menu.Items()->Handle(), i), captions[i] + std::string("\tCtrl+S"));
  }
}

TEST_F(Menus, RadioItemsOfAGroupExcludeEachOther) {
  for (const char* caption : {"A", "B", "C"}) {
    TMenuItem* item = Add(caption);
    item->SetRadioItem(true);
    item->SetGroupIndex(caption[0] == 'C' ? 2 : 1);
    item->SetChecked(true);
  }
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Menu.Items()->Items(i)->Checked(), i > 0) << i;
}

TEST_F(Menus, ItemsMoveAndWrongPlacesAreRefused) {
  TMenuItem* item = Add("Item");
  TMenuItem* inside = Add(item, "Inside");
  TMenuItem loose(nullptr);
  EXPECT_THROW(Menu.Items()->Items(1), EListError);
  EXPECT_THROW(Menu.Items()->Add(item), EInvalidOperation);
  EXPECT_THROW(Menu.Items()->Insert(2, &loose), EListError);
  EXPECT_THROW(Menu.Items()->Remove(inside), EInvalidOperation);
  Menu.Items()->Remove(item);
  EXPECT_THROW(inside->Add(item), EInvalidOperation);
  Menu.Items()->Add(item);
  EXPECT_EQ(inside->GetParentMenu(), &Menu);
  TMenuItem* second = Add("Second");
  second->SetMenuIndex(0);
  EXPECT_EQ(item->MenuIndex(), 1);
  EXPECT_EQ(TextAt(Menu.Handle(), 0), "Second");
  EXPECT_THROW(second->SetMenuIndex(2), EListError);
  EXPECT_EQ(second->MenuIndex(), 0);
}

TEST_F(Menus, CommandsReachTheirItemsUnlessDisabled) {
  TMenuItem* outer = Add("Outer");
  TMenuItem* inner = Add(outer, "Inner");
  EXPECT_TRUE(Menu.DispatchCommand(inner->Command()));
  outer->SetEnabled(false);
  Menu.DispatchCommand(inner->Command());
  EXPECT_EQ(Clicked, TLog{"Inner"});
  EXPECT_FALSE(Menu.DispatchCommand(1));
}

class OnAForm : public Menus {
 protected:
  OnAForm() : Form(nullptr) {
    Form.SetBounds(200, 200, 200, 150);
    Form.SetPopupMenu(&Menu);
    Form.Show();
    EXPECT_TRUE(PumpUntil([&] { return Form.Active(); }));
  }
  ~OnAForm() override { Form.Hide(); }
  /// Posts keys that choose in the menu once it is up.
  void Keys(std::initializer_list<WORD> keys) {
    for (WORD key : keys) {
      SendKey(key, true);
      SendKey(key, false);
    }
  }
  TForm Form;
};

/// One picture of the list: a square in the colour.
void AddSquare(TImageList& list, TColor color) {
  TBitmap picture;
  picture.Canvas()->Brush()->SetColor(color);
  picture.SetSize(list.Width(), list.Height());
  list.Add(&picture, nullptr);
}

/// How many pixels of the screen there have the colour.
int CountOnScreen(const TRect& area, COLORREF color) {
  const HDC dc = ::GetDC(nullptr);
  TBitmap copy(area.Width(), area.Height());
  ::BitBlt(copy.Canvas()->Handle(), 0, 0, area.Width(), area.Height(), dc, area.Left, area.Top,
           SRCCOPY);
  ::ReleaseDC(nullptr, dc);
  int count = 0;
  for (int y = 0; y < area.Height(); ++y) {
    for (int x = 0; x < area.Width(); ++x) {
      count += copy.Canvas()->Pixels(x, y) == TColor(color);
    }
  }
  return count;
}

TEST_F(OnAForm, PicturesAreDrawnAtTheSizeForTheMonitor) {
  constexpr TColor odd = TColor(0x3C7811);
  TImageList images(nullptr);
  AddSquare(images, odd);
  TMenuItem* item = Add("First");
  TMenuItem* other = Add("Second");
  other->SetImageIndex(7);
  item->SetImageIndex(0);
  Menu.SetImages(&images);
  Menu.SetPopupComponent(&Form);
  int seen = 0;
  const auto shown = [&] {
    // All of it: two looks in a row find the same.
    const auto drawn = [&] {
      const int former = std::exchange(seen, CountOnScreen(Rect(250, 250, 450, 400), odd));
      return seen > 0 && seen == former;
    };
    seen = 0;
    const TKeysWhen close(drawn, {VK_ESCAPE});
    Menu.Popup(250, 250);
    return seen;
  };
  EXPECT_EQ(shown(), 16 * 16);
  Form.ScaleForPPI(144);
  EXPECT_EQ(shown(), 24 * 24);
  Form.ScaleForPPI(96);
  EXPECT_EQ(shown(), 16 * 16);
  TImageList larger(nullptr, 32, 32);
  AddSquare(larger, odd);
  Menu.SetImages(&larger);
  EXPECT_EQ(shown(), 32 * 32);
}

/// What the menu of a form answers of the picture of an item.
TSize PictureSize(TForm& form, const TMenuItem& item) {
  MEASUREITEMSTRUCT asked{ODT_MENU, 0, item.Command(), 0, 0, 0};
  form.Perform(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&asked));
  return {static_cast<int>(asked.itemWidth), static_cast<int>(asked.itemHeight)};
}

TEST_F(OnAForm, TheBarsItemsHavePicturesWhileTheirListHasThem) {
  TMainMenu bar(&Form);
  auto* images = new TImageList(&Form);
  TMenuItem* file = Add(bar.Items(), "File");
  TMenuItem* open = Add(file, "Open");
  open->SetImageIndex(0);
  bar.SetImages(images);
  Form.SetMenu(&bar);
  EXPECT_EQ(PictureSize(Form, *open).cx, 0);
  AddSquare(*images, clRed);
  const auto hasPicture = [&] {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_BITMAP;
    ::GetMenuItemInfoW(file->Handle(), 0, TRUE, &info);
    return info.hbmpItem != nullptr;
  };
  EXPECT_TRUE(hasPicture());
  EXPECT_EQ(PictureSize(Form, *open), (TSize{16, 16}));
  EXPECT_EQ(PictureSize(Form, *file).cx, 0);
  Form.ScaleForPPI(192);
  EXPECT_EQ(PictureSize(Form, *open), (TSize{32, 32}));

  TBitmap picture(40, 40);
  DRAWITEMSTRUCT asked{};
  asked.CtlType = ODT_MENU;
  asked.itemID = open->Command();
  asked.hDC = picture.Canvas()->Handle();
  asked.rcItem = {2, 4, 38, 40};
  EXPECT_TRUE(Form.Perform(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&asked)));
  EXPECT_EQ(picture.Canvas()->Pixels(4, 6), clRed);
  EXPECT_EQ(picture.Canvas()->Pixels(35, 37), clRed);
  EXPECT_EQ(picture.Canvas()->Pixels(3, 6), clWhite);
  delete images;
  EXPECT_EQ(bar.Images(), nullptr);
  EXPECT_FALSE(hasPicture());
}

TEST_F(OnAForm, AKeyChoosesFromAPopup) {
  Add("First");
  Add(Add("Second"), "Inside");
  int popups = 0;
  Menu.OnPopup = [&](TObject*) { ++popups; };
  const auto chosen = [&](std::initializer_list<WORD> keys) {
    Clicked.clear();
    Keys(keys);
    Menu.Popup(250, 250);
    return Clicked;
  };
  EXPECT_EQ(chosen({VK_DOWN, VK_RETURN}), TLog{"First"});
  EXPECT_EQ(chosen({VK_DOWN, VK_DOWN, VK_RIGHT, VK_RETURN}), (TLog{"Second", "Inside"}))
      << "a submenu opens with a click";
  EXPECT_EQ(chosen({VK_ESCAPE}), TLog{});
  EXPECT_EQ(popups, 3);
}

TLog Calls;
HWND WINAPI NoForeground() { return nullptr; }
BOOL WINAPI ToFront(HWND window) {
  Calls.push_back("front");
  return ::SetForegroundWindow(window);
}
BOOL WINAPI Post(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NULL) Calls.push_back("woken");
  return ::PostMessageW(window, message, wParam, lParam);
}
void CALLBACK ClickElsewhere(HWND window, UINT, UINT_PTR timer, DWORD) {
  ::KillTimer(window, timer);
  Calls.push_back(::FindWindowA("#32768", nullptr) ? "up" : "not up");
  ::SetCursorPos(20, 20);
  ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
  ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
}

TEST_F(OnAForm, AMenuOfAProgramInTheBackgroundClosesWhenTheUserClicksElsewhere) {
  const TImportPatch nowhere("qelhost.dll", "GetForegroundWindow", &NoForeground);
  const TImportPatch front("qelhost.dll", "SetForegroundWindow", &ToFront);
  const TImportPatch post("qelhost.dll", "PostMessageW", &Post);
  Add("Only");
  Calls.clear();
  ::SetTimer(Form.Handle(), 77, 100, &ClickElsewhere);
  Menu.Popup(250, 250);
  EXPECT_EQ(Calls, (TLog{"front", "up", "woken"}));
  EXPECT_EQ(Clicked, TLog{});
}

TEST_F(Menus, TheControlsThatItCameUpForHearOfItsEnd) {
  TForm form(nullptr);
  TEdit edit(&form);
  TEdit other(&form);
  auto popup = std::make_unique<TPopupMenu>(nullptr);
  edit.SetPopupMenu(popup.get());
  popup->SetPopupComponent(&edit);
  popup->SetPopupComponent(&other);
  popup.reset();
  EXPECT_EQ(edit.PopupMenu(), nullptr);
}

TEST_F(OnAForm, AMenuMayBeFreedByItsOwnItem) {
  auto* passing = new TPopupMenu(nullptr);
  TWatch watch(passing);
  Add(passing->Items(), "End")->OnClick = [&](TObject*) { delete passing; };
  Keys({VK_DOWN, VK_RETURN});
  passing->Popup(250, 250);
  EXPECT_TRUE(watch.Gone());
}

TEST_F(OnAForm, ShortcutsOfBarAndPopupAreTakenBeforeTheControl) {
  TMainMenu bar(nullptr);
  TMenuItem* file = Add(bar.Items(), "&File");
  TMenuItem* save = Add(file, "Save");
  save->SetShortCut(ShortCut('S', {ssCtrl}));
  Add("Popup's")->SetShortCut(ShortCut(VK_F5, {}));
  Form.SetMenu(&bar);
  int keys = 0;
  Form.OnKeyDown = [&](TObject*, std::uint16_t& key, TShiftState) { keys += key != VK_CONTROL; };
  TypeKey('S', {VK_CONTROL});
  TypeKey(VK_F5);
  EXPECT_TRUE(PumpUntil([&] { return Clicked.size() == 3; }));
  EXPECT_EQ(Clicked, (TLog{"&File", "Save", "Popup's"}));
  EXPECT_EQ(keys, 0);
  file->OnClick = [&](TObject*) { save->SetEnabled(false); };
  TypeKey('S', {VK_CONTROL});
  EXPECT_TRUE(PumpUntil([&] { return keys == 1; }));
  EXPECT_EQ(Clicked.size(), 3U);
}

TEST_F(OnAForm, TheBarStandsOnTheFormAndGoesWithItsMenu) {
  const int height = Form.ClientHeight();
  auto* bar = new TMainMenu(nullptr);
  Add(bar->Items(), "File");
  Form.SetMenu(bar);
  EXPECT_EQ(::GetMenu(Form.Handle()), bar->Handle());
  EXPECT_LT(Form.ClientHeight(), height);
  TMenuItem* file = bar->Items()->Items(0);
  ::SendMessageW(Form.Handle(), WM_COMMAND, file->Command(), 0);
  EXPECT_EQ(Clicked, TLog{"File"});
  delete bar;
  EXPECT_EQ(Form.Menu(), nullptr);
  EXPECT_EQ(::GetMenu(Form.Handle()), nullptr);
}

TEST_F(OnAForm, AnItemsHintIsTheApplications) {
  TMainMenu bar(nullptr);
  TMenuItem* file = Add(bar.Items(), "File");
  file->SetHint("short|About files");
  Form.SetMenu(&bar);
  const auto menu = reinterpret_cast<LPARAM>(bar.Handle());
  ::SendMessageW(Form.Handle(), WM_MENUSELECT, MAKEWPARAM(file->Command(), MF_HILITE), menu);
  EXPECT_EQ(Application()->Hint(), "About files");
  ::SendMessageW(Form.Handle(), WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
  EXPECT_EQ(Application()->Hint(), "");
}

}  // namespace
}  // namespace vcl
