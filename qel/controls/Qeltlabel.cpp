// TQELLabel: its settings and backgrounds, and painting it.
#include "qel/controls/Qeltlabel.h"

#include "qel/core/private/Qelownedsettings.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;

const vcl::TClass& TQELLabel::Class() {
  using T = TQELLabel;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomLabel>(
      "qel::TQELLabel", "qel/controls/Qeltlabel.h",
      {
          ReadOnly<&T::About>("About"),
          Inherit("Align"),
          Inherit("Alignment"),
          Inherit("Caption"),
          Inherit("Color"),
          Inherit("Enabled"),
          Inherit("FocusControl"),
          Property<&T::FontBackground, &T::SetBack>("FontBackground"),
          Inherit("Font"),
          Property<&T::Font3D, &T::Set3D>("Font3D"),
          Property<&T::Frame, &T::SetFrm>("Frame"),
          Property<&T::Background, &T::SetBack2>("Background"),
          Inherit("Transparent"),
          Inherit("ShowHint"),
          Inherit("Visible"),
          Inherit("WordWrap"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(MouseEvents),
          Inherit("OnDragDrop"),
          Inherit("OnEndDrag"),
          Inherit("OnStartDrag"),
          Inherit("OnDragOver"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("ParentColor"),
          // The constructor gives the label a font of its own, so a form file always says false.
          Inherit("ParentFont"),
          Inherit("ShowAccelChar"),
      });
  return info;
}

TQELLabel::TQELLabel(vcl::TComponent* owner)
    : TCustomLabel(owner),
      FAbout(std::make_unique<TQELAbout>(this)),
      FFont3D(std::make_unique<TQELFont3D>(this)),
      FFrame(std::make_unique<TQELFrame>(this)) {
  SetAutoSize(false);
  SetControlStyle(ControlStyle() + vcl::TControlStyle{vcl::csReplicatable});
  Font()->SetStyle({vcl::fsBold});
  Font()->SetSize(12);
  FFrame->SetFrameStyle(frameNone);
  FFrame->SetInitialStyle(frameNone);
  HearOnlyAsked<TQELLabel>();
}

TQELLabel::~TQELLabel() {
  AnnounceEnd();
  QELMoveClient(this, FFontBackground, nullptr);
  QELMoveClient(this, FBackground, nullptr);
}

void TQELLabel::Set3D(TQELFont3D* font3D) { TakeOver(FFont3D, font3D, this); }
void TQELLabel::SetFrm(TQELFrame* frame) {
  TakeOver(FFrame, frame, this);
  FFrame->SetInitialStyle(frameNone);
}

void TQELLabel::ReplaceClient(TQELBackground*& field, TQELBackground* background) {
  QELMoveClient(this, field, background);
  field = background;
  Invalidate();
}

void TQELLabel::SetBack(TQELBackground* background) { ReplaceClient(FFontBackground, background); }
void TQELLabel::SetBack2(TQELBackground* background) { ReplaceClient(FBackground, background); }

void TQELLabel::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TCustomLabel::Notification(component, operation);
  if (operation != vcl::opRemove) return;
  if (component == FBackground) SetBack2(nullptr);
  if (component == FFontBackground) SetBack(nullptr);
}

void TQELLabel::Paint() {
  if (!Transparent()) PaintGround();
  Canvas()->Brush()->SetStyle(vcl::bsClear);
  PaintText();
  // The frame comes last, over the text.
  TRect frame = ClientRect();
  FFrame->Draw(Canvas()->Handle(), frame);
}

void TQELLabel::PaintGround() {
  Canvas()->Brush()->SetColor(Color());
  Canvas()->Brush()->SetStyle(vcl::bsSolid);
  Canvas()->FillRect(ClientRect());
  if (FBackground) FBackground->Draw(Canvas()->Handle(), Width(), Height(), true);
}

void TQELLabel::PaintText() {
  static constexpr unsigned alignments[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
  // "&" marks an accelerator here whatever ShowAccelChar says: DT_NOPREFIX is never added.
  const unsigned flags = DT_EXPANDTABS | (WordWrap() ? DT_WORDBREAK : 0u) | alignments[Alignment()];
  // The frame takes from the text at the top, the right and the bottom; at the left the text stays
  // where it is without a frame.
  TRect area = ClientRect();
  area.Top += FFrame->RingCount();
  area.Bottom -= FFrame->RingCount();
  area.Right -= FFrame->BorderWidth();
  if (FFontBackground) {
    FFontBackground->Write(FFont3D.get(), Font(), Canvas(), area, Caption(), flags);
  } else {
    FFont3D->Write(Font(), Canvas()->Handle(), area, Caption(), flags, Enabled());
  }
}

}  // namespace qel
