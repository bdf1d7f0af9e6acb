// TStaticText: the system's static text, and its size by the text.
#include "vcl/stdctrls/statictext.h"

#include "vcl/controls/accelerators.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

const TClass& TStaticText::Class() {
  using T = TStaticText;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TStaticText", "vcl/stdctrls/stdctrls.h",
      {
          Inherit("Align"),
          Property<&T::Alignment, &T::SetAlignment>("Alignment").Default(taLeftJustify),
          Property<&T::AutoSize, &T::SetAutoSize>("AutoSize").Default(true),
          Property<&T::BorderStyle, &T::SetBorderStyle>("BorderStyle").Default(sbsNone),
          Inherit("Caption"),
          Inherit("Color"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Property<&T::FocusControl, &T::SetFocusControl>("FocusControl"),
          Inherit("Font"),
          Inherit("ParentColor"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::ShowAccelChar, &T::SetShowAccelChar>("ShowAccelChar").Default(true),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(MouseEvents),
          Inherit("OnStartDrag"),
      });
  return info;
}

TStaticText::TStaticText(TComponent* owner) : TWinControl(owner) {
  SetControlStyle({csCaptureMouse, csClickEvents, csSetCaption, csReplicatable, csDoubleClicks});
  SetBounds(0, 0, 65, 17);
}

/// What a window only takes when it is made, and what changes the room that the text needs.
template <class T>
void TStaticText::ChangeStyle(T& field, T value) {
  if (value == field) return;
  field = value;
  RecreateWnd();
  AdjustBounds();
}

void TStaticText::SetAlignment(TAlignment alignment) { ChangeStyle(FAlignment, alignment); }
void TStaticText::SetBorderStyle(TStaticBorderStyle style) { ChangeStyle(FBorderStyle, style); }
void TStaticText::SetShowAccelChar(bool show) { ChangeStyle(FShowAccelChar, show); }

void TStaticText::SetAutoSize(bool autoSize) {
  if (autoSize == FAutoSize) return;
  FAutoSize = autoSize;
  AdjustBounds();
}

void TStaticText::SetFocusControl(TWinControl* control) {
  FFocusControl = control;
  if (control) control->FreeNotification(this);
}

void TStaticText::AdjustBounds() {
  if (!FAutoSize || Loading()) return;
  static constexpr int borders[] = {0, 2, 4};
  const std::string text = FShowAccelChar ? WithoutAccel(Caption()) : Caption();
  const int border = borders[FBorderStyle];
  const int width = TextWidth(*Font(), text) + border;
  const int left = FAlignment == taRightJustify ? Left() + Width() - width : Left();
  SetBounds(left, Top(), width, FontHeight(*Font()) + border);
}

void TStaticText::CreateParams(TCreateParams& params) {
  static constexpr DWORD sides[] = {SS_LEFT, SS_RIGHT, SS_CENTER};
  static constexpr DWORD borders[] = {0, WS_BORDER, SS_SUNKEN};
  TWinControl::CreateParams(params);
  params.SubClassOf = "STATIC";
  params.Style |= SS_NOTIFY | sides[FAlignment] | borders[FBorderStyle];
  if (!FShowAccelChar) params.Style |= SS_NOPREFIX;
  params.ClassStyle &= ~static_cast<UINT>(CS_VREDRAW);
}

void TStaticText::Dispatch(TMessage& message) {
  const bool accel = message.Msg == CM_DIALOGCHAR && FFocusControl && Enabled() && FShowAccelChar &&
                     IsAccel(message.WParam, Caption()) && FFocusControl->CanFocus();
  if (accel) {
    message.Result = 1;
    return FFocusControl->SetFocus();
  }
  const TWatch watch(this);
  TWinControl::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == CM_TEXTCHANGED && FFocusControl) FFocusControl->AccessibleChanged(acName);
  if (message.Msg == CM_TEXTCHANGED || message.Msg == CM_FONTCHANGED) {
    Invalidate();
    AdjustBounds();
  }
}

void TStaticText::Loaded() {
  TWinControl::Loaded();
  AdjustBounds();
}

void TStaticText::Notification(TComponent* component, TOperation operation) {
  TWinControl::Notification(component, operation);
  if (operation == opRemove && component == FFocusControl) FFocusControl = nullptr;
}

void TStaticText::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arStaticText;
  info.State.Include(asReadOnly);
  if (FShowAccelChar) return;
  info.Name = Caption();
  info.KeyboardShortcut.clear();
}

}  // namespace vcl
