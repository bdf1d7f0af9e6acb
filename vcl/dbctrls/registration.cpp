// The list of the data-aware controls that form files may name.
#include "vcl/dbctrls/registration.h"

#include "vcl/db/registration.h"
#include "vcl/dbctrls/dbedit.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/rtl/classregistry.h"

namespace vcl {

void RegisterDataControls() {
  RegisterDataClasses();
  RegisterClasses({&TDBEdit::Class(), &TDBGrid::Class()});
}

}  // namespace vcl
