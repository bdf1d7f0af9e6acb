// TQELFillBackground: its link to a background, and its place behind the others.
#include "qel/controls/Qeltfillbackground.h"

#include "qel/controls/private/buttonproperties.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELCustomFillBackground::Class() {
  using T = TQELCustomFillBackground;
  using namespace vcl;
  static const TClass info = Describe<T, TQELGraphicControl>(
      "qel::TQELCustomFillBackground", "qel/controls/Qeltfillbackground.h",
      {Property<&T::Background, &T::SetBack>("Background")});
  return info;
}

TQELCustomFillBackground::TQELCustomFillBackground(vcl::TComponent* owner)
    : TQELGraphicControl(owner) {}

TQELCustomFillBackground::~TQELCustomFillBackground() {
  AnnounceEnd();
  QELMoveClient(this, FBackground, nullptr);
}

void TQELCustomFillBackground::SetBack(TQELBackground* background) {
  QELMoveClient(this, FBackground, background);
  FBackground = background;
  Invalidate();
}

void TQELCustomFillBackground::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELGraphicControl::Notification(component, operation);
  if (operation == vcl::opRemove && component == FBackground) SetBack(nullptr);
}

bool TQELCustomFillBackground::PaintBackground() {
  if (FBackground) FBackground->Draw(Canvas()->Handle(), Width(), Height(), true);
  return FBackground != nullptr;
}

const vcl::TClass& TQELFillBackground::Class() {
  using namespace vcl;
  static const TClass info = Describe<TQELFillBackground, TQELCustomFillBackground>(
      "qel::TQELFillBackground", "qel/controls/Qeltfillbackground.h",
      {
          Inherit("Align").Default(alClient),
          Inherit("Enabled"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("Visible"),
      });
  return info;
}

TQELFillBackground::TQELFillBackground(vcl::TComponent* owner) : TQELCustomFillBackground(owner) {
  SetBounds(Left(), Top(), 100, 100);
  SetAlign(vcl::alClient);
  HearOnlyAsked<TQELFillBackground>();
}

TQELFillBackground::~TQELFillBackground() { AnnounceEnd(); }

// Behind the others.

void TQELFillBackground::SetZOrder(bool /*topmost*/) { TQELCustomFillBackground::SetZOrder(false); }

void TQELFillBackground::SetParent(vcl::TWinControl* parent) {
  const vcl::TWatch watch(this);
  TQELCustomFillBackground::SetParent(parent);
  if (!watch.Gone() && parent) SendToBack();
}

/// What a form file shows in front of this control has come behind it meanwhile.
void TQELFillBackground::Loaded() {
  const vcl::TWatch watch(this);
  TQELCustomFillBackground::Loaded();
  if (!watch.Gone()) SendToBack();
}

void TQELFillBackground::Dispatch(vcl::TMessage& message) {
  // In the designer it is taken hold of like any other control.
  if (message.Msg == vcl::CM_HITTEST && !Designing()) {
    message.Result = 0;
    return;
  }
  TQELCustomFillBackground::Dispatch(message);
}

/// Others like it may lie behind it.
bool TQELFillBackground::IsBehind() const {
  for (int i = 0; Parent() && i < Parent()->ControlCount(); ++i) {
    if (Parent()->Controls(i) == this) return true;
    if (!dynamic_cast<const TQELFillBackground*>(Parent()->Controls(i))) return false;
  }
  return true;
}

void TQELFillBackground::Paint() {
  // A sibling that was sent to the back is painted by now: it is so again, in front of this.
  if (!IsBehind()) return SendToBack();
  if (PaintBackground() || !Designing()) return;
  Canvas()->Pen()->SetStyle(vcl::psDot);
  Canvas()->Pen()->SetColor(vcl::clBtnShadow);
  Canvas()->Brush()->SetStyle(vcl::bsClear);
  Canvas()->Rectangle(ClientRect());
}

void TQELFillBackground::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomFillBackground::DescribeAccessible(info);
  info.Role = vcl::arGraphic;
}

}  // namespace qel
