// TQELGauge: a percentage as a bar of segments.
#pragma once

#include <cstdint>
#include <memory>

#include "qel/controls/Qeltbackground.h"
#include "qel/core/Qelclasses.h"
#include "qel/core/Qelcontrols.h"

namespace qel {

/// Shows a percentage as a bar of segments inside two bevels, with the number written over it,
/// beside a glyph and on a background where there are any.
class QEL_API TQELGauge : public TQELGraphicControl {
 public:
  explicit TQELGauge(vcl::TComponent* owner);
  ~TQELGauge() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;

  /// The image beside the bar.
  TQELGlyph* Glyph() const { return FGlyph.get(); }
  /// Copies the settings and the images.
  void SetGlyph(const TQELGlyph* glyph);
  /// How the number is written.
  TQELFont3D* Font3D() const { return FFont3D.get(); }
  /// Uses that very object from now on, which the gauge then owns; the one that it had is freed.
  /// Null is refused. Settings that another control owns are copied instead, as they end with it.
  void SetFont3D(TQELFont3D* font3D);
  TQELBackground* Background() const { return FBackground; }
  /// The background behind it all, which is not owned; null for none.
  void SetBackground(TQELBackground* background);
  /// The frame around the bar.
  TQELFrame* BevelInner() const { return FBevelInner.get(); }
  /// As SetFont3D. The gauge's other bevel is copied.
  void SetBevelInner(TQELFrame* frame);
  /// The frame along the gauge's edge.
  TQELFrame* BevelOuter() const { return FBevelOuter.get(); }
  /// As SetBevelInner.
  void SetBevelOuter(TQELFrame* frame);
  TQELPosition PicturePosition() const { return FPicturePosition; }
  /// The side of the bar on which the glyph stands.
  void SetPicturePosition(TQELPosition position);
  int Borderwidth() const { return FBorderwidth; }
  /// Between the two bevels, in pixels. Takes only values above 0.
  void SetBorderwidth(int width);
  TQELKind Kind() const { return FKind; }
  /// The bar grows to the right, or upwards.
  void SetKind(TQELKind kind);
  /// The distance between two segments, in pixels, plus one.
  int SegmentGap() const { return FSegmentGap; }
  /// Takes only values from 0. A gap is one pixel narrower than this, a segment one wider than
  /// SegmentWidth.
  void SetSegmentGap(int gap);
  /// The width of a segment, in pixels, minus one.
  int SegmentWidth() const { return FSegmentWidth; }
  /// Takes only values above 0.
  void SetSegmentWidth(int width);
  vcl::TColor SegmentColor() const { return FSegmentColor; }
  /// The colour of the segments.
  void SetSegmentColor(vcl::TColor color);
  vcl::TColor InsideBackColor() const { return FInsideBackColor; }
  /// The colour of the gaps, and of what the bar has not reached.
  void SetInsideBackColor(vcl::TColor color);
  int Percentage() const { return FPercentage; }
  /// From 0 to 100; what lies outside becomes the nearer end. Shown at once, without the rest of
  /// the gauge being painted.
  void SetPercentage(int percentage);

  /// Draws the bar and the number now. Does nothing while the gauge is not to be seen: invisible,
  /// or without a parent that has a window.
  void UpdateProgress();

 protected:
  void Paint() override;
  void ChangeScale(int m, int d) override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  struct TRange {
    std::int64_t First;
    std::int64_t Last;
  };

  void SetBevel(std::unique_ptr<TQELFrame>& bevel, TQELFrame* frame, const TQELFrame* other);
  bool CanDraw() const;
  vcl::TRect Margins() const;
  vcl::TRect BarRect() const;
  vcl::TPoint GlyphPosition() const;
  vcl::TRect PaintBevels();
  void DrawColumns(vcl::TRect bar);
  void DrawRows(vcl::TRect bar);
  int Filled(int span) const;
  void DrawLines(const vcl::TRect& bar, int first, int last);
  void DrawRuns(const vcl::TRect& bar, TRange lines, TRange part, vcl::TColor color);
  vcl::TRect Run(const vcl::TRect& bar, TRange lines) const;

  std::unique_ptr<TQELGlyph> FGlyph;
  std::unique_ptr<TQELFont3D> FFont3D;
  TQELBackground* FBackground = nullptr;
  std::unique_ptr<TQELFrame> FBevelInner;
  std::unique_ptr<TQELFrame> FBevelOuter;
  TQELPosition FPicturePosition = pLeft;
  int FBorderwidth = 6;
  TQELKind FKind = kHorizontal;
  int FSegmentGap = 2;
  int FSegmentWidth = 8;
  vcl::TColor FSegmentColor = vcl::clNavy;
  vcl::TColor FInsideBackColor = vcl::clWhite;
  int FPercentage = 0;
};

}  // namespace qel
