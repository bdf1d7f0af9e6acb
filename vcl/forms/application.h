// TApplication: the message loop, the main form, hints and errors of a program with forms.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "vcl/controls/controltypes.h"
#include "vcl/forms/datamodule.h"
#include "vcl/forms/hints.h"
#include "vcl/graphics/graphics.h"
#include "vcl/graphics/types.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/systemmacros.h"

namespace vcl {

class TCustomForm;

/// Sender, error. Assigned, it takes the place of the message box.
using TExceptionEvent = TEvent<TObject*, const std::exception&>;
/// Sets `done` to false to be called again at once when no message waits. It is never published,
/// and a published event of the same shape goes by TCloseQueryEvent's name.
using TIdleEvent = TEvent<TObject*, bool&>;
/// A message of the program's queue; `handled` keeps it from its window.
using TMessageEvent = TEvent<MSG&, bool&>;
template <>
inline constexpr TEventText EventText<TExceptionEvent>{
    "TExceptionEvent", "vcl::TObject* sender, const std::exception& error"};
template <>
inline constexpr TEventText EventText<TMessageEvent>{"TMessageEvent",
                                                     "MSG& message, bool& handled"};

/// The application. A program has one, `Application()`:
///
///     int main() {
///       Application()->Initialize();
///       Application()->CreateForm<TMainForm>();
///       return Application()->Run();
///     }
///
/// The application has a window of its own, without a size: it carries the taskbar's button, and it
/// owns the forms' windows, so that minimising it takes them all off the screen. Threads call the
/// main thread by way of it (TThread::Synchronize), so that they reach it in every message loop,
/// those of modal forms and boxes, menus and the moving of windows too.
class VCL_API TApplication : public TCustomApplication {
 public:
  explicit TApplication(TComponent* owner);
  ~TApplication() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Prepares the process: common controls, icon, title. From now on an exception that leaves
  /// `main` (a form that can't be read, say) goes to HandleException and ends the process with exit
  /// code 1. A fault of the program's own code raises EAccessViolation or EDivByZero; where nothing
  /// can be raised, it is told in a box before it ends the process.
  void Initialize();
  /// Makes a form or a data module, owned by the application; the first form is the main form.
  ///
  /// The application frees them (and fires their OnDestroy) when `Run` ends, the last one first.
  template <class TheForm>
  TheForm* CreateForm() {
    auto* form = new TheForm(this);
    if constexpr (!std::is_base_of_v<TDataModule, TheForm>) SetMainFormIfNone(form);
    return form;
  }
  TCustomForm* MainForm() const { return FMainForm; }
  /// Shows the main form, handles messages until the program is asked to end, and frees the forms
  /// that the application owns, the last one first. Returns the exit code. Run again, it begins
  /// anew.
  int Run();
  /// Handles one waiting message; false when none waits.
  bool ProcessMessage();
  void ProcessMessages() override;
  /// Handles the next message, or does idle work and waits for one.
  void HandleMessage();
  /// Asks the message loop to end.
  void Terminate() override;
  /// True from the moment that the system asks whether the user's session may end until he decides
  /// otherwise: OnCloseQuery should then keep what is unsaved rather than ask, as the process may
  /// be ended without another word. When it has ended, the main form's OnClose is called, whose
  /// action counts for nothing, and the forms are freed as at Run's end.
  bool SessionEnding() const { return FSessionEnding; }
  /// The code that Run returns.
  void SetExitCode(int code) { FExitCode = code; }

  /// Hands the error to OnException, else shows it in a box; EAbort is silent. Never raises.
  void HandleException(TObject* sender, const std::exception& error) override;
  /// Shows the error's text in a box. An error that arrives while a box is up waits for its end.
  void ShowException(const std::exception& error);
  /// A box in front of the active window, whose buttons and picture are MB_... flags; IDOK, IDYES
  /// and so on are its answers. See the system's MessageBox for the flags and the answer.
  int MessageBox(const std::string& text, const std::string& caption, int flags) override;

  /// The application's own window, which owns the forms, and the boxes when no form is there.
  HWND Handle();
  void SetTitle(const std::string& title) override;
  TIcon* Icon() const { return FIcon.get(); }
  bool Active() const { return FActive; }
  /// Minimises the application and takes its forms off the screen; does nothing when it is so.
  void Minimize();
  void Restore();
  /// Activates the last active form or box.
  void BringToFront();
  /// No longer refers to the control, which is being freed.
  void ControlGone(TControl* control);

  // Hints.
  /// Raises and lowers hints as the mouse moves; see hints.h.
  THintControl& Hints() { return *FHints; }
  bool ShowHint() const { return FShowHint; }
  /// True makes the window that hints are shown in, a component of the application's, of the class
  /// HintWindowClass(); false frees it.
  void SetShowHint(bool showHint);
  /// How long the mouse rests on a control before its hint appears, in milliseconds.
  int HintPause() const { return FHints->FPause; }
  void SetHintPause(int milliseconds) { FHints->FPause = milliseconds; }
  /// The same while another control's hint is shown.
  int HintShortPause() const { return FHints->FShortPause; }
  void SetHintShortPause(int milliseconds) { FHints->FShortPause = milliseconds; }
  /// How long a hint stays, in milliseconds.
  int HintHidePause() const { return FHints->FHidePause; }
  void SetHintHidePause(int milliseconds) { FHints->FHidePause = milliseconds; }
  TColor HintColor() const { return FHints->FColor; }
  void SetHintColor(TColor color) { FHints->SetColor(color); }
  /// The hint of the control under the mouse, as a status bar shows it.
  const std::string& Hint() const { return FHint; }
  void SetHint(const std::string& hint);
  void CancelHint() { FHints->Cancel(); }
  /// Shows the hint of the control under that position of the screen now.
  void ActivateHint(TPoint screen) { FHints->ActivateHint(screen); }

  TExceptionEvent OnException;
  TIdleEvent OnIdle;
  TMessageEvent OnMessage;
  TNotifyEvent OnHint, OnActivate, OnDeactivate, OnMinimize, OnRestore;
  /// The application is about to show a hint; the handler may change the text, or refuse.
  TShowHintEvent OnShowHint;

 private:
  friend class TCustomForm;
  static LRESULT __stdcall StaticWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT WndProc(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT SysCommand(WPARAM wParam, LPARAM lParam);
  [[noreturn]] static void EndByError();
  void CreateHandle();
  /// Asks the form whether the session may end; true without one.
  bool AskSessionEnd(TCustomForm* form);
  bool AskListeners();
  void TellBroadcast(UINT message, WPARAM wParam, LPARAM lParam);
  void EndSession();
  void SetMainFormIfNone(TCustomForm* form);
  void FreeForms();
  /// Frees the form when the message in hand is done.
  void FreeLater(TCustomForm* form);
  void FreeReleased(TCustomForm* form);
  /// Shows the taskbar's button when the first form is shown, and hides it with the last one.
  void UpdateTaskbar();
  void IconChanged(TObject* sender);
  void RunThreadsCalls();
  void SizeChanged(WPARAM kind);
  void SetActive(bool active);
  void Dispatch(MSG& message);
  bool PreprocessInput(MSG& message);
  void Idle();
  void TrackMouse(const MSG* message);
  void SetMouseControl(TControl* control);
  void TellForms(UINT notice);
  void Notification(TComponent* component, TOperation operation) override;

  HWND FHandle = nullptr;
  TCustomForm* FMainForm = nullptr;
  TControl* FMouseControl = nullptr;
  std::unique_ptr<TIcon> FIcon;
  std::unique_ptr<THintControl> FHints;
  std::string FHint;
  int FExitCode = 0;
  bool FShowHint = true;
  bool FActive = false;
  bool FMinimized = false;
  bool FFormsShown = false;
  bool FHasRun = false;
  bool FRunning = false;
  bool FSessionEnding = false;
  bool FShowingError = false;
  unsigned FThreadsRounds = 0;
  ULONGLONG FInputWaitsSince = 0;  // 0: none was seen to wait.
  std::vector<std::string> FWaitingErrors;
};

/// The program's application; made at the first call. It lives as long as the process.
VCL_API TApplication* Application();
/// Shows a text in a box with an OK button, under the application's title.
VCL_API void ShowMessage(const std::string& text);
/// True when the application has been made.
VCL_API bool HasApplication();

}  // namespace vcl
