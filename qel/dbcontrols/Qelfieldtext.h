// QELFieldText: what one line says of a field.
#pragma once

#include <string>

#include "qel/core/api.h"
#include "vcl/db/field.h"

namespace qel {

/// The field's value as a line of text shows it. Nothing without a field; bytes, which are no text,
/// are shown by their field's label in parentheses.
QEL_API std::string QELFieldText(const vcl::TField* field);

}  // namespace qel
