// The clock of everything that moves: one timer, and who is told that time has passed.
#include "qel/core/Qelclock.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "vcl/controls/messagewindow.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TControl;
using vcl::TWatch;

namespace {

constexpr UINT_PTR TimerNumber = 1;

/// In milliseconds, from some moment on.
double Now() {
  LARGE_INTEGER frequency, count;
  ::QueryPerformanceFrequency(&frequency);
  ::QueryPerformanceCounter(&count);
  return static_cast<double>(count.QuadPart) * 1000 / static_cast<double>(frequency.QuadPart);
}

/// Whether some pixel of the control is on the screen, as far as the system knows.
bool IsSeen(TControl& control) {
  for (const TControl* each = &control; each; each = each->Parent()) {
    if (!each->Seen()) return false;
  }
  auto* own = dynamic_cast<vcl::TWinControl*>(&control);
  vcl::TWinControl* const window = own ? own : control.Parent();
  if (!window || !window->HandleAllocated()) return false;
  const HWND handle = window->Handle();
  if (!::IsWindowVisible(handle) || ::IsIconic(::GetAncestor(handle, GA_ROOT))) return false;
  const vcl::TWindowDC dc(handle);
  const RECT place = own ? control.ClientRect() : control.BoundsRect();
  return ::RectVisible(dc.Get(), &place) != FALSE;
}

}  // namespace

bool QELAnimationWanted() {
  BOOL wanted = TRUE;
  return !::SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &wanted, 0) || wanted;
}

/// Lives while a motion is active. Its window hears of the timer, and of what the user changes of
/// the system's settings.
class TQELClock {
 public:
  static void Enter(TQELMotion* motion) {
    if (!The()) The() = std::make_unique<TQELClock>();
    if (std::ranges::find(The()->FMotions, motion) == The()->FMotions.end())
      The()->FMotions.push_back(motion);
  }
  static void Leave(TQELMotion* motion) {
    if (!The()) return;
    std::erase(The()->FMotions, motion);
    // Its window may be in the middle of a message.
    if (The()->FMotions.empty() && !The()->FTicking) return The().reset();
    The()->SetTimer();
  }
  static void Adjust() {
    if (The()) The()->SetTimer();
  }

  TQELClock() : FWindow(vcl::AllocateHWnd(vcl::TWndMethod(this, &TQELClock::Handle))) {}
  ~TQELClock() { vcl::DeallocateHWnd(FWindow); }
  TQELClock(const TQELClock&) = delete;
  TQELClock& operator=(const TQELClock&) = delete;

 private:
  static std::unique_ptr<TQELClock>& The() {
    static std::unique_ptr<TQELClock> clock;
    return clock;
  }

  void Handle(vcl::TMessage& message) {
    switch (message.Msg) {
      case WM_TIMER: return Tick();
      case WM_SETTINGCHANGE: return WakeAll();
      default:
        message.Result = ::DefWindowProcW(FWindow, message.Msg, message.WParam, message.LParam);
    }
  }

  void WakeAll() {
    const auto motions = FMotions;
    for (TQELMotion* each : motions) each->Wake();
  }

  /// A handler that waits, as one with a dialog does, has the clock go on meanwhile.
  void Tick() {
    const bool outermost = !std::exchange(FTicking, true);
    std::vector<std::pair<TQELMotion*, TWatch>> motions;
    motions.reserve(FMotions.size());
    for (TQELMotion* each : FMotions) motions.emplace_back(each, TWatch(each));
    const double now = Now();
    for (const auto& [motion, watch] : motions) {
      if (!watch.Gone() && motion->FAwake) Tell(*motion, now);
    }
    if (!outermost) return;
    FTicking = false;
    if (FMotions.empty()) return The().reset();
    SetTimer();
  }

  static void Tell(TQELMotion& motion, double now) {
    if (!motion.MayMove() || !IsSeen(motion.FControl)) {
      motion.FAwake = false;
      return;
    }
    // The system's timers may come a moment too soon.
    constexpr double early = 2;
    const double passed = now - motion.FLast;
    if (passed < motion.FPeriod - early) return;
    motion.FLast = now;
    TControl* const control = &motion.FControl;
    const TWatch watch(control);
    const auto tick = motion.FTick;
    try {
      tick(passed);
    } catch (...) {
      vcl::BaseApplication().HandleTimerException(watch.Gone() ? nullptr : control);
    }
  }

  /// The timer runs as fast as the fastest of those who are awake wants.
  void SetTimer() {
    int period = 0;
    for (const TQELMotion* each : FMotions) {
      if (each->FAwake) period = period ? std::min(period, each->FPeriod) : each->FPeriod;
    }
    if (period == FTimerPeriod) return;
    FTimerPeriod = period;
    if (period == 0) {
      ::KillTimer(FWindow, TimerNumber);
    } else if (!::SetTimer(FWindow, TimerNumber, static_cast<UINT>(period), nullptr)) {
      FTimerPeriod = 0;
      vcl::RaiseOutOfResources("timer");
    }
  }

  HWND FWindow;
  std::vector<TQELMotion*> FMotions;
  int FTimerPeriod = 0;  // 0 while it does not run.
  bool FTicking = false;
};

TQELMotion::TQELMotion(TControl& control, std::function<void(double)> tick, TQELMotionKind kind)
    : FControl(control), FTick(std::move(tick)), FKind(kind) {}

TQELMotion::~TQELMotion() {
  if (FActive) TQELClock::Leave(this);
}

void TQELMotion::SetActive(bool active) {
  if (active == FActive) return;
  FActive = active;
  FAwake = false;
  if (!active) return TQELClock::Leave(this);
  TQELClock::Enter(this);
  Wake();
}

void TQELMotion::SetPeriod(int milliseconds) {
  FPeriod = std::max(milliseconds, 1);
  if (FAwake) TQELClock::Adjust();
}

void TQELMotion::Wake() {
  if (!FActive || FAwake || !MayMove()) return;
  FAwake = true;
  FLast = Now();
  TQELClock::Adjust();
}

bool TQELMotion::MayMove() const {
  if (FControl.Designing()) return false;
  return FKind == TQELMotionKind::Content || QELAnimationWanted();
}

}  // namespace qel
