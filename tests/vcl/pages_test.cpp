// Page controls, panels, track bars, timers, and all standard controls in a form file.
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

class Pages : public TStandardForm {
 protected:
  TTabSheet* AddPage(TPageControl* pages, const std::string& caption) {
    auto* page = new TTabSheet(&Form);
    page->SetCaption(caption);
    page->SetPageControl(pages);
    return page;
  }
  static std::string Tabs(TPageControl& pages) {
    std::string tabs;
    const auto count = ::SendMessageW(pages.Handle(), TCM_GETITEMCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
      wchar_t text[100];
      TCITEMW item{};
      item.mask = TCIF_TEXT;
      item.pszText = text;
      item.cchTextMax = 100;
      ::SendMessageW(pages.Handle(), TCM_GETITEMW, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&item));
      tabs += ToUtf8(text) + ",";
    }
    return tabs;
  }
};

TEST_F(Pages, TabsFollowThePages) {
  auto* pages = Make<TPageControl>(10, 10);
  TTabSheet* first = AddPage(pages, "one");
  TTabSheet* second = AddPage(pages, "zwei");
  TTabSheet* third = AddPage(pages, "three");
  EXPECT_EQ(pages->ActivePage(), first);
  ShowForm();
  EXPECT_EQ(Tabs(*pages), "one,zwei,three,");
  second->SetCaption("zwölf");
  third->SetPageIndex(0);
  EXPECT_EQ(Tabs(*pages), "three,one,zwölf,");
  EXPECT_EQ(pages->ActivePage(), first);
  EXPECT_EQ(::SendMessageW(pages->Handle(), TCM_GETCURSEL, 0, 0), 1);
  first->SetTabVisible(false);
  EXPECT_EQ(Tabs(*pages), "three,zwölf,");
  EXPECT_EQ(pages->ActivePage(), second);
  EXPECT_EQ(second->PageIndex(), 2);
  EXPECT_EQ(second->TabIndex(), 1);
  delete second;
  EXPECT_EQ(pages->ActivePage(), third);
  pages->RecreateWnd();
  EXPECT_EQ(Tabs(*pages), "three,");
  EXPECT_TRUE(::IsWindowVisible(third->Handle()));
  EXPECT_THROW(pages->Pages(2), EListError);
  EXPECT_THROW(pages->SetActivePageIndex(-2), EListError);
  EXPECT_THROW(third->SetPageIndex(2), EListError);
  EXPECT_THROW(third->SetParent(&Form), EInvalidOperation);
  auto* others = Make<TPageControl>(10, 250);
  EXPECT_THROW(others->SetActivePage(third), EInvalidOperation);
  third->SetPageControl(others);
  EXPECT_EQ(others->ActivePage(), third);
  EXPECT_EQ(pages->PageCount(), 1);
}

TEST_F(Pages, TheUserChangesPagesWhenTheProgramLetsThem) {
  auto* pages = Make<TPageControl>(10, 10);
  TTabSheet* sheets[] = {AddPage(pages, "&One"), AddPage(pages, "&Two"), AddPage(pages, "T&hree")};
  sheets[1]->SetTabVisible(false);
  auto* edit = Make<TEdit>(10, 10, sheets[0]);
  auto* other = Make<TEdit>(10, 10, sheets[2]);
  std::string heard;
  bool allow = true;
  pages->OnChanging = [&](TObject*, bool& may) { heard += "?", may = allow; };
  pages->OnChange = [&](TObject*) { heard += std::to_string(pages->ActivePageIndex()); };
  ShowForm();
  edit->SetFocus();
  KeyWith(VK_CONTROL, VK_TAB);
  EXPECT_EQ(pages->ActivePage(), sheets[2]);
  EXPECT_TRUE(other->Focused());
  EXPECT_FALSE(::IsWindowVisible(edit->Handle()));
  RECT tab{};
  ::SendMessageW(pages->Handle(), TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&tab));
  const TPoint inTab{static_cast<int>(tab.left) + 8, static_cast<int>(tab.top) + 8};
  EXPECT_EQ(pages->PageAtPos(inTab), sheets[0]);
  Click(*pages, inTab.X, inTab.Y);
  EXPECT_EQ(pages->ActivePage(), sheets[0]);
  KeyWith(VK_MENU, 'H');
  EXPECT_EQ(heard, "?2?0?2");
  allow = false;
  Click(*pages, inTab.X + 6, inTab.Y);  // Elsewhere, so that it is no double click.
  EXPECT_EQ(pages->ActivePage(), sheets[2]);
  EXPECT_EQ(heard, "?2?0?2?");
  heard.clear();
  pages->SetActivePage(sheets[0]);
  EXPECT_EQ(heard, "");
}

TEST_F(Pages, HandlersMayFreeThePagesOrTheWhole) {
  auto* pages = Make<TPageControl>(10, 10);
  AddPage(pages, "&One");
  TTabSheet* second = AddPage(pages, "&Two");
  auto* edit = Make<TEdit>(10, 10, pages->Pages(0));
  second->OnShow = [&](TObject*) { delete second; };
  ShowForm();
  edit->SetFocus();
  KeyWith(VK_MENU, 'T');
  EXPECT_EQ(pages->PageCount(), 1);
  EXPECT_EQ(pages->ActivePage(), pages->Pages(0));
  EXPECT_TRUE(::IsWindowVisible(edit->Handle()));
  AddPage(pages, "T&hree");
  pages->OnChange = [&](TObject*) { delete pages; };
  KeyWith(VK_MENU, 'H');
  EXPECT_EQ(Form.ControlCount(), 0);
}

TEST_F(Pages, APageFillsWhatTheTabsLeave) {
  auto* pages = Make<TPageControl>(10, 10);
  TTabSheet* page = AddPage(pages, "one");
  std::string heard;
  page->OnShow = [&](TObject*) { heard += "show "; };
  page->OnHide = [&](TObject*) { heard += "hide "; };
  ShowForm();
  RECT inside{0, 0, pages->Width(), pages->Height()};
  ::SendMessageW(pages->Handle(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inside));
  EXPECT_EQ(page->BoundsRect(), TRect(inside));
  const int width = page->Width();
  pages->SetWidth(pages->Width() + 50);
  EXPECT_EQ(page->Width(), width + 50);
  pages->SetActivePage(nullptr);
  EXPECT_EQ(heard, "show hide ");
}

TEST_F(Pages, ExactlyTheActivePageIsVisible) {
  auto* pages = Make<TPageControl>(10, 10);
  auto* others = Make<TPageControl>(10, 250);
  TTabSheet* sheets[] = {AddPage(pages, "one"), AddPage(pages, "two"), AddPage(pages, "three")};
  ShowForm();
  const auto visible = [&] {
    std::string list;
    for (TTabSheet* each : sheets) {
      EXPECT_EQ(each->Visible(), ::IsWindowVisible(each->Handle()) != FALSE) << each->Caption();
      EXPECT_EQ(each->Visible(), each->PageControl()->ActivePage() == each) << each->Caption();
      list += each->Visible() ? each->Caption() + " " : "";
    }
    return list;
  };
  EXPECT_EQ(visible(), "one ");
  sheets[1]->SetVisible(true);
  EXPECT_EQ(visible(), "two ");
  EXPECT_EQ(::SendMessageW(pages->Handle(), TCM_GETCURSEL, 0, 0), 1);
  sheets[0]->SetVisible(false);
  EXPECT_EQ(visible(), "two ");
  sheets[1]->Hide();
  EXPECT_EQ(visible(), "");
  sheets[2]->Show();
  AddPage(others, "another");
  sheets[2]->SetPageControl(others);
  EXPECT_EQ(visible(), "two ");
}

TEST_F(Pages, PanelsDrawTheirBevelsAroundTheControls) {
  auto* panel = Make<TPanel>(0, 0);
  panel->SetBounds(0, 0, 60, 40);
  panel->SetCaption("");
  panel->SetBevelWidth(2);
  panel->SetBorderWidth(3);
  panel->SetBevelInner(bvLowered);
  panel->SetColor(clLime);
  auto* inside = Make<TPanel>(0, 0, panel);
  inside->SetAlign(alClient);
  inside->SetBevelOuter(bvNone);
  inside->SetColor(clRed);
  ShowForm();
  EXPECT_EQ(inside->BoundsRect(), TRect(7, 7, 53, 33));
  TBitmap shot(60, 40);
  panel->PaintTo(shot.Canvas()->Handle(), 0, 0);
  const auto pixel = [&](int x, int y) {
    return static_cast<COLORREF>(shot.Canvas()->Pixels(x, y));
  };
  const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
  const COLORREF dark = ::GetSysColor(COLOR_BTNSHADOW);
  // From the left edge to the middle, and on to the right edge.
  const std::pair<int, COLORREF> cases[] = {{0, light},           {1, light},  {2, RGB(0, 255, 0)},
                                            {4, RGB(0, 255, 0)},  {5, dark},   {6, dark},
                                            {30, RGB(255, 0, 0)}, {53, light}, {54, light},
                                            {55, RGB(0, 255, 0)}, {58, dark},  {59, dark}};
  for (const auto& [x, color] : cases) EXPECT_EQ(pixel(x, 20), color) << x;
  EXPECT_THROW(panel->SetBevelWidth(0), EArgumentOutOfRangeException);
  EXPECT_THROW(panel->SetBorderWidth(-1), EArgumentOutOfRangeException);
}

TEST_F(Pages, TrackBarsStayInTheirBounds) {
  auto* bar = Make<TTrackBar>(10, 10);
  std::string heard;
  bar->OnChange = [&](TObject*) { heard += std::to_string(bar->Position()) + " "; };
  bar->SetRange(-5, 100);
  bar->SetPageSize(10);
  ShowForm();
  bar->SetFocus();
  bar->SetPosition(1000);
  Key(VK_LEFT);
  Key(VK_PRIOR);
  bar->SetMax(50);
  EXPECT_EQ(heard, "100 99 89 50 ");
  EXPECT_EQ(::SendMessageW(bar->Handle(), TBM_GETPOS, 0, 0), 50);
  bar->RecreateWnd();
  EXPECT_EQ(::SendMessageW(bar->Handle(), TBM_GETPOS, 0, 0), 50);
  EXPECT_THROW(bar->SetMin(51), EArgumentOutOfRangeException);
  EXPECT_EQ(bar->Min(), -5);
}

TEST_F(Pages, ATimerTicksUntilItIsStoppedOrFreed) {
  TTimer stopped(nullptr);
  auto* freed = new TTimer(nullptr);
  int ticks = 0;
  int others = 0;
  stopped.SetInterval(10);
  stopped.OnTimer = [&](TObject*) { ++ticks; };
  freed->SetInterval(10);
  freed->OnTimer = [&](TObject*) {
    ++others;
    delete freed;
  };
  EXPECT_TRUE(testinput::PumpUntil([&] { return ticks >= 3 && others == 1; }));
  stopped.SetEnabled(false);
  const int seen = ticks;
  testinput::PumpFor(50);
  EXPECT_EQ(ticks, seen);
  EXPECT_EQ(others, 1);
}

constexpr const char* StandardForm = R"(object Form1: TForm Width = 400 Height = 300
  object PageControl1: TPageControl
    Left = 8 Top = 8 Width = 380 Height = 200 ActivePage = TabSheet2
    object TabSheet1: TTabSheet Caption = 'First'
      object ListBox1: TListBox Sorted = True Items.Strings = ('pear' 'apple') end
    end
    object TabSheet2: TTabSheet Caption = 'Second'
      object ComboBox1: TComboBox
        Style = csDropDownList ItemIndex = 1 Items.Strings = ('a' 'b')
      end
      object ComboBox2: TComboBox
        Style = csDropDownList Text = 'b' Items.Strings = ('a' 'b')
      end
      object RadioButton1: TRadioButton Checked = True TabStop = True end
      object RadioButton2: TRadioButton end
      object Memo1: TMemo Lines.Strings = ('one' 'two') ScrollBars = ssVertical end
      object Edit1: TEdit PasswordChar = '*' Text = 'secret' end
    end
  end
  object Label1: TLabel Caption = '&Edit' FocusControl = Edit1 end
end
)";

class TReadForm : public TForm {
 public:
  explicit TReadForm(const std::string& text) : TForm(nullptr) { ReadForm(text, this); }
  template <class T>
  T* Get(const char* name) {
    return dynamic_cast<T*>(FindComponent(name));
  }
};

TEST_F(Pages, AFormFileHoldsTheStandardControls) {
  RegisterStandardClasses();
  TReadForm form(StandardForm);
  auto* pages = form.Get<TPageControl>("PageControl1");
  ASSERT_NE(pages, nullptr);
  EXPECT_EQ(pages->PageCount(), 2);
  EXPECT_EQ(pages->ActivePage(), form.Get<TTabSheet>("TabSheet2"));
  EXPECT_FALSE(pages->Pages(0)->Visible());
  EXPECT_EQ(form.Get<TListBox>("ListBox1")->Items()->CommaText(), "apple,pear");
  EXPECT_EQ(form.Get<TComboBox>("ComboBox1")->Text(), "b");
  EXPECT_EQ(form.Get<TComboBox>("ComboBox2")->ItemIndex(), 1);
  EXPECT_TRUE(form.Get<TRadioButton>("RadioButton1")->Checked());
  EXPECT_EQ(form.Get<TMemo>("Memo1")->Lines()->CommaText(), "one,two");
  EXPECT_EQ(form.Get<TEdit>("Edit1")->Text(), "secret");
  EXPECT_EQ(form.Get<TLabel>("Label1")->FocusControl(), form.Get<TEdit>("Edit1"));

  TReadForm again(FormText(&form));
  EXPECT_EQ(FormText(&again), FormText(&form));
  form.Show();
  testinput::Pump();
  EXPECT_TRUE(::IsWindowVisible(form.Get<TMemo>("Memo1")->Handle()));
  EXPECT_EQ(form.Get<TComboBox>("ComboBox1")->Text(), "b");
}

}  // namespace
}  // namespace vcl
