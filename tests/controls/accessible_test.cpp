// What a screen reader learns of the package's controls.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/support/registered.h"
#include "tests/support/screenreader.h"
#include "tests/vcl/standardform.h"

namespace qel {
namespace {

using namespace screenreader;
using testinput::PumpUntil;

class Accessible : public vcl::TStandardForm {
 protected:
  TSpoken Of(vcl::TWinControl& control) { return OfWindow(control.Handle()); }
};

struct TExpected {
  const char* ClassName;
  long Role;
  const char* Action;
};

constexpr TExpected Expected[] = {
    {"TQELButton", ROLE_SYSTEM_PUSHBUTTON, "Press"},
    {"TQELLabel", ROLE_SYSTEM_STATICTEXT, ""},
    {"TQELGauge", ROLE_SYSTEM_PROGRESSBAR, ""},
    {"TQELSpinButton", ROLE_SYSTEM_SPINBUTTON, ""},
    {"TQELSpinEdit", ROLE_SYSTEM_SPINBUTTON, ""},
    {"TQELExplorerTree", ROLE_SYSTEM_OUTLINE, ""},
    {"TQELRealSpinEdit", ROLE_SYSTEM_SPINBUTTON, ""},
    {"TQELColorCombo", ROLE_SYSTEM_COMBOBOX, "Open"},
    {"TQELFontCombo", ROLE_SYSTEM_COMBOBOX, "Open"},
    {"TQELFontBox", ROLE_SYSTEM_LIST, ""},
    {"TQELLanguageCombo", ROLE_SYSTEM_COMBOBOX, "Open"},
    {"TQELCheckList", ROLE_SYSTEM_LIST, ""},
    {"TQELAutoCombo", ROLE_SYSTEM_COMBOBOX, "Open"},
    {"TQELLookupEdit", ROLE_SYSTEM_COMBOBOX, "Open"},
    {"TQELOfficeEdit", ROLE_SYSTEM_TEXT, ""},
    {"TQELHeader", ROLE_SYSTEM_LIST, ""},
    {"TQELHeaderList", ROLE_SYSTEM_TABLE, ""},
    {"TQELCheckbox", ROLE_SYSTEM_CHECKBUTTON, "Check"},
    {"TQELRadiobutton", ROLE_SYSTEM_RADIOBUTTON, "Check"},
    {"TQELArrowButton", ROLE_SYSTEM_PUSHBUTTON, "Press"},
    {"TQELOfficeButton", ROLE_SYSTEM_PUSHBUTTON, "Press"},
    {"TQELIEButton", ROLE_SYSTEM_PUSHBUTTON, "Press"},
    {"TQELRoundButton", ROLE_SYSTEM_PUSHBUTTON, "Press"},
    {"TQELPanel", ROLE_SYSTEM_GROUPING, ""},
    {"TQELFillBackground", ROLE_SYSTEM_GRAPHIC, ""},
    {"TQELFormDivider", ROLE_SYSTEM_SEPARATOR, ""},
    {"TQELStickyLabel", ROLE_SYSTEM_STATICTEXT, ""},
    {"TQELCommandLabel", ROLE_SYSTEM_LINK, "Open"},
    {"TQELAnimator", ROLE_SYSTEM_GRAPHIC, ""},
    {"TQELICQMarquee", ROLE_SYSTEM_LIST, ""},
    {"TQELImageScroller", ROLE_SYSTEM_GRAPHIC, "Start"},
    {"TQELPresentation", ROLE_SYSTEM_GRAPHIC, "Next"},
    {"TQELDBOfficeEdit", ROLE_SYSTEM_TEXT, ""},
    {"TQELDBSpinEdit", ROLE_SYSTEM_SPINBUTTON, ""},
    {"TQELDBLookupedit", ROLE_SYSTEM_COMBOBOX, "Open"},
    {"TQELDBIndexLookup", ROLE_SYSTEM_TEXT, ""},
    {"TQELDBNavigator", ROLE_SYSTEM_TOOLBAR, ""},
    {"TQELDBImageView", ROLE_SYSTEM_GRAPHIC, ""},
    {"TQELDBMemoView", ROLE_SYSTEM_TEXT, ""},
};

TEST_F(Accessible, EveryControlHasARoleAndTheNameOfItsCaption) {
  RegisterAll();
  ShowForm();
  for (const TExpected& expected : Expected) {
    const vcl::TClass* found = &vcl::FindClass(expected.ClassName);
    const std::unique_ptr<vcl::TComponent> made(found->Maker().Component(nullptr));
    auto& control = dynamic_cast<vcl::TControl&>(*made);
    control.SetParent(&Form);
    control.SetName("Made");
    const bool caption = found->FindPublished("Caption") != nullptr;
    if (caption) control.SetCaption("Save && &go");
    const std::vector<TSpoken> children = ChildrenOf(Of(Form));
    ASSERT_EQ(children.size(), 1u) << expected.ClassName;
    EXPECT_EQ(children[0].Role(), expected.Role) << expected.ClassName;
    EXPECT_EQ(children[0].Action(), expected.Action) << expected.ClassName;
    EXPECT_EQ(children[0].Name(), caption ? "Save & go" : "") << expected.ClassName;
    EXPECT_EQ(children[0].Keys(), caption ? "Alt+G" : "") << expected.ClassName;
    control.SetAccessibleName("Own name");
    EXPECT_EQ(children[0].Name(), "Own name") << expected.ClassName;
  }
}

TEST_F(Accessible, AButtonSaysWhatItsOwnEnabledIsAndIsPressed) {
  auto* button = Make<TQELButton>(0, 0);
  int clicks = 0;
  button->Setcaption("&Go");
  button->OnClick = [&](vcl::TObject*) { ++clicks; };
  ShowForm();
  TListener listener;
  const TSpoken spoken = Of(*button);
  EXPECT_TRUE(spoken.Has(STATE_SYSTEM_FOCUSABLE));
  EXPECT_EQ(spoken.Do(), S_OK);
  EXPECT_TRUE(PumpUntil([&] { return clicks == 1; }));
  testinput::MoveMouse(testinput::MiddleOf(button));
  testinput::LeftDown();
  EXPECT_TRUE(PumpUntil([&] { return spoken.Has(STATE_SYSTEM_PRESSED); }));
  EXPECT_TRUE(PumpUntil([&] { return listener.Heard(EVENT_OBJECT_STATECHANGE, "Go"); }));
  testinput::LeftUp();
  EXPECT_TRUE(PumpUntil([&] { return clicks == 2; }));
  EXPECT_EQ(spoken.State() & STATE_SYSTEM_PRESSED, 0);
  listener.Forget();
  button->SetEnabled(false);
  EXPECT_TRUE(spoken.Has(STATE_SYSTEM_UNAVAILABLE));
  EXPECT_EQ(spoken.Do(), E_ACCESSDENIED);
  EXPECT_TRUE(PumpUntil([&] { return listener.Heard(EVENT_OBJECT_STATECHANGE, "Go"); }));
}

TEST_F(Accessible, AGaugeTellsOfItsPercentage) {
  auto* gauge = Make<TQELGauge>(0, 0);
  gauge->SetAccessibleName("Copied");
  ShowForm();
  TListener listener;
  gauge->SetPercentage(40);
  EXPECT_TRUE(PumpUntil([&] { return listener.Heard(EVENT_OBJECT_VALUECHANGE, "Copied"); }));
  EXPECT_EQ(Named(Of(Form), "Copied").Value(), "40%");
  listener.Forget();
  gauge->SetPercentage(40);
  testinput::PumpFor(50);
  EXPECT_FALSE(listener.Heard(EVENT_OBJECT_VALUECHANGE, "Copied"));
}

TEST_F(Accessible, ASpinEditSaysItsNumberAndItsHalvesStepIt) {
  auto* label = Make<vcl::TLabel>(0, 0);
  auto* edit = Make<TQELSpinEdit>(60, 0);
  label->SetCaption("&Width");
  label->SetFocusControl(edit);
  edit->SetValue(5);
  ShowForm();
  TListener listener;
  const TSpoken spoken = Of(*edit);
  EXPECT_EQ(spoken.Name(), "Width");
  EXPECT_EQ(spoken.Value(), "5");
  const TSpoken up = Named(spoken, "Up");
  const TSpoken down = Named(spoken, "Down");
  ASSERT_TRUE(up && down);
  EXPECT_EQ(up.Do(), S_OK);
  EXPECT_TRUE(PumpUntil([&] { return spoken.Value() == "6"; }));
  EXPECT_TRUE(PumpUntil([&] { return listener.Heard(EVENT_OBJECT_VALUECHANGE, "Width"); }));
  EXPECT_EQ(down.Do(), S_OK);
  EXPECT_TRUE(PumpUntil([&] { return spoken.Value() == "5"; }));
  // A click where a half is told to be is a click of that half.
  const RECT place = down.Place();
  testinput::Click({static_cast<int>(place.left + place.right) / 2,
                    static_cast<int>(place.top + place.bottom) / 2});
  EXPECT_TRUE(PumpUntil([&] { return edit->GetValue() == 4; }));
  delete edit;
  EXPECT_EQ(up.Do(), CO_E_OBJNOTCONNECTED);
}

}  // namespace
}  // namespace qel
