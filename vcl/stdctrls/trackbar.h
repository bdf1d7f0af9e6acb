// TTrackBar: a slider for a number.
#pragma once

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/systemmacros.h"

namespace vcl {

enum TTrackBarOrientation { trHorizontal, trVertical };
template <>
inline constexpr TEnumText EnumText<TTrackBarOrientation>{"TTrackBarOrientation",
                                                          "trHorizontal trVertical"};
enum TTickStyle { tsNone, tsAuto };
template <>
inline constexpr TEnumText EnumText<TTickStyle>{"TTickStyle", "tsNone tsAuto"};

/// A track bar. OnChange tells that Position has changed, by the user or by code.
class VCL_API TTrackBar : public TWinControl {
 public:
  explicit TTrackBar(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  /// The least position.
  int Min() const { return FMin; }
  /// The greatest position.
  int Max() const { return FMax; }
  /// Where the slider stands; outside the bounds it is taken as the nearer bound.
  int Position() const { return FPosition; }
  /// The bounds move the position inside. Raise EArgumentOutOfRangeException when the least would
  /// be more than the greatest, or so far below that an int does not hold the way.
  void SetMin(int min) { SetRange(min, FMax); }
  void SetMax(int max) { SetRange(FMin, max); }
  void SetRange(int min, int max);
  /// A position outside the bounds is taken as the nearer bound.
  void SetPosition(int position);
  int LineSize() const { return FLineSize; }
  /// By how much an arrow key moves.
  void SetLineSize(int size);
  int PageSize() const { return FPageSize; }
  /// By how much Page Up, Page Down and a click beside the slider move.
  void SetPageSize(int size);
  int Frequency() const { return FFrequency; }
  /// The distance of the ticks.
  void SetFrequency(int frequency);
  TTrackBarOrientation Orientation() const { return FOrientation; }
  /// Whether the slider moves sideways or up and down.
  void SetOrientation(TTrackBarOrientation orientation);
  TTickStyle TickStyle() const { return FTickStyle; }
  /// tsAuto draws ticks, tsNone none.
  void SetTickStyle(TTickStyle style);

  /// Position has changed, by the user or by code.
  TNotifyEvent OnChange;

 protected:
  virtual void Change();
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;

 private:
  void SendRange();
  void ChangeNumber(int& field, int value, UINT message);

  int FMin = 0;
  int FMax = 10;
  int FPosition = 0;
  int FLineSize = 1;
  int FPageSize = 2;
  int FFrequency = 1;
  TTrackBarOrientation FOrientation = trHorizontal;
  TTickStyle FTickStyle = tsAuto;
};

}  // namespace vcl
