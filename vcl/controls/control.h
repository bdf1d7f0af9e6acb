// TControl: everything that is seen on a form; TGraphicControl: a control without a window.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "vcl/controls/accessible.h"
#include "vcl/controls/controltypes.h"
#include "vcl/controls/layout.h"
#include "vcl/controls/messages.h"
#include "vcl/graphics/graphics.h"
#include "vcl/graphics/types.h"
#include "vcl/rtl/component.h"

namespace vcl {

class TActionChange;
class TActionLink;
class TBasicAction;
class TControlCanvas;
class TCustomForm;
class TPopupMenu;
class TWinControl;
struct TActionValues;

/// A control: a rectangle inside a parent, with a look, a state and events for the mouse. Positions
/// and sizes are in pixels.
class VCL_API TControl : public TComponent {
 public:
  explicit TControl(TComponent* owner);
  ~TControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  // Place in the form.
  TWinControl* Parent() const { return FParent; }
  /// Moves the control into the parent, at the top of the z-order; null takes it out. Raises
  /// EInvalidOperation when the parent would stand inside the control itself.
  virtual void SetParent(TWinControl* parent);
  /// The form that the control is on; null when there is none.
  TCustomForm* ParentForm() const;
  TComponent* GetParentComponent() const override;
  bool HasParent() const override { return FParent != nullptr; }
  void SetParentComponent(TComponent* parent) override;
  void BringToFront() { SetZOrder(true); }
  void SendToBack() { SetZOrder(false); }

  // Bounds.
  int Left() const { return FLeft; }
  int Top() const { return FTop; }
  int Width() const { return FWidth; }
  int Height() const { return FHeight; }
  /// The distance from the left edge of the parent's inner rectangle, in pixels.
  void SetLeft(int left) { SetBounds(left, FTop, FWidth, FHeight); }
  /// The distance from the top edge of the parent's inner rectangle, in pixels.
  void SetTop(int top) { SetBounds(FLeft, top, FWidth, FHeight); }
  /// The width in pixels.
  void SetWidth(int width) { SetBounds(FLeft, FTop, width, FHeight); }
  /// The height in pixels.
  void SetHeight(int height) { SetBounds(FLeft, FTop, FWidth, height); }
  /// The four at once; a negative size is taken as 0.
  virtual void SetBounds(int left, int top, int width, int height);
  TRect BoundsRect() const { return {FLeft, FTop, FLeft + FWidth, FTop + FHeight}; }
  /// The inner rectangle; its top left is (0, 0).
  virtual TRect ClientRect() const { return {0, 0, FWidth, FHeight}; }
  /// The width of the inner rectangle, in pixels.
  int ClientWidth() const { return ClientRect().Right; }
  /// The height of the inner rectangle, in pixels.
  int ClientHeight() const { return ClientRect().Bottom; }
  /// Changes the size so that the inner rectangle gets the given one.
  void SetClientWidth(int width) { SetClientSize(width, ClientHeight()); }
  void SetClientHeight(int height) { SetClientSize(ClientWidth(), height); }
  /// The screen's position of the inner rectangle's top left. Raises EInvalidOperation for a
  /// control without a parent.
  virtual TPoint ClientOrigin() const;
  TPoint ClientToScreen(TPoint point) const;
  TPoint ScreenToClient(TPoint point) const;
  TAlign Align() const { return FAlign; }
  /// Keeps the control along an edge of its parent, or over all that the others leave.
  void SetAlign(TAlign align);

  // Layout (control_layout.cpp).
  TAnchors Anchors() const { return FAnchors; }
  /// The edges of its parent that the control keeps its distance from when the parent's size
  /// changes: with two opposite ones it grows, with none of two it stays in the middle in
  /// proportion. Without meaning for an aligned control.
  void SetAnchors(TAnchors anchors);
  /// The limits of the control's size.
  TSizeConstraints* Constraints() const;
  void SetConstraints(const TSizeConstraints* constraints);
  bool AlignWithMargins() const { return FAlignWithMargins; }
  /// An aligned control keeps its Margins free around itself.
  void SetAlignWithMargins(bool alignWithMargins);
  /// What an aligned control with AlignWithMargins keeps free around itself, in pixels.
  TMargins* Margins() const;
  void SetMargins(const TMargins* margins);

  // Dots per inch (control_scale.cpp).
  /// The dots per inch that the control's measures are in: its form's, else 96.
  int CurrentPPI() const;
  /// A measure of 96 dots per inch in the control's own.
  int ScaledPixels(int pixels) const;
  /// Makes the control and all inside it m / d as large, with their fonts; a font that follows the
  /// parent's keeps following it. Rounding never adds up: scaled back, each measure that nobody
  /// else has changed is what it was. Raises EArgumentOutOfRangeException unless both are above 0.
  void ScaleBy(int m, int d);

  // State.
  bool Enabled() const { return FEnabled; }
  /// False: the control takes neither the mouse nor the keyboard.
  void SetEnabled(bool enabled);
  bool Visible() const { return FVisible; }
  /// False: the control is not shown.
  virtual void SetVisible(bool visible);
  /// True when the control is shown where its parent is: it is visible, or is being designed.
  bool Seen() const;
  void Show();
  void Hide() { SetVisible(false); }
  TControlStyle ControlStyle() const { return FControlStyle; }
  TControlState ControlState() const { return FControlState; }

  // Look.
  TFont* Font() const { return FFont.get(); }
  /// The font of the control's text.
  void SetFont(const TFont* font);
  bool ParentFont() const { return FParentFont; }
  /// True: the font is the parent's, and follows it.
  void SetParentFont(bool parentFont);
  /// The colour of the control's surface; one of its own no longer follows its parent's.
  TColor Color() const { return FColor; }
  /// A colour of the control's own; it no longer follows its parent's.
  virtual void SetColor(TColor color);
  bool ParentColor() const { return FParentColor; }
  /// True: the colour is the parent's, and follows it.
  void SetParentColor(bool parentColor);
  TCursor Cursor() const { return FCursor; }
  /// The mouse's pointer over the control.
  void SetCursor(TCursor cursor);

  // Text.
  /// The control's text, which is its window's text where it has one.
  std::string Text() const;
  void SetText(const std::string& text);
  std::string Caption() const { return Text(); }
  /// The text that the control shows.
  void SetCaption(const std::string& caption) { SetText(caption); }
  /// The text's length in bytes.
  virtual int GetTextLen() const { return static_cast<int>(FText.size()); }
  /// Copies at most `size` - 1 bytes of the text and a zero; returns the number of bytes copied.
  virtual int GetTextBuf(char* buffer, int size) const;
  virtual void SetTextBuf(const char* text);
  void SetName(const std::string& name) override;

  // Hints.
  const std::string& Hint() const { return FHint; }
  /// The text shown when the mouse rests on the control: the part before "|" in a window, the part
  /// after it (or all) as the application's hint.
  void SetHint(const std::string& hint) { FHint = hint; }
  bool ShowHint() const { return FShowHint; }
  /// True: the control shows its hint.
  void SetShowHint(bool showHint);
  bool ParentShowHint() const { return FParentShowHint; }
  /// True: ShowHint is the parent's, and follows it.
  void SetParentShowHint(bool parentShowHint);

  // Screen readers (control_accessible.cpp).
  const std::string& AccessibleName() const { return FAccessibleName; }
  /// What a screen reader calls the control, instead of its caption or of its label's.
  void SetAccessibleName(const std::string& name);
  /// Tells what a screen reader is told. The inherited method knows the caption, where one is
  /// published, its accelerator, the hint and whether the control is disabled or invisible.
  virtual void DescribeAccessible(TAccessibleInfo& info) const;
  /// What DescribeAccessible tells, under the name that AccessibleName or the label gives.
  TAccessibleInfo Accessible() const;
  /// Does what DefaultAction of its description says. The inherited method clicks.
  virtual void DoAccessibleAction() { Click(); }
  /// The parts that are seen now and are no controls; here: none.
  virtual std::vector<TAccessiblePart> AccessibleParts() { return {}; }
  /// Does the default action of a part, or selects it when it has none.
  virtual void DoAccessiblePart(const TAccessiblePath& /*part*/) {}
  /// The control whose name this one's caption is; null for none.
  virtual const TControl* Labelled() const { return nullptr; }
  /// Tells screen readers of a change of the control, or of a part. Does nothing without a window.
  void AccessibleChanged(TAccessibleChange change, const TAccessiblePath& part = {}) const;

  // Painting.
  /// Has the control painted again when the system next asks for it.
  virtual void Invalidate();
  /// Paints now what has been invalidated.
  virtual void Update();
  /// Paints the whole control now.
  virtual void Repaint();
  void Refresh() { Repaint(); }

  // Messages.
  /// Sends the control a message, without the system's queue, and returns the answer.
  LRESULT Perform(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
  /// Where every message to the control arrives. The inherited method turns mouse messages into
  /// clicks and drags and dispatches the rest.
  virtual void WndProc(TMessage& message);
  /// A device context for the control's client rectangle, from the window it lies in, and that
  /// window.
  virtual HDC GetDeviceContext(HWND& window);

  // Drag and drop.
  TDragMode DragMode() const { return FDragMode; }
  /// dmAutomatic: the left button drags the control; dmManual: only BeginDrag does.
  void SetDragMode(TDragMode mode) { FDragMode = mode; }
  TCursor DragCursor() const { return FDragCursor; }
  /// The pointer while the control is dragged over what would accept it.
  void SetDragCursor(TCursor cursor) { FDragCursor = cursor; }
  /// Begins to drag the control: at once, or when the mouse has moved by `threshold` pixels with
  /// the button down (a negative one is the system's).
  void BeginDrag(bool immediate, int threshold = -1);
  /// Ends this control's drag with a drop, or cancels it.
  void EndDrag(bool drop);
  bool Dragging() const;
  /// Asks the control whether `source` may be dropped at the position, in its own coordinates.
  virtual void DragOver(TObject* source, int x, int y, TDragState state, bool& accept);
  virtual void DragDrop(TObject* source, int x, int y);

  // Popup menu.
  TPopupMenu* PopupMenu() const { return FPopupMenu; }
  /// The menu of a right click on the control; null for none.
  void SetPopupMenu(TPopupMenu* menu);

  // Actions (control_actions.cpp).
  TBasicAction* Action() const;
  /// The action whose values the control shows (see TActionLink::SetAction), and which a click
  /// executes unless OnClick is assigned.
  void SetAction(TBasicAction* action);

  /// The control was clicked, by mouse or keyboard.
  TNotifyEvent OnClick;
  /// The control was clicked twice.
  TNotifyEvent OnDblClick;
  /// A button of the mouse was pressed over the control.
  TMouseEvent OnMouseDown;
  /// A button of the mouse that was pressed over the control was released.
  TMouseEvent OnMouseUp;
  /// The mouse was moved over the control.
  TMouseMoveEvent OnMouseMove;
  /// Something is dragged over the control: the handler says whether it may be dropped.
  TDragOverEvent OnDragOver;
  /// Something was dropped on the control.
  TDragDropEvent OnDragDrop;
  /// The control begins to be dragged.
  TStartDragEvent OnStartDrag;
  /// The control is no longer dragged; with what it was dropped on, null for nothing.
  TEndDragEvent OnEndDrag;
  /// The control's size is about to change: the handler may narrow the limits, or lift them.
  TConstrainedResizeEvent OnConstrainedResize;

 protected:
  /// A click, by mouse or keyboard. The inherited method fires OnClick or executes the action.
  virtual void Click();
  virtual void DblClick();
  virtual void MouseDown(TMouseButton button, TShiftState shift, int x, int y);
  virtual void MouseMove(TShiftState shift, int x, int y);
  virtual void MouseUp(TMouseButton button, TShiftState shift, int x, int y);
  /// A press of the left button on a control with dmAutomatic. The inherited method begins the drag
  /// and leaves nothing of the press to the control.
  virtual void BeginAutoDrag(TMessage& press);
  virtual void DoStartDrag(TDragObject*& object);
  virtual void DoEndDrag(TObject* target, int x, int y);

  /// Handles a message that WndProc has not taken: the notices (CM_...) and the mouse.
  virtual void Dispatch(TMessage& message);
  /// What happens to a message that nobody handles.
  virtual void DefaultHandler(TMessage& message);

  virtual void SetZOrder(bool topmost);
  virtual void SetClientSize(int width, int height);
  /// Called after the size has changed; after that of a scaling once, behind it, when everything
  /// inside has its place, too.
  virtual void Resize() {}
  /// The size within Constraints and what OnConstrainedResize makes of them.
  TSize ConstrainedSize(int width, int height);
  void RequestAlign();
  /// Left as it is when the parent is not scrolled, in pixels, which is what form files hold.
  int FileLeft() const;
  void SetFileLeft(int left);
  /// Top as it is when the parent is not scrolled, in pixels.
  int FileTop() const;
  void SetFileTop(int top);
  /// Scales the control's measures by m / d; a class with measures of its own, such as the widths
  /// of columns, scales these too, by ScaleMeasure. Fonts are scaled afterwards.
  virtual void ChangeScale(int m, int d);
  /// The bounds' part of it.
  virtual void ScaleBounds(int m, int d);
  /// For ChangeScale, which asks in the same order each time: the measure by m / d, from what it
  /// was scaled from itself.
  int ScaleMeasure(int measure, int m, int d);
  /// Scales another font than Font in the same way, and lets it count in CurrentPPI.
  void ScaleFont(TFont& font, int m, int d);
  void Notification(TComponent* component, TOperation operation) override;
  void Loaded() override;
  void ReadState(TReader& reader) override;

  /// Whether the mouse is captured for this control.
  bool MouseCapture() const;
  void SetMouseCapture(bool capture);
  /// The control that the mouse is captured for; null when it is none of ours.
  static TControl* CaptureControl();
  void SetControlStyle(TControlStyle style) { FControlStyle = style; }
  void IncludeState(TControlStateValue state) { FControlState.Include(state); }
  void ExcludeState(TControlStateValue state) { FControlState.Exclude(state); }
  /// Stored conditions of the published table: a value that follows the parent's is not written.
  bool IsFontStored() const { return !FParentFont; }
  bool IsColorStored() const { return !FParentColor; }
  bool IsShowHintStored() const { return !FParentShowHint; }
  /// The same of what follows the action. Overriders of FollowAction call the inherited method
  /// first.
  virtual void FollowAction(const TActionChange& change);
  /// Null without an action that has values.
  const TActionValues* ActionValues() const;
  bool IsCaptionStored() const;
  bool IsEnabledStored() const;
  bool IsHintStored() const;
  bool IsVisibleStored() const;

 private:
  friend class TWinControl;
  friend class TControlCanvas;
  friend class TDragSession;
  friend class TScaling;
  void FontChanged(TObject* sender);
  void ForgetCapture();
  void Notify(UINT notice);
  void MouseButtonDown(TMessage& message, TMouseButton button, TShiftState extra);
  void MouseButtonUp(TMessage& message, TMouseButton button);
  bool DispatchMouse(TMessage& message);
  void DispatchNotice(TMessage& message);
  void FollowParent();
  void InvalidateArea(bool visible, bool opaque);
  void PopupMenuAt(TMessage& message);
  void LimitsChanged();
  void KeepPlace();
  void MoveByAnchors(TSize parentSize);
  void ScrollBounds(int dx, int dy);
  void ScaleStep(int m, int d);
  void ScaleFonts(int m, int d);
  void ScaleOwnFont(int m, int d);
  TRect ScaleEdges(const TRect& rect, int m, int d);
  void TellResize();
  void FitFont();

  /// What the anchors count from: the bounds that somebody gave the control, and the size that the
  /// parent's inside had then. What the anchors themselves bring about changes neither, so that
  /// rounding never adds up.
  struct TPlace {
    TRect Bounds;
    TSize Inside;
    /// The parent's own size, of which its window takes what its inside has not.
    TSize Parent;
    bool WithWindow = false;
    bool Known = false;
  };

  TWinControl* FParent = nullptr;
  int FLeft = 0;
  int FTop = 0;
  int FWidth = 0;
  int FHeight = 0;
  TAlign FAlign = alNone;
  TAnchors FAnchors{akLeft, akTop};
  bool FAlignWithMargins = false;
  bool FAnchoring = false;  // The anchors are moving the control.
  TPlace FPlace;
  /// What ScaleMeasure has scaled, in its order, and the font's height.
  struct TMeasures {
    std::vector<TScaledMeasure> Scaled;
    std::size_t Next = 0;
    TScaledMeasure FontHeight;
    bool ResizeHeld = false;  // Resize is called behind the scaling that goes on.
  };
  std::unique_ptr<TMeasures> FMeasures;                    // Made when the control is scaled.
  mutable std::unique_ptr<TSizeConstraints> FConstraints;  // Made when asked for.
  mutable std::unique_ptr<TMargins> FMargins;
  bool FEnabled = true;
  bool FVisible = true;
  bool FParentFont = true;
  bool FParentColor = true;
  bool FShowHint = false;
  bool FParentShowHint = true;
  TControlStyle FControlStyle{csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
  TControlState FControlState;
  std::unique_ptr<TFont> FFont;
  TColor FColor = clWindow;
  TCursor FCursor = crDefault;
  TDragMode FDragMode = dmManual;
  TCursor FDragCursor = crDrag;
  TPopupMenu* FPopupMenu = nullptr;
  std::unique_ptr<TActionLink> FActionLink;  // Made when there is an action.
  std::string FText;
  std::string FHint;
  std::string FAccessibleName;
};

/// A control without a window of its own: its parent's window paints it and passes it the mouse.
class VCL_API TGraphicControl : public TControl {
 public:
  explicit TGraphicControl(TComponent* owner);
  ~TGraphicControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

 protected:
  /// Paints the control with `Canvas`, whose (0, 0) is the control's top left.
  virtual void Paint() {}
  TCanvas* Canvas() const;
  void Dispatch(TMessage& message) override;

 private:
  std::unique_ptr<TControlCanvas> FCanvas;
};

}  // namespace vcl
