// Property tables, and components: ownership, names, notification, watches.
#include <gmock/gmock.h>

#include "tests/rtl/samples.h"

using namespace vcl;
using namespace samples;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class TBase : public TComponent {
 public:
  using TComponent::TComponent;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  int Hidden() const { return FHidden; }
  void SetHidden(int hidden) { FHidden = hidden; }
  int Width() const { return FWidth; }
  void SetWidth(int width) { FWidth = width; }
  bool WidthMatters() const { return FHidden != 0; }

 private:
  int FHidden = 0;
  int FWidth = 10;
};

const TClass& TBase::Class() {
  static const TClass info = Describe<TBase, TComponent>(
      "TBase", "test",
      {Property<&TBase::Hidden, &TBase::SetHidden>("Hidden").Default(0).Unpublished(),
       Property<&TBase::Width, &TBase::SetWidth>("Width").Default(10)});
  return info;
}

class TDerived : public TBase {
 public:
  using TBase::TBase;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

const TClass& TDerived::Class() {
  static const TClass info = Describe<TDerived, TBase>(
      "TDerived", "test",
      {Inherit("Hidden"), Inherit("Width").Default(20).StoredIf<&TBase::WidthMatters>()});
  return info;
}

/// Its default holds only for those whose width matters.
class TPicky : public TBase {
 public:
  using TBase::TBase;
  static const TClass& Class() {
    static const TClass info = Describe<TPicky, TBase>(
        "TPicky", "test", {Inherit("Width").DefaultIf<&TBase::WidthMatters>()});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
};

std::vector<std::string> PublishedNames(const TClass& info) {
  std::vector<std::string> names;
  for (const TPropInfo* prop : info.Published()) names.push_back(prop->Name);
  return names;
}

TEST(PropertyTables, ListAncestorsFirstAndEachNameOnce) {
  EXPECT_THAT(PublishedNames(TBase::Class()), ElementsAre("Name", "Tag", "Width"));
  EXPECT_THAT(PublishedNames(TDerived::Class()), ElementsAre("Name", "Tag", "Width", "Hidden"));
  EXPECT_EQ(TBase::Class().FindPublished("hidden"), nullptr);
  EXPECT_NE(TBase::Class().FindDescribed("hidden"), nullptr);
  EXPECT_NE(TDerived::Class().FindPublished("hidden"), nullptr);
}

TEST(PropertyTables, TakeTheNarrowestDeclarationAndWriteWhatIsNotTheDefault) {
  TBase base(nullptr);
  TDerived derived(nullptr);
  TPicky picky(nullptr);  // Begins with another value than it declares as the default.
  const auto written = [](const TBase& object) {
    return object.ClassType().FindPublished("Width")->NeedsWriting(object);
  };
  EXPECT_FALSE(written(base));
  EXPECT_FALSE(written(derived));
  EXPECT_TRUE(written(picky));
  derived.SetHidden(1);
  picky.SetHidden(1);
  EXPECT_TRUE(written(derived));
  EXPECT_FALSE(written(picky));
  derived.SetWidth(20);
  picky.SetWidth(11);
  EXPECT_FALSE(written(derived));
  EXPECT_TRUE(written(picky));
}

TEST(PropertyTables, RefuseMistakes) {
  for (const auto& mistake :
       {Inherit("Nothing"), Property<&TBase::Width, &TBase::SetWidth>("Width").Default("")}) {
    EXPECT_THROW((Describe<TBase, TComponent>("TBase", "test", {mistake})), EPropertyError);
  }
}

TEST(PropertyTables, RefuseValuesOfOtherSorts) {
  TPart part(nullptr);
  TOther other(nullptr);
  const auto set = [&](const char* name, const TValue& value) {
    TPart::Class().FindPublished(name)->Set(part, value);
  };
  const std::pair<const char*, TValue> wrong[] = {{"Count", 1.0},
                                                  {"Count", std::int64_t{1} << 31},
                                                  {"Shape", std::int64_t{3}},
                                                  {"Shapes", std::int64_t{8}},
                                                  {"Link", static_cast<TObject*>(&other)},
                                                  {"Style", static_cast<TObject*>(nullptr)}};
  for (const auto& [name, value] : wrong) EXPECT_THROW(set(name, value), EPropertyError) << name;
  set("Shapes", std::int64_t{6});
  EXPECT_EQ(part.Shapes(), (TSet{shSquare, shStar}));
}

TEST(ClassRegistry, FindsByNameAndRefusesSecondOnes) {
  RegisterClass(TBase::Class());
  RegisterClass(TBase::Class());
  EXPECT_EQ(GetClass("tbase"), &TBase::Class());
  const TClass impostor("TBASE", "other", typeid(TBase), &TComponent::Class(), {}, nullptr, 0);
  EXPECT_THROW(RegisterClass(impostor), EFilerError);
  UnRegisterClass(impostor);
  EXPECT_EQ(&FindClass("TBase"), &TBase::Class());
  UnRegisterClass(TBase::Class());
  EXPECT_EQ(GetClass("TBase"), nullptr);
  EXPECT_THROW(FindClass("TBase"), EClassNotFound);
}

TEST(Component, FreesWhatItOwns) {
  {
    TPart owner(nullptr);
    new TPart(new TPart(&owner));
    delete new TPart(&owner);
    EXPECT_EQ(TPart::Alive, 3);
    EXPECT_EQ(owner.ComponentCount(), 1);
  }
  EXPECT_EQ(TPart::Alive, 0);
}

TEST(Component, RefusesNames) {
  TPart owner(nullptr);
  auto* one = new TPart(&owner);
  auto* two = new TPart(&owner);
  one->SetName("One");
  for (const char* name : {"one", "1", "a b", "a.b", "\xC3\xA4", " "}) {
    EXPECT_THROW(two->SetName(name), EComponentError) << name;
  }
  EXPECT_EQ(two->Name(), "");
  one->SetName("ONE");
  EXPECT_EQ(owner.FindComponent("onE"), one);
  TPart stranger(nullptr);
  stranger.SetName("one");
  EXPECT_THROW(owner.InsertComponent(&stranger), EComponentError);
  EXPECT_EQ(stranger.Owner(), nullptr);
}

TEST(Component, KeepsItsPlace) {
  TPart owner(nullptr);
  TPart* parts[] = {new TPart(&owner), new TPart(&owner), new TPart(&owner)};
  parts[0]->SetComponentIndex(99);
  EXPECT_EQ(owner.Components(2), parts[0]);
  EXPECT_EQ(parts[1]->ComponentIndex(), 0);
  EXPECT_EQ(owner.ComponentIndex(), -1);
  EXPECT_THROW(owner.Components(3), EListError);
  EXPECT_THROW(owner.Components(-1), EListError);
}

TEST(Component, ForgetsLinksThatAreFreed) {
  TPart owner(nullptr);
  auto* one = new TPart(&owner);
  auto* two = new TPart(&owner);
  auto stranger = std::make_unique<TPart>(nullptr);
  one->SetAnyLink(two);
  one->SetLink(stranger.get());
  one->SetLink(stranger.get());
  stranger->SetLink(&owner);  // The one that is linked outlives the other.
  delete two;
  stranger.reset();
  EXPECT_EQ(one->AnyLink(), nullptr) << "an owner tells its other components";
  EXPECT_EQ(one->Link(), nullptr) << "asked for";
}

/// Notes the names of the components that it hears are freed.
class THearer : public TComponent {
 public:
  explicit THearer(TComponent* owner) : TComponent(owner) {}
  std::vector<std::string> Freed;

 protected:
  void Notification(TComponent* component, TOperation operation) override {
    TComponent::Notification(component, operation);
    if (operation == opRemove) Freed.push_back(component->Name());
  }
};

class TAsker : public THearer {
 public:
  explicit TAsker(TComponent* owner) : THearer(owner) { HearOnlyAsked<TAsker>(); }
};

class TCuriousAsker : public TAsker {
 public:
  using TAsker::TAsker;
};

TEST(Component, HearsOfOthersOrOnlyOfThoseItAsked) {
  using TNames = std::vector<std::string>;
  TComponent owner(nullptr);
  auto* asker = new TAsker(&owner);
  auto* curious = new TCuriousAsker(&owner);
  auto* holder = new TAsker(&owner);
  auto* inside = new THearer(holder);
  const auto made = [&](const char* name) {
    auto* component = new TComponent(&owner);
    component->SetName(name);
    return component;
  };
  TComponent* asked = made("Asked");
  asked->FreeNotification(asker);
  delete made("Other");
  delete asked;
  EXPECT_EQ(asker->Freed, TNames{"Asked"});
  EXPECT_EQ(curious->Freed, (TNames{"Other", "Asked"})) << "its class is another";
  EXPECT_EQ(inside->Freed, (TNames{"Other", "Asked"})) << "through what owns it";
  // What leaves its owner alive has no end to tell of.
  const std::unique_ptr<TComponent> left(made("Left"));
  owner.RemoveComponent(left.get());
  EXPECT_EQ(asker->Freed, (TNames{"Asked", "Left"}));
}

TEST(Component, PassesTheDesigningStateOn) {
  TPart owner(nullptr);
  owner.SetDesigning(true);
  TPart late(nullptr);
  owner.InsertComponent(&late);
  EXPECT_TRUE(late.Designing());
  owner.SetDesigning(false);
  EXPECT_FALSE(late.Designing());
}

TEST(Watch, SeesTheEnd) {
  auto part = std::make_unique<TPart>(nullptr);
  TPart* raw = part.get();
  raw->OnClick = [&](TObject*) { part.reset(); };
  TWatch outer(raw);
  EXPECT_FALSE(TWatch(raw).Gone());
  raw->OnClick(raw);
  EXPECT_TRUE(outer.Gone());
}

TEST(Event, KeepsWhatItRunsAlive) {
  TNotifyEvent event;
  event(nullptr);
  int calls = 0;
  event = [&, kept = std::make_shared<int>(5)](TObject*) {
    event = nullptr;
    calls += *kept;
  };
  event(nullptr);
  event(nullptr);
  EXPECT_EQ(calls, 5);
  EXPECT_FALSE(event.Assigned());
}

TEST(Persistent, RefusesToCopyStrangers) {
  TStyle style;
  TStringList lines;
  EXPECT_THROW(style.Assign(nullptr), EConvertError);
  EXPECT_THROW(style.Assign(&lines), EConvertError);
  EXPECT_THROW(lines.Assign(&style), EConvertError);
}

TEST(Collection, KeepsItemsInOrder) {
  TCollection items(TPartItem::Class());
  std::vector<TCollectionItem*> updates;
  items.OnUpdate = [&](TCollectionItem* item) { updates.push_back(item); };
  TCollectionItem* a = items.Add();
  TCollectionItem* b = items.Add();
  TCollectionItem* c = items.Insert(0);
  EXPECT_EQ(c->Index(), 0);
  c->SetIndex(2);
  EXPECT_EQ(a->Index(), 0);
  EXPECT_EQ(items.FindItemID(b->ID()), b);
  items.Delete(0);
  EXPECT_EQ(items.Items(0), b);
  delete b;
  EXPECT_EQ(items.Count(), 1);
  const int lastID = c->ID();
  items.Clear();
  EXPECT_GT(items.Add()->ID(), lastID);
  EXPECT_EQ(updates.size(), 8u);
  EXPECT_THROW(items.Items(1), EListError);
  EXPECT_THROW(items.Insert(2), EListError);
  EXPECT_THROW(items.Delete(-1), EListError);
}

TEST(Collection, ReportsABatchOnce) {
  TCollection items(TPartItem::Class());
  int updates = 0;
  items.OnUpdate = [&](TCollectionItem*) { ++updates; };
  items.BeginUpdate();
  items.BeginUpdate();
  items.Add();
  items.EndUpdate();
  items.Add();
  EXPECT_EQ(updates, 0);
  items.EndUpdate();
  EXPECT_EQ(updates, 1);
  items.BeginUpdate();
  items.EndUpdate();
  EXPECT_EQ(updates, 1);
}

TEST(Collection, CopiesAllOrNothing) {
  TCollection source(TPartItem::Class());
  static_cast<TPartItem*>(source.Add())->SetTitle("copied");
  TCollection target(TPartItem::Class());
  target.Add();
  target.Add();
  target.Assign(&source);
  ASSERT_EQ(target.Count(), 1);
  EXPECT_EQ(static_cast<TPartItem*>(target.Items(0))->Title(), "copied");

  TCollection strangers(TCollectionItem::Class());
  strangers.Add();
  strangers.Add();
  EXPECT_THROW(target.Assign(&strangers), EConvertError);
  EXPECT_EQ(target.Count(), 1);
  EXPECT_THROW(TCollection(TPart::Class()), EArgumentOutOfRangeException);
}

}  // namespace
