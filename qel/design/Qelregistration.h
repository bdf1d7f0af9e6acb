// The package's entry points for a form designer.
#pragma once

#include "vcl/rtl/object.h"

#if defined(_WIN32) && defined(QEL_BUILD)
#define QEL_ENTRY extern "C" __declspec(dllexport)
#else
#define QEL_ENTRY extern "C"
#endif

/// Registers the persistent classes, puts the components on their palette pages, and registers the
/// property editors and then the component editors. Called once when the package is loaded.
QEL_ENTRY void Register();

/// Registers the add-in of the designer application (Qeltools.h). Called after Register.
QEL_ENTRY void RegisterExpert();

/// Calls `each` for every class that the package declares, ancestors before descendants.
QEL_ENTRY void ListClasses(void (*each)(const vcl::TClass& aClass, void* context), void* context);
