// Hints: the window that shows one, what is asked before it appears, and when it comes and goes.
#pragma once

#include <string>

#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/graphics.h"

namespace vcl {

/// A hint about to be shown. A control changes it when it gets CM_HINTSHOW, the application in
/// OnShowHint.
struct THintInfo {
  TControl* HintControl = nullptr;
  TPoint HintPos;        ///< The window's top left on the screen.
  int HintMaxWidth = 0;  ///< The width at which the text wraps, in pixels.
  TColor HintColor = clInfoBk;
  TRect CursorRect;     ///< Leaving it, in the control's coordinates, ends the hint.
  TPoint CursorPos;     ///< The mouse, in the control's coordinates.
  int HideTimeout = 0;  ///< Milliseconds.
  std::string HintStr;
};

/// Text, whether it may be shown, the rest.
using TShowHintEvent = TEvent<std::string&, bool&, THintInfo&>;
template <>
inline constexpr TEventText EventText<TShowHintEvent>{
    "TShowHintEvent", "std::string& hint, bool& canShow, vcl::THintInfo& info"};

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
  void DescribeAccessible(TAccessibleInfo& info) const override;

  /// The rectangle to activate the text in, with its top left at (0, 0): 6 pixels wider than the
  /// text and 2 higher.
  virtual TRect CalcHintRect(int maxWidth, const std::string& text);
  /// Shows the text in the rectangle of the screen, which grows by 4 pixels at its bottom, moved so
  /// that all of it is seen.
  virtual void ActivateHint(TRect rect, const std::string& text);
  /// Takes the window off the screen.
  virtual void ReleaseHandle();
  /// The dots per inch of what the hint is about; the text keeps its size in points.
  void SetPixelsPerInch(int pixels);

 protected:
  void CreateParams(TCreateParams& params) override;
  void Paint() override;
  void Dispatch(TMessage& message) override;
};

/// The class of the window that the application makes when its ShowHint becomes true.
VCL_API const TClass& HintWindowClass();
/// Another class, of the descendants of THintWindow that can be made by name. To have the window
/// made anew, switch the application's ShowHint to and fro. Raises EInvalidOperation for other
/// classes.
VCL_API void SetHintWindowClass(const TClass& windowClass);

/// Decides when the application's hints appear: after the mouse has rested on a control for a
/// pause, for a time; the next control's follows after a short pause.
class VCL_API THintControl {
 public:
  /// `owner` is going to own the window that hints are shown in.
  explicit THintControl(TComponent* owner) : FOwner(owner) {}
  ~THintControl();

  /// The mouse is over the control (null: over none).
  void MouseOver(TControl* control);
  /// Hides the hint, until the mouse enters another control.
  void Cancel();
  /// Shows the hint of the control under that position of the screen now.
  void ActivateHint(TPoint screen);
  /// Makes the window that hints are shown in, or frees it. Without it there are none.
  void SetEnabled(bool enabled);
  /// The control whose hint is on the screen; null when there is none.
  TControl* Shown() const { return FShown; }
  /// No longer refers to the control, which is being freed.
  void Forget(TControl* control);

 private:
  friend class TApplication;
  static void __stdcall TimerProc(HWND window, UINT message, UINT_PTR id, DWORD time);
  void Enter(TControl* control);
  void SetColor(TColor color);
  void StartTimer(int milliseconds);
  void StopTimer();
  void Elapsed();
  void ShowFor(TControl* control);
  bool Ask(THintInfo& info);
  void Show(const THintInfo& info);
  void Hide();

  TComponent* FOwner;
  int FPause = 500;  // Milliseconds.
  int FShortPause = 50;
  int FHidePause = 2500;
  TColor FColor = clInfoBk;
  THintWindow* FWindow = nullptr;  // Owned by FOwner.
  TControl* FControl = nullptr;
  TControl* FShown = nullptr;
  TRect FCursorRect;
  TPoint FMouse;
  bool FCancelled = false;
  UINT_PTR FTimer = 0;
};

}  // namespace vcl
