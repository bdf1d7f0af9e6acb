// Values that go into one line.
#include "qel/mail/private/oneline.h"

#include "qel/mail/mailerror.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/valuetext.h"

namespace qel {

bool BreaksLine(std::string_view value) {
  using namespace std::string_view_literals;
  return value.find_first_of("\r\n\0"sv) != value.npos;
}

void CheckOneLine(const char* name, const std::string& value) {
  if (!BreaksLine(value)) return;
  throw EQELMailError(
      vcl::Concat(name, " cannot have a line break or a NUL, as in ", vcl::FormString(value)));
}

}  // namespace qel
