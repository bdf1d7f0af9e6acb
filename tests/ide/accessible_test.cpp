// What a screen reader finds in the designer's window.
#include "tests/ide/designerfixture.h"
#include "tests/support/screenreader.h"

namespace ide {
namespace {

using namespace screenreader;

using AccessibleDesigner = UnstartedDesigner;

/// The names of the designer's own controls that take the keyboard and have no name for a screen
/// reader.
void ListNameless(const TSpoken& spoken, std::string& nameless, int& focusable) {
  HWND window = nullptr;
  ::WindowFromAccessibleObject(spoken.Object.get(), &window);
  const TWinControl* control = TWinControl::FromHandle(window);
  // What the user puts on a form is named by the user.
  if (spoken.Has(STATE_SYSTEM_INVISIBLE) || !control || control->Designing()) return;
  if (spoken.Has(STATE_SYSTEM_FOCUSABLE)) {
    ++focusable;
    if (spoken.Name().empty()) {
      nameless += Concat(control->ClassName(), " ", control->Name(), " in ",
                         control->Parent() ? control->Parent()->Name() : "", "; ");
    }
  }
  if (spoken.Child != CHILDID_SELF) return;
  for (const TSpoken& child : ChildrenOf(spoken)) ListNameless(child, nameless, focusable);
}

/// The line of a property; the edit in it goes by the same name.
TSpoken Line(const TSpoken& grid, const std::string& path) {
  return screenreader::Find(grid, [&](const TSpoken& each) {
    return each.Role() == ROLE_SYSTEM_ROW && each.Name() == path;
  });
}

TEST_F(AccessibleDesigner, ItsControlsHaveNamesAndItsGridsAndButtonsParts) {
  Start();
  OpenForm(" object B: TButton\n  Caption = 'Go'\n end\n");
  Pump();
  const TSpoken whole = OfWindow(Window->Handle());
  std::string nameless;
  int focusable = 0;
  ListNameless(whole, nameless, focusable);
  EXPECT_EQ(nameless, "");
  EXPECT_GT(focusable, 10);

  const TSpoken grid = screenreader::Find(whole, [](const TSpoken& each) {
    return each.Role() == ROLE_SYSTEM_TABLE && each.Name() == "Properties";
  });
  ASSERT_TRUE(grid);
  const TSpoken font = Line(grid, "Font");
  ASSERT_TRUE(font);
  EXPECT_TRUE(font.Has(STATE_SYSTEM_COLLAPSED));
  EXPECT_FALSE(Line(grid, "Font.Size"));
  EXPECT_EQ(font.Do(), S_OK);
  EXPECT_TRUE(PumpUntil([&] { return static_cast<bool>(Line(grid, "Font.Size")); }));
  EXPECT_TRUE(Line(grid, "Font").Has(STATE_SYSTEM_SELECTED | STATE_SYSTEM_EXPANDED));
  EXPECT_EQ(Line(grid, "Left").Value(), "40");

  const TSpoken button = screenreader::Find(whole, [](const TSpoken& each) {
    return each.Role() == ROLE_SYSTEM_PUSHBUTTON && each.Name() == "TEdit";
  });
  ASSERT_TRUE(button);
  EXPECT_EQ(button.Do(), S_OK);
  EXPECT_TRUE(PumpUntil([&] { return button.Has(STATE_SYSTEM_PRESSED); }));
}

}  // namespace
}  // namespace ide
