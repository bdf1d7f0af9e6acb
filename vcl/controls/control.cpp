// TControl: its place in the form, bounds, look, text, and drag and drop.
#include "vcl/controls/control.h"

#include "vcl/actions/actionlink.h"
#include "vcl/actions/basicaction.h"
#include "vcl/controls/controlwatch.h"
#include "vcl/controls/private/painthold.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/forms/application.h"
#include "vcl/forms/drag.h"
#include "vcl/forms/forms.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TControl::Class() {
  static const TClass info = Describe<TControl, TComponent>(
      "vcl::TControl", "vcl/controls/controls.h",
      {
          Property<&TControl::FileLeft, &TControl::SetFileLeft>("Left"),
          Property<&TControl::FileTop, &TControl::SetFileTop>("Top"),
          Property<&TControl::Width, &TControl::SetWidth>("Width"),
          Property<&TControl::Height, &TControl::SetHeight>("Height"),
          Property<&TControl::Cursor, &TControl::SetCursor>("Cursor").Default(crDefault),
          Property<&TControl::Hint, &TControl::SetHint>("Hint")
              .Default("")
              .StoredIf<&TControl::IsHintStored>(),
          Property<&TControl::AccessibleName, &TControl::SetAccessibleName>("AccessibleName")
              .Default(""),
          Property<&TControl::Anchors, &TControl::SetAnchors>("Anchors").Default(
              TAnchors{akLeft, akTop}),
          Property<&TControl::AlignWithMargins, &TControl::SetAlignWithMargins>("AlignWithMargins")
              .Default(false),
          Property<&TControl::Constraints, &TControl::SetConstraints>("Constraints"),
          Property<&TControl::Margins, &TControl::SetMargins>("Margins"),
          Property<&TControl::Align, &TControl::SetAlign>("Align").Default(alNone).Unpublished(),
          Property<&TControl::Caption, &TControl::SetCaption>("Caption")
              .Type("TCaption")
              .StoredIf<&TControl::IsCaptionStored>()
              .Unpublished(),
          Property<&TControl::Text, &TControl::SetText>("Text").Type("TCaption").Unpublished(),
          Property<&TControl::Color, &TControl::SetColor>("Color")
              .Default(clWindow)
              .StoredIf<&TControl::IsColorStored>()
              .Unpublished(),
          Property<&TControl::ParentColor, &TControl::SetParentColor>("ParentColor")
              .Default(true)
              .Unpublished(),
          Property<&TControl::Font, &TControl::SetFont>("Font")
              .StoredIf<&TControl::IsFontStored>()
              .Unpublished(),
          Property<&TControl::ParentFont, &TControl::SetParentFont>("ParentFont")
              .Default(true)
              .Unpublished(),
          Property<&TControl::ShowHint, &TControl::SetShowHint>("ShowHint")
              .StoredIf<&TControl::IsShowHintStored>()
              .Unpublished(),
          Property<&TControl::ParentShowHint, &TControl::SetParentShowHint>("ParentShowHint")
              .Default(true)
              .Unpublished(),
          Property<&TControl::Action, &TControl::SetAction>("Action").Unpublished(),
          Property<&TControl::Enabled, &TControl::SetEnabled>("Enabled")
              .Default(true)
              .StoredIf<&TControl::IsEnabledStored>()
              .Unpublished(),
          Property<&TControl::Visible, &TControl::SetVisible>("Visible")
              .Default(true)
              .StoredIf<&TControl::IsVisibleStored>()
              .Unpublished(),
          Property<&TControl::DragCursor, &TControl::SetDragCursor>("DragCursor")
              .Default(crDrag)
              .Unpublished(),
          Property<&TControl::DragMode, &TControl::SetDragMode>("DragMode")
              .Default(dmManual)
              .Unpublished(),
          Property<&TControl::PopupMenu, &TControl::SetPopupMenu>("PopupMenu").Unpublished(),
          Event<&TControl::OnClick>("OnClick").Unpublished(),
          Event<&TControl::OnConstrainedResize>("OnConstrainedResize").Unpublished(),
          Event<&TControl::OnDblClick>("OnDblClick").Unpublished(),
          Event<&TControl::OnMouseDown>("OnMouseDown").Unpublished(),
          Event<&TControl::OnMouseMove>("OnMouseMove").Unpublished(),
          Event<&TControl::OnMouseUp>("OnMouseUp").Unpublished(),
          Event<&TControl::OnDragDrop>("OnDragDrop").Unpublished(),
          Event<&TControl::OnDragOver>("OnDragOver").Unpublished(),
          Event<&TControl::OnStartDrag>("OnStartDrag").Unpublished(),
          Event<&TControl::OnEndDrag>("OnEndDrag")
              .Type("TEndDragEvent", "vcl::TObject* sender, vcl::TObject* target, int x, int y")
              .Unpublished(),
      });
  return info;
}

TControl::TControl(TComponent* owner)
    : TComponent(owner), FFont(std::make_unique<TFont>(DefaultPixelsPerInch)) {
  FFont->OnChange = TNotifyEvent(this, &TControl::FontChanged);
}

TControl::~TControl() {
  AnnounceEnd();
  TControlWatch::Forget(this);
  TDragSession::Forget(this);
  if (HasApplication()) Application()->ControlGone(this);
  FFont->OnChange.Clear();
  ForgetCapture();
  if (FParent) FParent->Remove(this);
}

// Place in the form.

void TControl::SetParent(TWinControl* parent) {
  if (parent == FParent) return;
  for (const TControl* each = parent; each; each = each->FParent) {
    if (each == this) {
      throw EInvalidOperation(Concat("A control cannot have itself as its parent: ", Name()));
    }
  }
  const TWatch watch(this);
  if (FParent) FParent->Remove(this);
  if (parent) parent->Insert(this);
  KeepPlace();
  // What is being read has its parent before its properties, which may say that it does not follow.
  if (!ComponentState().Has(csReading)) FollowParent();
  if (!watch.Gone()) TControlWatch::Changed(this);
}

void TControl::FollowParent() {
  if (!FParent || FControlState.Has(csReadingState)) return;
  const TWatch watch(this);
  FitFont();
  if (watch.Gone()) return;
  for (const UINT notice : {CM_PARENTSHOWHINTCHANGED, CM_PARENTCOLORCHANGED, CM_PARENTFONTCHANGED,
                            CM_PARENTCTL3DCHANGED}) {
    if (!watch.Gone()) Notify(notice);
  }
}

TCustomForm* TControl::ParentForm() const {
  const TControl* topmost = this;
  while (topmost->FParent) topmost = topmost->FParent;
  return dynamic_cast<TCustomForm*>(const_cast<TControl*>(topmost));
}

TComponent* TControl::GetParentComponent() const { return FParent; }

void TControl::SetParentComponent(TComponent* parent) {
  if (auto* winControl = dynamic_cast<TWinControl*>(parent)) SetParent(winControl);
}

void TControl::SetZOrder(bool topmost) {
  if (!FParent) return;
  TWinControl* parent = FParent;
  parent->MoveInZOrder(this, topmost);
  if (FVisible) InvalidateArea(true, true);
}

// Bounds.

void TControl::SetBounds(int left, int top, int width, int height) {
  const TWatch watch(this);
  const TSize size = ConstrainedSize(width, height);
  if (watch.Gone() || TRect(left, top, left + size.cx, top + size.cy) == BoundsRect()) return;
  const bool resized = size != TSize{FWidth, FHeight};
  InvalidateArea(FVisible, false);
  FLeft = left;
  FTop = top;
  FWidth = size.cx;
  FHeight = size.cy;
  KeepPlace();
  Invalidate();
  RequestAlign();
  if (!watch.Gone() && resized) TellResize();
  if (!watch.Gone()) TControlWatch::Changed(this);
}

void TControl::SetClientSize(int width, int height) {
  const TRect client = ClientRect();
  SetBounds(FLeft, FTop, FWidth - client.Width() + width, FHeight - client.Height() + height);
}

TPoint TControl::ClientOrigin() const {
  if (!FParent) throw EInvalidOperation(Concat("Control '", Name(), "' has no parent window"));
  const TPoint origin = FParent->ClientOrigin();
  return {origin.X + FLeft, origin.Y + FTop};
}

TPoint TControl::ClientToScreen(TPoint point) const {
  const TPoint origin = ClientOrigin();
  return {point.X + origin.X, point.Y + origin.Y};
}

TPoint TControl::ScreenToClient(TPoint point) const {
  const TPoint origin = ClientOrigin();
  return {point.X - origin.X, point.Y - origin.Y};
}

void TControl::SetAlign(TAlign align) {
  if (align == FAlign) return;
  FAlign = align;
  if (FParent) FParent->AlignControl(this);
}

/// Where a control stands freely, the others stand as they did.
void TControl::RequestAlign() {
  if (FParent && (FAlign != alNone || FParent->ArrangesFree())) FParent->AlignControl(this);
}

// State.

void TControl::SetEnabled(bool enabled) {
  if (enabled == FEnabled) return;
  FEnabled = enabled;
  const TWatch watch(this);
  Notify(CM_ENABLEDCHANGED);
  if (!watch.Gone()) TControlWatch::Changed(this);
}

void TControl::SetVisible(bool visible) {
  if (visible == FVisible) return;
  FVisible = visible;
  const TWatch watch(this);
  Notify(CM_VISIBLECHANGED);
  if (!watch.Gone()) RequestAlign();
  if (!watch.Gone()) TControlWatch::Changed(this);
}

void TControl::Show() {
  if (FParent) FParent->ShowControl(this);
  SetVisible(true);
}

// Look.

void TControl::SetFont(const TFont* font) { FFont->Assign(font); }

void TControl::FontChanged(TObject*) {
  FParentFont = false;
  Notify(CM_FONTCHANGED);
}

void TControl::SetParentFont(bool parentFont) {
  if (parentFont == FParentFont) return;
  FParentFont = parentFont;
  if (FParent && !FControlState.Has(csReadingState)) Notify(CM_PARENTFONTCHANGED);
}

void TControl::SetColor(TColor color) {
  if (color == FColor && !FParentColor) return;
  FColor = color;
  FParentColor = false;
  Notify(CM_COLORCHANGED);
}

void TControl::SetParentColor(bool parentColor) {
  if (parentColor == FParentColor) return;
  FParentColor = parentColor;
  if (FParent && !FControlState.Has(csReadingState)) Notify(CM_PARENTCOLORCHANGED);
}

void TControl::SetCursor(TCursor cursor) {
  if (cursor == FCursor) return;
  FCursor = cursor;
  Notify(CM_CURSORCHANGED);
}

void TControl::SetShowHint(bool showHint) {
  if (showHint == FShowHint && !FParentShowHint) return;
  FShowHint = showHint;
  FParentShowHint = false;
  Notify(CM_SHOWHINTCHANGED);
}

void TControl::SetParentShowHint(bool parentShowHint) {
  if (parentShowHint == FParentShowHint) return;
  FParentShowHint = parentShowHint;
  if (FParent && !FControlState.Has(csReadingState)) Notify(CM_PARENTSHOWHINTCHANGED);
}

void TControl::SetPopupMenu(TPopupMenu* menu) {
  FPopupMenu = menu;
  if (menu) menu->FreeNotification(this);
}

// Text.

std::string TControl::Text() const {
  std::string text(static_cast<std::size_t>(GetTextLen()), '\0');
  if (!text.empty()) GetTextBuf(text.data(), static_cast<int>(text.size()) + 1);
  return text;
}

void TControl::SetText(const std::string& text) {
  if (text != Text()) SetTextBuf(text.c_str());
}

int TControl::GetTextBuf(char* buffer, int size) const {
  if (size <= 0) return 0;
  const std::size_t count = FText.copy(buffer, static_cast<std::size_t>(size) - 1);
  buffer[count] = '\0';
  return static_cast<int>(count);
}

void TControl::SetTextBuf(const char* text) {
  FText = text;
  Notify(CM_TEXTCHANGED);
}

void TControl::SetName(const std::string& name) {
  const bool follows = FControlStyle.Has(csSetCaption) && !Loading() && Name() == Text() &&
                       !(Owner() && Owner()->Loading());
  TComponent::SetName(name);
  if (follows) SetText(name);
}

bool TControl::Seen() const {
  return FVisible || (Designing() && !FControlStyle.Has(csNoDesignVisible));
}

// Painting.

void TControl::Invalidate() { InvalidateArea(FVisible, FControlStyle.Has(csOpaque)); }

void TControl::InvalidateArea(bool visible, bool opaque) {
  if (!visible && !Designing()) return;
  if (!FParent || !FParent->HandleAllocated() || TPaintHold::Covers(*this)) return;
  const RECT area = BoundsRect();
  const bool covered = opaque || FParent->ControlStyle().Has(csOpaque);
  ::InvalidateRect(FParent->Handle(), &area, !covered);
}

void TControl::Update() {
  if (FParent) FParent->Update();
}

void TControl::Repaint() {
  Invalidate();
  Update();
}

HDC TControl::GetDeviceContext(HWND& window) {
  if (!FParent) throw EInvalidOperation(Concat("Control '", Name(), "' has no parent window"));
  const HDC dc = FParent->GetDeviceContext(window);
  POINT origin;
  ::GetViewportOrgEx(dc, &origin);
  ::SetViewportOrgEx(dc, origin.x + FLeft, origin.y + FTop, nullptr);
  ::IntersectClipRect(dc, 0, 0, FWidth, FHeight);
  return dc;
}

// Drag and drop.

void TControl::BeginDrag(bool immediate, int threshold) {
  TDragSession::Begin(this, immediate, threshold);
}

void TControl::EndDrag(bool drop) {
  if (Dragging()) TDragSession::End(drop);
}

bool TControl::Dragging() const {
  const TDragSession* session = TDragSession::Current();
  return session && session->Control() == this;
}

void TControl::DragOver(TObject* source, int x, int y, TDragState state, bool& accept) {
  accept = OnDragOver.Assigned();
  OnDragOver(this, source, x, y, state, accept);
}

void TControl::DragDrop(TObject* source, int x, int y) { OnDragDrop(this, source, x, y); }
void TControl::BeginAutoDrag(TMessage&) { BeginDrag(false); }
void TControl::DoStartDrag(TDragObject*& object) { OnStartDrag(this, object); }
void TControl::DoEndDrag(TObject* target, int x, int y) { OnEndDrag(this, target, x, y); }

// Component.

void TControl::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && component == FPopupMenu) FPopupMenu = nullptr;
}

void TControl::ReadState(TReader& reader) {
  {
    IncludeState(csReadingState);
    const TAtEnd done([this] { ExcludeState(csReadingState); }, this);
    TComponent::ReadState(reader);
  }
  KeepPlace();
  FollowParent();
}

void TControl::Loaded() {
  TComponent::Loaded();
  if (FConstraints) LimitsChanged();
  if (FAnchors != TAnchors{akLeft, akTop} && FParent) FParent->AlignControl(this);
  RequestAlign();
}

}  // namespace vcl
