// What holds for all classes by their tables: they begin with the defaults that they declare, and
// settings are copied whole.
#include <gmock/gmock.h>

#include <set>

#include "tests/support/registered.h"
#include "vcl/forms/standardclasses.h"

namespace {

/// Where the constructor differs from the declared default on purpose.
const std::set<std::string> Exceptions = {
    "TQELButton.TabStop",          // A button stops the tab key, and its form file always says so.
    "TQELButtonDetails.ShowHint",  // Without hints, until a dialog says so.
    "TQELLabel.ParentFont",        // A label begins with a font of its own.
    "TQELDBLabel.ParentFont",
    "TQELGauge.Width",   // A gauge of the declared size comes back from a form file with that
    "TQELGauge.Height",  // of the constructor.
    "TQELHint.UnUsedHintColor",  // The declared colours differ from the constructor's on purpose.
    "TQELHint.HintShadowColor",
    "TQELMRUMenu.AsSubMenu",  // Files in a submenu, which form files can't say no to.
    "TQELTimer32.Priority",   // Urgent; that its form file says so starts it.
};

TEST(DeclaredDefaults, AreWhatTheConstructorsSet) {
  RegisterAll();
  vcl::RegisterStandardClasses();
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

template <class T>
class Settings : public testing::Test {};
using TCopied = testing::Types<qel::TQELFont3D, qel::TQELFrame, qel::TQELGlyph, qel::TQELGradient,
                               qel::TQELTexture, qel::TQELBrushFill>;
TYPED_TEST_SUITE(Settings, TCopied);

TYPED_TEST(Settings, AreCopiedWithOneNotice) {
  TypeParam from, to;
  for (const vcl::TPropInfo& property : TypeParam::Class().Own()) {
    vcl::TValue value = property.Get(from);
    if (auto* ordinal = std::get_if<std::int64_t>(&value); ordinal && !property.ReadOnly()) {
      *ordinal += *ordinal < property.Type->Max ? 1 : -1;
      property.Set(from, value);
    }
    EXPECT_NE(property.Get(from), property.Get(to)) << property.Name;
  }
  int changes = 0;
  to.OnChange = [&](vcl::TObject*) { ++changes; };
  to.Assign(&from);
  EXPECT_EQ(changes, 1);
  for (const vcl::TPropInfo& property : TypeParam::Class().Own()) {
    if (property.Kind() == vcl::TTypeKind::Class) continue;
    EXPECT_EQ(property.Get(to), property.Get(from)) << property.Name;
  }
  EXPECT_THROW(to.Assign(nullptr), vcl::EConvertError);
}

}  // namespace
