// What is put back or ended when a scope is left, also by an error, and what watches tell.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/rtl/samples.h"
#include "vcl/rtl/classes.h"

namespace {

using namespace vcl;
using samples::TPart;

TEST(Scope, EndsAndPutsBackWhicheverWayItIsLeft) {
  for (const bool fails : {false, true}) {
    std::string done;
    std::string text = "old";
    try {
      const TAtEnd end([&] { done += text + " end"; });
      const TOnFailure failure([&] { done += text + " failure, "; });
      const TSetFor set(text, "new");
      done = text + ", ";
      if (fails) throw Exception("first");
    } catch (const Exception&) {
    }
    EXPECT_EQ(done, fails ? "new, old failure, old end" : "new, old end");
  }
}

TEST(Scope, TellsTheFirstError) {
  const auto fail = [] { throw Exception("second"); };
  EXPECT_THROW({ const TAtEnd end(fail); }, Exception);
  try {
    const TAtEnd end(fail);
    const TOnFailure failure(fail);
    throw EAbort("first");
  } catch (const Exception& error) {
    EXPECT_EQ(error.Message(), "first");
  }
}

TEST(Scope, WithinAnotherErrorsWayGuardsJudgeTheirOwnScope) {
  std::string done;
  try {
    const TAtEnd outer([&] {
      const TOnFailure untouched([&] { done += "wrong"; });
      try {
        const TOnFailure inner([&] { done += "inner "; });
        throw Exception("handled");
      } catch (const Exception&) {
        done += "handled";
      }
    });
    throw Exception("on its way");
  } catch (const Exception&) {
  }
  EXPECT_EQ(done, "inner handled");
}

TEST(Scope, LeavesAFreedHolderAlone) {
  for (const bool freed : {false, true}) {
    auto part = std::make_unique<TPart>(nullptr);
    bool ended = false;
    int variable = 1;
    try {
      const TAtEnd end([&] { ended = true; }, part.get());
      const TOnFailure failure([&] { ended = true; }, part.get());
      const TSetFor set(variable, 2, part.get());
      if (freed) part.reset();
      throw Exception("out");
    } catch (const Exception&) {
    }
    EXPECT_EQ(ended, !freed);
    EXPECT_EQ(variable, freed ? 2 : 1);
  }
}

/// A list that refuses the second of two equal lines.
struct TStrictList : TStringList {
  TStrictList() {
    SetSorted(true);
    SetDuplicates(dupError);
    OnChange = [this](TObject*) { ++Changes; };
  }
  bool Notifies() {
    const int before = Changes;
    Add("one more");
    return Changes == before + 1;
  }
  int Changes = 0;
};

TEST(Scope, ListsThatRefuseALineNotifyAgain) {
  const auto folder = std::filesystem::temp_directory_path() / "qel scope";
  std::filesystem::create_directories(folder);
  const std::string name = (folder / "twice.ini").string();
  std::ofstream(name) << "[S]\na=1\na=1\n[T]\n[T]\n";
  TStringList twice;
  twice.SetText("x\nx");
  const std::function<void(TStrings&)> cases[] = {
      [&](TStrings& list) { TIniFile(name).ReadSection("S", list); },
      [&](TStrings& list) { TIniFile(name).ReadSectionValues("S", list); },
      [&](TStrings& list) { list.AddStrings(twice); },
      [&](TStrings& list) { list.Assign(&twice); },
      [&](TStrings& list) { list.SetText("x\nx"); },
      [&](TStrings& list) { list.SetCommaText("x,x"); },
  };
  for (const auto& fill : cases) {
    TStrictList list;
    EXPECT_THROW(fill(list), EStringListError) << &fill - cases;
    EXPECT_TRUE(list.Notifies()) << &fill - cases;
    list.OnChange = [](TObject*) { throw EAbort("told"); };
    list.SetDuplicates(dupIgnore);
    EXPECT_THROW(fill(list), EAbort) << "the end of the batch itself";
  }
  std::filesystem::remove_all(folder);
}

/// An item that cannot always be made.
class TRareItem : public TCollectionItem {
 public:
  explicit TRareItem(TCollection* collection) : TCollectionItem(collection) {
    if (Refused) throw Exception("none left");
  }
  static const TClass& Class() {
    static const TClass info = Describe<TRareItem, TCollectionItem>("TRareItem", "samples", {});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  static inline bool Refused = false;
};

TEST(Scope, CollectionsWhoseItemsCannotBeMadeNotifyAgain) {
  TCollection items(TRareItem::Class());
  int updates = 0;
  items.OnUpdate = [&](TCollectionItem*) { ++updates; };
  {
    const TSetFor refused(TRareItem::Refused, true);
    EXPECT_THROW(items.Add(), Exception);
    EXPECT_THROW(items.Insert(0), Exception);
  }
  updates = 0;
  items.Add();
  EXPECT_EQ(updates, 1);
  items.OnUpdate = [](TCollectionItem*) { throw EAbort("told"); };
  EXPECT_THROW(items.Insert(0), EAbort);
  EXPECT_EQ(items.Count(), 2);
}

TEST(Watch, EndsInAnyOrder) {
  auto part = std::make_unique<TPart>(nullptr);
  std::optional<TWatch> first(part.get()), second(part.get()), third(part.get());
  second.reset();
  third.reset();
  EXPECT_FALSE(first->Gone());
  std::vector<TWatch> many(3, *first);
  for (int i = 0; i < 20; ++i) many.insert(many.begin(), TWatch(part.get()));
  many.erase(many.begin() + 5, many.begin() + 9);
  TPart other(nullptr);
  many[2] = TWatch(&other);
  many[3] = many[3];
  part.reset();
  EXPECT_TRUE(first->Gone());
  EXPECT_TRUE(TWatch(*first).Gone()) << "a copy made afterwards";
  for (std::size_t i = 0; i < many.size(); ++i) EXPECT_EQ(many[i].Gone(), i != 2) << i;
  *first = many[2];
  EXPECT_FALSE(first->Gone());
}

TEST(Watch, IsKeptByHandlersAndOutlivesTheObject) {
  auto part = std::make_unique<TPart>(nullptr);
  TNotifyEvent kept;
  int calls = 0;
  kept = [&calls, watch = TWatch(part.get())](TObject*) { calls += !watch.Gone(); };
  const TNotifyEvent copy = kept;
  kept(nullptr);
  part.reset();
  kept = nullptr;
  copy(nullptr);
  EXPECT_EQ(calls, 1);
}

/// Watches itself while it ends.
struct TEndingPart : TPart {
  explicit TEndingPart(std::vector<TWatch>& watches) : TPart(nullptr), Watches(watches) {}
  ~TEndingPart() override {
    Watches.emplace_back(this);
    EXPECT_FALSE(TWatch(this).Gone());
    EXPECT_FALSE(Own.Gone());
  }
  std::vector<TWatch>& Watches;
  TWatch Own{this};
};

TEST(Watch, OfAnObjectThatEnds) {
  std::vector<TWatch> watches;
  std::make_unique<TEndingPart>(watches).reset();
  ASSERT_EQ(watches.size(), 1u);
  EXPECT_TRUE(watches.front().Gone());
  EXPECT_FALSE(TWatch(nullptr).Gone()) << "nothing never goes";
}

}  // namespace
