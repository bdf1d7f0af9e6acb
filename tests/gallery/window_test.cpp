// The gallery's window under real mouse and keyboard: pages, events, settings, drag and drop, the
// menu.

#include <filesystem>

#include "demos/gallery/galleryform.h"
#include "tests/support/kepthandles.h"
#include "tests/vcl/testinput.h"

namespace gallery_test {
namespace {

using namespace qel;
using namespace testinput;
using namespace vcl;

class Gallery : public ::testing::Test {
 protected:
  Gallery() : Form(nullptr) {
    Form.Show();
    ::SetForegroundWindow(Form.Handle());
    PumpUntil([&] { return Form.Active(); });
  }
  template <class T = TControl>
  T* Find(const char* name) {
    T* found = dynamic_cast<T*>(Form.FindComponent(name));
    if (!found) throw EComponentError(std::string("The form has no ") + name);
    return found;
  }
  /// Clicks the page's tab.
  void GoTo(int index) {
    RECT tab{};
    ::SendMessageW(Form.Pages->Handle(), TCM_GETITEMRECT, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(&tab));
    POINT middle{(tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2};
    ::ClientToScreen(Form.Pages->Handle(), &middle);
    Click(TPoint(middle));
    ASSERT_TRUE(PumpUntil([&] { return Form.Pages->ActivePageIndex() == index; }));
  }
  bool Logged(const std::string& text) {
    const TStrings* lines = Find<TListBox>("EventList")->Items();
    for (int i = 0; i < lines->Count(); ++i)
      if (lines->Strings(i).rfind(text, 0) == 0) return true;
    return false;
  }
  void ExpectLogged(std::initializer_list<const char*> texts) {
    for (const char* each : texts) EXPECT_TRUE(PumpUntil([&] { return Logged(each); })) << each;
  }
  /// Clicks and then types what chooses in the box that drops down.
  void Choose(const char* name, std::initializer_list<WORD> keys) {
    Click(Find(name));
    for (const WORD key : keys) TypeKey(key);
  }
  /// Replaces the text of an edit by typing.
  void Type(const char* name, const std::string& keys) {
    Click(Find(name));
    TypeKey('A', {VK_CONTROL});
    for (const char key : keys) TypeKey(static_cast<WORD>(key));
  }
  std::string Status() { return Find<TPanel>("StatusPanel")->Caption(); }

  gallery::TGalleryForm Form;
};

/// The pixels of a control as they are on the screen.
std::vector<COLORREF> ScreenPixels(const TControl* control) {
  const TPoint corner = control->ClientToScreen({0, 0});
  TBitmap copy(control->Width(), control->Height());
  const TWindowDC screen(nullptr);
  ::BitBlt(copy.Canvas()->Handle(), 0, 0, copy.Width(), copy.Height(), screen.Get(), corner.X,
           corner.Y, SRCCOPY);
  copy.SetPixelFormat(pf32bit);
  std::vector<COLORREF> pixels;
  for (int y = 0; y < copy.Height(); ++y) {
    const auto* row = static_cast<const COLORREF*>(copy.ScanLine(y));
    pixels.insert(pixels.end(), row, row + copy.Width());
  }
  return pixels;
}

TEST_F(Gallery, AButtonLogsItsEventsAndShowsItsSettings) {
  Click(Find("RaisedButton"));
  ExpectLogged({"RaisedButton.OnClick"});
  EXPECT_EQ(Find<TComboBox>("ButtonStyle3DBox")->Text(), "fontRaised");
  Click(Find("EventsButton"));
  ExpectLogged({"EventsButton.OnMouseDown  mbLeft", "EventsButton.OnMouseUp  mbLeft",
                "EventsButton.OnClick"});
  EXPECT_EQ(Find<TComboBox>("ButtonSubjectBox")->Text(), "EventsButton");
}

TEST_F(Gallery, SettingsChangeTheButtonAtOnce) {
  auto* button = Find<TQELButton>("FourImageButton");
  Click(button);
  ExpectLogged({"FourImageButton.OnClick"});
  Type("ButtonCaptionEdit", "NEW");
  EXPECT_TRUE(PumpUntil([&] { return SameText(button->Caption(), "new"); })) << button->Caption();
  Click(Find("ButtonEnabledCheck"));
  EXPECT_TRUE(PumpUntil([&] { return !button->Enabled(); }));
  Type("ButtonNumGlyphsEdit", "2");
  EXPECT_TRUE(PumpUntil([&] { return button->Glyph()->NumGlyphs() == 2; }));
  Choose("ButtonRepetitionBox", {VK_UP});
  EXPECT_TRUE(PumpUntil([&] { return button->Font3D()->Repetition() == repeatOnHighLight; }));
}

TEST_F(Gallery, TheHintOfASettingStandsBelow) {
  MoveMouse(MiddleOf(Find("ButtonNumGlyphsEdit")));
  const std::string hint = Find("ButtonNumGlyphsEdit")->Hint();
  ASSERT_NE(hint, "");
  EXPECT_TRUE(PumpUntil([&] { return Status() == " " + hint; })) << Status();
}

TEST_F(Gallery, TheFieldsOfHintsGoToEachEdgeOfTheScreen) {
  GoTo(6);
  const auto press = [&](const char* name) {
    Form.SetBounds(30, 30, Form.Width(), Form.Height());
    Click(Find(name));
    PumpUntil([&] { return Form.Left() != 30 || Form.Top() != 30; });
    const TControl* const last = Find("HintDownRightField");
    const TPoint from = Find("HintUpLeftField")->ClientToScreen({});
    const TPoint to = last->ClientToScreen({last->Width(), last->Height()});
    return TRect(from.X, from.Y, to.X, to.Y);
  };
  EXPECT_EQ(press("HintLeftEdgeButton").Left, 0);
  EXPECT_EQ(press("HintTopEdgeButton").Top, 0);
  EXPECT_EQ(press("HintRightEdgeButton").Right, Screen()->Width());
  EXPECT_EQ(press("HintBottomEdgeButton").Bottom, Screen()->Height());
}

TEST_F(Gallery, AWrongTextKeepsTheValueAndIsMarked) {
  auto* button = Find<TQELButton>("RaisedButton");
  auto* edit = Find<TEdit>("ButtonOffsetEdit");
  Click(button);
  ExpectLogged({"RaisedButton.OnClick"});
  const TColor unmarked = edit->Color();
  for (const char* wrong : {"X", "0"}) {
    Type("ButtonOffsetEdit", wrong);
    EXPECT_TRUE(PumpUntil([&] { return edit->Color() != unmarked; })) << wrong;
    EXPECT_NE(Status(), "") << wrong;
    EXPECT_EQ(button->Font3D()->Offset(), 1) << wrong;
    Click(Find("ButtonCaptionEdit"));
    EXPECT_TRUE(PumpUntil([&] { return edit->Text() == "1"; })) << "the value comes back";
    EXPECT_EQ(edit->Color(), unmarked);
  }
  Type("ButtonOffsetEdit", "2");
  EXPECT_TRUE(PumpUntil([&] { return button->Font3D()->Offset() == 2; }));
  EXPECT_EQ(edit->Color(), unmarked);
}

TEST_F(Gallery, ABackgroundsSettingsChangeAllItsClients) {
  GoTo(2);
  const char* clients[] = {"SharedLabel",        "SharedButton", "SharedGlyphButton",
                           "SharedLettersLabel", "SharedTile",   "SharedSunkButton"};
  const auto look = [&] {
    std::vector<std::vector<COLORREF>> pixels;
    for (const char* name : clients) pixels.push_back(ScreenPixels(Find(name)));
    return pixels;
  };
  auto* shared = Find<TQELBackground>("SharedBackground");
  const auto change = [&](const char* what, const std::function<void()>& act) {
    const auto before = look();
    const std::string fired = Find<TLabel>("ChangesLabel")->Caption();
    act();
    EXPECT_TRUE(PumpUntil([&] {
      const auto now = look();
      for (std::size_t i = 0; i < before.size(); ++i)
        if (now[i] == before[i]) return false;
      return true;
    })) << what;
    EXPECT_NE(Find<TLabel>("ChangesLabel")->Caption(), fired) << what;
  };
  const TQELFillStyle former = shared->Gradient()->FillStyle();
  change("FillStyle", [&] { Choose("BackFillStyleBox", {VK_DOWN, VK_RETURN}); });
  EXPECT_EQ(shared->Gradient()->FillStyle(), former + 1);
  change("BackgroundStyle", [&] { Choose("BackStyleBox", {VK_DOWN, VK_RETURN}); });
  EXPECT_EQ(shared->BackgroundStyle(), bTexture);
  change("Image", [&] { Choose("BackImageBox", {VK_END, VK_UP, VK_RETURN}); });
}

TEST_F(Gallery, ColoursInBetweenAreCheckedLineByLine) {
  GoTo(2);
  auto* shared = Find<TQELBackground>("SharedBackground");
  auto* memo = Find<TMemo>("BackBetweenMemo");
  const std::string before = shared->Gradient()->ColorsInBetween()->Text();
  memo->SetText("clYellow\r\nno colour");
  EXPECT_EQ(shared->Gradient()->ColorsInBetween()->Text(), before);
  EXPECT_NE(Status().find("no colour"), std::string::npos) << Status();
  memo->SetText("clYellow\r\n$0000FF");
  EXPECT_EQ(shared->Gradient()->ColorsInBetween()->Text(), "clYellow\r\n$0000FF\r\n");
  EXPECT_EQ(Status(), "");
}

TEST_F(Gallery, LabelSettingsChangeAllOfTheirLabels) {
  GoTo(1);
  Type("LabelOffsetEdit", "5");
  Type("LabelFrameWidthEdit", "3");
  const auto all = [&] {
    for (const char* name :
         {"RaisedNoneLabel", "OutLineShadowOnHighLightLabel", "InsetOnShadowLabel"})
      if (Find<TQELLabel>(name)->Font3D()->Offset() != 5) return false;
    for (const char* name : {"FrameSolidLabel", "FrameLightBorderedLabel"})
      if (Find<TQELLabel>(name)->Frame()->FrameWidth() != 3) return false;
    return true;
  };
  EXPECT_TRUE(PumpUntil(all));
  auto* sample = Find<TQELLabel>("SampleLabel");
  Choose("LabelSampleFontBackgroundBox", {VK_HOME, VK_RETURN});
  EXPECT_TRUE(PumpUntil([&] { return sample->FontBackground() == nullptr; }));
}

TEST_F(Gallery, TheLiveGaugeRunsBetweenStartAndStop) {
  GoTo(3);
  auto* live = Find<TQELGauge>("LiveGauge");
  const int start = live->Percentage();
  const auto before = ScreenPixels(live);
  Click(Find("LiveStartButton"));
  EXPECT_TRUE(PumpUntil([&] { return live->Percentage() > start + 3; }));
  EXPECT_NE(ScreenPixels(live), before);
  Click(Find("LiveStopButton"));
  PumpFor(200);
  const int stopped = live->Percentage();
  PumpFor(200);
  EXPECT_EQ(live->Percentage(), stopped);
}

TEST_F(Gallery, SteppingASpinEditMovesItsGaugeAndItsSettings) {
  GoTo(4);
  auto* spin = Find<TQELSpinEdit>("SampleSpin");
  Click(spin);
  TypeKey(VK_PRIOR);
  TypeKey(VK_UP);
  EXPECT_TRUE(PumpUntil([&] { return Find<TEdit>("SpinValueEdit")->Text() == "360"; }));
  EXPECT_EQ(Find<TQELGauge>("SpinGauge")->Percentage(), 68);
}

/// Drags from one control to another with the left button.
void Drag(const TControl* from, const TControl* to) {
  const TPoint start = MiddleOf(from), end = MiddleOf(to);
  MoveMouse(start);
  LeftDown();
  for (int step = 1; step <= 4; ++step)
    MoveMouse({start.X + (end.X - start.X) * step / 4, start.Y + (end.Y - start.Y) * step / 4});
  LeftUp();
}

TEST_F(Gallery, StonesAreDroppedOnTheLabelTheListAndTheBin) {
  auto* label = Find<TQELLabel>("DropLabel");
  auto* list = Find<TListBox>("DropList");
  Drag(Find("RubyButton"), label);
  EXPECT_TRUE(PumpUntil([&] { return label->Caption() == "Ruby"; })) << label->Caption();
  EXPECT_EQ(label->Font()->Color(), clMaroon);
  for (const char* each : {"RubyButton.OnStartDrag", "DropLabel.OnDragOver  enters Ruby",
                           "DropLabel.OnDragDrop  Ruby", "RubyButton.OnEndDrag  on DropLabel"})
    EXPECT_TRUE(Logged(each)) << each;
  Drag(Find("EmeraldButton"), list);
  Drag(Find("SapphireButton"), list);
  EXPECT_TRUE(PumpUntil([&] { return list->Items()->CommaText() == "Emerald,Sapphire"; }))
      << list->Items()->CommaText();
  Drag(Find("EmeraldButton"), Find("TrashButton"));
  EXPECT_TRUE(PumpUntil([&] { return list->Items()->CommaText() == "Sapphire"; }));
  Drag(Find("EmeraldButton"), Find("EventList"));
  ExpectLogged({"EmeraldButton.OnEndDrag  on nothing"});
  Click(Find("TrashButton"));
  EXPECT_TRUE(PumpUntil([&] { return list->Items()->Count() == 0; }));
}

bool MenuIsUp() {
  const HWND menu = ::FindWindowW(L"#32768", nullptr);
  return menu && ::IsWindowVisible(menu);
}

TEST_F(Gallery, ThePopupMenuChangesItsButton) {
  auto* button = Find<TQELButton>("FlatButton");
  ASSERT_FALSE(button->WordWrap());
  {
    const TKeysWhen key(&MenuIsUp, {'W'});
    MoveMouse(MiddleOf(button));
    RightDown();
    RightUp();
    EXPECT_TRUE(PumpUntil([&] { return button->WordWrap(); }));
  }
  EXPECT_TRUE(Find<TCheckBox>("ButtonWordWrapCheck")->Checked()) << "the settings show it";
  EXPECT_EQ(Find<TComboBox>("ButtonSubjectBox")->Text(), "FlatButton");
}

TEST_F(Gallery, ThePageOfServicesTells) {
  TTabSheet* sheet = nullptr;
  for (int i = 0; i < Form.Pages->PageCount(); ++i) {
    if (Form.Pages->Pages(i)->Caption() == "System") sheet = Form.Pages->Pages(i);
  }
  ASSERT_TRUE(sheet);
  Form.Pages->SetActivePage(sheet);
  const auto* frame = sheet->Controls(0);
  const auto part = [&](const char* name) { return frame->FindComponent(name); };
  auto& told = dynamic_cast<TMemo&>(*part("Told"));
  for (const char* name : {"DetailsButton", "VolumeButton", "VersionButton", "ResourcesButton"}) {
    told.Clear();
    Click(dynamic_cast<TControl*>(part(name)));
    EXPECT_TRUE(PumpUntil([&] { return told.Lines()->Count() > 1; })) << name << told.Text();
  }
  auto& text = dynamic_cast<TEdit&>(*part("TemplateEdit"));
  text.SetText("%who% %nobody% 5%%");
  EXPECT_EQ(dynamic_cast<TLabel&>(*part("ExpandedLabel")).Caption(), "world %nobody% 5%");
}

TEST_F(Gallery, AddsAFolderForTheUserToName) {
  const auto folder = std::filesystem::temp_directory_path() / "gallery";
  std::filesystem::create_directories(folder / "New folder");
  GoTo(5);
  auto* tree = Find<TQELExplorerTree>("SampleExplorer");
  tree->SetDirectory(folder.string());
  Click(Find("ExplorerAddButton"));
  EXPECT_TRUE(PumpUntil([&] { return tree->IsEditing(); }));
  EXPECT_TRUE(std::filesystem::exists(folder / "New folder 2"));
  TypeKey('X');
  TypeKey(VK_RETURN);
  EXPECT_TRUE(PumpUntil([&] { return std::filesystem::exists(folder / "x"); }));
  std::filesystem::remove_all(folder);
}

TEST(GalleryForm, GivesBackWhatItTakes) {
  handles::ExpectNoneKept(3, 1, [](int) {
    gallery::TGalleryForm form(nullptr);
    for (int i = 0; i < form.Pages->PageCount(); ++i) {
      // Wine's calendar keeps the bold font that it makes of the one that it is given.
      auto* month = form.Pages->Pages(i)->Controls(0)->FindComponent("SampleMonth");
      if (month) dynamic_cast<vcl::TControl&>(*month).SetVisible(false);
    }
    form.Show();
    for (int i = 0; i < form.Pages->PageCount(); ++i) {
      form.Pages->SetActivePageIndex(i);
      Pump();
    }
  });
}

}  // namespace
}  // namespace gallery_test
