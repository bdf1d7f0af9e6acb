// TWinControl: a control with a window of its own, which can hold others; TCustomControl: one that
// paints itself.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "vcl/controls/control.h"

namespace vcl {

class TBrush;

/// What a window is made with; CreateParams fills it.
struct TCreateParams {
  std::string Caption;
  DWORD Style = 0;
  DWORD ExStyle = 0;
  int X = 0;
  int Y = 0;
  int Width = 0;
  int Height = 0;
  HWND WndParent = nullptr;
  UINT ClassStyle = 0;
  /// The system's window class that the window builds on ("EDIT"); empty for one of our own.
  std::string SubClassOf;
  /// The name of the window's own class; the component's class name unless changed.
  std::string WinClassName;
};

/// A control with a window. The window is made when it is first needed and made again when
/// something changes that a window cannot change (`RecreateWnd`).
class VCL_API TWinControl : public TControl {
 public:
  explicit TWinControl(TComponent* owner);
  /// Frees the controls inside it.
  ~TWinControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  // The window.
  /// The window's handle; makes the window when there is none. Raises EOutOfResources when the
  /// system refuses it, EInvalidOperation without a parent window.
  HWND Handle();
  bool HandleAllocated() const { return FHandle != nullptr; }
  void HandleNeeded() { Handle(); }
  /// The control whose window it is; null for a window that is not of this library.
  static TWinControl* FromHandle(HWND handle);
  /// True while the window is shown on the screen as far as this control and its parents say.
  bool Showing() const { return FShowing; }

  // The controls inside.
  int ControlCount() const { return static_cast<int>(FControls.size()); }
  /// The control at the index in the z-order, those without windows first, bottom first. Raises
  /// EListError outside.
  TControl* Controls(int index) const;
  bool ContainsControl(const TControl* control) const;
  /// The topmost visible control at the position; null when there is none. Disabled ones count only
  /// when `allowDisabled`.
  TControl* ControlAtPos(TPoint position, bool allowDisabled) const;
  /// Arranges the controls by their Align and Anchors.
  void Realign();
  void DisableAlign() { ++FAlignLevel; }
  void EnableAlign();
  /// What stays free of aligned controls along the edges of the inner rectangle.
  TPadding* Padding() const;
  void SetPadding(const TPadding* padding);
  bool AutoSize() const { return FAutoSize; }
  /// The control becomes as large as what stands inside needs, Padding included. In a direction in
  /// which nothing inside has a size of its own, it keeps its own.
  void SetAutoSize(bool autoSize);
  /// Moves all controls inside by so many pixels.
  void ScrollBy(int dx, int dy);
  /// How far the controls inside are scrolled, to the left and up, in pixels.
  virtual TPoint ScrollOffset() const { return {}; }
  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;

  // Focus and tab order.
  virtual bool Focused() const;
  /// True when the control and its parents are visible and enabled.
  virtual bool CanFocus() const;
  /// Raises EInvalidOperation when the control cannot have the focus.
  virtual void SetFocus();
  int TabOrder() const;
  /// The place among the parent's windowed controls; -1 for a control without a parent.
  void SetTabOrder(int tabOrder);
  bool TabStop() const { return FTabStop; }
  /// True: Tab stops at the control.
  void SetTabStop(bool tabStop);
  /// The windowed controls inside, in tab order, with those inside them.
  void GetTabOrderList(std::vector<TWinControl*>& list) const;
  /// The control that follows `current` in tab order, round the end; null when there is none.
  TWinControl* FindNextControl(TWinControl* current, bool goForward, bool checkTabStop,
                               bool checkParent) const;
  /// Focuses the control that follows `current`.
  void SelectNext(TWinControl* current, bool goForward, bool checkTabStop);

  // Input methods of Far Eastern keyboards.
  TImeMode ImeMode() const { return FImeMode; }
  /// The state of the input method while the control has the focus.
  void SetImeMode(TImeMode mode);
  const std::string& ImeName() const { return FImeName; }
  /// The input method to use while the control has the focus, as the system describes it; one that
  /// is not installed is as good as none (empty).
  void SetImeName(const std::string& name);

  // Painting.
  TBrush* Brush() const { return FBrush.get(); }
  bool Ctl3D() const { return FCtl3D; }
  /// True gives the control's border depth, false makes it a plain line; it no longer follows its
  /// parent's.
  void SetCtl3D(bool ctl3D);
  bool ParentCtl3D() const { return FParentCtl3D; }
  /// True: Ctl3D is the parent's, and follows it.
  void SetParentCtl3D(bool parentCtl3D);
  bool DoubleBuffered() const { return FDoubleBuffered; }
  /// Paints by way of a bitmap, so that nothing half-painted is seen.
  void SetDoubleBuffered(bool doubleBuffered);
  void Invalidate() override;
  void Update() override;
  void Repaint() override;
  /// Paints the control and what is inside it on another device context, at the position.
  void PaintTo(HDC dc, int x, int y);

  void SetBounds(int left, int top, int width, int height) override;
  TRect ClientRect() const override;
  TPoint ClientOrigin() const override;
  int GetTextLen() const override;
  int GetTextBuf(char* buffer, int size) const override;
  void SetTextBuf(const char* text) override;
  HDC GetDeviceContext(HWND& window) override;
  void WndProc(TMessage& message) override;
  void DescribeAccessible(TAccessibleInfo& info) const override;

  /// Offers a key message to the library before the system sees it (tab, menu and dialog keys);
  /// true when it is handled. For message loops.
  bool PreprocessKey(MSG& message);

  /// The control, or one inside it, has got the focus.
  TNotifyEvent OnEnter;
  /// The focus has left the control and those inside it.
  TNotifyEvent OnExit;
  /// The control's size has changed.
  TNotifyEvent OnResize;
  /// A key was pressed while the control has the focus; 0 as the key leaves nothing of it.
  TKeyEvent OnKeyDown;
  /// A key was released while the control has the focus.
  TKeyEvent OnKeyUp;
  /// A character was typed while the control has the focus; 0 as the character leaves nothing of
  /// it.
  TKeyPressEvent OnKeyPress;
  /// The wheel was turned while the control, or one inside it that left the turn to it, has the
  /// focus; OnMouseWheelDown and OnMouseWheelUp follow for each whole notch.
  TMouseWheelEvent OnMouseWheel;
  /// The wheel was turned by a notch towards the user.
  TMouseWheelUpDownEvent OnMouseWheelDown;
  /// The wheel was turned by a notch away from the user.
  TMouseWheelUpDownEvent OnMouseWheelUp;

 protected:
  // Making the window.
  virtual void CreateParams(TCreateParams& params);
  /// Makes the window and gives it font and text; overriders send it what it needs to know.
  virtual void CreateWnd();
  /// Destroys the window; overriders first save what only the window knows.
  virtual void DestroyWnd();
  /// The call of the system that ends the window.
  virtual void DestroyWindowHandle();
  virtual void CreateHandle();
  void DestroyHandle();
  /// Makes the window anew, with what it shows and the focus kept.
  void RecreateWnd();
  /// Makes the windows of the controls inside and shows the window or hides it, as Visible says.
  void UpdateControlState();
  virtual void UpdateShowing();

  /// Gives the window the single border that Ctl3D asks for, and makes it anew when Ctl3D changes.
  /// For CreateParams.
  void AddSingleBorder(TCreateParams& params);
  /// Stored condition of the published table.
  bool IsCtl3DStored() const { return !FParentCtl3D; }

  // Painting.
  /// Paints the window: the control itself by PaintWindow, then the controls without windows.
  void PaintHandler(TMessage& message);
  /// Paints the control itself. The inherited method has the window's own procedure do it.
  virtual void PaintWindow(HDC dc);
  void PaintControls(HDC dc, TControl* first);
  virtual void WMPaint(TMessage& message);
  virtual void WMEraseBkgnd(TMessage& message);

  // Keyboard.
  virtual void KeyDown(std::uint16_t& key, TShiftState shift);
  virtual void KeyUp(std::uint16_t& key, TShiftState shift);
  virtual void KeyPress(char32_t& key);
  /// A turn of the wheel; true when it has been used up.
  virtual bool DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos);
  virtual void DoEnter();
  virtual void DoExit();

  void Dispatch(TMessage& message) override;
  void DefaultHandler(TMessage& message) override;
  void SetZOrder(bool topmost) override;
  void SetClientSize(int width, int height) override;
  void Resize() override;
  /// What the controls inside may take of the client rectangle.
  virtual void AdjustClientRect(TRect& /*rect*/) const {}
  /// Called before the controls inside are arranged in the client rectangle.
  virtual void PrepareAlign() {}
  /// Called before a control inside is shown by `Show`; a container brings it into view.
  virtual void ShowControl(TControl* control);
  /// Whether the place or size of a control without Align counts for how the controls inside are
  /// arranged. Here: with AutoSize.
  virtual bool ArrangesFree() const { return FAutoSize; }
  /// The control whose size and window decide this one's size: itself, but for a page, which fills
  /// the inside of its page control. Anchors inside count from there.
  virtual const TWinControl* SizeGiver() const { return this; }
  /// Arranges one group of controls after another in the rectangle.
  virtual void AlignControls(TControl* control, TRect& rect);
  void ChangeScale(int m, int d) override;
  void ReadState(TReader& reader) override;
  TComponent* GetChildParent() override { return this; }
  /// The place is one among the controls of the same owner; those without a window stay behind the
  /// others.
  void SetChildOrder(TComponent* child, int order) override;

 private:
  friend class TControl;
  friend class TApplication;
  /// Holds the arranging of the controls inside back, also when it ends by an exception; the
  /// control may be freed meanwhile.
  class TAlignHold {
   public:
    explicit TAlignHold(TWinControl& control);
    ~TAlignHold();
    TAlignHold(const TAlignHold&) = delete;
    TAlignHold& operator=(const TAlignHold&) = delete;

   private:
    TWatch FWatch;
    TWinControl& FControl;
  };
  bool TakenByDesigner(TMessage& message);
  static LRESULT __stdcall StaticWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void Insert(TControl* control);
  void Remove(TControl* control);
  void AlignControl(TControl* control);
  void AlignGroup(TControl* control, TAlign align, TRect& rect);
  void AlignByAnchors(TSize inside);
  void FitToControls();
  void CheckLimits();
  void KeepParentSizes();
  void MoveInZOrder(TControl* control, bool topmost);
  HWND PrecedingWindow(const TWinControl* control) const;
  void UpdateBounds();
  void HandleNeededForSize();
  void FixupTabList();
  int PlaceInTabList() const;
  void MoveInTabList(int place);
  bool HasGraphicChildren() const;
  void PaintDoubleBuffered();
  bool VisitControls(const std::function<bool(TControl*)>& each, bool topFirst = false);
  void Broadcast(UINT notice);
  void PassToChildren(TMessage& message);
  void GiveUpFocus();
  void ShowHandle(bool show);
  bool EndsWithParent() const;
  void DispatchNotice(TMessage& message);
  void DispatchWindow(TMessage& message);
  void DispatchKey(TMessage& message);
  bool IsControlMouseMessage(TMessage& message);
  bool HandleKey(TMessage& message);
  bool HandleChar(TMessage& message);
  bool OfferSpecialKey(WPARAM key, LPARAM data);
  bool OfferChar(const MSG& message);
  void WMWindowPosChanging(TMessage& message);
  void WMWindowPosChanged(TMessage& message);
  void WMMouseWheel(TMessage& message);
  void WMFocus(TMessage& message);
  void WMSetCursor(TMessage& message);
  void WMContextMenu(TMessage& message);
  void WMCancelMode(TMessage& message);
  void WMGetObject(TMessage& message);
  void CNCtlColor(TMessage& message);

  HWND FHandle = nullptr;
  WNDPROC FDefWndProc = nullptr;
  std::unique_ptr<TBrush> FBrush;
  std::vector<TControl*> FControls;    // z-order: graphic controls, then windows; bottom first.
  std::vector<TWinControl*> FTabList;  // windowed controls by tab order.
  int FTabOrder = -1;                  // As a form file gives it, while the parent is being read.
  bool FTabStop = false;
  bool FCtl3D = true;
  bool FParentCtl3D = true;
  bool FSingleBorder = false;  // The window's border is the one that Ctl3D decides.
  bool FShowing = false;
  bool FParentEnds = false;  // The parent's window ends, and this one with it.
  bool FDoubleBuffered = false;
  TImeMode FImeMode = imDontCare;
  std::string FImeName;
  int FAlignLevel = 0;
  bool FAlignNeeded = false;
  bool FAutoSize = false;
  int FWheelRest = 0;                          // What a fine wheel has turned short of a notch.
  mutable std::unique_ptr<TPadding> FPadding;  // Made when asked for.
  wchar_t FHighSurrogate = 0;  // The first half of a character that comes in two messages.
};

/// A windowed control that paints itself.
class VCL_API TCustomControl : public TWinControl {
 public:
  explicit TCustomControl(TComponent* owner);
  ~TCustomControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  virtual void Paint() {}
  TCanvas* Canvas() const;
  void WMPaint(TMessage& message) override;
  void PaintWindow(HDC dc) override;

 private:
  std::unique_ptr<TControlCanvas> FCanvas;
};

}  // namespace vcl
