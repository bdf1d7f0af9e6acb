// TWinControl: arranging the controls inside by their Align.
#include <algorithm>

#include "vcl/controls/private/margins.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/scope.h"

namespace vcl {
namespace {

/// Of two controls along one edge, whether the first comes nearer to that edge.
bool ComesBefore(const TControl* a, const TControl* b, TAlign align) {
  switch (align) {
    case alTop: return a->Top() < b->Top();
    case alBottom: return a->Top() + a->Height() > b->Top() + b->Height();
    case alLeft: return a->Left() < b->Left();
    case alRight: return a->Left() + a->Width() > b->Left() + b->Width();
    case alNone:
    case alClient:
    default: return false;
  }
}

/// Puts the control along its edge of the rectangle, which becomes what is left of it. A control
/// that ends as it hears of its new size takes nothing.
void Place(TControl* control, TRect& rect) {
  const TWatch watch(control);
  // What the control keeps free around itself lies inside the part that it takes of the rectangle.
  const TRect around = MarginsOf(*control);
  const int x = rect.Left + around.Left;
  const int y = rect.Top + around.Top;
  const int width = std::max(rect.Width() - around.Left - around.Right, 0);
  const int height = std::max(rect.Height() - around.Top - around.Bottom, 0);
  switch (control->Align()) {
    case alTop:
      control->SetBounds(x, y, width, control->Height());
      if (!watch.Gone()) rect.Top += around.Top + control->Height() + around.Bottom;
      return;
    case alBottom:
      rect.Bottom -= around.Bottom + control->Height();
      control->SetBounds(x, rect.Bottom, width, control->Height());
      rect.Bottom -= around.Top;
      return;
    case alLeft:
      control->SetBounds(x, y, control->Width(), height);
      if (!watch.Gone()) rect.Left += around.Left + control->Width() + around.Right;
      return;
    case alRight:
      rect.Right -= around.Right + control->Width();
      control->SetBounds(rect.Right, y, control->Width(), height);
      rect.Right -= around.Left;
      return;
    case alClient: return control->SetBounds(x, y, width, height);
    case alNone: return;
  }
}

}  // namespace

TWinControl::TAlignHold::TAlignHold(TWinControl& control) : FWatch(&control), FControl(control) {
  FControl.DisableAlign();
}

TWinControl::TAlignHold::~TAlignHold() {
  if (FWatch.Gone()) return;
  FControl.FAlignNeeded = false;
  --FControl.FAlignLevel;
}

void TWinControl::AlignControl(TControl* control) {
  if (Destroying()) return;
  if (FAlignLevel > 0) {
    FAlignNeeded = true;
    return;
  }
  // Controls that are moved ask for the same again, which this call does already.
  const TWatch watch(this);
  {
    const TAlignHold hold(*this);
    PrepareAlign();
    if (watch.Gone()) return;
    TRect rect = ClientRect();
    AlignByAnchors(rect.Size());
    if (watch.Gone()) return;
    AdjustClientRect(rect);
    if (FPadding) rect = FPadding->Inside(rect);
    AlignControls(control, rect);
  }
  if (!watch.Gone() && FAutoSize) FitToControls();
}

/// Moves the controls that keep their distance from other edges than the left and the top one.
void TWinControl::AlignByAnchors(TSize inside) {
  if (Loading()) return;
  VisitControls([inside](TControl* control) {
    if (control->Align() == alNone && !control->Loading()) control->MoveByAnchors(inside);
    return true;
  });
}

TPadding* TWinControl::Padding() const {
  if (!FPadding) {
    FPadding =
        std::make_unique<TPadding>([self = const_cast<TWinControl*>(this)] { self->Realign(); });
  }
  return FPadding.get();
}

void TWinControl::SetPadding(const TPadding* padding) { Padding()->Assign(padding); }

void TWinControl::SetAutoSize(bool autoSize) {
  if (autoSize == FAutoSize) return;
  FAutoSize = autoSize;
  if (autoSize) Realign();
}

namespace {

/// What controls need of the room that they stand in, from its top left corner.
struct TNeed {
  int Across = 0;  // In one row: controls along the left and the right edge.
  int Down = 0;
  int Right = 0;  // Of what stands freely.
  int Bottom = 0;

  void Count(const TControl& control, TPoint origin) {
    const TRect around = MarginsOf(control);
    const int width = around.Left + control.Width() + around.Right;
    const int height = around.Top + control.Height() + around.Bottom;
    switch (control.Align()) {
      case alLeft:
      case alRight: Across += width; return;
      case alTop:
      case alBottom: Down += height; return;
      case alNone:
        // What follows the far edge needs no more than it has.
        if (!control.Anchors().Has(akRight)) {
          Right = std::max(Right, control.Left() + control.Width() - origin.X);
        }
        if (!control.Anchors().Has(akBottom)) {
          Bottom = std::max(Bottom, control.Top() + control.Height() - origin.Y);
        }
        return;
      case alClient: return;
    }
  }
  int Width() const { return std::max(Across, Right); }
  int Height() const { return std::max(Down, Bottom); }
};

}  // namespace

void TWinControl::FitToControls() {
  if (Loading()) return;
  TRect room = ClientRect();
  AdjustClientRect(room);
  if (FPadding) room = FPadding->Inside(room);
  TNeed need;
  for (const TControl* each : FControls) {
    if (each->Seen()) need.Count(*each, room.TopLeft());
  }
  const int width = need.Width() > 0 ? Width() - room.Width() + need.Width() : Width();
  const int height = need.Height() > 0 ? Height() - room.Height() + need.Height() : Height();
  // Its own new size asks for no more than this.
  const TSetFor fitting(FAutoSize, false, this);
  SetBounds(Left(), Top(), width, height);
}

void TWinControl::ScrollBy(int dx, int dy) {
  if (dx == 0 && dy == 0) return;
  const TWatch watch(this);
  {
    const TAlignHold hold(*this);
    VisitControls([dx, dy](TControl* control) {
      control->ScrollBounds(dx, dy);
      return true;
    });
  }
  if (!watch.Gone()) Invalidate();
}

void TWinControl::Realign() { AlignControl(nullptr); }

void TWinControl::EnableAlign() {
  if (--FAlignLevel == 0 && FAlignNeeded) Realign();
}

void TWinControl::AlignControls(TControl* control, TRect& rect) {
  const TWatch watch(this);
  for (const TAlign align : {alTop, alBottom, alLeft, alRight, alClient}) {
    if (!watch.Gone()) AlignGroup(control, align, rect);
  }
}

void TWinControl::AlignGroup(TControl* control, TAlign align, TRect& rect) {
  std::vector<TControl*> group;
  for (TControl* each : FControls) {
    if (each->Align() == align && (each->Visible() || each->Designing())) group.push_back(each);
  }
  // The control that asks goes in front of those that it has been moved level with.
  std::stable_partition(group.begin(), group.end(),
                        [&](TControl* each) { return each == control; });
  std::ranges::stable_sort(group,
                           [&](TControl* a, TControl* b) { return ComesBefore(a, b, align); });
  // What hears of its new size may free any of them, and this control too.
  const TWatch watch(this);
  for (TControl* each : group) {
    if (std::ranges::count(FControls, each) > 0) Place(each, rect);
    if (watch.Gone()) return;
  }
}

}  // namespace vcl
