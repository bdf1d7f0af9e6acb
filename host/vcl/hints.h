// Hints: the window that shows one, what is asked before it appears, and when it comes and goes.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "host/vcl/graphics.h"
#include "host/vcl/wincontrol.h"

namespace vcl {

/// A hint about to be shown. A control changes it when it gets CM_HINTSHOW, the application in
/// OnShowHint.
struct THintInfo {
  TControl* HintControl = nullptr;
  TPoint HintPos;         ///< The window's top left on the screen.
  int HintMaxWidth = 0;   ///< The width at which the text wraps, in pixels.
  TColor HintColor = clInfoBk;
  TRect CursorRect;       ///< Leaving it, in the control's coordinates, ends the hint.
  TPoint CursorPos;       ///< The mouse, in the control's coordinates.
  int HideTimeout = 0;    ///< Milliseconds.
  std::string HintStr;
};

/// Text, whether it may be shown, the rest.
using TShowHintEvent = TEvent<std::string&, bool&, THintInfo&>;
template <>
inline constexpr const char* EventName<TShowHintEvent> = "TShowHintEvent";

/// The part of a hint before its "|", which is shown in a window.
VCL_API std::string GetShortHint(const std::string& hint);
/// The part behind it, or all, which is the application's hint.
VCL_API std::string GetLongHint(const std::string& hint);

/// The window that shows a hint.
class VCL_API THintWindow : public TCustomControl {
 public:
  explicit THintWindow(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The size that the text needs, with its top left at (0, 0).
  virtual TRect CalcHintRect(int maxWidth, const std::string& text);
  /// Shows the text in the rectangle of the screen, moved so that all of it is seen.
  virtual void ActivateHint(TRect rect, const std::string& text);
  /// Takes the window off the screen.
  virtual void ReleaseHandle();

 protected:
  void CreateParams(TCreateParams& params) override;
  void Paint() override;
  void Dispatch(TMessage& message) override;
};

/// Decides when hints appear: after the mouse has rested on a control for `Pause` milliseconds, for
/// `HidePause` milliseconds; the next control's follows after `ShortPause`.
class VCL_API THintControl {
 public:
  THintControl();
  ~THintControl();

  int Pause = 500;
  int ShortPause = 50;
  int HidePause = 2500;
  TColor Color = clInfoBk;
  /// Makes the window that hints are shown in; a component that replaces the window changes it and
  /// calls `Reset`.
  std::function<std::unique_ptr<THintWindow>()> MakeWindow;

  /// The mouse is over the control (null: over none).
  void MouseOver(TControl* control);
  /// Hides the hint, until the mouse enters another control.
  void Cancel();
  /// Shows the hint of the control under that position of the screen now.
  void ActivateHint(TPoint screen);
  /// Hides the hint and forgets the window, so that the next is made anew.
  void Reset();
  /// The control whose hint is on the screen; null when there is none.
  TControl* Shown() const { return FShown; }
  /// No longer refers to the control, which is being freed.
  void Forget(TControl* control);

 private:
  static void CALLBACK TimerProc(HWND window, UINT message, UINT_PTR id, DWORD time);
  void Enter(TControl* control);
  void StartTimer(int milliseconds);
  void StopTimer();
  void Elapsed();
  void ShowFor(TControl* control);
  bool Ask(THintInfo& info);
  void Show(const THintInfo& info);
  void Hide();

  std::unique_ptr<THintWindow> FWindow;
  TControl* FControl = nullptr;
  TControl* FShown = nullptr;
  TRect FCursorRect;
  TPoint FMouse;
  bool FCancelled = false;
  UINT_PTR FTimer = 0;
};

}  // namespace vcl
