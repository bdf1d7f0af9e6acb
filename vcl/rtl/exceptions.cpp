// The destructors of the exceptions, which give each class one home for its type information.
#include "vcl/rtl/exceptions.h"

namespace vcl {

// Destructors live here so that each class has one home for its type information: an exception
// thrown in one module is caught by type in another.
Exception::~Exception() = default;
EAbort::~EAbort() = default;
EConvertError::~EConvertError() = default;
EInOutError::~EInOutError() = default;
EOutOfResources::~EOutOfResources() = default;
EInvalidOperation::~EInvalidOperation() = default;
EAccessViolation::~EAccessViolation() = default;
EDivByZero::~EDivByZero() = default;
EThread::~EThread() = default;
EArgumentOutOfRangeException::~EArgumentOutOfRangeException() = default;
EListError::~EListError() = default;
EStringListError::~EStringListError() = default;
EComponentError::~EComponentError() = default;
EPropertyError::~EPropertyError() = default;
EStreamError::~EStreamError() = default;
EFCreateError::~EFCreateError() = default;
EFOpenError::~EFOpenError() = default;
EFilerError::~EFilerError() = default;
EReadError::~EReadError() = default;
EWriteError::~EWriteError() = default;
EClassNotFound::~EClassNotFound() = default;
EParserError::~EParserError() = default;
EInvalidGraphic::~EInvalidGraphic() = default;
EResNotFound::~EResNotFound() = default;
EIniFileException::~EIniFileException() = default;
ERegistryException::~ERegistryException() = default;

}  // namespace vcl
