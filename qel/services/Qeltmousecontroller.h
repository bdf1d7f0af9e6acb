// TQELMouseController: the mouse moved, clicked, hidden, and kept in an area by the program.
#pragma once

#include <memory>

#include "qel/core/Qelcomponent.h"
#include "vcl/controls/control.h"
#include "vcl/rtl/events.h"

namespace qel {

/// Moves and clicks the mouse, keeps its pointer on a control or hides it, and tells when it rests.
/// What it holds is let go while another program is the active one, and taken again when this one
/// is. In the designer it does nothing. Of several that keep the pointer the last one does; when it
/// lets go, the one before.
class QEL_API TQELMouseController : public TQELComponent {
 public:
  explicit TQELMouseController(vcl::TComponent* owner);
  ~TQELMouseController() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Moves the pointer into the middle of the control; false when it is not on the screen.
  bool SnapTo(const vcl::TControl* control);
  /// Moves the pointer to a position of the screen.
  void MoveTo(int x, int y);
  /// Presses and lets go the button where the pointer is, once or twice, as a user would.
  void Click(vcl::TMouseButton button = vcl::mbLeft, bool twice = false);

  vcl::TControl* ConfineTo() const { return FConfineTo; }
  /// The control that the pointer does not leave, wherever it moves, as long as it is on the
  /// screen; null for none.
  void SetConfineTo(vcl::TControl* control);
  bool Hide() const { return FHide; }
  /// True hides the pointer over the program's windows.
  void SetHide(bool hide);
  int IdleTime() const { return FIdleTime; }
  /// After how many milliseconds without a move of the mouse OnIdle comes; 0 for never. Less is not
  /// taken.
  void SetIdleTime(int milliseconds);

  /// The mouse has not moved for IdleTime. Comes once until it moves again.
  vcl::TNotifyEvent OnIdle;

 protected:
  void Loaded() override;
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  class TKeeper;
  void Apply();

  vcl::TControl* FConfineTo = nullptr;
  bool FHide = false;
  int FIdleTime = 0;
  std::unique_ptr<TKeeper> FKeeper;
};

}  // namespace qel
