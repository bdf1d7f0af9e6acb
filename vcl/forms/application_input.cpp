// TApplication: the message loop, what it does to input on its way, and the mouse over controls.
#include "vcl/actions/private/shownactions.h"
#include "vcl/controls/private/handling.h"
#include "vcl/forms/application.h"
#include "vcl/forms/applicationlistener.h"
#include "vcl/forms/drag.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/private/modelessdialogs.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/thread.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

bool Within(UINT message, UINT first, UINT last) { return message >= first && message <= last; }

bool IsKey(UINT message) { return Within(message, WM_KEYFIRST, WM_KEYLAST); }

bool IsMouse(UINT message) {
  return Within(message, WM_MOUSEFIRST, WM_MOUSELAST) || message == WM_MOUSELEAVE ||
         Within(message, WM_NCMOUSEMOVE, WM_NCXBUTTONDBLCLK);
}

// What takes a hint off the screen: a press of a key or a button, a turn of the wheel.
bool EndsHint(UINT message) {
  return message == WM_KEYDOWN || message == WM_SYSKEYDOWN ||
         (IsMouse(message) && message != WM_MOUSEMOVE && message != WM_NCMOUSEMOVE &&
          message != WM_MOUSELEAVE);
}

// The control whose window, or a window inside it that is not the library's, gets the message.
TWinControl* ControlOf(HWND window) {
  for (; window; window = ::GetAncestor(window, GA_PARENT)) {
    if (TWinControl* control = TWinControl::FromHandle(window)) return control;
  }
  return nullptr;
}

}  // namespace

bool TApplication::ProcessMessage() {
  Handle();  // Where threads post their calls.
  MSG message;
  if (!::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) return false;
  if (message.message == WM_QUIT) {
    // One that Terminate has not posted brings its own code.
    if (!Terminated()) FExitCode = static_cast<int>(message.wParam);
    TCustomApplication::Terminate();
    return true;
  }
  try {
    Dispatch(message);
  } catch (...) {
    HandleCurrentException(this);
  }
  return true;
}

void TApplication::ProcessMessages() {
  // Each round of threads' calls may bring the next one: they don't keep the caller here for ever.
  constexpr unsigned enough = 10;
  const unsigned begin = FThreadsRounds;
  while (ProcessMessage() && FThreadsRounds - begin < enough) {
  }
}

void TApplication::HandleMessage() {
  if (!ProcessMessage()) Idle();
}

void TApplication::Dispatch(MSG& message) {
  const THandling handling;
  bool handled = false;
  OnMessage(message, handled);
  TApplicationListener::TellAll(
      [&](TApplicationListener& each) { each.Message(message, handled); });
  if (handled || PreprocessInput(message)) return;
  ::TranslateMessage(&message);
  ::DispatchMessageW(&message);
}

bool TApplication::PreprocessInput(MSG& message) {
  if (EndsHint(message.message)) CancelHint();
  if (IsMouse(message.message)) TrackMouse(&message);
  if (!IsKey(message.message)) return false;
  if (TDragSession::HandleKey(message) || ToModelessDialog(message)) return true;
  TControl* const captured = TWinControl::CaptureControl();
  if (message.message == WM_KEYDOWN && captured &&
      captured->Perform(CM_CAPTUREKEY, message.wParam)) {
    return true;
  }
  const HWND client = FMainForm ? FMainForm->ClientHandle() : nullptr;
  if (client && ::TranslateMDISysAccel(client, &message)) return true;
  TWinControl* const control = ControlOf(message.hwnd);
  return control && control->PreprocessKey(message);
}

void TApplication::Idle() {
  bool done = true;
  try {
    const THandling handling;
    CheckSynchronize();
    TrackMouse(nullptr);
    UpdateShownActions();
    for (int i = 0; i < Screen()->FormCount(); ++i) Screen()->Forms(i)->UpdateDropFiles();
    OnIdle(this, done);
    TApplicationListener::TellAll([&done](TApplicationListener& each) {
      bool itsDone = true;
      each.Idle(itsDone);
      done = done && itsDone;
    });
  } catch (...) {
    HandleCurrentException(this);
  }
  if (!done || Terminated()) return;
  // Nobody draws now: contexts that canvases took outside painting go back to the system.
  FreeDeviceContexts();
  ::WaitMessage();
}

// The control under the mouse.

// Called when the mouse has moved (with the message) and when the program idles, for controls come
// and go under a mouse that rests.
void TApplication::TrackMouse(const MSG* message) {
  POINT mouse;
  if (!::GetCursorPos(&mouse)) return;
  SetMouseControl(Screen()->ControlAt(mouse, true));
  if (message && message->message == WM_MOUSEMOVE) {
    // No message says that the mouse has left the program, unless it is asked for.
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, message->hwnd, 0};
    ::TrackMouseEvent(&track);
  }
  if (FShowHint && FActive) FHints->MouseOver(FMouseControl);
}

void TApplication::SetMouseControl(TControl* control) {
  if (control == FMouseControl) return;
  TControl* const former = FMouseControl;
  FMouseControl = control;
  if (former) former->Perform(CM_MOUSELEAVE);
  // FMouseControl is null by now when the handler has freed the control.
  if (FMouseControl) FMouseControl->Perform(CM_MOUSEENTER);
  // What is designed has its hint for the finished application.
  const TControl* hinted = FMouseControl;
  while (hinted && (hinted->Hint().empty() || hinted->Designing())) hinted = hinted->Parent();
  SetHint(hinted ? GetLongHint(hinted->Hint()) : std::string());
}

void TApplication::ControlGone(TControl* control) {
  if (control == FMouseControl) FMouseControl = nullptr;
  if (FHints) FHints->Forget(control);
}

// Hints.

void TApplication::SetShowHint(bool showHint) {
  if (showHint == FShowHint) return;
  FShowHint = showHint;
  FHints->SetEnabled(showHint);
}

void TApplication::SetHint(const std::string& hint) {
  if (hint == FHint) return;
  FHint = hint;
  OnHint(this);
  TApplicationListener::TellAll([](TApplicationListener& each) { each.HintChanged(); });
}

}  // namespace vcl
