// TQELStickyLabel: its table, and what it does with its control.
#include "qel/controls/Qeltstickylabel.h"

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELStickyLabel::Class() {
  using T = TQELStickyLabel;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomLabel>(
      "qel::TQELStickyLabel", "qel/controls/Qeltstickylabel.h",
      {
          Inherit(LabelProperties),
          Inherit("Caption"),
          Inherit("ShowAccelChar"),
          Property<&T::Control, &T::SetControl>("Control"),
          Property<&T::Position, &T::SetPosition>("Position").Default(pLeft),
          Property<&T::Distance, &T::SetDistance>("Distance").Default(4),
          Property<&T::SideAlignment, &T::SetSideAlignment>("SideAlignment").Default(ssCenter),
          Property<&T::FollowEnabled, &T::SetFollowEnabled>("FollowEnabled").Default(false),
          Property<&T::FollowVisible, &T::SetFollowVisible>("FollowVisible").Default(true),
      });
  return info;
}

TQELStickyLabel::TQELStickyLabel(vcl::TComponent* owner) : TQELCustomLabel(owner), FSticky(*this) {
  HearOnlyAsked<TQELStickyLabel>();
}

void TQELStickyLabel::SetControl(vcl::TControl* control) {
  if (control == this) return;
  if (control) control->FreeNotification(this);
  SetFocusControl(dynamic_cast<vcl::TWinControl*>(control));
  FSticky.SetControl(control);
}

void TQELStickyLabel::SetBounds(int left, int top, int width, int height) {
  if (!FSticky.Holds() || Loading()) return TQELCustomLabel::SetBounds(left, top, width, height);
  const vcl::TPoint place = FSticky.PlaceFor(width, height);
  TQELCustomLabel::SetBounds(place.X, place.Y, width, height);
}

void TQELStickyLabel::Click() {
  const vcl::TWatch watch(this);
  vcl::TWinControl* const control = FocusControl();
  if (control && !Designing() && control->CanFocus()) control->SetFocus();
  if (!watch.Gone()) TQELCustomLabel::Click();
}

void TQELStickyLabel::ChangeScale(int m, int d) {
  TQELCustomLabel::ChangeScale(m, d);
  SetDistance(ScaleMeasure(Distance(), m, d));
}

void TQELStickyLabel::Loaded() {
  TQELCustomLabel::Loaded();
  FSticky.Update();
}

void TQELStickyLabel::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELCustomLabel::Notification(component, operation);
  if (operation == vcl::opRemove && component == Control()) FSticky.SetControl(nullptr);
}

}  // namespace qel
