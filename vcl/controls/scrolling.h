// TScrollingWinControl: a control whose inside may be larger than its window, and its scroll bars.
#pragma once

#include "vcl/controls/wincontrol.h"

namespace vcl {

class TScrollingWinControl;

/// One of the two scroll bars of a control's window. It is there while Range is more than what the
/// window has room for. All values are in pixels.
class VCL_API TControlScrollBar : public TPersistent {
 public:
  enum class TAxis { Horizontal, Vertical };
  TControlScrollBar(TScrollingWinControl& control, TAxis axis);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;

  int Increment() const { return FIncrement; }
  /// How far an arrow of the bar, an arrow key and a third of a wheel's notch scroll; 8 at first.
  /// Raises EArgumentOutOfRangeException for less than 1.
  void SetIncrement(int increment);
  int Margin() const { return FMargin; }
  /// What AutoScroll and ScrollInView leave free beyond a control. Raises
  /// EArgumentOutOfRangeException for a negative one.
  void SetMargin(int margin);
  int Position() const { return FPosition; }
  /// Scrolls what stands inside so that this pixel of it is the window's first; as far as Range
  /// lets it.
  void SetPosition(int position);
  int Range() const { return FRange; }
  /// The extent of what can be scrolled to; 0 for nothing beyond the window. AutoScroll ends.
  /// Raises EArgumentOutOfRangeException for a negative one.
  void SetRange(int range);
  bool Tracking() const { return FTracking; }
  /// Scrolls while the thumb is moved, and not only when it is let go.
  void SetTracking(bool tracking) { FTracking = tracking; }
  bool Visible() const { return FVisible; }
  /// False keeps the bar out of sight and from the user; Position scrolls all the same.
  void SetVisible(bool visible);
  /// True while the window has the bar.
  bool IsScrollBarVisible() const;

 private:
  friend class TScrollingWinControl;
  bool Vertical() const { return FAxis == TAxis::Vertical; }
  int Bar() const;
  int Along(TSize size) const { return Vertical() ? size.cy : size.cx; }
  int Thickness() const;
  int Page() const;
  int Last() const;
  int Needed() const;
  int EndOf(const TControl& control) const;
  bool IsRangeStored() const;
  void CalcAutoRange();
  void Show(bool visible);
  void MoveTo(int position);
  void ShowPosition();
  void Scroll(WPARAM code);
  void BringIntoView(int from, int to);

  TScrollingWinControl& FControl;
  TAxis FAxis;
  int FIncrement = 8;
  int FMargin = 0;
  int FPosition = 0;
  int FRange = 0;
  int FWheelRest = 0;  // What the wheel has turned short of a pixel, in pixels times a notch.
  bool FTracking = false;
  bool FVisible = true;
};

/// A control that scrolls the controls inside when they need more room than its window has. The
/// wheel, the scroll bars and, while the control itself has the focus, the arrow and page keys
/// scroll. A control inside that gets the focus by the keyboard or by code is brought into view.
///
/// Left and Top of the controls inside are where they are in the window, so they change as it
/// scrolls; a form file has them as they are when nothing is scrolled.
class VCL_API TScrollingWinControl : public TWinControl {
 public:
  explicit TScrollingWinControl(TComponent* owner);
  ~TScrollingWinControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool AutoScroll() const { return FAutoScroll; }
  /// The ranges of the scroll bars follow the controls inside.
  void SetAutoScroll(bool autoScroll);
  TControlScrollBar* HorzScrollBar() const { return FHorz.get(); }
  /// The scroll bar at the lower edge: its range, position and steps.
  void SetHorzScrollBar(const TControlScrollBar* bar) { FHorz->Assign(bar); }
  TControlScrollBar* VertScrollBar() const { return FVert.get(); }
  /// The scroll bar at the right edge: its range, position and steps.
  void SetVertScrollBar(const TControlScrollBar* bar) { FVert->Assign(bar); }
  /// Between the two, AutoScroll leaves the ranges as they are, whatever moves inside.
  void DisableAutoRange() { ++FAutoRangeLevel; }
  void EnableAutoRange();
  /// Scrolls so far that the control, which stands somewhere inside, is seen; its left and upper
  /// edge when it is larger than the window.
  void ScrollInView(TControl* control);
  /// The same in all scrolling controls around the control, from the innermost on.
  static void BringIntoView(TControl& control);
  TPoint ScrollOffset() const override;

 protected:
  void PrepareAlign() override;
  bool ArrangesFree() const override { return FAutoScroll || TWinControl::ArrangesFree(); }
  void AdjustClientRect(TRect& rect) const override;
  bool DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) override;
  void Dispatch(TMessage& message) override;
  void DefaultHandler(TMessage& message) override;
  void Loaded() override;
  /// What the scroll bars take of the window now: the width of the vertical one and the height of
  /// the horizontal one.
  TSize ScrollBarsSize() const;

 private:
  friend class TControlScrollBar;
  void UpdateScrollBars();
  bool ScrollByKey(WPARAM key);
  bool ScrollByWheel(TControlScrollBar& bar, int wheelDelta);

  std::unique_ptr<TControlScrollBar> FHorz;
  std::unique_ptr<TControlScrollBar> FVert;
  bool FAutoScroll = false;
  bool FUpdatingBars = false;
  int FAutoRangeLevel = 0;
};

}  // namespace vcl
