// TQELArrowButton: a button with an arrow, which repeats its click while it is held down.
#pragma once

#include "qel/controls/Qelcustombutton.h"

namespace qel {

/// Where the arrow of a button points.
enum TQELArrowButtonDirection { adUp, adDown, adLeft, adRight };

/// A button with a triangle on it. Held down, by the mouse or the space bar, it clicks at once and
/// again and again, as long as the mouse is over it.
class QEL_API TQELArrowButton : public TQELCustomButton {
 public:
  explicit TQELArrowButton(vcl::TComponent* owner);
  ~TQELArrowButton() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELArrowButtonDirection Direction() const { return FDirection; }
  /// Where the arrow points.
  void SetDirection(TQELArrowButtonDirection direction);
  vcl::TColor ArrowColor() const { return FArrowColor; }
  /// The colour of the arrow.
  void SetArrowColor(vcl::TColor color);
  int ArrowSize() const { return FArrowSize; }
  /// The arrow's length in pixels at 96 dots per inch. Takes only values from 2 to 15.
  void SetArrowSize(int size);
  bool Repeating() const { return FRepeating; }
  /// False has the button click once, when it is released over it.
  void SetRepeating(bool repeating);
  int Delay() const { return FDelay; }
  /// Milliseconds from the first click of a press to the second. Takes only values above 0.
  void SetDelay(int delay);
  int Interval() const { return FInterval; }
  /// Milliseconds between the further clicks. Takes only values above 0.
  void SetInterval(int interval);

 protected:
  void Paint() override;

 private:
  void RepeatChanged();

  TQELArrowButtonDirection FDirection = adUp;
  vcl::TColor FArrowColor = vcl::clBtnText;
  int FArrowSize = 7;
  bool FRepeating = true;
  int FDelay = 400;
  int FInterval = 100;
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELArrowButtonDirection>{"TQELArrowButtonDirection",
                                                                   "adUp adDown adLeft adRight"};

}  // namespace vcl
