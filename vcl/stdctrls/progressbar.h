// TProgressBar: how far something has come.
#pragma once

#include "vcl/rtl/systemmacros.h"
#include "vcl/stdctrls/rangecontrol.h"

namespace vcl {

enum TProgressBarOrientation { pbHorizontal, pbVertical };
template <>
inline constexpr TEnumText EnumText<TProgressBarOrientation>{"TProgressBarOrientation",
                                                             "pbHorizontal pbVertical"};
/// A bar up to the position, or one that runs for work whose end nobody knows.
enum TProgressBarStyle { pbstNormal, pbstMarquee };
template <>
inline constexpr TEnumText EnumText<TProgressBarStyle>{"TProgressBarStyle",
                                                       "pbstNormal pbstMarquee"};
/// Whether the work goes on, has failed or waits; the system gives each its colour.
enum TProgressBarState { pbsNormal, pbsError, pbsPaused };
template <>
inline constexpr TEnumText EnumText<TProgressBarState>{"TProgressBarState",
                                                       "pbsNormal pbsError pbsPaused"};

/// A bar that is as long as Position is far on the way from Min to Max.
class VCL_API TProgressBar : public TRangeControl {
 public:
  explicit TProgressBar(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TProgressBarOrientation Orientation() const { return FOrientation; }
  /// Whether the bar grows to the right or upwards.
  void SetOrientation(TProgressBarOrientation orientation);
  bool Smooth() const { return FSmooth; }
  /// True: one bar; false: blocks, where the system's look has them.
  void SetSmooth(bool smooth);
  TProgressBarStyle Style() const { return FStyle; }
  /// Whether the bar shows the position or runs on and on.
  void SetStyle(TProgressBarStyle style);
  int MarqueeInterval() const { return FMarqueeInterval; }
  /// The milliseconds between two steps of a bar that runs. Raises EArgumentOutOfRangeException for
  /// less than 1.
  void SetMarqueeInterval(int milliseconds);
  TProgressBarState State() const { return FState; }
  /// Whether the work goes on, has failed or waits.
  void SetState(TProgressBarState state);
  int Step() const { return FStep; }
  /// By how much StepIt moves the position.
  void SetStep(int step) { FStep = step; }

  /// Moves the position by Step; behind the end it goes on from the other.
  void StepIt();
  /// Moves the position, at most to the bounds.
  void StepBy(int delta);

 protected:
  void SendRange() override;
  void SendPosition() override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;

 private:
  template <class T>
  void ChangeStyle(T& field, T value);

  TProgressBarOrientation FOrientation = pbHorizontal;
  TProgressBarStyle FStyle = pbstNormal;
  TProgressBarState FState = pbsNormal;
  bool FSmooth = false;
  int FMarqueeInterval = 10;
  int FStep = 10;
};

}  // namespace vcl
