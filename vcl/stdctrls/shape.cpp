// TShape: where its shape lies, and drawing it.
#include "vcl/stdctrls/shape.h"

#include <algorithm>

#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/brush.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/pen.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TShape::Class() {
  using T = TShape;
  static const TClass info = Describe<T, TGraphicControl>(
      "vcl::TShape", "vcl/stdctrls/extctrls.h",
      {
          Inherit("Align"),
          Property<&T::Brush, &T::SetBrush>("Brush"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("ParentShowHint"),
          Property<&T::Pen, &T::SetPen>("Pen"),
          Inherit("PopupMenu"),
          Property<&T::Shape, &T::SetShape>("Shape").Default(stRectangle),
          Inherit("ShowHint"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TShape::TShape(TComponent* owner)
    : TGraphicControl(owner), FBrush(std::make_unique<TBrush>()), FPen(std::make_unique<TPen>()) {
  SetControlStyle(ControlStyle() + TControlStyle{csReplicatable});
  SetBounds(0, 0, 65, 65);
  FBrush->OnChange = {this, &TShape::StyleChanged};
  FPen->OnChange = {this, &TShape::StyleChanged};
}

TShape::~TShape() { AnnounceEnd(); }

void TShape::SetBrush(const TBrush* brush) { FBrush->Assign(brush); }
void TShape::SetPen(const TPen* pen) { FPen->Assign(pen); }

void TShape::SetShape(TShapeType shape) {
  if (shape == FShape) return;
  FShape = shape;
  Invalidate();
}

/// Where the middle of the outline runs.
TRect TShape::ShapeRect() const {
  const int pen = std::max(FPen->Width(), 1);
  const int inset = pen / 2;
  TRect rect(inset, inset, Width() - pen + 1 + inset, Height() - pen + 1 + inset);
  if (FShape != stSquare && FShape != stRoundSquare && FShape != stCircle) return rect;
  const int side = std::min(rect.Width(), rect.Height());
  rect.Left += (rect.Width() - side) / 2;
  rect.Top += (rect.Height() - side) / 2;
  return {rect.Left, rect.Top, rect.Left + side, rect.Top + side};
}

void TShape::Paint() {
  const TRect rect = ShapeRect();
  if (rect.Width() <= 0 || rect.Height() <= 0) return;
  TCanvas* const canvas = Canvas();
  canvas->SetPen(FPen.get());
  canvas->SetBrush(FBrush.get());
  const int corner = std::min(rect.Width(), rect.Height()) / 4;
  switch (FShape) {
    case stRectangle:
    case stSquare: return canvas->Rectangle(rect);
    case stRoundRect:
    case stRoundSquare:
      return canvas->RoundRect(rect.Left, rect.Top, rect.Right, rect.Bottom, corner, corner);
    case stEllipse:
    case stCircle: return canvas->Ellipse(rect);
  }
}

}  // namespace vcl
