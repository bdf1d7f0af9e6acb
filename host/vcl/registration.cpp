#include "host/vcl/registration.h"

#include "host/rtl/classregistry.h"
#include "host/vcl/imagelist.h"
#include "host/vcl/menus.h"
#include "host/vcl/standardcontrols.h"

namespace vcl {

void RegisterHostClasses() {
  static const bool done = [] {
    RegisterStandardControls();
    RegisterMenuClasses();
    RegisterClass(TImageList::Class());
    return true;
  }();
  static_cast<void>(done);
}

}  // namespace vcl
