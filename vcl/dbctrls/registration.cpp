// The list of the data-aware controls that form files may name.
#include "vcl/dbctrls/registration.h"

#include "vcl/db/registration.h"
#include "vcl/dbctrls/dbactions.h"
#include "vcl/dbctrls/dbedit.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/rtl/classregistry.h"

namespace vcl {

void RegisterDataControls() {
  RegisterDataClasses();
  RegisterClasses({&TDBEdit::Class(), &TDBGrid::Class()});
  RegisterClasses({&TDataSetCancel::Class(), &TDataSetDelete::Class(), &TDataSetEdit::Class(),
                   &TDataSetFirst::Class(), &TDataSetInsert::Class(), &TDataSetLast::Class(),
                   &TDataSetNext::Class(), &TDataSetPost::Class(), &TDataSetPrior::Class(),
                   &TDataSetRefresh::Class()});
}

}  // namespace vcl
