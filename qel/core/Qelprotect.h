// Secrets that are kept in files and settings: only the user whom the system knows can read them.
#pragma once

#include <string>

#include "qel/core/api.h"

namespace qel {

/// The text encrypted for the user of this machine (CryptProtectData), in hexadecimal digits; empty
/// for an empty one. Raises EQELSecretError when the system refuses.
QEL_API std::string QELProtect(const std::string& text);
/// The text again; empty for what another user or machine has encrypted, and for what is damaged.
QEL_API std::string QELUnprotect(const std::string& encrypted);

}  // namespace qel
