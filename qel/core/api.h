// What marks a declaration as part of the package's binary interface.
#pragma once

#if !defined(_WIN32)
/// Marks what the package exports. Shared objects export everything, so nothing needs marking
/// there.
#define QEL_API
#elif defined(QEL_BUILD)
#define QEL_API __declspec(dllexport)
#else
#define QEL_API __declspec(dllimport)
#endif
