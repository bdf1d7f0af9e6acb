// Which editor a property gets, and that a package's registrations go with it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/plaindesigner.h"
#include "vcl/designintf/componenteditor.h"
#include "vcl/designintf/environment.h"
#include "vcl/designintf/package.h"
#include "vcl/designintf/registration.h"
#include "vcl/designintf/standardeditors.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/buttons.h"
#include "vcl/vcl.h"

namespace vcl {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::ThrowsMessage;

std::string_view EditorOf(const TClass& aClass, const char* property) {
  return EditorClassOf(aClass, *aClass.FindPublished(property)).Name;
}

TEST(EditorChoice, TheStandardEditorsAreByTypeAndKind) {
  const struct {
    const TClass& Class;
    const char* Property;
    const char* Editor;
  } cases[] = {
      {TButton::Class(), "Name", "TComponentNameProperty"},
      {TButton::Class(), "Caption", "TCaptionProperty"},
      {TButton::Class(), "Hint", "TStringProperty"},
      {TButton::Class(), "TabOrder", "TTabOrderProperty"},
      {TButton::Class(), "Left", "TIntegerProperty"},
      {TButton::Class(), "Cursor", "TIntegerProperty"},
      {TButton::Class(), "Enabled", "TBooleanProperty"},
      {TButton::Class(), "Font", "TFontProperty"},
      {TButton::Class(), "PopupMenu", "TComponentProperty"},
      {TButton::Class(), "OnClick", "TMethodProperty"},
      {TPanel::Class(), "Color", "TColorProperty"},
      {TPanel::Class(), "Align", "TEnumProperty"},
      {TFont::Class(), "Style", "TSetProperty"},
      {TFont::Class(), "Name", "TFontNameProperty"},
      {TListBox::Class(), "Items", "TStringsProperty"},
      {TSpeedButton::Class(), "Glyph", "TPictureProperty"},
      {TMenuItem::Class(), "ShortCut", "TShortCutProperty"},
  };
  for (const auto& [aClass, property, editor] : cases) {
    EXPECT_EQ(EditorOf(aClass, property), editor) << aClass.Name() << "." << property;
  }
}

// Registrations last as long as their module, so no other test may use these classes.
TEST(EditorChoice, TheNarrowestWinsAndOfEqualsTheNewest) {
  const auto add = [](const char* type, const TClass* aClass, const char* name,
                      const char* editor) {
    RegisterPropertyEditor(type, aClass, name, PropertyEditorClass<TEnumProperty>(editor));
  };
  add("TAlign", &TPanel::Class(), "", "panel");
  add("TAlign", nullptr, "", "every");
  EXPECT_EQ(EditorOf(TPanel::Class(), "Align"), "panel") << "a class is before none";
  EXPECT_EQ(EditorOf(TMemo::Class(), "Align"), "every");
  add("talign", &TControl::Class(), "align", "named");
  EXPECT_EQ(EditorOf(TPanel::Class(), "Align"), "named") << "a name is before a nearer class";
  add("TAlign", &TPanel::Class(), "Align", "first");
  add("TAlign", &TPanel::Class(), "Align", "second");
  EXPECT_EQ(EditorOf(TPanel::Class(), "Align"), "second");
  EXPECT_EQ(EditorOf(TMemo::Class(), "Align"), "named");
  add("TPersistent", &TPageControl::Class(), "", "object");
  EXPECT_EQ(EditorOf(TPageControl::Class(), "Font"), "object") << "a class type has descendants";
  add("TFont", &TPageControl::Class(), "", "font");
  add("TGraphicsObject", &TPageControl::Class(), "", "drawing");
  EXPECT_EQ(EditorOf(TPageControl::Class(), "Font"), "font") << "a nearer type is before a newer";
  add("string", &TPanel::Class(), "", "text");
  EXPECT_EQ(EditorOf(TPanel::Class(), "Hint"), "text");
  EXPECT_EQ(EditorOf(TPanel::Class(), "Caption"), "TCaptionProperty") << "an alias is no string";
}

TEST(ComponentEditorChoice, TheNearestClassWinsAndOfEqualsTheNewest) {
  class TNamed : public TComponentEditor {
   public:
    using TComponentEditor::TComponentEditor;
    int GetVerbCount() const override { return 1; }
    void ExecuteVerb(int) override { Designer().Modified(); }
  };
  TPlainDesigner designer;
  TTimer timer(nullptr);
  RegisterComponentEditor(TTimer::Class(), ComponentEditorClass<TDefaultEditor>("older"));
  RegisterComponentEditor(TTimer::Class(), ComponentEditorClass<TNamed>("near"));
  RegisterComponentEditor(TComponent::Class(), ComponentEditorClass<TDefaultEditor>("far"));
  MakeComponentEditor(designer, timer)->Edit();
  EXPECT_EQ(designer.Modifications, 1);
  TEdit edit(nullptr);
  edit.SetName("Edit1");
  MakeComponentEditor(designer, edit)->Edit();
  EXPECT_EQ(designer.Shown, "Edit1Change");
  EXPECT_THROW(MakeComponentEditor(designer, edit)->ExecuteVerb(0), EListError);
}

struct TRegistrations {
  std::size_t Palette = RegisteredComponents().size();
  std::size_t NoIcons = NoIconComponents().size();
  std::size_t Properties = RegisteredPropertyEditors().size();
  std::size_t Components = RegisteredComponentEditors().size();
  std::size_t Experts = RegisteredExperts().size();

  TRegistrations Plus(std::size_t count) const {
    return {Palette + count, NoIcons + count, Properties + count, Components + count,
            Experts + count};
  }
  bool operator==(const TRegistrations&) const = default;
};

TEST(PackageRegistrations, GoWithThePackage) {
  const TRegistrations before;
  {
    const TPackage package("samplepackage.dll");
    EXPECT_EQ(TRegistrations(), before.Plus(1));
    EXPECT_EQ(EditorOf(TButton::Class(), "Enabled"), "TSampleEditor");
  }
  EXPECT_EQ(TRegistrations(), before);
  EXPECT_EQ(EditorOf(TButton::Class(), "Enabled"), "TBooleanProperty");
}

TEST(PackageRegistrations, AreTakenBackWhenTheRegistrationFails) {
  const TRegistrations before;
  const auto fails = [](const char* how, const char* message) {
    ::putenv(how);
    EXPECT_THAT([] { TPackage("samplepackage.dll"); },
                ThrowsMessage<EPackageError>(HasSubstr(message)));
    ::putenv("SAMPLE_PACKAGE_FAILS=");
    EXPECT_EQ(::GetModuleHandleW(L"samplepackage.dll"), nullptr);
  };
  fails("SAMPLE_PACKAGE_FAILS=1", "half-way");
  // Its class goes with the package, and so must what the package raised, before.
  fails("SAMPLE_PACKAGE_FAILS=own", "of its own sort");
  EXPECT_EQ(TRegistrations(), before);
}

TEST(Packages, AreNotUnloadedWhileTheirComponentsLive) {
  const TRegistrations before;
  const auto make = [](TComponent* owner) {
    TComponent* made = FindClass("TSample").Maker().Component(owner);
    made->SetName("Sample1");
    return std::unique_ptr<TComponent>(made);
  };
  TComponent owner(nullptr);
  {
    TPackage package("samplepackage.dll");
    auto live = make(&owner);
    EXPECT_THAT([&] { package.Unload(); },
                ThrowsMessage<EPackageError>(
                    AllOf(HasSubstr("samplepackage.dll"), HasSubstr("Sample1, a TSample"))));
    EXPECT_EQ(TRegistrations(), before.Plus(1)) << "it is as it was";
    live.reset();
    package.Unload();
    EXPECT_EQ(TRegistrations(), before);
    EXPECT_EQ(::GetModuleHandleW(L"samplepackage.dll"), nullptr);
  }
  // Where nobody can be told it stays in memory, for what is there.
  auto package = std::make_unique<TPackage>("samplepackage.dll");
  const auto live = make(&owner);
  package.reset();
  EXPECT_EQ(TRegistrations(), before);
  EXPECT_EQ(live->ClassName(), "TSample");
  EXPECT_EQ(TPackage("samplepackage.dll").Classes().size(), 0u) << "it can be loaded again";
}

}  // namespace
}  // namespace vcl
