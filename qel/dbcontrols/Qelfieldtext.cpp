// QELFieldText: the display text, but for bytes.
#include "qel/dbcontrols/Qelfieldtext.h"

#include "vcl/rtl/text.h"

namespace qel {

std::string QELFieldText(const vcl::TField* field) {
  if (!field) return {};
  const bool bytes = field->DataType() == vcl::ftBlob && !field->IsNull();
  return bytes ? vcl::Concat("(", field->DisplayLabel(), ")") : field->DisplayText();
}

}  // namespace qel
