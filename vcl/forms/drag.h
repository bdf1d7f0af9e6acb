// Drag and drop between the controls of a program.
#pragma once

#include <memory>

#include "vcl/controls/control.h"

namespace vcl {

/// What is dragged. A control that is dragged without one of its own is dragged itself: handlers
/// get the control as their source. An object that OnStartDrag gives is freed at the end of the
/// drag, after OnEndDrag.
class VCL_API TDragObject : public TObject {
 public:
  explicit TDragObject(TControl* control) : FControl(control) {}
  /// What is dragged; null once it has been freed.
  TControl* Control() const { return FControl; }
  /// The pointer shown while the object is over a control that takes it, or does not.
  virtual TCursor GetDragCursor(bool accepted, int x, int y);

 private:
  friend class TDragSession;
  TControl* FControl;
};

/// The one drag that can be under way. It captures the mouse with a window of its own, asks the
/// control under the mouse (OnDragOver) and ends with a drop, a refusal, or Escape. The order of
/// events: OnStartDrag; on each control that the mouse comes to OnDragOver with dsDragEnter,
/// dsDragMove and dsDragLeave; OnDragDrop on the target that has accepted; OnEndDrag.
class VCL_API TDragSession : public std::enable_shared_from_this<TDragSession> {
 public:
  /// The drag under way; null when there is none.
  static TDragSession* Current();
  /// Begins to drag; see TControl::BeginDrag.
  static void Begin(TControl* control, bool immediate, int threshold);
  /// Ends the drag under way, if there is one.
  static void End(bool drop);
  /// Takes a key message that is for the drag: Escape ends it.
  static bool HandleKey(const MSG& message);
  /// Ends the drag without a drop when it has to do with the control, which is being freed.
  static void Forget(TControl* control);

  TControl* Control() const { return FControl; }
  ~TDragSession();

 private:
  explicit TDragSession(TControl* control);
  static LRESULT __stdcall WndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void Capture();
  void HandleMessage(UINT message);
  void Start();
  void MouseMoved();
  void MoveTo(TPoint screen);
  void ChangeTarget(TControl* target);
  void AskTarget(TDragState state);
  void Finish(bool drop);
  void Drop();
  TObject* Source() const;

  HWND FWindow = nullptr;
  TControl* FControl;
  TControl* FTarget = nullptr;
  std::unique_ptr<TDragObject> FObject;
  bool FObjectGiven = false;  // By OnStartDrag: handlers get it as their source.
  bool FStarted = false;
  bool FFinished = false;
  bool FAccepted = false;
  TPoint FStart;
  TPoint FPosition;
  int FThreshold = 0;
};

}  // namespace vcl
