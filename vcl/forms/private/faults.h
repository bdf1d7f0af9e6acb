// Faults of the processor: an access to memory that is not there, a division by zero.
#pragma once

namespace vcl {

/// Has the faults of this process told. In code of this library, and of modules that use it, a
/// fault becomes an exception (EAccessViolation, EDivByZero) with where it was, which a handler's
/// caller tells like any other; so the program goes on, provided that the code was compiled to
/// raise there (-fnon-call-exceptions, which the library's targets bring along). Every other fault
/// is told in a box before it ends the process with the fault's number as exit code.
///
/// A debugger sees each fault first.
void CatchFaults();

}  // namespace vcl
