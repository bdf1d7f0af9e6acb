// TQELFieldLabel: what the labels that show a field have in common.
#pragma once

#include <string>

#include "qel/controls/Qeltlabel.h"
#include "qel/dbcontrols/Qelfieldtext.h"
#include "vcl/dbctrls/fieldcontrol.h"

namespace qel {

/// A label that shows a field of the current record. Its caption is what the field says: it cannot
/// be written, and form files never hold it. While it is designed, it shows its own name where
/// there is no field.
template <class TLabel>
class TQELFieldLabel : public vcl::TFieldControl<TLabel> {
 public:
  void SetName(const std::string& name) override {
    vcl::TFieldControl<TLabel>::SetName(name);
    this->ShowNow();
  }
  /// Ignored, as is all that sets the text from outside.
  void SetTextBuf(const char* /*text*/) override {}

 protected:
  explicit TQELFieldLabel(vcl::TComponent* owner) : vcl::TFieldControl<TLabel>(owner) {
    this->SetControlStyle(this->ControlStyle() - vcl::TControlStyle{vcl::csSetCaption});
    // An ampersand in a field is one.
    this->SetShowAccelChar(false);
  }
  void ShowField() override {
    const bool named = !this->Field() && this->Designing();
    const std::string text = named ? this->Name() : QELFieldText(this->Field());
    if (text != this->Caption()) TLabel::SetTextBuf(text.c_str());
  }
  /// "&" marks an accelerator only where ShowAccelChar says so.
  unsigned WriteFlags() const override {
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): TQELLabel's own marks one whatever it says.
    return TQELCustomLabel::WriteFlags();
  }
};

}  // namespace qel
