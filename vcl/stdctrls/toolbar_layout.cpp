// TToolBar: the order of its controls, and laying them out.
#include <algorithm>
#include <utility>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/coolbar.h"
#include "vcl/stdctrls/toolbar.h"

namespace vcl {

namespace {

/// Of the button that brings up what does not fit, at 96 dots per inch.
constexpr int HiddenButtonWidth = 14;

}  // namespace

// The order.

std::vector<TToolBar::TPlaced>::iterator TToolBar::PlaceOf(const TControl* control) {
  return std::ranges::find(FOrder, control, &TPlaced::Control);
}

TControl* TToolBar::Buttons(int index) const {
  if (index < 0 || index >= ButtonCount()) {
    throw EListError(Concat("Button index ", std::to_string(index), " is out of bounds: ", Name(),
                            " holds ", std::to_string(ButtonCount())));
  }
  return FOrder[static_cast<std::size_t>(index)].Control;
}

int TToolBar::ControlIndex(const TControl* control) const {
  const auto found = std::ranges::find(FOrder, control, &TPlaced::Control);
  return found == FOrder.end() ? -1 : static_cast<int>(found - FOrder.begin());
}

void TToolBar::SetControlIndex(TControl* control, int index) {
  if (ControlIndex(control) < 0) throw EListError(Concat("The control is not inside ", Name()));
  Buttons(index);  // Refuses what is no place.
  const TPlaced moved = *PlaceOf(control);
  FOrder.erase(PlaceOf(control));
  FOrder.insert(FOrder.begin() + index, moved);
  Realign();
}

void TToolBar::GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) {
  const std::vector<TPlaced> order = FOrder;
  for (const TPlaced& placed : order) {
    if (placed.Control->Owner() == root) each(placed.Control);
  }
}

/// The place is one among the controls of the same owner.
void TToolBar::SetChildOrder(TComponent* child, int order) {
  TCustomControl::SetChildOrder(child, order);
  const auto own =
      std::ranges::find_if(FOrder, [child](const TPlaced& each) { return each.Control == child; });
  if (own == FOrder.end()) return;
  const TPlaced moved = *own;
  FOrder.erase(own);
  auto place = FOrder.begin();
  while (place != FOrder.end() && order > 0) {
    if (place->Control->Owner() == child->Owner()) --order;
    ++place;
  }
  FOrder.insert(place, moved);
  Realign();
}

void TToolBar::ControlsChanged(TControl* control, bool comes) {
  std::erase_if(FOrder, [control](const TPlaced& each) { return each.Control == control; });
  if (comes) FOrder.push_back({.Control = control});
  if (FCurrent == control) FCurrent = nullptr;
}

/// A control that has been put elsewhere comes to that place of the order.
void TToolBar::TakePlace(const TControl& control) {
  const auto own = PlaceOf(&control);
  if (own == FOrder.end() || !own->Known || own->At == control.BoundsRect().TopLeft()) return;
  const TPoint middle{control.Left() + control.Width() / 2, control.Top() + control.Height() / 2};
  const TPlaced moved = *own;
  FOrder.erase(own);
  const auto behind = std::ranges::find_if(FOrder, [middle](const TPlaced& each) {
    if (!each.Known || each.Cell.Bottom <= middle.Y) return false;
    return each.Cell.Top > middle.Y || (each.Cell.Left + each.Cell.Right) / 2 >= middle.X;
  });
  FOrder.insert(behind, moved);
}

/// The buttons of the style tbsCheck with Grouped that stand together with this one.
std::vector<TToolButton*> TToolBar::GroupOf(const TToolButton& button) const {
  std::vector<TToolButton*> group;
  bool found = false;
  for (const TPlaced& each : FOrder) {
    auto* one = dynamic_cast<TToolButton*>(each.Control);
    if (one && one->InGroup()) {
      group.push_back(one);
      found = found || one == &button;
    } else if (found) {
      return group;
    } else {
      group.clear();
    }
  }
  return group;
}

// Sizes.

/// What all buttons have in common: as much as each needs, the widest without AutoSize deciding.
TSize TToolBar::CommonSize() const {
  TSize common = FButtonSize;
  for (const TPlaced& each : FOrder) {
    const auto* button = dynamic_cast<const TToolButton*>(each.Control);
    if (!button || button->IsSpace() || !button->Seen()) continue;
    const TSize need = button->Need();
    common.cy = std::max(common.cy, need.cy);
    if (!button->AutoSize()) common.cx = std::max(common.cx, need.cx - button->ArrowWidth());
  }
  return common;
}

TSize TToolBar::SizeOf(const TControl& control, TSize common) const {
  const auto* button = dynamic_cast<const TToolButton*>(&control);
  if (!button) return {control.Width(), control.Height()};
  if (button->IsSpace()) return {control.Width(), common.cy};
  if (button->AutoSize()) return {button->Need().cx, common.cy};
  return {common.cx + button->ArrowWidth(), common.cy};
}

// Layout.

bool TToolBar::OnCoolBar() const { return dynamic_cast<const TCoolBar*>(Parent()) != nullptr; }
bool TToolBar::GrowsAcross() const {
  return FAutoSize && Align() == alNone && !OnCoolBar() && !FWrapable;
}
bool TToolBar::KeepsOneRow() const { return !FWrapable || OnCoolBar(); }

TRect TToolBar::HiddenButton() const {
  if (std::ranges::none_of(FOrder, &TPlaced::Hidden)) return {};
  TRect at = ClientRect();
  at.Left = at.Right - ScaledPixels(HiddenButtonWidth);
  return at;
}

std::vector<TControl*> TToolBar::HiddenControls() const {
  std::vector<TControl*> hidden;
  for (const TPlaced& each : FOrder) {
    if (each.Hidden) hidden.push_back(each.Control);
  }
  return hidden;
}

/// Marks what does not fit into one row. A bar that grows as it needs has room for all, and who
/// designs wants to reach all.
void TToolBar::HideWhatSpills(TRect room, TSize common) {
  for (TPlaced& each : FOrder) each.Hidden = false;
  if (!KeepsOneRow() || GrowsAcross() || Designing()) return;
  int right = room.Left;
  for (const TPlaced& each : FOrder) {
    if (each.Control->Seen()) right += SizeOf(*each.Control, common).cx;
  }
  if (right <= room.Right) return;
  bool spills = false;
  right = room.Left;
  for (TPlaced& each : FOrder) {
    if (!each.Control->Seen()) continue;
    right += SizeOf(*each.Control, common).cx;
    spills = spills || right > room.Right - ScaledPixels(HiddenButtonWidth);
    each.Hidden = spills;
  }
}

/// The rows of a layout, which the controls are added to one by one.
class TToolBar::TRows {
 public:
  TRows(const TRect& room, bool wraps) : FRoom(room), FWraps(wraps) { FAt = room.TopLeft(); }

  /// Takes what is of that size into the row, or into a new one where this is full.
  void Add(TPlaced& placed, TSize size) {
    if (FWraps && FAt.X > FRoom.Left && FAt.X + size.cx > FRoom.Right) End();
    FHeight = std::max(FHeight, size.cy);
    placed.Cell = Bounds(FAt.X, FAt.Y, size.cx, size.cy);
    FRow.push_back(&placed);
    FAt.X += size.cx;
    FRight = std::max(FRight, FAt.X);
  }
  /// Ends the row, whose height is known now.
  void End() {
    for (TPlaced* each : FRow) {
      const int height = each->Cell.Height();
      each->At = {each->Cell.Left, FAt.Y + (FHeight - height) / 2};
      each->Cell = {each->Cell.Left, FAt.Y, each->Cell.Right, FAt.Y + FHeight};
      each->Known = true;
    }
    FRow.clear();
    FAt = {FRoom.Left, FAt.Y + FHeight};
    FHeight = 0;
  }
  /// What the rows take so far.
  TSize Need() const { return {FRight - FRoom.Left, FAt.Y - FRoom.Top}; }

 private:
  TRect FRoom;
  bool FWraps;
  TPoint FAt;
  int FHeight = 0;
  int FRight = 0;
  std::vector<TPlaced*> FRow;
};

void TToolBar::AlignControls(TControl* control, TRect& rect) {
  if (control && !Loading() && !ControlState().Has(csReadingState)) TakePlace(*control);
  const TSize common = CommonSize();
  HideWhatSpills(rect, common);
  TRows rows(rect, !KeepsOneRow());
  for (TPlaced& each : FOrder) {
    each.Known = false;
    if (!each.Control->Seen() || each.Hidden) continue;
    rows.Add(each, SizeOf(*each.Control, common));
    const auto* button = dynamic_cast<const TToolButton*>(each.Control);
    if (button && button->Wrap() && !KeepsOneRow()) rows.End();
  }
  rows.End();
  // What hears of its new place may free others.
  const TWatch watch(this);
  const std::vector<TPlaced> order = FOrder;
  for (const TPlaced& each : order) {
    if (watch.Gone()) return;
    if (ControlIndex(each.Control) < 0 || !each.Control->Seen()) continue;
    const TSize size = SizeOf(*each.Control, common);
    // What is hidden stands in front of the bar's beginning, where nobody sees it.
    const TPoint at = each.Hidden ? TPoint(-static_cast<int>(size.cx), rect.Top) : each.At;
    each.Control->SetBounds(at.X, at.Y, size.cx, size.cy);
  }
  if (watch.Gone()) return;
  Invalidate();
  FitTo(rows.Need(), rect);
}

/// The bar becomes as large as its rows, where it is not its parent that decides.
void TToolBar::FitTo(TSize need, const TRect& room) {
  if (!FAutoSize || FFitting || Loading() || need.cy == 0) return;
  const TSetFor fitting(FFitting, true, this);
  const bool upright = Align() == alLeft || Align() == alRight;
  const int width = upright || GrowsAcross() ? Width() - room.Width() + need.cx : Width();
  SetBounds(Left(), Top(), width, upright ? Height() : Height() - room.Height() + need.cy);
}

}  // namespace vcl
