// TQELSticky: the place beside the control, and keeping it.
#include "qel/core/Qelsticky.h"

#include "vcl/controls/wincontrol.h"

namespace qel {

using vcl::TRect;

TQELSticky::TQELSticky(vcl::TControl& follower)
    : FFollower(follower), FWatch([this] { Update(); }) {}

void TQELSticky::SetControl(vcl::TControl* control) {
  if (control == &FFollower) return;
  FWatch.SetControl(control);
  Update();
}

void TQELSticky::SetPosition(TQELPosition position) {
  FPosition = position;
  Update();
}

void TQELSticky::SetDistance(int distance) {
  if (distance < 0) return;
  FDistance = distance;
  Update();
}

void TQELSticky::SetSideAlignment(TQELStickySideAlignment alignment) {
  FSideAlignment = alignment;
  Update();
}

void TQELSticky::SetFollowEnabled(bool follow) {
  FFollowEnabled = follow;
  Update();
}

void TQELSticky::SetFollowVisible(bool follow) {
  FFollowVisible = follow;
  Update();
}

int TQELSticky::Along(int start, int room, int own) const {
  switch (FSideAlignment) {
    case ssBegin: return start;
    case ssEnd: return start + room - own;
    case ssCenter: break;
  }
  return start + (room - own) / 2;
}

vcl::TPoint TQELSticky::PlaceFor(int width, int height) const {
  const TRect beside = Control()->BoundsRect();
  const int x = Along(beside.Left, beside.Width(), width);
  const int y = Along(beside.Top, beside.Height(), height);
  switch (FPosition) {
    case pLeft: return {beside.Left - FDistance - width, y};
    case pRight: return {beside.Right + FDistance, y};
    case pTop: return {x, beside.Top - FDistance - height};
    case pBottom: break;
  }
  return {x, beside.Bottom + FDistance};
}

void TQELSticky::Update() {
  const vcl::TControl* const control = Control();
  if (!control || control->Loading() || FFollower.Loading()) return;
  const vcl::TWatch watch(&FFollower);
  const auto goesOn = [&] { return !watch.Gone() && Control() == control; };
  if (control->Parent() && FFollower.Parent() != control->Parent())
    FFollower.SetParent(control->Parent());
  if (goesOn() && FFollowVisible) FFollower.SetVisible(control->Visible());
  if (goesOn() && FFollowEnabled) FFollower.SetEnabled(control->Enabled());
  if (!goesOn() || !Holds()) return;
  FFollower.SetBounds(FFollower.Left(), FFollower.Top(), FFollower.Width(), FFollower.Height());
}

}  // namespace qel
