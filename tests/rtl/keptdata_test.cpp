// What a form file holds and its reader does not know goes back into the file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/rtl/collection.h"
#include "host/rtl/component.h"
#include "host/rtl/exceptions.h"
#include "host/rtl/formfile.h"
#include "host/rtl/properties.h"
#include "host/rtl/streams.h"

namespace {

using namespace vcl;
using testing::ElementsAre;
using testing::HasSubstr;

class TKeptItem : public TCollectionItem {
 public:
  using TCollectionItem::TCollectionItem;
  static const TClass& Class() {
    static const TClass info = Describe<TKeptItem, TCollectionItem>(
        "TKeptItem", "test", {Property<&TKeptItem::Size, &TKeptItem::SetSize>("Size").Default(0)});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  int Size() const { return FSize; }
  void SetSize(int size) { FSize = size; }

 private:
  int FSize = 0;
};

/// A root with a number, a reference, items, and the components in it.
class TKeptRoot : public TComponent {
 public:
  TKeptRoot() : TComponent(nullptr), FItems(TKeptItem::Class()) { SetDesigning(true); }
  static const TClass& Class() {
    static const TClass info = Describe<TKeptRoot, TComponent>(
        "TKeptRoot", "test",
        {Property<&TKeptRoot::Number, &TKeptRoot::SetNumber>("Number").Default(0),
         Property<&TKeptRoot::Link, &TKeptRoot::SetLink>("Link"),
         Property<&TKeptRoot::Items, &TKeptRoot::SetItems>("Items")});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  void GetChildren(const std::function<void(TComponent*)>& each, TComponent*) override {
    for (int i = 0; i < ComponentCount(); ++i) each(Components(i));
  }
  int Number() const { return FNumber; }
  void SetNumber(int number) {
    if (number < 0) throw EPropertyError("less than nothing");
    FNumber = number;
  }
  TComponent* Link() const { return FLink; }
  void SetLink(TComponent* link) { FLink = link; }
  TCollection* Items() const { return &FItems; }
  void SetItems(const TCollection*) {}

 private:
  int FNumber = 0;
  TComponent* FLink = nullptr;
  mutable TCollection FItems;
};

class TKeeper : public TReaderKeeper {
 public:
  void Report(const std::string& message) override { Messages.push_back(message); }
  TComponent* MakeStandIn(TComponent* owner, bool visual) override {
    Visual.push_back(visual);
    return new TComponent(owner);
  }
  std::vector<std::string> Messages;
  std::vector<bool> Visual;
};

constexpr const char* Text =
    "object Root: TForeign\n"
    "  Tag = 7\n"
    "  Colours = [clRed, clBlue]\n"
    "  More.Inside = (\n"
    "    'a'\n"
    "    2)\n"
    "  Number = -1\n"
    "  Link = Nobody\n"
    "  Items = <\n"
    "    item\n"
    "      Size = 3\n"
    "      Strange = 1.5\n"
    "    end>\n"
    "  object Panel: TNoSuchPanel\n"
    "    Left = 8\n"
    "    Width = 100\n"
    "    OnClick = PanelClick\n"
    "    object Inner: TComponent\n"
    "      Tag = 1\n"
    "    end\n"
    "  end\n"
    "  object Timer: TNoSuchTimer\n"
    "    Interval = 10\n"
    "  end\n"
    "end\n";

std::string TextOf(TKeptRoot& root) {
  TStringStream stream;
  WriteComponentText(stream, &root);
  return stream.DataString();
}

TEST(KeptData, GoesBackToItsPlaceAndIsReportedWithItsLine) {
  TKeptRoot root;
  TKeeper keeper;
  TStringStream stream(Text);
  ReadComponentFile(stream, &root, {}, &keeper);
  EXPECT_EQ(TextOf(root), Text);
  EXPECT_THAT(
      keeper.Messages,
      ElementsAre(HasSubstr("Line 3: Root.Colours"), HasSubstr("Line 4: Root.More.Inside"),
                  HasSubstr("Line 7: Root.Number: less than nothing"),
                  HasSubstr("Line 12: Root.Items[0].Strange"),
                  HasSubstr("Class TNoSuchPanel not found"),
                  HasSubstr("Class TNoSuchTimer not found"), HasSubstr("Line 8: Root.Link")));
  EXPECT_THAT(keeper.Visual, ElementsAre(true, false));
  EXPECT_EQ(root.FileClassName(), "TForeign");
  EXPECT_EQ(root.FindComponent("Panel")->FileClassName(), "TNoSuchPanel");
  EXPECT_THAT(root.FindComponent("Panel")->Kept()->ChildNames, ElementsAre("Inner"));
}

TEST(KeptData, GivesWayToAValueThatTheObjectGetsLater) {
  TKeptRoot root;
  TKeeper keeper;
  TStringStream stream("object R: TKeptRoot\n  Number = -1\n  Link = Nobody\n end");
  ReadComponentFile(stream, &root, {}, &keeper);
  root.SetNumber(4);
  root.SetLink(&root);
  EXPECT_EQ(TextOf(root), "object R: TKeptRoot\n  Number = 4\n  Link = Owner\nend\n");
}

}  // namespace
