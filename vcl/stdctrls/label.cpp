// TCustomLabel: painting its text, its size by the text, and the control that its accelerator
// focuses.
#include "vcl/stdctrls/label.h"

#include "vcl/controls/accelerators.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TCustomLabel::Class() {
  static const TClass info = Describe<TCustomLabel, TGraphicControl>(
      "vcl::TCustomLabel", "vcl/stdctrls/stdctrls.h",
      {
          Property<&TCustomLabel::Alignment, &TCustomLabel::SetAlignment>("Alignment")
              .Default(taLeftJustify)
              .Unpublished(),
          Property<&TCustomLabel::AutoSize, &TCustomLabel::SetAutoSize>("AutoSize")
              .Default(true)
              .Unpublished(),
          Property<&TCustomLabel::FocusControl, &TCustomLabel::SetFocusControl>("FocusControl")
              .Unpublished(),
          Property<&TCustomLabel::ShowAccelChar, &TCustomLabel::SetShowAccelChar>("ShowAccelChar")
              .Default(true)
              .Unpublished(),
          Property<&TCustomLabel::Transparent, &TCustomLabel::SetTransparent>("Transparent")
              .Default(false)
              .Unpublished(),
          Property<&TCustomLabel::Layout, &TCustomLabel::SetLayout>("Layout")
              .Default(tlTop)
              .Unpublished(),
          Property<&TCustomLabel::WordWrap, &TCustomLabel::SetWordWrap>("WordWrap")
              .Default(false)
              .Unpublished(),
      });
  return info;
}

const TClass& TLabel::Class() {
  static const TClass info = Describe<TLabel, TCustomLabel>(
      "vcl::TLabel", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("Align"),          Inherit("Alignment"),   Inherit("AutoSize"),
          Inherit("Caption"),        Inherit("Color"),       Inherit("DragCursor"),
          Inherit("DragMode"),       Inherit("Enabled"),     Inherit("FocusControl"),
          Inherit("Font"),           Inherit("ParentColor"), Inherit("ParentFont"),
          Inherit("ParentShowHint"), Inherit("PopupMenu"),   Inherit("ShowAccelChar"),
          Inherit("ShowHint"),       Inherit("Transparent"), Inherit("Layout"),
          Inherit("Visible"),        Inherit("WordWrap"),    Inherit("OnClick"),
          Inherit("OnDblClick"),     Inherit(DragEvents),    Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TCustomLabel::TCustomLabel(TComponent* owner) : TGraphicControl(owner) {
  SetControlStyle(ControlStyle() + TControlStyle{csOpaque, csReplicatable});
  SetBounds(0, 0, 65, 17);
}

TCustomLabel::~TCustomLabel() = default;

void TCustomLabel::LookChanged() {
  Invalidate();
  AdjustBounds();
}

void TCustomLabel::SetAlignment(TAlignment alignment) {
  if (alignment == FAlignment) return;
  FAlignment = alignment;
  Invalidate();
}

void TCustomLabel::SetAutoSize(bool autoSize) {
  if (autoSize == FAutoSize) return;
  FAutoSize = autoSize;
  AdjustBounds();
}

void TCustomLabel::SetFocusControl(TWinControl* control) {
  FFocusControl = control;
  if (control) control->FreeNotification(this);
}

void TCustomLabel::SetLayout(TTextLayout layout) {
  if (layout == FLayout) return;
  FLayout = layout;
  Invalidate();
}

void TCustomLabel::SetShowAccelChar(bool show) {
  if (show == FShowAccelChar) return;
  FShowAccelChar = show;
  LookChanged();
}

void TCustomLabel::SetTransparent(bool transparent) {
  if (transparent == Transparent()) return;
  const TControlStyle opaque{csOpaque};
  SetControlStyle(transparent ? ControlStyle() - opaque : ControlStyle() + opaque);
  Invalidate();
}

void TCustomLabel::SetWordWrap(bool wordWrap) {
  if (wordWrap == FWordWrap) return;
  FWordWrap = wordWrap;
  LookChanged();
}

UINT TCustomLabel::TextFlags() const {
  static constexpr UINT alignments[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
  return DT_EXPANDTABS | alignments[FAlignment] | (FWordWrap ? DT_WORDBREAK : 0u);
}

void TCustomLabel::Paint() {
  TRect rect = ClientRect();
  TCanvas* canvas = Canvas();
  if (!Transparent()) {
    canvas->Brush()->SetColor(Color());
    canvas->FillRect(rect);
  }
  canvas->Brush()->SetStyle(bsClear);
  if (FLayout != tlTop) {
    TRect text = rect;
    DoDrawText(text, TextFlags() | DT_CALCRECT);
    const int spare = Height() - text.Height();
    rect.Offset(0, FLayout == tlBottom ? spare : spare / 2);
  }
  DoDrawText(rect, TextFlags());
}

void TCustomLabel::DoDrawText(TRect& rect, UINT flags) {
  std::string text = Caption();
  // An empty label is as high as a line.
  if ((flags & DT_CALCRECT) && (text.empty() || (FShowAccelChar && text == "&"))) text += ' ';
  if (!FShowAccelChar) flags |= DT_NOPREFIX;
  TCanvas* canvas = Canvas();
  canvas->SetFont(Font());
  if (!Enabled() && !(flags & DT_CALCRECT)) {
    rect.Offset(1, 1);
    canvas->Font()->SetColor(clBtnHighlight);
    DrawTextOn(canvas, text, rect, flags);
    rect.Offset(-1, -1);
    canvas->Font()->SetColor(clBtnShadow);
  }
  DrawTextOn(canvas, text, rect, flags);
}

void TCustomLabel::AdjustBounds() {
  if (!FAutoSize || Loading()) return;
  TRect rect = ClientRect();
  const UINT flags = TextFlags() | DT_CALCRECT;
  if (Canvas()->HandleAllocated()) {
    DoDrawText(rect, flags);
  } else {
    // A label is measured also where it lies in no window.
    TWindowDC screen(nullptr);
    Canvas()->SetHandle(screen.Get());
    DoDrawText(rect, flags);
    Canvas()->SetHandle(nullptr);
  }
  const int left = FAlignment == taRightJustify ? Left() + Width() - rect.Right : Left();
  SetBounds(left, Top(), rect.Right, rect.Bottom);
}

bool TCustomLabel::TakesAccel(WPARAM character) const {
  return FFocusControl && Enabled() && FShowAccelChar && IsAccel(character, Caption()) &&
         FFocusControl->CanFocus();
}

void TCustomLabel::Dispatch(TMessage& message) {
  if (message.Msg == CM_DIALOGCHAR && TakesAccel(message.WParam)) {
    message.Result = 1;
    return FFocusControl->SetFocus();
  }
  TGraphicControl::Dispatch(message);
  if (message.Msg == CM_TEXTCHANGED && FFocusControl) FFocusControl->AccessibleChanged(acName);
  if (message.Msg == CM_TEXTCHANGED || message.Msg == CM_FONTCHANGED) LookChanged();
}

void TCustomLabel::Loaded() {
  TGraphicControl::Loaded();
  AdjustBounds();
}

void TCustomLabel::Notification(TComponent* component, TOperation operation) {
  TGraphicControl::Notification(component, operation);
  if (operation == opRemove && component == FFocusControl) FFocusControl = nullptr;
}

const TControl* TCustomLabel::Labelled() const { return FFocusControl; }

void TCustomLabel::DescribeAccessible(TAccessibleInfo& info) const {
  TGraphicControl::DescribeAccessible(info);
  info.Role = arStaticText;
  info.State.Include(asReadOnly);
  if (FShowAccelChar) return;
  info.Name = Caption();
  info.KeyboardShortcut.clear();
}

}  // namespace vcl
