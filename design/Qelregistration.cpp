#include "design/Qelregistration.h"

#include "controls/Qeltbackground.h"
#include "controls/Qeltbutton.h"
#include "controls/Qeltgauge.h"
#include "controls/Qelthint.h"
#include "controls/Qeltlabel.h"
#include "controls/Qeltspinedit.h"
#include "core/Qelclasses.h"
#include "core/Qelclasses2.h"
#include "core/Qelcontrols.h"
#include "host/designintf/registration.h"
#include "host/rtl/classregistry.h"

using namespace qel;

void Register() {
  vcl::RegisterClasses({&TQELFont3D::Class(), &TQELGradient::Class(), &TQELTexture::Class(),
                        &TQELFrame::Class(), &TQELButtonDetails::Class(), &TQELAbout::Class()});
  vcl::RegisterComponents("QEL Controls/1",
                          {&TQELBackground::Class(), &TQELLabel::Class(), &TQELButton::Class(),
                           &TQELGauge::Class(), &TQELHint::Class()});
  vcl::RegisterComponents("QEL Controls/2", {&TQELSpinEdit::Class()});
  vcl::RegisterComponents("QEL System/2", {&TQELTimer32::Class()});
}

void ListClasses(void (*each)(const vcl::TClass& aClass, void* context), void* context) {
  static const vcl::TClass* const classes[] = {
      &TQELAbout::Class(),
      &TQELComponent::Class(),
      &TQELExecComponent::Class(),
      &TQELCustomDialog::Class(),
      &TQELCustomControl::Class(),
      &TQELGraphicControl::Class(),
      &TQELCustomBackground::Class(),
      &TQELFont3D::Class(),
      &TQELFrame::Class(),
      &TQELGlyph::Class(),
      &TQELGradient::Class(),
      &TQELTexture::Class(),
      &TQELBrushFill::Class(),
      &TQELBackground::Class(),
      &TQELLabel::Class(),
      &TQELButton::Class(),
      &TQELGauge::Class(),
      &TQELHint::Class(),
      &TQELNewHint::Class(),
      &TQELCustomSpinButton::Class(),
      &TQELSpinButton::Class(),
      &TQELCustomSpinEdit::Class(),
      &TQELSpinEdit::Class(),
      &TQELTimer32::Class(),
      &TQELButtonDetails::Class(),
  };
  for (const vcl::TClass* aClass : classes) each(*aClass, context);
}
