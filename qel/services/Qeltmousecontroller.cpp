// TQELMouseController: its table, what it sends to the system, and what it holds.
#include "qel/services/Qeltmousecontroller.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "vcl/controls/wincontrol.h"
#include "vcl/forms/application.h"
#include "vcl/forms/applicationlistener.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/timer.h"

namespace qel {
namespace {

/// The control's part of the screen; nothing when it is not seen.
std::optional<RECT> PlaceOf(const vcl::TControl& control) {
  const vcl::TControl* top = &control;
  while (top->Parent()) top = top->Parent();
  const auto* window = dynamic_cast<const vcl::TWinControl*>(top);
  const auto* own = dynamic_cast<const vcl::TWinControl*>(&control);
  const vcl::TWinControl* shown = own ? own : control.Parent();
  if (!window || !window->HandleAllocated() || !shown || !shown->HandleAllocated()) return {};
  const HWND handle = const_cast<vcl::TWinControl*>(shown)->Handle();
  if (!control.Visible() || !::IsWindowVisible(handle)) return {};
  if (::IsIconic(::GetAncestor(handle, GA_ROOT))) return {};
  const vcl::TPoint at = control.ClientToScreen({0, 0});
  const vcl::TRect inside = control.ClientRect();
  if (inside.Empty()) return {};
  return RECT{at.X, at.Y, at.X + inside.Right, at.Y + inside.Bottom};
}

void Send(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  ::SendInput(1, &input, sizeof input);
}

}  // namespace

/// What a controller holds. The system forgets the area at many an occasion, and the control may
/// move: a timer looks after it. It takes area and pointer back itself when the process ends.
class TQELMouseController::TKeeper : public vcl::TApplicationListener {
 public:
  explicit TKeeper(TQELMouseController& owner) : FOwner(owner), FTimer(nullptr) {
    All().push_back(this);
    FTimer.SetInterval(Period);
    FTimer.OnTimer = [this](vcl::TObject*) { Tick(); };
    ::GetCursorPos(&FLast);
    FMoved = ::GetTickCount64();
  }
  ~TKeeper() override {
    std::erase(All(), this);
    LetGo();
    if (!All().empty()) All().back()->Hold();
  }
  void Activated() override { Hold(); }
  void Deactivated() override { LetGo(); }

  void Hold() {
    if (!::GetForegroundWindow() || !IsActive()) return LetGo();
    if (FOwner.FHide != FHidden) {
      FHidden = FOwner.FHide;
      ::ShowCursor(!FHidden);
    }
    // The last one that keeps it does.
    const auto keeps = std::find_if(All().rbegin(), All().rend(), [](const TKeeper* each) {
      return each->FOwner.FConfineTo != nullptr;
    });
    if (keeps != All().rend() && *keeps != this) return;
    const auto place = FOwner.FConfineTo ? PlaceOf(*FOwner.FConfineTo) : std::optional<RECT>();
    if (!place) return LetAreaGo();
    RECT now{};
    ::GetClipCursor(&now);
    if (!::EqualRect(&now, &*place)) ::ClipCursor(&*place);
    FConfined = true;
  }
  void LetGo() {
    if (std::exchange(FHidden, false)) ::ShowCursor(TRUE);
    LetAreaGo();
  }

 private:
  static constexpr std::uint32_t Period = 100;  // Milliseconds.
  /// In the order in which they began.
  static std::vector<TKeeper*>& All() {
    static std::vector<TKeeper*> all;
    return all;
  }
  static bool IsActive() {
    DWORD process = 0;
    ::GetWindowThreadProcessId(::GetForegroundWindow(), &process);
    return process == ::GetCurrentProcessId();
  }
  void LetAreaGo() {
    if (std::exchange(FConfined, false)) ::ClipCursor(nullptr);
  }
  void Tick() {
    const vcl::TWatch watch(&FOwner);
    Hold();
    POINT at{};
    ::GetCursorPos(&at);
    const ULONGLONG now = ::GetTickCount64();
    if (at.x != FLast.x || at.y != FLast.y) {
      FLast = at;
      FMoved = now;
      FTold = false;
      return;
    }
    const bool idle =
        FOwner.FIdleTime > 0 && now - FMoved >= static_cast<ULONGLONG>(FOwner.FIdleTime);
    if (idle && !std::exchange(FTold, true) && !watch.Gone()) FOwner.OnIdle(&FOwner);
  }

  TQELMouseController& FOwner;
  vcl::TTimer FTimer;
  POINT FLast{};
  ULONGLONG FMoved = 0;
  bool FTold = false;
  bool FHidden = false;
  bool FConfined = false;
};

const vcl::TClass& TQELMouseController::Class() {
  using T = TQELMouseController;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELComponent>("qel::TQELMouseController", "qel/services/Qeltmousecontroller.h",
                                 {
                                     Property<&T::ConfineTo, &T::SetConfineTo>("ConfineTo"),
                                     Property<&T::Hide, &T::SetHide>("Hide").Default(false),
                                     Property<&T::IdleTime, &T::SetIdleTime>("IdleTime").Default(0),
                                     Event<&T::OnIdle>("OnIdle"),
                                 });
  return info;
}

TQELMouseController::TQELMouseController(vcl::TComponent* owner) : TQELComponent(owner) {}
TQELMouseController::~TQELMouseController() { AnnounceEnd(); }

void TQELMouseController::Loaded() {
  TQELComponent::Loaded();
  Apply();
}

void TQELMouseController::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELComponent::Notification(component, operation);
  if (operation != vcl::opRemove || component != FConfineTo) return;
  FConfineTo = nullptr;
  Apply();
}

void TQELMouseController::SetConfineTo(vcl::TControl* control) {
  FConfineTo = control;
  if (control) control->FreeNotification(this);
  Apply();
}

void TQELMouseController::SetHide(bool hide) {
  FHide = hide;
  Apply();
}

void TQELMouseController::SetIdleTime(int milliseconds) {
  if (milliseconds < 0) return;
  FIdleTime = milliseconds;
  FKeeper.reset();  // The time begins to count from now.
  Apply();
}

void TQELMouseController::Apply() {
  if (Designing() || Loading()) return;
  const bool wanted = FConfineTo || FHide || FIdleTime > 0;
  if (!wanted) return FKeeper.reset();
  if (!FKeeper) FKeeper = std::make_unique<TKeeper>(*this);
  FKeeper->Hold();
}

bool TQELMouseController::SnapTo(const vcl::TControl* control) {
  if (!control || Designing()) return false;
  const auto place = PlaceOf(*control);
  if (!place) return false;
  MoveTo((place->left + place->right) / 2, (place->top + place->bottom) / 2);
  return true;
}

void TQELMouseController::MoveTo(int x, int y) {
  if (!Designing()) ::SetCursorPos(x, y);
}

void TQELMouseController::Click(vcl::TMouseButton button, bool twice) {
  if (Designing()) return;
  static constexpr DWORD presses[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_RIGHTDOWN,
                                      MOUSEEVENTF_MIDDLEDOWN};
  static constexpr DWORD releases[] = {MOUSEEVENTF_LEFTUP, MOUSEEVENTF_RIGHTUP,
                                       MOUSEEVENTF_MIDDLEUP};
  // A user who has the buttons swapped means the one that does the same.
  if (::GetSystemMetrics(SM_SWAPBUTTON) && button != vcl::mbMiddle) {
    button = button == vcl::mbLeft ? vcl::mbRight : vcl::mbLeft;
  }
  for (int i = 0; i < (twice ? 2 : 1); ++i) {
    Send(presses[button]);
    Send(releases[button]);
  }
}

}  // namespace qel
