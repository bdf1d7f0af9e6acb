// TQELPanel: its properties, rolling up, and painting it.
#include "qel/controls/Qeltpanel.h"

#include <algorithm>

#include "qel/core/private/Qelownedsettings.h"
#include "qel/core/private/triangles.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/forms/forms.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;
using vcl::TWatch;

namespace {

/// At 96 dots per inch.
constexpr int ArrowSize = 5;
constexpr int HeaderMargin = 4;

}  // namespace

const vcl::TClass& TQELPanel::Class() {
  using T = TQELPanel;
  using namespace vcl;
  // ExpandedHeight is what a panel that is rolled up comes back to, so it is read first.
  static const TClass info = Describe<T, TQELCustomControl>(
      "qel::TQELPanel", "qel/controls/Qeltpanel.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Property<&T::Alignment, &T::SetAlignment>("Alignment").Default(taCenter),
          Inherit("Background"),
          Inherit("Caption"),
          Property<&T::Collapsible, &T::SetCollapsible>("Collapsible").Default(false),
          Property<&T::ExpandedHeight, &T::SetExpandedHeight>("ExpandedHeight"),
          Property<&T::Collapsed, &T::SetCollapsed>("Collapsed").Default(false),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::Font3D, &T::Set3D>("Font3D"),
          Property<&T::Frame, &T::SetFrame>("Frame"),
          Property<&T::HeaderHeight, &T::SetHeaderHeight>("HeaderHeight").Default(20),
          Property<&T::Layout, &T::SetLayout>("Layout").Default(tlCenter),
          Property<&T::Movable, &T::SetMovable>("Movable").Default(false),
          Inherit("Padding"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Property<&T::Sizeable, &T::SetSizeable>("Sizeable").Default(false),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Event<&T::OnCollapse>("OnCollapse"),
          Inherit("OnConstrainedResize"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(MouseEvents),
          Event<&T::OnMove>("OnMove"),
          Inherit("OnResize"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELPanel::TQELPanel(vcl::TComponent* owner)
    : TQELCustomControl(owner),
      FFont3D(std::make_unique<TQELFont3D>(this)),
      FFrame(std::make_unique<TQELFrame>(this)) {
  SetControlStyle({vcl::csAcceptsControls, vcl::csCaptureMouse, vcl::csClickEvents,
                   vcl::csSetCaption, vcl::csDoubleClicks});
  SetBounds(Left(), Top(), 185, 105);
  HearOnlyAsked<TQELPanel>();
}

TQELPanel::~TQELPanel() { AnnounceEnd(); }

void TQELPanel::Set3D(const TQELFont3D* font3D) {
  FFont3D->Assign(font3D);
  Invalidate();
}

void TQELPanel::SetFrame(const TQELFrame* frame) {
  FFrame->Assign(frame);
  Realign();
  Invalidate();
}

void TQELPanel::SetAlignment(vcl::TAlignment alignment) {
  if (Store(FAlignment, alignment)) Invalidate();
}

void TQELPanel::SetLayout(vcl::TTextLayout layout) {
  if (Store(FLayout, layout)) Invalidate();
}

// Rolling up.

int TQELPanel::Border() const {
  return FFrame->FrameStyle() == frameNone ? 0 : FFrame->BorderWidth();
}

int TQELPanel::RolledHeight() const { return ScaledPixels(FHeaderHeight) + 2 * Border(); }

TRect TQELPanel::Header() const {
  TRect header = ClientRect();
  header.Inflate(-Border(), -Border());
  header.Bottom = header.Top + (FCollapsible ? ScaledPixels(FHeaderHeight) : 0);
  return header;
}

void TQELPanel::SetCollapsible(bool collapsible) {
  if (!Store(FCollapsible, collapsible)) return;
  const TWatch watch(this);
  if (!collapsible && !Loading()) SetCollapsed(false);
  if (watch.Gone()) return;
  Realign();
  if (!watch.Gone()) Invalidate();
}

void TQELPanel::SetHeaderHeight(int height) {
  if (height <= 0 || !Store(FHeaderHeight, height)) return;
  const TWatch watch(this);
  if (FCollapsed && !Loading()) SetHeight(RolledHeight());
  if (watch.Gone()) return;
  Realign();
  if (!watch.Gone()) Invalidate();
}

void TQELPanel::SetExpandedHeight(int height) {
  if (height <= 0) return;
  FExpandedHeight = height;
  if (!FCollapsed && !Loading()) SetHeight(height);
}

void TQELPanel::SetCollapsed(bool collapsed) {
  if (collapsed == FCollapsed) return;
  if (Loading()) {
    // The file has the height that it had when it was rolled up.
    FCollapsed = collapsed;
    return;
  }
  const TWatch watch(this);
  if (collapsed) FExpandedHeight = Height();
  FCollapsed = collapsed;
  SetHeight(collapsed ? RolledHeight() : std::max(FExpandedHeight, RolledHeight()));
  if (watch.Gone()) return;
  // What is out of sight takes no keys.
  const vcl::TCustomForm* form = ParentForm();
  const vcl::TWinControl* focused = form ? form->ActiveControl() : nullptr;
  if (collapsed && focused && focused != this && ContainsControl(focused) && CanFocus()) SetFocus();
  if (!watch.Gone()) AccessibleChanged(vcl::acState);
  if (!watch.Gone()) Invalidate();
  if (!watch.Gone()) OnCollapse(this);
}

/// Somebody who comes to a control inside by the keyboard wants to see it.
void TQELPanel::DoEnter() {
  const TWatch watch(this);
  const vcl::TCustomForm* form = ParentForm();
  if (FCollapsed && form && form->ActiveControl() != this) SetCollapsed(false);
  if (!watch.Gone()) TQELCustomControl::DoEnter();
}

void TQELPanel::ChangeScale(int m, int d) {
  const TWatch watch(this);
  TQELCustomControl::ChangeScale(m, d);
  if (!watch.Gone() && FExpandedHeight > 0) FExpandedHeight = ScaleMeasure(FExpandedHeight, m, d);
}

void TQELPanel::AdjustClientRect(TRect& rect) const {
  rect.Inflate(-Border(), -Border());
  rect.Top += Header().Height();
}

// Painting.

void TQELPanel::Paint() {
  TQELCustomControl::Paint();
  TRect inside = ClientRect();
  FFrame->Draw(Canvas()->Handle(), inside);
  if (FCollapsible) return PaintHeader(Header());
  PaintCaption(inside, FLayout);
}

void TQELPanel::PaintHeader(const TRect& header) {
  RECT edge = header;
  ::DrawEdge(Canvas()->Handle(), &edge, BDR_RAISEDINNER, BF_RECT);
  const int size = ScaledPixels(ArrowSize);
  const int middle = (header.Top + header.Bottom) / 2;
  const int left = header.Left + ScaledPixels(HeaderMargin);
  const vcl::TColor color = Enabled() ? vcl::clBtnText : vcl::clGrayText;
  if (FCollapsed) {
    DrawTriangle(Canvas(), {left + size - 1, middle}, TPointing::Right, color, size);
  } else {
    DrawTriangle(Canvas(), {left + size - 1, middle + size / 2}, TPointing::Down, color, size);
  }
  TRect text = header;
  text.Inflate(-2, -1);
  text.Left = left + 2 * size + ScaledPixels(HeaderMargin);
  PaintCaption(text, vcl::tlCenter);
  if (!Focused()) return;
  TRect around = header;
  around.Inflate(-2, -2);
  const bool hidden = (::SendMessageW(Handle(), WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) != 0;
  if (!hidden) Canvas()->DrawFocusRect(around);
}

void TQELPanel::PaintCaption(const TRect& area, vcl::TTextLayout layout) {
  static constexpr unsigned across[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
  static constexpr unsigned down[] = {DT_TOP, DT_VCENTER, DT_BOTTOM};
  const std::string caption = Caption();
  if (caption.empty()) return;
  const unsigned flags = DT_SINGLELINE | DT_END_ELLIPSIS | across[FAlignment] | down[layout];
  Canvas()->Brush()->SetStyle(vcl::bsClear);
  if (Enabled()) {
    FFont3D->Write(Font(), Canvas()->Handle(), area, caption, flags, true);
  } else {
    QELDrawDisabledText(Font(), Canvas(), area, flags, caption);
  }
}

// Screen readers.

void TQELPanel::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomControl::DescribeAccessible(info);
  info.Role = vcl::arGrouping;
  if (!FCollapsible) return;
  info.State.Include(FCollapsed ? vcl::asCollapsed : vcl::asExpanded);
  info.DefaultAction = FCollapsed ? "Expand" : "Collapse";
}

void TQELPanel::DoAccessibleAction() {
  FCollapsible ? SetCollapsed(!FCollapsed) : TQELCustomControl::DoAccessibleAction();
}

}  // namespace qel
