// TQELInformationLabel: a label with one fact of the system.
#pragma once

#include <cstdint>

#include "qel/controls/Qeltlabel.h"
#include "qel/core/Qelclock.h"
#include "qel/core/Qelsystemfacts.h"

namespace qel {

/// A label that shows one fact of the system or the machine, again and again if it is told to.
class QEL_API TQELInformationLabel : public TQELComputedLabel {
 public:
  explicit TQELInformationLabel(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELInformationItem Information() const { return FInformation; }
  /// The fact that is shown.
  void SetInformation(TQELInformationItem information);
  int Interval() const { return FInterval; }
  /// How often the fact is asked for while the label is seen, in milliseconds; 0 asks once. Takes
  /// only values from 0.
  void SetInterval(int milliseconds);
  /// The bare fact, as it is shown.
  std::string CaptionValue() const { return FValue; }

 protected:
  std::string ComputeText() const override;
  void Paint() override;

 private:
  TQELInformationItem FInformation = iiComputerName;
  int FInterval = 0;
  mutable std::string FValue;
  TQELMotion FMotion;
};

}  // namespace qel
