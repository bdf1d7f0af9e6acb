// What a screen reader learns of the class library's controls: it asks the system for objects, and
// listens to events.
#include <algorithm>
#include <atomic>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/screenreader.h"
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/controls/accelerators.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/stdctrls/buttons.h"

namespace vcl {
namespace {

using namespace screenreader;
using testinput::PumpUntil;

class Accessible : public TStandardForm {
 protected:
  TSpoken Whole() { return OfWindow(Form.Handle()); }
  TSpoken Of(TWinControl& control) { return OfWindow(control.Handle()); }
};

struct TExpected {
  const char* ClassName;
  long Role;
  const char* Action;
};

// Of the standard classes all that are controls.
constexpr TExpected Expected[] = {
    {"TBevel", ROLE_SYSTEM_SEPARATOR, ""},
    {"TBitBtn", ROLE_SYSTEM_PUSHBUTTON, "Press"},
    {"TButton", ROLE_SYSTEM_PUSHBUTTON, "Press"},
    {"TCheckBox", ROLE_SYSTEM_CHECKBUTTON, "Check"},
    {"TCheckListBox", ROLE_SYSTEM_LIST, ""},
    {"TComboBox", ROLE_SYSTEM_COMBOBOX, "Open"},
    {"TCoolBar", ROLE_SYSTEM_TOOLBAR, ""},
    {"TDateTimePicker", ROLE_SYSTEM_COMBOBOX, ""},
    {"TEdit", ROLE_SYSTEM_TEXT, ""},
    {"TGroupBox", ROLE_SYSTEM_GROUPING, ""},
    {"THeaderControl", ROLE_SYSTEM_LIST, ""},
    {"THotKey", ROLE_SYSTEM_HOTKEYFIELD, ""},
    {"TImage", ROLE_SYSTEM_GRAPHIC, ""},
    {"TLabel", ROLE_SYSTEM_STATICTEXT, ""},
    {"TListBox", ROLE_SYSTEM_LIST, ""},
    {"TListView", ROLE_SYSTEM_LIST, ""},
    {"TMemo", ROLE_SYSTEM_TEXT, ""},
    {"TMonthCalendar", ROLE_SYSTEM_TABLE, ""},
    {"TPageControl", ROLE_SYSTEM_PAGETABLIST, ""},
    {"TPaintBox", ROLE_SYSTEM_GRAPHIC, ""},
    {"TPanel", ROLE_SYSTEM_PANE, ""},
    {"TProgressBar", ROLE_SYSTEM_PROGRESSBAR, ""},
    {"TRadioButton", ROLE_SYSTEM_RADIOBUTTON, "Check"},
    {"TRadioGroup", ROLE_SYSTEM_GROUPING, ""},
    {"TScrollBar", ROLE_SYSTEM_SCROLLBAR, ""},
    {"TShape", ROLE_SYSTEM_GRAPHIC, ""},
    {"TSpeedButton", ROLE_SYSTEM_PUSHBUTTON, "Press"},
    {"TStaticText", ROLE_SYSTEM_STATICTEXT, ""},
    {"TStatusBar", ROLE_SYSTEM_STATUSBAR, ""},
    {"TTabControl", ROLE_SYSTEM_PAGETABLIST, ""},
    {"TTabSheet", ROLE_SYSTEM_PROPERTYPAGE, ""},
    {"TToolBar", ROLE_SYSTEM_TOOLBAR, ""},
    {"TToolButton", ROLE_SYSTEM_PUSHBUTTON, "Press"},
    {"TTrackBar", ROLE_SYSTEM_SLIDER, ""},
    {"TTreeView", ROLE_SYSTEM_OUTLINE, ""},
    {"TUpDown", ROLE_SYSTEM_SPINBUTTON, ""},
};

const TExpected* ExpectedOf(const TClass& aClass) {
  const auto* found = std::ranges::find_if(
      Expected, [&](const TExpected& each) { return aClass.Name() == each.ClassName; });
  return found == std::end(Expected) ? nullptr : found;
}

std::size_t PlaceOf(const TControl& control) {
  int place = 0;
  while (control.Parent()->Controls(place) != &control) ++place;
  return static_cast<std::size_t>(place);
}

TEST_F(Accessible, EveryClassHasARoleAndTheNameOfItsCaption) {
  RegisterStandardClasses();
  auto* pages = Make<TPageControl>(250, 0);
  std::size_t tested = 0;
  for (const TClass* each : RegisteredClasses()) {
    if (!each->InheritsFrom(TControl::Class()) || each->InheritsFrom(TCustomForm::Class()) ||
        !each->Maker().Component) {
      continue;
    }
    const TExpected* expected = ExpectedOf(*each);
    if (!expected) continue;
    ++tested;
    const std::unique_ptr<TComponent> made(each->Maker().Component(nullptr));
    auto& control = dynamic_cast<TControl&>(*made);
    auto* page = dynamic_cast<TTabSheet*>(&control);
    page ? page->SetPageControl(pages) : control.SetParent(&Form);
    control.SetName("Made");
    const bool caption = each->FindPublished("Caption") != nullptr;
    if (caption) control.SetCaption("Save && &go");
    ShowForm();
    TWinControl* parent = control.Parent();
    const TSpoken spoken = ChildrenOf(Of(*parent))[PlaceOf(control)];
    EXPECT_EQ(spoken.Role(), expected->Role) << each->Name();
    EXPECT_EQ(spoken.Action(), expected->Action) << each->Name();
    EXPECT_EQ(spoken.Name(), caption ? "Save & go" : "") << each->Name();
    control.SetAccessibleName("Own name");
    EXPECT_EQ(spoken.Name(), "Own name") << each->Name();
  }
  EXPECT_EQ(tested, std::size(Expected));
}

TEST_F(Accessible, NamesAndKeysComeFromTheLabelWhoseControlItIs) {
  auto* group = Make<TGroupBox>(0, 0);
  auto* label = Make<TLabel>(5, 20, group);
  auto* edit = Make<TEdit>(60, 20);
  auto* secret = Make<TEdit>(60, 50);
  label->SetCaption("Street && &house:");
  label->SetFocusControl(edit);
  edit->SetText("Hill 5");
  edit->SetHint("Where you live|and work");
  secret->SetText("1234");
  secret->SetPasswordChar('*');
  secret->SetReadOnly(true);
  ShowForm();
  const TSpoken spoken = Of(*edit);
  EXPECT_EQ(spoken.Name(), "Street & house:");
  EXPECT_EQ(spoken.Keys(), "Alt+H");
  EXPECT_EQ(spoken.Value(), "Hill 5");
  EXPECT_EQ(spoken.Description(), "Where you live");
  EXPECT_TRUE(spoken.Has(STATE_SYSTEM_FOCUSABLE));
  EXPECT_EQ(spoken.State() & STATE_SYSTEM_READONLY, 0);
  edit->SetAccessibleName("Address");
  EXPECT_EQ(spoken.Name(), "Address");
  label->SetShowAccelChar(false);
  edit->SetAccessibleName("");
  EXPECT_EQ(spoken.Name(), "Street && &house:");
  // A password is nobody's business.
  EXPECT_TRUE(Of(*secret).Has(STATE_SYSTEM_PROTECTED | STATE_SYSTEM_READONLY));
  BSTR value = nullptr;
  EXPECT_EQ(Of(*secret).Object->get_accValue(Number(CHILDID_SELF), &value), E_ACCESSDENIED);
  EXPECT_EQ(Of(*secret).Name(), "");
}

TEST_F(Accessible, StatesFollowTheControls) {
  auto* panel = Make<TPanel>(0, 0);
  auto* check = Make<TCheckBox>(5, 5, panel);
  auto* button = Make<TButton>(200, 5);
  auto* speed = Make<TSpeedButton>(300, 5);
  button->SetDefault(true);
  speed->SetGroupIndex(1);
  ShowForm();
  check->SetAllowGrayed(true);
  EXPECT_EQ(Of(*check).State() & (STATE_SYSTEM_CHECKED | STATE_SYSTEM_MIXED), 0);
  check->SetState(cbGrayed);
  EXPECT_TRUE(Of(*check).Has(STATE_SYSTEM_MIXED));
  check->SetChecked(true);
  EXPECT_TRUE(Of(*check).Has(STATE_SYSTEM_CHECKED));
  EXPECT_EQ(Of(*check).Action(), "Uncheck");
  check->SetFocus();
  EXPECT_TRUE(Of(*check).Has(STATE_SYSTEM_FOCUSED));
  EXPECT_TRUE(Of(*button).Has(STATE_SYSTEM_DEFAULT));
  EXPECT_EQ(Of(*button).State() & STATE_SYSTEM_FOCUSED, 0);
  // What is around a control disables and hides it, too.
  panel->SetEnabled(false);
  EXPECT_TRUE(Of(*check).Has(STATE_SYSTEM_UNAVAILABLE));
  EXPECT_EQ(Of(*check).State() & STATE_SYSTEM_FOCUSABLE, 0);
  panel->SetVisible(false);
  EXPECT_TRUE(Of(*check).Has(STATE_SYSTEM_INVISIBLE));
  speed->SetDown(true);
  EXPECT_TRUE(ChildrenOf(Whole())[0].Has(STATE_SYSTEM_PRESSED));
}

TEST_F(Accessible, DefaultActionsAreDoneOnceTheCallHasReturned) {
  auto* button = Make<TButton>(0, 0);
  auto* check = Make<TCheckBox>(0, 40);
  auto* speed = Make<TSpeedButton>(100, 0);
  auto* label = Make<TLabel>(200, 0);
  std::string clicks;
  button->OnClick = [&](TObject*) { clicks += "button "; };
  speed->OnClick = [&](TObject*) { clicks += "speed "; };
  speed->SetCaption("Quick");
  label->SetCaption("Text");
  ShowForm();
  EXPECT_EQ(Of(*button).Do(), S_OK);
  EXPECT_EQ(clicks, "");
  EXPECT_TRUE(PumpUntil([&] { return clicks == "button "; }));
  EXPECT_EQ(Named(Whole(), "Quick").Do(), S_OK);
  EXPECT_EQ(Of(*check).Do(), S_OK);
  EXPECT_TRUE(PumpUntil([&] { return clicks == "button speed " && check->Checked(); }));
  EXPECT_EQ(Named(Whole(), "Text").Do(), DISP_E_MEMBERNOTFOUND);
  button->SetEnabled(false);
  EXPECT_EQ(Of(*button).Do(), E_ACCESSDENIED);
  // What the handler raises is the application's, like that of any click.
  button->SetEnabled(true);
  button->OnClick = [](TObject*) { throw EInvalidOperation("not now"); };
  EXPECT_EQ(Of(*button).Do(), S_OK);
  EXPECT_TRUE(PumpUntil([&] { return Errors == "not now"; }));
  Errors.clear();
  // A control that is freed meanwhile does nothing.
  EXPECT_EQ(Of(*check).Do(), S_OK);
  delete check;
  testinput::Pump();
}

TEST_F(Accessible, TheTreeHoldsAllControlsAndKnowsTheWayBack) {
  auto* panel = Make<TPanel>(10, 20);
  auto* edit = Make<TEdit>(5, 5, panel);
  auto* label = Make<TLabel>(130, 10, panel);
  auto* button = Make<TButton>(300, 20);
  label->SetCaption("Inner");
  edit->SetAccessibleName("Editor");
  ShowForm();
  const TSpoken form = Whole();
  const std::vector<TSpoken> outer = ChildrenOf(form);
  ASSERT_EQ(outer.size(), 2u);
  EXPECT_EQ(outer[0].Role(), ROLE_SYSTEM_PANE);
  EXPECT_EQ(outer[1].Role(), ROLE_SYSTEM_PUSHBUTTON);
  const std::vector<TSpoken> inner = ChildrenOf(outer[0]);
  ASSERT_EQ(inner.size(), 2u);
  // Those without a window are the lower ones.
  EXPECT_EQ(inner[0].Name(), "Inner");
  EXPECT_EQ(inner[1].Name(), "Editor");
  EXPECT_EQ(ParentOf(inner[0]).Role(), ROLE_SYSTEM_PANE);
  EXPECT_EQ(ParentOf(ParentOf(inner[0])).Name(), Form.Caption());
  HWND window = nullptr;
  ::WindowFromAccessibleObject(ParentOf(form).Object.get(), &window);
  EXPECT_EQ(window, Form.Handle());

  const TPoint corner = label->ClientOrigin();
  const RECT place = inner[0].Place();
  EXPECT_EQ(TRect(place),
            TRect(corner.X, corner.Y, corner.X + label->Width(), corner.Y + label->Height()));
  EXPECT_EQ(::WindowFromAccessibleObject(inner[0].Object.get(), &window), S_OK);
  EXPECT_EQ(window, panel->Handle());

  const auto go = [](const TSpoken& from, long direction) {
    VARIANT end;
    ::VariantInit(&end);
    from.Object->accNavigate(direction, Number(CHILDID_SELF), &end);
    return Take(from, end);
  };
  EXPECT_EQ(go(outer[0], NAVDIR_LASTCHILD).Name(), "Editor");
  EXPECT_EQ(go(inner[0], NAVDIR_NEXT).Name(), "Editor");
  EXPECT_EQ(go(inner[1], NAVDIR_PREVIOUS).Name(), "Inner");
  EXPECT_FALSE(go(inner[1], NAVDIR_NEXT));
  EXPECT_EQ(go(inner[1], NAVDIR_RIGHT).Name(), "Inner");
  EXPECT_FALSE(go(inner[1], NAVDIR_LEFT));

  const auto at = [](const TSpoken& from, TPoint point) {
    VARIANT hit;
    ::VariantInit(&hit);
    from.Object->accHitTest(point.X, point.Y, &hit);
    return Take(from, hit);
  };
  EXPECT_EQ(at(form, testinput::MiddleOf(edit)).Role(), ROLE_SYSTEM_PANE);
  EXPECT_EQ(at(outer[0], testinput::MiddleOf(edit)).Name(), "Editor");
  EXPECT_EQ(at(outer[0], panel->ClientToScreen({1, 1})).Child, CHILDID_SELF);
  EXPECT_FALSE(at(outer[0], testinput::MiddleOf(button)));
  IAccessible* found = nullptr;
  VARIANT part = Number(0);
  const TPoint middle = testinput::MiddleOf(label);
  ASSERT_EQ(::AccessibleObjectFromPoint({middle.X, middle.Y}, &found, &part), S_OK);
  EXPECT_EQ((TSpoken{{found, TReleaser()}, part.lVal}.Name()), "Inner");

  EXPECT_EQ(inner[1].Select(SELFLAG_TAKEFOCUS), S_OK);
  EXPECT_TRUE(edit->Focused());
  VARIANT focus;
  ::VariantInit(&focus);
  EXPECT_EQ(form.Object->get_accFocus(&focus), S_OK);
  EXPECT_EQ(Take(form, focus).Name(), "Editor");
}

TEST_F(Accessible, TabsAndPanelsOfBarsAreParts) {
  auto* pages = Make<TPageControl>(0, 0);
  for (const char* caption : {"&First", "&Second"}) {
    auto* page = new TTabSheet(&Form);
    page->SetPageControl(pages);
    page->SetCaption(caption);
  }
  auto* bar = Make<TStatusBar>(0, 0);
  bar->Panels()->Add()->SetText("Ready");
  bar->Panels()->Add()->SetText("Line 5");
  pages->SetActivePageIndex(0);
  ShowForm();
  const std::vector<TSpoken> inside = ChildrenOf(Of(*pages));
  ASSERT_EQ(inside.size(), 4u);
  EXPECT_EQ(inside[1].Role(), ROLE_SYSTEM_PROPERTYPAGE);
  EXPECT_TRUE(inside[1].Has(STATE_SYSTEM_INVISIBLE));
  const TSpoken& tab = inside[3];
  EXPECT_EQ(tab.Role(), ROLE_SYSTEM_PAGETAB);
  EXPECT_EQ(tab.Name(), "Second");
  EXPECT_EQ(tab.Keys(), "Alt+S");
  EXPECT_TRUE(inside[2].Has(STATE_SYSTEM_SELECTED));
  const RECT place = tab.Place();
  const TPoint middle = pages->ScreenToClient(
      {static_cast<int>(place.left + place.right) / 2, static_cast<int>(place.top + 5)});
  EXPECT_EQ(pages->PageAtPos(middle), pages->Pages(1));
  TListener listener;
  EXPECT_EQ(tab.Do(), S_OK);
  EXPECT_TRUE(PumpUntil([&] { return listener.Heard(EVENT_OBJECT_SELECTION, "Second"); }));
  EXPECT_EQ(pages->ActivePageIndex(), 1);
  VARIANT selected;
  ::VariantInit(&selected);
  const TSpoken control = Of(*pages);
  EXPECT_EQ(control.Object->get_accSelection(&selected), S_OK);
  EXPECT_EQ(Take(control, selected).Name(), "Second");

  const std::vector<TSpoken> panels = ChildrenOf(Of(*bar));
  ASSERT_EQ(panels.size(), 2u);
  EXPECT_EQ(panels[1].Name(), "Line 5");
  bar->Panels()->Items(1)->SetText("Line 6");
  EXPECT_TRUE(PumpUntil([&] { return listener.Heard(EVENT_OBJECT_NAMECHANGE, "Line 6"); }));
  // A part that is there no more says so.
  bar->Panels()->Clear();
  VARIANT role = Number(0);
  EXPECT_EQ(panels[1].Object->get_accRole(Number(CHILDID_SELF), &role), CO_E_OBJNOTCONNECTED);
}

TEST_F(Accessible, ListenersHearOfChanges) {
  auto* label = Make<TLabel>(0, 0);
  auto* edit = Make<TEdit>(60, 0);
  auto* check = Make<TCheckBox>(0, 40);
  auto* bar = Make<TTrackBar>(0, 80);
  label->SetFocusControl(edit);
  check->SetCaption("Loud");
  bar->SetAccessibleName("Volume");
  ShowForm();
  bar->SetFocus();
  TListener listener;
  const auto hears = [&](DWORD event, const std::string& name) {
    const bool heard = PumpUntil([&] { return listener.Heard(event, name); });
    listener.Forget();
    return heard;
  };
  label->SetCaption("&Town");
  EXPECT_TRUE(hears(EVENT_OBJECT_NAMECHANGE, "Town"));
  edit->SetFocus();
  EXPECT_TRUE(hears(EVENT_OBJECT_FOCUS, "Town"));
  Type("x");
  EXPECT_TRUE(hears(EVENT_OBJECT_VALUECHANGE, "Town"));
  check->SetChecked(true);
  EXPECT_TRUE(hears(EVENT_OBJECT_STATECHANGE, "Loud"));
  check->SetCaption("Quiet");
  EXPECT_TRUE(hears(EVENT_OBJECT_NAMECHANGE, "Quiet"));
  bar->SetPosition(3);
  EXPECT_TRUE(hears(EVENT_OBJECT_VALUECHANGE, "Volume"));
  label->SetEnabled(false);
  EXPECT_TRUE(hears(EVENT_OBJECT_STATECHANGE, "Town"));
}

TEST_F(Accessible, AnObjectOutlivesItsControl) {
  auto* panel = Make<TPanel>(0, 0);
  auto* button = Make<TButton>(0, 0, panel);
  auto* label = Make<TLabel>(100, 0, panel);
  label->SetCaption("Gone soon");
  ShowForm();
  const TSpoken spoken = Of(*button);
  const TSpoken text = Named(Whole(), "Gone soon");
  delete panel;
  for (const TSpoken& each : {spoken, text}) {
    BSTR name = nullptr;
    VARIANT any = Number(0);
    IDispatch* parent = nullptr;
    EXPECT_EQ(each.Object->get_accName(Number(CHILDID_SELF), &name), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(each.Object->get_accState(Number(CHILDID_SELF), &any), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(each.Object->get_accParent(&parent), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(each.Object->accHitTest(0, 0, &any), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(each.Do(), CO_E_OBJNOTCONNECTED);
  }
  EXPECT_EQ(Whole().Object->get_accName(Number(77), nullptr), E_POINTER);
  BSTR name = nullptr;
  EXPECT_EQ(Whole().Object->get_accName(Number(77), &name), E_INVALIDARG);
}

// The system carries the calls from one thread to the other.
TEST_F(Accessible, AnotherThreadAsksAsWell) {
  auto* button = Make<TButton>(0, 0);
  button->SetCaption("&Press me");
  ShowForm();
  const HWND window = button->Handle();
  std::string name;
  std::atomic<bool> done = false;
  std::thread reader([&] {
    ::CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    if (const TSpoken spoken = OfWindow(window)) name = spoken.Name();
    ::CoUninitialize();
    done = true;
  });
  EXPECT_TRUE(PumpUntil([&] { return done.load(); }));
  reader.join();
  EXPECT_EQ(name, "Press me");
}

TEST_F(Accessible, NamesAreWrittenIntoFormFiles) {
  auto* edit = Make<TEdit>(0, 0);
  edit->SetName("Edit");
  EXPECT_EQ(FormText(&Form).find("AccessibleName"), std::string::npos);
  edit->SetAccessibleName("Street");
  EXPECT_THAT(FormText(&Form), ::testing::HasSubstr("AccessibleName = 'Street'"));
}

TEST(Accelerators, AreTakenOutOfCaptionsAndNamed) {
  EXPECT_EQ(WithoutAccel("Save && &go&"), "Save & go");
  EXPECT_EQ(AccelKeys("Save && &go"), "Alt+G");
  EXPECT_EQ(AccelKeys("&\xc3\xa4ndern"), "Alt+\xc3\x84");
  EXPECT_EQ(AccelKeys("100 && more &"), "");
}

}  // namespace
}  // namespace vcl
