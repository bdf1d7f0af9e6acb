// TWinControl: arranging the controls inside by their Align.
#include <algorithm>

#include "vcl/controls/wincontrol.h"

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
  const int width = std::max(rect.Width(), 0);
  const int height = std::max(rect.Height(), 0);
  switch (control->Align()) {
    case alTop:
      control->SetBounds(rect.Left, rect.Top, width, control->Height());
      if (!watch.Gone()) rect.Top += control->Height();
      return;
    case alBottom:
      rect.Bottom -= control->Height();
      return control->SetBounds(rect.Left, rect.Bottom, width, control->Height());
    case alLeft:
      control->SetBounds(rect.Left, rect.Top, control->Width(), height);
      if (!watch.Gone()) rect.Left += control->Width();
      return;
    case alRight:
      rect.Right -= control->Width();
      return control->SetBounds(rect.Right, rect.Top, control->Width(), height);
    case alClient: return control->SetBounds(rect.Left, rect.Top, width, height);
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
  const TAlignHold hold(*this);
  TRect rect = ClientRect();
  AdjustClientRect(rect);
  AlignControls(control, rect);
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
