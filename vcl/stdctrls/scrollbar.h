// TScrollBar: a scroll bar by itself.
#pragma once

#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/rangecontrol.h"

namespace vcl {

enum TScrollBarKind { sbHorizontal, sbVertical };
template <>
inline constexpr TEnumText EnumText<TScrollBarKind>{"TScrollBarKind", "sbHorizontal sbVertical"};
/// What the user does to a scroll bar.
enum TScrollCode {
  scLineUp,
  scLineDown,
  scPageUp,
  scPageDown,
  scPosition,  ///< The thumb was let go.
  scTrack,     ///< The thumb is being moved.
  scTop,
  scBottom,
  scEndScroll
};
template <>
inline constexpr TEnumText EnumText<TScrollCode>{
    "TScrollCode",
    "scLineUp scLineDown scPageUp scPageDown scPosition scTrack scTop scBottom scEndScroll"};
/// Sender, what the user does, and the position that comes of it, which the handler may change.
using TScrollEvent = TEvent<TObject*, TScrollCode, int&>;
template <>
inline constexpr TEventText EventText<TScrollEvent>{
    "TScrollEvent", "vcl::TObject* sender, vcl::TScrollCode scrollCode, int& scrollPos"};

/// A scroll bar that stands by itself, moved with the mouse, the wheel and, with the focus, the
/// arrow and page keys.
class VCL_API TScrollBar : public TRangeControl {
 public:
  explicit TScrollBar(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TScrollBarKind Kind() const { return FKind; }
  /// Whether the bar lies or stands.
  void SetKind(TScrollBarKind kind);
  int LargeChange() const { return FLargeChange; }
  /// By how much Page Up, Page Down and a click beside the thumb move.
  void SetLargeChange(int change) { FLargeChange = change; }
  int SmallChange() const { return FSmallChange; }
  /// By how much the arrows, the arrow keys and a third of a wheel's notch move.
  void SetSmallChange(int change) { FSmallChange = change; }
  int PageSize() const { return FPageSize; }
  /// How much of the way the thumb covers; the user gets no further than Max - PageSize + 1, for
  /// code Max is the bound. Raises EArgumentOutOfRangeException for a negative one.
  void SetPageSize(int pageSize);

  /// The position has changed, by the user or by code.
  TNotifyEvent OnChange;
  /// The user moves the bar.
  TScrollEvent OnScroll;

 protected:
  /// Fires OnScroll.
  virtual void Scroll(TScrollCode code, int& position);
  void SendRange() override;
  void SendPosition() override;
  void Change() override;
  bool DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) override;
  void CreateParams(TCreateParams& params) override;
  void Dispatch(TMessage& message) override;

 private:
  int PositionBy(TScrollCode code) const;
  int LastForUser() const;
  void MoveByUser(TScrollCode code);

  TScrollBarKind FKind = sbHorizontal;
  int FLargeChange = 1;
  int FSmallChange = 1;
  int FPageSize = 0;
  int FWheelRest = 0;  // What the wheel has turned short of a step.
};

}  // namespace vcl
