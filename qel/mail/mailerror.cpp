// The destructor of EQELMailError, which gives the class one home for its type information.
#include "qel/mail/mailerror.h"

namespace qel {

EQELMailError::~EQELMailError() = default;

}  // namespace qel
