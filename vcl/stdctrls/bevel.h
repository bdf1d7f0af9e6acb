// TBevel: a line or frame between controls.
#pragma once

#include "vcl/controls/control.h"

namespace vcl {

enum TBevelStyle { bsLowered, bsRaised };
template <>
inline constexpr TEnumText EnumText<TBevelStyle>{"TBevelStyle", "bsLowered bsRaised"};
enum TBevelShape { bsBox, bsFrame, bsTopLine, bsBottomLine, bsLeftLine, bsRightLine, bsSpacer };
template <>
inline constexpr TEnumText EnumText<TBevelShape>{
    "TBevelShape", "bsBox bsFrame bsTopLine bsBottomLine bsLeftLine bsRightLine bsSpacer"};

/// A line or frame between controls.
class VCL_API TBevel : public TGraphicControl {
 public:
  explicit TBevel(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TBevelShape Shape() const { return FShape; }
  /// Which line or frame is drawn; bsSpacer draws none.
  void SetShape(TBevelShape shape);
  TBevelStyle Style() const { return FStyle; }
  /// Whether the line or frame looks sunk or raised.
  void SetStyle(TBevelStyle style);

 protected:
  void Paint() override;

 private:
  TBevelShape FShape = bsBox;
  TBevelStyle FStyle = bsLowered;
};

}  // namespace vcl
