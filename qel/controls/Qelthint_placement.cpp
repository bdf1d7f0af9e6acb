// Where a hint stands: on which side of the mouse it fits on the screen.
#include <algorithm>
#include <array>
#include <variant>

#include "qel/controls/Qelthint.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TPoint;
using vcl::TRect;
using vcl::TSize;

namespace {

// What the picture takes beyond the text's rectangle.
constexpr int ExtraWidth = 16;
constexpr int ExtraHeight = 20;
constexpr int ExtraHeightBelow = 9;
// Where it stands beside the mouse.
constexpr int GapAbove = 5;
constexpr int GapBelow = 15;
constexpr int TipFromRight = 6;  // The pointer's tip, in a picture to the left.

/// What comes of trying a side: the top left where the hint fits, or the side to try next.
using TTry = std::variant<TPoint, TQELDirectionB>;

TSize SizeOn(TQELDirectionB direction, const TRect& text) {
  const bool below = direction == dDownRight || direction == dDownLeft;
  return {text.Width() + ExtraWidth, text.Height() + ExtraHeight + (below ? ExtraHeightBelow : 0)};
}

TTry CheckUpRight(TPoint mouse, TSize size) {
  const int y = mouse.Y - GapAbove;
  if (vcl::Screen()->Width() < size.cx + mouse.X) return dUpLeft;
  if (y - size.cy < 0) return dDownRight;
  return TPoint(mouse.X, y - size.cy);
}

TTry CheckUpLeft(TPoint mouse, TSize size) {
  const int y = mouse.Y - GapAbove;
  const int x = mouse.X + TipFromRight - size.cx;
  if (x < 0) return dUpRight;
  if (y - size.cy < 0) return dDownLeft;
  return TPoint(x, y - size.cy);
}

TTry CheckDownRight(TPoint mouse, TSize size) {
  const int y = mouse.Y + GapBelow;
  if (vcl::Screen()->Width() < size.cx + mouse.X) return dDownLeft;
  if (vcl::Screen()->Height() < size.cy + y) return dUpRight;
  return TPoint(mouse.X, y);
}

TTry CheckDownLeft(TPoint mouse, TSize size) {
  const int y = mouse.Y + GapBelow;
  const int x = mouse.X + TipFromRight - size.cx;
  if (x < 0) return dDownRight;
  if (vcl::Screen()->Height() < size.cy + y) return dUpLeft;
  return TPoint(x, y);
}

constexpr std::array<TTry (*)(TPoint, TSize), 4> Checks{&CheckUpRight, &CheckUpLeft,
                                                        &CheckDownRight, &CheckDownLeft};

/// As much as possible of a hint that fits nowhere, its beginning first.
TPoint Squeezed(TPoint mouse, TSize size) {
  return {std::max(0, std::min(mouse.X, vcl::Screen()->Width() - size.cx)),
          std::max(0, std::min(mouse.Y + GapBelow, vcl::Screen()->Height() - size.cy))};
}

}  // namespace

/// Lets the handler choose the side. False when it has freed the window or the TQELHint.
bool TQELNewHint::AskDirection(TPoint mouse) {
  const vcl::TWatch watch(this);
  TQELDirectionB direction = FHint->HintDirection();
  FHint->OnSelectHintDirection(vcl::Screen()->ControlAt(mouse, true), direction);
  if (watch.Gone() || !FHint) return false;
  FHint->SetHintDirection(direction);
  return true;
}

std::optional<TQELNewHint::TPlacement> TQELNewHint::SelectProperHintDirection(const TRect& rect) {
  POINT mouse{};
  ::GetCursorPos(&mouse);
  if (!TakeHint() || !AskDirection(mouse)) return std::nullopt;
  TQELDirectionB direction = FHint->HintDirection();
  if (direction < dUpRight || direction > dDownLeft) direction = dUpRight;
  const TQELDirectionB wanted = direction;
  // More than the screen shows of a text fits nowhere either, and no bitmap could hold some texts.
  const TRect text(0, 0, std::min(rect.Width(), vcl::Screen()->Width()),
                   std::min(rect.Height(), vcl::Screen()->Height()));
  const auto placed = [&](TPoint topLeft) {
    FHint->SetHintDirection(direction);
    const TSize size = SizeOn(direction, text);
    return TPlacement{direction, vcl::Bounds(topLeft.X, topLeft.Y, size.cx, size.cy)};
  };
  // The sides pass a hint on to each other, and one that fits nowhere would go round for ever.
  for (std::size_t tries = 0; tries < Checks.size(); ++tries) {
    const TTry result = Checks[direction](mouse, SizeOn(direction, text));
    if (const auto* topLeft = std::get_if<TPoint>(&result)) return placed(*topLeft);
    direction = std::get<TQELDirectionB>(result);
  }
  direction = wanted;
  return placed(Squeezed(mouse, SizeOn(direction, text)));
}

}  // namespace qel
