#include "host/vcl/standardcontrols.h"

#include "host/rtl/classregistry.h"
#include "host/vcl/buttons.h"
#include "host/vcl/comctrls.h"
#include "host/vcl/extctrls.h"
#include "host/vcl/stdctrls.h"

namespace vcl {

void RegisterStandardControls() {
  RegisterClasses({&TBevel::Class(), &TBitBtn::Class(), &TButton::Class(), &TCheckBox::Class(),
                   &TComboBox::Class(), &TEdit::Class(), &TGroupBox::Class(), &TLabel::Class(),
                   &TListBox::Class(), &TMemo::Class(), &TPageControl::Class(), &TPanel::Class(),
                   &TRadioButton::Class(), &TSpeedButton::Class(), &TTabSheet::Class(),
                   &TTimer::Class(), &TTrackBar::Class()});
}

}  // namespace vcl
