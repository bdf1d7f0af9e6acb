// What the mail components raise.
#pragma once

#include "qel/core/api.h"
#include "vcl/rtl/exceptions.h"

namespace qel {

/// A mail that is not written as mails must be, or one that is larger than allowed.
class QEL_API EQELMailError : public vcl::Exception {
 public:
  using vcl::Exception::Exception;
  ~EQELMailError() override;
};

}  // namespace qel
