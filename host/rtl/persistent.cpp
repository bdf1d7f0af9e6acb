#include "host/rtl/persistent.h"

#include "host/rtl/exceptions.h"
#include "host/rtl/filer.h"
#include "host/rtl/properties.h"
#include "host/rtl/text.h"

namespace vcl {

TFiler::~TFiler() = default;

const TClass& TPersistent::Class() {
  static const TClass info = Describe<TPersistent, TObject>("TPersistent", "persistent", {});
  return info;
}

void TPersistent::Assign(const TPersistent* source) {
  if (!source) throw EConvertError(Concat("Cannot assign nil to a ", ClassName()));
  source->AssignTo(this);
}

void TPersistent::AssignTo(TPersistent* dest) const {
  throw EConvertError(Concat("Cannot assign a ", ClassName(), " to a ", dest->ClassName()));
}

void TPersistent::DefineProperties(TFiler&) {}

}  // namespace vcl
