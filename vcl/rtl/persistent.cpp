// TPersistent: assigning one object to another, and what refuses it.
#include "vcl/rtl/persistent.h"

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filer.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

TFiler::~TFiler() = default;

const TClass& TPersistent::Class() {
  static const TClass info =
      Describe<TPersistent, TObject>("vcl::TPersistent", "vcl/rtl/persistent.h", {});
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
