// TQELPress: how the mouse and the keyboard press a button.
#pragma once

#include <cstdint>
#include <memory>

#include "qel/core/api.h"
#include "vcl/controls/control.h"
#include "vcl/rtl/scope.h"

namespace vcl {
class TTimer;
}

namespace qel {

/// What a press asks of the button that it belongs to, whose handlers may free it in each call.
class TQELPressed {
 public:
  /// True while the mouse is captured for the button.
  virtual bool HoldsMouse() const = 0;
  /// The button has gone down or up.
  virtual void ShowPress() = 0;
  /// The mouse has come over the button, or left it.
  virtual void ShowHot() = 0;
  /// Clicks the button, which has been pressed by a key or by the mouse.
  virtual void PressClicks(bool byKey) = 0;
  /// The mouse's release, which would click the button, clicks nothing any more.
  virtual void ForgetClick() = 0;

 protected:
  TQELPressed() = default;
  TQELPressed(const TQELPressed&) = default;
  TQELPressed& operator=(const TQELPressed&) = default;
  ~TQELPressed() = default;
};

/// The state of a button that can be pressed: by the left mouse button, which then is captured for
/// it, or by the space bar. The control hands on what it hears; it has the style csClickEvents, so
/// that it is the class library that clicks it where the mouse is released over it.
///
/// One press gives one click at most. The system's cancelling, another window's capture, the focus
/// that is lost under the space bar, and a button that is disabled or hidden end a press without
/// one; so does a handler of the press that shows a box.
class QEL_API TQELPress {
 public:
  /// Where the mouse has to be released to click.
  enum class TRelease {
    Over,     ///< Over the button, which goes up while the mouse is beside it.
    Anywhere  ///< Wherever it is, and whichever of its buttons is released.
  };

  /// Control and button are the same object, which owns the press.
  TQELPress(vcl::TControl& control, TQELPressed& button, TRelease release = TRelease::Over);
  ~TQELPress();
  TQELPress(const TQELPress&) = delete;
  TQELPress& operator=(const TQELPress&) = delete;

  /// True while the button is to look pressed.
  bool Down() const { return FHolder != THolder::Nobody && FOver; }
  /// True while the mouse is over the button.
  bool Hot() const { return FHot; }
  /// Has the button click when it goes down, again after `delay` milliseconds, and then at each
  /// interval until it goes up; a delay of 0 has it click once, when it is released.
  void SetRepeat(unsigned delay, unsigned interval);

  /// What the control hears of the mouse, behind its events; `over` says whether that is over it.
  void MouseDown(vcl::TMouseButton button);
  void MouseMove(bool over);
  void MouseUp(vcl::TMouseButton button);
  /// A key, behind OnKeyDown, and in front of OnKeyUp.
  void KeyDown(std::uint16_t key);
  void KeyUp(std::uint16_t key);
  /// Stands around the control's handling of a message: the capture that ends with the mouse's
  /// release has not been taken away.
  vcl::TSetFor<bool> Handling(const vcl::TMessage& message);
  /// A message that the control has handled.
  void Heard(const vcl::TMessage& message);
  /// The button is about to click, by whatever: a press that does not repeat ends with that.
  void Clicking();
  /// Ends the press without a click.
  void End();

 private:
  enum class THolder { Nobody, Mouse, Key };
  void Begin(THolder holder);
  void Repeat(vcl::TObject* sender);
  void ClickOnce(bool byKey);
  bool EndsBy(const vcl::TMessage& message) const;

  vcl::TControl& FControl;
  TQELPressed& FButton;
  TRelease FRelease;
  THolder FHolder = THolder::Nobody;
  bool FOver = false;
  bool FHot = false;
  bool FReleasing = false;  // The mouse is being released: the capture ends by itself.
  bool FRepeating = false;  // The press clicks, and goes on.
  unsigned FDelay = 0;
  unsigned FInterval = 0;
  std::unique_ptr<vcl::TTimer> FTimer;  // Made for the first press that repeats.
};

}  // namespace qel
