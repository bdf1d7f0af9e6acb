// TWinControl: arranging the controls inside by their Align.
#include <algorithm>

#include "host/vcl/wincontrol.h"

namespace vcl {
namespace {

/// Of two controls along one edge, whether the first comes nearer to that edge.
bool ComesBefore(const TControl* a, const TControl* b, TAlign align) {
  switch (align) {
    case alTop:
      return a->Top() < b->Top();
    case alBottom:
      return a->Top() + a->Height() > b->Top() + b->Height();
    case alLeft:
      return a->Left() < b->Left();
    case alRight:
      return a->Left() + a->Width() > b->Left() + b->Width();
    default:
      return false;
  }
}

/// Puts the control along its edge of the rectangle, which becomes what is left of it.
void Place(TControl* control, TRect& rect) {
  const int width = std::max(rect.Width(), 0);
  const int height = std::max(rect.Height(), 0);
  switch (control->Align()) {
    case alTop:
      control->SetBounds(rect.Left, rect.Top, width, control->Height());
      rect.Top += control->Height();
      return;
    case alBottom:
      rect.Bottom -= control->Height();
      return control->SetBounds(rect.Left, rect.Bottom, width, control->Height());
    case alLeft:
      control->SetBounds(rect.Left, rect.Top, control->Width(), height);
      rect.Left += control->Width();
      return;
    case alRight:
      rect.Right -= control->Width();
      return control->SetBounds(rect.Right, rect.Top, control->Width(), height);
    case alClient:
      return control->SetBounds(rect.Left, rect.Top, width, height);
    case alNone:
      return;
  }
}

}  // namespace

void TWinControl::AlignControl(TControl* control) {
  if (Destroying()) return;
  if (FAlignLevel > 0) {
    FAlignNeeded = true;
    return;
  }
  // Controls that are moved ask for the same again, which this call does already.
  DisableAlign();
  TRect rect = ClientRect();
  AdjustClientRect(rect);
  AlignControls(control, rect);
  FAlignNeeded = false;
  --FAlignLevel;
}

void TWinControl::Realign() { AlignControl(nullptr); }

void TWinControl::EnableAlign() {
  if (--FAlignLevel == 0 && FAlignNeeded) Realign();
}

void TWinControl::AlignControls(TControl* control, TRect& rect) {
  for (const TAlign align : {alTop, alBottom, alLeft, alRight, alClient}) {
    AlignGroup(control, align, rect);
  }
}

void TWinControl::AlignGroup(TControl* control, TAlign align, TRect& rect) {
  std::vector<TControl*> group;
  for (TControl* each : FControls) {
    if (each->Align() == align && (each->Visible() || each->Designing())) group.push_back(each);
  }
  // The control that asks goes in front of those that it has been moved level with.
  std::ranges::stable_partition(group, [&](TControl* each) { return each == control; });
  std::ranges::stable_sort(
      group, [&](TControl* a, TControl* b) { return ComesBefore(a, b, align); });
  for (TControl* each : group) Place(each, rect);
}

}  // namespace vcl
