// The labels' settings and backgrounds, their text, and painting it.
#include "qel/controls/Qeltlabel.h"

#include "qel/core/private/Qelownedsettings.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;

const vcl::TClass& TQELCustomLabel::Class() {
  using T = TQELCustomLabel;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomLabel>(
      "qel::TQELCustomLabel", "qel/controls/Qeltlabel.h",
      {
          ReadOnly<&T::About>("About").Unpublished(),
          Property<&T::FontBackground, &T::SetBack>("FontBackground").Unpublished(),
          Property<&T::Font3D, &T::Set3D>("Font3D").Unpublished(),
          Property<&T::Frame, &T::SetFrm>("Frame").Unpublished(),
          Property<&T::Background, &T::SetBack2>("Background").Unpublished(),
      });
  return info;
}

const vcl::TClass& TQELComputedLabel::Class() {
  using T = TQELComputedLabel;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomLabel>(
      "qel::TQELComputedLabel", "qel/controls/Qeltlabel.h",
      {
          ReadOnly<&T::Caption>("Caption").Type("TCaption").Unpublished(),
          Property<&T::Prefix, &T::SetPrefix>("Prefix").Default("").Unpublished(),
          Property<&T::Suffix, &T::SetSuffix>("Suffix").Default("").Unpublished(),
      });
  return info;
}

const vcl::TClass& TQELLabel::Class() {
  using T = TQELLabel;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomLabel>(
      "qel::TQELLabel", "qel/controls/Qeltlabel.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Inherit("Alignment"),
          Inherit("Caption"),
          Inherit("Color"),
          Inherit("Enabled"),
          Inherit("FocusControl"),
          Inherit("FontBackground"),
          Inherit("Font"),
          Inherit("Font3D"),
          Inherit("Frame"),
          Inherit("Background"),
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

TQELCustomLabel::TQELCustomLabel(vcl::TComponent* owner)
    : TCustomLabel(owner),
      FAbout(std::make_unique<TQELAbout>(this)),
      FFont3D(std::make_unique<TQELFont3D>(this)),
      FFrame(std::make_unique<TQELFrame>(this)) {
  FFrame->SetFrameStyle(frameNone);
  FFrame->SetInitialStyle(frameNone);
}

TQELCustomLabel::~TQELCustomLabel() {
  AnnounceEnd();
  QELMoveClient(this, FFontBackground, nullptr);
  QELMoveClient(this, FBackground, nullptr);
}

void TQELCustomLabel::Set3D(TQELFont3D* font3D) {
  TakeOver(FFont3D, font3D, this);
  AdjustBounds();
}

void TQELCustomLabel::SetFrm(TQELFrame* frame) {
  TakeOver(FFrame, frame, this);
  FFrame->SetInitialStyle(frameNone);
  AdjustBounds();
}

void TQELCustomLabel::ReplaceClient(TQELBackground*& field, TQELBackground* background) {
  QELMoveClient(this, field, background);
  field = background;
  Invalidate();
}

void TQELCustomLabel::SetBack(TQELBackground* background) {
  ReplaceClient(FFontBackground, background);
}
void TQELCustomLabel::SetBack2(TQELBackground* background) {
  ReplaceClient(FBackground, background);
}

void TQELCustomLabel::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TCustomLabel::Notification(component, operation);
  if (operation != vcl::opRemove) return;
  if (component == FBackground) SetBack2(nullptr);
  if (component == FFontBackground) SetBack(nullptr);
}

void TQELCustomLabel::Paint() {
  if (!Transparent()) PaintGround();
  Canvas()->Brush()->SetStyle(vcl::bsClear);
  PaintText();
  // The frame comes last, over the text.
  TRect frame = ClientRect();
  FFrame->Draw(Canvas()->Handle(), frame);
}

void TQELCustomLabel::PaintGround() {
  Canvas()->Brush()->SetColor(Color());
  Canvas()->Brush()->SetStyle(vcl::bsSolid);
  Canvas()->FillRect(ClientRect());
  if (FBackground) FBackground->Draw(Canvas()->Handle(), Width(), Height(), true);
}

unsigned TQELCustomLabel::WriteFlags() const {
  static constexpr unsigned alignments[] = {DT_LEFT, DT_RIGHT, DT_CENTER};
  return DT_EXPANDTABS | (WordWrap() ? DT_WORDBREAK : 0u) | (ShowAccelChar() ? 0u : DT_NOPREFIX) |
         alignments[Alignment()];
}

/// Only measures: painting is PaintText's. What is measured leaves room for the frame, and for what
/// the third dimension adds.
void TQELCustomLabel::DoDrawText(TRect& rect, UINT flags) {
  const int wider = FFrame->BorderWidth() +
                    (FFont3D->ThreeDimensional() ? ScaledPixels(FFont3D->GetDrawingwidth()) : 0);
  const int higher = wider - FFrame->BorderWidth() + 2 * FFrame->RingCount();
  rect.Right -= wider + TextIndent();
  TCustomLabel::DoDrawText(rect, flags);
  rect.Right += wider + TextIndent();
  rect.Bottom += higher;
}

void TQELCustomLabel::PaintText() {
  const unsigned flags = WriteFlags();
  // The frame takes from the text at the top, the right and the bottom; at the left the text stays
  // where it is without a frame.
  TRect area = ClientRect();
  area.Top += FFrame->RingCount();
  area.Bottom -= FFrame->RingCount();
  area.Right -= FFrame->BorderWidth();
  area.Left += TextIndent();
  if (FFontBackground) {
    FFontBackground->Write(FFont3D.get(), ShownFont(), Canvas(), area, Caption(), flags);
  } else {
    FFont3D->Write(ShownFont(), Canvas()->Handle(), area, Caption(), flags, Enabled());
  }
}

// Computed texts.

TQELComputedLabel::TQELComputedLabel(vcl::TComponent* owner) : TQELCustomLabel(owner) {
  SetControlStyle(ControlStyle() - vcl::TControlStyle{vcl::csSetCaption});
  SetShowAccelChar(false);
}

void TQELComputedLabel::SetTextBuf(const char* /*text*/) {}

void TQELComputedLabel::SetPrefix(const std::string& prefix) {
  FPrefix = prefix;
  Refresh();
}

void TQELComputedLabel::SetSuffix(const std::string& suffix) {
  FSuffix = suffix;
  Refresh();
}

void TQELComputedLabel::Refresh() {
  if (Loading()) return;
  const std::string text = ComputeText();
  const std::string caption = text.empty() ? text : vcl::Concat(FPrefix, text, FSuffix);
  if (caption != Caption()) TQELCustomLabel::SetTextBuf(caption.c_str());
}

void TQELComputedLabel::Loaded() {
  TQELCustomLabel::Loaded();
  Refresh();
}

// TQELLabel.

TQELLabel::TQELLabel(vcl::TComponent* owner) : TQELCustomLabel(owner) {
  SetAutoSize(false);
  SetControlStyle(ControlStyle() + vcl::TControlStyle{vcl::csReplicatable});
  Font()->SetStyle({vcl::fsBold});
  Font()->SetSize(12);
  HearOnlyAsked<TQELLabel>();
}

unsigned TQELLabel::WriteFlags() const {
  return TQELCustomLabel::WriteFlags() & ~static_cast<unsigned>(DT_NOPREFIX);
}

}  // namespace qel
