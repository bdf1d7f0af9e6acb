// What holds for every component: the backgrounds that it is linked to, and the objects with
// settings that it is given.
#include <gmock/gmock.h>

#include "tests/support/registered.h"
#include "vcl/forms/standardclasses.h"

namespace qel {
namespace {

/// A published property of a component.
struct TUse {
  vcl::TObject* Value() const { return std::get<vcl::TObject*>(Property.Get(*It)); }
  void Set(vcl::TObject* value) const { Property.Set(*It, value); }
  std::unique_ptr<vcl::TComponent> It;
  const vcl::TPropInfo& Property;
};

/// Every such property of the type in turn; says how many there are.
int ForEachUse(std::string_view type, const std::function<void(TUse&)>& act) {
  RegisterAll();
  int count = 0;
  for (const vcl::TClass* info : vcl::RegisteredClasses()) {
    for (const vcl::TPropInfo* property : info->Published()) {
      if (!info->Maker().Component || property->TypeName() != type) continue;
      SCOPED_TRACE(info->Name() + "." + property->Name);
      TUse use{std::unique_ptr<vcl::TComponent>(info->Maker().Component(nullptr)), *property};
      act(use);
      ++count;
    }
  }
  return count;
}

TEST(Links, EndWithTheComponentOrItsBackground) {
  const int links = ForEachUse("TQELBackground", [](TUse& use) {
    // A hint and a dialog ask when they are shown, and so need not be told of changes.
    const bool asks =
        dynamic_cast<TQELHint*>(use.It.get()) || dynamic_cast<TQELFormDialog*>(use.It.get());
    const int clients = asks ? 0 : 1;
    TQELBackground first(nullptr);
    auto second = std::make_unique<TQELBackground>(nullptr);
    use.Set(&first);
    use.Set(&first);
    EXPECT_EQ(first.ClientCount(), clients);
    use.Set(second.get());
    EXPECT_EQ(first.ClientCount(), 0);
    EXPECT_EQ(second->ClientCount(), clients);
    second.reset();
    EXPECT_EQ(use.Value(), nullptr);
    use.Set(&first);
    use.It.reset();
    EXPECT_EQ(first.ClientCount(), 0);
  });
  EXPECT_EQ(links, 39);
}

/// Those that take nothing over, whoever owns it.
bool CopiesSettings(const vcl::TComponent& component) {
  return !dynamic_cast<const TQELCustomLabel*>(&component) &&
         !dynamic_cast<const TQELGauge*>(&component) && !dynamic_cast<const TQELHint*>(&component);
}

/// What nobody frees yet is taken over, by those that may; else, and of another's, there is a copy.
TEST(Settings, AreTakenOverOrCopied) {
  TQELLabel label(nullptr);
  TQELButton button(nullptr);
  label.Frame()->SetOffset(7);
  button.Font3D()->SetOffset(7);
  button.Glyph()->SetVisible(false);
  const std::tuple<vcl::TPersistent*, const char*, int> cases[] = {{label.Frame(), "Offset", 13},
                                                                   {button.Font3D(), "Offset", 20},
                                                                   {button.Glyph(), "Visible", 12}};
  for (const auto& [ofAnother, changed, uses] : cases) {
    const vcl::TClass& type = ofAnother->ClassType();
    const vcl::TPropInfo& mark = *type.FindPublished(changed);
    EXPECT_EQ(uses, ForEachUse(type.Name(), [&](TUse& use) {
                use.Set(ofAnother);
                EXPECT_NE(use.Value(), ofAnother);
                EXPECT_EQ(mark.Get(*use.Value()), mark.Get(*ofAnother));
                const bool copies = CopiesSettings(*use.It) || &type == &TQELGlyph::Class();
                std::unique_ptr<vcl::TObject> given(type.Maker().Plain());
                vcl::TObject* const former = use.Value();
                use.Set(given.get());
                EXPECT_EQ(use.Value(), copies ? former : given.release());
              }));
  }
}

/// Gives null to a setter of an object that its owner has always.
void ExpectNullIsAnswered(vcl::TObject& owner, const vcl::TPropInfo& property) {
  vcl::TObject* const kept = std::get<vcl::TObject*>(property.Get(owner));
  const auto* picture = dynamic_cast<vcl::TPicture*>(kept);
  const auto* graphic = dynamic_cast<vcl::TGraphic*>(kept);
  vcl::TObject* const null = nullptr;
  if (picture || graphic) {
    property.Set(owner, null);
    EXPECT_TRUE(graphic ? graphic->Empty() : !picture->Graphic());
  } else {
    EXPECT_THROW(property.Set(owner, null), vcl::EConvertError);
  }
  EXPECT_EQ(std::get<vcl::TObject*>(property.Get(owner)), kept);
}

/// Does it for all published ones of the object and those within; says how many there are.
int ExpectNullIsAnswered(vcl::TObject& object) {
  int count = 0;
  for (const vcl::TPropInfo* property : object.ClassType().Published()) {
    if (property->Kind() != vcl::TTypeKind::Class &&
        property->Kind() != vcl::TTypeKind::Collection) {
      continue;
    }
    auto* value = std::get<vcl::TObject*>(property->Get(object));
    if (!value || dynamic_cast<vcl::TComponent*>(value)) continue;
    SCOPED_TRACE(object.ClassName() + "." + property->Name);
    count += ExpectNullIsAnswered(*value);
    if (property->ReadOnly()) continue;
    ExpectNullIsAnswered(object, *property);
    ++count;
  }
  return count;
}

TEST(Settings, NullEmptiesPicturesAndIsRefusedByAllElse) {
  RegisterAll();
  vcl::RegisterStandardClasses();
  int count = 0;
  for (const vcl::TClass* info : vcl::RegisteredClasses()) {
    if (!info->Maker().Component) continue;
    const std::unique_ptr<vcl::TComponent> component(info->Maker().Component(nullptr));
    count += ExpectNullIsAnswered(*component);
  }
  EXPECT_GT(count, 50);
  vcl::TCanvas canvas;
  EXPECT_THROW(canvas.SetFont(nullptr), vcl::EConvertError);
  EXPECT_THROW(canvas.SetPen(nullptr), vcl::EConvertError);
  EXPECT_THROW(canvas.SetBrush(nullptr), vcl::EConvertError);
}

}  // namespace
}  // namespace qel
