// TQELFormExplode: its table, where the form grows from, and the two ways in which it is seen.
#include "qel/services/Qeltformexplode.h"

#include <algorithm>
#include <utility>

#include "qel/core/Qelclock.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

vcl::TRect BoundsOf(HWND window) {
  RECT bounds{};
  ::GetWindowRect(window, &bounds);
  return vcl::TRect(bounds);
}

/// The part of the screen that windows are for, on the form's monitor.
vcl::TRect ScreenAround(HWND window) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
  return vcl::TRect(info.rcWork);
}

/// Calls the call with how much of the time is over, from 0 to 1, as often as the screen can show.
template <class Step>
void Animate(int milliseconds, Step step) {
  const ULONGLONG begin = ::GetTickCount64();
  for (double done = 0; done < 1;) {
    done = std::min(1.0, static_cast<double>(::GetTickCount64() - begin) / milliseconds);
    step(done);
    constexpr DWORD pause = 10;
    if (done < 1) ::Sleep(pause);
  }
}

vcl::TRect Between(const vcl::TRect& from, const vcl::TRect& to, double done) {
  const auto at = [done](int a, int b) { return a + static_cast<int>((b - a) * done); };
  return {at(from.Left, to.Left), at(from.Top, to.Top), at(from.Right, to.Right),
          at(from.Bottom, to.Bottom)};
}

}  // namespace

/// A frame on the screen: a window of its own, so that nothing is left behind where it was.
class TQELFormExplode::TFrameWindow {
 public:
  TFrameWindow()
      : FWindow(::CreateWindowExW(
            WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TRANSPARENT, L"STATIC",
            nullptr, WS_POPUP | SS_BLACKRECT, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr)) {}
  ~TFrameWindow() {
    if (FWindow) ::DestroyWindow(FWindow);
  }
  TFrameWindow(const TFrameWindow&) = delete;
  TFrameWindow& operator=(const TFrameWindow&) = delete;

  void MoveTo(const vcl::TRect& bounds) {
    const int width = bounds.Right - bounds.Left, height = bounds.Bottom - bounds.Top;
    const int line = std::max(2, ::GetSystemMetrics(SM_CXFRAME) / 2);
    const HRGN frame = ::CreateRectRgn(0, 0, width, height);
    const HRGN inside = ::CreateRectRgn(line, line, width - line, height - line);
    if (width > 2 * line && height > 2 * line) ::CombineRgn(frame, frame, inside, RGN_DIFF);
    ::DeleteObject(inside);
    ::SetWindowRgn(FWindow, frame, FALSE);  // It belongs to the window now.
    ::SetWindowPos(FWindow, HWND_TOPMOST, bounds.Left, bounds.Top, width, height,
                   SWP_NOACTIVATE | SWP_SHOWWINDOW);
    ::UpdateWindow(FWindow);
  }

 private:
  HWND FWindow;
};

const vcl::TClass& TQELFormExplode::Class() {
  using T = TQELFormExplode;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormComponent>(
      "qel::TQELFormExplode", "qel/services/Qeltformexplode.h",
      {
          Property<&T::CustomX, &T::SetCustomX>("CustomX").Default(0),
          Property<&T::CustomY, &T::SetCustomY>("CustomY").Default(0),
          Property<&T::OnCloseType, &T::SetOnCloseType>("OnCloseType").Default(wsFormMiddle),
          Property<&T::OnShowType, &T::SetOnShowType>("OnShowType").Default(wsFormMiddle),
          Property<&T::ShowType, &T::SetShowType>("ShowType").Default(onAlways),
          Property<&T::Style, &T::SetStyle>("Style").Default(esFrame),
          Property<&T::Time, &T::SetTime>("Time").Default(200),
      });
  return info;
}

TQELFormExplode::TQELFormExplode(vcl::TComponent* owner) : TQELFormComponent(owner) { Attach(); }

TQELFormExplode::~TQELFormExplode() {
  AnnounceEnd();
  Detach();
}

void TQELFormExplode::SetTime(int milliseconds) {
  constexpr int longest = 5000;
  if (milliseconds >= 0 && milliseconds <= longest) FTime = milliseconds;
}

bool TQELFormExplode::Wanted(bool showing) const {
  const bool either = FShowType == onAlways || FShowType == (showing ? onShow : onHide);
  return either && FTime > 0 && QELAnimationWanted() && !::IsIconic(Form()->Handle());
}

/// A border is all of that line, everything else a point.
vcl::TRect TQELFormExplode::Start(TQELWipeType type) const {
  const vcl::TRect form = BoundsOf(Form()->Handle());
  const vcl::TRect screen = ScreenAround(Form()->Handle());
  const auto point = [](int x, int y) { return vcl::TRect(x, y, x, y); };
  const auto middle = [&](const vcl::TRect& r) {
    return point((r.Left + r.Right) / 2, (r.Top + r.Bottom) / 2);
  };
  switch (type) {
    case wsFormTopBorder: return {form.Left, form.Top, form.Right, form.Top};
    case wsFormBottomBorder: return {form.Left, form.Bottom, form.Right, form.Bottom};
    case wsFormLeftBorder: return {form.Left, form.Top, form.Left, form.Bottom};
    case wsFormRightBorder: return {form.Right, form.Top, form.Right, form.Bottom};
    case wsScreenTopBorder: return {form.Left, screen.Top, form.Right, screen.Top};
    case wsScreenBottomBorder: return {form.Left, screen.Bottom, form.Right, screen.Bottom};
    case wsScreenLeftBorder: return {screen.Left, form.Top, screen.Left, form.Bottom};
    case wsScreenRightBorder: return {screen.Right, form.Top, screen.Right, form.Bottom};
    case wsFormTopLeft: return point(form.Left, form.Top);
    case wsFormBottomLeft: return point(form.Left, form.Bottom);
    case wsFormTopRight: return point(form.Right, form.Top);
    case wsFormBottomRight: return point(form.Right, form.Bottom);
    case wsScreenTopLeft: return point(screen.Left, screen.Top);
    case wsScreenBottomLeft: return point(screen.Left, screen.Bottom);
    case wsScreenTopRight: return point(screen.Right, screen.Top);
    case wsScreenBottomRight: return point(screen.Right, screen.Bottom);
    case wsScreenMiddle: return middle(screen);
    case wsCustompoint: return point(FCustomX, FCustomY);
    case wsFormMiddle: break;
  }
  return middle(form);
}

// The system tells before it shows or hides the window; WParam says which, and LParam is 0 unless
// it is for another window's sake.
void TQELFormExplode::BeforeMessage(vcl::TMessage& message, bool&) {
  if (message.Msg != WM_SHOWWINDOW || message.LParam != 0) return;
  const bool showing = message.WParam != 0;
  const HWND window = Form()->Handle();
  if (showing == (::IsWindowVisible(window) != FALSE) || !Wanted(showing)) return;
  if (FStyle == esFrame) {
    if (showing) ShowFrame(Start(FOnShowType), BoundsOf(window));
    return;
  }
  RECT own{};
  if (::GetWindowRgnBox(window, &own) != ERROR) return;  // A shape of its own, which it keeps.
  if (!showing) return ShowRegion(Start(FOnCloseType), false);
  constexpr vcl::TRect nothing{0, 0, 0, 0};
  Shape(&nothing);
}

void TQELFormExplode::AfterMessage(vcl::TMessage& message) {
  if (message.Msg != WM_WINDOWPOSCHANGED) return;
  const UINT flags = reinterpret_cast<const WINDOWPOS*>(message.LParam)->flags;
  const HWND window = Form()->Handle();
  if ((flags & SWP_SHOWWINDOW) && FShaped) ShowRegion(Start(FOnShowType), true);
  if (!(flags & SWP_HIDEWINDOW)) return;
  if (FShaped) Shape(nullptr);
  if (FStyle == esFrame && Wanted(false)) ShowFrame(BoundsOf(window), Start(FOnCloseType));
}

/// In the middle of it, the window is as it was.
void TQELFormExplode::End() {
  if (FShaped) Shape(nullptr);
}

void TQELFormExplode::ShowFrame(const vcl::TRect& from, const vcl::TRect& to) const {
  TFrameWindow frame;
  Animate(FTime, [&](double done) { frame.MoveTo(Between(from, to, done)); });
}

/// The window is seen in a part of itself that grows or shrinks.
void TQELFormExplode::ShowRegion(const vcl::TRect& point, bool growing) {
  const HWND window = Form()->Handle();
  const vcl::TRect full = BoundsOf(window);
  Animate(FTime, [&](double done) {
    vcl::TRect part = growing ? Between(point, full, done) : Between(full, point, done);
    part.Offset(-full.Left, -full.Top);
    Shape(&part);
    ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  });
  if (growing) Shape(nullptr);
}

/// Null gives the window back its whole shape.
void TQELFormExplode::Shape(const vcl::TRect* part) {
  const HRGN region =
      part ? ::CreateRectRgn(part->Left, part->Top, part->Right, part->Bottom) : nullptr;
  FShaped = part != nullptr;
  ::SetWindowRgn(Form()->Handle(), region, TRUE);
}

}  // namespace qel
