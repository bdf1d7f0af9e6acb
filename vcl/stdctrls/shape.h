// TShape: a rectangle, an ellipse or the like, drawn on a form.
#pragma once

#include <memory>

#include "vcl/controls/control.h"

namespace vcl {

/// The square, the square with round corners and the circle are as large as the control has room
/// for, in its middle.
enum TShapeType { stRectangle, stSquare, stRoundRect, stRoundSquare, stEllipse, stCircle };
template <>
inline constexpr TEnumText EnumText<TShapeType>{
    "TShapeType", "stRectangle stSquare stRoundRect stRoundSquare stEllipse stCircle"};

/// A control without a window that draws a shape.
class VCL_API TShape : public TGraphicControl {
 public:
  explicit TShape(TComponent* owner);
  ~TShape() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TBrush* Brush() const { return FBrush.get(); }
  /// What the shape is filled with.
  void SetBrush(const TBrush* brush);
  TPen* Pen() const { return FPen.get(); }
  /// What the outline is drawn with.
  void SetPen(const TPen* pen);
  TShapeType Shape() const { return FShape; }
  /// Which shape is drawn.
  void SetShape(TShapeType shape);

 protected:
  void Paint() override;

 private:
  void StyleChanged(TObject*) { Invalidate(); }
  TRect ShapeRect() const;

  std::unique_ptr<TBrush> FBrush;
  std::unique_ptr<TPen> FPen;
  TShapeType FShape = stRectangle;
};

}  // namespace vcl
