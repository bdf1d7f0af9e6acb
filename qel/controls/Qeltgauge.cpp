// TQELGauge: its settings, where its parts stand, and painting the bar or only what has changed of
// it.
#include "qel/controls/Qeltgauge.h"

#include <algorithm>
#include <string>
#include <utility>

#include "qel/core/private/Qelownedsettings.h"
#include "qel/core/private/arithmetic.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;

namespace {

/// More than any picture has, and little enough that sums of such numbers stay numbers.
constexpr int MaxMargin = 1 << 24;

/// Lets go of a context that a canvas has got itself outside of painting: before the next drawing,
/// the control may have moved.
class TContextEnd {
 public:
  /// The canvas of a control.
  explicit TContextEnd(vcl::TCanvas* canvas)
      : FCanvas(static_cast<vcl::TOnDemandCanvas*>(canvas)) {}
  ~TContextEnd() { FCanvas->FreeHandle(); }
  TContextEnd(const TContextEnd&) = delete;
  TContextEnd& operator=(const TContextEnd&) = delete;

 private:
  vcl::TOnDemandCanvas* FCanvas;
};

}  // namespace

const vcl::TClass& TQELGauge::Class() {
  using T = TQELGauge;
  using namespace vcl;
  static const TClass info = Describe<T, TQELGraphicControl>(
      "qel::TQELGauge", "qel/controls/Qeltgauge.h",
      {
          Inherit("Align"),
          Inherit("Cursor"),
          Property<&T::Glyph, &T::SetGlyph>("Glyph"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(MouseEvents),
          Inherit("Font"),
          Property<&T::Font3D, &T::SetFont3D>("Font3D"),
          Property<&T::Background, &T::SetBackground>("Background"),
          Property<&T::BevelInner, &T::SetBevelInner>("BevelInner"),
          Property<&T::BevelOuter, &T::SetBevelOuter>("BevelOuter"),
          Property<&T::PicturePosition, &T::SetPicturePosition>("PicturePosition").Default(pLeft),
          Property<&T::Borderwidth, &T::SetBorderwidth>("Borderwidth"),
          Property<&T::Kind, &T::SetKind>("Kind"),
          Property<&T::SegmentGap, &T::SetSegmentGap>("SegmentGap").Default(2),
          Property<&T::SegmentWidth, &T::SetSegmentWidth>("SegmentWidth").Default(8),
          Property<&T::SegmentColor, &T::SetSegmentColor>("SegmentColor").Default(clNavy),
          Property<&T::InsideBackColor, &T::SetInsideBackColor>("InsideBackColor").Default(clWhite),
          Property<&T::Percentage, &T::SetPercentage>("Percentage").Default(0),
          // Another size than the constructor's, on purpose: a gauge of exactly 100 by 18 is left
          // out of form files and comes back with 140 by 36.
          Inherit("Width").Default(100),
          Inherit("Height").Default(18),
      });
  return info;
}

TQELGauge::TQELGauge(vcl::TComponent* owner)
    : TQELGraphicControl(owner),
      FGlyph(std::make_unique<TQELGlyph>(this)),
      FFont3D(std::make_unique<TQELFont3D>(this)),
      FBevelInner(std::make_unique<TQELFrame>(this)),
      FBevelOuter(std::make_unique<TQELFrame>(this)) {
  SetBounds(Left(), Top(), 140, 36);
  FBevelInner->SetFrameStyle(frameLowered);
  FBevelInner->SetInitialStyle(frameLowered);
}

TQELGauge::~TQELGauge() {
  AnnounceEnd();
  QELMoveClient(this, FBackground, nullptr);
}

// Properties.

void TQELGauge::SetGlyph(const TQELGlyph* glyph) { FGlyph->Assign(glyph); }

void TQELGauge::SetFont3D(TQELFont3D* font3D) {
  TakeOver(FFont3D, font3D, this);
  Invalidate();
}

void TQELGauge::SetBevelInner(TQELFrame* frame) {
  SetBevel(FBevelInner, frame, FBevelOuter.get());
  FBevelInner->SetInitialStyle(frameLowered);
}

void TQELGauge::SetBevelOuter(TQELFrame* frame) {
  SetBevel(FBevelOuter, frame, FBevelInner.get());
  FBevelOuter->SetInitialStyle(frameRaised);
}

void TQELGauge::SetBevel(std::unique_ptr<TQELFrame>& bevel, TQELFrame* frame,
                         const TQELFrame* other) {
  // One object can't be both bevels, as each is freed by itself.
  if (frame == other) {
    bevel->Assign(frame);
  } else {
    TakeOver(bevel, frame, this);
  }
  Invalidate();
}

void TQELGauge::SetBackground(TQELBackground* background) {
  QELMoveClient(this, FBackground, background);
  FBackground = background;
  Invalidate();
}

void TQELGauge::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELGraphicControl::Notification(component, operation);
  if (operation == vcl::opRemove && component == FBackground) SetBackground(nullptr);
}

void TQELGauge::SetPicturePosition(TQELPosition position) {
  FPicturePosition = position;
  Invalidate();
}

void TQELGauge::SetBorderwidth(int width) {
  if (width <= 0) return;
  FBorderwidth = width;
  Invalidate();
}

void TQELGauge::SetKind(TQELKind kind) {
  FKind = kind;
  Invalidate();
}

void TQELGauge::SetSegmentGap(int gap) {
  if (gap < 0) return;
  FSegmentGap = gap;
  Invalidate();
}

void TQELGauge::SetSegmentWidth(int width) {
  if (width <= 0) return;
  FSegmentWidth = width;
  Invalidate();
}

void TQELGauge::SetSegmentColor(vcl::TColor color) {
  FSegmentColor = color;
  Invalidate();
}

void TQELGauge::SetInsideBackColor(vcl::TColor color) {
  FInsideBackColor = color;
  Invalidate();
}

void TQELGauge::SetPercentage(int percentage) {
  percentage = std::clamp(percentage, 0, 100);
  if (std::exchange(FPercentage, percentage) != percentage) AccessibleChanged(vcl::acValue);
  if (Designing()) Invalidate();
  UpdateProgress();
}

void TQELGauge::ChangeScale(int m, int d) {
  TQELGraphicControl::ChangeScale(m, d);
  FBorderwidth = std::max(ScaleMeasure(FBorderwidth, m, d), 1);
  FSegmentGap = ScaleMeasure(FSegmentGap, m, d);
  FSegmentWidth = std::max(ScaleMeasure(FSegmentWidth, m, d), 1);
}

// Places.

/// What lies between the gauge's outer bevel and its inner one, on each side.
TRect TQELGauge::Margins() const {
  static constexpr int TRect::*sides[] = {&TRect::Left, &TRect::Right, &TRect::Top, &TRect::Bottom};
  const int border = std::min(FBorderwidth, MaxMargin);
  TRect margins(border, border, border, border);
  // By its width above and below the bar, too, and also while it is hidden.
  margins.*sides[FPicturePosition] += FGlyph->GetWidth();
  return margins;
}

TRect TQELGauge::BarRect() const {
  const TRect margins = Margins();
  const int bevels = FBevelInner->BorderWidth() + FBevelOuter->BorderWidth();
  return {margins.Left + bevels - 1, margins.Top + bevels - 1, Width() - margins.Right - bevels,
          Height() - margins.Bottom - bevels};
}

vcl::TPoint TQELGauge::GlyphPosition() const {
  const TRect margins = Margins();
  const int border = Round(std::min(FBorderwidth, MaxMargin) / 2.0);
  const int outer = FBevelOuter->BorderWidth();
  const int middleX = Round((double(Width()) - FGlyph->GetWidth()) / 2);
  const int middleY = Round((double(Height()) - FGlyph->GetHeight()) / 2);
  // One pixel is added to x on three sides, and to y on the fourth: so it is meant.
  switch (FPicturePosition) {
    case pLeft: return {border + outer + 1, middleY};
    case pRight: return {border + (Width() - outer - margins.Right) + 1, middleY};
    case pTop: return {middleX, border + outer + 1};
    case pBottom: break;
  }
  return {middleX + 1, border + (Height() - outer - margins.Bottom)};
}

// Painting.

void TQELGauge::Paint() {
  if (FBackground) FBackground->Draw(Canvas()->Handle(), Width(), Height(), true);
  const vcl::TPoint glyph = GlyphPosition();
  FGlyph->Draw(Canvas(), glyph.X, glyph.Y, Enabled(), false, false);
  const TRect inside = PaintBevels();
  Canvas()->Brush()->SetColor(FInsideBackColor);
  Canvas()->FillRect(inside);
  UpdateProgress();
}

/// Returns what is left inside them.
TRect TQELGauge::PaintBevels() {
  TRect rect(0, 0, Width(), Height());
  FBevelOuter->Draw(Canvas()->Handle(), rect);
  const TRect margins = Margins();
  rect = {rect.Left + margins.Left - 1, rect.Top + margins.Top - 1, rect.Right - margins.Right,
          rect.Bottom - margins.Bottom};
  FBevelInner->Draw(Canvas()->Handle(), rect);
  return rect;
}

bool TQELGauge::CanDraw() const {
  if (Canvas()->HandleAllocated()) return true;
  return Parent() && Parent()->HandleAllocated() && (Visible() || Designing());
}

void TQELGauge::UpdateProgress() {
  if (!CanDraw()) return;
  const TContextEnd end(Canvas());
  const TRect bar = BarRect();
  FKind == kHorizontal ? DrawColumns(bar) : DrawRows(bar);
  FFont3D->Write(Font(), Canvas()->Handle(), bar, std::to_string(FPercentage) + " %",
                 DT_CENTER | DT_VCENTER | DT_SINGLELINE, Enabled());
}

int TQELGauge::Filled(int span) const { return Round(double(span) * FPercentage / 100); }

void TQELGauge::DrawColumns(TRect bar) {
  const int span = bar.Width() - 1;
  const int end = bar.Left + Filled(span);
  if (FPercentage > 0) DrawLines(bar, bar.Left, end);
  // A place is compared with a width, and so it stays: a bar that nearly reaches the right end, or
  // begins far from the left one, leaves there what it finds. Paint has cleared it; a falling
  // percentage takes the segments away once it is low enough.
  if (end >= span) return;
  bar.Left = end;
  Canvas()->Brush()->SetColor(FInsideBackColor);
  Canvas()->FillRect(bar);
}

void TQELGauge::DrawRows(TRect bar) {
  const int bottom = bar.Bottom - 1;
  const int start = bottom - Filled(bottom - bar.Top);
  if (FPercentage > 0) DrawLines(bar, start, bottom);
  bar.Bottom = FPercentage == 0 ? start + 1 : start;
  Canvas()->Brush()->SetColor(FInsideBackColor);
  Canvas()->FillRect(bar);
}

/// Draws the columns, or the rows, from `first` to `last`. A line belongs to a segment when its
/// place modulo SegmentWidth + SegmentGap is not above SegmentWidth: places count from the gauge's
/// corner and not from the bar's, and a segment is one pixel wider than SegmentWidth says.
void TQELGauge::DrawLines(const TRect& bar, int first, int last) {
  const TRect clip = Canvas()->ClipRect();
  const bool columns = FKind == kHorizontal;
  const TRange seen{std::max({first, columns ? clip.Left : clip.Top, 0}),
                    std::min(last, (columns ? clip.Right : clip.Bottom) - 1)};
  const std::int64_t width = FSegmentWidth;
  DrawRuns(bar, seen, {0, width}, FSegmentColor);
  DrawRuns(bar, seen, {width + 1, width + FSegmentGap - 1}, FInsideBackColor);
}

/// Draws those of the lines that lie in the part of their period.
void TQELGauge::DrawRuns(const TRect& bar, TRange lines, TRange part, vcl::TColor color) {
  if (part.First > part.Last) return;
  Canvas()->Brush()->SetColor(color);
  // PatBlt takes the brush that is selected once; FillRect would select it for each run.
  const HDC dc = Canvas()->Handle();
  const std::int64_t period = std::int64_t{FSegmentWidth} + FSegmentGap;
  for (std::int64_t start = lines.First - lines.First % period; start <= lines.Last;
       start += period) {
    const TRange run{std::max(lines.First, start + part.First),
                     std::min(lines.Last, start + part.Last)};
    if (run.First > run.Last) continue;
    const TRect r = Run(bar, run);
    ::PatBlt(dc, r.Left, r.Top, r.Width(), r.Height(), PATCOPY);
  }
}

/// The lines as a rectangle. They go from the bar's one edge to its other, without the pixel at the
/// end; in a gauge that is too small for its margins the end comes before the beginning.
TRect TQELGauge::Run(const TRect& bar, TRange lines) const {
  const auto across = [](int from, int to) {
    return from <= to ? std::pair(from, to) : std::pair(to + 1, from + 1);
  };
  const int first = static_cast<int>(lines.First);
  const int end = static_cast<int>(lines.Last) + 1;
  if (FKind == kHorizontal) {
    const auto [top, bottom] = across(bar.Top, bar.Bottom);
    return {first, top, end, bottom};
  }
  const auto [left, right] = across(bar.Left, bar.Right);
  return {left, first, right, end};
}

void TQELGauge::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELGraphicControl::DescribeAccessible(info);
  info.Role = vcl::arProgressBar;
  info.State.Include(vcl::asReadOnly);
  info.Value = std::to_string(FPercentage) + "%";
}

}  // namespace qel
