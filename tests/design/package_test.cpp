// Loading the package as a form designer does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "vcl/designintf/package.h"
#include "vcl/designintf/registration.h"
#include "vcl/rtl/classregistry.h"
#include "vcl/rtl/component.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"

namespace vcl {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

TEST(Package, RegistersItsPersistentClassesByName) {
  const TPackage package("qel.dll");
  for (const char* name : {"TQELFont3D", "TQELGradient", "TQELTexture", "TQELFrame",
                           "TQELButtonDetails", "TQELAbout"}) {
    const TClass* found = GetClass(name);
    ASSERT_NE(found, nullptr) << name;
    ASSERT_NE(found->Maker().Plain, nullptr) << name;
    const std::unique_ptr<TObject> made(found->Maker().Plain());
    EXPECT_EQ(made->ClassName(), name);
  }
}

TEST(Package, MakesItsComponentsByName) {
  const TPackage package("qel.dll");
  TComponent owner(nullptr);
  for (const auto& [page, classes] : RegisteredComponents()) {
    for (const TClass* each : classes) {
      TComponent* made = FindClass(each->Name()).Maker().Component(&owner);
      EXPECT_EQ(&made->ClassType(), each);
      EXPECT_EQ(made->Owner(), &owner);
    }
  }
}

TEST(Package, ListsAncestorsBeforeDescendants) {
  const TPackage package("qel.dll");
  const auto classes = package.Classes();
  EXPECT_GE(classes.size(), 15u);
  for (auto each = classes.begin(); each != classes.end(); ++each) {
    const auto parent = std::find(each, classes.end(), (*each)->Parent());
    EXPECT_EQ(parent, classes.end()) << (*each)->Name() << " comes before its ancestor";
  }
}

TEST(Package, TakesBackWhatItRegistered) {
  { const TPackage package("qel.dll"); }
  EXPECT_TRUE(RegisteredComponents().empty());
  EXPECT_EQ(GetClass("TQELButton"), nullptr);
  const TPackage again("qel.dll");
  EXPECT_NE(GetClass("TQELButton"), nullptr);
}

TEST(Package, SaysWhyItCannotBeLoaded) {
  EXPECT_THAT([] { TPackage("missing.dll"); },
              ThrowsMessage<EPackageError>(HasSubstr("missing.dll")));
  EXPECT_THAT([] { TPackage("kernel32.dll"); },
              ThrowsMessage<EPackageError>(HasSubstr("Register")));
  EXPECT_TRUE(RegisteredComponents().empty());
}

TEST(Palette, RefusesWhatIsNoComponent) {
  EXPECT_THROW(RegisterComponents("Page", {&TPersistent::Class()}), EComponentError);
  EXPECT_THROW(RegisterComponents("", {&TComponent::Class()}), EComponentError);
  EXPECT_TRUE(RegisteredComponents().empty());
}

}  // namespace
}  // namespace vcl
