// TCustomForm and TForm: the windows of an application, made from form files.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vcl/controls/scrolling.h"
#include "vcl/forms/designerhook.h"
#include "vcl/forms/inheritedby.h"

namespace vcl {

class TMainMenu;

enum TBorderIcon { biSystemMenu, biMinimize, biMaximize, biHelp };
template <>
inline constexpr TEnumText EnumText<TBorderIcon>{
    "TBorderIcon", "biSystemMenu biMinimize biMaximize biHelp", "TBorderIcons"};
using TBorderIcons = TSet<TBorderIcon>;
enum TFormStyle { fsNormal, fsMDIChild, fsMDIForm, fsStayOnTop };
template <>
inline constexpr TEnumText EnumText<TFormStyle>{"TFormStyle",
                                                "fsNormal fsMDIChild fsMDIForm fsStayOnTop"};
/// Tiles lie above each other, or side by side.
enum TTileMode { tbHorizontal, tbVertical };
/// Where a form comes up: where it was designed, where the system puts it, or in the middle of the
/// screen's work area, of all screens together, of the main form, or of the form that owns it (of
/// the main form when no form does).
enum TPosition {
  poDesigned,
  poDefault,
  poDefaultPosOnly,
  poDefaultSizeOnly,
  poScreenCenter,
  poDesktopCenter,
  poMainFormCenter,
  poOwnerFormCenter
};
template <>
inline constexpr TEnumText EnumText<TPosition>{
    "TPosition",
    "poDesigned poDefault poDefaultPosOnly poDefaultSizeOnly poScreenCenter poDesktopCenter "
    "poMainFormCenter poOwnerFormCenter"};
enum TWindowState { wsNormal, wsMinimized, wsMaximized };
template <>
inline constexpr TEnumText EnumText<TWindowState>{"TWindowState",
                                                  "wsNormal wsMinimized wsMaximized"};
/// What closing a form does with it.
enum TCloseAction { caNone, caHide, caFree, caMinimize };

using TCloseEvent = TEvent<TObject*, TCloseAction&>;
using TCloseQueryEvent = TEvent<TObject*, bool&>;
/// The files that another program has dropped, with their folders, and where, in the form's inner
/// pixels.
using TDropFilesEvent = TEvent<TObject*, const std::vector<std::string>&, TPoint>;
template <>
inline constexpr TEventText EventText<TDropFilesEvent>{
    "TDropFilesEvent",
    "vcl::TObject* sender, const std::vector<std::string>& files, vcl::TPoint position"};
template <>
inline constexpr TEventText EventText<TCloseEvent>{
    "TCloseEvent", "vcl::TObject* sender, vcl::TCloseAction& action"};
template <>
inline constexpr TEventText EventText<TCloseQueryEvent>{"TCloseQueryEvent",
                                                        "vcl::TObject* sender, bool& canClose"};

/// A window of the application. A form class with a form file lists its fields and handlers in its
/// table (vcl/rtl/properties.h) and calls `LoadForm` in its own constructor, where its fields and
/// handlers exist:
///
///     class TMainForm : public TForm {
///      public:
///       explicit TMainForm(TComponent* owner) : TForm(owner) { LoadForm(); }
///       static const TClass& Class();
///       const TClass& ClassType() const override { return Class(); }
///
///      private:
///       void OkClick(TObject* sender);
///       TEdit* Person = nullptr;
///     };
///
///     const TClass& TMainForm::Class() {
///       static const TClass info = Describe<TMainForm, TForm>("TMainForm", "mainform", {
///           Field<&TMainForm::Person>("Person"),
///           Method<&TMainForm::OkClick>("OkClick"),
///       });
///       return info;
///     }
///
/// A form class may descend from another one with a form file. Each constructor loads its own
/// class's file on top of what is there, the ancestor's first; the class that is the last to do so
/// says that to its ancestor (vcl/forms/inheritedby.h), so that OnCreate fires once, when all is
/// read:
///
///     explicit TOrderForm(TComponent* owner) : TMainForm(InheritedBy<TOrderForm>(owner)) {
///       LoadForm();
///     }
///
/// A field makes its component's class known to the form file, beside the classes of this library.
///
/// OnDestroy reaches a form's own handlers while the form is whole when it ends by `Free`: closed
/// with caFree, by `Release`, or at the end of `TApplication::Run`. A plain `delete` of a form
/// whose handlers are methods of its own class fires nothing: the class's part is gone by then.
class VCL_API TCustomForm : public TScrollingWinControl {
 public:
  explicit TCustomForm(TComponent* owner);
  /// Frees the form's controls and components.
  ~TCustomForm() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  /// Closes the form as a user would: asks CloseQuery and OnClose. Closing the main form ends the
  /// application.
  void Close();
  /// True when the form and OnCloseQuery agree to close.
  virtual bool CloseQuery();
  /// Fires OnDestroy and deletes the form. Not for the form's own handlers: see `Release`.
  void Free();
  /// Frees the form once the message in hand is done, which is safe in the form's own handlers.
  void Release();
  /// Shows the form and returns when it is closed or gets a ModalResult; the other forms are
  /// disabled meanwhile. Raises EInvalidOperation for a form that is visible, disabled or modal
  /// already.
  int ShowModal();
  TModalResult ModalResult() const { return FModalResult; }
  void SetModalResult(TModalResult result) { FModalResult = result; }
  bool Modal() const { return FModal; }

  bool Active() const { return FActive; }
  TWinControl* ActiveControl() const { return FActiveControl; }
  /// The control that has the focus while the form is active. Raises EInvalidOperation for one that
  /// is not on the form, or cannot have it while the form is shown.
  void SetActiveControl(TWinControl* control);
  /// The same, and activates the form.
  void FocusControl(TWinControl* control);
  /// Gives up an active control that is the given one or inside it.
  void DefocusControl(TWinControl* control);
  void SetFocus() override;

  TBorderStyle BorderStyle() const { return FBorderStyle; }
  /// Which border the window has, and whether the user can change its size.
  void SetBorderStyle(TBorderStyle style);
  TBorderIcons BorderIcons() const { return FBorderIcons; }
  /// Which buttons the title bar has.
  void SetBorderIcons(TBorderIcons icons);
  TFormStyle FormStyle() const { return FFormStyle; }
  /// A form that becomes an fsMDIChild becomes visible, inside the main form. Raises
  /// EInvalidOperation when it is to have a window and the main form is no fsMDIForm.
  void SetFormStyle(TFormStyle style);
  TPosition Position() const { return FPosition; }
  /// Where the form stands when it is shown first.
  void SetPosition(TPosition position);
  TWindowState WindowState() const;
  /// Whether the form is minimised, maximised or neither.
  void SetWindowState(TWindowState state);
  /// The dots per inch that the measures of the form and of the controls on it are in.
  int PixelsPerInch() const { return FPixelsPerInch; }
  /// Says which these are; changes no bounds. A font that nobody has set takes its usual size in
  /// them. Raises EArgumentOutOfRangeException below 1.
  void SetPixelsPerInch(int pixels);
  /// True: the form takes the dots per inch of its monitor, when it has been loaded or is first
  /// shown, and when it comes to another one. Not while it is designed.
  bool Scaled() const { return FScaled; }
  void SetScaled(bool scaled) { FScaled = scaled; }
  /// Scales the form, with all on it, to so many dots per inch. Raises EArgumentOutOfRangeException
  /// below 1.
  void ScaleForPPI(int pixels);
  bool KeyPreview() const { return FKeyPreview; }
  /// The form's key events come before its controls'.
  void SetKeyPreview(bool keyPreview) { FKeyPreview = keyPreview; }
  TIcon* Icon() const { return FIcon.get(); }
  /// The icon of the window; an empty one shows the application's.
  void SetIcon(const TIcon* icon);
  TMainMenu* Menu() const { return FMenu; }
  /// The menu bar; null for none.
  void SetMenu(TMainMenu* menu);
  TCanvas* Canvas() const;
  /// A picture of the form as it stands on the screen or would.
  std::unique_ptr<TBitmap> GetFormImage();

  // A main form of the style fsMDIForm, and the forms of the style fsMDIChild inside it. Their
  // menus stay out of sight, and hiding one destroys its window. Without a main form's window the
  // calls do nothing.
  /// The system's window in which the children stand; null in other forms, and without a window.
  HWND ClientHandle() const { return FClientHandle; }
  /// The child in front; null for none.
  TCustomForm* ActiveMDIChild() const;
  /// All forms of the style fsMDIChild.
  int MDIChildCount() const;
  /// By the order in which they were made; null for an index outside.
  TCustomForm* MDIChildren(int index) const;
  void Cascade();
  TTileMode TileMode() const { return FTileMode; }
  void SetTileMode(TTileMode mode) { FTileMode = mode; }
  void Tile();
  void ArrangeIcons();
  void Next();
  void Previous();

  /// The designer that shows the form; null for a form that runs.
  TDesignerHook* Designer() const { return FDesigner; }
  /// Puts the form, which has no window yet, into the designing state. The designer must outlive
  /// it. A form file that is read then shows the form.
  void SetDesigner(TDesignerHook* designer);

  void SetVisible(bool visible) override;
  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;
  TRect ClientRect() const override;

  /// The form's file has been read.
  TNotifyEvent OnCreate;
  /// The form is about to end.
  TNotifyEvent OnDestroy;
  /// The form is about to become visible.
  TNotifyEvent OnShow;
  /// The form is no longer visible.
  TNotifyEvent OnHide;
  /// The form has become the active one.
  TNotifyEvent OnActivate;
  /// The form is no longer the active one.
  TNotifyEvent OnDeactivate;
  /// The form is being painted: the handler may draw on its canvas.
  TNotifyEvent OnPaint;
  /// The form is being closed: the handler chooses what becomes of it.
  TCloseEvent OnClose;
  /// The form is to be closed, which the handler may refuse.
  TCloseQueryEvent OnCloseQuery;
  /// Files were dropped on the form, which takes them only while a handler is bound; the system is
  /// told of a new handler when the window is made or the application next waits.
  TDropFilesEvent OnDropFiles;

 protected:
  /// Reads the form from the RCDATA resource that is named after its class, in the given module or
  /// the executable, and fires OnCreate when no descendant has a file to add (InheritedBy); a form
  /// that was created before raises EInvalidOperation. Raises EResNotFound, and what reading a form
  /// file raises, with the class's name and the line; EReadError for a field whose component the
  /// file does not hold; EInvalidOperation for a class without a ClassType. Fields are null until
  /// then.
  void LoadForm(HINSTANCE module = nullptr);

  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void DestroyWindowHandle() override;
  void DefaultHandler(TMessage& message) override;
  void AlignControls(TControl* control, TRect& rect) override;
  void ChangeScale(int m, int d) override;
  void ScaleBounds(int m, int d) override;
  void Dispatch(TMessage& message) override;
  void WMPaint(TMessage& message) override;
  void PaintWindow(HDC dc) override;
  void Notification(TComponent* component, TOperation operation) override;
  void Loaded() override;
  virtual void DoClose(TCloseAction& action);
  virtual void DoShow();
  virtual void DoHide();
  virtual void Activate();
  virtual void Deactivate();
  // What form files hold: sizes wait for the border and the menu, showing for the whole form.
  // Scroll bars come out of the client rectangle, and are no part of what is stored.
  int FileClientWidth() const;
  void SetFileClientWidth(int width);
  int FileClientHeight() const;
  void SetFileClientHeight(int height);
  bool FileVisible() const;

 private:
  friend class TApplication;
  friend class TScreen;
  friend class TWinControl;
  friend class TMainMenu;
  // Reading and ending.
  void Created();
  void BeforeDestruction();
  // The window's look.
  void AddFrame(TCreateParams& params) const;
  TSize FrameSize() const;
  void UpdateMenu();
  void UpdateIcon();
  void Remake();
  // Dots per inch.
  int MonitorPPI() const;
  void ScaleToMonitor();
  void WMDpiChanged(TMessage& message);
  // Windows inside a window.
  bool StandsInside() const;
  HWND WindowAround() const;
  bool InsideWindow() const { return StandsInside() || FDesigner; }
  void CreateClient();
  void DestroyClient();
  void TellClient(UINT message, WPARAM wParam = 0);
  void RemakeAs(TFormStyle style);
  void ActivateInside();
  void WMMDIActivate(TMessage& message);
  // Messages.
  bool DispatchWindow(TMessage& message);
  bool DispatchNotice(TMessage& message);
  void WMSysCommand(TMessage& message);
  void WMSize(TMessage& message);
  void WMDropFiles(TMessage& message);
  void UpdateDropFiles();
  // Focus.
  void SetActive(bool active);
  void SetWindowFocus();
  /// The system has given the control the focus: keeps it as the active one and sends CM_EXIT and
  /// CM_ENTER along the way there. Called by TWinControl.
  void SetFocusedControl(TWinControl* control);
  bool StepTo(TWinControl* entered, TWinControl* target, UINT notice);
  bool IsTarget(const TWinControl* control) const;
  bool DialogKey(WPARAM key);
  bool MoveByArrow(bool forward);
  // Showing.
  void ShowingChanged();
  void ShowWindowNow();
  void HideWindowNow();
  void PlaceOnScreen();
  TRect AreaToCenterIn() const;
  // Modal.
  void CheckCanShowModal() const;
  TModalResult RunModal();
  void CloseModal();

  TBorderStyle FBorderStyle = bsSizeable;
  TBorderIcons FBorderIcons{biSystemMenu, biMinimize, biMaximize};
  TFormStyle FFormStyle = fsNormal;
  TPosition FPosition = poDesigned;
  TWindowState FWindowState = wsNormal;
  TModalResult FModalResult = mrNone;
  bool FModal = false;
  bool FActive = false;
  bool FKeyPreview = false;
  bool FReadingForm = false;
  TWholeClass FWholeClass;
  bool FCreated = false;
  bool FDestroyed = false;
  bool FReleased = false;
  bool FRemaking = false;    // The window is made anew, which is no news to handlers.
  bool FPlaced = false;      // Position has been acted on.
  bool FTakesFiles = false;  // The system has been told so.
  bool FScaled = true;
  bool FScaledToMonitor = false;  // That is done once; then the system tells.
  int FPixelsPerInch = DefaultPixelsPerInch;
  const TRect* FSuggested = nullptr;  // By the system, for the dots per inch in hand.
  bool FVisibleAsked = false;  // What a form file or a designer says, until the form may be shown.
  int FClientWidth = -1;       // As a form file gives it, until the whole file is read.
  int FClientHeight = -1;
  TWinControl* FActiveControl = nullptr;
  TWinControl* FFocusedControl = nullptr;  // Where CM_ENTER has been sent to last.
  HWND FClientHandle = nullptr;
  TTileMode FTileMode = tbHorizontal;
  TMainMenu* FMenu = nullptr;
  TDesignerHook* FDesigner = nullptr;
  std::unique_ptr<TIcon> FIcon;
  std::unique_ptr<TControlCanvas> FCanvas;
};

/// A form as applications derive theirs from.
class VCL_API TForm : public TCustomForm {
 public:
  explicit TForm(TComponent* owner) : TCustomForm(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
