#include "host/vcl/standardcontrols.h"

#include "host/rtl/classregistry.h"
#include "host/vcl/buttons.h"
#include "host/vcl/comctrls.h"
#include "host/vcl/dialogs.h"
#include "host/vcl/extctrls.h"
#include "host/vcl/stdctrls.h"

namespace vcl {

void RegisterStandardControls() {
  RegisterClasses(
      {&TBevel::Class(),       &TBitBtn::Class(),     &TButton::Class(),      &TCheckBox::Class(),
       &TColorDialog::Class(), &TComboBox::Class(),   &TEdit::Class(),        &TFontDialog::Class(),
       &TGroupBox::Class(),    &TImage::Class(),      &TLabel::Class(),       &TListBox::Class(),
       &TMemo::Class(),        &TOpenDialog::Class(), &TPageControl::Class(), &TPanel::Class(),
       &TRadioButton::Class(), &TSaveDialog::Class(), &TSpeedButton::Class(), &TStatusBar::Class(),
       &TTabSheet::Class(),    &TTimer::Class(),      &TTrackBar::Class(),    &TTreeView::Class()});
}

}  // namespace vcl
