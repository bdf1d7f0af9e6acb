// Every class that can be made by name begins with the defaults that it declares.
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

#include "core/Qelclasses.h"
#include "host/rtl/classregistry.h"
#include "host/rtl/properties.h"
#include "host/vcl/forms.h"
#include "host/vcl/registration.h"
#include "tests/support/registered.h"

namespace {

/// Where the constructor differs from the declared default on purpose.
const std::set<std::string> Exceptions = {
    "TQELButton.TabStop",          // A button stops the tab key, and its form file always says so.
    "TQELButtonDetails.ShowHint",  // Without hints, until a dialog says so.
    "TQELLabel.ParentFont",        // A label begins with a font of its own.
    "TQELGauge.Width",   // A gauge of the declared size comes back from a form file with that
    "TQELGauge.Height",  // of the constructor.
    "TQELHint.UnUsedHintColor",  // The declared colours differ from the constructor's on purpose.
    "TQELHint.HintShadowColor",
    "TQELMRUMenu.AsSubMenu",  // Files in a submenu, which form files can't say no to.
    "TQELTimer32.Priority",   // Urgent; that its form file says so starts it.
};

TEST(DeclaredDefaults, AreWhatTheConstructorsSet) {
  RegisterAll();
  vcl::RegisterHostClasses();
  int checked = 0;
  for (const vcl::TClass* each : vcl::RegisteredClasses()) {
    if (each->InheritsFrom(vcl::TCustomForm::Class())) continue;  // A form's are its window's.
    const vcl::TMaker& make = each->Maker();
    std::unique_ptr<vcl::TObject> object(make.Component ? make.Component(nullptr)
                                         : make.Plain   ? make.Plain()
                                                        : nullptr);
    if (!object) continue;
    for (const vcl::TPropInfo* property : each->Published()) {
      const std::string name = each->Name() + "." + property->Name;
      if (property->IsEvent() || !property->DefaultValue) continue;
      ++checked;
      if (Exceptions.count(name)) {
        EXPECT_NE(property->Get(*object), *property->DefaultValue) << name << " is no exception";
      } else {
        EXPECT_EQ(property->Get(*object), *property->DefaultValue) << name;
      }
    }
  }
  EXPECT_GT(checked, 170);
}

}  // namespace
