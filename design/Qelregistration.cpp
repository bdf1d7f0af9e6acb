#include "design/Qelregistration.h"

#include "controls/Qeltbackground.h"
#include "controls/Qeltbutton.h"
#include "controls/Qeltgauge.h"
#include "controls/Qeltlabel.h"
#include "core/Qelclasses.h"
#include "core/Qelcontrols.h"
#include "host/designintf/registration.h"
#include "host/rtl/classregistry.h"

using namespace qel;

void Register() {
  vcl::RegisterClasses({&TQELFont3D::Class(), &TQELGradient::Class(), &TQELTexture::Class(),
                        &TQELFrame::Class(), &TQELAbout::Class()});
  vcl::RegisterComponents("QEL Controls/1", {&TQELBackground::Class(), &TQELLabel::Class(),
                                             &TQELButton::Class(), &TQELGauge::Class()});
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
  };
  for (const vcl::TClass* aClass : classes) each(*aClass, context);
}
