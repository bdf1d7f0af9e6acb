// TQELImageScroller: a picture that moves through its window.
#pragma once

#include <memory>

#include "qel/core/Qelclock.h"
#include "qel/core/Qelcontrols.h"
#include "vcl/graphics/picture.h"

namespace qel {

/// Moves a picture through its window, for ever or from its beginning to its end. The mouse may
/// pull it; the arrows, Page Up and Down, Home, End and the wheel move it, the space bar stops it
/// and has it go on. For a user who wants no animation, and in the designer, it stands still.
class QEL_API TQELImageScroller : public TQELCustomControl {
 public:
  explicit TQELImageScroller(vcl::TComponent* owner);
  ~TQELImageScroller() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(vcl::TAccessibleInfo& info) const override;
  void DoAccessibleAction() override;

  vcl::TPicture* Picture() const { return FPicture.get(); }
  /// The picture that moves.
  void SetPicture(const vcl::TPicture* picture) { FPicture->Assign(picture); }
  TQELKind ScrollDirection() const { return FScrollDirection; }
  /// The picture moves to the left, or upwards.
  void SetScrollDirection(TQELKind direction);
  bool Active() const { return FActive; }
  /// True moves the picture.
  void SetActive(bool active);
  int Step() const { return FStep; }
  /// How many pixels the picture moves in an Interval; the other way below 0.
  void SetStep(int step) { FStep = step; }
  int Interval() const { return FInterval; }
  /// In which time it moves by a Step, in milliseconds. Takes only values above 0.
  void SetInterval(int milliseconds);
  bool Wrap() const { return FWrap; }
  /// True: the picture's beginning follows its end. False: it stops there, and is active no more.
  void SetWrap(bool wrap);
  bool Draggable() const { return FDraggable; }
  /// True: the mouse pulls the picture.
  void SetDraggable(bool draggable) { FDraggable = draggable; }
  bool StopOnHover() const { return FStopOnHover; }
  /// True: the picture stands while the mouse is over it.
  void SetStopOnHover(bool stop);
  int Position() const { return FPosition; }
  /// How far the picture has moved, in pixels. With Wrap it counts modulo the picture's size,
  /// without it ends where the picture does.
  void SetPosition(int position);

  /// The picture has begun anew, with Wrap.
  vcl::TNotifyEvent OnWrap;

 protected:
  void Paint() override;
  void WMEraseBkgnd(vcl::TMessage& message) override { message.Result = 1; }
  void Dispatch(vcl::TMessage& message) override;
  void Resize() override;
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  bool DoMouseWheel(vcl::TShiftState shift, int wheelDelta, vcl::TPoint mousePos) override;
  void MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;
  void MouseMove(vcl::TShiftState shift, int x, int y) override;
  void MouseUp(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) override;

 private:
  void PictureChanged(vcl::TObject* sender);
  void UpdateMotion();
  void Tick(double milliseconds);
  int Along(vcl::TPoint point) const;
  int Extent() const;
  int Room() const;
  int Normal(int position) const;
  bool MoveTo(int position);
  void ShowMove(int from);
  bool Covers() const;
  vcl::TRect Band() const;
  int Jump(std::uint16_t key) const;

  std::unique_ptr<vcl::TPicture> FPicture;
  TQELKind FScrollDirection = kHorizontal;
  bool FActive = false;
  int FStep = 1;
  int FInterval = 20;
  bool FWrap = true;
  bool FDraggable = true;
  bool FStopOnHover = false;
  int FPosition = 0;
  double FRest = 0;  // What the clock has moved short of a pixel.
  bool FHovered = false;
  bool FDragging = false;
  int FDragPosition = 0;  // Of the picture when the mouse stood at 0.
  TQELMotion FMotion;
};

}  // namespace qel
