// TQELMotion: what moves on a control, and the clock that all of them share.
#pragma once

#include <functional>

#include "qel/core/api.h"
#include "vcl/rtl/watch.h"

namespace vcl {
class TControl;
}

namespace qel {

/// Whether a motion may be left out.
enum class TQELMotionKind {
  Decoration,  ///< Stands still for a user who has told the system that nothing shall move.
  Content      ///< Goes on: what is shown would be wrong or missing without it.
};

/// Whether the system's user wants to see animations.
QEL_API bool QELAnimationWanted();

/// Something that changes on a control as time goes by. It is told how much time has passed, so
/// that what it shows depends on the clock and not on how often it is called. All motions share one
/// timer of the system, which runs only while one of them is active and seen: what is hidden,
/// covered or in a minimised form sleeps until its control is painted again, and time does not pass
/// for it meanwhile. In the designer nothing moves.
///
/// The call may change or free any motion and any control. What it raises goes to the application,
/// and the clock goes on.
class QEL_API TQELMotion : public vcl::TWatched {
 public:
  /// `tick` gets the milliseconds since the last call. The control outlives the motion.
  TQELMotion(vcl::TControl& control, std::function<void(double)> tick,
             TQELMotionKind kind = TQELMotionKind::Decoration);
  ~TQELMotion();
  TQELMotion(const TQELMotion&) = delete;
  TQELMotion& operator=(const TQELMotion&) = delete;

  bool Active() const { return FActive; }
  /// True begins now: the first call comes after a period.
  void SetActive(bool active);
  /// The milliseconds between two calls, as nearly as the system's timers go; 16 at first.
  int Period() const { return FPeriod; }
  /// What is less than 1 becomes 1.
  void SetPeriod(int milliseconds);
  /// True while the clock ticks for it: active, seen, and not against the user's wish.
  bool Running() const { return FAwake; }
  /// For the control's painting, which shows that it is seen.
  void Wake();

 private:
  friend class TQELClock;
  bool MayMove() const;

  vcl::TControl& FControl;
  std::function<void(double)> FTick;
  TQELMotionKind FKind;
  bool FActive = false;
  bool FAwake = false;
  int FPeriod = 16;
  double FLast = 0;
};

}  // namespace qel
