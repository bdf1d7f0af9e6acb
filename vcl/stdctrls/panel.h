// TCustomPanel and TPanel: a raised or lowered area that holds controls.
#pragma once

#include "vcl/controls/wincontrol.h"

namespace vcl {

enum TPanelBevel { bvNone, bvLowered, bvRaised };
template <>
inline constexpr TEnumText EnumText<TPanelBevel>{"TPanelBevel", "bvNone bvLowered bvRaised"};

/// Draws a frame of that width, in pixels, in one colour at the top and left and another one at the
/// bottom and right, and shrinks the rectangle to what is inside.
VCL_API void Frame3D(TCanvas* canvas, TRect& rect, TColor topColor, TColor bottomColor, int width);

/// A surface with bevels that other controls stand on.
class VCL_API TCustomPanel : public TCustomControl {
 public:
  explicit TCustomPanel(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TAlignment Alignment() const { return FAlignment; }
  /// Where the caption stands between left and right.
  void SetAlignment(TAlignment alignment);
  TPanelBevel BevelInner() const { return FBevelInner; }
  /// The bevel around the surface.
  void SetBevelInner(TPanelBevel bevel);
  TPanelBevel BevelOuter() const { return FBevelOuter; }
  /// The bevel along the panel's edge.
  void SetBevelOuter(TPanelBevel bevel);
  int BevelWidth() const { return FBevelWidth; }
  /// Pixels of each bevel. Raises EArgumentOutOfRangeException for less than 1.
  void SetBevelWidth(int width);
  int BorderWidth() const { return FBorderWidth; }
  /// Pixels between the bevels. Raises EArgumentOutOfRangeException for a negative width.
  void SetBorderWidth(int width);
  /// bsSingle for a border around the bevels, bsNone for none.
  TBorderStyle BorderStyle() const { return FBorderStyle; }
  /// Takes bsNone and bsSingle; raises EArgumentOutOfRangeException for the others.
  void SetBorderStyle(TBorderStyle style);

 protected:
  void Paint() override;
  void AdjustClientRect(TRect& rect) const override;
  void ChangeScale(int m, int d) override;
  void CreateParams(TCreateParams& params) override;
  void Dispatch(TMessage& message) override;
  void Resize() override;

 private:
  template <class T>
  void ChangeFrame(T& field, T value);
  void DrawBevel(TRect& rect, TPanelBevel bevel);
  void DrawCaption(TRect rect);

  TAlignment FAlignment = taCenter;
  TPanelBevel FBevelInner = bvNone;
  TPanelBevel FBevelOuter = bvRaised;
  TBorderStyle FBorderStyle = bsNone;
  int FBevelWidth = 1;
  int FBorderWidth = 0;
};

/// A panel for forms.
class VCL_API TPanel : public TCustomPanel {
 public:
  explicit TPanel(TComponent* owner) : TCustomPanel(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
