// TQELFormDivider: being moved with the mouse, keeping its part of the parent, and its store.
#include "qel/controls/Qeltformdivider.h"

#include <algorithm>
#include <cmath>

#include "qel/core/private/arithmetic.h"
#include "vcl/controls/messagewindow.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/scaling.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/panes.h"

namespace qel {

using vcl::TControl;
using vcl::TMouseButton;
using vcl::TPoint;
using vcl::TShiftState;
using vcl::TWatch;

const vcl::TClass& TQELFormDivider::Class() {
  using T = TQELFormDivider;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomFillBackground>(
      "qel::TQELFormDivider", "qel/controls/Qeltformdivider.h",
      {
          Inherit("Align").Default(alLeft),
          Property<&T::Collapsible, &T::SetCollapsible>("Collapsible").Default(false),
          Inherit("Cursor").Default(crHSplit),
          Inherit("Enabled"),
          Property<&T::Frame, &T::SetFrame>("Frame"),
          Property<&T::KeepRatio, &T::SetKeepRatio>("KeepRatio").Default(false),
          Property<&T::Live, &T::SetLive>("Live").Default(true),
          Property<&T::MinSize, &T::SetMinSize>("MinSize").Default(30),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          ReadOnly<&T::PositionStore>("PositionStore"),
          Inherit("ShowHint"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(MouseEvents),
          Event<&T::OnMoved>("OnMoved"),
          Event<&T::OnMoving>("OnMoving"),
      });
  return info;
}

TQELFormDivider::TQELFormDivider(vcl::TComponent* owner)
    : TQELCustomFillBackground(owner),
      FFrame(std::make_unique<TQELFrame>(this)),
      FPositionStore(std::make_unique<TQELDataStore>()) {
  FPositionStore->SetInitialEnabled(false);
  SetControlStyle(ControlStyle() + vcl::TControlStyle{vcl::csOpaque});
  SetBounds(0, 0, 6, 100);
  SetAlign(vcl::alLeft);
  SetCursor(vcl::crHSplit);
  HearOnlyAsked<TQELFormDivider>();
}

TQELFormDivider::~TQELFormDivider() {
  AnnounceEnd();
  ShowLine(false);
  vcl::DeallocateHWnd(FFitter);
}

void TQELFormDivider::SetFrame(const TQELFrame* frame) {
  FFrame->Assign(frame);
  Invalidate();
}

void TQELFormDivider::SetMinSize(int minSize) {
  if (minSize > 0) FMinSize = minSize;
}

void TQELFormDivider::Paint() {
  vcl::TRect rect = ClientRect();
  Canvas()->Brush()->SetStyle(vcl::bsSolid);
  Canvas()->Brush()->SetColor(vcl::clBtnFace);
  Canvas()->FillRect(rect);
  PaintBackground();
  FFrame->Draw(Canvas()->Handle(), rect);
}

// The area.

TControl* TQELFormDivider::Pane() const { return vcl::PaneBeside(*this); }

int TQELFormDivider::Fitting(int size) const {
  const TControl* pane = FPane ? FPane : Pane();
  const int least = ScaledPixels(FMinSize);
  return pane ? std::clamp(size, least, vcl::MostPaneSize(*this, *pane, least)) : size;
}

bool TQELFormDivider::Collapsed() const {
  const TControl* pane = Pane();
  return pane && vcl::PaneSize(*this, *pane) == 0;
}

/// Sizes the area; false when the divider has gone with that.
bool TQELFormDivider::SizeTo(TControl& pane, int size) {
  const TWatch watch(this);
  vcl::SizePane(*this, pane, size);
  return !watch.Gone();
}

void TQELFormDivider::SetCollapsed(bool collapsed) {
  TControl* pane = Pane();
  if (!pane || collapsed == Collapsed()) return;
  if (collapsed) FExpanded = vcl::PaneSize(*this, *pane);
  const int size = collapsed ? 0 : Fitting(std::max(FExpanded, 1));
  if (SizeTo(*pane, size)) Moved();
}

/// The user has given the area another size.
void TQELFormDivider::Moved() {
  KeepPart();
  const TWatch watch(this);
  AccessibleChanged(vcl::acState);
  if (!watch.Gone()) Store();
  if (!watch.Gone()) OnMoved(this);
}

// The part of the parent.

int TQELFormDivider::Room() const {
  if (!Parent()) return 0;
  return vcl::StandsUpright(*this) ? Parent()->ClientWidth() : Parent()->ClientHeight();
}

void TQELFormDivider::SetKeepRatio(bool keep) {
  FKeepRatio = keep;
  KeepPart();
}

void TQELFormDivider::KeepPart() {
  const TControl* pane = FKeepRatio && !Loading() ? Pane() : nullptr;
  FKnownRoom = Room();
  FPart =
      pane && FKnownRoom > 0 ? static_cast<double>(vcl::PaneSize(*this, *pane)) / FKnownRoom : 0;
}

/// The parent places its controls anew, also when only its own size has changed.
void TQELFormDivider::SetBounds(int left, int top, int width, int height) {
  const TWatch watch(this);
  TQELCustomFillBackground::SetBounds(left, top, width, height);
  if (!watch.Gone() && FKeepRatio && !Loading() && Room() != FKnownRoom) FitLater();
}

/// While the parent arranges its controls none of them can be sized for good.
void TQELFormDivider::FitLater() {
  if (FPart == 0) return KeepPart();
  FKnownRoom = Room();
  if (!FFitter) FFitter = vcl::AllocateHWnd({this, &TQELFormDivider::FitNow});
  ::PostMessageW(FFitter, WM_USER, 0, 0);
}

void TQELFormDivider::FitNow(vcl::TMessage& message) {
  if (message.Msg != WM_USER) {
    message.Result = ::DefWindowProcW(FFitter, message.Msg, message.WParam, message.LParam);
    return;
  }
  TControl* pane = Pane();
  if (!pane || !FKeepRatio || FPane || FPart == 0) return;
  SizeTo(*pane, Fitting(Round(FPart * Room())));
}

// The store. Sizes are kept for 96 dots per inch.

std::string TQELFormDivider::StoreName() const {
  const vcl::TCustomForm* form = ParentForm();
  const std::string owner = Owner() ? Owner()->Name() : form ? form->Name() : "";
  return owner.empty() ? Name() : owner + "." + Name();
}

void TQELFormDivider::Store() {
  const TControl* pane = Pane();
  if (!pane || Designing() || !FPositionStore->Enabled()) return;
  const int size = vcl::PaneSize(*this, *pane);
  FPositionStore->WriteInt(StoreName(), MulDiv(size, vcl::DefaultPixelsPerInch, CurrentPPI()));
}

void TQELFormDivider::Restore() {
  TControl* pane = Pane();
  if (!pane || Designing() || !FPositionStore->Enabled()) return;
  constexpr int none = -1;
  FPositionStore->SetErrorInt(none);
  const TWatch watch(this);
  const int stored = FPositionStore->ReadInt(StoreName());
  if (watch.Gone() || stored < 0 || (stored == 0 && !FCollapsible)) return;
  FExpanded = vcl::PaneSize(*this, *pane);
  if (SizeTo(*pane, stored == 0 ? 0 : Fitting(ScaledPixels(stored)))) KeepPart();
}

void TQELFormDivider::Loaded() {
  const TWatch watch(this);
  TQELCustomFillBackground::Loaded();
  if (watch.Gone()) return;
  KeepPart();
  Restore();
}

// Moving.

void TQELFormDivider::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TQELCustomFillBackground::MouseDown(button, shift, x, y);
  if (watch.Gone() || button != vcl::mbLeft || FPane || !Parent() || !Enabled()) return;
  if (shift.Has(vcl::ssDouble) || !MouseCapture()) return;
  FPane = Pane();
  if (!FPane) return;
  FPane->FreeNotification(this);
  FStart = {Left() + x, Top() + y};
  FOldSize = FNewSize = vcl::PaneSize(*this, *FPane);
  if (!FLive) ShowLine(true);
}

void TQELFormDivider::MouseMove(TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TQELCustomFillBackground::MouseMove(shift, x, y);
  if (watch.Gone() || !FPane) return;
  if (!MouseCapture()) return Finish(false);
  const TPoint way{Left() + x - FStart.X, Top() + y - FStart.Y};
  // An area that has been taken away stays so until it is pulled out.
  if (FOldSize == 0 && vcl::PaneSizeAfter(*this, 0, way) <= 0) return;
  int size = Fitting(vcl::PaneSizeAfter(*this, FOldSize, way));
  if (size == FNewSize || (way.X == 0 && way.Y == 0)) return;
  OnMoving(this, size);
  size = std::max(size, 0);
  if (watch.Gone() || !FPane || size == FNewSize) return;
  ShowLine(false);
  FNewSize = size;
  FLive ? void(SizeTo(*FPane, size)) : ShowLine(true);
}

void TQELFormDivider::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
  const TWatch watch(this);
  TQELCustomFillBackground::MouseUp(button, shift, x, y);
  if (!watch.Gone() && button == vcl::mbLeft && FPane) Finish(true);
}

void TQELFormDivider::DblClick() {
  const TWatch watch(this);
  TQELCustomFillBackground::DblClick();
  if (!watch.Gone() && FCollapsible && Enabled()) SetCollapsed(!Collapsed());
}

/// Takes what is seen of the move away and gives the area its new or its former size.
void TQELFormDivider::Finish(bool apply) {
  ShowLine(false);
  const TWatch watch(this);
  const bool moved = FNewSize != FOldSize;
  TControl* pane = FPane;
  if (moved && apply != FLive && !SizeTo(*pane, apply ? FNewSize : FOldSize)) return;
  FPane = nullptr;
  if (MouseCapture()) SetMouseCapture(false);
  if (!watch.Gone() && moved && apply) Moved();
}

void TQELFormDivider::Dispatch(vcl::TMessage& message) {
  if (message.Msg == vcl::CM_CAPTUREKEY && FPane && message.WParam == VK_ESCAPE) {
    message.Result = 1;
    return Finish(false);
  }
  const TWatch watch(this);
  TQELCustomFillBackground::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == WM_CANCELMODE && FPane) Finish(false);
  // The cursor that the control begins with follows its edge.
  const bool begins = Cursor() == vcl::crHSplit || Cursor() == vcl::crVSplit;
  if (message.Msg == vcl::CM_MOUSEENTER && begins && !Designing()) {
    SetCursor(vcl::StandsUpright(*this) ? vcl::crHSplit : vcl::crVSplit);
  }
}

void TQELFormDivider::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELCustomFillBackground::Notification(component, operation);
  if (operation != vcl::opRemove || component != FPane) return;
  ShowLine(false);
  FPane = nullptr;
}

void TQELFormDivider::ShowLine(bool shown) {
  if (shown == FLineShown || !Parent() || !Parent()->HandleAllocated()) return;
  FLineShown = shown;
  vcl::InvertStrip(*this, FNewSize - FOldSize, true);
}

// Screen readers.

void TQELFormDivider::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomFillBackground::DescribeAccessible(info);
  info.Role = vcl::arSeparator;
  if (!FCollapsible) return;
  const bool collapsed = Collapsed();
  info.State.Include(collapsed ? vcl::asCollapsed : vcl::asExpanded);
  info.DefaultAction = collapsed ? "Expand" : "Collapse";
}

void TQELFormDivider::DoAccessibleAction() {
  if (FCollapsible) SetCollapsed(!Collapsed());
}

}  // namespace qel
