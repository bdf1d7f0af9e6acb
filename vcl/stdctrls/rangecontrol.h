// TRangeControl: what controls with a position between two bounds have in common.
#pragma once

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/systemmacros.h"

namespace vcl {

/// A position that the system's control shows between two bounds. A class derived from it publishes
/// Min, Max and Position, and tells its window of them.
class VCL_API TRangeControl : public TWinControl {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  /// The least position.
  int Min() const { return FMin; }
  /// The greatest position.
  int Max() const { return FMax; }
  /// Where the control stands between the bounds.
  virtual int Position() const { return FPosition; }
  /// The bounds move the position inside. Raise EArgumentOutOfRangeException when the least would
  /// be more than the greatest, or so far below that an int does not hold the way; while a form is
  /// being read, when all three are known.
  void SetMin(int min) { SetRange(min, FMax); }
  void SetMax(int max) { SetRange(FMin, max); }
  void SetRange(int min, int max);
  /// A position outside the bounds is taken as the nearer bound.
  void SetPosition(int position);

 protected:
  TRangeControl(TComponent* owner, int max);
  /// Tell the window of the bounds resp. of the position; called with a window only.
  virtual void SendRange() = 0;
  virtual void SendPosition() = 0;
  /// The position has changed, by the user or by code.
  virtual void Change();
  /// Takes a position that the window tells of.
  void TakePosition(int position);
  void CreateWnd() override;
  void Loaded() override;

 private:
  void CheckRange(int min, int max) const;

  int FMin = 0;
  int FMax;
  int FPosition = 0;
};

}  // namespace vcl
