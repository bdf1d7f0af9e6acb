#include "qel/mail/mailerror.h"

namespace qel {

EQELMailError::~EQELMailError() = default;

}  // namespace qel
