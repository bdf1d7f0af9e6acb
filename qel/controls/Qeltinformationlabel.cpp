// TQELInformationLabel: its fact, and when it is asked for.
#include "qel/controls/Qeltinformationlabel.h"

#include "vcl/rtl/properties.h"

namespace qel {

const vcl::TClass& TQELInformationLabel::Class() {
  using T = TQELInformationLabel;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComputedLabel>(
      "qel::TQELInformationLabel", "qel/controls/Qeltinformationlabel.h",
      {
          Inherit(LabelProperties),
          Property<&T::Information, &T::SetInformation>("Information").Default(iiComputerName),
          Inherit("Prefix"),
          Inherit("Suffix"),
          Property<&T::Interval, &T::SetInterval>("Interval").Default(0),
          ReadOnly<&T::CaptionValue>("CaptionValue"),
          Inherit("Caption"),
      });
  return info;
}

TQELInformationLabel::TQELInformationLabel(vcl::TComponent* owner)
    : TQELComputedLabel(owner),
      FMotion(
          *this, [this](double) { Refresh(); }, TQELMotionKind::Content) {
  HearOnlyAsked<TQELInformationLabel>();
  Refresh();
}

void TQELInformationLabel::SetInformation(TQELInformationItem information) {
  FInformation = information;
  Refresh();
}

void TQELInformationLabel::SetInterval(int milliseconds) {
  if (milliseconds < 0) return;
  FInterval = milliseconds;
  FMotion.SetPeriod(milliseconds);
  FMotion.SetActive(milliseconds > 0);
}

std::string TQELInformationLabel::ComputeText() const {
  return FValue = QELInformation(FInformation);
}

void TQELInformationLabel::Paint() {
  FMotion.Wake();
  TQELComputedLabel::Paint();
}

}  // namespace qel
