// The exceptions of the class library. Each is raised with a message that says what was wrong, with
// the value in it.
#pragma once

#include <stdexcept>
#include <string>

#include "vcl/rtl/api.h"

namespace vcl {

/// Base of everything that the class library and the components raise.
class VCL_API Exception : public std::runtime_error {
 public:
  explicit Exception(const std::string& message) : std::runtime_error(message) {}
  ~Exception() override;
  /// The text shown to the user.
  std::string Message() const { return what(); }
};

// NOLINTBEGIN(bugprone-macro-parentheses): the arguments are class names.
#define VCL_EXCEPTION(name, base)    \
  class VCL_API name : public base { \
   public:                           \
    using base::base;                \
    ~name() override;                \
  }
// NOLINTEND(bugprone-macro-parentheses)

/// Ends the running operation without a message: the application's handler shows nothing for it.
VCL_EXCEPTION(EAbort, Exception);
/// A text that is no number, colour, date or other value of the wanted type.
VCL_EXCEPTION(EConvertError, Exception);
/// A file could not be opened, read or written.
VCL_EXCEPTION(EInOutError, Exception);
/// The system refused a window, handle or drawing object.
VCL_EXCEPTION(EOutOfResources, Exception);
/// An operation that the object's state does not allow.
VCL_EXCEPTION(EInvalidOperation, Exception);
/// A call of what is not there, or an access to memory that is not: what a program with forms hears
/// of a fault of its own code, with where it was.
VCL_EXCEPTION(EAccessViolation, Exception);
/// A whole number was divided by zero.
VCL_EXCEPTION(EDivByZero, Exception);
/// A thread that the system refuses, or that is asked for what it can't do.
VCL_EXCEPTION(EThread, Exception);
/// A value outside what a property or parameter takes.
VCL_EXCEPTION(EArgumentOutOfRangeException, Exception);

/// An index outside a list.
VCL_EXCEPTION(EListError, Exception);
/// An index outside a string list, or a duplicate where none is allowed.
VCL_EXCEPTION(EStringListError, EListError);
/// A component's name that is malformed or taken.
VCL_EXCEPTION(EComponentError, Exception);
/// A property that does not exist, or a value that it cannot take.
VCL_EXCEPTION(EPropertyError, Exception);

/// Base of what streams and form files raise.
VCL_EXCEPTION(EStreamError, Exception);
VCL_EXCEPTION(EFCreateError, EStreamError);
VCL_EXCEPTION(EFOpenError, EStreamError);
VCL_EXCEPTION(EFilerError, EStreamError);
/// A stream ended early, or a form file holds what cannot be read; names the offset or line.
VCL_EXCEPTION(EReadError, EFilerError);
VCL_EXCEPTION(EWriteError, EFilerError);
/// A class name in a form file that is not registered.
VCL_EXCEPTION(EClassNotFound, EFilerError);
/// A text form file that is malformed; names the line.
VCL_EXCEPTION(EParserError, Exception);
/// A picture that is damaged, cut off, of an unknown kind or of an impossible size; says which.
VCL_EXCEPTION(EInvalidGraphic, Exception);
/// A resource that the module does not hold.
VCL_EXCEPTION(EResNotFound, Exception);
/// A settings file that can't be read or written, or that can't hold what is to be written; names
/// the file.
VCL_EXCEPTION(EIniFileException, Exception);
/// A key or value of the registry that the system refuses, or that is of another type than the
/// wanted one; names it.
VCL_EXCEPTION(ERegistryException, Exception);

#undef VCL_EXCEPTION

}  // namespace vcl
