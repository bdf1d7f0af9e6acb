// TQELTopMost: the place of the form's window among all windows.
#include "qel/services/Qelttopmost.h"

#include <algorithm>
#include <vector>

#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

/// Those that work on a window: two on one form do not undo each other.
std::vector<const TQELTopMost*>& Working() {
  static std::vector<const TQELTopMost*> working;
  return working;
}

bool IsTopMost(HWND window) { return ::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST; }

void PlaceBehind(HWND window, HWND behind) {
  // The application's window, which owns the form's, stays where it is.
  ::SetWindowPos(window, behind, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

// Wine leaves a window topmost that has an owner, so it has none for the moment.
void EndTopMost(HWND window) {
  PlaceBehind(window, HWND_NOTOPMOST);
  if (!IsTopMost(window)) return;
  const LONG_PTR owner = ::SetWindowLongPtrW(window, GWLP_HWNDPARENT, 0);
  PlaceBehind(window, HWND_NOTOPMOST);
  ::SetWindowLongPtrW(window, GWLP_HWNDPARENT, owner);
}

/// The system puts a window that is no longer topmost before all others, so also before that of
/// another program which the user has just turned to.
void PlaceAmongOthers(HWND window) {
  EndTopMost(window);
  const HWND front = ::GetForegroundWindow();
  DWORD process = 0;
  ::GetWindowThreadProcessId(front, &process);
  const bool others = process != ::GetCurrentProcessId() && front != ::GetDesktopWindow();
  if (front && others && !IsTopMost(front)) PlaceBehind(window, front);
}

}  // namespace

const vcl::TClass& TQELTopMost::Class() {
  using T = TQELTopMost;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormComponent>(
      "qel::TQELTopMost", "qel/services/Qelttopmost.h",
      {
          Property<&T::WhileActive, &T::SetWhileActive>("WhileActive").Default(false),
      });
  return info;
}

TQELTopMost::TQELTopMost(vcl::TComponent* owner) : TQELFormComponent(owner) { Attach(); }

TQELTopMost::~TQELTopMost() {
  AnnounceEnd();
  Detach();
}

void TQELTopMost::SetWhileActive(bool whileActive) {
  FWhileActive = whileActive;
  if (Begun()) Update();
}

void TQELTopMost::Begin() {
  FProgramActive = vcl::Application()->Active();
  Working().push_back(this);
  Update();
}

void TQELTopMost::End() {
  std::erase(Working(), this);
  Update();
}

void TQELTopMost::AfterMessage(vcl::TMessage& message) {
  if (message.Msg != WM_ACTIVATEAPP || !Begun()) return;
  FProgramActive = message.WParam != 0;
  if (FWhileActive) Update();
}

bool TQELTopMost::Wants() const { return !FWhileActive || FProgramActive; }

void TQELTopMost::Update() const {
  const HWND window = Form()->Handle();
  if (::GetWindowLongW(window, GWL_STYLE) & WS_CHILD) return;
  const bool wanted = std::ranges::any_of(Working(), [this](const TQELTopMost* each) {
    return each->Form() == Form() && each->Wants();
  });
  const bool topMost = wanted || Form()->FormStyle() == vcl::fsStayOnTop;
  if (topMost == IsTopMost(window)) return;
  topMost ? PlaceBehind(window, HWND_TOPMOST) : PlaceAmongOthers(window);
}

}  // namespace qel
