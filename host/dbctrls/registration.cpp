#include "host/dbctrls/registration.h"

#include "host/db/registration.h"
#include "host/dbctrls/dbedit.h"
#include "host/dbctrls/dbgrid.h"
#include "host/rtl/classregistry.h"

namespace vcl {

void RegisterDataControls() {
  RegisterDataClasses();
  RegisterClasses({&TDBEdit::Class(), &TDBGrid::Class()});
}

}  // namespace vcl
