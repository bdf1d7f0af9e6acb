// TCustomLabeledEdit: its label beside it.
#include "vcl/stdctrls/labelededit.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/properties.h"

namespace vcl {

const TClass& TBoundLabel::Class() {
  static const TClass info =
      Describe<TBoundLabel, TCustomLabel>("vcl::TBoundLabel", "vcl/stdctrls/extctrls.h",
                                          {
                                              // The edit decides them.
                                              Inherit("Left").Stored(false),
                                              Inherit("Top").Stored(false),
                                              Inherit("Width").Stored(false),
                                              Inherit("Height").Stored(false),
                                              Inherit("Caption"),
                                              Inherit("Color"),
                                              Inherit("Font"),
                                              Inherit("ParentColor"),
                                              Inherit("ParentFont"),
                                              Inherit("ParentShowHint"),
                                              Inherit("PopupMenu"),
                                              Inherit("ShowAccelChar"),
                                              Inherit("ShowHint"),
                                              Inherit("Transparent"),
                                              Inherit("WordWrap"),
                                              Inherit("OnClick"),
                                              Inherit("OnDblClick"),
                                              Inherit(DragEvents),
                                              Inherit(MouseEvents),
                                              Inherit("OnStartDrag"),
                                          });
  return info;
}

TBoundLabel::TBoundLabel(TCustomLabeledEdit* edit) : TCustomLabel(edit) {
  SetFocusControl(edit);
  HearOnlyAsked<TBoundLabel>();
}

void TBoundLabel::Resize() {
  TCustomLabel::Resize();
  if (auto* edit = dynamic_cast<TCustomLabeledEdit*>(Owner())) edit->PlaceLabel();
}

const TClass& TCustomLabeledEdit::Class() {
  using T = TCustomLabeledEdit;
  static const TClass info = Describe<T, TCustomEdit>(
      "vcl::TCustomLabeledEdit", "vcl/stdctrls/extctrls.h",
      {
          vcl::ReadOnly<&T::EditLabel>("EditLabel").Unpublished(),
          Property<&T::LabelPosition, &T::SetLabelPosition>("LabelPosition")
              .Default(lpAbove)
              .Unpublished(),
          Property<&T::LabelSpacing, &T::SetLabelSpacing>("LabelSpacing").Default(3).Unpublished(),
      });
  return info;
}

const TClass& TLabeledEdit::Class() {
  static const TClass info = Describe<TLabeledEdit, TCustomLabeledEdit>(
      "vcl::TLabeledEdit", "vcl/stdctrls/extctrls.h",
      {
          Inherit("AutoSelect"),   Inherit("AutoSize"),    Inherit("BorderStyle"),
          Inherit("CharCase"),     Inherit("Color"),       Inherit("Ctl3D"),
          Inherit("DragCursor"),   Inherit("DragMode"),    Inherit("EditLabel"),
          Inherit("Enabled"),      Inherit("Font"),        Inherit("HideSelection"),
          Inherit("ImeMode"),      Inherit("ImeName"),     Inherit("LabelPosition"),
          Inherit("LabelSpacing"), Inherit("MaxLength"),   Inherit("ParentColor"),
          Inherit("ParentCtl3D"),  Inherit("ParentFont"),  Inherit("ParentShowHint"),
          Inherit("PasswordChar"), Inherit("PopupMenu"),   Inherit("ReadOnly"),
          Inherit("ShowHint"),     Inherit("TabOrder"),    Inherit("TabStop"),
          Inherit("Text"),         Inherit("Visible"),     Inherit("OnChange"),
          Inherit("OnClick"),      Inherit("OnDblClick"),  Inherit(DragEvents),
          Inherit(FocusEvents),    Inherit(KeyEvents),     Inherit(MouseEvents),
          Inherit(WheelEvents),    Inherit("OnStartDrag"),
      });
  return info;
}

TCustomLabeledEdit::TCustomLabeledEdit(TComponent* owner) : TCustomEdit(owner) {
  FLabel = new TBoundLabel(this);
  PlaceLabel();
}

void TCustomLabeledEdit::PlaceLabel() {
  if (!FLabel || FLabel->Parent() != Parent()) return;
  const int width = FLabel->Width();
  const int height = FLabel->Height();
  // Beside the edit, the label is at the height of its text.
  const int middle = Top() + (Height() - height) / 2;
  switch (FPosition) {
    case lpAbove: return FLabel->SetBounds(Left(), Top() - FSpacing - height, width, height);
    case lpBelow: return FLabel->SetBounds(Left(), Top() + Height() + FSpacing, width, height);
    case lpLeft: return FLabel->SetBounds(Left() - FSpacing - width, middle, width, height);
    case lpRight: return FLabel->SetBounds(Left() + Width() + FSpacing, middle, width, height);
  }
}

void TCustomLabeledEdit::SetLabelPosition(TLabelPosition position) {
  FPosition = position;
  PlaceLabel();
}

void TCustomLabeledEdit::SetLabelSpacing(int spacing) {
  FSpacing = spacing;
  PlaceLabel();
}

void TCustomLabeledEdit::SetParent(TWinControl* parent) {
  const TWatch watch(this);
  TCustomEdit::SetParent(parent);
  if (watch.Gone() || !FLabel) return;
  FLabel->SetParent(parent);
  PlaceLabel();
}

void TCustomLabeledEdit::SetBounds(int left, int top, int width, int height) {
  const TWatch watch(this);
  TCustomEdit::SetBounds(left, top, width, height);
  if (!watch.Gone()) PlaceLabel();
}

void TCustomLabeledEdit::SetVisible(bool visible) {
  const TWatch watch(this);
  TCustomEdit::SetVisible(visible);
  if (!watch.Gone() && FLabel) FLabel->SetVisible(visible);
}

void TCustomLabeledEdit::SetName(const std::string& name) {
  const bool follows = Designing() && FLabel && FLabel->Caption() == Name();
  TCustomEdit::SetName(name);
  if (follows) FLabel->SetCaption(name);
}

void TCustomLabeledEdit::ChangeScale(int m, int d) {
  TCustomEdit::ChangeScale(m, d);
  SetLabelSpacing(ScaleMeasure(FSpacing, m, d));
}

void TCustomLabeledEdit::Dispatch(TMessage& message) {
  const TWatch watch(this);
  TCustomEdit::Dispatch(message);
  if (watch.Gone() || message.Msg != CM_ENABLEDCHANGED || !FLabel) return;
  FLabel->SetEnabled(Enabled());
}

void TCustomLabeledEdit::Notification(TComponent* component, TOperation operation) {
  TCustomEdit::Notification(component, operation);
  if (component == FLabel && operation == opRemove) FLabel = nullptr;
}

}  // namespace vcl
