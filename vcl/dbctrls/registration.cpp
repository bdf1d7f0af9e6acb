// The list of the data-aware controls that form files may name.
#include "vcl/dbctrls/registration.h"

#include "vcl/db/registration.h"
#include "vcl/dbctrls/dbctrls.h"
#include "vcl/rtl/classregistry.h"

namespace vcl {

void RegisterDataControls() {
  RegisterDataClasses();
  RegisterClasses({&TDBCheckBox::Class(), &TDBComboBox::Class(), &TDBEdit::Class(),
                   &TDBGrid::Class(), &TDBImage::Class(), &TDBListBox::Class(),
                   &TDBLookupComboBox::Class(), &TDBLookupListBox::Class(), &TDBMemo::Class(),
                   &TDBNavigator::Class(), &TDBRadioGroup::Class(), &TDBText::Class()});
  RegisterClasses({&TDataSetCancel::Class(), &TDataSetDelete::Class(), &TDataSetEdit::Class(),
                   &TDataSetFirst::Class(), &TDataSetInsert::Class(), &TDataSetLast::Class(),
                   &TDataSetNext::Class(), &TDataSetPost::Class(), &TDataSetPrior::Class(),
                   &TDataSetRefresh::Class()});
}

}  // namespace vcl
