// TTrackBar: a slider for a number.
#pragma once

#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/rangecontrol.h"

namespace vcl {

enum TTrackBarOrientation { trHorizontal, trVertical };
template <>
inline constexpr TEnumText EnumText<TTrackBarOrientation>{"TTrackBarOrientation",
                                                          "trHorizontal trVertical"};
enum TTickStyle { tsNone, tsAuto };
template <>
inline constexpr TEnumText EnumText<TTickStyle>{"TTickStyle", "tsNone tsAuto"};

/// A track bar. OnChange tells that Position has changed, by the user or by code.
class VCL_API TTrackBar : public TRangeControl {
 public:
  explicit TTrackBar(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

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
  void SendRange() override;
  void SendPosition() override;
  void Change() override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;

 private:
  void ChangeNumber(int& field, int value, UINT message);

  int FLineSize = 1;
  int FPageSize = 2;
  int FFrequency = 1;
  TTrackBarOrientation FOrientation = trHorizontal;
  TTickStyle FTickStyle = tsAuto;
};

}  // namespace vcl
