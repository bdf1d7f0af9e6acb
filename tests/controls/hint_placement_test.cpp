// Where the hint stands: beside the mouse, on a side where it fits.
#include "tests/controls/hintform.h"

namespace {

using namespace hintform;
using namespace qel;

class HintPlacement : public HintTest {
 protected:
  const int Right = vcl::Screen()->Width();
  const int Bottom = vcl::Screen()->Height();
  static constexpr vcl::TRect Text{0, 0, 84, 30};  // Wide 100 with its edges; high 50, below 59.
};

struct TSide {
  TQELDirectionB Wanted;
  vcl::TPoint Mouse;
  TQELDirectionB Chosen;
  vcl::TPoint TopLeft;
};

TEST_F(HintPlacement, IsTheSideWantedWhereItFits) {
  const TSide sides[] = {
      {dUpRight, {600, 500}, dUpRight, {600, 445}},
      {dUpLeft, {600, 500}, dUpLeft, {506, 445}},
      {dDownRight, {600, 500}, dDownRight, {600, 515}},
      {dDownLeft, {600, 500}, dDownLeft, {506, 515}},
      // At the right edge: the last place to the right, and the first that goes left.
      {dUpRight, {Right - 100, 500}, dUpRight, {Right - 100, 445}},
      {dUpRight, {Right - 99, 500}, dUpLeft, {Right - 193, 445}},
      {dDownRight, {Right - 100, 500}, dDownRight, {Right - 100, 515}},
      {dDownRight, {Right - 99, 500}, dDownLeft, {Right - 193, 515}},
      // At the left edge.
      {dUpLeft, {94, 500}, dUpLeft, {0, 445}},
      {dUpLeft, {93, 500}, dUpRight, {93, 445}},
      {dDownLeft, {0, 500}, dDownRight, {0, 515}},
      // At the top edge.
      {dUpRight, {600, 55}, dUpRight, {600, 0}},
      {dUpRight, {600, 54}, dDownRight, {600, 69}},
      {dUpLeft, {600, 0}, dDownLeft, {506, 15}},
      // At the bottom edge.
      {dDownRight, {600, Bottom - 74}, dDownRight, {600, Bottom - 59}},
      {dDownRight, {600, Bottom - 73}, dUpRight, {600, Bottom - 128}},
      {dDownLeft, {600, Bottom - 1}, dUpLeft, {506, Bottom - 56}},
      // In corners, both turn.
      {dUpRight, {Right - 1, 0}, dDownLeft, {Right - 95, 15}},
      {dUpLeft, {0, 0}, dDownRight, {0, 15}},
      {dDownRight, {Right - 1, Bottom - 1}, dUpLeft, {Right - 95, Bottom - 56}},
      {dDownLeft, {0, Bottom - 1}, dUpRight, {0, Bottom - 56}},
  };
  for (const TSide& side : sides) {
    SCOPED_TRACE(testing::Message()
                 << "side " << side.Wanted << " at " << side.Mouse.X << ", " << side.Mouse.Y);
    Hint->SetHintDirection(side.Wanted);
    ::SetCursorPos(side.Mouse.X, side.Mouse.Y);
    Window()->ActivateHint(Text, "x");
    EXPECT_EQ(Hint->HintDirection(), side.Chosen);
    const int height = side.Chosen <= dUpLeft ? 50 : 59;
    EXPECT_EQ(Window()->BoundsRect(), vcl::Bounds(side.TopLeft.X, side.TopLeft.Y, 100, height));
    RECT real;
    ::GetWindowRect(Window()->Handle(), &real);
    EXPECT_EQ(vcl::TRect(real), Window()->BoundsRect());
    Window()->ReleaseHandle();
  }
}

TEST_F(HintPlacement, AHintThatFitsNowhereIsSeenFromItsBeginning) {
  ::SetCursorPos(600, 500);
  Hint->SetHintDirection(dDownLeft);
  Window()->ActivateHint({0, 0, Right * 2, 30}, "x");
  EXPECT_EQ(Hint->HintDirection(), dDownLeft);
  EXPECT_EQ(Window()->Left(), 0);
  EXPECT_EQ(Window()->Top(), 515);
  Window()->ActivateHint({0, 0, 84, Bottom * 2}, "x");
  EXPECT_EQ(Window()->Top(), 0);
  Window()->ActivateHint({0, 0, 84, 1 << 30}, "x");
  Window()->Update();
  EXPECT_LE(Window()->Height(), Bottom + 29);
  Hint->SetHintDirection(static_cast<TQELDirectionB>(9));
  Window()->ActivateHint(Text, "x");
  EXPECT_EQ(Hint->HintDirection(), dUpRight);
}

TEST_F(HintPlacement, AHandlerChoosesTheSide) {
  ShowForm();
  vcl::TControl* asked = nullptr;
  TQELDirectionB offered = dDownLeft;
  Pattern->SetEnabled(false);  // Disabled controls count too.
  Hint->OnSelectHintDirection = [&](vcl::TControl* control, TQELDirectionB& direction) {
    asked = control;
    offered = direction;
    direction = dUpLeft;
  };
  ShowAt(testinput::MiddleOf(Pattern));
  EXPECT_EQ(asked, Pattern);
  EXPECT_EQ(offered, dUpRight);
  EXPECT_EQ(Hint->HintDirection(), dUpLeft);
  ShowAt({0, 600});
  EXPECT_EQ(offered, dUpLeft);
  EXPECT_EQ(Hint->HintDirection(), dUpRight);  // Turned at the left edge.
}

TEST_F(HintPlacement, AHandlerMayFreeTheHintOrItsWindow) {
  Hint->OnSelectHintDirection = [&](vcl::TControl*, TQELDirectionB&) {
    Hint->HintFont()->SetSize(30);  // Has a new window made.
  };
  ShowAt({600, 500});
  ASSERT_TRUE(Window());
  EXPECT_FALSE(Window()->HandleAllocated());
  Hint->OnSelectHintDirection = [&](vcl::TControl*, TQELDirectionB&) { delete Hint; };
  ShowAt({600, 500});
  EXPECT_EQ(Window()->FindHintQEL(), nullptr);
  ShowAt({600, 500});
  EXPECT_TRUE(::IsWindowVisible(Window()->Handle()));
}

}  // namespace
