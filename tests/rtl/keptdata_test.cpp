// What a form file holds and its reader does not know goes back into the file.
#include <gmock/gmock.h>

#include "tests/rtl/samples.h"

namespace {

using namespace samples;
using namespace vcl;
using testing::ElementsAre;
using testing::HasSubstr;

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

constexpr const char* Text = R"(object Root: TForeign
  Tag = 7
  Colours = [clRed, clBlue]
  More.Inside = (
    'a'
    2)
  Count = -1
  Link = Nobody
  Style.Color = clBlack
  Items = <
    item
      Title = 'a'
      Strange = 1.5
      Style.Color = clBlack
    end>
  object Panel: TNoSuchPanel
    Left = 8
    Width = 100
    OnClick = PanelClick
    object Inner: TComponent
      Tag = 1
    end
  end
  object Timer: TNoSuchTimer
    Interval = 10
  end
end
)";

/// Reads the text as a designer does.
struct TKept : TSampleForm {
  explicit TKept(const std::string& text) : TSampleForm(nullptr) {
    SetDesigning(true);
    TStringStream stream(text);
    ReadComponentFile(stream, this, {}, &Keeper);
  }
  TKeeper Keeper;
};

TEST(KeptData, GoesBackToItsPlaceAndIsReportedWithItsLine) {
  TKept root(Text);
  EXPECT_EQ(FormText(&root), Text);
  EXPECT_THAT(
      root.Keeper.Messages,
      ElementsAre(HasSubstr("Line 3: Root.Colours"), HasSubstr("Line 4: Root.More.Inside"),
                  HasSubstr("Line 7: Root.Count: A count is never negative"),
                  HasSubstr("Line 13: Root.Items[0].Strange"),
                  HasSubstr("Class TNoSuchPanel not found"),
                  HasSubstr("Class TNoSuchTimer not found"), HasSubstr("Line 8: Root.Link")));
  EXPECT_THAT(root.Keeper.Visual, ElementsAre(true, false));
  EXPECT_EQ(root.FileClassName(), "TForeign");
  EXPECT_EQ(root.FindComponent("Panel")->FileClassName(), "TNoSuchPanel");
  EXPECT_THAT(root.FindComponent("Panel")->Kept()->ChildNames, ElementsAre("Inner"));
}

TEST(KeptData, GivesWayToAValueThatTheObjectGetsLater) {
  TKept root("object R: TSampleForm Count = -1 Link = Nobody end");
  root.SetCount(4);
  root.SetLink(&root);
  EXPECT_EQ(FormText(&root),
            "object R: TSampleForm\n  Count = 4\n  Link = Owner\n  Style.Color = clBlack\nend\n");
}

}  // namespace
