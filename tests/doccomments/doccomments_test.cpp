// What is read of headers and of tables for the reference.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tools/doccomments/headers.h"
#include "tools/doccomments/tables.h"

namespace doccomments {
namespace {

using testing::ElementsAre;

TClassDocs Read(const char* header) {
  TClassDocs classes;
  ReadHeader(header, classes);
  return classes;
}

TEST(Headers, AClassAndItsMembersHaveTheCommentRightAbove) {
  const TClassDocs classes = Read(R"(
#define API \
  ;}
namespace shapes {
class TOther;
/// A gauge. It has more to say.
class SHAPES_API TGauge final : public vcl::TGraphicControl, private TList<int, char> {
 public:
  explicit TGauge(vcl::TComponent* owner) : TGraphicControl(owner) { FMax = 1; }
  int Max() const { return FMax; }
  /// The value at the right end, e.g. 100.
  /// Raises for 0.
  void SetMax(int max);
  bool Plain() const;  // No doc comment.
  TEvent<TObject*, int> OnFirst, OnSecond;  ///< Two of them.
  /// Kept as it is
  ///
  /// in one paragraph.
  std::function<void(int)> OnCall = [](int) { ; };
  /// A kind.
  enum TKind { One, Two };
  int FMax = 0, FMin{1};
};
}  // namespace shapes
)");
  ASSERT_EQ(classes.size(), 1u);
  const TClassDoc& gauge = classes.at("shapes::TGauge");
  EXPECT_EQ(gauge.Sentence, "A gauge.");
  EXPECT_THAT(gauge.Bases, ElementsAre("vcl::TGraphicControl", "TList"));
  EXPECT_EQ(gauge.Members.at("SetMax"), "The value at the right end, e.g. 100.");
  EXPECT_EQ(gauge.Members.at("OnFirst"), "Two of them.");
  EXPECT_EQ(gauge.Members.at("OnSecond"), "Two of them.");
  EXPECT_EQ(gauge.Members.at("OnCall"), "Kept as it is");
  for (const char* none : {"Max", "Plain", "FMax", "FMin", "TGauge"}) {
    EXPECT_EQ(gauge.Members.count(none), 0u) << none;
  }
}

TEST(Headers, AMemberWithoutCommentHasItsAncestors) {
  const TClassDocs classes = Read(R"(
namespace vcl {
struct TBase {
  /// The base's.
  void Paint();
  /// The base's, too.
  void Move();
};
class TMiddle : public TBase {
  void Paint() override;
  struct TInside {};
};
}
namespace qel {
class TLast : public vcl::TMiddle {
  /// Its own.
  void Move();
};
}
)");
  EXPECT_EQ(SentenceOf(classes, "qel", "TLast", "Paint"), "The base's.");
  EXPECT_EQ(SentenceOf(classes, "qel", "TLast", "Move"), "Its own.");
  EXPECT_EQ(SentenceOf(classes, "qel", "TMiddle", "Paint"), "") << "of another namespace";
  EXPECT_NE(FindClass(classes, "vcl::TMiddle", "TInside"), nullptr);
}

TEST(Tables, LinesNameTheirMembers) {
  const auto tables = TablesOf(R"(
const TClass& TGauge::Class() {
  using T = TGauge;
  static const TClass info = Describe<T, TGraphicControl>("shapes::TGauge", "shapes/gauge.h", {
      Inherit("Align"),
      Property<&T::Max, &T::SetMax>("Max").Default('}'),
      vcl::ReadOnly<&TBase::Size>("Size"),
      Event<&T::OnChange>("OnChange").Type("TChange", "int, char"),
  });
  return info;
}
const TClass& TList::Class() {
  static const TClass info = Describe<TList, TGauge>("shapes::TList", "shapes/list.h", {});
}
)");
  ASSERT_EQ(tables.size(), 2u);
  EXPECT_EQ(tables[0].Class, "shapes::TGauge");
  EXPECT_EQ(tables[0].Header, "shapes/gauge.h");
  EXPECT_EQ(tables[0].Scope(), "shapes");
  ASSERT_EQ(tables[0].Lines.size(), 3u);
  EXPECT_EQ(tables[0].Lines[0].Class, "TGauge");
  EXPECT_THAT(tables[0].Lines[0].Members, ElementsAre("Max", "SetMax"));
  EXPECT_EQ(tables[0].Lines[1].Class, "TBase");
  EXPECT_EQ(tables[0].Lines[2].Name, "OnChange");
  EXPECT_TRUE(tables[1].Lines.empty());
}

}  // namespace
}  // namespace doccomments
