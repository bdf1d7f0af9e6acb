// TControl and TWinControl: measures at other dots per inch.
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "vcl/controls/private/painthold.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

/// A control and all inside it being scaled. Whose size has changed is told so behind it: a handler
/// that arranges what stands inside by hand would find half of it scaled, and what it has done
/// would be scaled on top.
class TScaling {
 public:
  explicit TScaling(TControl& topmost) : FTopmost(topmost), FAround(std::exchange(Now, this)) {}
  ~TScaling() {
    for (const THeld& held : FHeld) {
      if (!held.Watch.Gone()) held.Control->FMeasures->ResizeHeld = false;
    }
    Now = FAround;
  }
  TScaling(const TScaling&) = delete;
  TScaling& operator=(const TScaling&) = delete;

  /// True when a scaling goes on that will tell the control.
  static bool Takes(TControl& control) {
    for (TScaling* each = Now; each; each = each->FAround) {
      if (each->Holds(control)) return true;
    }
    return false;
  }

  /// The scaling is over. What encloses others is told first: what it does to them, they hear at
  /// once and not again.
  void Tell() {
    FEnded = true;
    for (std::size_t i = FHeld.size(); i-- > 0;) {
      if (FHeld[i].Watch.Gone()) continue;
      TControl& control = *FHeld[i].Control;
      if (std::exchange(control.FMeasures->ResizeHeld, false)) control.Resize();
    }
  }

 private:
  struct THeld {
    TControl* Control;
    TWatch Watch;
  };

  bool Holds(TControl& control) {
    if (FEnded) return false;
    const TControl* each = &control;
    while (each && each != &FTopmost) each = each->Parent();
    if (!each) return false;
    if (!control.FMeasures) control.FMeasures = std::make_unique<TControl::TMeasures>();
    if (!std::exchange(control.FMeasures->ResizeHeld, true)) {
      FHeld.push_back({&control, TWatch(&control)});
    }
    return true;
  }

  inline static TScaling* Now = nullptr;
  TControl& FTopmost;
  TScaling* FAround;
  std::vector<THeld> FHeld;
  bool FEnded = false;
};

int TControl::CurrentPPI() const {
  const TCustomForm* form = ParentForm();
  return form ? form->PixelsPerInch() : DefaultPixelsPerInch;
}

int TControl::ScaledPixels(int pixels) const {
  return ::MulDiv(pixels, CurrentPPI(), DefaultPixelsPerInch);
}

void TControl::ScaleBy(int m, int d) {
  if (m < 1 || d < 1) {
    throw EArgumentOutOfRangeException(
        Concat("A control can't be scaled by ", std::to_string(m), " / ", std::to_string(d)));
  }
  if (m == d) return;
  const TWatch watch(this);
  auto* window = dynamic_cast<TWinControl*>(this);
  // What another window lies around would leave traces there.
  const std::unique_ptr<TPaintHold> hold =
      window && !FParent ? std::make_unique<TPaintHold>(*window) : nullptr;
  TScaling scaling(*this);
  ScaleStep(m, d);
  if (watch.Gone()) return;
  if (window) window->KeepParentSizes();
  // What takes its size from its font does so where it stands already.
  ScaleFonts(m, d);
  if (watch.Gone()) return;
  Invalidate();
  scaling.Tell();
}

void TControl::TellResize() {
  if (Loading() || TScaling::Takes(*this)) return;
  if (FMeasures) FMeasures->ResizeHeld = false;
  Resize();
}

// Measures.

void TControl::ScaleStep(int m, int d) {
  if (!FMeasures) FMeasures = std::make_unique<TMeasures>();
  FMeasures->Next = 0;
  ChangeScale(m, d);
}

int TControl::ScaleMeasure(int measure, int m, int d) {
  if (!FMeasures) FMeasures = std::make_unique<TMeasures>();
  std::vector<TScaledMeasure>& scaled = FMeasures->Scaled;
  if (FMeasures->Next == scaled.size()) scaled.emplace_back();
  return scaled[FMeasures->Next++].Scale(measure, m, d);
}

void TControl::ChangeScale(int m, int d) {
  if (FConstraints) FConstraints->Scale(m, d);
  if (FMargins || FAlignWithMargins) Margins()->Scale(m, d);
  ScaleBounds(m, d);
}

/// Edges and no sizes, so that neighbours stay neighbours. What has a size keeps one.
TRect TControl::ScaleEdges(const TRect& rect, int m, int d) {
  TRect scaled;
  scaled.Left = ScaleMeasure(rect.Left, m, d);
  scaled.Top = ScaleMeasure(rect.Top, m, d);
  scaled.Right = ScaleMeasure(rect.Right, m, d);
  scaled.Bottom = ScaleMeasure(rect.Bottom, m, d);
  scaled.Right = std::max(scaled.Right, scaled.Left + (rect.Width() > 0 ? 1 : 0));
  scaled.Bottom = std::max(scaled.Bottom, scaled.Top + (rect.Height() > 0 ? 1 : 0));
  return scaled;
}

void TControl::ScaleBounds(int m, int d) {
  if (FAlign != alNone) {
    // The parent arranges it, by its thickness and by which edge it is nearer to.
    const int width = ScaleMeasure(FWidth, m, d);
    const int height = ScaleMeasure(FHeight, m, d);
    const int right = ::MulDiv(FLeft + FWidth, m, d);
    const int bottom = ::MulDiv(FTop + FHeight, m, d);
    return SetBounds(FAlign == alRight ? right - width : ::MulDiv(FLeft, m, d),
                     FAlign == alBottom ? bottom - height : ::MulDiv(FTop, m, d), width, height);
  }
  if (!FParent || !FPlace.Known || FAnchors == TAnchors{akLeft, akTop}) {
    const TRect edges = ScaleEdges(BoundsRect(), m, d);
    return SetBounds(edges.Left, edges.Top, edges.Width(), edges.Height());
  }
  // The parent moves it by its anchors, once it has its own size.
  FPlace.Bounds = ScaleEdges(FPlace.Bounds, m, d);
  FPlace.Inside.cx = ScaleMeasure(FPlace.Inside.cx, m, d);
  FPlace.Inside.cy = ScaleMeasure(FPlace.Inside.cy, m, d);
}

void TWinControl::ChangeScale(int m, int d) {
  const TWatch watch(this);
  DisableAlign();
  const TAtEnd enable([this] { EnableAlign(); }, this);
  if (FPadding) FPadding->Scale(m, d);
  VisitControls([m, d](TControl* control) {
    control->ScaleStep(m, d);
    return true;
  });
  if (watch.Gone()) return;
  TControl::ChangeScale(m, d);
  if (!watch.Gone()) FAlignNeeded = true;
}

/// A window that is yet to be made takes its border from sizes as they are now.
void TWinControl::KeepParentSizes() {
  for (TControl* each : FControls) {
    const TWinControl& giver = *SizeGiver();
    if (!giver.FHandle) each->FPlace.Parent = {giver.FWidth, giver.FHeight};
    if (auto* window = dynamic_cast<TWinControl*>(each)) window->KeepParentSizes();
  }
}

// Fonts.

void TControl::ScaleFonts(int m, int d) {
  const TWatch watch(this);
  if (!FParentFont || !FParent) ScaleOwnFont(m, d);
  auto* window = watch.Gone() ? nullptr : dynamic_cast<TWinControl*>(this);
  if (!window) return;
  window->VisitControls([m, d](TControl* control) {
    control->ScaleFonts(m, d);
    return true;
  });
}

void TControl::ScaleOwnFont(int m, int d) {
  const bool follows = FParentFont;
  const TAtEnd restore([this, follows] { FParentFont = follows; }, this);
  if (!FMeasures) FMeasures = std::make_unique<TMeasures>();  // It came here meanwhile.
  const int height = FMeasures->FontHeight.Scale(FFont->Height(), m, d);
  FFont->SetPixelsPerInch(CurrentPPI());
  height == FFont->Height() ? FontChanged(this) : FFont->SetHeight(height);
}

void TControl::ScaleFont(TFont& font, int m, int d) {
  const int height = ScaleMeasure(font.Height(), m, d);
  font.SetPixelsPerInch(CurrentPPI());
  font.SetHeight(height);
}

/// A font of the control's own counts in the parent's pixels; what a form file says is in these.
void TControl::FitFont() {
  const int pixels = FParent->FFont->PixelsPerInch();
  const int former = FFont->PixelsPerInch();
  if (FParentFont || pixels == former) return;
  FFont->SetPixelsPerInch(pixels);
  if (!Loading()) FFont->SetHeight(::MulDiv(FFont->Height(), pixels, former));
}

}  // namespace vcl
